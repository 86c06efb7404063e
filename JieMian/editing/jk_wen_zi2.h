#pragma once

#include "text_outline.h"

#include <QDialog>

namespace Ui {
class Jk_wen_zi2;
}

// The text settings dialog: text, font family, size in mm, bold, italic,
// letter and line spacing. It only collects the settings; the edit controller
// turns them into an item (or replaces a text item's outline). Accepting with
// text that gives no outline (empty, blanks only) is refused with a notice.
class Jk_wen_zi2 : public QDialog
{
    Q_OBJECT

public:
    explicit Jk_wen_zi2(QWidget *parent = nullptr);
    ~Jk_wen_zi2() override;

    // Fills the dialog (re-editing a text item).
    void setText(const QString &text);
    void setSettings(const lumitra::TextSettings &settings);

    QString text() const;
    lumitra::TextSettings settings() const;

public slots:
    void accept() override;

private:
    Ui::Jk_wen_zi2 *ui;
};
