#include "pages/data/json_file.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <istream>
#include <set>
#include <sstream>
#include <utility>
#include <vector>

#include "pages/data/errors.h"
#include "pages/data/text_file.h"

namespace pages {
namespace {

using nlohmann::json;

/// Where the token begins that ends before a place: the opening quotation mark of a text; all else is one character.
std::size_t token_begin(const std::string& text, std::size_t end)
{
    std::size_t begin = end == 0 ? 0 : end - 1;
    if (end == 0 || text[begin] != '"') {
        return begin;
    }
    do {
        begin = begin == 0 ? text.npos : text.rfind('"', begin - 1);
        if (begin == text.npos) {
            return end - 1;
        }
    } while (begin > 0 && text[begin - 1] == '\\');
    return begin;
}

/// Follows the parser: learns where parts stand, and notices fields that stand twice in one object; the parser itself
/// would keep the last one and say nothing.
class Follower {
public:
    /// places: null where nobody wants them; they take many times the memory of the text.
    Follower(const std::string& text, std::istream& stream, const std::string& file, JsonPlaces* places)
        : text_(text), stream_(stream), file_(file), places_(places)
    {
    }

    bool operator()(int /*depth*/, json::parse_event_t event, json& parsed)
    {
        using Event = json::parse_event_t;
        if (event == Event::key) {
            take_key(parsed.get<std::string>());
        } else if (event == Event::object_end || event == Event::array_end) {
            open_.pop_back();
        } else {
            begin_element();
            if (event != Event::value) {
                open_.push_back({event == Event::array_start, open_.empty() ? "" : open_.back().part, {}, {}, 0});
            }
        }
        return true;
    }

private:
    /// An object or a list that is read at present.
    struct Level {
        bool is_list;
        std::string name;
        std::string part; ///< the name of what is read in it
        std::set<std::string> keys;
        std::size_t count;
    };

    void take_key(const std::string& key)
    {
        Level& level = open_.back();
        name_part(level, key);
        if (!level.keys.insert(key).second) {
            throw BadInput(token_place(), "'" + key + "' stands twice in one object");
        }
    }

    void begin_element()
    {
        if (!open_.empty() && open_.back().is_list) {
            name_part(open_.back(), std::to_string(open_.back().count++));
        }
    }

    void name_part(Level& level, const std::string& key)
    {
        if (places_ != nullptr) {
            level.part = level.name + "/" + key;
            const Place place = token_place();
            places_->add(level.part, place.line, place.column);
        }
    }

    /// Where the token begins behind which the parser has come to stand.
    Place token_place()
    {
        const auto read = static_cast<std::size_t>(stream_.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in));
        const std::size_t end = std::min(read, text_.size());
        for (; counted_ < end; ++counted_) {
            if (text_[counted_] == '\n') {
                ++line_;
                line_begin_ = counted_ + 1;
            }
        }
        const std::size_t begin = std::max(token_begin(text_, end), line_begin_);
        return {file_, line_, static_cast<int>(begin - line_begin_) + 1};
    }

    const std::string& text_;
    std::istream& stream_; ///< of the text
    const std::string& file_;
    JsonPlaces* places_;
    std::vector<Level> open_;
    std::size_t counted_ = 0;
    std::size_t line_begin_ = 0;
    int line_ = 1;
};

/// What stands behind a mark in the parser's message; all of it when the mark is missing.
std::string words_behind(const char* mark, const json::exception& error)
{
    const std::string words = error.what();
    const std::size_t place = words.find(mark);
    return place == std::string::npos ? words : words.substr(place + std::strlen(mark));
}

/// The parser's words for a syntax error, or what to do about the commonest one.
std::string words_of(const json::parse_error& error, const std::string& text)
{
    const std::size_t at = error.byte == 0 ? text.size() : error.byte - 1;
    const bool comment = at < text.size() && (text[at] == '/' || text[at] == '#' || (at > 0 && text[at - 1] == '/'));
    return comment ? "a JSON file can't hold comments, expected none" : words_behind(": ", error);
}

/// Where the parser met a syntax error; it counts the byte in question as read.
Place place_of(const json::parse_error& error, const std::string& text, const std::string& file)
{
    const std::size_t at = std::min(error.byte == 0 ? 0 : error.byte - 1, text.size());
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(at);
    const std::size_t line_end = at == 0 ? text.npos : text.rfind('\n', at - 1);
    return {file, static_cast<int>(1 + std::count(text.begin(), end, '\n')),
            static_cast<int>(line_end == text.npos ? at : at - line_end - 1) + 1};
}

} // namespace

Place JsonPlaces::of(const std::string& part) const
{
    const auto found = places_.find(part);
    return found == places_.end() ? Place{file_} : found->second;
}

json load_json_object(const std::filesystem::path& path, JsonPlaces* places)
{
    return parse_json_object(read_text_file(path), path.string(), places);
}

json parse_json_object(const std::string& text, const std::string& file, JsonPlaces* places)
{
    json root;
    try {
        std::istringstream stream(text);
        Follower follower(text, stream, file, places);
        root = json::parse(stream, std::ref(follower)); // by reference: the parser copies its callback
    } catch (const json::parse_error& error) {
        throw BadInput(place_of(error, text, file), words_of(error, text));
    } catch (const json::exception& error) { // well formed, but no value of this machine: 1e999
        throw BadInput(Place{file}, words_behind("] ", error));
    }
    if (!root.is_object()) {
        throw BadInput(Place{file}, "expected one object, { ... }");
    }
    return root;
}

FieldReader::FieldReader(const json& object, Place place, std::string subject)
    : object_(object), place_(std::move(place)), subject_(std::move(subject))
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
    std::string known;
    for (const std::string& name : known_) {
        known += (known.empty() ? "" : ", ") + name;
    }
    for (const auto& [name, value] : object_.items()) {
        if (known_.count(name) == 0) {
            complain("unknown field '" + name + "', expected only " + known);
        }
    }
}

void FieldReader::complain(const std::string& what) const
{
    throw BadInput(place_, (subject_.empty() ? "" : subject_ + ": ") + what);
}

} // namespace pages
