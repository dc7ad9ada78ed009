// The settings behind items.
#pragma once

#include "pages/data/resource_folder.h"

namespace pages {

/// The setting whose value an item shows; null for none.
const Setting* setting_of(const ResourceFolder& folder, const Element& item);

} // namespace pages
