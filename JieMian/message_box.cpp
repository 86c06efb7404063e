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
    const MessageRequest request{parent, kind, secondButton, firstButton, message, title};
    if (handler())
        return handler()(request);

    QMessageBox box(iconFor(kind), title, message, QMessageBox::NoButton, parent);
    QPushButton *first = box.addButton(firstButton, QMessageBox::AcceptRole);
    if (!secondButton.isEmpty())
        box.addButton(secondButton, QMessageBox::RejectRole);
    box.setDefaultButton(first);
    box.exec();
    return box.clickedButton() == first ? 1 : 0;
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
