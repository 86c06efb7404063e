#pragma once

#include <QElapsedTimer>
#include <QGraphicsView>
#include <QTimer>

class QGraphicsScene;

// A canvas kept busy: a view over a scene of many path items that repaints
// itself continuously (about 60 times a second, each frame zoomed slightly so
// that nothing comes from a cache). Counts the frames and the time spent
// painting them on the GUI thread.
class BusyCanvas : public QGraphicsView
{
public:
    explicit BusyCanvas(int itemCount);
    void startRepainting();
    void stopRepainting();

    int frames() const { return m_frames; }
    double paintMs() const { return m_paintNs / 1e6; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QGraphicsScene *m_scene;
    QTimer m_tick;
    int m_frames = 0;
    qint64 m_paintNs = 0;
    double m_zoom = 1.0;
};
