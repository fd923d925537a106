#include "escaped.hpp"

#include <zu/log.hpp>

#include <spdlog/logger.h>
#include <spdlog/sinks/stdout_sinks.h>

#include <memory>

namespace zu::log {

namespace {

std::string lineOf(const Record& record)
{
    std::string line = "[";
    line.append(levelName(record.level)).append("] ").append(record.category).append(": ");
    detail::appendEscaped(line, record.message);
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
