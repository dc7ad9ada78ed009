// What happens in the camera, for everybody who listens over the web.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <list>
#include <memory>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace sim {

/// Passes messages on to listeners in the form of server-sent events
/// (https://html.spec.whatwg.org/multipage/server-sent-events.html). Safe to use from several threads; publishing never
/// waits for a listener.
class EventHub {
public:
    /// One listener. A listener that is too far behind, because its client doesn't read, is let go.
    class Listener {
    public:
        /// The text of the messages that came since the last call; waits for the first one until the time is over, and
        /// is empty then. None when the listener was let go or the hub has closed.
        std::optional<std::string> next(std::chrono::milliseconds patience);

    private:
        friend class EventHub;
        static constexpr std::size_t most_bytes = std::size_t{4} << 20;

        void put(const std::string& message);
        void close();

        std::mutex mutex_;
        std::condition_variable changed_;
        std::string waiting_;
        bool closed_ = false;
    };

    void publish(const char* name, const nlohmann::json& data);
    /// The same for a line of the log, of which the last ones are kept for listeners to come.
    void publish_log(const nlohmann::json& data);

    /// A listener that gets this message first, then the last lines of the log, then all that happens from now on. It
    /// is forgotten with its last owner.
    std::shared_ptr<Listener> listen(const char* first_name, const nlohmann::json& first);

    /// Whether anybody listens: what nobody hears need not be said.
    bool has_listeners();

    /// Lets all listeners go.
    void close();

private:
    static constexpr std::size_t kept_lines = 200;

    void send(const std::string& message);

    std::mutex mutex_; ///< guards the members below
    std::list<std::weak_ptr<Listener>> listeners_;
    std::deque<std::string> log_;
};

} // namespace sim
