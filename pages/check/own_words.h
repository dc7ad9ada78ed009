// Texts that the menu asks for by itself, on whatever page.
#pragma once

#include "menu/core/words.h"

namespace pages {

inline constexpr const char* own_words[] = {OSD_WORD_STATIC_IP, OSD_WORD_DHCP_IP, OSD_WORD_AUTO_MODE,
                                            OSD_WORD_CONFIRM,   OSD_WORD_FINISH,  OSD_WORD_LOADING};

} // namespace pages
