// A shown design view on a scene at a known zoom, and mouse and key input in
// scene millimetres, for the tests of the canvas tools.
#pragma once

#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QtTest>

namespace editing_test {

struct Canvas
{
    Jk_chang_jing scene;
    Jk_shi_tu view{&scene};

    // `pixelsPerMm` screen pixels per millimetre, the scene point `centre` in
    // the middle of the viewport.
    explicit Canvas(double pixelsPerMm = 4.0, const QPointF &centre = QPointF(100, -100))
    {
        view.resize(900, 700);
        view.show();
        QTest::qWaitForWindowExposed(&view);
        view.setTransform(QTransform::fromScale(pixelsPerMm, pixelsPerMm));
        view.centerOn(centre);
    }

    QPoint at(const QPointF &scenePos) const { return view.mapFromScene(scenePos); }

    void send(QEvent::Type type, const QPointF &scenePos, Qt::MouseButton button,
              Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPoint p = at(scenePos);
        QMouseEvent e(type, p, view.viewport()->mapToGlobal(p), button, held, modifiers);
        QApplication::sendEvent(view.viewport(), &e);
    }

    void press(const QPointF &p, Qt::KeyboardModifiers m = Qt::NoModifier,
               Qt::MouseButton b = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, p, b, b, m);
    }
    void moveHeld(const QPointF &p, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        send(QEvent::MouseMove, p, Qt::NoButton, Qt::LeftButton, m);
    }
    void hover(const QPointF &p) { send(QEvent::MouseMove, p, Qt::NoButton, Qt::NoButton); }
    void release(const QPointF &p, Qt::KeyboardModifiers m = Qt::NoModifier,
                 Qt::MouseButton b = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, p, b, Qt::NoButton, m);
    }
    void click(const QPointF &p, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        press(p, m);
        release(p, m);
    }
    void doubleClick(const QPointF &p)
    {
        press(p);
        release(p);
        send(QEvent::MouseButtonDblClick, p, Qt::LeftButton, Qt::LeftButton);
        release(p);
    }
    // Press, a few moves on the way, release.
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        press(from, m);
        for (int i = 1; i <= 4; ++i)
            moveHeld(from + (to - from) * i / 4.0, m);
        release(to, m);
    }
    void key(int key, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        QKeyEvent e(QEvent::KeyPress, key, m);
        QApplication::sendEvent(view.viewport(), &e);
    }

    QList<Jk_tu_yuan *> items() const { return scene.designItems(); }
    QList<Jk_tu_yuan *> selected() const { return scene.selectedDesignItems(); }
};

} // namespace editing_test
