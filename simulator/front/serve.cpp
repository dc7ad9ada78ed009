#include "simulator/front/serve.h"

#include <malloc.h>
#include <memory>
#include <utility>

#include "simulator/base/data.h"
#include "simulator/base/folder_watch.h"
#include "simulator/base/log.h"
#include "simulator/base/output_capture.h"
#include "simulator/base/resources.h"
#include "simulator/front/browser.h"
#include "simulator/front/stop_signals.h"
#include "simulator/host/checker.h"
#include "simulator/host/key_script.h"
#include "simulator/host/live_reload.h"
#include "simulator/host/menu_loop.h"
#include "simulator/host/menu_session.h"
#include "simulator/web/server.h"

namespace sim {
namespace {

using nlohmann::json;

std::unique_ptr<WebServer> start_server(Api& api, const Options& options)
{
    if (options.listen) {
        return std::make_unique<WebServer>(api, *options.listen);
    }
    try {
        return std::make_unique<WebServer>(api, ListenAddress());
    } catch (const BadInput&) { // the usual port is taken, and nobody asked for it
        return std::make_unique<WebServer>(api, ListenAddress{"127.0.0.1", 0});
    }
}

/// Null when the system refuses to watch; the camera runs without it.
std::unique_ptr<FolderWatch> watch_resources(const Camera& camera, const std::function<void()>& on_change)
{
    try {
        return std::make_unique<FolderWatch>(resource_folders(camera.resources), on_change);
    } catch (const std::runtime_error& error) {
        log_line(LogLevel::Error, "resources", std::string(error.what()) + "; changed files aren't noticed");
        return nullptr;
    }
}

/// Pictures take megabytes and come and go on many threads; by itself the C library would keep some for each thread. The
/// limits let the 1080p pictures of a stream stay in use, as new memory for each would cost a sixth of a core.
void give_memory_back()
{
    (void)::mallopt(M_ARENA_MAX, 4);
    (void)::mallopt(M_MMAP_THRESHOLD, 16 << 20);
    (void)::mallopt(M_TRIM_THRESHOLD, 32 << 20);
}

/// The camera behind its web page. The order of the members is that of their making, and they end in the reverse one: who
/// brings work comes last, the menu's thread, on which it is done, first.
class WebCamera {
public:
    WebCamera(Camera& camera, Pictures& pictures, const MenuConfig& menu, const Options& options)
        : options_(options), parts_{camera, session_, reload_, loop_, hub_}, session_(camera, menu),
          reload_(camera, pictures),
          checker_(camera.resources, [this] { loop_.post([this] { reload_.take(checker_.take()); }); }),
          watch_(watch_resources(camera, [this] { checker_.look_again(); })), api_(parts_, OSD_WEB_DIR, options.token)
    {
        checker_.look_again(); // from behind the start of the watch, so that no change falls between
    }

    /// Until somebody asks for the end.
    void run()
    {
        play_what_is_asked();
        server_ = start_server(api_, options_);
        tell_address();
        loop_.run([this] {
            const auto next = session_.tick();
            publish_state();
            return next;
        });
    }

private:
    void play_what_is_asked()
    {
        if (options_.prompt && session_.has_menu()) {
            session_.menu().overlays().show_prompt(*options_.prompt);
        }
        if (options_.keys && session_.has_menu()) {
            KeyPlayer(*options_.keys, session_.menu()).press_all();
        }
    }

    void tell_address()
    {
        const std::string address =
            address_of(server_->listens_at()) + (options_.token ? "?token=" + *options_.token : "");
        output_.print(address + "\n");
        const std::string problem = options_.open ? open_browser(address) : "";
        if (!problem.empty()) {
            log_line(LogLevel::Warning, "web", problem);
        }
    }

    /// Comparing finds every change, whoever made it.
    void publish_state()
    {
        if (!hub_.has_listeners()) {
            return;
        }
        json state = state_json(parts_);
        if (state != last_state_) {
            hub_.publish("state", state);
            last_state_ = std::move(state);
        }
    }

    const Options& options_;
    MenuLoop loop_;
    StopSignals signals_{[this] { loop_.stop(); }};
    OutputCapture output_; ///< the library writes to standard output, which is for the one line with the address
    EventHub hub_;
    const LogListener log_{[this](const LogEntry& entry) {
        hub_.publish_log({{"time", entry.time}, {"level", entry.level}, {"tag", entry.tag}, {"text", entry.text}});
    }};
    CameraParts parts_;
    const Subscription events_ = parts_.camera.events.listen([this](const Event& event) {
        hub_.publish(event.kind.c_str(), {{"what", event.what}});
    });
    const Subscription values_ = parts_.camera.settings.listen([this](const SettingId& id, const std::string& value) {
        hub_.publish("setting", {{"name", name_of(id)}, {"value", value}});
    });
    json last_state_;
    MenuSession session_;
    LiveReload reload_;
    Checker checker_; ///< needs graphics libraries: the session has started them
    std::unique_ptr<FolderWatch> watch_;
    Api api_;
    std::unique_ptr<WebServer> server_;
};

} // namespace

void serve_camera(Camera& camera, Pictures& pictures, const MenuConfig& menu, const Options& options)
{
    give_memory_back();
    WebCamera(camera, pictures, menu, options).run();
}

} // namespace sim
