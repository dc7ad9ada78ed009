// JSON files with errors that a person can act on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "pages/data/errors.h"

namespace pages {

/// Where the parts of a file stand.
class JsonPlaces {
public:
    explicit JsonPlaces(std::string file) : file_(std::move(file)) {}

    /// A part is named by the keys and indices on the way to it, each behind a slash: "/settings/12/key".
    void add(const std::string& part, int line, int column) { places_[part] = {file_, line, column}; }
    /// That of what is around it for a part that isn't there.
    Place of(const std::string& part) const;

private:
    std::string file_;
    std::map<std::string, Place> places_;
};

/// Reads a file whose top level is an object. Throws BadInput with the reason and the place of a syntax error; a field given twice is an error too. The places, if wanted, learn where each part stands.
nlohmann::json load_json_object(const std::filesystem::path& path, JsonPlaces* places = nullptr);
/// The same from a text, in errors named as the file is.
nlohmann::json parse_json_object(const std::string& text, const std::string& file, JsonPlaces* places = nullptr);

/// Reads the fields of one object. Each complaint is a BadInput at the field, whose words begin with the subject, such as
/// "setting 'Zoom'".
class FieldReader {
public:
    /// The object must outlive the reader. Throws when it is no object.
    FieldReader(const nlohmann::json& object, Place place, std::string subject = "");
    /// The same for a part of a file; the places must outlive the reader too.
    FieldReader(const nlohmann::json& object, const JsonPlaces& places, std::string part, std::string subject);

    /// What fields there may be: one that is missing may stand there under a misspelt name.
    void expect(std::vector<std::string> names) { expected_ = std::move(names); }

    bool has(const std::string& name) const { return object_.contains(name); }
    /// form: what it should be, in words.
    const nlohmann::json& field(const std::string& name, const std::string& form);
    /// A text of at most max_bytes; with min_bytes 1 it can't be empty.
    std::string text(const std::string& name, std::size_t min_bytes, std::size_t max_bytes);
    std::int32_t integer(const std::string& name);
    /// Of fields that nobody is interested in any more.
    void ignore(const std::vector<std::string>& names) { known_.insert(names.begin(), names.end()); }

    /// Throws when the object has a field that was never asked for.
    void refuse_other_fields() const;
    /// The same for each such field.
    void tell_other_fields(std::vector<BadInput>& mistakes) const;

    /// At a field, or at the object where there is no such field. Expected: may be empty.
    [[noreturn]] void complain(const std::string& field, const std::string& what, const std::string& expected) const;

private:
    BadInput mistake(const std::string& field, const std::string& what, const std::string& expected) const;
    /// The unknown field that may be meant by a missing one; empty for none.
    std::string misspelt(const std::string& name) const;

    const nlohmann::json& object_;
    Place place_;
    const JsonPlaces* places_ = nullptr;
    std::string part_;
    std::string subject_;
    std::vector<std::string> expected_;
    std::set<std::string> known_; ///< those that were asked for
};

/// What a field holds, for messages: its value, or what kind of thing it is.
std::string words_of_value(const nlohmann::json& value);

} // namespace pages
