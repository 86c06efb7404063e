#include "wheel_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QPointer>
#include <QVector>

#include <algorithm>

namespace {

bool isValueBox(const QObject *o)
{
    return qobject_cast<const QAbstractSpinBox *>(o) || qobject_cast<const QComboBox *>(o);
}

// One application-wide event filter for all guarded roots: it sees the Polish
// event of every new widget (when its class is complete, so the box can be
// recognised) and every wheel event on its way to a box.
class WheelGuard : public QObject
{
public:
    static WheelGuard &instance()
    {
        static QPointer<WheelGuard> guard;
        if (!guard) {
            guard = new WheelGuard(qApp);
            qApp->installEventFilter(guard);
        }
        return *guard;
    }

    void addRoot(QWidget *root)
    {
        if (!covers(root)) {
            m_roots.append(root);
            connect(root, &QObject::destroyed, this, &WheelGuard::dropDeadRoots,
                    Qt::UniqueConnection);
        }
        guardBox(root);
        for (QWidget *w : root->findChildren<QWidget *>())
            guardBox(w);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::Wheel && type != QEvent::Polish)
            return false;
        if (!isValueBox(watched))
            return false;
        auto *box = static_cast<QWidget *>(watched);
        if (!covers(box))
            return false;
        guardBox(box);
        if (type == QEvent::Polish || hasFocusWithin(box))
            return false;
        // Not for this box: unaccepted, so the parent gets its turn.
        event->ignore();
        return true;
    }

private:
    using QObject::QObject;

    static void guardBox(QWidget *w)
    {
        if (isValueBox(w) && w->focusPolicy() == Qt::WheelFocus)
            w->setFocusPolicy(Qt::StrongFocus);
    }

    static bool hasFocusWithin(const QWidget *box)
    {
        const QWidget *focus = QApplication::focusWidget();
        return box->hasFocus() || (focus && box->isAncestorOf(focus));
    }

    bool covers(const QWidget *w) const
    {
        for (const QPointer<QWidget> &root : m_roots)
            if (root && (root == w || root->isAncestorOf(w)))
                return true;
        return false;
    }

    void dropDeadRoots()
    {
        // A root's QPointer is already null when its destroyed() arrives.
        m_roots.erase(std::remove_if(m_roots.begin(), m_roots.end(),
                                     [](const QPointer<QWidget> &r) { return r.isNull(); }),
                      m_roots.end());
    }

    QVector<QPointer<QWidget>> m_roots;
};

} // namespace

namespace lumitra {

void guardWheel(QWidget *root)
{
    if (root)
        WheelGuard::instance().addRoot(root);
}

} // namespace lumitra
