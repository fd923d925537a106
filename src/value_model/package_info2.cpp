#include "manifest/root_attributes.hpp"
#include "records/append_once.hpp"
#include "records/package_info_p.hpp"
#include "value_model/package_info2_keys.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>

#include <stdexcept>
#include <utility>

namespace zupackage {

namespace {

using keys::Key;
using keys::Requirements;
using keys::Texts;
using keys::Values;

template <class T>
T& demanded(zu::AnyValue& stored)
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
        place = values.emplace(key.name, zu::AnyValue::from(T())).first;
    return demanded<T>(place->second);
}

/// Calls `use` with the value under `key` as a T, converted where it is of another type; does nothing when there is
/// none, and calls `fail` with what does not convert.
template <class T, class Use, class Fail>
void withValue(const Values& values, Key<T> key, Use use, Fail fail)
{
    const auto place = values.find(key.name);
    if (place == values.end())
        return;
    const zu::AnyValue& stored = place->second;
    if (const T* held = stored.getIf<T>())
        use(*held);
    else if (const std::optional<T> converted = stored.tryTo<T>())
        use(*converted);
    else
        fail(stored);
}

/// Makes `list` the elements of a vector.
template <class T>
auto into(std::list<T>& list)
{
    return [&list](const std::vector<T>& values) { list.assign(values.begin(), values.end()); };
}

/// Throws an error that names the types alone.
template <class T>
[[noreturn]] void failFor(const zu::AnyValue& stored)
{
    zu::throwConversionFailure(stored.type(), zu::typeOf<T>());
}

template <class T>
T valueOf(const Values& values, Key<T> key)
{
    T copy;
    withValue(
        values, key, [&copy](const T& value) { copy = value; }, &failFor<T>);
    return copy;
}

template <class T>
T contentOf(const zu::PackageInfo2& package, Key<T> key)
{
    T copy;
    withValue(
        package.elements, keys::k_contents, [&](const Values& contents) { copy = valueOf(contents, key); },
        &failFor<Values>);
    return copy;
}

/// Calls `use` like withValue(). What does not convert is an error that tells the way to it, which begins with `path`:
/// `["contents"]["behaviors"][1].path`.
template <class T, class Use>
void take(const Values& values, Key<T> key, Use use, const std::string& path = {})
{
    withValue(values, key, use, [&](const zu::AnyValue& stored) {
        T target;
        zu::ConversionFailure failure;
        if (!tryConvert(stored, zu::AnyReference::from(target), &failure)) {
            failure.path.insert(0, path + "[\"" + key.name + "\"]");
            throw zu::ConversionError(failure);
        }
    });
}

/// Fills a fresh package.
void fill(zu::PackageInfoPrivate& record, const zu::PackageInfo2& package)
{
    for (std::size_t i = 0; i < std::size(k_rootAttributes<zu::PackageInfo2>); ++i)
        record.*k_rootAttributes<zu::PackageInfoPrivate>[i].field =
            package.*k_rootAttributes<zu::PackageInfo2>[i].field;
    record.installer = package.installer;
    record.path = package.path;
    record.installOnlyAtStartup = package.installOnlyAtStartup;
    const Values& elements = package.elements;
    take(elements, keys::k_names, [&record](const Texts& names) { record.langToName = names; });
    take(elements, keys::k_descriptions, [&record](const Texts& texts) { record.langToDesc = texts; });
    take(elements, keys::k_services, into(record.services));
    take(elements, keys::k_executableFiles, into(record.executableFiles));
    take(elements, keys::k_requirements, [&record](const Requirements& requirements) {
        into(record.robotRequirements)(requirements.first);
        into(record.morvoRequirements)(requirements.second);
    });
    take(elements, keys::k_supportedLanguages, [&record](const auto& languages) {
        OnceAppender appender(record.supportedLanguages);
        for (const std::string& lang : languages)
            appender.append(lang);
    });
    take(elements, keys::k_contents, [&record](const Values& contents) {
        const std::string path = std::string("[\"") + keys::k_contents.name + "\"]";
        take(contents, keys::k_behaviors, into(record.behaviors), path);
        take(contents, keys::k_dialogs, into(record.dialogs), path);
        take(contents, keys::k_languages, into(record.languages), path);
    });
}

} // namespace

} // namespace zupackage

namespace zu {

PackageInfo2::PackageInfo2() = default;
PackageInfo2::PackageInfo2(const PackageInfo2& other) = default;
PackageInfo2::PackageInfo2(PackageInfo2&& other) noexcept = default;
PackageInfo2& PackageInfo2::operator=(const PackageInfo2& other) = default;
PackageInfo2& PackageInfo2::operator=(PackageInfo2&& other) noexcept = default;
PackageInfo2::~PackageInfo2() = default;

std::map<std::string, AnyValue>& PackageInfo2::contents()
{
    return zupackage::madeOrDemanded(elements, zupackage::keys::k_contents);
}

std::vector<BehaviorInfo>& PackageInfo2::behaviors()
{
    return zupackage::madeOrDemanded(contents(), zupackage::keys::k_behaviors);
}

std::vector<DialogInfo>& PackageInfo2::dialogs()
{
    return zupackage::madeOrDemanded(contents(), zupackage::keys::k_dialogs);
}

std::vector<LanguageInfo>& PackageInfo2::languages()
{
    return zupackage::madeOrDemanded(contents(), zupackage::keys::k_languages);
}

WebInfo& PackageInfo2::web() { return zupackage::demanded<WebInfo>(contents()[zupackage::keys::k_web.name]); }

std::map<std::string, AnyValue> PackageInfo2::contents() const
{
    return zupackage::valueOf(elements, zupackage::keys::k_contents);
}

std::vector<BehaviorInfo> PackageInfo2::behaviors() const
{
    return zupackage::contentOf(*this, zupackage::keys::k_behaviors);
}

std::vector<DialogInfo> PackageInfo2::dialogs() const
{
    return zupackage::contentOf(*this, zupackage::keys::k_dialogs);
}

std::vector<LanguageInfo> PackageInfo2::languages() const
{
    return zupackage::contentOf(*this, zupackage::keys::k_languages);
}

WebInfo PackageInfo2::web() const { return zupackage::contentOf(*this, zupackage::keys::k_web); }

PackageInfo::PackageInfo(const PackageInfo2& package) : PackageInfo() { zupackage::fill(*m_p, package); }

} // namespace zu
