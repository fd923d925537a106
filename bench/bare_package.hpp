#pragma once

#include <zupackage/package_info.hpp>

#include <list>
#include <map>
#include <string>

namespace bench {

/// What the packages of sample_packages.hpp hold, in containers that nobody hides: the floor of copying and decoding.
struct BareBehavior
{
    using Texts = std::map<std::string, std::string>;
    using Lists = std::map<std::string, std::list<std::string>>;

    std::string path;
    std::string nature;
    Texts names;
    Texts descriptions;
    Lists tags;
    Lists triggerSentences;
    Lists loadingResponses;
    Lists conditions;
    std::list<std::string> permissions;
    bool userRequestable = false;
};

struct BarePackage
{
    std::string uuid;
    std::string path;
    std::string version;
    std::string channel;
    std::string author;
    std::string organization;
    std::string date;
    std::string typeVersion;
    std::map<std::string, std::string> names;
    std::map<std::string, std::string> descriptions;
    std::list<std::string> supportedLanguages;
    std::list<BareBehavior> behaviors;
    std::string installer;
    std::list<std::string> executableFiles;
    std::list<std::string> descriptionLanguages;
};

inline BareBehavior bare(const zu::BehaviorInfo& behavior)
{
    return {behavior.path(),
            behavior.nature(),
            behavior.names(),
            behavior.descriptions(),
            behavior.languagesToTags(),
            behavior.languagesToTriggerSentences(),
            behavior.languagesToLoadingResponses(),
            {{"entertain", behavior.conditions("entertain")}},
            behavior.permissions(),
            behavior.isUserRequestable()};
}

inline BarePackage bare(const zu::PackageInfo& package)
{
    BarePackage bare;
    bare.uuid = package.uuid();
    bare.version = package.version();
    bare.names = package.names();
    for (const zu::BehaviorInfo& behavior : package.behaviors())
        bare.behaviors.push_back(bench::bare(behavior));
    return bare;
}

} // namespace bench
