#include "rotation_field.h"

#include "design_pages.h"
#include "edit_controller.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>
#include <QTimer>
#include <QUndoGroup>
#include <cmath>

namespace {
// Two angles closer than this are the same angle to the user.
constexpr double kSameAngle = 1e-6;
} // namespace

RotationField::RotationField(QDoubleSpinBox *box, EditController *edit, DesignPages *pages,
                             QObject *parent)
    : QObject(parent), m_box(box), m_edit(edit), m_pages(pages), m_refresh(new QTimer(this))
{
    m_refresh->setSingleShot(true);
    m_refresh->setInterval(0);
    connect(m_refresh, &QTimer::timeout, this, &RotationField::showSelection);
    const auto later = [this] { m_refresh->start(); };
    connect(edit, &EditController::selectionChanged, this, later);
    connect(pages, &DesignPages::currentPageChanged, this, later);
    connect(pages, &DesignPages::designChanged, this, later);
    connect(pages->undoGroup(), &QUndoGroup::indexChanged, this, later);
    // Enter confirms; so does leaving the box, which must not turn again.
    connect(box, &QDoubleSpinBox::editingFinished, this, &RotationField::apply);
    showSelection();
}

double RotationField::selectionAngle() const
{
    const QList<Jk_tu_yuan *> items = m_edit->selectedItems();
    return items.isEmpty() ? 0.0 : std::fmod(items.first()->jiao_du, 360.0);
}

void RotationField::apply()
{
    const QList<Jk_tu_yuan *> items = m_edit->selectedItems();
    if (items.isEmpty())
        return;
    const double turn = m_box->value() - selectionAngle();
    if (std::abs(turn) < kSameAngle)
        return;
    m_edit->rotateSelection(turn);
    if (m_box->hasFocus()) {
        if (Jk_shi_tu *view = m_pages->currentView())
            view->setFocus(Qt::OtherFocusReason);
    }
    showSelection();
}

void RotationField::showSelection()
{
    const bool any = !m_edit->selectedItems().isEmpty();
    m_box->setEnabled(any);
    if (m_box->hasFocus() && any)
        return; // the user is typing
    const QSignalBlocker quiet(m_box);
    m_box->setValue(selectionAngle());
}
