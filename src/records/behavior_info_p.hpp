#pragma once

#include "records/owner_pointer.hpp"

#include <zupackage/behavior_info.hpp>

class QDomDocument;
class QDomNode;

namespace zu {

struct BehaviorInfoPrivate
{
    BehaviorInfoPrivate() = default;
    explicit BehaviorInfoPrivate(BehaviorInfo* behavior) : owner(behavior) {}

    /// Reads a "behaviorContent" element; the record is a fresh one. True, always.
    bool loadFromManifest(const QDomNode& element);
    /// Appends a "behaviorContent" element to `parent`.
    void saveToManifest(QDomDocument& document, QDomNode& parent) const;

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

    OwnerPointer<BehaviorInfo> owner;
};

} // namespace zu
