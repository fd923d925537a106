// What the library makes known to the host framework's type system: the names by which records travel, with the members
// of their tables. Other programs hold values of these types, so that no name may change.
#include "types/type_registration.hpp"

#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"

#include <zupackage/package_info2.hpp>
#include <zupackage/vxvalue.hpp>

#include <zu/registry.hpp>
#include <zu/struct_bouncer.hpp>

#include <algorithm>
#include <iterator>

namespace zupackage {

// Known to the type system alone: no wire form carries it.
template <>
inline constexpr auto k_fields<zu::WebInfo> = std::tuple(field("path", &zu::WebInfo::path));

template <>
inline constexpr auto k_fields<zu::PackageInfo2> =
    std::tuple(field("uuid", &zu::PackageInfo2::uuid), field("version", &zu::PackageInfo2::version),
               field("author", &zu::PackageInfo2::author), field("channel", &zu::PackageInfo2::channel),
               field("organization", &zu::PackageInfo2::organization), field("date", &zu::PackageInfo2::date),
               field("typeVersion", &zu::PackageInfo2::typeVersion), field("installer", &zu::PackageInfo2::installer),
               field("installOnlyAtStartup", &zu::PackageInfo2::installOnlyAtStartup),
               field("path", &zu::PackageInfo2::path), field("elements", &zu::PackageInfo2::elements));

namespace {

template <class Record>
std::vector<zu::Member<Record>> membersOf()
{
    return std::apply(
        [](const auto&... field) {
            return std::vector<zu::Member<Record>>{{field.member, field.pointer}...};
        },
        k_fields<Record>);
}

/// Registers a class with a private record, and the record.
template <class Handle>
bool registerHandle(const char* handleName, const char* recordName)
{
    using Record = std::decay_t<decltype(zu::PrivateRecord::of(std::declval<Handle&>()))>;
    const bool record = zu::registerStruct<Record>(recordName, membersOf<Record>());
    return zu::registerBouncer<Handle>(handleName, [](Handle* handle) { return &zu::PrivateRecord::of(*handle); }) &&
           record;
}

bool registerVariant()
{
    static const auto& type = *new VX::VXValueType;
    return zu::registerType(zu::TypeInfo::of<VX::VXValue>(), &type);
}

/// The interface of a struct, made known under its class name.
template <class Record>
const zu::TypeInterface* known(const char* className)
{
    const zu::StructTypeInterface* type = zu::makeStruct<Record>(className, membersOf<Record>()).release();
    zu::registerStruct(type);
    return type;
}

[[maybe_unused]] const bool g_registeredAtLoad = registerTypes();

} // namespace

bool registerTypes()
{
    const bool registered[] = {registerHandle<zu::DialogInfo>("::zu::DialogInfo", "::zu::DialogInfoPrivate"),
                               registerHandle<zu::BehaviorInfo>("::zu::BehaviorInfo", "::zu::BehaviorInfoPrivate"),
                               // This record's name alone has no leading "::": programs that look it up know it so.
                               registerHandle<zu::LanguageInfo>("::zu::LanguageInfo", "zu::LanguageInfoPrivate"),
                               registerHandle<zu::PackageInfo>("::zu::PackageInfo", "::zu::PackageInfoPrivate"),
                               registerVariant()};
    return std::all_of(std::begin(registered), std::end(registered), [](bool one) { return one; });
}

} // namespace zupackage

namespace zu {

const TypeInterface* NativeType<RobotRequirement>::make()
{
    static const TypeInterface* type = zupackage::known<RobotRequirement>("::zu::RobotRequirement");
    return type;
}

const TypeInterface* NativeType<MorvoRequirement>::make()
{
    static const TypeInterface* type = zupackage::known<MorvoRequirement>("::zu::MorvoRequirement");
    return type;
}

const TypeInterface* NativeType<PackageService>::make()
{
    static const TypeInterface* type = zupackage::known<PackageService>("::zu::PackageService");
    return type;
}

const TypeInterface* NativeType<WebInfo>::make()
{
    static const TypeInterface* type = zupackage::known<WebInfo>("::zu::WebInfo");
    return type;
}

const TypeInterface* NativeType<PackageInfo2>::make()
{
    static const TypeInterface* type = zupackage::known<PackageInfo2>("::zu::PackageInfo2");
    return type;
}

} // namespace zu
