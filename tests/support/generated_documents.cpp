#include "support/generated_documents.hpp"

#include "support/choices.hpp"

#include <rapidcheck.h>
#include <vector>

namespace zu::test {

namespace {

const Choices k_names = {"names",
                         "name",
                         "descriptions",
                         "supportedLanguages",
                         "descriptionLanguages",
                         "language",
                         "contents",
                         "behaviorContent",
                         "dialogContent",
                         "languageContent",
                         "webContent",
                         "requirements",
                         "robotRequirement",
                         "morvoRequirement",
                         "services",
                         "service",
                         "envVar",
                         "executableFiles",
                         "file",
                         "tags",
                         "nature",
                         "triggerSentences",
                         "loadingResponses",
                         "autonomous",
                         "permissions",
                         "canSitDown",
                         "userRequestable",
                         "topic",
                         "engine",
                         "locale",
                         "Names",
                         "n\xc3\xa9",
                         "y:names",
                         "z:file",
                         ":names"};

const Choices k_attributes = {"uuid",    "version", "author", "lang",    "language",  "path",        "purpose",
                              "name",    "value",   "model",  "autorun", "topicName", "typeVersion", "minVersion",
                              "z:uuid",  "y:uuid",  "z:lang", "y:lang",  "z:path",    "xml:lang",    ":path",
                              "xmlns:z", "xmlns:y", "xmlns",  "xmlnsx",  "xmlns:lang"};

const Choices k_pieces = {"a",
                          "en",
                          "true",
                          "1",
                          " ",
                          "\t",
                          "\n",
                          "\r",
                          "\r\n",
                          "\xc2\xa0",
                          "\xe2\x80\xa8",
                          "\xef\xbb\xbf",
                          "\xc3\xa9",
                          "\xf0\x9f\xa4\x96",
                          "canSitDown",
                          "]]",
                          "=",
                          ">",
                          "&amp;",
                          "&lt;",
                          "&quot;",
                          "&#65;",
                          "&#x20;",
                          "&#10;",
                          "&#0;",
                          "&#xD83E;",
                          "&#xDD16;",
                          "&#xFFFE;",
                          "&#x1F916;",
                          "\xff",
                          "\xe2\x82",
                          "\xed\xa0\x80",
                          std::string(1, '\0')};

const Choices k_references = {"&e;", "&f;", "&g;", "&x;", "&undeclared;"};

const Choices k_prologs = {"",
                           "\xef\xbb\xbf",
                           " ",
                           "<?xml version='1.0'?>",
                           "<?xml version='1.0' encoding='UTF-8'?>\n",
                           "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" standalone='yes'?>",
                           "<?xml version='1.0' encoding='UTF-16'?>",
                           "<?xml version='1.0' encoding='no-such'?>",
                           "<!-- <a b='c'> -->",
                           "<?names?>"};

const Choices k_documentTypes = {"<!DOCTYPE package>", "<!DOCTYPE p SYSTEM 'file:///etc/passwd'>",
                                 "<!DOCTYPE p [<!ENTITY e 'text'><!ENTITY f '<a>in</a>'><!ENTITY g '&e;\xc3\xa9'>"
                                 "<!ENTITY x SYSTEM 'file:///etc/passwd'>]>",
                                 "<!DOCTYPE p [<!ELEMENT p (a|(b,c))*><!ATTLIST p uuid CDATA 'default'>]>"};

std::string text(bool withReferences)
{
    std::string text;
    for (int count = upTo(4); count > 0; --count)
        text += withReferences && upTo(8) == 0 ? oneOf(k_references) : oneOf(k_pieces);
    return text;
}

std::string attributes(bool withReferences)
{
    std::string attributes;
    for (int count = upTo(4); count > 0; --count)
        attributes += ' ' + oneOf(k_attributes) + oneOf({"=", "=", "=", " = "}) + '"' + text(withReferences) + '"';
    return attributes;
}

std::string content(int levels, bool withReferences);

std::string node(int levels, bool withReferences)
{
    switch (upTo(9)) {
    case 0:
        return "<!--" + oneOf({"", " c ", "<a b='c'", "canSitDown"}) + "-->";
    case 1:
        return "<?" + oneOf(k_names) + oneOf({"", " ", " <a b='c'", " x?"}) + "?>";
    case 2:
        return "<![CDATA[" + oneOf({"", " ", "a<b&c", "]", "]]", "\xed\xa0\x80", "<a b='c'"}) + "]]>";
    case 3:
    case 4:
        return text(withReferences);
    default:
        break;
    }
    const std::string name = oneOf(k_names);
    const std::string start = '<' + name + attributes(withReferences);
    if (levels == 0 || upTo(3) == 0)
        return start + "/>";
    return start + '>' + content(levels - 1, withReferences) + "</" + name + oneOf({"", "", " "}) + '>';
}

std::string content(int levels, bool withReferences)
{
    std::string content;
    for (int count = upTo(5); count > 0; --count)
        content += node(levels, withReferences);
    return content;
}

} // namespace

std::string anyDocument()
{
    const bool withReferences = upTo(4) == 0;
    const std::string documentType = withReferences && upTo(3) > 0 ? oneOf(k_documentTypes) : "";
    const std::string root = oneOf({"package", "package", "names", "z:package"});
    return oneOf(k_prologs) + documentType + '<' + root + attributes(withReferences) + '>' +
           content(4, withReferences) + "</" + root + '>' +
           oneOf({"", "\n", "<!-- c -->", "<?p?>", "x", "\xef\xbf\xbf<"});
}

std::string mutatedDocument(std::string bytes)
{
    static const Choices inserted = {"<",
                                     ">",
                                     "/",
                                     "&",
                                     "'",
                                     "\"",
                                     "=",
                                     "<a>",
                                     "</a>",
                                     "<!--",
                                     "-->",
                                     "<?",
                                     "<![CDATA[",
                                     "]]>",
                                     "!",
                                     "xmlns:q='u' ",
                                     "&e;",
                                     "&#1;",
                                     "\xff",
                                     "\xef\xbf\xbe",
                                     "\xef\xbf\xbf",
                                     "<!DOCTYPE p>",
                                     "<!DOCTYPE p ["};
    for (int count = 1 + upTo(3); count > 0 && !bytes.empty(); --count) {
        const auto at = static_cast<std::size_t>(upTo(static_cast<int>(bytes.size()) - 1));
        const auto size = static_cast<std::size_t>(upTo(8));
        switch (upTo(3)) {
        case 0:
            bytes.erase(at, size);
            break;
        case 1:
            bytes.insert(at, bytes.substr(at, size));
            break;
        case 2:
            bytes.insert(at, oneOf(inserted));
            break;
        default:
            bytes.replace(at, 1, oneOf(k_pieces));
            break;
        }
    }
    return bytes;
}

} // namespace zu::test
