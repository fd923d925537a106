#include "check/tally.hpp"

#include "output.hpp"

namespace zu::cli {

void Tally::add(const SearchFailure& failure)
{
    complain(failure.message);
    ++m_summary.unreadable;
    end(k_inputFailed);
}

void Tally::add(const CheckedManifest& manifest)
{
    if (!manifest.failure.empty()) {
        complain(manifest.complaint());
        ++m_summary.unreadable;
        end(manifest.failureExitCode);
        return;
    }
    if (!manifest.writeFailure.empty()) {
        complain(manifest.writeFailure);
        ++m_summary.unwritten;
        end(k_outputFailed);
    }
    ++m_summary.manifests;
    m_summary.suppressed += manifest.report.suppressed.size();
    (manifest.isFixed ? m_summary.fixed : m_summary.fixable) += manifest.fixes.size();
    for (const authoring::Diagnostic& finding : manifest.report.findings) {
        ++m_summary.findings[finding.severity];
        if (m_failOn && finding.severity >= *m_failOn)
            end(k_findings);
    }
}

} // namespace zu::cli
