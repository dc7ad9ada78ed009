// JSON files with errors that a person can act on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>

#include "pages/data/errors.h"

namespace pages {

/// Where the parts of a file stand.
class JsonPlaces {
public:
    explicit JsonPlaces(std::string file) : file_(std::move(file)) {}

    /// A part is named by the keys and indices on the way to it, each behind a slash: "/settings/12/key".
    void add(const std::string& part, int line, int column) { places_[part] = {file_, line, column}; }
    /// The file alone for a part that isn't there.
    Place of(const std::string& part) const;

private:
    std::string file_;
    std::map<std::string, Place> places_;
};

/// Reads a file whose top level is an object. Throws BadInput with the reason and the place of a syntax error; a field given twice is an error too. The places, if wanted, learn where each part stands.
nlohmann::json load_json_object(const std::filesystem::path& path, JsonPlaces* places = nullptr);
/// The same from a text, in errors named as the file is.
nlohmann::json parse_json_object(const std::string& text, const std::string& file, JsonPlaces* places = nullptr);

/// Reads the fields of one object. Each complaint is a BadInput of that place, whose words begin with the subject, such
/// as "setting 'Zoom'".
class FieldReader {
public:
    /// The object must outlive the reader. Throws when it is no object.
    FieldReader(const nlohmann::json& object, Place place, std::string subject = "");

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
    Place place_;
    std::string subject_;
    std::set<std::string> known_;
};

} // namespace pages
