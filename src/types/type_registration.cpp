// What the library makes known to the host framework's type system: the names and the order of members by which records
// travel. Other programs hold values of these types, so that neither may change.
#include "types/type_registration.hpp"

#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"

#include <zupackage/package_info2.hpp>
#include <zupackage/vxvalue.hpp>

#include <zu/registry.hpp>
#include <zu/type/struct_bouncer.hpp>

#include <algorithm>
#include <iterator>

namespace zu {

namespace {

template <class Handle>
auto* recordOf(Handle* handle)
{
    return &PrivateRecord::of(*handle);
}

bool registerDialogInfo()
{
    using Record = DialogInfoPrivate;
    const bool record = registerStruct<Record>(
        "::zu::DialogInfoPrivate",
        {{"topicName", &Record::topicName}, {"typeVersion", &Record::typeVersion}, {"topics", &Record::topics}});
    return registerBouncer<DialogInfo>("::zu::DialogInfo", &recordOf<DialogInfo>) && record;
}

bool registerBehaviorInfo()
{
    using Record = BehaviorInfoPrivate;
    const bool record = registerStruct<Record>("::zu::BehaviorInfoPrivate",
                                               {{"path", &Record::path},
                                                {"nature", &Record::nature},
                                                {"langToName", &Record::langToName},
                                                {"langToDesc", &Record::langToDesc},
                                                {"categories", &Record::categories},
                                                {"langToTags", &Record::langToTags},
                                                {"langToTriggerSentences", &Record::langToTriggerSentences},
                                                {"langToLoadingResponses", &Record::langToLoadingResponses},
                                                {"purposeToCondition", &Record::purposeToCondition},
                                                {"permissions", &Record::permissions},
                                                {"userRequestable", &Record::userRequestable}});
    return registerBouncer<BehaviorInfo>("::zu::BehaviorInfo", &recordOf<BehaviorInfo>) && record;
}

bool registerLanguageInfo()
{
    using Record = LanguageInfoPrivate;
    // Alone in having no leading "::": programs that look the record up know it so.
    const bool record = registerStruct<Record>("zu::LanguageInfoPrivate", {{"path", &Record::path},
                                                                           {"engineName", &Record::engineName},
                                                                           {"engineVersion", &Record::engineVersion},
                                                                           {"locale", &Record::locale},
                                                                           {"langToName", &Record::langToName}});
    return registerBouncer<LanguageInfo>("::zu::LanguageInfo", &recordOf<LanguageInfo>) && record;
}

bool registerPackageInfo()
{
    using Record = PackageInfoPrivate;
    // Without installOnlyAtStartup: it does not cross the type system.
    const bool record =
        registerStruct<Record>("::zu::PackageInfoPrivate", {{"uuid", &Record::uuid},
                                                            {"path", &Record::path},
                                                            {"version", &Record::version},
                                                            {"channel", &Record::channel},
                                                            {"author", &Record::author},
                                                            {"organization", &Record::organization},
                                                            {"date", &Record::date},
                                                            {"typeVersion", &Record::typeVersion},
                                                            {"langToName", &Record::langToName},
                                                            {"langToDesc", &Record::langToDesc},
                                                            {"supportedLanguages", &Record::supportedLanguages},
                                                            {"behaviors", &Record::behaviors},
                                                            {"languages", &Record::languages},
                                                            {"installer", &Record::installer},
                                                            {"robotRequirements", &Record::robotRequirements},
                                                            {"morvoRequirements", &Record::morvoRequirements},
                                                            {"services", &Record::services},
                                                            {"executableFiles", &Record::executableFiles},
                                                            {"dialogs", &Record::dialogs},
                                                            {"descriptionLanguages", &Record::descriptionLanguages}});
    return registerBouncer<PackageInfo>("::zu::PackageInfo", &recordOf<PackageInfo>) && record;
}

bool registerVariant()
{
    static const auto& type = *new VX::VXValueType;
    return registerType(TypeInfo::of<VX::VXValue>(), &type);
}

/// The interface of a struct, made known under its class name.
template <class T>
const TypeInterface* known(std::string className, std::vector<Member<T>> members)
{
    const StructTypeInterface* type = makeStruct<T>(std::move(className), std::move(members)).release();
    registerStruct(type);
    return type;
}

[[maybe_unused]] const bool g_registeredAtLoad = registerTypes();

} // namespace

bool registerTypes()
{
    const bool registered[] = {registerDialogInfo(), registerBehaviorInfo(), registerLanguageInfo(),
                               registerPackageInfo(), registerVariant()};
    return std::all_of(std::begin(registered), std::end(registered), [](bool one) { return one; });
}

const TypeInterface* NativeType<RobotRequirement, void>::make()
{
    using Record = RobotRequirement;
    static const TypeInterface* type =
        known<Record>("::zu::RobotRequirement", {{"model", &Record::model},
                                                 {"minHeadVersion", &Record::minHeadVersion},
                                                 {"maxHeadVersion", &Record::maxHeadVersion},
                                                 {"minBodyVersion", &Record::minBodyVersion},
                                                 {"maxBodyVersion", &Record::maxBodyVersion}});
    return type;
}

const TypeInterface* NativeType<MorvoRequirement, void>::make()
{
    using Record = MorvoRequirement;
    static const TypeInterface* type = known<Record>(
        "::zu::MorvoRequirement", {{"minVersion", &Record::minVersion}, {"maxVersion", &Record::maxVersion}});
    return type;
}

const TypeInterface* NativeType<PackageService, void>::make()
{
    using Record = PackageService;
    static const TypeInterface* type = known<Record>("::zu::PackageService", {{"execStart", &Record::execStart},
                                                                              {"name", &Record::name},
                                                                              {"autoRun", &Record::autoRun},
                                                                              {"envVars", &Record::envVars}});
    return type;
}

const TypeInterface* NativeType<WebInfo, void>::make()
{
    static const TypeInterface* type = known<WebInfo>("::zu::WebInfo", {{"path", &WebInfo::path}});
    return type;
}

} // namespace zu
