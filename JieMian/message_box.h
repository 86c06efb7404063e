#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace lumitra {

// What kind of icon a message shows.
enum class MessageKind { Information = 0, Question = 1, Warning = 2 };

struct MessageRequest
{
    QWidget *parent = nullptr;
    MessageKind kind = MessageKind::Information;
    QString secondButton; // empty: the box has only the first button
    QString firstButton;
    QString message;
    QString title;
    QString thirdButton; // empty: no third button
};

// The one message box of the application, for every question and refusal.
// Texts come already translated. Returns non-zero when the first button was
// pressed, 0 otherwise (second button, Escape or closing the box).
int show_message(QWidget *parent, MessageKind kind, const QString &secondButton,
                 const QString &firstButton, const QString &message, const QString &title);

// The same with a third button between the two (e.g. "保存" in the unsaved
// question). Returns 1 for the first button, 2 for the third, 0 otherwise.
int show_message(QWidget *parent, MessageKind kind, const QString &secondButton,
                 const QString &firstButton, const QString &thirdButton, const QString &message,
                 const QString &title);

// The usual refusal: title "提示", one button "确定".
int show_notice(QWidget *parent, const QString &message);

// Tests replace the modal box so that nothing ever blocks: the handler gets the
// request and returns what show_message should return. An empty handler puts
// the real box back.
using MessageHandler = std::function<int(const MessageRequest &)>;
void set_message_handler(MessageHandler handler);

} // namespace lumitra
