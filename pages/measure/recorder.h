// Records what the menu draws instead of drawing it: where each text, picture and filled rectangle lies.
#pragma once

#include <SDL_ttf.h>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "pages/menu/menu.h"

namespace pages {

enum class MarkKind { Text, Picture, Fill };

struct Mark {
    MarkKind kind;
    std::string name;           ///< the text, or the picture's name
    const char* source;         ///< where the text stood in memory, which tells whose it is
    SDL_Rect rect;              ///< on the menu, whole
    SDL_Rect ink;               ///< what letters fill of it; the whole of anything else
    SDL_Rect seen;              ///< what is left of it where it was cut on the way; no width for nothing
    SDL_Rect frame{0, 0, 0, 0}; ///< of the widget that it is part of; no width without one
};

inline int right_of(const SDL_Rect& rect) { return rect.x + rect.w; }
inline int bottom_of(const SDL_Rect& rect) { return rect.y + rect.h; }
inline bool overlap(const SDL_Rect& a, const SDL_Rect& b) { return SDL_HasIntersection(&a, &b) == SDL_TRUE; }

/// Sizes of texts, by SDL_ttf. Each size of a font file is a font of its own, which keeps its letters.
class TextSizes {
public:
    struct Size {
        int w;
        int h;
        int top;    ///< where the highest letter begins
        int bottom; ///< and the lowest ends
    };
    Size of(const std::string& file, int font_size, const char* text);

private:
    static Size measure(TTF_Font* font, const char* text);

    struct Close {
        void operator()(TTF_Font* font) const;
    };
    std::map<std::pair<std::string, int>, std::unique_ptr<TTF_Font, Close>> fonts_;
    std::map<std::pair<TTF_Font*, std::string>, Size> sizes_;
};

/// One at a time, while a menu lives. What is drawn beside draw() is drawn for real.
class Recorder {
public:
    Recorder();
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// Draws the page on top into marks, in the order in which they were made.
    std::vector<Mark> draw(Menu& menu);

    /// The library's calls while it draws.
    SDL_Surface* text(TTF_Font* font, const char* words);
    TextSizes::Size size(TTF_Font* font, const char* words);
    int size(TTF_Font* font, const char* words, int* w, int* h);
    SDL_Surface* blank(int w, int h, std::uint32_t format);
    SDL_Surface* picture(const SDL_Surface* source, int w, int h);
    SDL_Surface* copy(const SDL_Surface* source, std::uint32_t format);
    void blit(const SDL_Surface* source, const SDL_Surface* target, SDL_Rect* place);
    void fill(const SDL_Surface* target, const SDL_Rect& place);
    void forget(const SDL_Surface* surface) { sheets_.erase(surface); }

private:
    TextSizes sizes_;
    std::unordered_map<const SDL_Surface*, std::vector<Mark>> sheets_; ///< what lies on each surface
};

} // namespace pages
