#include "records/append_once.hpp"
#include "records/behavior_info_p.hpp"
#include "records/keyed_texts.hpp"
#include "records/language_filter.hpp"
#include "records/permissions.hpp"
#include "records/value_or_default.hpp"

#include <algorithm>

namespace zu {

const std::string BehaviorInfo::k_permCanRunInSleep = "canRunInSleep";
const std::string BehaviorInfo::k_permCanRunOnPod = "canRunOnPod";
const std::string BehaviorInfo::k_permCanSitDown = "canSitDown";
const std::string BehaviorInfo::k_permCanStandUp = "canStandUp";

BehaviorInfo::BehaviorInfo() : m_p(std::make_unique<BehaviorInfoPrivate>()) {}

BehaviorInfo::BehaviorInfo(const BehaviorInfo& other) : m_p(std::make_unique<BehaviorInfoPrivate>(*other.m_p)) {}

BehaviorInfo::~BehaviorInfo() = default;

BehaviorInfo BehaviorInfo::operator=(const BehaviorInfo& other)
{
    *m_p = *other.m_p;
    return *this;
}

std::string BehaviorInfo::path() const { return m_p->path; }

void BehaviorInfo::setPath(const std::string& path) { m_p->path = path; }

std::string BehaviorInfo::nature() const { return m_p->nature; }

void BehaviorInfo::setNature(const std::string& nature) { m_p->nature = nature; }

const std::string& BehaviorInfo::natureInteractive()
{
    static const std::string nature = "interactive";
    return nature;
}

const std::string& BehaviorInfo::natureSolitary()
{
    static const std::string nature = "solitary";
    return nature;
}

bool BehaviorInfo::isUserRequestable() const { return m_p->userRequestable; }

void BehaviorInfo::setUserRequestable(bool requestable) { m_p->userRequestable = requestable; }

const std::map<std::string, std::string>& BehaviorInfo::names() const { return m_p->langToName; }

const std::map<std::string, std::string>& BehaviorInfo::descriptions() const { return m_p->langToDesc; }

std::string BehaviorInfo::name(const std::string& lang) const
{
    return zupackage::valueOrDefault(m_p->langToName, lang);
}

std::string BehaviorInfo::description(const std::string& lang) const
{
    return zupackage::valueOrDefault(m_p->langToDesc, lang);
}

void BehaviorInfo::setName(const std::string& name, const std::string& lang) { m_p->langToName[lang] = name; }

void BehaviorInfo::setDescription(const std::string& description, const std::string& lang)
{
    m_p->langToDesc[lang] = description;
}

std::list<std::string> BehaviorInfo::tags(const std::string& lang) const
{
    return zupackage::valueOrDefault(m_p->langToTags, lang);
}

const std::map<std::string, std::list<std::string>>& BehaviorInfo::languagesToTags() const { return m_p->langToTags; }

void BehaviorInfo::addTag(const std::string& tag, const std::string& lang) { m_p->langToTags[lang].push_back(tag); }

void BehaviorInfo::insertTag(const std::string& tag, const std::string& lang, int position)
{
    zupackage::keyed_texts::insert(m_p->langToTags, tag, lang, position);
}

bool BehaviorInfo::removeTag(const std::string& tag, const std::string& lang)
{
    return zupackage::keyed_texts::remove(m_p->langToTags, tag, lang);
}

bool BehaviorInfo::updateTag(const std::string& oldTag, const std::string& newTag, const std::string& lang)
{
    return zupackage::keyed_texts::update(m_p->langToTags, oldTag, newTag, lang);
}

std::list<std::string> BehaviorInfo::triggerSentences(const std::string& lang) const
{
    return m_p->langToTriggerSentences[lang];
}

const std::map<std::string, std::list<std::string>>& BehaviorInfo::languagesToTriggerSentences() const
{
    return m_p->langToTriggerSentences;
}

void BehaviorInfo::addTriggerSentence(const std::string& sentence, const std::string& lang)
{
    m_p->langToTriggerSentences[lang].push_back(sentence);
}

void BehaviorInfo::insertTriggerSentence(const std::string& sentence, const std::string& lang, int position)
{
    zupackage::keyed_texts::insert(m_p->langToTriggerSentences, sentence, lang, position);
}

bool BehaviorInfo::removeTriggerSentence(const std::string& sentence, const std::string& lang)
{
    return zupackage::keyed_texts::remove(m_p->langToTriggerSentences, sentence, lang);
}

bool BehaviorInfo::updateTriggerSentence(const std::string& oldSentence, const std::string& newSentence,
                                         const std::string& lang)
{
    return zupackage::keyed_texts::update(m_p->langToTriggerSentences, oldSentence, newSentence, lang);
}

std::list<std::string> BehaviorInfo::loadingResponses(const std::string& lang) const
{
    return m_p->langToLoadingResponses[lang];
}

const std::map<std::string, std::list<std::string>>& BehaviorInfo::languagesToLoadingResponses() const
{
    return m_p->langToLoadingResponses;
}

void BehaviorInfo::addLoadingResponse(const std::string& response, const std::string& lang)
{
    m_p->langToLoadingResponses[lang].push_back(response);
}

void BehaviorInfo::insertLoadingResponse(const std::string& response, const std::string& lang, int position)
{
    zupackage::keyed_texts::insert(m_p->langToLoadingResponses, response, lang, position);
}

bool BehaviorInfo::removeLoadingResponse(const std::string& response, const std::string& lang)
{
    return zupackage::keyed_texts::remove(m_p->langToLoadingResponses, response, lang);
}

bool BehaviorInfo::updateLoadingResponse(const std::string& oldResponse, const std::string& newResponse,
                                         const std::string& lang)
{
    return zupackage::keyed_texts::update(m_p->langToLoadingResponses, oldResponse, newResponse, lang);
}

std::list<std::string> BehaviorInfo::conditions(const std::string& purpose) const
{
    return m_p->purposeToCondition[purpose];
}

void BehaviorInfo::addCondition(const std::string& condition, const std::string& purpose)
{
    m_p->purposeToCondition[purpose].push_back(condition);
}

void BehaviorInfo::insertCondition(const std::string& condition, const std::string& purpose, int position)
{
    zupackage::keyed_texts::insert(m_p->purposeToCondition, condition, purpose, position);
}

bool BehaviorInfo::removeCondition(const std::string& condition, const std::string& purpose)
{
    return zupackage::keyed_texts::remove(m_p->purposeToCondition, condition, purpose);
}

bool BehaviorInfo::updateCondition(const std::string& oldCondition, const std::string& newCondition,
                                   const std::string& purpose)
{
    return zupackage::keyed_texts::update(m_p->purposeToCondition, oldCondition, newCondition, purpose);
}

std::list<std::string> BehaviorInfo::permissions() const { return m_p->permissions; }

bool BehaviorInfo::addPermission(const std::string& permission)
{
    return zupackage::addPermission(m_p->permissions, permission);
}

bool BehaviorInfo::hasPermission(const std::string& permission) const
{
    return zupackage::contains(m_p->permissions, permission);
}

bool BehaviorInfo::removePermission(const std::string& permission)
{
    const auto found = std::find(m_p->permissions.begin(), m_p->permissions.end(), permission);
    if (found == m_p->permissions.end())
        return false;
    m_p->permissions.erase(found);
    return true;
}

const std::list<std::string>& BehaviorInfo::supportedPermissions()
{
    static const std::list<std::string> permissions = {k_permCanRunInSleep, k_permCanRunOnPod, k_permCanStandUp,
                                                       k_permCanSitDown};
    return permissions;
}

// By value: callers are built against this signature.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void BehaviorInfo::trimExtraInfo(std::list<std::string> descriptionLanguages, std::list<std::string> supportedLanguages)
{
    zupackage::eraseOtherLanguages(m_p->langToName, descriptionLanguages);
    zupackage::eraseOtherLanguages(m_p->langToDesc, descriptionLanguages);
    zupackage::eraseOtherLanguages(m_p->langToTags, supportedLanguages);
    zupackage::eraseOtherLanguages(m_p->langToLoadingResponses, supportedLanguages);
    zupackage::eraseOtherLanguages(m_p->langToTriggerSentences, supportedLanguages);
}

} // namespace zu
