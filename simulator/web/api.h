// The requests that the web server answers.
#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "simulator/web/access.h"
#include "simulator/web/camera_parts.h"
#include "simulator/web/channel_stream.h"
#include "simulator/web/http.h"

namespace sim {

/// One object serves all threads of the server. What touches the menu, or changes the camera, runs on the menu loop.
class Api {
public:
    /// page: the folder with index.html and its parts; token: what each request must bring, if anything.
    Api(CameraParts parts, std::filesystem::path page, std::optional<std::string> token);

    /// Throws HttpError for a request that this camera doesn't serve, see check_access().
    void admit(const httplib::Request& request) const { check_access(request, token_); }

    /// Puts a page that asks for the token in the place of a refusal.
    void ask_for_token(httplib::Response& response) const;

    /// Answers a request that was admitted; what is wrong with it is told in a JSON object with the field "error".
    void serve(const httplib::Request& request, httplib::Response& response);

    /// Ends the answers that go on and on.
    void close();

private:
    using Arguments = std::vector<std::string>; ///< what stands in the path for each "*" of a route
    struct Call {
        const httplib::Request& request;
        httplib::Response& response;
        const Arguments& arguments;
    };
    struct Route {
        const char* method;
        const char* path;
        void (Api::*answer)(const Call& call);
    };
    static const std::vector<Route>& routes();

    void dispatch(const httplib::Request& request, httplib::Response& response);

    void get_channels(const Call& call);
    void get_stream(const Call& call);
    void get_jpeg(const Call& call);
    void get_png(const Call& call);
    void get_overlay(const Call& call);
    void get_keys(const Call& call);
    void post_keys(const Call& call);
    void get_state(const Call& call);
    void get_settings(const Call& call);
    void put_setting(const Call& call);
    void get_export(const Call& call);
    void put_import(const Call& call);
    void post_language(const Call& call);
    void post_menu(const Call& call);
    void get_faults(const Call& call);
    void put_faults(const Call& call);
    void get_events(const Call& call);

    Image picture(const std::string& channel);
    std::size_t press_keys(const nlohmann::json& names);
    ChannelStream& stream_of(const std::string& channel);
    std::shared_ptr<void> take_viewer_place();
    void answer_picture(const Call& call, const char* type, const std::function<std::string()>& encode);

    CameraParts parts_;
    std::filesystem::path page_;
    std::optional<std::string> token_;
    std::vector<std::unique_ptr<ChannelStream>> streams_;
    std::atomic<int> viewers_{0};
    std::atomic<int> pictures_{0}; ///< under way
    std::mutex snapshot_mutex_;    ///< one is drawn at a time: each takes the memory of some pictures
};

} // namespace sim
