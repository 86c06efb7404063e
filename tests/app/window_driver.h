#pragma once

// Drives the real main window as a user does: mouse events on the current
// page's canvas, clicks on tabs and buttons, the message-box helper answered
// by a script instead of a person.
#include "design_pages.h"
#include "edit_controller.h"
#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"
#include "message_box.h"
#include "widget.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>
#include <functional>

namespace window_test {

struct Asked
{
    QList<lumitra::MessageRequest> requests;
    // Answers in turn; once they run out, 0 (second button / Escape).
    QList<int> answers;

    void install()
    {
        lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
            requests << r;
            return answers.isEmpty() ? 0 : answers.takeFirst();
        });
    }
    QStringList messages() const
    {
        QStringList out;
        for (const lumitra::MessageRequest &r : requests)
            out << r.message;
        return out;
    }
};

template<typename T> T *child(QObject *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qFatal("no child %s", name);
    return w;
}

class Driver
{
public:
    explicit Driver(Widget *window) : w(window) {}

    Widget *w;

    DesignPages *pages() const { return w->pages(); }
    Jk_shi_tu *view() const { return pages()->currentView(); }
    Jk_chang_jing *scene() const { return pages()->currentScene(); }

    void mouse(QEvent::Type type, const QPointF &at, Qt::MouseButton button, Qt::MouseButtons held,
               Qt::KeyboardModifiers m = {})
    {
        QWidget *port = view()->viewport();
        const QPoint p = view()->mapFromScene(at);
        QMouseEvent e(type, p, port->mapToGlobal(p), button, held, m);
        QApplication::sendEvent(port, &e);
    }
    void click(const QPointF &at, Qt::KeyboardModifiers m = {})
    {
        mouse(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, m);
        mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, m);
    }
    void drag(const QPointF &from, const QPointF &to)
    {
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        for (int i = 1; i <= 4; ++i)
            mouse(QEvent::MouseMove, from + (to - from) * i / 4.0, Qt::NoButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    }
    // Chooses a tool by its tool action (0 select, 1 line, 2 rectangle, ...).
    void tool(int number) { w->editController()->toolAction(number)->trigger(); }
    // Draws a rectangle with the rectangle tool between two scene points (mm).
    void drawRectangle(const QPointF &from, const QPointF &to)
    {
        tool(2);
        drag(from, to);
    }
    // Clicks a page's tab as a user does.
    void clickTab(int index)
    {
        QTabBar *bar = pages()->tabs()->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }
    // Clicks the "+" corner button of the page tabs.
    void addPageByButton() { child<QAbstractButton>(pages(), "addPage_Btn")->click(); }
    // Lets queued work (selection refresh, deferred deletes, repaints) run.
    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QTest::qWait(5);
        }
    }
    // Paints the current view into an image, as the screen would.
    QImage paintView()
    {
        settle();
        QImage image(view()->viewport()->size(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        view()->viewport()->render(&image);
        return image;
    }
};

} // namespace window_test
