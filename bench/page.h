// The pages that are measured: one for each layout, and three lengths of the vertical list.
#pragma once

#include <string>
#include <vector>

namespace bench {

// The label is a key in the page file and, as the camera translates nothing, the text on the page.
struct Row {
    std::string label;
    std::string attributes; // in the page file
};

struct Page {
    std::string name;
    std::string attributes;
    std::vector<Row> rows; // the first one holds the cursor
};

// All pages; the one that the instructions are counted on is among them by this name.
const std::vector<Page>& pages();
inline constexpr char counted_page[] = "vertical10";

std::string page_xml(const Page& page);

} // namespace bench
