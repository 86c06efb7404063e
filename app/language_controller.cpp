#include "language_controller.h"

#include "language.h"
#include "message_box.h"
#include "settings_store.h"

#include <QActionGroup>
#include <QMenu>

namespace lumitra {

LanguageController::LanguageController(QWidget *window)
    : QObject(window), m_window(window), m_menu(new QMenu(window)), m_group(new QActionGroup(this))
{
    m_group->setExclusive(true);
    const QString stored = get_setting(QStringLiteral("language"));
    for (const QString &code : offered_language_codes()) {
        QAction *action = m_menu->addAction(displayName(code));
        action->setCheckable(true);
        action->setChecked(code == stored);
        action->setData(code);
        m_group->addAction(action);
        connect(action, &QAction::triggered, this, [this, code] { set_language(code); });
    }
}

QString LanguageController::displayName(const QString &code)
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("zw"), QStringLiteral("中文")},
        {QStringLiteral("yw"), QStringLiteral("English")},
        {QStringLiteral("hw"), QStringLiteral("한국어")},
        {QStringLiteral("rw"), QStringLiteral("日本語")},
        {QStringLiteral("dw"), QStringLiteral("Deutsch")},
        {QStringLiteral("ydlw"), QStringLiteral("Italiano")},
        {QStringLiteral("fw"), QStringLiteral("Français")},
        {QStringLiteral("xw"), QStringLiteral("Español")},
        {QStringLiteral("pty"), QStringLiteral("Português")},
        {QStringLiteral("ew"), QStringLiteral("Русский")}};
    return names.value(code, code);
}

void LanguageController::set_language(const QString &code)
{
    if (!store_language(code))
        return;
    const int restartNow = show_message(m_window, MessageKind::Information, tr("稍后重启"),
                                        tr("确定"), tr("语言修改成功,请重启软件!"), tr("提示"));
    if (restartNow)
        emit quitRequested(0);
}

} // namespace lumitra
