#include "bench/page.h"

#include <iterator>
#include <sstream>

namespace bench {
namespace {

// A label that ends with a blank is numbered; the others are keys that mean something to the library.
const Row option = {"Setting ",   NAME_VAL, COMMON,
                    option_value, "",       R"(Ctx="NAME_VAL" Attr="COMMON" ValType="OPTTXT" PicType="SUBTYPE")"};
const Row bar = {"Level ", NAME_BAR_VAL,
                 COMMON,   std::to_string(bar_position),
                 "",       R"(Ctx="NAME_BAR_VAL" Attr="COMMON" ValType="NUMERICAL" DataZone="Image")"};
const Row address = {
    "Address ", NAME_IP_VAL,
    EDITABLE,   address_value,
    "",         R"(Ctx="NAME_IP_VAL" Attr="EDITABLE" ValType="EDITTXT" NumOfChar="15" PicType="IPTYPE")"};
const Row status = {"FwVersion", NAME_VAL, STATUS, status_value, "", R"(Ctx="NAME_VAL" Attr="STATUS")"};
const Row heading = {"Heading ", NAME, CONST_TXT, "", "", R"(Ctx="NAME" Attr="CONST_TXT")"};
const Row sub_page = {"Submenu ", NAME, SUBPAGE, "", "", R"(Ctx="NAME" Attr="SUBPAGE" SubPage="image")"};
const Row button = {"Restart",       NAME,
                    CONFIRM_POP_BTN, "",
                    "restart",       R"(Ctx="NAME" Attr="CONFIRM_POP_BTN" ConfirmPage="confirm_restart" Line="1")"};
const Row no = {"No", NAME, CONFIRM, "", "", R"(Ctx="NAME" Attr="CONFIRM" ItemCnt="2" ItemIndexOnLine="0")"};
const Row yes = {"Yes", NAME, CONFIRM, "", "", R"(Ctx="NAME" Attr="CONFIRM" ItemCnt="2" ItemIndexOnLine="1")"};

std::vector<Row> numbered(std::vector<Row> rows)
{
    for (size_t i = 0; i < rows.size(); i++) {
        if (rows[i].label.back() == ' ') {
            rows[i].label += std::to_string(i + 1);
        }
    }
    return rows;
}

// The kinds of the vertical list in turn.
std::vector<Row> vertical_rows(size_t count)
{
    const Row kinds[] = {option, bar, address, status, heading};
    std::vector<Row> rows;
    for (size_t i = 0; i < count; i++) {
        rows.push_back(kinds[i % std::size(kinds)]);
    }
    return numbered(rows);
}

std::vector<Row> cells()
{
    std::vector<Row> rows;
    for (const std::string stem : {"nav_move", "nav_enter", "nav_set", "arrow_all", "arrow_top", "arrow_bottom",
                                   "confirm", "default", "restart"}) {
        rows.push_back({"Cell ", ICON_TXT, SUBPAGE, "", stem,
                        R"(Ctx="ICON_TXT" Attr="SUBPAGE" SubPage="image" Pic=")" + stem + '"'});
    }
    return numbered(rows);
}

std::string root_attributes(tagPAGE_LAYOUT_E layout)
{
    const std::string with_title = std::string(" Title=\"") + title + "\" TitlePos=\"Left\"";
    switch (layout) {
    case PAGE_LAYOUT_ICON:
        return "Layout=\"icon\" CountPerLine=\"" + std::to_string(cells_per_line) + '"';
    case PAGE_LAYOUT_VERTICAL:
        return "Layout=\"vertical_align\"" + with_title;
    case PAGE_LAYOUT_HORIZONTAL:
        return "Layout=\"horizontal_align\"" + with_title;
    case PAGE_LAYOUT_VERTICAL_TOLVANE:
        return "Layout=\"vertical_tolvane_align\"" + with_title;
    case PAGE_LAYOUT_VERTICAL_KETH:
        return "Layout=\"vertical_align_keth\" NextPage=\"image\" PrevPage=\"image\" CurPagesNum=\"" +
               std::string(page_number) + '"' + with_title;
    case PAGE_LAYOUT_HORIZONTAL_KETH:
        return "Layout=\"horizontal_align_keth\" Msg=\"" + std::string(message) + '"' + with_title;
    }
    return "";
}

} // namespace

const std::vector<Page>& pages()
{
    static const std::vector<Page> all = {
        {"vertical5", PAGE_LAYOUT_VERTICAL, vertical_rows(5)},
        {"vertical10", PAGE_LAYOUT_VERTICAL, vertical_rows(10)},
        {"vertical20", PAGE_LAYOUT_VERTICAL, vertical_rows(20)},
        {"tolvane", PAGE_LAYOUT_VERTICAL_TOLVANE,
         numbered({address, option, bar, status, heading, option, bar, status, heading, address})},
        {"paged", PAGE_LAYOUT_VERTICAL_KETH,
         numbered({option, bar, option, bar, address, status, option, bar, sub_page, button})},
        {"icons", PAGE_LAYOUT_ICON, cells()},
        {"popup", PAGE_LAYOUT_HORIZONTAL, {no, yes}},
        {"message", PAGE_LAYOUT_HORIZONTAL_KETH, {no, yes}},
    };
    return all;
}

std::string page_xml(const Page& page)
{
    std::ostringstream xml;
    xml << "<Page " << root_attributes(page.layout) << ">\n";
    for (const Row& row : page.rows) {
        xml << "  <Item ItemIndex=\"" << row.label << "\" " << row.xml << "/>\n";
    }
    xml << "</Page>\n";
    return xml.str();
}

} // namespace bench
