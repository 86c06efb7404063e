#include "job_preview_dialog.h"
#include "ui_job_preview_dialog.h"

#include <QPixmap>
#include <cmath>

JobPreviewDialog::JobPreviewDialog(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::JobPreviewDialog>())
{
    m_ui->setupUi(this);
}

JobPreviewDialog::~JobPreviewDialog() = default;

QString JobPreviewDialog::durationText(double seconds)
{
    const qint64 s = qint64(std::llround(std::max(0.0, seconds)));
    if (s < 60)
        return tr("%1 秒").arg(s);
    const qint64 h = s / 3600, m = (s % 3600) / 60, rest = s % 60;
    if (h > 0)
        return QStringLiteral("%1:%2:%3")
            .arg(h)
            .arg(m, 2, 10, QLatin1Char('0'))
            .arg(rest, 2, 10, QLatin1Char('0'));
    return QStringLiteral("%1:%2").arg(m).arg(rest, 2, 10, QLatin1Char('0'));
}

void JobPreviewDialog::setPreview(const JobPreview &preview)
{
    m_image = preview.image;
    const JobSimulator::Summary &s = preview.summary;
    if (preview.plannedSeconds >= 0.0) {
        m_ui->time_Lab->setText(durationText(preview.plannedSeconds));
        m_ui->time_Lab->setToolTip(
            tr("含加速与转角减速；只按速度：%1").arg(durationText(s.seconds)));
    } else {
        m_ui->time_Lab->setText(durationText(s.seconds));
        m_ui->time_Lab->setToolTip(QString());
    }
    m_ui->lines_Lab->setText(QString::number(s.lines));
    m_ui->burn_Lab->setText(QStringLiteral("%1 mm").arg(s.burnLength, 0, 'f', 1));
    m_travelText = QStringLiteral("%1 mm").arg(s.travelLength, 0, 'f', 1);
    m_ui->travel_Lab->setText(m_travelText);
    m_ui->travel_Lab->setToolTip(QString());
    showImage();
}

void JobPreviewDialog::setTravelSaved(double mm)
{
    if (!(mm > 0.05)) {
        m_ui->travel_Lab->setText(m_travelText);
        m_ui->travel_Lab->setToolTip(QString());
        return;
    }
    const QString saved = QStringLiteral("%1 mm").arg(mm, 0, 'f', 1);
    m_ui->travel_Lab->setText(m_travelText + QStringLiteral("  ") + tr("(省 %1)").arg(saved));
    m_ui->travel_Lab->setToolTip(tr("优化切割顺序比按绘制顺序少空移 %1").arg(saved));
}

void JobPreviewDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    showImage();
}

void JobPreviewDialog::showImage()
{
    if (m_image.isNull())
        return;
    m_ui->image_Lab->setPixmap(QPixmap::fromImage(m_image).scaled(
        m_ui->image_Lab->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}
