#include "manual/manifest_reference.hpp"

#include "manual/roff.hpp"
#include "wrapped_text.hpp"

#include <zupackage/authoring/vocabulary.hpp>

namespace zu::cli {

namespace {

using authoring::AttributeEntry;
using authoring::ElementEntry;
using authoring::Occurrence;
using authoring::ValueKind;

struct KindWords
{
    const char* name;
    const char* form; ///< as one sentence
};

KindWords wordsOf(ValueKind kind)
{
    switch (kind) {
    case ValueKind::None:
        return {"nothing", "No text of its own."};
    case ValueKind::Text:
        return {"text", "Words for people, or a name that nothing else interprets."};
    case ValueKind::Flag:
        return {"flag", "One of true, 1, false and 0."};
    case ValueKind::LanguageCode:
        return {"language code", "A language as in en, fr_FR or zh-Hant-TW."};
    case ValueKind::Version:
        return {"version", "Numbers as in 1.2, or 2.0.1-beta."};
    case ValueKind::Path:
        return {"path", "A file or folder of the package, relative to its root."};
    case ValueKind::Date:
        return {"date", "A day as in 2026-09-12."};
    case ValueKind::Identifier:
        return {"identifier", "What other systems know the thing by, compared to the byte."};
    case ValueKind::Nature:
        return {"nature", "How a behavior meets people: interactive or solitary."};
    case ValueKind::Command:
        return {"command", "A command line."};
    case ValueKind::Condition:
        return {"condition", "An expression over what the robot perceives."};
    }
    return {"", ""};
}

constexpr ValueKind k_valueKinds[] = {
    ValueKind::Text, ValueKind::Flag,       ValueKind::LanguageCode, ValueKind::Version, ValueKind::Path,
    ValueKind::Date, ValueKind::Identifier, ValueKind::Nature,       ValueKind::Command, ValueKind::Condition};

const char* wordsOf(Occurrence occurrence)
{
    switch (occurrence) {
    case Occurrence::Once:
        return "Stands exactly once.";
    case Occurrence::Optional:
        return "May stand once.";
    case Occurrence::Repeated:
        return "May stand any number of times.";
    }
    return "";
}

/// What there is to say of an element, as sentences.
std::string sentencesOf(const ElementEntry& element)
{
    std::string text(element.purpose);
    text.append(" ").append(wordsOf(element.occurrence));
    if (element.text != ValueKind::None)
        text.append(" Holds: ").append(wordsOf(element.text).name).append(".");
    if (element.identity == authoring::k_ownText)
        text += " No two beside each other have the same text.";
    else if (!element.identity.empty())
        text.append(" No two beside each other have the same ").append(element.identity).append(".");
    if (element.countsEveryChild)
        text += " Everything in it counts as an entry, whatever it is called, comments included.";
    if (!element.children.empty()) {
        std::string names;
        for (const ElementEntry* child : element.children)
            names.append(names.empty() ? "" : ", ").append(child->name);
        text += " Contains: " + names + ".";
    }
    return text;
}

constexpr char k_introduction[] =
    "A manifest is one XML document, manifest.xml in the folder of a package. Readers are lenient: they take elements "
    "in any order and leave out what they do not know. What is told here is what authors should write, and what "
    "\"zupackage check\" holds manifests against. A required attribute is there, and not empty.";

} // namespace

std::string manifestReferenceInMarkdown()
{
    constexpr std::size_t k_width = 120;
    std::string page = "<!-- Written by the build from the vocabulary of manifests: change that. -->\n"
                       "# What a manifest may contain\n\n";
    page.append(wrapped(k_introduction, k_width)).append("\n## Values\n\n| value | is |\n|---|---|\n");
    for (const ValueKind kind : k_valueKinds)
        page.append("| ").append(wordsOf(kind).name).append(" | ").append(wordsOf(kind).form).append(" |\n");
    for (const ElementEntry& element : authoring::Vocabulary::manifest().elements()) {
        page.append("\n## ").append(element.path).append("\n\n").append(wrapped(sentencesOf(element), k_width));
        if (element.attributes.empty())
            continue;
        page += "\n| attribute | value | | |\n|---|---|---|---|\n";
        for (const AttributeEntry& attribute : element.attributes)
            page.append("| `")
                .append(attribute.name)
                .append("` | ")
                .append(wordsOf(attribute.kind).name)
                .append(attribute.isRequired ? " | required | " : " | | ")
                .append(attribute.purpose)
                .append(" |\n");
    }
    return page;
}

std::string manifestPage(const std::string& version)
{
    std::string page = roffTitle("zupackage-manifest", 5, version);
    page += ".SH NAME\nzupackage\\-manifest \\- what the manifest of a package may contain\n.SH DESCRIPTION\n";
    page += roff(k_introduction) + "\n.SH VALUES\n";
    for (const ValueKind kind : k_valueKinds)
        page += ".TP\n\\fI" + roff(wordsOf(kind).name) + "\\fR\n" + roff(wordsOf(kind).form) + "\n";
    page += ".SH ELEMENTS\n";
    for (const ElementEntry& element : authoring::Vocabulary::manifest().elements()) {
        page += ".SS " + roff(element.path) + "\n" + roff(sentencesOf(element)) + "\n";
        for (const AttributeEntry& attribute : element.attributes)
            page += ".TP\n\\fB" + roff(attribute.name) + "\\fR (\\fI" + roff(wordsOf(attribute.kind).name) + "\\fR" +
                    (attribute.isRequired ? ", required" : "") + ")\n" + roff(attribute.purpose) + "\n";
    }
    return page + ".SH SEE ALSO\n\\fBzupackage\\fR(1),\n\\fBzupackage\\-check\\fR(1)\n";
}

} // namespace zu::cli
