// The web server.
#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <thread>

#include "simulator/web/access.h"
#include "simulator/web/api.h"

namespace sim {

/// Serves an Api from its construction to its end, on threads of its own.
class WebServer {
public:
    /// Throws BadInput when it can't listen there.
    WebServer(Api& api, const ListenAddress& listen);
    /// Ends streams and waits for the requests under way; the menu loop must have stopped, or still run.
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    /// Where it listens, with the port that it got.
    const ListenAddress& listens_at() const { return listen_; }

private:
    class Http;

    Api& api_;
    ListenAddress listen_;
    std::unique_ptr<Http> http_;
    std::atomic<bool> ended_{false}; ///< nobody takes connections any more
    std::thread thread_;
};

} // namespace sim
