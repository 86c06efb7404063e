#pragma once

#include "job_preview_image.h"

#include <QDialog>
#include <memory>

namespace Ui {
class JobPreviewDialog;
}

// Shows a generated job as the machine will run it (burning dark, travel
// light) with its estimated time and lengths. Widgets only.
class JobPreviewDialog : public QDialog
{
    Q_OBJECT

public:
    explicit JobPreviewDialog(QWidget *parent = nullptr);
    ~JobPreviewDialog() override;

    void setPreview(const JobPreview &preview);
    // The travel (mm) the optimised cut order saves in this job
    // (cutOrderTravelSaved in cut_order.h); shown after the travel when
    // positive. Call after setPreview.
    void setTravelSaved(double mm);

    // "1:05:03", "4:07" or "12 s".
    static QString durationText(double seconds);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showImage();

    std::unique_ptr<Ui::JobPreviewDialog> m_ui;
    QImage m_image;
    QString m_travelText;
};
