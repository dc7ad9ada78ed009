#include "pages/data/json_file.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <istream>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "pages/data/errors.h"
#include "pages/data/text_file.h"
#include "pages/data/words.h"

namespace pages {
namespace {

using nlohmann::json;

constexpr int deepest = 32; ///< copying and writing JSON takes stack for each level

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

    bool operator()(int depth, json::parse_event_t event, json& parsed)
    {
        using Event = json::parse_event_t;
        if (depth > deepest) {
            throw BadInput(token_place(), "this nests deeper than " + std::to_string(deepest) + " levels");
        }
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

/// What to say in place of the parser's words.
struct Slip {
    std::string_view words; ///< a part of the parser's
    const char* what;
};
constexpr Slip slips[] = {
    {"control character U+000A", "the text doesn't end on its line, expected a quotation mark at its end"},
    {"missing closing quote", "the text doesn't end on its line, expected a quotation mark at its end"},
    {"object key - invalid literal", "this is no key, expected a text in quotation marks"},
    {"invalid literal", "this is no value, expected a text in quotation marks, a number, true or false"},
};

constexpr std::string_view json_blanks = " \t\r\n";

Place place_at(std::size_t at, const std::string& text, const std::string& file)
{
    const std::size_t end = std::min(at, text.size());
    const std::size_t line_end = end == 0 ? text.npos : text.rfind('\n', end - 1);
    return {file, static_cast<int>(1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n')),
            static_cast<int>(line_end == text.npos ? end : end - line_end - 1) + 1};
}

/// The mistakes that are made most: a comma that is missing, one too many, a comment.
std::optional<BadInput> common_mistake(const std::string& words, std::size_t at, const std::string& text,
                                       const std::string& file)
{
    const auto is_letter = [&](std::size_t i) { return std::isalnum(static_cast<unsigned char>(text[i])) != 0; };
    if (at >= text.size()) {
        return std::nullopt;
    }
    if (text[at] == '/' || text[at] == '#' || (at > 0 && text[at - 1] == '/')) {
        return BadInput(place_at(at, text, file), "a JSON file can't hold comments, expected none");
    }
    std::size_t begin = token_begin(text, at + 1);
    while (begin > 0 && is_letter(begin) && is_letter(begin - 1)) {
        --begin;
    }
    const std::size_t before = begin == 0 ? text.npos : text.find_last_not_of(json_blanks, begin - 1);
    const bool closes = text[begin] == '}' || text[begin] == ']';
    if (closes && before != text.npos && text[before] == ',') {
        return BadInput(place_at(before, text, file),
                        "there is a comma too many, expected none before '" + text.substr(begin, 1) + "'");
    }
    const bool between = words.find("parsing object -") != words.npos || words.find("parsing array -") != words.npos;
    if (between && !closes && text[begin] != ':' && before != text.npos) {
        return BadInput(place_at(before + 1, text, file), "a comma is missing, expected ',' before what follows");
    }
    return std::nullopt;
}

BadInput syntax_error(const json::parse_error& error, const std::string& text, const std::string& file)
{
    const std::string all = error.what();
    const std::size_t begin = all.find(": ");
    std::string words = all.substr(begin == all.npos ? 0 : begin + 2);
    const std::size_t at = error.byte == 0 ? text.size() : error.byte - 1; // the byte in question counts as read
    if (const auto common = common_mistake(words, at, text, file)) {
        return *common;
    }
    for (const Slip& slip : slips) {
        if (words.find(slip.words) != words.npos) {
            return {place_at(at, text, file), slip.what};
        }
    }
    words = words.substr(0, words.find("; last read"));
    const std::size_t expected = words.find("; expected ");
    return {place_at(at, text, file), expected == words.npos ? words : words.replace(expected, 1, ",")};
}

/// Well formed, but no value of this machine: 1e999.
BadInput overflow(const json::exception& error, const std::string& text, const std::string& file)
{
    const std::string words = error.what();
    const std::size_t first = words.find('\'');
    const std::string number = first == words.npos ? "" : words.substr(first + 1, words.rfind('\'') - first - 1);
    return {place_at(text.find(number), text, file),
            "'" + number + "' is too large, expected a whole number of 32 bits"};
}

} // namespace

Place JsonPlaces::of(const std::string& part) const
{
    const auto found = places_.find(part);
    if (found != places_.end()) {
        return found->second;
    }
    return part.empty() ? Place{file_} : of(part.substr(0, part.rfind('/')));
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
        throw BadInput(syntax_error(error, text, file));
    } catch (const json::exception& error) {
        throw BadInput(overflow(error, text, file));
    }
    const Place begin = place_at(text.find_first_not_of(json_blanks), text, file);
    if (!root.is_object()) {
        throw BadInput(begin, "the file is " + words_of_value(root) + ", expected one object, { ... }");
    }
    if (places != nullptr) {
        places->add("", begin.line, begin.column);
    }
    return root;
}

std::string words_of_value(const json& value)
{
    if (value.is_structured()) {
        return value.is_array() ? "a list" : "an object";
    }
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

FieldReader::FieldReader(const json& object, Place place, std::string subject)
    : object_(object), place_(std::move(place)), subject_(std::move(subject))
{
    if (!object_.is_object()) {
        throw BadInput(place_, subject_ + " is " + words_of_value(object) + ", expected an object, { ... }");
    }
}

FieldReader::FieldReader(const json& object, const JsonPlaces& places, std::string part, std::string subject)
    : FieldReader(object, places.of(part), std::move(subject))
{
    places_ = &places;
    part_ = std::move(part);
}

std::string FieldReader::misspelt(const std::string& name) const
{
    for (const auto& [other, value] : object_.items()) {
        const bool known = known_.count(other) > 0 || std::count(expected_.begin(), expected_.end(), other) > 0;
        if (!known && nearest_word(other, expected_) == name) {
            return other;
        }
    }
    return "";
}

const json& FieldReader::field(const std::string& name, const std::string& form)
{
    known_.insert(name);
    const auto found = object_.find(name);
    if (found != object_.end()) {
        return *found;
    }
    const std::string other = misspelt(name);
    if (!other.empty()) {
        known_.insert(other);
        complain(other, "unknown field '" + other + "'", "'" + name + "'");
    }
    complain(name, "'" + name + "' is missing", form);
}

std::string FieldReader::text(const std::string& name, std::size_t min_bytes, std::size_t max_bytes)
{
    const std::string bytes = std::to_string(min_bytes) + " to " + std::to_string(max_bytes);
    const json& value = field(name, "a text of " + bytes + " bytes");
    if (!value.is_string()) {
        complain(name, "'" + name + "' is " + words_of_value(value), "a text of " + bytes + " bytes");
    }
    const auto text = value.get<std::string>();
    if (text.size() < min_bytes || text.size() > max_bytes) {
        complain(name, "'" + name + "' has " + std::to_string(text.size()) + " bytes", bytes);
    }
    if (text.find('\0') != std::string::npos) {
        complain(name, "'" + name + "' holds a zero byte", "letters alone");
    }
    return text;
}

std::int32_t FieldReader::integer(const std::string& name)
{
    static const std::string form = "a whole number of 32 bits";
    const json& value = field(name, form);
    const bool small =
        value.is_number_integer() && (value.is_number_unsigned() ? value.get<std::uint64_t>() < (1U << 31)
                                                                 : value.get<std::int64_t>() >= -(1LL << 31));
    if (!small) {
        complain(name, "'" + name + "' is " + words_of_value(value), form);
    }
    return value.get<std::int32_t>();
}

void FieldReader::refuse_other_fields() const
{
    std::vector<BadInput> mistakes;
    tell_other_fields(mistakes);
    if (!mistakes.empty()) {
        throw BadInput(mistakes.front());
    }
}

void FieldReader::tell_other_fields(std::vector<BadInput>& mistakes) const
{
    for (const auto& [name, value] : object_.items()) {
        if (known_.count(name) == 0) {
            mistakes.push_back(
                mistake(name, "unknown field '" + name + "'", one_of(name, {known_.begin(), known_.end()})));
        }
    }
}

void FieldReader::complain(const std::string& field, const std::string& what, const std::string& expected) const
{
    throw BadInput(mistake(field, what, expected));
}

BadInput FieldReader::mistake(const std::string& field, const std::string& what, const std::string& expected) const
{
    const bool is_there = places_ != nullptr && has(field);
    return {is_there ? places_->of(part_ + "/" + field) : place_,
            (subject_.empty() ? "" : subject_ + ": ") + what + (expected.empty() ? "" : ", expected " + expected)};
}

} // namespace pages
