#include "resume_dialog.h"

#include "job_preview_image.h"
#include "resume_plan.h"
#include "ui_resume_dialog.h"

#include <QBuffer>
#include <QPainter>

namespace {
constexpr int kPreviewSide = 320; // pixels, longer side
constexpr double kMarginMm = 2.0;
} // namespace

ResumeDialog::ResumeDialog(const QStringList &job, int line, bool positionLost, QWidget *parent)
    : QDialog(parent), m_ui(new Ui::ResumeDialog)
{
    m_ui->setupUi(this);
    setModal(false);
    m_ui->warning_Lab->setVisible(positionLost);

    // Head position before every line, and the job's extent.
    lumitra::gcode::ModalTracker tracker;
    m_before.reserve(job.size() + 1);
    double left = 0.0, right = 0.0, bottom = 0.0, top = 0.0; // the job starts at 0,0
    for (const QString &l : job) {
        m_before.append(tracker.state().position);
        tracker.feed(l);
        const QPointF p = tracker.state().position;
        left = qMin(left, p.x());
        right = qMax(right, p.x());
        bottom = qMin(bottom, p.y());
        top = qMax(top, p.y());
    }
    m_before.append(tracker.state().position);
    m_area = QRectF(left, bottom, right - left, top - bottom)
                 .adjusted(-kMarginMm, -kMarginMm, kMarginMm, kMarginMm);
    m_scale = kPreviewSide / qMax(m_area.width(), m_area.height());

    QByteArray bytes = job.join(QLatin1Char('\n')).toLocal8Bit();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const JobPreview preview = renderJobPreview(buffer, m_area, m_scale, kPreviewSide);
    m_preview = preview.image;
    if (m_preview.isNull()) {
        m_preview = QImage(kPreviewSide, kPreviewSide, QImage::Format_ARGB32_Premultiplied);
        m_preview.fill(Qt::white);
    }

    m_ui->line_Box->setMaximum(qMax(1, job.size()));
    m_ui->total_Lab->setText(QStringLiteral("/ %1").arg(job.size()));
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
    const int i = qBound(0, line() - 1, m_before.size() - 1);
    return m_before.isEmpty() ? QPointF() : m_before.at(i);
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
