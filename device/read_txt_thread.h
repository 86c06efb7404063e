#pragma once

#include <QString>
#include <QThread>
#include <memory>

class StreamState;

// Reads a job file line by line into the link's pending list, never holding more
// than a few hundred lines: it waits while StreamState::kPendingLimit lines are
// pending, so memory stays flat for any file size. Line ends ("\n", "\r\n") are
// cut off; each line is taken in the local 8-bit encoding.
//
// Owned by nobody once started: it deletes itself when it finishes (end of file,
// stop request or a file that cannot be opened). Stop with requestStop().
class ReadTxtThread : public QThread
{
    Q_OBJECT

public:
    // Feeds the run that is current in `output` now; a later stop ends it.
    ReadTxtThread(const QString &path, std::shared_ptr<StreamState> output,
                  QObject *parent = nullptr);

    // Asks the thread to finish; safe from any thread.
    void requestStop();

    // Lines handed over so far (valid once finished).
    qint64 linesRead() const { return m_linesRead; }

protected:
    void run() override;

private:
    QString m_path;
    std::shared_ptr<StreamState> m_output;
    quint64 m_generation = 0;
    qint64 m_linesRead = 0;
};

// Lines of a text file (a last line without "\n" counts); 0 when it cannot be
// opened.
int countFileLines(const QString &path);
