// The mode preview: the unprocessed bitmap beside its form in the chosen image mode.
#pragma once

#include <QDialog>
#include <QImage>
#include <QPixmap>

namespace Ui {
class MoShiYuLan;
}
class QLabel;

// Holds one copy of a bitmap item's image and never writes back into the item.
// GUI thread only.
class MoShiYuLan : public QDialog
{
    Q_OBJECT

public:
    explicit MoShiYuLan(QWidget *parent = nullptr);
    ~MoShiYuLan() override;

    // Stores a copy, shows it unprocessed in old_Lab and in mode 0 in new_Lab.
    void setImage(const QImage &image);
    const QImage &image() const { return m_image; }

    // A width x height pixmap, white, with the source drawn centred: at its own size when
    // it fits, otherwise scaled smoothly to the largest size that keeps its proportions.
    static QPixmap fitToLabel(const QPixmap &source, int width, int height);

public slots:
    // Shows the stored image in mode `index` (0..4; any other index unprocessed) in new_Lab.
    void modeChanged(int index);

private:
    Ui::MoShiYuLan *ui;
    QImage m_image;

    void showFitted(QLabel *label, const QImage &image);
};
