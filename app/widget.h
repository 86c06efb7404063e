#pragma once

#include <QWidget>

namespace Ui {
class Widget;
}

namespace lumitra {
class LanguageController;
}

// The main window. It composes the panels and owns one controller per concern;
// the work itself happens in those controllers and the libraries below them.
class Widget : public QWidget
{
    Q_OBJECT

public:
    explicit Widget(QWidget *parent = nullptr);
    ~Widget() override;

    // Number of items on every design page (the close guard asks only when
    // there is something to lose).
    int designItemCount() const;

    lumitra::LanguageController *languageController() const { return m_language; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildFileMenu();

    Ui::Widget *ui;
    lumitra::LanguageController *m_language = nullptr;
};
