#include "bench/needed_calls.h"

#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace bench {
namespace {

// A text is sized, rendered, put down and freed. A picture is looked for, loaded, scaled, converted and put down, and
// leaves three surfaces to free. A widget is a surface of its own with a slider (bar and block) or a text between arrows
// on it, put down as a whole. Each line of a page is measured once, for its place. The background is a fill, and its
// colour, like every one that isn't known to be plain white, a pixel value.
//
// vertical  Title and rows, of which one in five is a heading without a value, and one a slider. A line sizes both
//           fonts, as its label may stand in the bold one: 5 rows take 2 * 6 + 10 sizings.
// tolvane   As the ten rows of the vertical list, with the selection arrow, three hints, and a rule in its own colour.
// paged     Pictures are the turn arrow, two for each of three texts between arrows and three sliders, the enter arrow
//           and the button's. A text between arrows is measured once more, for the right arrow's place. A slider takes
//           two widgets, as bar and block are dimmed together, but not their text. The selected row and the turn arrow
//           are bright, so four arrows, three sliders, enter arrow and button are dimmed. Two white lines are filled.
// icons     Nine cells of a picture and a caption, which is sized to be measured and again to be rendered. The line
//           below the selected one is filled with opaque white, the same pixel in every format.
// popup     Title and two answers; "message" has a text more. The frame is four fills with one pixel value.
// zoom      One text, whose surface tells its size, in a font of its own. What is looked for is the mark of a media
//           service that starts anew.
constexpr char table[] =
    R"(                               vertical5 vertical10 vertical20 tolvane paged icons popup message zoom
    TTF_SetFontSize                       22         41         79      41    30    18     6       8    1
    TTF_SizeUTF8                           6         11         21      11    14     9     3       4    0
    TTF_RenderUTF8_Blended                10         19         37      19    19     9     3       4    1
    access                                 2          4          8       8    15     9     0       0    1
    IMG_Load                               2          4          8       8    15     9     0       0    0
    rotozoomSurfaceXY                      2          4          8       8    15     9     0       0    0
    SDL_ConvertSurfaceFormat               2          4          8       8    15     9     0       0    0
    SDL_SetSurfaceAlphaMod                 0          0          0       0     9     0     0       0    0
    SDL_CreateRGBSurfaceWithFormat         1          2          4       2     9     0     0       0    0
    SDL_UpperBlit                         13         25         49      29    43    18     3       4    1
    SDL_FreeSurface                       17         33         65      45    73    36     3       4    1
    SDL_MapRGBA                            1          1          1       2     3     1     2       2    1
    SDL_FillRect                           1          1          1       2     3     2     5       5    1
    SDL_RWFromConstMem                     0          0          0       0     0     0     0       0    1
    TTF_OpenFontRW                         0          0          0       0     0     0     0       0    1
    TTF_CloseFont                          0          0          0       0     0     0     0       0    1)";

using Counts = std::map<std::string, int, std::less<>>; // by function

// The column of a case.
Counts needed_for(const std::string& name)
{
    std::istringstream lines(table);
    std::string line;
    std::getline(lines, line);
    std::istringstream heads(line);
    std::string head;
    int column = 0;
    while (head != name) {
        if (!(heads >> head)) {
            throw std::logic_error(name + ": nobody said which calls it needs");
        }
        column++;
    }
    Counts counts;
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string function;
        words >> function;
        for (int i = 0; i < column; i++) {
            words >> counts[function];
        }
    }
    return counts;
}

} // namespace

std::vector<Difference> differences(const std::string& name, const Record& record)
{
    const Counts needed = needed_for(name);
    Counts more;
    for (const Call& call : record.calls) {
        more[std::string(call.name)]++;
    }
    for (const auto& [function, count] : needed) {
        more[function] -= count;
    }
    std::vector<Difference> different;
    for (const auto& [function, count] : more) {
        if (count != 0) {
            different.push_back({function, count});
        }
    }
    return different;
}

} // namespace bench
