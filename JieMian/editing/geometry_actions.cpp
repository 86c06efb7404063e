#include "geometry_actions.h"

#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"

#include <QAction>
#include <QTimer>
#include <QUndoStack>
#include <algorithm>

using namespace lumitra;

GeometryActions::GeometryActions(DesignPages *pages, QWidget *window, QObject *parent)
    : QObject(parent), m_pages(pages), m_window(window), m_updateTimer(new QTimer(this))
{
    m_updateTimer->setSingleShot(true);
    m_updateTimer->setInterval(0);
    connect(m_updateTimer, &QTimer::timeout, this, &GeometryActions::updateActions);
    m_actions.resize(ActionCount);
    const auto make = [this, window](Action which, const QString &text, auto run) {
        auto *a = new QAction(text, this);
        a->setObjectName(QStringLiteral("geometryAction%1").arg(int(which)));
        connect(a, &QAction::triggered, this, run);
        if (window)
            window->addAction(a);
        m_actions[which] = a;
    };
    make(Offset, tr("偏移..."), [this] { openOffsetDialog(); });
    make(Weld, tr("焊接"), [this] { combineSelection(BooleanOperation::Weld); });
    make(Subtract, tr("修剪"), [this] { combineSelection(BooleanOperation::Subtract); });
    make(Intersect, tr("相交"), [this] { combineSelection(BooleanOperation::Intersect); });
    make(Exclude, tr("排除"), [this] { combineSelection(BooleanOperation::Exclude); });
    m_actions[Subtract]->setToolTip(tr("从最下层的图形中减去其余图形"));
    connect(pages, &DesignPages::currentPageChanged, this, &GeometryActions::onPageChanged);
    onPageChanged();
}

GeometryActions::~GeometryActions() = default;

QList<QAction *> GeometryActions::actions() const
{
    return m_actions.toList();
}

Jk_chang_jing *GeometryActions::scene() const
{
    return m_pages->currentScene();
}

QList<Jk_tu_yuan *> GeometryActions::selection() const
{
    Jk_chang_jing *s = scene();
    if (!s)
        return {};
    QList<Jk_tu_yuan *> items = s->selectedDesignItems(); // topmost first
    std::reverse(items.begin(), items.end());
    return items;
}

void GeometryActions::onPageChanged()
{
    Jk_chang_jing *now = scene();
    if (m_scene && m_scene != now)
        disconnect(m_scene, nullptr, this, nullptr);
    m_scene = now;
    if (now)
        connect(now, &QGraphicsScene::selectionChanged, m_updateTimer,
                QOverload<>::of(&QTimer::start));
    updateActions();
}

void GeometryActions::updateActions()
{
    int vectors = 0;
    for (const Jk_tu_yuan *item : selection())
        vectors += item->is_bitmap ? 0 : 1;
    m_actions[Offset]->setEnabled(vectors >= 1);
    m_actions[Weld]->setEnabled(vectors >= 1);
    for (Action a : {Subtract, Intersect, Exclude})
        m_actions[a]->setEnabled(vectors >= 2);
}

void GeometryActions::openOffsetDialog()
{
    if (selection().isEmpty())
        return;
    delete m_offsetDialog;
    m_offsetDialog = new OffsetDialog(m_window);
    m_offsetDialog->setAttribute(Qt::WA_DeleteOnClose);
    OffsetDialog *dialog = m_offsetDialog;
    dialog->setSettings(m_lastOffset);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        m_lastOffset = dialog->settings();
        offsetSelection(m_lastOffset);
    });
    dialog->open();
}

bool GeometryActions::offsetSelection(const OffsetSettings &settings)
{
    Jk_chang_jing *s = scene();
    if (!s)
        return false;
    QUndoCommand *step = makeOffsetCommand(s, selection(), settings);
    if (!step)
        return false;
    s->undoStack()->push(step);
    return true;
}

bool GeometryActions::combineSelection(BooleanOperation operation)
{
    Jk_chang_jing *s = scene();
    if (!s)
        return false;
    QUndoCommand *step = makeBooleanCommand(s, selection(), operation);
    if (!step)
        return false;
    s->undoStack()->push(step);
    return true;
}
