#pragma once

#include "sd_card.h"
#include "sd_card_client.h"

#include <QDialog>
#include <functional>

namespace Ui {
class SdFileManager;
}

// The files on the controller's SD card: list with sizes, card capacity, used
// and free space; upload a file, delete or start a card file (both asked
// first). Every button waits while a request is in flight; failures are told
// through the message box. The board is reached at the host and HTTP port
// given; the list is fetched when the dialog is shown.
class SdFileManager : public QDialog
{
    Q_OBJECT

public:
    // Picks a local file to upload; an empty path cancels.
    using FileChooser = std::function<QString(QWidget *parent)>;

    explicit SdFileManager(QWidget *parent = nullptr);
    ~SdFileManager() override;

    void setAddress(const QString &host, int port = 80);
    // Replaces the open-file dialog (tests).
    void setFileChooser(FileChooser chooser);
    SdCardClient *client() const { return m_client; }
    // The names as listed, in table order.
    QStringList fileNames() const;

signals:
    // The board accepted the start of a card file (the job now runs from the card).
    void fileStarted(const QString &name);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void showListing(const lumitra::sdcard::SdListing &listing);
    void uploadClicked();
    void deleteClicked();
    void runClicked();
    void failed(SdCardClient::Operation operation, const QString &reason);
    void updateButtons();
    // The selected entry, or nullptr when none (or a directory for `fileOnly`).
    const lumitra::sdcard::SdFile *selectedFile() const;

    Ui::SdFileManager *ui;
    SdCardClient *m_client;
    FileChooser m_chooser;
    lumitra::sdcard::SdListing m_listing;
};
