// When attributes are needed, and when they do nothing.
#pragma once

#include "pages/check/attributes.h"
#include "pages/data/page_file.h"

namespace pages {

/// Whether the menu looks at an attribute of an element of this kind and layout.
bool is_read(const Element& element, const AttributeUse& use);

} // namespace pages
