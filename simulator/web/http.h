// What the parts of the web server share: refusals, JSON in and out.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <httplib.h>

#include "simulator/base/data.h"

namespace sim {

/// The answer to a request that can't be served, in words for the person who wrote it.
class HttpError : public std::runtime_error {
public:
    HttpError(int status, const std::string& words) : std::runtime_error(on_one_line(words)), status_(status) {}
    int status() const { return status_; }

private:
    int status_;
};

/// The text of a JSON value. What isn't UTF-8, such as bytes of a file that somebody saved half, becomes a replacement
/// character.
std::string to_text(const nlohmann::json& value);

void answer_json(httplib::Response& response, const nlohmann::json& value);
void answer_error(httplib::Response& response, int status, const std::string& words);

/// What stands for each "*" of the pattern; none when the path doesn't fit it.
std::optional<std::vector<std::string>> match_path(const std::string& pattern, const std::string& path);

/// The object in the body of a request. Throws HttpError or BadInput when there is none, or when it has a field twice.
nlohmann::json read_object(const httplib::Request& request);

/// A field that is a text; throws HttpError when it is missing or no text.
std::string text_field(const nlohmann::json& object, const char* name);

/// Throws HttpError when the object has a field that isn't in the list.
void refuse_other_fields(const nlohmann::json& object, const std::vector<std::string>& known);

} // namespace sim
