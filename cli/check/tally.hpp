#pragma once

#include "check/report.hpp"
#include "manifest_search.hpp"

namespace zu::cli {

/// Adds up what becomes of the manifests, and what the program ends with. Tells standard error what failed.
class Tally
{
public:
    /// @param failOn the least severity that is a failure; nothing when none is.
    explicit Tally(std::optional<authoring::Severity> failOn) : m_failOn(failOn) {}

    void add(const SearchFailure& failure);
    void add(const CheckedManifest& manifest);
    void end(ExitCode code) { m_exitCode = worse(m_exitCode, code); }

    const CheckSummary& summary() const { return m_summary; }
    ExitCode exitCode() const { return m_exitCode; }

private:
    std::optional<authoring::Severity> m_failOn;
    CheckSummary m_summary;
    ExitCode m_exitCode = k_success;
};

} // namespace zu::cli
