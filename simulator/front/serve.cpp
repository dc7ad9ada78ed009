#include "simulator/front/serve.h"

#include <malloc.h>
#include <mutex>
#include <optional>
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

/// What the camera's parts tell, passed on to the web. All but the log comes on the menu thread.
class EventBridge {
public:
    EventBridge(Camera& camera, EventHub& hub)
        : hub_(hub), log_([&hub](const LogEntry& entry) {
              hub.publish_log({{"time", entry.time}, {"level", entry.level}, {"tag", entry.tag}, {"text", entry.text}});
          })
    {
        camera.events.listen([this](const Event& event) { hub_.publish(event.kind.c_str(), {{"what", event.what}}); });
        camera.settings.listen([this](const SettingId& id, const std::string& value) {
            hub_.publish("setting", {{"name", name_of(id)}, {"value", value}});
        });
    }

    /// Comparing finds every change, whoever made it.
    void publish_state(const CameraParts& parts)
    {
        if (!hub_.has_listeners()) {
            return;
        }
        json state = state_json(parts);
        if (state != last_state_) {
            hub_.publish("state", state);
            last_state_ = std::move(state);
        }
    }

private:
    EventHub& hub_;
    LogListener log_;
    json last_state_;
};

std::string address_with_token(const ListenAddress& listen, const Options& options)
{
    return address_of(listen) + (options.token ? "?token=" + *options.token : "");
}

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

/// The last verdict, which waits for the menu thread. However fast files change and however long the menu takes to follow,
/// one task waits.
class WaitingVerdict {
public:
    /// True when none waited so far.
    bool put(Verdict verdict)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        const bool first = !verdict_;
        verdict_ = std::move(verdict);
        return first;
    }

    Verdict take()
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return std::exchange(verdict_, std::nullopt).value();
    }

private:
    std::mutex mutex_;
    std::optional<Verdict> verdict_;
};

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

} // namespace

void serve_camera(Camera& camera, Pictures& pictures, const MenuConfig& menu, const Options& options)
{
    give_memory_back();
    MenuLoop loop;
    const StopSignals signals([&loop] { loop.stop(); });
    OutputCapture output; // the library writes to standard output, which is for the one line with the address
    EventHub hub;
    EventBridge bridge(camera, hub);
    MenuSession session(camera, menu);
    LiveReload reload(camera, pictures);
    WaitingVerdict waiting;
    Checker checker(camera.resources, [&](Verdict verdict) { // has graphics libraries: the session has started them
        if (waiting.put(std::move(verdict))) {
            loop.post([&] { reload.take(waiting.take()); });
        }
    });
    const auto watch = watch_resources(camera, [&checker] { checker.look_again(); });
    checker.look_again(); // from behind the start of the watch, so that no change falls between
    const CameraParts parts{camera, session, reload, loop, hub};
    Api api(parts, OSD_WEB_DIR, options.token);
    if (options.prompt && session.has_menu()) {
        session.menu().overlays().show_prompt(*options.prompt);
    }
    if (options.keys && session.has_menu()) {
        KeyPlayer(*options.keys, session.menu()).press_all();
    }
    const auto server = start_server(api, options);
    output.print(address_with_token(server->listens_at(), options) + "\n");
    if (options.open) {
        const std::string problem = open_browser(address_with_token(server->listens_at(), options));
        if (!problem.empty()) {
            log_line(LogLevel::Warning, "web", problem);
        }
    }
    loop.run([&] {
        const auto next = session.tick();
        bridge.publish_state(parts);
        return next;
    });
}

} // namespace sim
