// Copy, cut, paste and duplicate of items. Copied items travel through the
// system clipboard as their own MIME type, so a paste works across the pages
// of a design. GUI thread only.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPointF>

class Jk_tu_yuan;
class Jk_chang_jing;
class QMimeData;
class QUndoCommand;

namespace lumitra {

extern const char *const kItemsMimeType;

// The items as bytes: outline, bitmap flag and images, jiao_du, layer,
// transform, position and text, in a versioned stream.
QByteArray encodeItems(const QList<Jk_tu_yuan *> &items);

// New items (not in a scene, not selected) from encodeItems' bytes. Malformed
// or truncated data gives the items read whole before the fault; a wrong
// header gives none.
QList<Jk_tu_yuan *> decodeItems(const QByteArray &bytes);

// MIME data holding the items (caller owns it).
QMimeData *itemsMimeData(const QList<Jk_tu_yuan *> &items);

// Undoable paste of items decoded from `mime`, moved by `offset`, selected;
// nullptr when the data holds no items.
QUndoCommand *makePasteCommand(Jk_chang_jing *scene, const QMimeData *mime, const QPointF &offset);

// Undoable duplicate: copies of the items moved by `offset`, selected.
QUndoCommand *makeDuplicateCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                   const QPointF &offset);

} // namespace lumitra
