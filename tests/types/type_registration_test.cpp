#include <zupackage/package_info2.hpp>
#include <zupackage/vxvalue.hpp>

#include <zu/registry.hpp>
#include <zu/type/struct.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using testing::ElementsAreArray;

namespace {

using Texts = std::list<std::string>;
using TextByKey = std::map<std::string, std::string>;
using TextsByKey = std::map<std::string, Texts>;

struct ExpectedMember
{
    std::string name;
    TypeInfo type;
};

template <class T>
ExpectedMember member(const char* name)
{
    return {name, TypeInfo::of<T>()};
}

const std::vector<ExpectedMember> k_packageMembers = {member<std::string>("uuid"),
                                                      member<std::string>("path"),
                                                      member<std::string>("version"),
                                                      member<std::string>("channel"),
                                                      member<std::string>("author"),
                                                      member<std::string>("organization"),
                                                      member<std::string>("date"),
                                                      member<std::string>("typeVersion"),
                                                      member<TextByKey>("langToName"),
                                                      member<TextByKey>("langToDesc"),
                                                      member<Texts>("supportedLanguages"),
                                                      member<std::list<BehaviorInfo>>("behaviors"),
                                                      member<std::list<LanguageInfo>>("languages"),
                                                      member<std::string>("installer"),
                                                      member<std::list<RobotRequirement>>("robotRequirements"),
                                                      member<std::list<MorvoRequirement>>("morvoRequirements"),
                                                      member<std::list<PackageService>>("services"),
                                                      member<Texts>("executableFiles"),
                                                      member<std::list<DialogInfo>>("dialogs"),
                                                      member<Texts>("descriptionLanguages")};

const std::vector<ExpectedMember> k_behaviorMembers = {
    member<std::string>("path"),
    member<std::string>("nature"),
    member<TextByKey>("langToName"),
    member<TextByKey>("langToDesc"),
    member<std::string>("categories"),
    member<TextsByKey>("langToTags"),
    member<TextsByKey>("langToTriggerSentences"),
    member<TextsByKey>("langToLoadingResponses"),
    member<TextsByKey>("purposeToCondition"),
    member<Texts>("permissions"),
    member<bool>("userRequestable"),
};

const std::vector<ExpectedMember> k_dialogMembers = {
    member<std::string>("topicName"),
    member<std::string>("typeVersion"),
    member<TextByKey>("topics"),
};

const std::vector<ExpectedMember> k_languageMembers = {
    member<std::string>("path"),   member<std::string>("engineName"), member<std::string>("engineVersion"),
    member<std::string>("locale"), member<TextByKey>("langToName"),
};

void expectStruct(const TypeInterface* type, const std::string& className,
                  const std::vector<ExpectedMember>& expectedMembers)
{
    SCOPED_TRACE(className);
    ASSERT_NE(type, nullptr);
    ASSERT_EQ(type->kind(), TypeKind::Tuple);
    const auto& structType = static_cast<const StructTypeInterface&>(*type);
    EXPECT_EQ(structType.className(), className);
    std::vector<ExpectedMember> members;
    const std::vector<const TypeInterface*> types = structType.memberTypes();
    ASSERT_EQ(types.size(), structType.elementsName().size());
    for (std::size_t i = 0; i != types.size(); ++i)
        members.push_back({structType.elementsName()[i], types[i]->info()});
    EXPECT_THAT(members, testing::Pointwise(testing::Truly([](const auto& pair) {
                                                return std::get<0>(pair).name == std::get<1>(pair).name &&
                                                       std::get<0>(pair).type == std::get<1>(pair).type;
                                            }),
                                            expectedMembers));
}

/// A class with a private record is known under its own name, with the members of its record, and so is the record.
template <class Handle>
void expectHandle(const std::string& className, const std::string& recordName,
                  const std::vector<ExpectedMember>& members)
{
    expectStruct(getType(TypeInfo::of<Handle>()), className, members);
    EXPECT_EQ(findType(className), getType(TypeInfo::of<Handle>()));
    const TypeInterface* record = findType(recordName);
    expectStruct(record, recordName, members);
    if (record) {
        EXPECT_EQ(getType(record->info()), record);
    }
}

} // namespace

TEST(RegisteredTypes, ThePackageHasItsMembersInOrderWithoutInstallOnlyAtStartup)
{
    expectHandle<PackageInfo>("::zu::PackageInfo", "::zu::PackageInfoPrivate", k_packageMembers);
}

TEST(RegisteredTypes, TheBehaviorHasItsMembersInOrder)
{
    expectHandle<BehaviorInfo>("::zu::BehaviorInfo", "::zu::BehaviorInfoPrivate", k_behaviorMembers);
}

TEST(RegisteredTypes, TheDialogHasItsMembersInOrder)
{
    expectHandle<DialogInfo>("::zu::DialogInfo", "::zu::DialogInfoPrivate", k_dialogMembers);
}

TEST(RegisteredTypes, TheLanguagesRecordAloneHasNoLeadingColons)
{
    expectHandle<LanguageInfo>("::zu::LanguageInfo", "zu::LanguageInfoPrivate", k_languageMembers);
    EXPECT_EQ(findType("::zu::LanguageInfoPrivate"), nullptr);
}

TEST(RegisteredTypes, TheSmallRecordsAreDescribedOnFirstUse)
{
    expectStruct(typeOf<RobotRequirement>(), "::zu::RobotRequirement",
                 {member<std::string>("model"), member<std::string>("minHeadVersion"),
                  member<std::string>("maxHeadVersion"), member<std::string>("minBodyVersion"),
                  member<std::string>("maxBodyVersion")});
    expectStruct(typeOf<MorvoRequirement>(), "::zu::MorvoRequirement",
                 {member<std::string>("minVersion"), member<std::string>("maxVersion")});
    expectStruct(typeOf<PackageService>(), "::zu::PackageService",
                 {member<std::string>("execStart"), member<std::string>("name"), member<bool>("autoRun"),
                  member<TextByKey>("envVars")});
    expectStruct(typeOf<WebInfo>(), "::zu::WebInfo", {member<std::string>("path")});
    expectStruct(typeOf<PackageInfo2>(), "::zu::PackageInfo2",
                 {member<std::string>("uuid"), member<std::string>("version"), member<std::string>("author"),
                  member<std::string>("channel"), member<std::string>("organization"), member<std::string>("date"),
                  member<std::string>("typeVersion"), member<std::string>("installer"),
                  member<bool>("installOnlyAtStartup"), member<std::string>("path"),
                  member<std::map<std::string, AnyValue>>("elements")});
}

TEST(RegisteredTypes, WrappingASmallRecordMakesItsNameKnown)
{
    const std::pair<const char*, AnyValue> values[] = {{"::zu::RobotRequirement", AnyValue::from(RobotRequirement())},
                                                       {"::zu::MorvoRequirement", AnyValue::from(MorvoRequirement())},
                                                       {"::zu::PackageService", AnyValue::from(PackageService())},
                                                       {"::zu::WebInfo", AnyValue::from(WebInfo())},
                                                       {"::zu::PackageInfo2", AnyValue::from(PackageInfo2())}};
    for (const auto& [name, value] : values)
        EXPECT_EQ(findType(name), value.type()) << name;
}

TEST(RegisteredTypes, TheVariantIsADynamic)
{
    const TypeInterface* type = getType(TypeInfo::of<VX::VXValue>());
    ASSERT_NE(type, nullptr);
    EXPECT_EQ(type->kind(), TypeKind::Dynamic);
}

TEST(RegisteredTypes, TheRequirementsPairHasTwoMembersWithoutNames)
{
    using Requirements = std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>;
    const auto& type = static_cast<const StructTypeInterface&>(*typeOf<Requirements>());
    ASSERT_EQ(type.kind(), TypeKind::Tuple);
    EXPECT_EQ(type.className(), "");
    EXPECT_THAT(type.memberTypes(),
                testing::ElementsAre(typeOf<std::vector<RobotRequirement>>(), typeOf<std::vector<MorvoRequirement>>()));
}

} // namespace zu
