// JSON files with errors that a person can act on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>

namespace sim {

/// Where the parts of a file stand.
class JsonPlaces {
public:
    explicit JsonPlaces(std::string file) : file_(std::move(file)) {}

    /// A part is named by the keys and indices on the way to it, each behind a slash: "/settings/12/key".
    void add(const std::string& part, int line) { lines_[part] = line; }
    /// "FILE:LINE"; "FILE" for a part that isn't there.
    std::string of(const std::string& part) const;

private:
    std::string file_;
    std::map<std::string, int> lines_;
};

/// Reads a file whose top level is an object. Throws BadInput with the file and the reason, and the line of a syntax
/// error; a field given twice is an error too. The places, if wanted, learn where each part stands.
nlohmann::json load_json_object(const std::filesystem::path& path, JsonPlaces* places = nullptr);
/// The same from a text; its errors begin with the place.
nlohmann::json parse_json_object(const std::string& text, const std::string& place, JsonPlaces* places = nullptr);

/// Reads the fields of one object. Each complaint is a BadInput that begins with the place, such as
/// "settings.json: setting 'Zoom'".
class FieldReader {
public:
    /// The object must outlive the reader. Throws when it is no object.
    FieldReader(const nlohmann::json& object, std::string place);

    bool has(const std::string& name) const { return object_.contains(name); }
    const nlohmann::json& field(const std::string& name);
    /// A text of at most max_bytes; with min_bytes 1 it can't be empty.
    std::string text(const std::string& name, std::size_t min_bytes, std::size_t max_bytes);
    std::int32_t integer(const std::string& name);

    /// Throws when the object has a field that was never asked for.
    void refuse_other_fields() const;

    [[noreturn]] void complain(const std::string& what) const;

private:
    const nlohmann::json& object_;
    std::string place_;
    std::set<std::string> known_;
};

} // namespace sim
