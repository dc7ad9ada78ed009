// The pages that are measured: one for each layout, and three lengths of the vertical list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "osd_records.h"

namespace bench {

struct Row {
    std::string label; // key in the page file and, as the camera translates nothing, text on the page
    tagITEM_CTX_E context = NAME;
    tagITEM_ATTR_E attribute = CONST_TXT;
    std::string value;   // as drawn
    std::string picture; // stem of the picture that belongs to the row
    std::string xml;     // its attributes in the page file
};

struct Page {
    std::string_view name;
    tagPAGE_LAYOUT_E layout;
    std::vector<Row> rows; // the first one holds the cursor
};

inline constexpr char title[] = "Benchmark";
inline constexpr char page_number[] = "2/3"; // of the paged list
inline constexpr char message[] = "The camera starts anew.";
inline constexpr int cells_per_line = 3;

// Bars stand at this position of this many steps.
inline constexpr int bar_position = 50;
inline constexpr int bar_steps = 101;

// What the camera answers for the other rows with a value.
inline constexpr char option_value[] = "Automatic";
inline constexpr char address_value[] = "192.168.100.120";
inline constexpr char status_value[] = "1.2.3.4";

// All pages; the one that the instructions are counted on is among them by this name.
const std::vector<Page>& pages();
inline constexpr char counted_page[] = "vertical10";

std::string page_xml(const Page& page);

} // namespace bench
