// The page that is measured: a title and rows of every kind that the vertical list draws.
#pragma once

#include <string>
#include <vector>

#include "osd_records.h"

namespace bench {

struct Row {
    std::string label;
    tagITEM_CTX_E context = NAME;
    std::string value; // as drawn; empty for NAME
};

inline constexpr char title[] = "Benchmark";

// The rows of a page, in turn an option, a bar, an address, a status and a label alone.
std::vector<Row> make_rows(int count);

// A page file with these rows.
std::string page_xml(const std::vector<Row>& rows);

// Bars stand at this position of this many steps.
inline constexpr int bar_position = 50;
inline constexpr int bar_steps = 101;

} // namespace bench
