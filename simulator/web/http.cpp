#include "simulator/web/http.h"

#include <algorithm>
#include <sstream>

#include "simulator/base/data.h"

namespace sim {

using nlohmann::json;

namespace {

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

json read_object(const httplib::Request& request) { return parse_json_object(request.body, "body"); }

std::string text_field(const json& object, const char* name)
{
    const auto found = object.find(name);
    if (found == object.end() || !found->is_string()) {
        throw HttpError(400, std::string("expected a text in '") + name + "'");
    }
    return found->get<std::string>();
}

void refuse_other_fields(const json& object, const std::vector<std::string>& known)
{
    for (const auto& [field, value] : object.items()) {
        if (std::count(known.begin(), known.end(), field) == 0) {
            throw HttpError(400, "unknown field '" + field + "', expected " + one_of(field, known));
        }
    }
}

} // namespace sim
