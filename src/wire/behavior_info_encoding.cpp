#include "records/behavior_info_p.hpp"
#include "wire/wire_form.hpp"

namespace zu {

using VX::VXValue;

namespace {

using namespace wire_form;

// The keys of a behavior's pairs, each for its writer and its reader.
constexpr char k_path[] = "path";
constexpr char k_nature[] = "nature";
constexpr char k_names[] = "names";
constexpr char k_descriptions[] = "descriptions";
constexpr char k_categories[] = "categories";
constexpr char k_tags[] = "tags";
constexpr char k_triggerSentences[] = "triggerSentences";
constexpr char k_loadingResponses[] = "loadingResponses";
constexpr char k_conditions[] = "conditions";
constexpr char k_permissions[] = "permissions";
constexpr char k_userRequestable[] = "userRequestable";

template <auto field>
void decodeInto(const VXValue& value, BehaviorInfoPrivate& record)
{
    decode(value, record.*field);
}

void decodePermissions(const VXValue& value, BehaviorInfoPrivate& record)
{
    decode(value, record.permissions);
    record.permissions.unique();
}

constexpr struct
{
    const char* key;
    void (*decode)(const VXValue& value, BehaviorInfoPrivate& record);
} k_fields[] = {
    {k_path, &decodeInto<&BehaviorInfoPrivate::path>},
    {k_userRequestable, &decodeInto<&BehaviorInfoPrivate::userRequestable>},
    {k_nature, &decodeInto<&BehaviorInfoPrivate::nature>},
    {k_names, &decodeInto<&BehaviorInfoPrivate::langToName>},
    {k_descriptions, &decodeInto<&BehaviorInfoPrivate::langToDesc>},
    {k_tags, &decodeInto<&BehaviorInfoPrivate::langToTags>},
    {k_triggerSentences, &decodeInto<&BehaviorInfoPrivate::langToTriggerSentences>},
    {k_loadingResponses, &decodeInto<&BehaviorInfoPrivate::langToLoadingResponses>},
    {k_conditions, &decodeInto<&BehaviorInfoPrivate::purposeToCondition>},
    {k_permissions, &decodePermissions},
};

} // namespace

BehaviorInfo::BehaviorInfo(const VXValue& value) : BehaviorInfo()
{
    if (value.type() != VXValue::Type::Array)
        return;
    for (int i = 0; i < value.size(); ++i) {
        std::string key;
        decode(value[i][0], key);
        for (const auto& field : k_fields)
            if (key == field.key)
                field.decode(pairValue(value, i), *m_p);
    }
}

void BehaviorInfo::toVXValue(VXValue& value) const
{
    store(arrayOf({pairOf(k_path, encoded(m_p->path)), pairOf(k_nature, encoded(m_p->nature)),
                   pairOf(k_names, encoded(m_p->langToName)), pairOf(k_descriptions, encoded(m_p->langToDesc)),
                   pairOf(k_categories, VXValue()), // reserved: nothing is written into it
                   pairOf(k_tags, encoded(m_p->langToTags)),
                   pairOf(k_triggerSentences, encoded(m_p->langToTriggerSentences)),
                   pairOf(k_loadingResponses, encoded(m_p->langToLoadingResponses)),
                   pairOf(k_conditions, encoded(m_p->purposeToCondition)),
                   pairOf(k_permissions, encoded(m_p->permissions)),
                   pairOf(k_userRequestable, encoded(m_p->userRequestable))}),
          value);
}

} // namespace zu
