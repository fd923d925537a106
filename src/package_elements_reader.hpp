#pragma once

#include <zupackage/package_info.hpp>

class QDomNode;

namespace zu {

/// Reads a "service" element into a fresh service. The first value of a repeated "envVar" name stays, with a warning
/// for each repetition.
void readService(const QDomNode& element, PackageService& service);

RobotRequirement readRobotRequirement(const QDomNode& element);
MorvoRequirement readMorvoRequirement(const QDomNode& element);

} // namespace zu
