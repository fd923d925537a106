#include "records/language_appender.hpp"
#include "records/package_info_p.hpp"
#include "value_model/package_info2_keys.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>

#include <stdexcept>
#include <utility>

namespace zu {

namespace {

using keys::Key;
using keys::Requirements;
using keys::Texts;
using keys::Values;

template <class T>
T& demanded(AnyValue& stored)
{
    if (T* held = stored.getIf<T>())
        return *held;
    throw std::runtime_error("Type mismatch");
}

template <class T>
T& madeOrDemanded(Values& values, Key<T> key)
{
    auto place = values.find(key.name);
    if (place == values.end())
        place = values.emplace(key.name, AnyValue::from(T())).first;
    return demanded<T>(place->second);
}

/// Calls `use` with the value under `key` as a T, converted where it is of another type; does nothing when there is
/// none.
template <class T, class Use>
void withValue(const Values& values, Key<T> key, Use use)
{
    const auto place = values.find(key.name);
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
T valueOf(const Values& values, Key<T> key)
{
    T copy;
    withValue(values, key, [&copy](const T& value) { copy = value; });
    return copy;
}

template <class T>
T contentOf(const PackageInfo2& package, Key<T> key)
{
    T copy;
    withValue(package.elements, keys::k_contents, [&](const Values& contents) { copy = valueOf(contents, key); });
    return copy;
}

} // namespace

PackageInfo2::PackageInfo2() = default;
PackageInfo2::PackageInfo2(const PackageInfo2& other) = default;
PackageInfo2::PackageInfo2(PackageInfo2&& other) noexcept = default;
PackageInfo2& PackageInfo2::operator=(const PackageInfo2& other) = default;
PackageInfo2& PackageInfo2::operator=(PackageInfo2&& other) noexcept = default;
PackageInfo2::~PackageInfo2() = default;

std::map<std::string, AnyValue>& PackageInfo2::contents() { return madeOrDemanded(elements, keys::k_contents); }

std::vector<BehaviorInfo>& PackageInfo2::behaviors() { return madeOrDemanded(contents(), keys::k_behaviors); }

std::vector<DialogInfo>& PackageInfo2::dialogs() { return madeOrDemanded(contents(), keys::k_dialogs); }

std::vector<LanguageInfo>& PackageInfo2::languages() { return madeOrDemanded(contents(), keys::k_languages); }

WebInfo& PackageInfo2::web() { return demanded<WebInfo>(contents()[keys::k_web.name]); }

std::map<std::string, AnyValue> PackageInfo2::contents() const { return valueOf(elements, keys::k_contents); }

std::vector<BehaviorInfo> PackageInfo2::behaviors() const { return contentOf(*this, keys::k_behaviors); }

std::vector<DialogInfo> PackageInfo2::dialogs() const { return contentOf(*this, keys::k_dialogs); }

std::vector<LanguageInfo> PackageInfo2::languages() const { return contentOf(*this, keys::k_languages); }

WebInfo PackageInfo2::web() const { return contentOf(*this, keys::k_web); }

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
    withValue(elements, keys::k_names, [this](const Texts& names) { m_p->langToName = names; });
    withValue(elements, keys::k_descriptions, [this](const Texts& texts) { m_p->langToDesc = texts; });
    withValue(elements, keys::k_services, into(m_p->services));
    withValue(elements, keys::k_executableFiles, into(m_p->executableFiles));
    withValue(elements, keys::k_requirements, [this](const Requirements& requirements) {
        into(m_p->robotRequirements)(requirements.first);
        into(m_p->morvoRequirements)(requirements.second);
    });
    withValue(elements, keys::k_supportedLanguages, [this](const auto& languages) {
        LanguageAppender appender(m_p->supportedLanguages);
        for (const std::string& lang : languages)
            appender.append(lang);
    });
    withValue(elements, keys::k_contents, [this](const Values& contents) {
        withValue(contents, keys::k_behaviors, into(m_p->behaviors));
        withValue(contents, keys::k_dialogs, into(m_p->dialogs));
        withValue(contents, keys::k_languages, into(m_p->languages));
    });
}

} // namespace zu
