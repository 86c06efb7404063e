#include "moshiyulan.h"

#include "image_modes.h"
#include "ui_moshiyulan.h"

#include <QPainter>
#include <cmath>

MoShiYuLan::MoShiYuLan(QWidget *parent) : QDialog(parent), ui(new Ui::MoShiYuLan)
{
    ui->setupUi(this);
    connect(ui->comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MoShiYuLan::modeChanged);
}

MoShiYuLan::~MoShiYuLan()
{
    delete ui;
}

void MoShiYuLan::setImage(const QImage &image)
{
    m_image = image.copy();
    showFitted(ui->old_Lab, m_image);
    showFitted(ui->new_Lab, lumitra::applyImageMode(m_image.copy(), 0));
}

void MoShiYuLan::modeChanged(int index)
{
    showFitted(ui->new_Lab, lumitra::applyImageMode(m_image.copy(), index));
}

void MoShiYuLan::showFitted(QLabel *label, const QImage &image)
{
    // The label's current rectangle: right - left + 1 by bottom - top + 1.
    const QRect r = label->rect();
    label->setPixmap(
        fitToLabel(QPixmap::fromImage(image), r.right() - r.left() + 1, r.bottom() - r.top() + 1));
}

QPixmap MoShiYuLan::fitToLabel(const QPixmap &source, int width, int height)
{
    if (width <= 0 || height <= 0)
        return QPixmap();
    QPixmap out(width, height);
    out.fill(Qt::white);
    const int w = source.width(), h = source.height();
    if (w <= 0 || h <= 0)
        return out;
    QPainter painter(&out);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (w <= width && h <= height) {
        painter.drawPixmap((width - w) / 2, (height - h) / 2, source);
        return out;
    }
    int nw, nh;
    if (double(w) / h < double(width) / height) {
        nh = height;
        nw = int(std::lround(double(w) * height / h));
    } else {
        nw = width;
        nh = int(std::lround(double(h) * width / w));
    }
    const QPixmap scaled = source.scaled(nw, nh, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawPixmap((width - nw) / 2, (height - nh) / 2, scaled);
    return out;
}
