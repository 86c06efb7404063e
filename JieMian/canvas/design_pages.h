#pragma once

#include "project_file.h"

#include <QList>
#include <QWidget>

class Jk_chang_jing;
class Jk_shi_tu;
class Jk_tu_yuan;
class LayerList;
class QTabWidget;
class QUndoGroup;
class QUndoStack;

// The design pages: a tab bar of pages, each with its own scene, view and undo
// stack (all stacks in one undo group whose active stack is the current
// page's). The program-wide layer list always holds the current page's layers
// and is rebuilt whenever that page's items change or another page becomes
// current; the other pages keep theirs parked until they are current again.
// Tabs can be added ("+"), renamed (double-click) and closed; the last page
// cannot be closed. The window embeds this widget as its central canvas.
class DesignPages : public QWidget
{
    Q_OBJECT

public:
    explicit DesignPages(QWidget *parent = nullptr);
    ~DesignPages() override;

    int count() const;
    int currentIndex() const;
    void setCurrentIndex(int index);
    QString pageName(int index) const;
    Jk_chang_jing *scene(int index) const;
    Jk_shi_tu *view(int index) const;
    Jk_chang_jing *currentScene() const;
    Jk_shi_tu *currentView() const;
    QUndoStack *currentUndoStack() const;
    QUndoGroup *undoGroup() const { return m_undoGroup; }
    QTabWidget *tabs() const { return m_tabs; }

    // Adds a page (an unused default name when `name` is empty) and makes it
    // current. Returns its index.
    int addPage(const QString &name = QString());
    // Refuses an empty name or one another page has.
    bool renamePage(int index, const QString &name);
    // Closes a page with everything on it; refuses the last page.
    bool closePage(int index);
    int indexOfPage(const QString &name) const;
    // Makes the page of that name current, creating it when missing.
    int showPage(const QString &name);

    // Design items on all pages.
    int totalItemCount() const;
    // Every page in tab order as the project writer wants it.
    QList<ProjectPageOut> projectPages() const;
    // Puts what the project reader got onto the pages: each named page is made
    // current (or created; a design that is a single empty page takes the
    // first name instead), its layer records join the current layer list (a
    // record for a layer that exists replaces its parameters) and its items are
    // added through the undoable add. The result's items are taken.
    void applyProject(ProjectReadResult &result);

    // The work area changed: every page redraws it and refits its view.
    void refreshWorkArea();

signals:
    void currentPageChanged(int index);
    // The current page's items changed (added, removed, moved to a layer...);
    // the layer list has been rebuilt already.
    void designChanged();
    void textEditRequested(Jk_tu_yuan *item);
    void filesDropped(const QStringList &paths);
    void filesDroppedAt(const QStringList &paths, const QPointF &scenePos);
    void cursorMoved(const QPointF &scenePos);
    void pagesChanged();

private:
    struct Page;
    Page *pageAt(int index) const;
    QString unusedName() const;
    void onCurrentChanged(int index);
    void askRename(int index);
    void askClose(int index);

    QTabWidget *m_tabs;
    QUndoGroup *m_undoGroup;
    QList<Page *> m_pages;
    Page *m_current = nullptr;
};
