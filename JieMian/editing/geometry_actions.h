#pragma once

#include "offset_dialog.h"
#include "outline_operations.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QVector>

class DesignPages;
class Jk_chang_jing;
class QAction;
class QTimer;

// The outline operations of the edit menu, for the main window to own next
// to EditController: offset (through its dialog), weld, subtract, intersect and
// exclude of the selection on the current page, each one step on that page's
// undo stack. Subtract cuts everything else from the bottom-most selected
// item. The actions are enabled while the selection has enough vector items
// (one for offset and weld, two for the others); they carry no shortcuts. GUI
// thread only.
class GeometryActions : public QObject
{
    Q_OBJECT

public:
    enum Action { Offset, Weld, Subtract, Intersect, Exclude, ActionCount };

    // `window` parents the dialog and receives the actions.
    GeometryActions(DesignPages *pages, QWidget *window, QObject *parent = nullptr);
    ~GeometryActions() override;

    QAction *action(Action which) const { return m_actions.at(which); }
    QList<QAction *> actions() const;
    // The offset dialog while it is open (tests fill it in), else nullptr.
    OffsetDialog *offsetDialog() const { return m_offsetDialog; }

public slots:
    // Opens the offset dialog (window-modal, without blocking); accepting applies.
    void openOffsetDialog();
    // The edits. False when there is nothing to do.
    bool offsetSelection(const lumitra::OffsetSettings &settings);
    bool combineSelection(lumitra::BooleanOperation operation);

private:
    Jk_chang_jing *scene() const;
    // The selected items, bottom-most first.
    QList<Jk_tu_yuan *> selection() const;
    void onPageChanged();
    void updateActions();

    DesignPages *m_pages;
    QWidget *m_window;
    QVector<QAction *> m_actions;
    QPointer<Jk_chang_jing> m_scene;
    QTimer *m_updateTimer = nullptr;
    QPointer<OffsetDialog> m_offsetDialog;
    lumitra::OffsetSettings m_lastOffset;
};
