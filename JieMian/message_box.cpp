#include "message_box.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace lumitra {

namespace {
MessageHandler &handler()
{
    static MessageHandler h;
    return h;
}

QMessageBox::Icon iconFor(MessageKind kind)
{
    switch (kind) {
    case MessageKind::Question:
        return QMessageBox::Question;
    case MessageKind::Warning:
        return QMessageBox::Warning;
    case MessageKind::Information:
        break;
    }
    return QMessageBox::Information;
}
} // namespace

int show_message(QWidget *parent, MessageKind kind, const QString &secondButton,
                 const QString &firstButton, const QString &message, const QString &title)
{
    return show_message(parent, kind, secondButton, firstButton, QString(), message, title);
}

int show_message(QWidget *parent, MessageKind kind, const QString &secondButton,
                 const QString &firstButton, const QString &thirdButton, const QString &message,
                 const QString &title)
{
    const MessageRequest request{parent,  kind,  secondButton, firstButton,
                                 message, title, thirdButton};
    if (handler())
        return handler()(request);

    QMessageBox box(iconFor(kind), title, message, QMessageBox::NoButton, parent);
    QPushButton *first = box.addButton(firstButton, QMessageBox::AcceptRole);
    QPushButton *third = nullptr;
    if (!thirdButton.isEmpty())
        third = box.addButton(thirdButton, QMessageBox::ActionRole);
    if (!secondButton.isEmpty())
        box.addButton(secondButton, QMessageBox::RejectRole);
    box.setDefaultButton(first);
    box.exec();
    if (box.clickedButton() == first)
        return 1;
    return third && box.clickedButton() == third ? 2 : 0;
}

int show_notice(QWidget *parent, const QString &message)
{
    return show_message(parent, MessageKind::Information, QString(),
                        QCoreApplication::translate("MessageBox", "确定"), message,
                        QCoreApplication::translate("MessageBox", "提示"));
}

void set_message_handler(MessageHandler h)
{
    handler() = std::move(h);
}

} // namespace lumitra
