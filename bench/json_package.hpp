#pragma once

#include "bare_package.hpp"

#include <nlohmann/json.hpp>
#include <utility>

/// What the encoding says of these packages, in another tree of the same shape.
namespace bench {

using nlohmann::json;

inline json pairOf(const char* key, json value) { return json::array({key, std::move(value)}); }

inline json jsonOf(const std::map<std::string, std::string>& map)
{
    json array = json::array();
    for (const auto& [key, text] : map)
        array.push_back(json::array({key, text}));
    return array;
}

inline json jsonOf(const std::list<std::string>& texts)
{
    json array = json::array();
    for (const std::string& text : texts)
        array.push_back(text);
    return array;
}

inline json jsonOf(const std::map<std::string, std::list<std::string>>& map)
{
    json array = json::array();
    for (const auto& [key, texts] : map)
        array.push_back(json::array({key, jsonOf(texts)}));
    return array;
}

inline json jsonOf(const zu::BehaviorInfo& behavior)
{
    json array = json::array();
    array.push_back(pairOf("path", behavior.path()));
    array.push_back(pairOf("nature", behavior.nature()));
    array.push_back(pairOf("names", jsonOf(behavior.names())));
    array.push_back(pairOf("descriptions", jsonOf(behavior.descriptions())));
    array.push_back(pairOf("categories", nullptr));
    array.push_back(pairOf("tags", jsonOf(behavior.languagesToTags())));
    array.push_back(pairOf("triggerSentences", jsonOf(behavior.languagesToTriggerSentences())));
    array.push_back(pairOf("loadingResponses", jsonOf(behavior.languagesToLoadingResponses())));
    array.push_back(pairOf("conditions", jsonOf({{"entertain", behavior.conditions("entertain")}})));
    array.push_back(pairOf("permissions", jsonOf(behavior.permissions())));
    array.push_back(pairOf("userRequestable", behavior.isUserRequestable()));
    return array;
}

inline json jsonOf(const zu::PackageInfo& package)
{
    json behaviors = json::array();
    for (const zu::BehaviorInfo& behavior : package.behaviors())
        behaviors.push_back(jsonOf(behavior));
    const json none = json::array();
    json pairs = json::array();
    pairs.push_back(pairOf("uuid", package.uuid()));
    pairs.push_back(pairOf("path", package.path()));
    pairs.push_back(pairOf("version", package.version()));
    pairs.push_back(pairOf("channel", package.channel()));
    pairs.push_back(pairOf("author", package.author()));
    pairs.push_back(pairOf("organization", package.organization()));
    pairs.push_back(pairOf("date", package.date()));
    pairs.push_back(pairOf("typeVersion", package.typeVersion()));
    pairs.push_back(pairOf("names", jsonOf(package.names())));
    pairs.push_back(pairOf("descriptions", jsonOf(package.descriptions())));
    pairs.push_back(pairOf("supportedLanguages", jsonOf(package.supportedLanguages())));
    pairs.push_back(pairOf("behaviors", std::move(behaviors)));
    pairs.push_back(pairOf("languages", none));
    pairs.push_back(pairOf("installer", package.installer()));
    pairs.push_back(pairOf("robotRequirements", none));
    pairs.push_back(pairOf("morvoRequirements", none));
    pairs.push_back(pairOf("services", none));
    pairs.push_back(pairOf("executableFiles", jsonOf(package.executableFiles())));
    pairs.push_back(pairOf("dialogs", none));
    pairs.push_back(pairOf("descriptionLanguages", jsonOf(package.descriptionLanguages())));
    return pairs;
}

/// The value of the pair at a place, as a program reads it that does not trust the shape.
template <class T>
T valueAt(const json& pairs, std::size_t place)
{
    return pairs.at(place).at(1).get<T>();
}

template <class Value>
std::map<std::string, Value> mapAt(const json& pairs, std::size_t place)
{
    std::map<std::string, Value> map;
    for (const json& pair : pairs.at(place).at(1))
        map[pair.at(0).get<std::string>()] = pair.at(1).get<Value>();
    return map;
}

inline BareBehavior behaviorFrom(const json& pairs)
{
    using List = std::list<std::string>;
    return {valueAt<std::string>(pairs, 0), valueAt<std::string>(pairs, 1), mapAt<std::string>(pairs, 2),
            mapAt<std::string>(pairs, 3),   mapAt<List>(pairs, 5),          mapAt<List>(pairs, 6),
            mapAt<List>(pairs, 7),          mapAt<List>(pairs, 8),          valueAt<List>(pairs, 9),
            valueAt<bool>(pairs, 10)};
}

inline BarePackage packageFrom(const json& pairs)
{
    using List = std::list<std::string>;
    BarePackage package;
    package.uuid = valueAt<std::string>(pairs, 0);
    package.path = valueAt<std::string>(pairs, 1);
    package.version = valueAt<std::string>(pairs, 2);
    package.channel = valueAt<std::string>(pairs, 3);
    package.author = valueAt<std::string>(pairs, 4);
    package.organization = valueAt<std::string>(pairs, 5);
    package.date = valueAt<std::string>(pairs, 6);
    package.typeVersion = valueAt<std::string>(pairs, 7);
    package.names = mapAt<std::string>(pairs, 8);
    package.descriptions = mapAt<std::string>(pairs, 9);
    package.supportedLanguages = valueAt<List>(pairs, 10);
    for (const json& behavior : pairs.at(11).at(1))
        package.behaviors.push_back(behaviorFrom(behavior));
    package.installer = valueAt<std::string>(pairs, 13);
    package.executableFiles = valueAt<List>(pairs, 17);
    package.descriptionLanguages = valueAt<List>(pairs, 19);
    return package;
}

} // namespace bench
