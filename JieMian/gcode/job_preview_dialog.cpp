#include "job_preview_dialog.h"
#include "ui_job_preview_dialog.h"

#include "layer_list.h"

#include <QPixmap>
#include <QTimer>
#include <cmath>
#include <iterator>

namespace {
constexpr int kFrameMs = 33; // about 30 pictures a second while playing
}

JobPreviewDialog::JobPreviewDialog(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::JobPreviewDialog>()), m_playTimer(new QTimer(this))
{
    m_ui->setupUi(this);
    m_ui->player_Box->hide(); // until a job is given
    m_elapsed.start();
    m_clock = [this] { return m_elapsed.elapsed(); };
    m_playTimer->setObjectName(QStringLiteral("play_Timer"));
    m_playTimer->setInterval(kFrameMs);
    connect(m_playTimer, &QTimer::timeout, this, &JobPreviewDialog::tick);
    connect(m_ui->play_Btn, &QPushButton::clicked, this, &JobPreviewDialog::togglePlay);
    connect(m_ui->position_Slider, &QSlider::valueChanged, this, &JobPreviewDialog::lineChosen);
    connect(m_ui->speed_Box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &JobPreviewDialog::speedChosen);
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

void JobPreviewDialog::setPreview(const JobPreview &preview, bool factorySettings)
{
    m_image = preview.image;
    const JobSimulator::Summary &s = preview.summary;
    if (preview.plannedSeconds >= 0.0) {
        m_ui->time_Lab->setText(durationText(preview.plannedSeconds));
        QString tip = tr("含加速与转角减速；只按速度：%1").arg(durationText(s.seconds));
        if (factorySettings)
            tip += QLatin1Char('\n')
                   + tr("尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确");
        m_ui->time_Lab->setToolTip(tip);
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

bool JobPreviewDialog::setJob(QIODevice &job, const GrblMachineSettings *machine)
{
    m_playTimer->stop();
    m_player = JobPlayer();
    m_player.setSpeed(JobPlayer::kSpeeds[std::max(0, m_ui->speed_Box->currentIndex())], m_clock());
    const bool ok = m_timeline.load(job, machine);
    m_player.setDuration(m_timeline.totalSeconds());
    m_ui->player_View->setTimeline(&m_timeline);
    if (m_colours.isEmpty())
        m_colours = layerListColours();
    applyColours();
    {
        const QSignalBlocker block(m_ui->position_Slider);
        m_ui->position_Slider->setRange(0, std::max(0, m_timeline.lineCount() - 1));
        m_ui->position_Slider->setValue(0);
    }
    m_ui->play_Btn->setText(tr("播放"));
    m_ui->play_Btn->setEnabled(m_timeline.totalSeconds() > 0.0);
    m_ui->image_Lab->hide();
    m_ui->player_Box->show();
    showPosition(m_timeline.lineCount() > 0 ? 0 : -1);
    return ok;
}

void JobPreviewDialog::setLayerColours(const QHash<QString, QColor> &byName)
{
    m_colours = byName;
    applyColours();
}

QHash<QString, QColor> JobPreviewDialog::layerListColours()
{
    QHash<QString, QColor> colours;
    // Vector layers first: a bitmap layer of the same name does not win.
    for (const bool bitmap : {false, true}) {
        for (const TuCeng *layer : LayerList::instance().layers()) {
            const QString name = JobTimeline::commentName(layer->mingcheng);
            if (layer->tupian == bitmap && !colours.contains(name))
                colours.insert(name, layerColor(layer->yanse));
        }
    }
    return colours;
}

void JobPreviewDialog::setClock(std::function<qint64()> clock)
{
    if (clock)
        m_clock = std::move(clock);
}

void JobPreviewDialog::applyColours()
{
    QVector<QColor> byIndex;
    for (const QString &name : m_timeline.layerNames())
        byIndex.append(m_colours.value(name, QColor(Qt::black)));
    m_ui->player_View->setLayerColours(byIndex);
}

void JobPreviewDialog::togglePlay()
{
    if (m_player.isPlaying()) {
        m_player.tick(m_clock());
        m_player.pause();
        m_playTimer->stop();
        m_ui->play_Btn->setText(tr("播放"));
        showPosition();
        return;
    }
    if (!m_player.play(m_clock()))
        return;
    m_ui->play_Btn->setText(tr("暂停"));
    m_playTimer->start();
    showPosition();
}

void JobPreviewDialog::tick()
{
    m_player.tick(m_clock());
    if (!m_player.isPlaying()) {
        m_playTimer->stop();
        m_ui->play_Btn->setText(tr("播放"));
    }
    showPosition();
}

void JobPreviewDialog::lineChosen(int line)
{
    m_player.seek(m_timeline.lineEnd(line));
    showPosition(line);
}

void JobPreviewDialog::speedChosen(int index)
{
    if (index >= 0 && index < int(std::size(JobPlayer::kSpeeds)))
        m_player.setSpeed(JobPlayer::kSpeeds[index], m_clock());
}

void JobPreviewDialog::showPosition(int line)
{
    const double at = m_player.position();
    if (line < 0)
        line = m_timeline.lineAt(at);
    m_ui->player_View->setPosition(at);
    if (line >= 0 && m_ui->position_Slider->value() != line) {
        const QSignalBlocker block(m_ui->position_Slider);
        m_ui->position_Slider->setValue(line);
    }
    m_ui->at_Lab->setText(
        QStringLiteral("%1 / %2").arg(durationText(at), durationText(m_player.duration())));
    m_ui->line_Lab->setText(
        line >= 0 ? QStringLiteral("%1: %2").arg(line + 1).arg(m_timeline.lineText(line))
                  : QString());
}
