#include "language_appender.hpp"
#include "package_info2_keys.hpp"
#include "package_info_p.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>

#include <stdexcept>
#include <utility>

namespace zu {

namespace {

using Texts = std::map<std::string, std::string>;
using Requirements = std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>;
using Values = std::map<std::string, AnyValue>;

template <class T>
T& demanded(AnyValue& stored)
{
    if (T* held = stored.getIf<T>())
        return *held;
    throw std::runtime_error("Type mismatch");
}

template <class T>
T& madeOrDemanded(Values& values, const char* key)
{
    auto place = values.find(key);
    if (place == values.end())
        place = values.emplace(key, AnyValue::from(T())).first;
    return demanded<T>(place->second);
}

/// Calls `use` with the value under `key` as a T, converted where it is of another type; does nothing when there is
/// none.
template <class T, class Use>
void withValue(const Values& values, const char* key, Use use)
{
    const auto place = values.find(key);
    if (place == values.end())
        return;
    const AnyValue& stored = place->second;
    if (const T* held = stored.getIf<T>())
        use(*held);
    else if (const std::optional<T> converted = stored.tryTo<T>())
        use(*converted);
    else
        throwConversionFailure(stored.type(), typeOf<T>());
}

/// Makes `list` the elements of a vector.
template <class T>
auto into(std::list<T>& list)
{
    return [&list](const std::vector<T>& values) { list.assign(values.begin(), values.end()); };
}

template <class T>
T valueOf(const Values& values, const char* key)
{
    T copy;
    withValue<T>(values, key, [&copy](const T& value) { copy = value; });
    return copy;
}

template <class T>
T contentOf(const PackageInfo2& package, const char* key)
{
    T copy;
    withValue<Values>(package.elements, keys::k_contents,
                      [&](const Values& contents) { copy = valueOf<T>(contents, key); });
    return copy;
}

} // namespace

PackageInfo2::PackageInfo2() = default;
PackageInfo2::PackageInfo2(const PackageInfo2& other) = default;
PackageInfo2::PackageInfo2(PackageInfo2&& other) noexcept = default;
PackageInfo2& PackageInfo2::operator=(const PackageInfo2& other) = default;
PackageInfo2& PackageInfo2::operator=(PackageInfo2&& other) noexcept = default;
PackageInfo2::~PackageInfo2() = default;

std::map<std::string, AnyValue>& PackageInfo2::contents() { return madeOrDemanded<Values>(elements, keys::k_contents); }

std::vector<BehaviorInfo>& PackageInfo2::behaviors()
{
    return madeOrDemanded<std::vector<BehaviorInfo>>(contents(), keys::k_behaviors);
}

std::vector<DialogInfo>& PackageInfo2::dialogs()
{
    return madeOrDemanded<std::vector<DialogInfo>>(contents(), keys::k_dialogs);
}

std::vector<LanguageInfo>& PackageInfo2::languages()
{
    return madeOrDemanded<std::vector<LanguageInfo>>(contents(), keys::k_languages);
}

WebInfo& PackageInfo2::web() { return demanded<WebInfo>(contents()[keys::k_web]); }

std::map<std::string, AnyValue> PackageInfo2::contents() const { return valueOf<Values>(elements, keys::k_contents); }

std::vector<BehaviorInfo> PackageInfo2::behaviors() const
{
    return contentOf<std::vector<BehaviorInfo>>(*this, keys::k_behaviors);
}

std::vector<DialogInfo> PackageInfo2::dialogs() const
{
    return contentOf<std::vector<DialogInfo>>(*this, keys::k_dialogs);
}

std::vector<LanguageInfo> PackageInfo2::languages() const
{
    return contentOf<std::vector<LanguageInfo>>(*this, keys::k_languages);
}

WebInfo PackageInfo2::web() const { return contentOf<WebInfo>(*this, keys::k_web); }

PackageInfo::PackageInfo(const PackageInfo2& package) : PackageInfo()
{
    m_p->uuid = package.uuid;
    m_p->version = package.version;
    m_p->author = package.author;
    m_p->channel = package.channel;
    m_p->organization = package.organization;
    m_p->date = package.date;
    m_p->typeVersion = package.typeVersion;
    m_p->installer = package.installer;
    m_p->path = package.path;
    m_p->installOnlyAtStartup = package.installOnlyAtStartup;
    const Values& elements = package.elements;
    withValue<Texts>(elements, keys::k_names, [this](const Texts& names) { m_p->langToName = names; });
    withValue<Texts>(elements, keys::k_descriptions, [this](const Texts& texts) { m_p->langToDesc = texts; });
    withValue<std::vector<PackageService>>(elements, keys::k_services, into(m_p->services));
    withValue<std::vector<std::string>>(elements, keys::k_executableFiles, into(m_p->executableFiles));
    withValue<Requirements>(elements, keys::k_requirements, [this](const Requirements& requirements) {
        into(m_p->robotRequirements)(requirements.first);
        into(m_p->morvoRequirements)(requirements.second);
    });
    withValue<std::vector<std::string>>(elements, keys::k_supportedLanguages, [this](const auto& languages) {
        LanguageAppender appender(m_p->supportedLanguages);
        for (const std::string& lang : languages)
            appender.append(lang);
    });
    withValue<Values>(elements, keys::k_contents, [this](const Values& contents) {
        withValue<std::vector<BehaviorInfo>>(contents, keys::k_behaviors, into(m_p->behaviors));
        withValue<std::vector<DialogInfo>>(contents, keys::k_dialogs, into(m_p->dialogs));
        withValue<std::vector<LanguageInfo>>(contents, keys::k_languages, into(m_p->languages));
    });
}

} // namespace zu
