#pragma once

#include "job_player.h"
#include "job_preview_image.h"
#include "job_timeline.h"

#include <QColor>
#include <QDialog>
#include <QElapsedTimer>
#include <QHash>
#include <functional>
#include <memory>

class QTimer;

namespace Ui {
class JobPreviewDialog;
}

// Shows a generated job as the machine will run it (burning dark, travel
// light) with its estimated time and lengths. Given the job itself (setJob),
// it plays it back: a slider over the job's lines, play and pause at 1x, 10x
// and 100x, the burns so far in their layer's colour over the travel, the
// G-code line at that moment and its time; the wheel zooms, a drag pans.
// Widgets only: the timeline (JobTimeline) and the play state (JobPlayer)
// hold the logic.
class JobPreviewDialog : public QDialog
{
    Q_OBJECT

public:
    explicit JobPreviewDialog(QWidget *parent = nullptr);
    ~JobPreviewDialog() override;

    // `factorySettings`: the planned time uses the controller's factory
    // settings because none has reported its own yet; the time's tip says so.
    void setPreview(const JobPreview &preview, bool factorySettings = false);
    // The travel (mm) the optimised cut order saves in this job
    // (cutOrderTravelSaved in cut_order.h); shown after the travel when
    // positive. Call after setPreview.
    void setTravelSaved(double mm);

    // Reads the job (from its current position) for playing it back, timed by
    // the controller's planning with `machine`, else by the programmed feeds.
    // Layer colours come from the layer list as it is now (see
    // setLayerColours). False when the job cannot be read.
    bool setJob(QIODevice &job, const GrblMachineSettings *machine = nullptr);
    // Burn colours by layer name; replaces those of the layer list.
    void setLayerColours(const QHash<QString, QColor> &byName);
    // The colours of the program-wide layer list, by the name the job's layer
    // comments carry.
    static QHash<QString, QColor> layerListColours();
    // The wall clock play follows, in milliseconds (a monotonic clock unless
    // set; tests set their own).
    void setClock(std::function<qint64()> clock);

    const JobTimeline &timeline() const { return m_timeline; }
    const JobPlayer &player() const { return m_player; }
    QTimer *playTimer() const { return m_playTimer; }

    // "1:05:03", "4:07" or "12 s".
    static QString durationText(double seconds);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showImage();
    void togglePlay();
    void tick();
    void lineChosen(int line);
    void speedChosen(int index);
    // Puts the player's moment on the view, the slider and the labels; the
    // line shown is `line`, or the one running at that moment.
    void showPosition(int line = -1);
    void applyColours();

    std::unique_ptr<Ui::JobPreviewDialog> m_ui;
    QImage m_image;
    JobTimeline m_timeline;
    JobPlayer m_player;
    QHash<QString, QColor> m_colours;
    QTimer *m_playTimer = nullptr;
    QElapsedTimer m_elapsed;
    std::function<qint64()> m_clock;
    QString m_travelText;
};
