#pragma once

#include "job_state_index.h"

#include <QDialog>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <memory>

namespace Ui {
class ResumeDialog;
}

// After an interrupted job: "resume from line N", with N editable and the job
// preview marking where the head goes for line N (where it was just before that
// line ran). When the controller lost its position (alarm, reset) the user is
// told to home or set the origin first. Not modal, so the machine panel stays
// usable for that. Accepting means: resume from line().
class ResumeDialog : public QDialog
{
    Q_OBJECT

public:
    // `job`: the job file's index; `line`: the line suggested (first not
    // executed).
    // `preview`: renderPreview(job) when made already (it takes a while for
    // a large job), else the dialog draws it.
    ResumeDialog(const lumitra::gcode::JobStateIndex &job, int line, bool positionLost,
                 QWidget *parent = nullptr, const QImage &preview = QImage());
    // The job drawn for the dialog; any thread.
    static QImage renderPreview(const lumitra::gcode::JobStateIndex &job);
    ~ResumeDialog() override;

    int line() const;
    // Replaces the warning shown (and shows it).
    void setWarning(const QString &text);
    void setLine(int line);
    // Where the head goes before line(), in job coordinates (mm).
    QPointF resumePoint() const;
    // The marker's centre in the preview picture (pixels).
    QPointF markerInPreview() const;
    // The preview as shown (picture with the marker).
    QImage previewImage() const { return m_shown; }
    Ui::ResumeDialog &form() { return *m_ui; }

private:
    void updateMarker();

    std::unique_ptr<Ui::ResumeDialog> m_ui;
    lumitra::gcode::JobStateIndex m_job;
    QImage m_preview;
    QImage m_shown;
    QRectF m_area; // job area shown (mm, Y up)
    double m_scale = 1.0;
};
