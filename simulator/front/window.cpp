#include "simulator/front/window.h"

#include <SDL.h>
#include <memory>
#include <string>

#include "simulator/base/data.h"
#include "simulator/host/keys.h"

namespace sim {
namespace {

constexpr Uint32 frame_ms = 40;

struct Destroy {
    void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    void operator()(SDL_Renderer* renderer) const { SDL_DestroyRenderer(renderer); }
    void operator()(SDL_Texture* texture) const { SDL_DestroyTexture(texture); }
};

/// The video part of SDL, which the menu itself does without.
class VideoSystem {
public:
    VideoSystem() : started_(SDL_InitSubSystem(SDL_INIT_VIDEO) == 0) {}
    ~VideoSystem()
    {
        if (started_) {
            SDL_QuitSubSystem(SDL_INIT_VIDEO);
        }
    }
    /// SDL's last resort is a driver whose windows nobody sees; to a user that is no display.
    bool can_show() const { return started_ && std::string(SDL_GetCurrentVideoDriver()) != "offscreen"; }
    VideoSystem(const VideoSystem&) = delete;
    VideoSystem& operator=(const VideoSystem&) = delete;

private:
    bool started_;
};

struct Screen {
    explicit Screen(Size picture)
        : window(SDL_CreateWindow("camera-sim", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, 1280, 720,
                                  SDL_WINDOW_RESIZABLE))
    {
        if (window != nullptr) {
            renderer.reset(SDL_CreateRenderer(window.get(), -1, 0));
        }
        if (renderer != nullptr) {
            SDL_SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "linear");
            SDL_RenderSetLogicalSize(renderer.get(), picture.width, picture.height);
            texture.reset(SDL_CreateTexture(renderer.get(), SDL_PIXELFORMAT_RGB888, SDL_TEXTUREACCESS_STREAMING,
                                            picture.width, picture.height));
        }
    }

    void show(const Image& picture) const
    {
        SDL_UpdateTexture(texture.get(), nullptr, picture.pixels.data(), picture.size.width * 4);
        SDL_RenderClear(renderer.get());
        SDL_RenderCopy(renderer.get(), texture.get(), nullptr, nullptr);
        SDL_RenderPresent(renderer.get());
    }

    std::unique_ptr<SDL_Window, Destroy> window;
    std::unique_ptr<SDL_Renderer, Destroy> renderer;
    std::unique_ptr<SDL_Texture, Destroy> texture;
};

void press_keyboard(MenuSession& session, SDL_Keycode code)
{
    if (const Key* key = find_keyboard_key(code, session.menu().is_open())) {
        session.press(*key);
    }
}

/// Handles the events at hand; false when the window is to be closed.
bool handle_events(MenuSession& session)
{
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) {
        if (event.type == SDL_QUIT || (event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_q)) {
            return false;
        }
        if (event.type == SDL_KEYDOWN) {
            press_keyboard(session, event.key.keysym.sym);
        }
    }
    return true;
}

} // namespace

bool show_window(MenuSession& session, KeyPlayer& keys, int channel)
{
    const VideoSystem video;
    if (!video.can_show()) {
        SDL_SetError("there is no display");
        return false;
    }
    Camera& camera = session.camera();
    const Screen screen(camera.video.channels.size(channel));
    if (screen.texture == nullptr) {
        return false;
    }
    while (handle_events(session)) {
        (void)session.tick(); // again in any case
        keys.press_due(session);
        const Uint32 began = SDL_GetTicks();
        screen.show(camera.video.look_at(channel));
        const Uint32 used = SDL_GetTicks() - began;
        SDL_Delay(used < frame_ms ? frame_ms - used : 1);
    }
    return true;
}

} // namespace sim
