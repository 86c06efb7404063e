#include "resume_dialog.h"

#include "job_preview_image.h"
#include "resume_plan.h"
#include "ui_resume_dialog.h"

#include <QFile>
#include <QPainter>

namespace {
constexpr int kPreviewSide = 320; // pixels, longer side
constexpr double kMarginMm = 2.0;
} // namespace

namespace {
QRectF previewArea(const lumitra::gcode::JobStateIndex &job)
{
    return job.extent().adjusted(-kMarginMm, -kMarginMm, kMarginMm, kMarginMm);
}
double previewScale(const QRectF &area)
{
    return kPreviewSide / qMax(area.width(), area.height());
}
} // namespace

QImage ResumeDialog::renderPreview(const lumitra::gcode::JobStateIndex &job)
{
    // Drawn from the file as it streams by: a job of any size fits.
    const QRectF area = previewArea(job);
    QFile file(job.path());
    QImage image;
    if (file.open(QIODevice::ReadOnly))
        image = renderJobPreview(file, area, previewScale(area), kPreviewSide).image;
    if (image.isNull()) {
        image = QImage(kPreviewSide, kPreviewSide, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
    }
    return image;
}

ResumeDialog::ResumeDialog(const lumitra::gcode::JobStateIndex &job, int line, bool positionLost,
                           QWidget *parent, const QImage &preview)
    : QDialog(parent), m_ui(new Ui::ResumeDialog), m_job(job)
{
    m_ui->setupUi(this);
    setModal(false);
    m_ui->warning_Lab->setVisible(positionLost);

    m_area = previewArea(job);
    m_scale = previewScale(m_area);
    m_preview = preview.isNull() ? renderPreview(job) : preview;

    const int lines = job.lineCount();
    m_ui->line_Box->setMaximum(qMax(1, lines));
    m_ui->total_Lab->setText(QStringLiteral("/ %1").arg(lines));
    m_ui->title_Lab->setText(tr("作业中断。从第 %1 行继续?").arg(line));
    connect(m_ui->line_Box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ResumeDialog::updateMarker);
    connect(m_ui->confirm_Btn, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    setLine(line);
    updateMarker();
}

ResumeDialog::~ResumeDialog() = default;

void ResumeDialog::setWarning(const QString &text)
{
    m_ui->warning_Lab->setText(text);
    m_ui->warning_Lab->setVisible(true);
}

int ResumeDialog::line() const
{
    return m_ui->line_Box->value();
}

void ResumeDialog::setLine(int line)
{
    m_ui->line_Box->setValue(line);
}

QPointF ResumeDialog::resumePoint() const
{
    return m_job.stateBefore(line()).position;
}

QPointF ResumeDialog::markerInPreview() const
{
    const QPointF p = resumePoint();
    return QPointF((p.x() - m_area.left()) * m_scale,
                   m_preview.height() - (p.y() - m_area.top()) * m_scale);
}

void ResumeDialog::updateMarker()
{
    m_shown = m_preview.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&m_shown);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(220, 30, 30), 2));
    const QPointF c = markerInPreview();
    painter.drawEllipse(c, 6, 6);
    painter.drawLine(c - QPointF(10, 0), c + QPointF(10, 0));
    painter.drawLine(c - QPointF(0, 10), c + QPointF(0, 10));
    painter.end();
    m_ui->preview_Lab->setPixmap(QPixmap::fromImage(m_shown));
}
