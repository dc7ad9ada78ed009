#include "simulator/web/http.h"

#include <algorithm>

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

} // namespace

std::string to_text(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

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
    try {
        json object = json::parse(request.body, refuse_deep);
        if (object.is_object()) {
            return object;
        }
    } catch (const json::parse_error& error) {
        throw HttpError(400,
                        "the body is no JSON: byte " + std::to_string(error.byte) + " is not what was expected there");
    }
    throw HttpError(400, "the body must be a JSON object, { ... }");
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
