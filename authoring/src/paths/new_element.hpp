#pragma once

#include <zupackage/authoring/manifest_path.hpp>
#include <zupackage/authoring/vocabulary.hpp>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zupackage::authoring {

/// An element that is to be made.
struct NewElement
{
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::string text;
    std::vector<NewElement> children;
    /// The attributes that setWithin() has set; among them, empty, the text.
    std::vector<std::string> partsSet = {};

    const std::string* attribute(std::string_view attributeName) const;
    void setAttribute(const std::string& attributeName, const std::string& value);
};

/// The element that a step asks for.
/// @throws PathEditError when the step does not say what to make: a position, "*" and contradictions do not.
NewElement elementFor(const zu::authoring::PathStep& step);

/// Whether the element has no such text, or no such attribute, or the same one.
bool canSay(const NewElement& element, const std::string& attribute, std::string_view text);

/// @param attribute empty for the element's text.
void say(NewElement& element, const std::string& attribute, std::string_view text);

/// Sets a text within the element, and makes what the path to it lacks: another entry, too, where there can be several
/// and the last one says something else or has been told to say this.
/// @param entry what the vocabulary says about the element; null when it says nothing.
/// @throws PathEditError as elementFor(), and when something else is to stand there already.
void setWithin(NewElement& element, const zu::authoring::ElementEntry* entry, const zu::authoring::ManifestPath& path,
               std::string_view text);

/// Makes a chain of elements, each in the one before, that the steps ask for; there must be one at least.
/// @return the innermost.
NewElement& makeChain(const std::vector<zu::authoring::PathStep>& steps, NewElement& outermost);

/// How a new element is written.
struct ElementLayout
{
    std::string lineEnd;
    std::string indentation; ///< of the element itself; its first line has it already
    std::string step;        ///< by which children are indented more
    char quote = '"';
    bool isInOneLine = false;      ///< nothing stands between tags but texts
    bool hasEveryCharacter = true; ///< the document's encoding does
};

/// The element as it is to stand in a document, parts in the order of the vocabulary.
/// @param entry what the vocabulary says about it; null when it says nothing.
std::string written(const NewElement& element, const zu::authoring::ElementEntry* entry, const ElementLayout& layout);

/// A text as it is to stand in an element, such that readers take it as it is given: they keep line ends, and drop
/// white space that stands alone outside of a CDATA section. A section cannot have what would end it, nor characters
/// that the document's encoding may lack.
/// @param asSection whether to make it a section wherever that can be.
std::string textSource(std::string_view text, bool asSection, const ElementLayout& layout);

} // namespace zupackage::authoring
