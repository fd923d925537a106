#pragma once

#include <QtCore/QtGlobal>

/// What a document takes, told before it is taken: time in steps of about a nanosecond, memory in bytes.
///
/// Running the parser over the characters is not counted, because it takes time in proportion to them. Counted is what
/// takes more: what the parser and Qt's document compare again and again, and what is held in memory. Measured on Qt
/// 5.15.8; the figures are above what was measured.
namespace zupackage::xml::cost {

/// Names of the same kind: entities that are declared, namespace prefixes in scope, attributes of an element.
struct Names
{
    qint64 count = 0;
    qint64 characters = 0; ///< of all of them

    void add(qint64 size)
    {
        ++count;
        characters += size;
    }
};

/// @name The budgets, of which every document has some, and a larger one more
/// @{
constexpr qint64 allowedSteps(qint64 documentBytes) { return (qint64(1) << 28) + 32 * documentBytes; }
/// Qt's document takes 23 times the size of a manifest.
constexpr qint64 allowedMemory(qint64 documentBytes, bool forDom)
{
    return (qint64(128) << 20) + (forDom ? 24 : 16) * documentBytes;
}
/// @}

/// @name Time
/// @{

/// Comparing each of the names with each other. Long ones may differ in their last character alone.
constexpr qint64 comparingEachOther(Names names) { return names.count * (names.count * 8 + names.characters / 8) / 2; }

/// Copying the declarations of an element's namespaces, for an element that adds some.
constexpr qint64 copyingNamespaces(Names inScope) { return inScope.count * 100; }

/// What the end of an element does with the namespace prefixes in scope: when it is an empty tag, each is looked for
/// among all.
constexpr qint64 endingNamespaces(Names inScope, bool isEmptyTag)
{
    return isEmptyTag ? inScope.count * 60 + comparingEachOther(inScope) : inScope.count * 60;
}

/// Finding the namespace of a prefix.
constexpr qint64 findingNamespace(Names inScope, qint64 prefixSize) { return inScope.count > 0 ? 100 + prefixSize : 0; }

/// Declaring an entity: its text is searched for a reference to each of the entities, and moved for each reference that
/// is found; each of their names is hashed several times.
constexpr qint64 declaringEntity(Names entities, qint64 textSize, qint64 references)
{
    return entities.count * (200 + textSize) + 4 * entities.characters + references * textSize;
}

/// Expanding an entity.
constexpr qint64 expandingEntity(qint64 nameSize) { return 500 + nameSize; }

/// Finding the attributes of Qt's element by their numbers: for each one, the table of all is walked through, whose
/// entries lie scattered in memory.
constexpr qint64 numberingAttributes(qint64 count) { return count * count * 16; }

/// Looking for each attribute of Qt's element among those before it, as namespaces have it: there is no table of these
/// names, and the texts of the namespaces, which count as characters here, are compared before them.
constexpr qint64 comparingAttributes(Names names) { return names.count * (names.count * 16 + names.characters / 16); }

/// @}
/// @name Memory
/// @{

/// An attribute in the parser, which has all of an element before it reports the first.
constexpr qint64 k_parsedAttribute = 160;

/// A node and an attribute in our tree; vectors that grow are there twice.
constexpr qint64 k_treeNode = 64;
constexpr qint64 k_treeAttribute = 48;

/// The same in Qt's document, which is there beside our tree for a moment.
constexpr qint64 domElement(qint64 nameSize) { return k_treeNode + 320 + 4 * nameSize; }
constexpr qint64 domAttributes(Names names) { return names.count * (k_treeAttribute + 480) + 4 * names.characters; }
constexpr qint64 k_domNode = k_treeNode + 176;
constexpr qint64 k_domDeclaration = 400;
constexpr qint64 domText(qint64 size) { return 4 * size; }

/// @}

} // namespace zupackage::xml::cost
