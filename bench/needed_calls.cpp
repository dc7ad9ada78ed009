#include "bench/needed_calls.h"

#include <array>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

namespace bench {
namespace {

constexpr std::string_view functions[] = {
    "TTF_SetFontSize",
    "TTF_SizeUTF8",
    "TTF_RenderUTF8_Blended",
    "access",
    "IMG_Load",
    "rotozoomSurfaceXY",
    "SDL_ConvertSurfaceFormat",
    "SDL_SetSurfaceAlphaMod",
    "SDL_CreateRGBSurfaceWithFormat",
    "SDL_UpperBlit",
    "SDL_FreeSurface",
    "SDL_MapRGBA",
    "SDL_FillRect",
    "SDL_RWFromConstMem",
    "TTF_OpenFontRW",
    "TTF_CloseFont",
};

struct Needed {
    std::string_view name;
    std::array<int, std::size(functions)> counts; // in the order of the functions
};

// A text is sized, rendered, put down and freed. A picture is looked for, loaded, scaled, converted and put down, and
// leaves three surfaces to free; so four columns are always the same, and dimming costs it one call more. A widget is a
// surface of its own with a slider (bar and block) or a text between arrows on it, put down as a whole. Each line of a
// page is measured once, for its place. The background is a fill and, as every colour but plain white, a pixel value.
constexpr Needed needed[] = {
    // sized, measured, rendered | looked for, loaded, scaled, converted | dimmed | widgets | put down, freed |
    // pixel values, fills | files in memory, fonts opened, closed

    // Title and rows, of which one in five is a heading without a value, and one a slider. A line sizes both fonts, as
    // its label may stand in the bold one: 2 * 6 lines + 10 texts.
    {"vertical5", {22, 6, 10, 2, 2, 2, 2, 0, 1, 13, 17, 1, 1, 0, 0, 0}},
    {"vertical10", {41, 11, 19, 4, 4, 4, 4, 0, 2, 25, 33, 1, 1, 0, 0, 0}},
    {"vertical20", {79, 21, 37, 8, 8, 8, 8, 0, 4, 49, 65, 1, 1, 0, 0, 0}},
    // As the ten rows above; with the selection arrow, three hints, and a rule in its colour.
    {"tolvane", {41, 11, 19, 8, 8, 8, 8, 0, 2, 29, 45, 2, 2, 0, 0, 0}},
    // Pictures: turn arrow, two for each of three texts between arrows and three sliders, enter arrow, button. A text
    // between arrows is measured once more, for the right arrow's place. A slider takes two widgets, as bar and block
    // are dimmed together, their text is not: 3 + 2 * 3. Bright are the turn arrow and both arrows of the selected
    // row: dimmed are four arrows, three sliders, enter arrow and button. Two white lines are filled.
    {"paged", {30, 14, 19, 15, 15, 15, 15, 9, 9, 43, 73, 3, 3, 0, 0, 0}},
    // Nine cells of a picture and a caption, each sized to be measured and to be rendered; the line below the selected
    // one is opaque white, the same pixel in every format.
    {"icons", {18, 9, 9, 9, 9, 9, 9, 0, 0, 18, 36, 1, 2, 0, 0, 0}},
    // Title and two answers, then a message too. The frame is four fills of one pixel value.
    {"popup", {6, 3, 3, 0, 0, 0, 0, 0, 0, 3, 3, 2, 5, 0, 0, 0}},
    {"message", {8, 4, 4, 0, 0, 0, 0, 0, 0, 4, 4, 2, 5, 0, 0, 0}},
    // One text, whose surface tells its size, in a font of its own; what is looked for is the mark of a service that
    // starts anew.
    {"zoom", {1, 0, 1, 1, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1}},
};

const Needed& needed_for(std::string_view name)
{
    for (const Needed& one : needed) {
        if (one.name == name) {
            return one;
        }
    }
    throw std::logic_error("nobody said which calls " + std::string(name) + " needs");
}

} // namespace

std::vector<Difference> differences(std::string_view name, const Record& record)
{
    const Needed& due = needed_for(name);
    std::map<std::string_view, Difference> by_function;
    for (size_t i = 0; i < std::size(functions); i++) {
        by_function[functions[i]].needed = due.counts[i];
    }
    for (const Call& call : record.calls) {
        by_function[call.name].made++;
    }
    std::vector<Difference> different;
    for (const auto& [function, counts] : by_function) {
        if (counts.made != counts.needed) {
            different.push_back({function, counts.made, counts.needed});
        }
    }
    return different;
}

} // namespace bench
