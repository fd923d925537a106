#include "xml/dom_tree.hpp"

#include <QtXml/QDomElement>

namespace zupackage::xml {

namespace {

void startElement(Tree& tree, const QDomElement& element)
{
    tree.startElement(element.nodeName());
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString name = attributes.item(i).toAttr().name();
        // With namespaces an attribute can be there several times.
        tree.addAttribute(name, element.attribute(name));
    }
}

void add(Tree& tree, const QDomNode& node)
{
    if (node.isElement())
        startElement(tree, node.toElement());
    else if (node.isCDATASection())
        tree.addCData(node.nodeValue());
    else if (node.isText())
        tree.addText(node.nodeValue());
    else if (node.isComment())
        tree.addComment();
    else if (node.isProcessingInstruction())
        tree.addInstruction(node.nodeName());
    else
        tree.addEntityReference(node.nodeName());
}

} // namespace

Tree treeOf(const QDomElement& element)
{
    Tree tree;
    startElement(tree, element);
    // Without recursion: a caller's element may be nested as deep as it likes.
    QDomNode node = element.firstChild();
    QDomNode parent = element;
    for (;;) {
        if (!node.isNull()) {
            add(tree, node);
            if (node.isElement()) {
                parent = node;
                node = node.firstChild();
            } else {
                node = node.nextSibling();
            }
            continue;
        }
        tree.endElement();
        if (parent == element)
            return tree;
        node = parent.nextSibling();
        parent = parent.parentNode();
    }
}

} // namespace zupackage::xml
