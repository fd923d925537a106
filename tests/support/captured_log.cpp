#include "support/captured_log.hpp"

#include <gtest/gtest.h>

#include <tuple>

namespace zu::test {

bool operator==(const LogLine& left, const LogLine& right)
{
    return std::tie(left.level, left.category, left.file, left.function, left.message) ==
           std::tie(right.level, right.category, right.file, right.function, right.message);
}

std::ostream& operator<<(std::ostream& out, const LogLine& line)
{
    return out << '[' << log::levelName(line.level) << "] " << line.category << " (" << line.file << ", "
               << line.function << "): " << line.message;
}

CapturedLog::CapturedLog()
    : m_id(log::addHandler([this](const log::Record& record) {
          EXPECT_GT(record.origin.line, 0);
          m_lines.push_back({record.level, std::string(record.category), record.origin.file, record.origin.function,
                             std::string(record.message)});
      }))
{
    static const bool silenced = log::removeHandler(log::k_defaultHandler);
    static_cast<void>(silenced);
}

CapturedLog::~CapturedLog() { log::removeHandler(m_id); }

} // namespace zu::test
