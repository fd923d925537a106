#pragma once

#include <QtXml/QDomNode>

#include <map>
#include <string>
#include <string_view>

namespace zupackage::xml {

/// Texts cross between the XML library and ours as UTF-8, with their length: a zero byte does not end them.
QString fromUtf8(std::string_view text);
std::string toUtf8(const QString& text);

/// The name of an element or an instruction; of another node, what its kind is called ("#comment").
std::string name(const QDomNode& node);

/// The attribute of that name; empty when it is missing or `node` is no element.
std::string attribute(const QDomNode& node, std::string_view name);

/// The text of all text and CDATA descendants; empty when `node` is no element.
std::string text(const QDomNode& node);

/// True exactly for the attribute texts "true" and "1".
bool flag(const QDomNode& node, std::string_view name);

/// The child nodes of `parent` in document order, for a range-based loop. Every kind of node counts, comments and
/// loose texts included.
class Children
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const QDomNode& node) : m_node(node) {}
        const QDomNode& operator*() const { return m_node; }
        Iterator& operator++()
        {
            m_node = m_node.nextSibling();
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_node != other.m_node; }

    private:
        QDomNode m_node;
    };

    explicit Children(const QDomNode& parent) : m_parent(parent) {}
    Iterator begin() const { return Iterator(m_parent.firstChild()); }
    static Iterator end() { return Iterator(QDomNode()); }

private:
    QDomNode m_parent; // kept, because the children live as long as it does
};

inline Children children(const QDomNode& parent) { return Children(parent); }

/// Reads a container of one text per key ("names"): every child node sets `texts[its attribute keyName]` to its text. A
/// repeated key keeps the later text.
void readTexts(const QDomNode& container, std::string_view keyName, std::map<std::string, std::string>& texts);

} // namespace zupackage::xml
