#pragma once

#include <QObject>

class QActionGroup;
class QMenu;
class QWidget;

namespace lumitra {

// The language menu: offers the interface languages and stores the choice.
// A new language takes effect at the next start.
class LanguageController : public QObject
{
    Q_OBJECT

public:
    explicit LanguageController(QWidget *window);

    // A menu with one checkable entry per offered language, the stored one ticked.
    QMenu *menu() const { return m_menu; }

    // The language menu's action: stores the code and tells the user to restart.
    // Choosing the language already in use does nothing.
    void set_language(const QString &code);

    // The name a language is shown with in the menu (in its own language).
    static QString displayName(const QString &code);

signals:
    // The user chose to restart now: the application should quit with this code.
    void quitRequested(int exitCode);

private:
    QWidget *m_window;
    QMenu *m_menu;
    QActionGroup *m_group;
};

} // namespace lumitra
