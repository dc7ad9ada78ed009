#include "simulator/web/http.h"

#include <algorithm>
#include <sstream>

#include "simulator/base/data.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr int deepest = 32;

/// Copying and writing JSON takes stack for each level.
bool refuse_deep(int depth, json::parse_event_t /*event*/, const json& /*parsed*/)
{
    if (depth > deepest) {
        throw HttpError(400, "the body nests deeper than " + std::to_string(deepest) + " levels");
    }
    return true;
}

/// Its parsed body is gone before the real one comes.
void check_depth(const std::string& body)
{
    [[maybe_unused]] const json parsed = json::parse(body, refuse_deep, false);
}

std::vector<std::string> split_path(const std::string& path)
{
    std::istringstream stream(path);
    std::vector<std::string> parts;
    for (std::string part; std::getline(stream, part, '/');) {
        parts.push_back(part);
    }
    return parts;
}

} // namespace

std::string to_text(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

std::optional<std::vector<std::string>> match_path(const std::string& pattern, const std::string& path)
{
    const std::vector<std::string> wanted = split_path(pattern);
    const std::vector<std::string> given = split_path(path);
    if (wanted.size() != given.size() || path.back() == '/') {
        return std::nullopt;
    }
    std::vector<std::string> arguments;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (wanted[i] == "*") {
            arguments.push_back(given[i]);
        } else if (wanted[i] != given[i]) {
            return std::nullopt;
        }
    }
    return arguments;
}

void answer_json(httplib::Response& response, const json& value)
{
    response.set_content(to_text(value) + "\n", "application/json");
}

void answer_error(httplib::Response& response, int status, const std::string& words)
{
    response.status = status;
    answer_json(response, {{"error", words}});
}

json read_object(const httplib::Request& request)
{
    check_depth(request.body);
    return parse_json_object(request.body, "body");
}

std::string text_field(const json& object, const char* name)
{
    const auto found = object.find(name);
    if (found == object.end() || !found->is_string()) {
        throw HttpError(400, std::string("expected a text in '") + name + "'");
    }
    return found->get<std::string>();
}

void refuse_other_fields(const json& object, std::initializer_list<const char*> known)
{
    std::string names;
    for (const char* name : known) {
        names += (names.empty() ? "'" : ", '") + std::string(name) + "'";
    }
    for (const auto& [field, value] : object.items()) {
        const auto is_field = [&name = field](const char* other) { return name == other; };
        if (std::none_of(known.begin(), known.end(), is_field)) {
            throw HttpError(400, "unknown field '" + field + "', expected " + names);
        }
    }
}

} // namespace sim
