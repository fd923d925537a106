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

    const std::string* attribute(std::string_view attributeName) const;
    void setAttribute(const std::string& attributeName, const std::string& value);
};

/// The element that a step asks for.
/// @throws PathEditError when the step does not say what to make: a position and "*" do not.
NewElement elementFor(const zu::authoring::PathStep& step);

/// Sets a text within the element, and makes what the path to it lacks.
/// @throws PathEditError as elementFor().
void setWithin(NewElement& element, const zu::authoring::ManifestPath& path, std::string_view text);

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
    bool isInOneLine = false; ///< nothing stands between tags but texts
    bool isUnicode = true;    ///< CDATA sections can hold every character
};

/// The element as it is to stand in a document, parts in the order of the vocabulary.
/// @param entry what the vocabulary says about it; null when it says nothing.
std::string written(const NewElement& element, const zu::authoring::ElementEntry* entry, const ElementLayout& layout);

/// A CDATA section that holds the text; empty when none can: when it would end in the text's midst, or the document's
/// encoding may lack a character of it.
std::string cdataSection(std::string_view text, const ElementLayout& layout);

} // namespace zupackage::authoring
