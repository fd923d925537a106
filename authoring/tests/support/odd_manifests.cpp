#include "support/odd_manifests.hpp"

#include "support/choices.hpp"
#include "support/encodings.hpp"
#include "support/generated_packages.hpp"
#include "support/well_formed_documents.hpp"

#include <zupackage/authoring/source_document.hpp>

#include <algorithm>
#include <functional>
#include <rapidcheck.h>
#include <vector>

namespace zu::test {

namespace {

using authoring::NodeKind;
using authoring::SourceAttribute;
using authoring::SourceDocument;
using authoring::SourceNode;

bool oneIn(int count) { return upTo(count - 1) == 0; }

const Choices k_gaps = {"", "\n", "\n  ", "\r\n\t", "\r", " ", "\n\n    "};
const Choices k_strange = {"<!-- c -->",  "<!---->",       "<?i d?>",  "<?name?>",       "<x y='1'>z<name/></x>",
                           "<n:names/>",  "<![CDATA[c]]>", "loose",    "<webContent/>",  "<name lang=''/>",
                           "<?service?>", "<?nature?>",    "<?file?>", "<canStandUp />", "<?envVar?>"};

/// A character as it is, or as a reference.
std::string reference(char c) { return oneOf({"&#" + std::to_string(static_cast<int>(c)) + ';', std::string(1, c)}); }

/// A source of texts with some of its letters as references.
std::string withReferences(std::string_view source)
{
    std::string result;
    bool isReference = false;
    for (const char c : source) {
        isReference = c == '&' || (isReference && c != ';');
        result += !isReference && c == 'a' ? reference(c) : std::string(1, c);
    }
    return result;
}

class OddWriter
{
public:
    explicit OddWriter(const SourceDocument& document) : m_document(document), m_isNeat(oneIn(3)) {}

    std::string element(SourceNode node, bool isRoot) const
    {
        const std::string name(node.name());
        const std::string start = '<' + name + (isRoot ? " xmlns:n='u'" : "") + attributes(node);
        const std::string inside = content(node);
        if (inside.empty() && oneIn(2))
            return start + "/>";
        return start + '>' + inside + "</" + name + (oneIn(5) ? " >" : ">");
    }

private:
    std::string attributes(SourceNode node) const
    {
        std::vector<std::string> attributes;
        for (const SourceAttribute attribute : node.attributes())
            attributes.push_back(std::string(attribute.name()) + (oneIn(6) ? " = " : "=") +
                                 std::string(1, attribute.quote()) +
                                 withReferences(m_document.source(attribute.valueRange())) + attribute.quote());
        if (oneIn(6))
            attributes.emplace_back("unknown='1'");
        if (!attributes.empty() && oneIn(3))
            std::rotate(attributes.begin(), attributes.begin() + 1, attributes.end());
        std::string result;
        for (const std::string& attribute : attributes)
            result += (oneIn(6) ? "\n    " : " ") + attribute;
        return result;
    }

    std::string content(SourceNode node) const
    {
        std::string result;
        std::vector<std::string> parts;
        for (const SourceNode child : node.children()) {
            if (child.isElement())
                parts.push_back(element(child, false));
            else if (const std::string_view source = m_document.source(child.range()); child.kind() == NodeKind::CData)
                result += source;
            else if (!source.empty() && source.find_first_not_of(" \n") != std::string_view::npos)
                result += text(source);
        }
        return parts.empty() ? result : inLines(parts);
    }

    static std::string text(std::string_view source)
    {
        if (oneIn(6) && source.find_first_of("&]") == std::string_view::npos)
            return "<![CDATA[" + std::string(source) + "]]>";
        return withReferences(source) + (oneIn(8) ? "<!-- c -->" : "");
    }

    std::string inLines(std::vector<std::string>& parts) const
    {
        if (!m_isNeat && oneIn(4))
            parts.push_back(parts[static_cast<std::size_t>(upTo(static_cast<int>(parts.size()) - 1))]);
        if (!m_isNeat && oneIn(4))
            std::rotate(parts.begin(), parts.begin() + 1, parts.end());
        std::string result;
        for (const std::string& part : parts)
            result += gap() + part;
        return result + gap();
    }

    std::string gap() const
    {
        if (m_isNeat)
            return "\n  " + std::string(oneIn(4) ? "<!-- c -->\n  " : "");
        return oneOf(k_gaps) + (oneIn(5) ? oneOf(k_strange) + oneOf(k_gaps) : "");
    }

    const SourceDocument& m_document;
    bool m_isNeat; ///< as people write
};

std::string inSomeEncoding(const std::string& utf8)
{
    switch (upTo(9)) {
    case 0:
        return "\xff\xfe" + encoded(utf8, "UTF-16LE");
    case 1:
        return "\xef\xbb\xbf" + utf8;
    case 2:
        if (withoutBeyondLatin1(utf8) != utf8)
            return utf8;
        return "<?xml version='1.0' encoding='ISO-8859-1'?>" + encoded(utf8, "ISO-8859-1");
    case 3:
        return "<?xml version='1.0'?>\r\n<!-- c -->" + utf8;
    default:
        return utf8;
    }
}

template <class List>
void changeList(List& list, const std::function<void(typename List::value_type&)>& change)
{
    if (list.empty())
        return;
    const auto place = std::next(list.begin(), upTo(static_cast<int>(list.size()) - 1));
    switch (upTo(3)) {
    case 0:
        list.erase(place);
        break;
    case 1:
        list.splice(list.begin(), list, place);
        break;
    case 2:
        list.insert(list.begin(), typename List::value_type(*place));
        break;
    default:
        change(*place);
    }
}

void changePackage(PackageInfo& package)
{
    const std::string text = *texts();
    const std::string key = oneOf({"", "en", "fr"});
    switch (upTo(9)) {
    case 0:
        return package.setUuid(text);
    case 1:
        return package.setInstallOnlyAtStartup(!package.installOnlyAtStartup());
    case 2:
        return package.setName(text, key);
    case 3:
        return package.clearNames();
    case 4:
        return package.addSupportedLanguage(text);
    case 5:
        return package.removeSupportedLanguage(
            package.supportedLanguages().empty() ? key : std::string(package.supportedLanguages().front()));
    case 6:
        return changeList(package.robotRequirements(), {[&](auto& robot) { robot.model = text; }});
    case 7:
        return package.addService({text, key, false, {{key, text}}});
    case 8:
        return package.clearDialogs();
    default:
        return changeList(package.behaviors(), {changeBehavior});
    }
}

} // namespace

std::string oddManifest(PackageInfo package)
{
    const SourceDocument document = SourceDocument::parse(package.saveToManifestContent());
    return inSomeEncoding(OddWriter(document).element(document.root(), true) + oneOf({"", "\n", "<!-- c -->"}));
}

void changeBehavior(BehaviorInfo& behavior)
{
    const std::string text = *texts();
    const std::string key = oneOf({"", "en", "fr"});
    switch (upTo(7)) {
    case 0:
        return behavior.setPath(text);
    case 1:
        return behavior.setNature(text);
    case 2:
        return behavior.setUserRequestable(!behavior.isUserRequestable());
    case 3:
        return behavior.setName(text, key);
    case 4:
        return behavior.insertTag(text, key, 0);
    case 5:
        return behavior.addCondition(text, key);
    case 6:
        behavior.addPermission("canStandUp");
        return;
    default:
        behavior.removePermission("canStandUp");
    }
}

PackageInfo changedPackage(PackageInfo package)
{
    for (int count = upTo(3); count >= 0; --count)
        changePackage(package);
    return package;
}

} // namespace zu::test
