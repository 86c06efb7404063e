#pragma once

#include "alignment.h"
#include "array_dialog.h"
#include "arrays.h"
#include "jk_wen_zi2.h"
#include "move_dialog.h"
#include "placement.h"
#include "text_outline.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <memory>

class DesignPages;
class Jk_chang_jing;
class Jk_tu_yuan;
class QAction;
class QActionGroup;
class QTimer;
class QUndoCommand;
class SceneTool;

namespace lumitra {
class NodeTool;
class SelectionTool;
} // namespace lumitra

// The editing side of the design canvas, for the main window to own: the
// drawing tools and the selection tool on the current page, the edit actions
// with their standard shortcuts, and the text, move and array dialogs. Every
// edit goes onto the current page's undo stack. The actions are added to the
// window given to the constructor, so their shortcuts work anywhere in it; the
// window puts them into its menus and tool bars as it likes. GUI thread only.
class EditController : public QObject
{
    Q_OBJECT

public:
    enum Action {
        Undo,
        Redo,
        Cut,
        Copy,
        Paste,
        Duplicate,
        Delete,
        SelectAll,
        MirrorHorizontal,
        MirrorVertical,
        RotateClockwise,
        RotateAnticlockwise,
        Combine,
        BreakApart,
        Text,
        Move,
        Array,
        ActionCount
    };

    // Distance of duplicates and repeated pastes from their originals, mm.
    static constexpr double kCopyOffset = 10.0;

    EditController(DesignPages *pages, QWidget *window, QObject *parent = nullptr);
    ~EditController() override;

    QAction *action(Action which) const { return m_actions.at(which); }
    QList<QAction *> actions() const;
    // One checkable action per tool number 0..8, exclusive; toolAction(9) is
    // the node tool's, which is not in the list.
    QAction *toolAction(int number) const;
    QList<QAction *> toolActions() const;
    // The node tool (tool 9), in the same exclusive group as the others.
    QAction *nodeToolAction() const { return m_nodeAction; }
    lumitra::NodeTool *nodeTool() const { return m_nodeTool.get(); }
    int currentTool() const { return m_toolNumber; }

    lumitra::SelectionTool *selectionTool() const { return m_selection.get(); }
    // The selected design items of the current page, topmost first.
    QList<Jk_tu_yuan *> selectedItems() const;

    // The dialogs while one is open (tests fill them in), else nullptr.
    Jk_wen_zi2 *textDialog() const { return m_textDialog; }
    MoveDialog *moveDialog() const { return m_moveDialog; }
    ArrayDialog *arrayDialog() const { return m_arrayDialog; }

public slots:
    void setTool(int number);

    void cut();
    void copy();
    void paste();
    void duplicate();
    // Deletes the selected items, or the chosen node while the node tool has one.
    void deleteSelection();
    void selectAll();
    void mirror(bool horizontal);
    void rotateSelection(double degrees);
    void combine();
    void breakApart();
    void align(lumitra::Alignment alignment);
    void distribute(Qt::Orientation orientation);

    // Open the dialogs (window-modal, without blocking); accepting applies.
    void newText();
    // Re-edits a text item (one with `wen_zi`); other items are left alone.
    void editText(Jk_tu_yuan *item);
    void openMoveDialog();
    void openArrayDialog();

    // The edits behind the dialogs. False when there is nothing to do.
    bool addText(const QString &text, const lumitra::TextSettings &settings);
    bool replaceText(Jk_tu_yuan *item, const QString &text, const lumitra::TextSettings &settings);
    bool place(const lumitra::Placement &placement);
    bool rectangularArray(const lumitra::RectangularArray &array);
    bool circularArray(const lumitra::CircularArray &array);

signals:
    void toolChanged(int number);
    // The selection's outline bounds in scene mm and its size (0: none).
    void selectionChanged(const QRectF &sceneBounds, int count);
    // The same as text in mm for a status line ("X: .. Y: .. W: .. H: .. mm").
    void selectionTextChanged(const QString &text);

private:
    Jk_chang_jing *scene() const;
    bool push(QUndoCommand *command);
    void makeActions(QWidget *window);
    void makeToolActions(QWidget *window);
    void onPageChanged();
    void scheduleUpdate();
    void updateActions();
    SceneTool *toolFor(int number) const;

    DesignPages *m_pages;
    QWidget *m_window;
    std::unique_ptr<lumitra::SelectionTool> m_selection;
    std::unique_ptr<lumitra::NodeTool> m_nodeTool;
    QAction *m_nodeAction = nullptr;
    QVector<SceneTool *> m_drawingTools; // index = tool number; [0] unused
    QVector<QAction *> m_actions;
    QActionGroup *m_toolGroup = nullptr;
    int m_toolNumber = 0;
    QPointer<Jk_chang_jing> m_scene; // the page the tools serve
    QTimer *m_updateTimer = nullptr;
    int m_pasteCount = 0;
    QPointer<Jk_wen_zi2> m_textDialog;
    QPointer<MoveDialog> m_moveDialog;
    QPointer<ArrayDialog> m_arrayDialog;
};
