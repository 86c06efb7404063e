#include "design_pages.h"

#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_rebuild.h"
#include "message_box.h"
#include "program_state.h"

#include <QInputDialog>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QUndoGroup>
#include <QUndoStack>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

struct DesignPages::Page
{
    QString name;
    Jk_chang_jing *scene = nullptr;
    Jk_shi_tu *view = nullptr;
    LayerList parked; // this page's layers while another page is current

    ~Page()
    {
        delete view;
        delete scene;
    }
};

namespace {
QString tabLabel(const QString &name)
{
    QString label = name;
    return label.replace(QLatin1Char('&'), QLatin1String("&&"));
}
} // namespace

DesignPages::DesignPages(QWidget *parent)
    : QWidget(parent), m_tabs(new QTabWidget(this)), m_undoGroup(new QUndoGroup(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    m_tabs->setDocumentMode(true);

    auto *add = new QToolButton(m_tabs);
    add->setObjectName(QStringLiteral("addPage_Btn"));
    add->setText(QStringLiteral("+"));
    add->setToolTip(tr("新建页面"));
    add->setAutoRaise(true);
    m_tabs->setCornerWidget(add, Qt::TopRightCorner);
    connect(add, &QToolButton::clicked, this, [this] { addPage(); });

    connect(m_tabs, &QTabWidget::currentChanged, this, &DesignPages::onCurrentChanged);
    connect(m_tabs, &QTabWidget::tabBarDoubleClicked, this, &DesignPages::askRename);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &DesignPages::askClose);
    connect(m_tabs->tabBar(), &QTabBar::tabMoved, this, &DesignPages::pagesChanged);

    // The first page takes over the program-wide layer list, which starts empty.
    LayerList::instance().clear();
    addPage();
}

DesignPages::~DesignPages()
{
    m_tabs->disconnect(this);
    m_tabs->tabBar()->disconnect(this);
    qDeleteAll(m_pages);
    LayerList::instance().clear();
}

int DesignPages::count() const
{
    return m_tabs->count();
}

int DesignPages::currentIndex() const
{
    return m_tabs->currentIndex();
}

void DesignPages::setCurrentIndex(int index)
{
    m_tabs->setCurrentIndex(index);
}

DesignPages::Page *DesignPages::pageAt(int index) const
{
    QWidget *w = m_tabs->widget(index);
    for (Page *p : m_pages)
        if (p->view == w)
            return p;
    return nullptr;
}

QString DesignPages::pageName(int index) const
{
    const Page *p = pageAt(index);
    return p ? p->name : QString();
}

Jk_chang_jing *DesignPages::scene(int index) const
{
    const Page *p = pageAt(index);
    return p ? p->scene : nullptr;
}

Jk_shi_tu *DesignPages::view(int index) const
{
    const Page *p = pageAt(index);
    return p ? p->view : nullptr;
}

Jk_chang_jing *DesignPages::currentScene() const
{
    return m_current ? m_current->scene : nullptr;
}

Jk_shi_tu *DesignPages::currentView() const
{
    return m_current ? m_current->view : nullptr;
}

QUndoStack *DesignPages::currentUndoStack() const
{
    return m_current ? m_current->scene->undoStack() : nullptr;
}

QString DesignPages::unusedName() const
{
    for (int n = count() + 1;; ++n) {
        const QString name = tr("页面%1").arg(n);
        if (indexOfPage(name) < 0)
            return name;
    }
}

int DesignPages::addPage(const QString &name)
{
    auto *page = new Page;
    page->name = name.isEmpty() ? unusedName() : name;
    page->scene = new Jk_chang_jing(this);
    page->view = new Jk_shi_tu(page->scene);
    m_undoGroup->addStack(page->scene->undoStack());
    connect(page->scene, &Jk_chang_jing::designChanged, this, [this, scene = page->scene] {
        if (scene != currentScene())
            return;
        rebuildLayerList(scene);
        emit designChanged();
    });
    connect(page->scene, &Jk_chang_jing::textEditRequested, this, &DesignPages::textEditRequested);
    connect(page->view, &Jk_shi_tu::filesDropped, this, &DesignPages::filesDropped);
    connect(page->view, &Jk_shi_tu::filesDroppedAt, this, &DesignPages::filesDroppedAt);
    connect(page->view, &Jk_shi_tu::cursorMoved, this, &DesignPages::cursorMoved);
    m_pages.append(page);
    const int index = m_tabs->addTab(page->view, tabLabel(page->name));
    m_tabs->setCurrentIndex(index);
    emit pagesChanged();
    return index;
}

bool DesignPages::renamePage(int index, const QString &name)
{
    Page *p = pageAt(index);
    const QString trimmed = name.trimmed();
    if (!p || trimmed.isEmpty())
        return false;
    const int other = indexOfPage(trimmed);
    if (other >= 0 && other != index)
        return false;
    p->name = trimmed;
    m_tabs->setTabText(index, tabLabel(trimmed));
    emit pagesChanged();
    return true;
}

bool DesignPages::closePage(int index)
{
    Page *p = pageAt(index);
    if (!p || count() <= 1)
        return false;
    const bool hadItems = p->scene->designItemCount() > 0;
    m_tabs->removeTab(index); // a closing current page parks its layers here
    m_undoGroup->removeStack(p->scene->undoStack());
    m_pages.removeOne(p);
    delete p;
    if (hadItems)
        lumitra::setUnsaved(true);
    emit pagesChanged();
    return true;
}

int DesignPages::indexOfPage(const QString &name) const
{
    for (int i = 0; i < count(); ++i)
        if (pageName(i) == name)
            return i;
    return -1;
}

int DesignPages::showPage(const QString &name)
{
    const int index = indexOfPage(name);
    if (index < 0)
        return addPage(name);
    setCurrentIndex(index);
    return index;
}

void DesignPages::onCurrentChanged(int index)
{
    Page *next = pageAt(index);
    if (next == m_current)
        return;
    LayerList &layers = LayerList::instance();
    if (m_current)
        m_current->parked.swap(layers);
    if (next)
        next->parked.swap(layers);
    m_current = next;
    if (next) {
        m_undoGroup->setActiveStack(next->scene->undoStack());
        rebuildLayerList(next->scene);
    }
    emit currentPageChanged(index);
}

int DesignPages::totalItemCount() const
{
    int n = 0;
    for (const Page *p : m_pages)
        n += p->scene->designItemCount();
    return n;
}

QList<ProjectPageOut> DesignPages::projectPages() const
{
    QList<ProjectPageOut> out;
    for (int i = 0; i < count(); ++i) {
        const Page *p = pageAt(i);
        ProjectPageOut page;
        page.name = p->name;
        const LayerList &layers = p == m_current ? LayerList::instance() : p->parked;
        for (const TuCeng *l : layers.layers())
            page.layers.append(l);
        page.items = p->scene->designItems();
        out.append(page);
    }
    return out;
}

void DesignPages::applyProject(ProjectReadResult &result)
{
    // A design that is one empty page takes the first stored name instead of
    // gaining a page.
    const bool untouched = count() == 1 && totalItemCount() == 0;
    bool first = true;
    for (ProjectPageIn &page : result.pages) {
        if (page.named && !page.name.isEmpty()) {
            if (first && untouched && indexOfPage(page.name) < 0)
                renamePage(currentIndex(), page.name);
            else
                showPage(page.name);
            first = false;
        }
        LayerList &layers = LayerList::instance();
        for (const TuCeng &l : qAsConst(page.layers)) {
            if (TuCeng *existing = layers.find(l.yanse, l.tupian))
                *existing = l;
            else
                layers.append(new TuCeng(l));
        }
        // The file lists a page's items topmost first; added bottom first they
        // stack as they were saved, and the job burns them in the same order.
        QList<Jk_tu_yuan *> items;
        items.reserve(page.items.size());
        std::copy(page.items.crbegin(), page.items.crend(), std::back_inserter(items));
        page.items.clear();
        currentScene()->addItemsUndoable(items);
        rebuildLayerList(currentScene()); // also when the page got no items
    }
    emit designChanged();
}

void DesignPages::refreshWorkArea()
{
    for (Page *p : qAsConst(m_pages)) {
        p->scene->update();
        p->view->fitWorkArea();
    }
}

void DesignPages::askRename(int index)
{
    if (index < 0)
        return;
    bool ok = false;
    const QString name = QInputDialog::getText(this, tr("重命名页面"), tr("页面名称："),
                                               QLineEdit::Normal, pageName(index), &ok);
    if (ok)
        renamePage(index, name);
}

void DesignPages::askClose(int index)
{
    if (count() <= 1)
        return;
    const Jk_chang_jing *s = scene(index);
    if (s && s->designItemCount() > 0
        && !lumitra::show_message(this, lumitra::MessageKind::Question, tr("取消"), tr("确定"),
                                  tr("关闭页面将删除其中的所有图形,是否继续?"), tr("提示")))
        return;
    closePage(index);
}
