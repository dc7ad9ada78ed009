#include "simulator/web/server.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

#include "simulator/base/data.h"
#include "simulator/base/log.h"
#include "simulator/web/connection.h"
#include "simulator/web/workers.h"

namespace sim {
namespace {

constexpr std::size_t most_workers = 160; ///< the viewers and some more
constexpr std::size_t longest_path = 300;
constexpr std::size_t longest_body = std::size_t{64} * 1024; ///< parsed it takes many times its size
constexpr std::chrono::milliseconds farewell{500};           ///< for the last answers when the server ends
constexpr int send_buffer_bytes = 256 * 1024; ///< about two pictures: a slow viewer must not lag behind by seconds

/// Bodies are read by the server for paths that fit this pattern; it matches all paths that check_form() lets pass.
constexpr const char* any_path = "[^\n]{1,300}";

void set_socket_options(int socket)
{
    const int on = 1;
    (void)::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on); // a camera that was just ended
    (void)::setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &send_buffer_bytes, sizeof send_buffer_bytes);
}

bool has_control_character(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

/// Our routes have no others whose body is read.
bool has_body_method(const httplib::Request& request) { return request.method == "POST" || request.method == "PUT"; }

/// Refuses what must not reach the reading of the body, which has no limits for such requests.
void check_form(const httplib::Request& request)
{
    if (request.path.empty() || request.path.front() != '/' || has_control_character(request.path)) {
        throw HttpError(400, "the path must begin with '/' and have no control characters");
    }
    if (request.path.size() > longest_path) {
        throw HttpError(414, "the path has more than " + std::to_string(longest_path) + " bytes");
    }
    const bool may_have_body = has_body_method(request);
    if (may_have_body && !request.has_header("Content-Length")) {
        throw HttpError(411, "send a Content-Length; it may be 0");
    }
    if (request.has_header("Transfer-Encoding")) {
        throw HttpError(411, "send the body in one piece, with a Content-Length");
    }
    if (request.has_header("Content-Encoding")) {
        throw HttpError(415, "send the body as it is, without a Content-Encoding");
    }
    const bool has_body = request.get_header_value("Content-Length", 0).find_first_of("123456789") != std::string::npos;
    const std::string type = request.get_header_value("Content-Type");
    if (has_body && type.compare(0, std::strlen("application/json"), "application/json") != 0) {
        throw HttpError(415, "the body must be JSON, with the header 'Content-Type: application/json'");
    }
}

const char* reason_of(int status)
{
    switch (status) {
    case 413:
        return "the request is too large, at most 64 KiB are read";
    case 414:
        return "the address is too long";
    case 416:
        return "the header Range can't be read; ask without one";
    default:
        return "the request can't be read, or it didn't arrive within five seconds";
    }
}

} // namespace

/// Takes connections into its own hands by process_and_close_socket(), process_request() and httplib::Stream, as they
/// are in this version of the library; no document promises them. Another version needs a look whether limits, streams
/// and one request a connection still hold (tests/simulator/web_test.cpp, tests/soak).
static_assert(std::string_view(CPPHTTPLIB_VERSION) == "0.11.4");
class WebServer::Http : public httplib::Server {
public:
    explicit Http(Api& api)
    {
        new_task_queue = [] { return new Workers(most_workers); }; // the server deletes it
        set_payload_max_length(longest_body);
        set_tcp_nodelay(true);
        httplib::Server::set_socket_options(&sim::set_socket_options);
        set_pre_routing_handler([&api](const httplib::Request& request, httplib::Response& response) {
            return serve_without_body(api, request, response);
        });
        const auto serve = [&api](const httplib::Request& request, httplib::Response& response) {
            api.serve(request, response);
        };
        Post(any_path, serve).Put(any_path, serve);
        set_error_handler([](const httplib::Request&, httplib::Response& response) {
            if (response.body.empty()) {
                answer_error(response, response.status, reason_of(response.status));
            }
        });
        set_default_headers({{"X-Content-Type-Options", "nosniff"},
                             {"Content-Security-Policy", "frame-ancestors 'none'"},
                             {"Cross-Origin-Resource-Policy", "same-origin"}});
    }

    /// Takes no more connections, and ends those that are open.
    void end()
    {
        stop();
        sockets_.end(farewell);
    }

private:
    static HandlerResponse serve_without_body(Api& api, const httplib::Request& request, httplib::Response& response)
    {
        try {
            api.admit(request);
            check_form(request);
        } catch (const HttpError& error) {
            answer_error(response, error.status(), error.what());
            if (error.status() == 401 && request.get_header_value("Accept").find("text/html") != std::string::npos) {
                api.ask_for_token(response); // a person with a browser
            }
            return HandlerResponse::Handled;
        }
        if (has_body_method(request)) {
            return HandlerResponse::Unhandled;
        }
        api.serve(request, response);
        return HandlerResponse::Handled;
    }

    /// One request a connection: what a client sends behind it is never taken for a second one.
    bool process_and_close_socket(socket_t socket) override
    {
        if (Workers::turned_away()) {
            constexpr const char* answer = "HTTP/1.1 503 Service Unavailable\r\nContent-Type: application/json\r\n"
                                           "Connection: close\r\n\r\n{\"error\":\"too many requests at once\"}\n";
            (void)::send(socket, answer, std::strlen(answer), MSG_NOSIGNAL | MSG_DONTWAIT); // it is only a courtesy
            ::close(socket);
            return false;
        }
        Connection connection(socket, sockets_);
        bool closed = false;
        return process_request(connection, true, closed, [](httplib::Request& request) {
            request.ranges.clear(); // all answers are short or endless
        });
    }

    OpenSockets sockets_;
};

WebServer::WebServer(Api& api, const ListenAddress& listen)
    : api_(api), listen_(listen), http_(std::make_unique<Http>(api))
{
    if (listen_.port == 0) {
        listen_.port = http_->bind_to_any_port(listen_.host);
    } else if (!http_->bind_to_port(listen_.host, listen_.port)) {
        listen_.port = -1;
    }
    if (listen_.port < 0) {
        throw BadInput("can't listen at " + listen.host + ", port " + std::to_string(listen.port) + ": " +
                       std::strerror(errno) + "; choose another with --listen ADDRESS:PORT");
    }
    thread_ = std::thread([this] {
        if (!http_->listen_after_bind()) {
            log_line(LogLevel::Error, "web", "the system takes no more connections; the web page ends");
        }
        ended_ = true;
    });
}

WebServer::~WebServer()
{
    api_.close();
    while (!http_->is_running() && !ended_) { // a stop before the start would not be noticed
        std::this_thread::yield();
    }
    http_->end();
    thread_.join();
}

} // namespace sim
