#include "json/json_form.hpp"

#include <algorithm>

namespace zupackage::authoring {

namespace {

using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

bool hasText(const ElementEntry& entry) { return entry.text != ValueKind::None; }

bool isPresence(const ElementEntry& entry)
{
    return !hasText(entry) && entry.attributes.empty() && entry.children.empty();
}

/// Whether elements of the entry are told apart by an attribute and have one value beside it.
bool isKeyed(const ElementEntry& entry)
{
    const std::size_t values = entry.attributes.size() + (hasText(entry) ? 1 : 0);
    return entry.occurrence == Occurrence::Repeated && entry.children.empty() && values == 2 &&
           entry.attributes.front().isRequired;
}

} // namespace

const ElementEntry* contentOf(const ElementEntry& entry)
{
    const bool isContainer = !hasText(entry) && entry.attributes.empty() && entry.children.size() == 1 &&
                             entry.children.front()->occurrence == Occurrence::Repeated;
    return isContainer ? entry.children.front() : nullptr;
}

JsonForm formOfAll(const ElementEntry& entry)
{
    if (entry.occurrence != Occurrence::Repeated)
        return formOf(entry);
    if (!isKeyed(entry))
        return JsonForm::List;
    return entry.identity.empty() ? JsonForm::ListMap : JsonForm::Map;
}

JsonForm formOf(const ElementEntry& entry)
{
    if (const ElementEntry* const content = contentOf(entry))
        return formOfAll(*content);
    if (isPresence(entry))
        return JsonForm::Presence;
    if (entry.children.empty() && entry.attributes.size() + (hasText(entry) ? 1 : 0) == 1)
        return JsonForm::Text;
    const bool areNames = entry.attributes.empty() && !hasText(entry) &&
                          std::all_of(entry.children.begin(), entry.children.end(),
                                      [](const ElementEntry* child) { return isPresence(*child); });
    return areNames ? JsonForm::Names : JsonForm::Object;
}

const AttributeEntry* valueAttribute(const ElementEntry& entry)
{
    return hasText(entry) || entry.attributes.empty() ? nullptr : &entry.attributes.back();
}

std::size_t indexOf(const ElementEntry& entry, const AttributeEntry& attribute)
{
    return static_cast<std::size_t>(&attribute - entry.attributes.data());
}

} // namespace zupackage::authoring
