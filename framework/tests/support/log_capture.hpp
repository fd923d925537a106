#pragma once

#include <zu/log.hpp>

#include <string>
#include <tuple>
#include <vector>

namespace zu {

/// Level, category, message, file, function, line.
using Captured = std::tuple<log::Level, std::string, std::string, std::string, std::string, int>;

/// Collects what is written while it lives.
class Capture
{
public:
    Capture()
        : m_id(log::addHandler([this](const log::Record& r) {
              records.emplace_back(r.level, r.category, r.message, r.origin.file, r.origin.function, r.origin.line);
          }))
    {
    }
    ~Capture() { log::removeHandler(m_id); }
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;

    std::vector<Captured> records;

private:
    log::HandlerId m_id;
};

} // namespace zu
