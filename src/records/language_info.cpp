#include "records/language_info_p.hpp"
#include "records/value_or_default.hpp"

namespace zu {

LanguageInfo::LanguageInfo() : m_p(std::make_unique<LanguageInfoPrivate>()) {}

LanguageInfo::LanguageInfo(const LanguageInfo& other) : m_p(std::make_unique<LanguageInfoPrivate>(*other.m_p)) {}

LanguageInfo::~LanguageInfo() = default;

LanguageInfo LanguageInfo::operator=(const LanguageInfo& other)
{
    *m_p = *other.m_p;
    return *this;
}

std::string LanguageInfo::path() const { return m_p->path; }

void LanguageInfo::setPath(const std::string& path) { m_p->path = path; }

std::string LanguageInfo::engineName() const { return m_p->engineName; }

void LanguageInfo::setEngineName(const std::string& engineName) { m_p->engineName = engineName; }

std::string LanguageInfo::engineVersion() const { return m_p->engineVersion; }

void LanguageInfo::setEngineVersion(const std::string& engineVersion) { m_p->engineVersion = engineVersion; }

std::string LanguageInfo::locale() const { return m_p->locale; }

void LanguageInfo::setLocale(const std::string& locale) { m_p->locale = locale; }

std::string LanguageInfo::name(const std::string& lang) const
{
    return zupackage::valueOrDefault(m_p->langToName, lang);
}

void LanguageInfo::setName(const std::string& name, const std::string& lang) { m_p->langToName[lang] = name; }

} // namespace zu
