// A prompt, a zoom ratio and the refresh of a channel beside the menu, each on a thread of its own, under the thread
// sanitizer: it reports what two threads use without order. SDL and SDL_ttf aren't compiled with it, so functions that
// stand before theirs touch in plain sight what those use inside.
#include <SDL.h>
#include <SDL_ttf.h>
#include <dlfcn.h>

#include <csignal>
#include <thread>
#include <vector>

#include "osd_menu.h"
#include "osd_prompt.h"
#include "tests/build/host/services.h"

#define REAL(Name) reinterpret_cast<decltype(&Name)>(dlsym(RTLD_NEXT, #Name))

namespace {

constexpr int ROUNDS = 30;
int fontList = 0; // SDL_ttf hangs all open fonts on one list

void touch(void* pixels)
{
    auto* first = static_cast<volatile unsigned char*>(pixels);
    *first = *first;
}

void keys()
{
    OSD_MENU_HandleKeyDown();
    OSD_MENU_HandleKeyRight();
}

void redraw() { OSD_MENU_RenderCanvas(); }
void refreshChannel() { OSD_MENU_UpdateCanvas(1, nullptr); }

void prompt()
{
    static OSD_PROMPT_HANDLER_S handler;
    char text[] = "Saved";
    const OSD_PROMPT_CFG_S look = {40, 0, {255, 255, 255, 255}, {128, 0, 0, 0}, 0.5, 0.1};
    expect("OSD_PROMPT_CreateEx", OSD_PROMPT_CreateEx(&handler, look, text), 0);
    expect("OSD_PROMPT_UpdateTextEx", OSD_PROMPT_UpdateTextEx(&handler, look, text), 0);
    OSD_PROMPT_DestroyEx(&handler);
}

void zoomRatio()
{
    expect("OSD_PROMPT_ShowZoomRatio", OSD_PROMPT_ShowZoomRatio(2.5F), 0);
    OSD_PROMPT_HideZoomRatio();
}

void beside(const std::vector<void (*)()>& steps)
{
    std::vector<std::thread> threads;
    for (const auto step : steps) {
        threads.emplace_back([step] {
            for (int round = 0; round < ROUNDS; round++) {
                step();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace

extern "C" {

// SDL shares pixel formats between surfaces and guards them with locks of its own, which the sanitizer can't see.
const char* __tsan_default_suppressions() { return "called_from_lib:libSDL2-2.0.so"; }

TTF_Font* TTF_OpenFontRW(SDL_RWops* source, int freeSource, int size)
{
    fontList++;
    return REAL(TTF_OpenFontRW)(source, freeSource, size);
}

void TTF_CloseFont(TTF_Font* font)
{
    fontList--;
    REAL(TTF_CloseFont)(font);
}

int SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* part, SDL_Surface* target, SDL_Rect* place)
{
    touch(target->pixels);
    return REAL(SDL_UpperBlit)(source, part, target, place);
}

} // extern "C"

int main()
{
    g_pushed = [](const tagOSD_MENU_CANVAS_S& canvas) { touch(canvas.stMem.pvVirAddr); }; // whole only inside the lock
    expect("OSD_MENU_InitSdkRes", startMenu(), 0);
    const bool untouched = std::signal(SIGINT, SIG_DFL) == SIG_DFL && std::signal(SIGTERM, SIG_DFL) == SIG_DFL;
    expect("the host's SIGINT and SIGTERM", untouched, 1);
    OSD_MENU_OpenMenu();
    beside({keys, refreshChannel, prompt, zoomRatio});
    beside({redraw, redraw, refreshChannel, prompt, zoomRatio});
    expect("open fonts", fontList, 2);
    expect("blocks of media memory", g_blocks, 2);
    return g_failures != 0;
}
