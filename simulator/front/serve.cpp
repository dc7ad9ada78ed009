#include "simulator/front/serve.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "simulator/core/errors.h"
#include "simulator/core/folder_watch.h"
#include "simulator/core/log.h"
#include "simulator/core/output_capture.h"
#include "simulator/core/resource_check.h"
#include "simulator/core/resources.h"
#include "simulator/front/stop_signals.h"
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
        camera.events().listen([this](const Event& event) {
            hub_.publish(event.kind.c_str(), {{"what", event.what}});
        });
        camera.settings().listen([this](const SettingId& id, const std::string& value) {
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

/// How a program starts that outlives the camera: it keeps none of its files open and gets the usual signals.
struct Quietly {
    Quietly()
    {
        posix_spawn_file_actions_init(&files);
        for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            posix_spawn_file_actions_addopen(&files, file, "/dev/null", O_RDWR, 0);
        }
        posix_spawnattr_init(&attributes);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    }
    ~Quietly()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&files);
    }
    Quietly(const Quietly&) = delete;
    Quietly& operator=(const Quietly&) = delete;

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

/// Opens the address in the browser of whoever sits here.
void open_browser(const std::string& address)
{
    char program[] = "xdg-open";
    std::string argument = address;
    char* const arguments[] = {program, argument.data(), nullptr};
    pid_t child = 0;
    const Quietly quietly;
    const int problem = ::posix_spawnp(&child, program, &quietly.files, &quietly.attributes, arguments, environ);
    if (problem != 0) {
        log_line(LogLevel::Warning, "web",
                 std::string("no browser can be opened: xdg-open: ") + std::strerror(problem));
        return;
    }
    std::thread([child] { ::waitpid(child, nullptr, 0); }).detach(); // no zombie is left behind
}

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

} // namespace

void serve_camera(Camera& camera, Pictures& pictures, const MenuConfig& menu, const Options& options)
{
    MenuLoop loop;
    const StopSignals signals([&loop] { loop.stop(); });
    OutputCapture output; // the library writes to standard output, which is for the one line with the address
    EventHub hub;
    EventBridge bridge(camera, hub);
    MenuSession session(camera, menu);
    // From before the first look at the resources, so that no change falls between; the loop runs when all stands.
    std::optional<LiveReload> reload;
    ResourceCheck check(camera.resources(), [&](const std::vector<Problem>& found) {
        loop.post([&reload, found] { reload->set_findings(found); });
    });
    const FolderWatch watch(resource_folders(camera.resources()), [&](const std::set<std::filesystem::path>& files) {
        loop.post([&reload, files] { reload->reload(files); });
        check.check_again();
    });
    reload.emplace(camera, pictures);
    const CameraParts parts{camera, session, *reload, loop, hub};
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
        open_browser(address_with_token(server->listens_at(), options));
    }
    loop.run([&] {
        const auto next = session.tick();
        bridge.publish_state(parts);
        return next;
    });
}

} // namespace sim
