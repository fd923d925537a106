#include "records/package_info_p.hpp"
#include "wire/wire_form.hpp"

namespace zu {

using VX::VXValue;

namespace {

using namespace wire_form;

// The shorter forms come from programs that do not know the last pairs yet.
constexpr int k_pairsWithoutDialogs = 18;
constexpr int k_pairsWithoutDescriptionLanguages = 19;
constexpr int k_pairs = 20;

template <class Record>
VXValue encodedRecords(const std::list<Record>& records)
{
    return arrayFrom(records, [](const Record& record) {
        VXValue value;
        record.toVXValue(value);
        return value;
    });
}

VXValue encodedRecords(const std::list<DialogInfo>& dialogs)
{
    return arrayFrom(dialogs, [](const DialogInfo& dialog) { return dialog.toVXValue(); });
}

VXValue encodedRecords(const std::list<RobotRequirement>& requirements)
{
    return arrayFrom(requirements, [](const RobotRequirement& robot) {
        return arrayOf({encoded(robot.model), encoded(robot.minHeadVersion), encoded(robot.maxHeadVersion),
                        encoded(robot.minBodyVersion), encoded(robot.maxBodyVersion)});
    });
}

VXValue encodedRecords(const std::list<MorvoRequirement>& requirements)
{
    return arrayFrom(requirements, [](const MorvoRequirement& morvo) {
        return arrayOf({encoded(morvo.minVersion), encoded(morvo.maxVersion)});
    });
}

VXValue encodedRecords(const std::list<PackageService>& services)
{
    return arrayFrom(services, [](const PackageService& service) {
        return arrayOf(
            {encoded(service.execStart), encoded(service.name), encoded(service.autoRun), encoded(service.envVars)});
    });
}

template <class Record>
void decodeRecords(const VXValue& value, std::list<Record>& records)
{
    requireArray(value);
    for (int i = 0; i < value.size(); ++i)
        records.emplace_back(value[i]);
}

RobotRequirement decodedRobotRequirement(const VXValue& value)
{
    RobotRequirement robot;
    decode(value[0], robot.model);
    decode(value[1], robot.minHeadVersion);
    decode(value[2], robot.maxHeadVersion);
    decode(value[3], robot.minBodyVersion);
    decode(value[4], robot.maxBodyVersion);
    return robot;
}

MorvoRequirement decodedMorvoRequirement(const VXValue& value)
{
    MorvoRequirement morvo;
    decode(value[0], morvo.minVersion);
    decode(value[1], morvo.maxVersion);
    return morvo;
}

PackageService decodedService(const VXValue& value)
{
    PackageService service;
    decode(value[0], service.execStart);
    decode(value[1], service.name);
    decode(value[2], service.autoRun);
    decode(value[3], service.envVars);
    return service;
}

void decodeLists(const VXValue& value, PackageInfoPrivate& record)
{
    decode(pairValue(value, 8), record.langToName);
    decode(pairValue(value, 9), record.langToDesc);
    decode(pairValue(value, 10), record.supportedLanguages);
    decodeRecords(pairValue(value, 11), record.behaviors);
    decodeRecords(pairValue(value, 12), record.languages);
    decode(pairValue(value, 13), record.installer);
    decodeEach(pairValue(value, 14), record.robotRequirements, decodedRobotRequirement);
    decodeEach(pairValue(value, 15), record.morvoRequirements, decodedMorvoRequirement);
    decodeEach(pairValue(value, 16), record.services, decodedService);
    decode(pairValue(value, 17), record.executableFiles);
    if (value.size() >= k_pairsWithoutDescriptionLanguages)
        decodeRecords(pairValue(value, 18), record.dialogs);
    if (value.size() == k_pairs)
        decode(pairValue(value, 19), record.descriptionLanguages);
}

} // namespace

PackageInfo::PackageInfo(const VXValue& value) : PackageInfo()
{
    if (value.type() != VXValue::Type::Array || value.size() < k_pairsWithoutDialogs || value.size() > k_pairs)
        return;
    decode(pairValue(value, 0), m_p->uuid);
    decode(pairValue(value, 1), m_p->path);
    decode(pairValue(value, 2), m_p->version);
    decode(pairValue(value, 3), m_p->channel);
    decode(pairValue(value, 4), m_p->author);
    decode(pairValue(value, 5), m_p->organization);
    decode(pairValue(value, 6), m_p->date);
    decode(pairValue(value, 7), m_p->typeVersion);
    decodeLists(value, *m_p);
}

// Not const: callers are built against this signature.
void PackageInfo::toVXValue(VXValue& value)
{
    if (m_p->uuid.empty())
        return value.resizeArray(0);
    store(arrayOf({pairOf("uuid", encoded(m_p->uuid)),
                   pairOf("path", encoded(m_p->path)),
                   pairOf("version", encoded(m_p->version)),
                   pairOf("channel", encoded(m_p->channel)),
                   pairOf("author", encoded(m_p->author)),
                   pairOf("organization", encoded(m_p->organization)),
                   pairOf("date", encoded(m_p->date)),
                   pairOf("typeVersion", encoded(m_p->typeVersion)),
                   pairOf("names", encoded(m_p->langToName)),
                   pairOf("descriptions", encoded(m_p->langToDesc)),
                   pairOf("supportedLanguages", encoded(m_p->supportedLanguages)),
                   pairOf("behaviors", encodedRecords(m_p->behaviors)),
                   pairOf("languages", encodedRecords(m_p->languages)),
                   pairOf("installer", encoded(m_p->installer)),
                   pairOf("robotRequirements", encodedRecords(m_p->robotRequirements)),
                   pairOf("morvoRequirements", encodedRecords(m_p->morvoRequirements)),
                   pairOf("services", encodedRecords(m_p->services)),
                   pairOf("executableFiles", encoded(m_p->executableFiles)),
                   pairOf("dialogs", encodedRecords(m_p->dialogs)),
                   pairOf("descriptionLanguages", encoded(m_p->descriptionLanguages))}),
          value);
}

} // namespace zu
