#include "widget.h"
#include "ui_widget.h"

#include "close_guard.h"
#include "language_controller.h"
#include "program_state.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>

using namespace lumitra;

Widget::Widget(QWidget *parent) : QWidget(parent), ui(new Ui::Widget)
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("Lumitra"));

    m_language = new LanguageController(this);
    ui->language_Btn->setMenu(m_language->menu());
    connect(m_language, &LanguageController::quitRequested, qApp, &QCoreApplication::exit,
            Qt::QueuedConnection);

    buildFileMenu();
}

Widget::~Widget()
{
    delete ui;
}

void Widget::buildFileMenu()
{
    auto *menu = new QMenu(this);
    QAction *quit = menu->addAction(tr("退出"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    ui->file_Btn->setMenu(menu);
}

int Widget::designItemCount() const
{
    return 0;
}

void Widget::closeEvent(QCloseEvent *event)
{
    if (!close_guard(this, programState().unsaved, designItemCount())) {
        event->ignore();
        return;
    }
    event->accept();
}
