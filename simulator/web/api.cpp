#include "simulator/web/api.h"

#include <algorithm>
#include <utility>

#include "simulator/base/data.h"
#include "simulator/base/log.h"
#include "simulator/base/page_files.h"
#include "simulator/host/keys.h"
#include "simulator/settings/settings_json.h"
#include "simulator/video/encode.h"
#include "simulator/web/static_files.h"

namespace sim {
namespace {

using nlohmann::json;

constexpr int most_viewers = 128;
constexpr std::size_t longest_viewer_name = 40;
constexpr int most_pictures = 8; // each stays in memory until its client has read it
constexpr std::chrono::seconds picture_patience{30};
constexpr std::size_t picture_piece = std::size_t{16} * 1024;
constexpr int snapshot_quality = 92;
constexpr std::chrono::seconds event_patience{1};
constexpr std::size_t most_keys = 1000;

void start_event_stream(httplib::Response& response, std::function<bool(httplib::DataSink&)> write)
{
    response.set_header("Cache-Control", "no-store");
    response.set_content_provider(
        "text/event-stream", [write = std::move(write)](std::size_t, httplib::DataSink& sink) { return write(sink); });
}

/// One of a limited number of places; whoever gets it gives it back by forgetting it.
std::shared_ptr<void> take_place(std::atomic<int>& taken, int most, const char* whose)
{
    std::shared_ptr<void> place(nullptr, [&taken](void*) { --taken; });
    if (++taken > most) {
        throw HttpError(503,
                        std::string("too many ") + whose + ", at most " + std::to_string(most) + " are served at once");
    }
    return place;
}

} // namespace

Api::Api(CameraParts parts, std::filesystem::path page, std::optional<std::string> token)
    : parts_(parts), page_(std::move(page)), token_(std::move(token))
{
    for (int i = 0; i < channel_count; ++i) {
        streams_.push_back(std::make_unique<ChannelStream>(parts_.camera, i));
    }
}

const std::vector<Api::Route>& Api::routes()
{
    static const std::vector<Route> table = {
        {"GET", "/channels", &Api::get_channels},
        {"GET", "/channels/*/stream.mjpg", &Api::get_stream},
        {"GET", "/channels/*/snapshot.jpg", &Api::get_jpeg},
        {"GET", "/channels/*/snapshot.png", &Api::get_png},
        {"GET", "/overlay.png", &Api::get_overlay},
        {"GET", "/keys", &Api::get_keys},
        {"POST", "/keys", &Api::post_keys},
        {"GET", "/state", &Api::get_state},
        {"GET", "/settings", &Api::get_settings},
        {"PUT", "/settings/*", &Api::put_setting},
        {"GET", "/settings.json", &Api::get_export},
        {"PUT", "/settings.json", &Api::put_import},
        {"POST", "/language", &Api::post_language},
        {"POST", "/menu", &Api::post_menu},
        {"GET", "/faults", &Api::get_faults},
        {"PUT", "/faults", &Api::put_faults},
        {"GET", "/events", &Api::get_events},
    };
    return table;
}

void Api::ask_for_token(httplib::Response& response) const
{
    response.set_content(read_text_file(page_ / "token.html"), "text/html; charset=utf-8");
}

void Api::close()
{
    parts_.hub.close();
    for (const auto& stream : streams_) {
        stream->close();
    }
}

void Api::serve(const httplib::Request& request, httplib::Response& response)
{
    try {
        if (token_ && brings_token_in_address(request)) {
            response.set_header("Set-Cookie", token_cookie(request, *token_));
        }
        dispatch(request, response);
    } catch (const HttpError& error) {
        answer_error(response, error.status(), error.what());
    } catch (const UnknownSetting& error) {
        answer_error(response, 404, error.what());
    } catch (const BadInput& error) {
        answer_error(response, 400, error.what());
    } catch (const NoMenu& error) {
        answer_error(response, 503, error.what());
    } catch (const LoopStopped& error) {
        answer_error(response, 503, error.what());
    } catch (const std::exception& error) {
        log_line(LogLevel::Error, "web", request.path + ": " + error.what());
        answer_error(response, 500, error.what());
    }
}

void Api::dispatch(const httplib::Request& request, httplib::Response& response)
{
    const std::string method = request.method == "HEAD" ? "GET" : request.method;
    std::vector<std::string> allowed;
    for (const Route& route : routes()) {
        const auto arguments = match_path(route.path, request.path);
        if (arguments && method == route.method) {
            (this->*route.answer)({request, response, *arguments});
            return;
        }
        if (arguments) {
            allowed.emplace_back(route.method);
        }
    }
    if (allowed.empty() && serve_page_file(page_, request, response)) {
        return;
    }
    if (allowed.empty()) {
        throw HttpError(404, "there is nothing at " + request.path);
    }
    response.set_header("Allow", joined(allowed));
    throw HttpError(405, request.path + " takes " + joined(allowed) + ", not " + request.method);
}

ChannelStream& Api::stream_of(const std::string& channel)
{
    for (const auto& stream : streams_) {
        if (channel == std::to_string(stream->channel())) {
            return *stream;
        }
    }
    throw HttpError(404, "no channel '" + channel + "', there are 0 (main), 1 (sub) and 2 (preview)");
}

/// A place among those who watch or listen; each of them holds a thread.
std::shared_ptr<void> Api::take_viewer_place() { return take_place(viewers_, most_viewers, "viewers"); }

void Api::get_stream(const Call& call)
{
    ChannelStream& stream = stream_of(call.arguments[0]);
    const std::string name = call.request.get_param_value("viewer");
    if (name.size() > longest_viewer_name) {
        throw HttpError(400, "the name of a viewer has at most " + std::to_string(longest_viewer_name) + " bytes");
    }
    const auto place = take_viewer_place();
    parts_.loop.call([&] { parts_.camera.video.attach(stream.channel()); });
    const auto viewer = std::make_shared<ChannelStream::Viewer>(stream, name);
    call.response.set_header("Cache-Control", "no-store");
    // The boundary stands right behind each picture: a browser shows a picture when it has seen the next boundary.
    auto write = [place, viewer, first = true](std::size_t, httplib::DataSink& sink) mutable {
        const auto frame = viewer->next();
        if (frame == nullptr) {
            return false;
        }
        const std::string head = std::string(std::exchange(first, false) ? "--frame\r\n" : "") +
                                 "Content-Type: image/jpeg\r\nContent-Length: " + std::to_string(frame->jpeg.size()) +
                                 "\r\n\r\n";
        const std::string tail = "\r\n--frame\r\n";
        return sink.write(head.data(), head.size()) && sink.write(frame->jpeg.data(), frame->jpeg.size()) &&
               sink.write(tail.data(), tail.size());
    };
    call.response.set_content_provider("multipart/x-mixed-replace; boundary=frame", write);
}

Image Api::picture(const std::string& channel)
{
    const int number = stream_of(channel).channel();
    parts_.loop.call([&] { parts_.camera.video.attach(number); });
    return parts_.camera.video.draw(number);
}

/// A client has half a minute to read it.
void Api::answer_picture(const Call& call, const char* type, const std::function<std::string()>& encode)
{
    const auto place = take_place(pictures_, most_pictures, "pictures");
    const auto picture = [&] {
        const std::lock_guard<std::mutex> lock(snapshot_mutex_);
        return std::make_shared<const std::string>(encode());
    }();
    const auto end = std::chrono::steady_clock::now() + picture_patience;
    call.response.set_header("Cache-Control", "no-store");
    call.response.set_content_provider(
        picture->size(), type, [place, picture, end](std::size_t from, std::size_t size, httplib::DataSink& sink) {
            return std::chrono::steady_clock::now() < end &&
                   sink.write(picture->data() + from, std::min(size, picture_piece));
        });
}

void Api::get_jpeg(const Call& call)
{
    answer_picture(call, "image/jpeg", [&] { return encode_jpeg(picture(call.arguments[0]), snapshot_quality); });
}

void Api::get_png(const Call& call)
{
    answer_picture(call, "image/png", [&] { return encode_png(picture(call.arguments[0]), false); });
}

void Api::get_overlay(const Call& call)
{
    answer_picture(call, "image/png", [&] {
        const auto canvas = parts_.camera.video.channels.lowest_canvas(0);
        return encode_png(canvas ? *canvas : Image(parts_.camera.video.channels.size(0)), true);
    });
}

void Api::get_keys(const Call& call) { answer_json(call.response, keys_json()); }

/// Each key in a turn of its own, so that a long list doesn't keep others away.
std::size_t Api::press_keys(const json& names)
{
    if (!names.is_array() || names.size() > most_keys) {
        throw HttpError(400, "'keys' must be a list of at most " + std::to_string(most_keys) + " names of keys");
    }
    std::vector<const Key*> keys;
    for (const json& name : names) {
        keys.push_back(&find_key(name.is_string() ? name.get<std::string>() : to_text(name)));
    }
    for (const Key* key : keys) {
        parts_.loop.call([&] { parts_.session.press(*key); });
    }
    return keys.size();
}

void Api::post_keys(const Call& call)
{
    const json body = read_object(call.request);
    refuse_other_fields(body, {"keys", "press", "renew", "release"});
    if (body.size() != 1) {
        throw HttpError(400, "expected one of 'keys', 'press', 'renew' and 'release'");
    }
    if (body.contains("keys")) {
        answer_json(call.response, {{"keys", press_keys(body["keys"])}});
        return;
    }
    constexpr std::pair<const char*, void (MenuSession::*)(const Key&)> verbs[] = {
        {"press", &MenuSession::hold}, {"renew", &MenuSession::renew}, {"release", &MenuSession::release}};
    for (const auto& [verb, act] : verbs) {
        if (body.contains(verb)) {
            const Key& key = find_key(text_field(body, verb));
            parts_.loop.call([&, act = act] { (parts_.session.*act)(key); });
            answer_json(call.response, {{verb, key.name}});
        }
    }
}

void Api::get_state(const Call& call)
{
    answer_json(call.response, parts_.loop.call([&] { return state_json(parts_); }));
}

/// At once, also while a key takes long: who asks finds out whether the camera and a stream of it live.
void Api::get_channels(const Call& call)
{
    json channels = channels_json(parts_.camera);
    for (const auto& stream : streams_) {
        json& channel = channels[static_cast<std::size_t>(stream->channel())];
        channel["viewers"] = stream->viewers();
        channel["encoded"] = stream->encoded();
    }
    answer_json(call.response, {{"channels", channels}});
}

void Api::get_settings(const Call& call)
{
    answer_json(call.response, parts_.loop.call([&] {
        json list = settings_list(parts_.camera.settings);
        for (json& setting : list["settings"]) {
            const std::string* label = parts_.camera.texts.find(parts_.camera.language(), setting["key"]);
            setting["label"] = label == nullptr ? "" : *label;
        }
        return list;
    }));
}

void Api::put_setting(const Call& call)
{
    const json body = read_object(call.request);
    refuse_other_fields(body, {"value"});
    const std::string text = value_text(body.value("value", json()), "'value'");
    const auto change = [&] {
        const SettingId id = parts_.camera.settings.by_name(call.arguments[0]).id;
        parts_.session.change(id, text);
        return setting_object(parts_.camera.settings, *parts_.camera.settings.find(id));
    };
    answer_json(call.response, parts_.loop.call(change));
}

void Api::get_export(const Call& call)
{
    call.response.set_header("Content-Disposition", "attachment; filename=\"settings.json\"");
    answer_json(call.response, parts_.loop.call([&] { return export_settings(parts_.camera.settings); }));
}

void Api::put_import(const Call& call)
{
    const json values = read_object(call.request);
    try {
        const std::size_t count = parts_.loop.call([&] { return parts_.session.import(values); });
        answer_json(call.response, {{"settings", count}});
    } catch (const UnknownSetting& error) { // of the body: what the path names is there
        throw HttpError(400, error.what());
    }
}

void Api::post_language(const Call& call)
{
    const json body = read_object(call.request);
    refuse_other_fields(body, {"language"});
    const std::string wanted = text_field(body, "language");
    const std::string language = parts_.loop.call([&] {
        parts_.session.change(language_setting, option_of_language(parts_.camera.definitions(), wanted));
        return parts_.camera.language();
    });
    answer_json(call.response, {{"language", language}});
}

void Api::post_menu(const Call& call)
{
    const json body = read_object(call.request);
    refuse_other_fields(body, {"style", "size", "page"});
    const json style = body.value("style", json(0));
    const json size = body.value("size", json(size_name(false)));
    if (body.empty() || !style.is_number_integer() || style < 0 || style >= style_count ||
        std::count(size_names.begin(), size_names.end(), size) == 0) {
        throw HttpError(400, std::string("expected a 'style' of ") + style_words + ", a 'size' of \"" +
                                 size_name(false) + "\" or \"" + size_name(true) + "\", or a 'page'");
    }
    const std::optional<std::string> page =
        body.contains("page") ? std::optional(text_field(body, "page")) : std::nullopt;
    const MenuConfig config = parts_.loop.call([&] {
        if (page) {
            require_page(*page, parts_.camera.resources);
        }
        MenuConfig wanted = parts_.session.config();
        wanted.style = body.contains("style") ? style.get<std::uint32_t>() : wanted.style;
        wanted.uhd = body.contains("size") ? size == size_name(true) : wanted.uhd;
        if (body.contains("style") || body.contains("size")) {
            parts_.session.restart(wanted);
        }
        (void)parts_.session.menu(); // or there is none
        if (page) {
            parts_.session.show_page(*page);
        }
        return wanted;
    });
    answer_json(call.response, {{"style", config.style}, {"size", size_name(config.uhd)}});
}

void Api::get_faults(const Call& call) { answer_json(call.response, faults_json(parts_.camera.faults)); }

void Api::put_faults(const Call& call)
{
    const json body = read_object(call.request);
    refuse_other_fields(body, {"on"});
    const json names = body.value("on", json());
    if (!names.is_array() ||
        !std::all_of(names.begin(), names.end(), [](const json& name) { return name.is_string(); })) {
        throw HttpError(400, "expected a list of names in 'on', GET /faults tells them");
    }
    parts_.loop.call([&] {
        parts_.camera.faults.set(parse_faults(names));
        parts_.hub.publish("faults", faults_json(parts_.camera.faults));
    });
    get_faults(call);
}

void Api::get_events(const Call& call)
{
    const auto place = take_viewer_place();
    // On the menu thread, so that nothing happens between the state and the first event behind it.
    const auto listener = parts_.loop.call([&] { return parts_.hub.listen("state", state_json(parts_)); });
    start_event_stream(call.response, [place, listener](httplib::DataSink& sink) {
        const auto text = listener->next(event_patience);
        // A comment now and then finds out whether the client is still there.
        const std::string bytes = !text || !text->empty() ? text.value_or("") : ":\n\n";
        return text && sink.write(bytes.data(), bytes.size());
    });
}

} // namespace sim
