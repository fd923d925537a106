#pragma once

#include <zupackage/authoring/rule.hpp>

#include <string>

namespace zu::cli {

/// All rules, one a line, with their severities and summaries.
std::string ruleList();

/// What a rule is about, with its examples.
std::string explanationOf(const authoring::Rule& rule);

} // namespace zu::cli
