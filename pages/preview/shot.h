// What there is to see of a page: the page itself, what each option brings, and a question over the page that asks it.
#pragma once

#include <string>
#include <vector>

#include "pages/preview/canvas.h"
#include "pages/preview/selection.h"

namespace pages {

/// An option that holds items, or stands beside one that does.
struct Choice {
    SettingId setting;
    std::string option;
};

struct Shot {
    std::string page;
    std::string asking;          ///< page below, on which a question is asked; else empty
    std::vector<Choice> choices; ///< from the outermost item on, on the page or on the asking one
    std::string file;            ///< name for a picture of it, without ending
};

/// "exposure: ExposureMode = Manual", "confirm_exposure over exposure"
std::string label_of(const Shot& shot);

/// Pages by name, each first with the settings' defaults.
std::vector<Shot> shots_of(const ResourceFolder& folder, const Selection& selection);

/// Draws it over the landscape.
Canvas picture_of(Menu& menu, const Shot& shot);

} // namespace pages
