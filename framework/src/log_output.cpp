#include <zu/log.hpp>

#include <spdlog/logger.h>
#include <spdlog/sinks/stdout_sinks.h>

#include <memory>

namespace zu::log {

namespace {

void appendEscaped(std::string& line, char control)
{
    static constexpr char k_digits[] = "0123456789abcdef";
    switch (control) {
    case '\n':
        line += "\\n";
        break;
    case '\r':
        line += "\\r";
        break;
    default:
        line += "\\x";
        line += k_digits[(static_cast<unsigned char>(control) >> 4) & 0xf];
        line += k_digits[static_cast<unsigned char>(control) & 0xf];
    }
}

bool isControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t') || byte == 0x7f;
}

std::string lineOf(const Record& record)
{
    std::string line = "[";
    line.append(levelName(record.level)).append("] ").append(record.category).append(": ");
    line.reserve(line.size() + record.message.size());
    for (const char c : record.message) {
        if (isControl(c))
            appendEscaped(line, c);
        else
            line += c;
    }
    return line;
}

} // namespace

Handler standardErrorHandler()
{
    // The line is composed here, because only here the level keeps the name that it has everywhere else.
    auto logger = std::make_shared<spdlog::logger>("zu", std::make_shared<spdlog::sinks::stderr_sink_mt>());
    logger->set_pattern("%v");
    return [logger](const Record& record) { logger->log(spdlog::level::critical, lineOf(record)); };
}

} // namespace zu::log
