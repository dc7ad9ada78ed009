// The yardstick: exactly the calls of SDL and its companions that a picture needs, and nothing around them. A plan
// holds them as plain steps; places, sizes, texts and paths are worked out beforehand.
#pragma once

#include <SDL.h>
#include <SDL_ttf.h>
#include <pthread.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "osd_canvas.h"

namespace bench {

struct Step;

struct SizeFont {
    TTF_Font* font;
    int size;
};

struct Measure {
    TTF_Font* font;
    std::string text;
};

struct Text {
    TTF_Font* font;
    int size;
    SDL_Color color;
    std::string text;
    SDL_Rect place;
};

// A text in a font that is opened for it alone.
struct LoneText {
    std::string font_path;
    int size;
    SDL_Color color;
    std::string text;
    SDL_Rect place;
};

struct Picture {
    std::string path;
    SDL_Rect place;
    bool is_dim;
};

// Rectangles of one colour. Opaque white is the same pixel in every format; without a colour no pixel is asked for.
struct Fill {
    std::optional<SDL_Color> color;
    std::vector<SDL_Rect> places;
};

// Steps on a surface of their own, which is put onto the picture as a whole.
struct Widget {
    SDL_Rect place;
    bool is_dim;
    std::vector<Step> parts;
};

// Looks whether a file is there.
struct FileTest {
    std::string path;
};

struct Step {
    std::variant<SizeFont, Measure, Text, LoneText, Picture, Fill, Widget, FileTest> what;
};

struct Plan {
    SDL_Surface* surface;
    tagOSD_MENU_CANVAS_S* canvas; // pushed when all is drawn
    pthread_mutex_t* lock;        // held until then; null where the library takes none
    std::vector<Step> steps;
};

// Draws the plan and pushes it.
void draw_bare(const Plan& plan);

} // namespace bench
