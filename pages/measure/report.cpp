#include "pages/measure/report.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace pages {
namespace {

using Row = std::array<std::string, 9>;

/// The item's key, or that of the option; empty for the page.
std::string item_of(const TextRoom& room)
{
    const std::string key = room.element->value("ItemIndex");
    return key.empty() && room.element->parent != nullptr ? room.element->parent->value("ItemIndex") : key;
}

Row row_of(const TextRoom& room)
{
    return {room.page,
            item_of(room),
            name_of(room.role),
            room.view.language,
            "style " + std::to_string(room.view.style) + " " + size_name(room.view.uhd),
            std::to_string(room.width),
            std::to_string(room.room),
            std::to_string(room.left()),
            room.text};
}

/// Letters, not bytes: those of Chinese count double.
std::size_t columns_of(const std::string& text)
{
    std::size_t columns = 0;
    for (const char byte : text) {
        const auto lead = static_cast<unsigned char>(byte);
        columns += (lead & 0xC0U) == 0x80 ? 0U : lead >= 0xE3 ? 2U : 1U;
    }
    return columns;
}

} // namespace

std::string table_of(const std::vector<TextRoom>& rooms)
{
    std::vector<Row> rows{{"page", "item", "is", "language", "tightest in", "width", "room", "left", "text"}};
    std::transform(rooms.begin(), rooms.end(), std::back_inserter(rows), row_of);
    std::array<std::size_t, std::tuple_size_v<Row>> widths{};
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], columns_of(row[i]));
        }
    }
    std::string table;
    for (const Row& row : rows) {
        for (std::size_t i = 0; i + 1 < row.size(); ++i) {
            const std::string space(widths[i] - columns_of(row[i]), ' ');
            const bool is_number = i >= 5;
            table += (is_number ? space + row[i] : row[i] + space) + "  ";
        }
        table += row.back() + "\n";
    }
    return table;
}

std::string to_json(const Measures& measures)
{
    nlohmann::json json = nlohmann::json::parse(to_json(measures.findings));
    json["texts"] = nlohmann::json::array();
    for (const TextRoom& room : measures.rooms) {
        json["texts"].push_back({{"page", room.page},
                                 {"item", item_of(room)},
                                 {"role", name_of(room.role)},
                                 {"key", room.key},
                                 {"text", room.text},
                                 {"language", room.view.language},
                                 {"style", room.view.style},
                                 {"size", size_name(room.view.uhd)},
                                 {"width", room.width},
                                 {"room", room.room},
                                 {"left", room.left()},
                                 {"line", room.element->place.line},
                                 {"column", room.element->place.column}});
    }
    return json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace pages
