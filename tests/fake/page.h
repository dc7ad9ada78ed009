// Pages as page files, and an open menu as a small screen of text:
//     main at More / image            the pages, each lower one with what is selected on it
//     > Mode     Manual               the item with the cursor, and its value
//         Gain   40 of 0..100         an item below it
//       Iris     Auto, was Low        a value that isn't committed
//       Address  192.168.[0]01.005    the digit that is being edited
//     ---
//     Press                           the message line
#pragma once

#include <map>
#include <string>
#include <vector>

#include "osd_records.h"

namespace fake {

// Stores the page file of that name with these items. Words that it leaves out are the usual ones: a vertical list of
// values that a key changes at once. What an item does may set others: a button reads "Go", a message "Press".
void setPage(const std::string& name, const std::string& items, const std::string& attributes = "");

// Several of them: a line "name attributes:", with the items behind it or below.
void setPages(const std::string& text);

// The item at that place, or null.
tagITEM_NODE_S* itemAt(const list_head& list, int index);
// The items of a page that show, in order.
std::vector<tagITEM_NODE_S*> itemsOf(tagPAGE_NODE_S& page);
// The first one of that key on the page that was opened n-th; it must be there.
tagITEM_NODE_S& itemOf(const std::string& key, int page = 0);

void setField(char (&field)[OSD_TEXT_LEN], const std::string& text);

std::string valueOf(const tagITEM_NODE_S& item);
std::vector<std::string> screen();

// A text's lines without their common margin and without empty ones; a line without what only aligns it.
std::vector<std::string> linesIn(const std::string& text);
std::string squeezed(const std::string& line);

// The cells of a table, a line a row, with "|" between them. A line with "|" in front continues the row above, with its
// next cell or, behind a comma or semicolon, with the same one.
std::vector<std::vector<std::string>> tableIn(const std::string& text);

std::string joined(const std::vector<std::string>& parts, const std::string& between);

} // namespace fake
