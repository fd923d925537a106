#pragma once

namespace zupackage {

/// Makes the classes with a private record, their records and the variant known to the host framework's type system.
/// Done when the library is loaded; what is known already stays as it is.
/// @return whether this call made all of them known.
bool registerTypes();

} // namespace zupackage
