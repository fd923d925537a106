#include "records/dialog_info_p.hpp"
#include "records/value_or_default.hpp"

namespace zu {

DialogInfo::DialogInfo() : m_p(std::make_unique<DialogInfoPrivate>()) {}

DialogInfo::DialogInfo(const DialogInfo& other) : m_p(std::make_unique<DialogInfoPrivate>(*other.m_p)) {}

DialogInfo::~DialogInfo() = default;

DialogInfo DialogInfo::operator=(const DialogInfo& other)
{
    *m_p = *other.m_p;
    return *this;
}

const std::string& DialogInfo::topicName() const { return m_p->topicName; }

void DialogInfo::setTopicName(const std::string& topicName) { m_p->topicName = topicName; }

const std::string& DialogInfo::typeVersion() const { return m_p->typeVersion; }

void DialogInfo::setTypeVersion(const std::string& typeVersion) { m_p->typeVersion = typeVersion; }

const std::map<std::string, std::string>& DialogInfo::topics() const { return m_p->topics; }

std::string DialogInfo::topic(const std::string& lang) const { return zupackage::valueOrDefault(m_p->topics, lang); }

void DialogInfo::setTopic(const std::string& lang, const std::string& path) { m_p->topics[lang] = path; }

bool DialogInfo::removeTopic(const std::string& lang) { return m_p->topics.erase(lang) == 1; }

bool operator==(const DialogInfo& left, const DialogInfo& right)
{
    return left.topicName() == right.topicName() && left.typeVersion() == right.typeVersion() &&
           left.topics() == right.topics();
}

bool operator!=(const DialogInfo& left, const DialogInfo& right) { return !(left == right); }

} // namespace zu
