#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class ControllerSearch;
class QListWidgetItem;

namespace Ui {
class ControllerSearchDialog;
}

// Finds controller boards on the network and lets the user pick one for the
// window's IP field. The addresses to probe are given (for the real search:
// lumitra::search::defaultSearchAddresses()); entries may carry ":port". The
// search starts when the dialog is shown and again with the search button.
class ControllerSearchDialog : public QDialog
{
    Q_OBJECT

public:
    ControllerSearchDialog(const QStringList &addresses, int port, QWidget *parent = nullptr);
    ~ControllerSearchDialog() override;

    ControllerSearch *search() const { return m_search; }
    void startSearch();

signals:
    // The board the user chose: host (no port) and HTTP port.
    void controllerChosen(const QString &host, int port);

protected:
    void showEvent(QShowEvent *event) override;
    void done(int result) override;

private:
    void reported(const QString &address, bool online);
    void progressed(int probed, int total);
    void finished();
    void choose();
    void updateButtons();

    Ui::ControllerSearchDialog *ui;
    ControllerSearch *m_search;
    bool m_started = false;
};
