#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// One round of the port watcher, as data: how the window's port list changes
// when the ports present differ from the entries listed.
struct PortListUpdate
{
    bool changed = false;      // the counts differed; the rest applies only then
    QStringList appended;      // present ports the list lacked, added at the end
    QList<int> removedRows;    // rows of vanished ports, from the last backwards
    QStringList listAfter;     // the entries once applied
    bool selectedLost = false; // serial link up and its listed port vanished
    QString selectFirst;       // entry to select after a loss ("" when the list is empty)
};

// `linkMode` is the connection mode (1 = serial); `selected` the port picked in
// the list. Equal counts mean nothing changed, even when the names differ.
PortListUpdate syncPortList(const QStringList &present, const QStringList &listed, int linkMode,
                            const QString &selected);
