#pragma once

#include "dump/line_printer.hpp"

namespace zu {
struct BehaviorInfoPrivate;
struct DialogInfoPrivate;
struct LanguageInfoPrivate;
struct PackageInfoPrivate;
} // namespace zu

/// What the operators << print for each record.
namespace zupackage {

void dump(LinePrinter& out, const zu::BehaviorInfoPrivate& record);
void dump(LinePrinter& out, const zu::DialogInfoPrivate& record);
void dump(LinePrinter& out, const zu::LanguageInfoPrivate& record);
void dump(LinePrinter& out, const zu::PackageInfoPrivate& package);

template <class Record>
std::ostream& print(std::ostream& out, const Record& record)
{
    LinePrinter lines(out);
    dump(lines, record);
    return out;
}

} // namespace zupackage
