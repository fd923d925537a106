#pragma once

#include "records/field.hpp"

#include <zupackage/behavior_info.hpp>

namespace zupackage::xml {
class Node;
}

namespace zu {

struct BehaviorInfoPrivate
{
    /// Reads a "behaviorContent" element; the record is a fresh one. True, always.
    bool loadFromManifest(zupackage::xml::Node element);

    std::string path;
    std::string nature;
    std::map<std::string, std::string> langToName;
    std::map<std::string, std::string> langToDesc;
    std::string categories; ///< reserved: no operation reads or writes it, the registered layout carries it
    std::map<std::string, std::list<std::string>> langToTags;
    std::map<std::string, std::list<std::string>> langToTriggerSentences;
    std::map<std::string, std::list<std::string>> langToLoadingResponses;
    std::map<std::string, std::list<std::string>> purposeToCondition;
    std::list<std::string> permissions;
    bool userRequestable = false;
};

} // namespace zu

namespace zupackage {

template <>
inline constexpr auto k_fields<zu::BehaviorInfoPrivate> =
    std::tuple(field("path", &zu::BehaviorInfoPrivate::path), field("nature", &zu::BehaviorInfoPrivate::nature),
               field("langToName", &zu::BehaviorInfoPrivate::langToName, "names"),
               field("langToDesc", &zu::BehaviorInfoPrivate::langToDesc, "descriptions"),
               reserved("categories", &zu::BehaviorInfoPrivate::categories),
               field("langToTags", &zu::BehaviorInfoPrivate::langToTags, "tags"),
               field("langToTriggerSentences", &zu::BehaviorInfoPrivate::langToTriggerSentences, "triggerSentences"),
               field("langToLoadingResponses", &zu::BehaviorInfoPrivate::langToLoadingResponses, "loadingResponses"),
               field("purposeToCondition", &zu::BehaviorInfoPrivate::purposeToCondition, "conditions"),
               field("permissions", &zu::BehaviorInfoPrivate::permissions),
               field("userRequestable", &zu::BehaviorInfoPrivate::userRequestable));

} // namespace zupackage
