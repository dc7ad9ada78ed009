#include "simulator/core/json_file.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>
#include <vector>

#include "simulator/core/errors.h"
#include "simulator/core/text_file.h"

namespace sim {
namespace {

using nlohmann::json;

/// Notices fields that stand twice in one object; the parser itself would keep the last one and say nothing.
class DuplicateFinder {
public:
    explicit DuplicateFinder(std::string file) : file_(std::move(file)) {}

    bool operator()(int /*depth*/, json::parse_event_t event, json& parsed)
    {
        if (event == json::parse_event_t::object_start) {
            open_.emplace_back();
        } else if (event == json::parse_event_t::object_end) {
            open_.pop_back();
        } else if (event == json::parse_event_t::key && !open_.back().insert(parsed.get<std::string>()).second) {
            throw BadInput(file_ + ": '" + parsed.get<std::string>() + "' stands twice in one object");
        }
        return true;
    }

private:
    std::string file_;
    std::vector<std::set<std::string>> open_;
};

/// What stands behind a mark in the parser's message; all of it when the mark is missing.
std::string words_behind(const char* mark, const json::exception& error)
{
    const std::string words = error.what();
    const std::size_t place = words.find(mark);
    return place == std::string::npos ? words : words.substr(place + std::strlen(mark));
}

/// ":LINE" of a syntax error.
std::string line_of(const json::parse_error& error, const std::string& text)
{
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(error.byte, text.size()));
    return ":" + std::to_string(1 + std::count(text.begin(), end, '\n'));
}

} // namespace

json load_json_object(const std::filesystem::path& path)
{
    return parse_json_object(read_text_file(path), path.string());
}

json parse_json_object(const std::string& text, const std::string& place)
{
    json root;
    try {
        // The finder is handed over by reference: the parser copies its callback.
        DuplicateFinder finder(place);
        root = json::parse(text, std::ref(finder));
    } catch (const json::parse_error& error) {
        throw BadInput(place + line_of(error, text) + ": " + words_behind(": ", error));
    } catch (const json::exception& error) { // well formed, but no value of this machine: 1e999
        throw BadInput(place + ": " + words_behind("] ", error));
    }
    if (!root.is_object()) {
        throw BadInput(place + ": expected one object, { ... }");
    }
    return root;
}

FieldReader::FieldReader(const json& object, std::string place) : object_(object), place_(std::move(place))
{
    if (!object_.is_object()) {
        complain("must be an object, { ... }");
    }
}

const json& FieldReader::field(const std::string& name)
{
    known_.insert(name);
    const auto found = object_.find(name);
    if (found == object_.end()) {
        complain("'" + name + "' is missing");
    }
    return *found;
}

std::string FieldReader::text(const std::string& name, std::size_t min_bytes, std::size_t max_bytes)
{
    const json& value = field(name);
    if (!value.is_string()) {
        complain("'" + name + "' must be a text");
    }
    const auto text = value.get<std::string>();
    if (text.size() < min_bytes || text.size() > max_bytes || text.find('\0') != std::string::npos) {
        complain("'" + name + "' has " + std::to_string(text.size()) + " bytes, expected " + std::to_string(min_bytes) +
                 " to " + std::to_string(max_bytes));
    }
    return text;
}

std::int32_t FieldReader::integer(const std::string& name)
{
    const json& value = field(name);
    const bool small =
        value.is_number_integer() && (value.is_number_unsigned() ? value.get<std::uint64_t>() < (1U << 31)
                                                                 : value.get<std::int64_t>() >= -(1LL << 31));
    if (!small) {
        complain("'" + name + "' must be a whole number of 32 bits");
    }
    return value.get<std::int32_t>();
}

void FieldReader::refuse_other_fields() const
{
    for (const auto& [name, value] : object_.items()) {
        if (known_.count(name) == 0) {
            complain("unknown field '" + name + "'");
        }
    }
}

void FieldReader::complain(const std::string& what) const
{
    std::string words = place_ + ": " + what;
    std::replace(words.begin(), words.end(), '\0', '?'); // the message would end there
    throw BadInput(words);
}

} // namespace sim
