#pragma once

#include "test_card.h"

#include <QDialog>
#include <functional>

namespace Ui {
class TestCardDialog;
}

// The material test card dialog: the card's ranges, grid and squares, a note
// saying how many pages the card takes (more squares than layers split it),
// "生成" to put it on the pages, and the best square (row and column, from 1)
// with material and thickness to store its settings in the parameter library
// in one click. The owner does the generating and storing through the
// functions below.
class TestCardDialog : public QDialog
{
    Q_OBJECT

public:
    using Generator = std::function<bool(const lumitra::TestCardSettings &)>;
    // Settings, row and column (from 0), material, thickness.
    using CellSaver =
        std::function<bool(const lumitra::TestCardSettings &, int, int, const QString &, double)>;

    explicit TestCardDialog(QWidget *parent = nullptr);
    ~TestCardDialog() override;

    void setGenerator(Generator generator) { m_generate = std::move(generator); }
    void setCellSaver(CellSaver saver) { m_save = std::move(saver); }

    lumitra::TestCardSettings settings() const;
    void setSettings(const lumitra::TestCardSettings &settings);
    // The note shown above "生成".
    QString note() const;

public slots:
    void generate();
    void saveBestCell();

private:
    void update();

    Ui::TestCardDialog *ui;
    Generator m_generate;
    CellSaver m_save;
};
