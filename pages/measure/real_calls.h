// The functions of SDL and its companions that the library calls: the linker sends its calls to a recorder while one
// records, and to the real functions else.
#pragma once

#include <SDL_ttf.h>
#include <string>

namespace pages {
class Recorder;
}

namespace pages::real {

/// To whom the calls go; null for the real functions.
void set_recorder(Recorder* recorder);

/// What the library made of a font.
struct FontUse {
    std::string file;
    int size = 0;
};
const FontUse& use_of(TTF_Font* font);

/// Fonts that the library opens for a row stay open while it is recorded.
void close_kept_fonts();

int TTF_SizeUTF8(TTF_Font* font, const char* text, int* w, int* h);
void TTF_CloseFont(TTF_Font* font);

} // namespace pages::real
