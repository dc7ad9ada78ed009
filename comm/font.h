// Fonts, read through a mapping of their file: SDL_ttf seeks and reads a file several thousand times for one page.
#pragma once

#include <SDL_ttf.h>
#include <memory>

#include "comm/guard.h"

// Closes a font that may be one of several, each used by its own thread.
void osdFontClose(TTF_Font* pstFont);

using OSD_FONT_PTR = std::unique_ptr<TTF_Font, OSD_FREE_WITH<&osdFontClose>>;

// The regular font in size 32; null when it is missing, with a line in the log.
OSD_FONT_PTR osdFontRegular();

// The bold and the traditional Chinese font; the regular one in place of a missing one.
OSD_FONT_PTR osdFontBold();
OSD_FONT_PTR osdFontTraditionalChinese();

// Sets the size of a font in the name of pcFunc; false with a line in the log.
bool osdFontSetSize(TTF_Font* pstFont, int s32Size, const char* pcFunc);
