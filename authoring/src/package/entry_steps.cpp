#include "package/entry_steps.hpp"

#include <algorithm>
#include <unordered_map>

namespace zupackage::authoring {

namespace {

using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

/// Whether the text can stand in a path, between quotes of one kind, and say something there.
bool canBeQuoted(std::string_view text)
{
    const bool hasControl = std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F;
    });
    const bool hasBothQuotes = text.find('\'') != std::string_view::npos && text.find('"') != std::string_view::npos;
    return !text.empty() && !hasControl && !hasBothQuotes;
}

/// The step with what identifies the entry, or tells texts apart, as far as it can stand there.
std::string identifiedStep(const PackageElement& element)
{
    const ElementEntry& entry = *element.entry;
    std::string step(entry.name);
    if (entry.occurrence != Occurrence::Repeated)
        return step;
    if (const std::string predicate = predicateOnIdentity(entry, identityOf(element)); !predicate.empty())
        return step + predicate;
    if (!entry.identity.empty() || entry.text == ValueKind::None)
        return step;
    for (std::size_t i = 0; i < entry.attributes.size(); ++i)
        step += predicateOn("@" + std::string(entry.attributes[i].name), element.attributes[i]);
    return step;
}

} // namespace

std::vector<std::string> stepsOf(const std::vector<PackageElement>& entries)
{
    struct Counts
    {
        std::size_t all = 0;
        std::size_t seen = 0;
    };
    std::unordered_map<std::string, Counts> counts;
    std::vector<std::string> steps;
    steps.reserve(entries.size());
    for (const PackageElement& entry : entries) {
        steps.push_back(identifiedStep(entry));
        ++counts[steps.back()].all;
        // A step that is a name alone counts all of that name.
        if (steps.back().size() != entry.entry->name.size())
            ++counts[std::string(entry.entry->name)].all;
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string name(entries[i].entry->name);
        Counts& same = counts[steps[i]];
        Counts& named = counts[name];
        ++same.seen;
        if (&same != &named)
            ++named.seen;
        if (same.all > 1)
            steps[i] += "[" + std::to_string(same.seen) + "]";
    }
    return steps;
}

std::string predicateOn(std::string_view what, std::string_view value)
{
    if (!canBeQuoted(value))
        return {};
    const char quote = value.find('\'') == std::string_view::npos ? '\'' : '"';
    return "[" + std::string(what) + "=" + quote + std::string(value) + quote + "]";
}

std::string predicateOnIdentity(const ElementEntry& entry, std::string_view identity)
{
    return predicateOn(entry.identity == k_ownText ? std::string(k_ownText) : "@" + std::string(entry.identity),
                       identity);
}

std::string pathTo(const std::string& path, std::string_view step)
{
    return path.empty() ? std::string(step) : path + "/" + std::string(step);
}

} // namespace zupackage::authoring
