#include "svg_document.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

namespace lumitra {

int SvgDocument::intern(QStringView text)
{
    const auto it = m_nameIds.constFind(text);
    if (it != m_nameIds.constEnd())
        return it.value();
    m_names.push_back(text.toString());
    const int id = int(m_names.size()) - 1;
    m_nameIds.insert(QStringView(m_names.back()), id);
    return id;
}

bool SvgDocument::parse(const QByteArray &data, int maxDepth, QString *error, bool *limitExceeded)
{
    m_nodes.clear();
    m_attrs.clear();
    m_text.clear();
    // Attribute text is at most the file's size; reserving it keeps appends cheap.
    m_text.reserve(data.size() / 2);
    QXmlStreamReader xml(data);
    xml.setNamespaceProcessing(false);
    int depth = 0;
    int current = kNone;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (++depth > maxDepth) {
                *error = QCoreApplication::translate("SvgImport", "SVG 文件嵌套层数过多");
                *limitExceeded = true;
                return false;
            }
            Node n;
            n.tag = intern(xml.name());
            const QStringRef prefix = xml.prefix();
            if (!prefix.isEmpty())
                n.prefix = intern(prefix);
            n.parent = current;
            n.attrBegin = m_attrs.size();
            const QXmlStreamAttributes attrs = xml.attributes();
            for (const QXmlStreamAttribute &a : attrs) {
                const QStringRef value = a.value();
                m_attrs.append(Attr{intern(a.qualifiedName()), m_text.size(), value.size()});
                m_text.append(value);
            }
            n.attrEnd = m_attrs.size();
            const int id = m_nodes.size();
            if (current != kNone) {
                Node &p = m_nodes[current];
                if (p.lastChild == kNone)
                    p.firstChild = id;
                else
                    m_nodes[p.lastChild].nextSibling = id;
                p.lastChild = id;
            } else if (id != 0) {
                break; // a second root: the reader reports it below
            }
            m_nodes.append(n);
            current = id;
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
            current = m_nodes[current].parent;
        }
    }
    if (xml.hasError() || m_nodes.isEmpty()) {
        *error = QCoreApplication::translate("SvgImport", "SVG 文件格式错误") + QStringLiteral(": ")
                 + xml.errorString();
        return false;
    }
    m_text.squeeze();
    return true;
}

bool SvgDocument::attribute(int node, int nameId, QString *value) const
{
    if (nameId == kNone)
        return false;
    const Node &n = m_nodes[node];
    for (int i = n.attrBegin; i < n.attrEnd; ++i) {
        const Attr &a = m_attrs[i];
        if (a.name == nameId) {
            *value = QString::fromRawData(m_text.constData() + a.begin, a.length);
            return true;
        }
    }
    return false;
}

bool SvgDocument::hasAttribute(int node, int nameId) const
{
    if (nameId == kNone)
        return false;
    const Node &n = m_nodes[node];
    for (int i = n.attrBegin; i < n.attrEnd; ++i)
        if (m_attrs[i].name == nameId)
            return true;
    return false;
}

QString SvgDocument::attribute(int node, QStringView name) const
{
    QString v;
    attribute(node, nameId(name), &v);
    return v;
}

} // namespace lumitra
