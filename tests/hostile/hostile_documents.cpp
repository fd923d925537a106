#include "hostile/hostile_documents.hpp"

#include "support/build_kind.hpp"

namespace zu::test {

namespace {

constexpr std::size_t k_MiB = 1024 * 1024;

/// Of what takes long to read, and an eighth of it where that would be minutes.
constexpr std::size_t k_megabyte = k_sanitized ? k_MiB / 8 : k_MiB;

std::string repeated(std::size_t count, const std::string& text)
{
    std::string result;
    result.reserve(count * text.size());
    for (; count > 0; --count)
        result += text;
    return result;
}

/// As often as it fits into that many bytes.
std::string filling(std::size_t bytes, const std::string& text) { return repeated(bytes / text.size(), text); }

/// `count` texts, each made from its number.
template <class Make>
std::string numbered(std::size_t count, Make make)
{
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
        result += make(std::to_string(i));
    return result;
}

std::string in(const std::string& root, const std::string& content) { return root + content + "</p>"; }

std::string nested(std::size_t levels) { return repeated(levels, "<a>") + repeated(levels, "</a>"); }

std::string groups(std::size_t levels)
{
    return "<!DOCTYPE p [<!ELEMENT p " + repeated(levels, "(") + 'a' + repeated(levels, ")") + ">]><p/>";
}

/// An attribute with a name of that many characters.
auto attributeOf(std::size_t size)
{
    return [size](const std::string& i) { return std::string(size - i.size(), 'a') + i + "='' "; };
}

auto prefixOf(std::size_t size)
{
    return [size](const std::string& i) { return "xmlns:" + std::string(size - i.size(), 'n') + i + "='u' "; };
}

std::string prefixes(std::size_t count, std::size_t size) { return "<p " + numbered(count, prefixOf(size)) + '>'; }

/// An element with attributes of two namespaces in turn, whose texts differ in their last character.
std::string inTwoNamespaces(std::size_t size, std::size_t attributes)
{
    const std::string name(size - 1, 'u');
    return "<b:p xmlns:b='" + name + "0' xmlns:c='" + name + "1' " +
           numbered(attributes / 2, [](const std::string& i) { return "b:x" + i + "='' c:y" + i + "='' "; }) + "/>";
}

std::string entities(std::size_t count, std::size_t nameSize, const std::string& value)
{
    return "<!DOCTYPE p [" +
           numbered(count,
                    [&](const std::string& i) {
                        return "<!ENTITY " + std::string(nameSize - i.size(), 'e') + i + " '" + value + "'>";
                    }) +
           "]>";
}

std::string withEntity(const std::string& value, const std::string& content)
{
    return "<!DOCTYPE p [<!ENTITY e '" + value + "'>]><p>" + content + "</p>";
}

const std::string k_read = "read";
const std::string k_levels = "elements nested deeper than 256 levels";
const std::string k_groups = "groups of a content model nested deeper than 256 levels";
const std::string k_steps = "steps of comparing names and expanding entities";
const std::string k_memory = "nodes and attributes of more than ";
const std::string k_expansion = "entities expand to more than 8 MiB";

/// The same as a text and as a file.
HostileDocument same(std::string name, std::function<std::string()> bytes, const std::string& outcome,
                     std::size_t mebibytes = 0)
{
    return {std::move(name), std::move(bytes), outcome, outcome, mebibytes};
}

std::string contents(const std::string& elements) { return "<p uuid='u'><contents>" + elements + "</contents></p>"; }

} // namespace

const std::vector<HostileDocument>& largeHostileDocuments()
{
    static const std::vector<HostileDocument> documents = {
        same(
            "nested_256", [] { return nested(256); }, k_read),
        same(
            "nested_257", [] { return nested(257); }, k_levels),
        same(
            "nested_a_million", [] { return nested(1'000'000); }, k_levels),
        same(
            "nested_and_never_closed", [] { return repeated(1'000'000, "<a>"); }, k_levels),
        same(
            "groups_256", [] { return groups(256); }, k_read),
        same(
            "groups_257", [] { return groups(257); }, k_groups),
        same(
            "groups_a_million", [] { return groups(1'000'000); }, k_groups),
        // Namespaces cost something when Qt's document is made: of prefixed elements.
        same(
            "long_prefixes", [] { return in(prefixes(256, 300), repeated(16'000, "<a/>")); }, k_read),
        {"long_prefixes_and_a_prefixed_element", [] { return in(prefixes(256, 300), repeated(16'000, "<n0:a/>")); }, "",
         k_read},
        {"longer_prefixes_and_a_prefixed_element", [] { return in(prefixes(256, 1000), repeated(16'000, "<n0:a/>")); },
         k_steps, k_read},
        same(
            "siblings_that_declare_a_namespace", [] { return in("<p>", repeated(260, "<a xmlns=''/>")); }, k_read),
        same(
            "prefixed_siblings_that_declare_a_namespace",
            [] { return in("<p>", repeated(20'000, "<y:a xmlns:y='u'/>")); }, k_read),
        same(
            "20000_prefixes", [] { return in("<p>", "<a " + numbered(20'000, prefixOf(6)) + "/>"); }, k_read),
        {"20000_prefixes_of_a_prefixed_element",
         [] { return in("<p>", "<n0:a " + numbered(20'000, prefixOf(6)) + "/>"); }, k_steps, k_read},
        same(
            "100000_attributes", [] { return "<p " + numbered(100'000, attributeOf(6)) + "/>"; }, k_read),
        // Just within what is read, and just beyond.
        same(
            "2800_attributes_of_a_prefixed_element", [] { return "<y:p " + numbered(2800, attributeOf(6)) + "/>"; },
            k_read),
        {"2900_attributes_of_a_prefixed_element", [] { return "<y:p " + numbered(2900, attributeOf(6)) + "/>"; },
         k_steps, k_read},
        {"4000_attributes_behind_a_document_type",
         [] { return "<!DOCTYPE p><p " + numbered(4000, attributeOf(6)) + "/>"; }, k_steps, k_read},
        same(
            "4200_attributes_behind_a_document_type",
            [] { return "<!DOCTYPE p><p " + numbered(4200, attributeOf(6)) + "/>"; }, k_steps),
        same(
            "1600_attributes_in_namespaces_of_1000_characters", [] { return inTwoNamespaces(1000, 1600); }, k_read),
        {"3000_attributes_in_namespaces_of_100000_characters", [] { return inTwoNamespaces(100'000, 3000); }, k_steps,
         k_read},
        {"20000_attributes_of_a_prefixed_element", [] { return "<y:p " + numbered(20'000, attributeOf(6)) + "/>"; }, "",
         k_read},
        same(
            "attributes_behind_a_document_type",
            [] { return "<!DOCTYPE p><p " + numbered(100'000, attributeOf(6)) + "/>"; }, k_steps),
        same(
            "4100000_attributes", [] { return "<p " + repeated(4'100'000, "a='' ") + "/>"; }, k_memory, 512),
        same(
            "attributes_with_long_names", [] { return "<p " + numbered(20'000, attributeOf(2000)) + "/>"; }, k_read),
        same(
            "an_element_name_of_a_megabyte",
            [] { return '<' + std::string(k_MiB, 'a') + "></" + std::string(k_MiB, 'a') + '>'; }, k_read),
        same(
            "an_attribute_name_of_a_megabyte", [] { return "<p " + std::string(k_MiB, 'a') + "=''/>"; }, k_read),
        same(
            "a_text_of_a_megabyte_for_a_language",
            [] { return "<p><names><n lang='" + std::string(k_MiB, 'a') + "'/></names></p>"; }, k_read),
        same(
            "an_entity_name_of_a_megabyte", [] { return entities(1, k_MiB, "x") + "<p/>"; }, k_read),
        same(
            "1000_entity_names_of_6000_characters", [] { return entities(1000, 6000, "x") + "<p/>"; }, k_steps),
        same(
            "1000_entities", [] { return entities(1000, 6, "x") + "<p/>"; }, k_read),
        same(
            "20000_entities", [] { return entities(20'000, 6, "x") + "<p/>"; }, k_steps),
        same(
            "a_million_references_in_an_entity",
            [] { return "<!DOCTYPE p [<!ENTITY e ''><!ENTITY f '" + repeated(1'000'000, "&e;") + "'>]><p>&f;</p>"; },
            k_steps),
        same(
            "quadratic_blowup", [] { return withEntity(std::string(4096, 'x'), repeated(100'000, "&e;")); },
            k_expansion),
        same(
            "blowup_of_the_only_entity", [] { return withEntity(std::string(100'000, 'x'), repeated(1000, "&e;")); },
            k_expansion),
        same(
            "16_million_references_to_nothing", [] { return withEntity("", repeated(16'000'000, "&e;")); }, k_steps),
        same(
            "12_million_ampersands", [] { return in("<p><nature>", repeated(12'000'000, "&amp;") + "</nature>"); },
            k_read),
        same(
            "12_million_ampersands_behind_a_document_type",
            [] { return in("<!DOCTYPE p><p><nature>", repeated(12'000'000, "&amp;") + "</nature>"); }, k_read),
        same(
            "60_MiB_of_text_in_250_levels",
            [] {
                return "<p><names>" + repeated(250, "<n>") + std::string(60 * k_MiB, 'x') + repeated(250, "</n>") +
                       "</names></p>";
            },
            k_read),
        same(
            "60_MiB_of_equals_signs", [] { return in("<p>", std::string(60 * k_MiB, '=')); }, k_read),
        same(
            "60_MiB_of_quotes_in_a_comment", [] { return in("<p><!-- <", std::string(60 * k_MiB, '"') + "-->"); },
            k_read),
        same(
            "64_MiB", [] { return "<p/>" + std::string(64 * k_MiB - 4, ' '); }, k_read),
        same(
            "more_than_64_MiB", [] { return "<p/>" + std::string(64 * k_MiB - 3, ' '); },
            "the document is larger than 64 MiB"),
        same(
            "a_megabyte_of_elements", [] { return in("<p>", filling(k_megabyte, "<a/>")); }, k_read),
        same(
            "64_megabytes_of_elements", [] { return in("<p>", filling(64 * k_MiB - 7, "<a/>")); }, k_read),
        same(
            "a_megabyte_of_elements_behind_a_document_type",
            [] { return in("<!DOCTYPE p><p>", filling(k_megabyte, "<a/>")); }, k_read),
        same(
            "20_megabytes_of_elements_behind_a_document_type",
            [] { return in("<!DOCTYPE p><p>", filling(20 * k_MiB, "<a/>")); }, k_memory),
        same(
            "a_megabyte_of_instructions", [] { return in("<p>", filling(k_megabyte, "<?a?>")); }, k_read),
        same(
            "a_megabyte_of_behaviors", [] { return contents(filling(k_megabyte, "<behaviorContent/>")); }, k_read),
        same(
            "a_megabyte_of_dialogs", [] { return contents(filling(k_megabyte, "<dialogContent/>")); }, k_read),
        same(
            "a_megabyte_of_empty_names", [] { return in("<p><names>", filling(k_megabyte, "<n/>") + "</names>"); },
            k_read),
        same(
            "a_megabyte_of_tags",
            [] {
                return contents("<behaviorContent><tags>" + filling(k_megabyte, "<t/>") + "</tags></behaviorContent>");
            },
            k_read),
        same(
            "a_megabyte_of_permissions",
            [] {
                return contents("<behaviorContent><permissions>" + filling(k_megabyte, "<canSitDown/>") +
                                "</permissions></behaviorContent>");
            },
            k_read),
        same(
            "80000_languages",
            [] {
                return in("<p uuid='u'><supportedLanguages>", numbered(80'000, [](const std::string& i) {
                                                                  return "<l>" + i + "</l>";
                                                              }) + "</supportedLanguages>");
            },
            k_read),
        same(
            "a_service_with_20000_equal_variables",
            [] {
                return in("<p uuid='u'><services><service>",
                          filling(k_megabyte / 2, "<envVar name='a'/>") + "</service></services>");
            },
            k_read),
        same(
            "halves_of_characters",
            [] { return in("<p><names><n>", filling(k_megabyte, "&#xD83E;<!---->&#xDD16;") + "</n></names>"); },
            k_read),
    };
    return documents;
}

} // namespace zu::test
