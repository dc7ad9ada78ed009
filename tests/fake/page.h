// Builds pages and items as records, without a page file.
#pragma once

#include <initializer_list>
#include <string>

#include "osd_records.h"

namespace fake {

// Pushes an empty page; a title when the text isn't empty.
tagPAGE_NODE_S* addPage(tagPAGE_LAYOUT_E layout, const std::string& title = "");

// Appends an item whose key is its name; a value text makes it an item of one option.
tagITEM_NODE_S* addItem(tagPAGE_NODE_S* page, const std::string& name, tagITEM_CTX_E ctx, tagITEM_ATTR_E attr,
                        const std::string& value = "");

// Appends a sub-item under an option, one level below its parent.
tagITEM_NODE_S* addSubItem(tagITEM_NODE_S* parent, int option, const std::string& name, tagITEM_CTX_E ctx,
                           tagITEM_ATTR_E attr, const std::string& value = "");

// Gives an item its options, with empty lists of sub-items; labels equal keys.
void setOptions(tagITEM_NODE_S* item, std::initializer_list<const char*> options, int current = 0);
void setRange(tagITEM_NODE_S* item, int min, int max, int step, int current);
void setField(char (&field)[OSD_TEXT_LEN], const std::string& text);

// The fields that differ from what an empty record holds, as text. Options read [key|label{sub-items}], numbers
// min..max/step=shown,saved.
std::string describe(const tagPAGE_NODE_S& page);
std::string describe(const tagITEM_NODE_S& item);

tagITEM_NODE_S* itemAt(const list_head& list, int index);

} // namespace fake
