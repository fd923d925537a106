#include "records/append_once.hpp"
#include "records/language_filter.hpp"
#include "records/package_info_p.hpp"

#include <utility>

namespace zu {

PackageInfo::PackageInfo() : m_p(std::make_unique<PackageInfoPrivate>()) {}

PackageInfo::PackageInfo(const PackageInfo& other) : m_p(std::make_unique<PackageInfoPrivate>(*other.m_p)) {}

PackageInfo::~PackageInfo() = default;

PackageInfo PackageInfo::operator=(const PackageInfo& other)
{
    *m_p = *other.m_p;
    return *this;
}

const std::string& PackageInfo::uuid() const { return m_p->uuid; }

void PackageInfo::setUuid(const std::string& uuid) { m_p->uuid = uuid; }

const std::string& PackageInfo::version() const { return m_p->version; }

void PackageInfo::setVersion(const std::string& version) { m_p->version = version; }

const std::string& PackageInfo::author() const { return m_p->author; }

void PackageInfo::setAuthor(const std::string& author) { m_p->author = author; }

const std::string& PackageInfo::channel() const { return m_p->channel; }

void PackageInfo::setChannel(const std::string& channel) { m_p->channel = channel; }

const std::string& PackageInfo::organization() const { return m_p->organization; }

void PackageInfo::setOrganization(const std::string& organization) { m_p->organization = organization; }

const std::string& PackageInfo::date() const { return m_p->date; }

void PackageInfo::setDate(const std::string& date) { m_p->date = date; }

const std::string& PackageInfo::typeVersion() const { return m_p->typeVersion; }

void PackageInfo::setTypeVersion(const std::string& typeVersion) { m_p->typeVersion = typeVersion; }

const std::string& PackageInfo::installer() const { return m_p->installer; }

void PackageInfo::setInstaller(const std::string& installer) { m_p->installer = installer; }

const std::string& PackageInfo::path() const { return m_p->path; }

void PackageInfo::setPath(const std::string& path) { m_p->path = path; }

const bool& PackageInfo::installOnlyAtStartup() const { return m_p->installOnlyAtStartup; }

void PackageInfo::setInstallOnlyAtStartup(const bool& installOnlyAtStartup)
{
    m_p->installOnlyAtStartup = installOnlyAtStartup;
}

const std::string& PackageInfo::name(const std::string& lang) const
{
    static const std::string missing;
    const auto found = m_p->langToName.find(lang);
    return found == m_p->langToName.end() ? missing : found->second;
}

const std::string& PackageInfo::description(const std::string& lang) const
{
    static const std::string missing;
    const auto found = m_p->langToDesc.find(lang);
    return found == m_p->langToDesc.end() ? missing : found->second;
}

void PackageInfo::setName(const std::string& name, const std::string& lang) { m_p->langToName[lang] = name; }

void PackageInfo::setDescription(std::string description, const std::string& lang)
{
    m_p->langToDesc[lang] = std::move(description);
}

const std::map<std::string, std::string>& PackageInfo::names() const { return m_p->langToName; }

const std::map<std::string, std::string>& PackageInfo::descriptions() const { return m_p->langToDesc; }

void PackageInfo::clearNames() { m_p->langToName.clear(); }

const std::list<std::string>& PackageInfo::supportedLanguages() const { return m_p->supportedLanguages; }

void PackageInfo::addSupportedLanguage(const std::string& lang)
{
    zupackage::appendOnce(m_p->supportedLanguages, lang);
}

void PackageInfo::removeSupportedLanguage(const std::string& lang) { m_p->supportedLanguages.remove(lang); }

void PackageInfo::clearSupportedLanguages() { m_p->supportedLanguages.clear(); }

const std::list<std::string>& PackageInfo::descriptionLanguages() const { return m_p->descriptionLanguages; }

void PackageInfo::addDescriptionLanguage(const std::string& lang)
{
    zupackage::appendOnce(m_p->descriptionLanguages, lang);
}

void PackageInfo::removeDescriptionLanguage(const std::string& lang) { m_p->descriptionLanguages.remove(lang); }

void PackageInfo::clearDescriptionLanguages() { m_p->descriptionLanguages.clear(); }

const std::list<BehaviorInfo>& PackageInfo::behaviors() const { return m_p->behaviors; }

std::list<BehaviorInfo>& PackageInfo::behaviors() { return m_p->behaviors; }

void PackageInfo::addBehavior(const BehaviorInfo& behavior) { m_p->behaviors.push_back(behavior); }

void PackageInfo::clearBehaviors() { m_p->behaviors.clear(); }

bool PackageInfo::hasBehavior() const { return !m_p->behaviors.empty(); }

const std::list<DialogInfo>& PackageInfo::dialogs() const { return m_p->dialogs; }

void PackageInfo::addDialog(const DialogInfo& dialog) { m_p->dialogs.push_back(dialog); }

void PackageInfo::clearDialogs() { m_p->dialogs.clear(); }

const std::list<LanguageInfo>& PackageInfo::languages() const { return m_p->languages; }

void PackageInfo::addLanguage(const LanguageInfo& language) { m_p->languages.push_back(language); }

std::list<RobotRequirement>& PackageInfo::robotRequirements() const { return m_p->robotRequirements; }

void PackageInfo::addRobotRequirement(const RobotRequirement& requirement)
{
    m_p->robotRequirements.push_back(requirement);
}

void PackageInfo::clearRobotRequirements() { m_p->robotRequirements.clear(); }

std::list<MorvoRequirement>& PackageInfo::morvoRequirements() const { return m_p->morvoRequirements; }

void PackageInfo::addMorvoRequirement(const MorvoRequirement& requirement)
{
    m_p->morvoRequirements.push_back(requirement);
}

void PackageInfo::clearMorvoRequirements() { m_p->morvoRequirements.clear(); }

const std::list<PackageService>& PackageInfo::services() const { return m_p->services; }

void PackageInfo::addService(const PackageService& service) { m_p->services.push_back(service); }

void PackageInfo::clearServices() { m_p->services.clear(); }

const std::list<std::string>& PackageInfo::executableFiles() const { return m_p->executableFiles; }

void PackageInfo::addExecutableFile(const std::string& path) { m_p->executableFiles.push_back(path); }

void PackageInfo::trimExtraInfo()
{
    zupackage::eraseOtherLanguages(m_p->langToName, m_p->descriptionLanguages);
    zupackage::eraseOtherLanguages(m_p->langToDesc, m_p->descriptionLanguages);
    for (BehaviorInfo& behavior : m_p->behaviors)
        behavior.trimExtraInfo(m_p->descriptionLanguages, m_p->supportedLanguages);
}

} // namespace zu
