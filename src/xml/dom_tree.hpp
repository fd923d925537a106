#pragma once

#include "xml/tree.hpp"

class QDomElement;

namespace zupackage::xml {

/// The tree of an element of Qt's, with the same names and texts; a null one's is an element with an empty name.
Tree treeOf(const QDomElement& element);

} // namespace zupackage::xml
