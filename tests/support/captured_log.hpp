#pragma once

#include <zu/log.hpp>

#include <ostream>
#include <string>
#include <vector>

namespace zu::test {

/// A log record without its line number, which changes with every edit of the source.
struct LogLine
{
    log::Level level;
    std::string category;
    std::string file;
    std::string function;
    std::string message;
};

bool operator==(const LogLine& left, const LogLine& right);
std::ostream& operator<<(std::ostream& out, const LogLine& line);

/// Collects the log records written while it lives. The first one silences the default output for good.
class CapturedLog
{
public:
    CapturedLog();
    ~CapturedLog();
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    const std::vector<LogLine>& lines() const { return m_lines; }

private:
    std::vector<LogLine> m_lines;
    log::HandlerId m_id;
};

} // namespace zu::test
