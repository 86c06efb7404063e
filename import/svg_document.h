// A compact, read-only element tree of an SVG file, built in one pass of the streaming
// XML reader. Element and attribute names are interned to numbers and every attribute value
// lives in one shared text buffer, so a drawing of tens of thousands of shapes costs a few
// allocations instead of several per element. Namespaces are not processed: a name keeps
// its prefix ("svg:path" has the local name "path" and the prefix "svg") and namespace
// declarations are ordinary attributes, as in a document model read without namespace
// processing.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <QVector>
#include <deque>

namespace lumitra {

class SvgDocument
{
public:
    static constexpr int kNone = -1;

    // Parses `data`; false with *error set for malformed XML or nesting deeper than
    // `maxDepth` (then *limitExceeded is set).
    bool parse(const QByteArray &data, int maxDepth, QString *error, bool *limitExceeded);

    int root() const { return m_nodes.isEmpty() ? kNone : 0; }
    int firstChild(int node) const { return m_nodes[node].firstChild; }
    int nextSibling(int node) const { return m_nodes[node].nextSibling; }
    int parent(int node) const { return m_nodes[node].parent; }
    int elementCount() const { return m_nodes.size(); }

    // The name number of a text; kNone when no element or attribute of the file has it.
    int nameId(QStringView name) const { return m_nameIds.value(name, kNone); }
    const QString &name(int id) const { return m_names[size_t(id)]; }
    // Local name and prefix numbers of an element (the prefix is kNone when there is none).
    int tag(int node) const { return m_nodes[node].tag; }
    int prefix(int node) const { return m_nodes[node].prefix; }
    const QString &tagName(int node) const { return m_names[size_t(m_nodes[node].tag)]; }

    // Attribute by qualified-name number; false when absent. The text shares the document's
    // buffer and stays valid while the document lives.
    bool attribute(int node, int nameId, QString *value) const;
    bool hasAttribute(int node, int nameId) const;
    // Convenience for names that may not occur: an empty text when absent.
    QString attribute(int node, QStringView name) const;

private:
    struct Node
    {
        int tag = kNone, prefix = kNone;
        int parent = kNone, firstChild = kNone, lastChild = kNone, nextSibling = kNone;
        int attrBegin = 0, attrEnd = 0;
    };
    struct Attr
    {
        int name;
        int begin, length;
    };

    int intern(QStringView text);

    QVector<Node> m_nodes;
    QVector<Attr> m_attrs;
    QString m_text;                    // every attribute value, one after the other
    std::deque<QString> m_names;       // stable storage for the interned names
    QHash<QStringView, int> m_nameIds; // views into m_names
};

} // namespace lumitra
