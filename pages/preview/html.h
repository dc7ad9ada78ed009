// Texts in HTML.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace pages {

/// The text with every occurrence of a part replaced.
inline std::string replaced(std::string text, const std::string& part, const std::string& by)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
        text.replace(at, part.size(), by);
    }
    return text;
}

/// A page with the place "{{NAME}}" filled in.
inline std::string filled_in(const std::string& page, const std::string& place, const std::string& by)
{
    return replaced(page, "{{" + place + "}}", by);
}

/// A text between tags or in an attribute.
inline std::string escaped(const std::string& text)
{
    return replaced(replaced(replaced(text, "&", "&amp;"), "<", "&lt;"), "\"", "&quot;");
}

/// Data inside a script element, which no text in it can end.
inline std::string for_script(const nlohmann::json& data)
{
    return replaced(data.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace), "<", "\\u003c");
}

} // namespace pages
