#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QComboBox;

// The port box of the machine panel. Its list is kept by the port watcher; the
// user may also type a device path the system does not list (a link under
// /dev/serial/by-id/, the pty of a network serial bridge). Such a text is used
// exactly as typed: no completion, no resolving, never added to the list.
//
// Once the user typed a text, it stays through the watcher's changes: entries
// appended or removed keep it, and the watcher's automatic selection no longer
// replaces it. Picking an entry from the list (or clearing the text) hands the
// box back to the watcher. GUI thread; does not own the box.
class PortChoice : public QObject
{
    Q_OBJECT

public:
    // Makes `box` editable, without insertion into the list or completion.
    explicit PortChoice(QComboBox *box, QObject *parent = nullptr);

    // The port to open: the box's text as it stands.
    QString port() const;
    // The text was typed by the user and not picked from the list since.
    bool typed() const { return m_typed; }

    // The watcher's changes to the list.
    void appendPort(const QString &port);
    void removePortAt(int row);
    // The watcher selects `port` (a probe answered, or the link's port went);
    // an empty name is ignored. Does nothing while the user's text stands.
    void autoSelect(const QString &port);

private:
    template<typename Change> void keepTypedText(Change change);

    QPointer<QComboBox> m_box;
    bool m_typed = false;
};
