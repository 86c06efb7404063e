#include "port_list_sync.h"

PortListUpdate syncPortList(const QStringList &present, const QStringList &listed, int linkMode,
                            const QString &selected)
{
    PortListUpdate u;
    u.listAfter = listed;
    if (present.size() == listed.size())
        return u;
    u.changed = true;

    for (const QString &port : present) {
        if (!u.listAfter.contains(port)) {
            u.appended.append(port);
            u.listAfter.append(port);
        }
    }
    for (int row = u.listAfter.size() - 1; row >= 0; --row) {
        if (!present.contains(u.listAfter.at(row))) {
            u.removedRows.append(row);
            u.listAfter.removeAt(row);
        }
    }
    // A typed path the list never held (a link to a port, a bridge's pty) is not
    // watched here; the link notices its loss itself.
    if (linkMode == 1 && listed.contains(selected) && !present.contains(selected)) {
        u.selectedLost = true;
        u.selectFirst = u.listAfter.value(0);
    }
    return u;
}
