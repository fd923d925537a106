#pragma once

#include "check/checked_manifest.hpp"
#include "manifest_search.hpp"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zu::cli {

/// What a check of several manifests amounts to.
struct CheckSummary
{
    std::size_t manifests = 0;  ///< that were checked
    std::size_t unreadable = 0; ///< manifests that could not be checked, and failures of the search for them
    std::size_t unwritten = 0;  ///< manifests whose fixes could not be written
    std::map<authoring::Severity, std::size_t> findings;
    std::size_t suppressed = 0;
    std::size_t fixed = 0;   ///< fixes that were made
    std::size_t fixable = 0; ///< that would be made if it were no dry run
};

/// Writes down what was found, manifest after manifest. What it gives is to be written to standard output as it comes.
class CheckReporter
{
public:
    CheckReporter() = default;
    virtual ~CheckReporter() = default;
    CheckReporter(const CheckReporter&) = delete;
    CheckReporter& operator=(const CheckReporter&) = delete;

    /// @return what can be written already.
    virtual std::string add(const SearchFailure& failure) = 0;
    /// @return what can be written already.
    virtual std::string add(const CheckedManifest& manifest) = 0;
    /// @return the rest.
    virtual std::string finish(const CheckSummary& summary) = 0;
};

/// How the text report looks.
struct TextStyle
{
    bool showsSource = false; ///< the line of the manifest below each finding, with a caret
    bool isColoured = false;
    bool showsSuppressed = false;
};

std::unique_ptr<CheckReporter> textReporter(const TextStyle& style);
std::unique_ptr<CheckReporter> githubReporter(bool showsSuppressed);
std::unique_ptr<CheckReporter> junitReporter(bool showsSuppressed);
/// These two always hold what is suppressed, marked as such.
/// @{
std::unique_ptr<CheckReporter> jsonReporter();
std::unique_ptr<CheckReporter> sarifReporter();
/// @}

/// "2 errors, 1 warning in 3 manifests", for people.
std::string wordsOf(const CheckSummary& summary);

} // namespace zu::cli
