#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>
#include <QThread>
#include <atomic>
#include <functional>

// The port watcher: a thread that keeps the window's port list in step with the
// ports present, reports when the serial link's port vanishes, and, while no
// link is up, looks for a port on which a controller answers. One round every
// 2 s (interval()).
//
// It never touches a widget: it keeps its own copy of the list and announces
// every change by signal (connect them queued to the GUI thread, which applies
// them to its combo box in the same order). The GUI thread tells it the
// selected port and the connection mode through the thread-safe setters.
class Chuan_Kou_Jian_Ce : public QThread
{
    Q_OBJECT

public:
    using PortLister = std::function<QStringList()>;
    using PortProber = std::function<bool(const QString &)>;

    // Defaults: the system's serial ports, and probePort() ("AT\r\n", 500 ms).
    explicit Chuan_Kou_Jian_Ce(QObject *parent = nullptr);
    ~Chuan_Kou_Jian_Ce() override;

    // Set before start().
    void setPortLister(PortLister lister) { m_lister = std::move(lister); }
    void setPortProber(PortProber prober) { m_prober = std::move(prober); }
    void setInterval(int ms) { m_intervalMs = ms; }
    int interval() const { return m_intervalMs; }

    // Any thread.
    void setSelectedPort(const QString &port);
    void setLinkMode(int mode) { m_linkMode = mode; }
    QStringList listed() const;

    // Ends the rounds and waits for the thread.
    void stop();

signals:
    void portAppended(const QString &port); // add at the end of the list
    void portRemoved(int row);              // remove this row
    void send_Duan_Kai();                   // the serial link's port is gone
    // Select this entry ("" first, then the name, after a successful probe).
    void selectPort(const QString &port);

protected:
    void run() override;

private:
    void round();

    PortLister m_lister;
    PortProber m_prober;
    int m_intervalMs = 2000;
    std::atomic_int m_linkMode{0};
    mutable QMutex m_mutex; // guards the two below
    QString m_selected;
    QStringList m_listed;
};
