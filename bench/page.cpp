#include "bench/page.h"

#include <iterator>
#include <sstream>

namespace bench {
namespace {

// A label that ends with a blank is numbered; the others are keys that mean something to the library.
const Row option = {"Setting ", R"(Ctx="NAME_VAL" Attr="COMMON" ValType="OPTTXT" PicType="SUBTYPE")"};
const Row bar = {"Level ", R"(Ctx="NAME_BAR_VAL" Attr="COMMON" ValType="NUMERICAL" DataZone="Image")"};
const Row address = {"Address ",
                     R"(Ctx="NAME_IP_VAL" Attr="EDITABLE" ValType="EDITTXT" NumOfChar="15" PicType="IPTYPE")"};
const Row status = {"FwVersion", R"(Ctx="NAME_VAL" Attr="STATUS")"};
const Row heading = {"Heading ", R"(Ctx="NAME" Attr="CONST_TXT")"};
const Row sub_page = {"Submenu ", R"(Ctx="NAME" Attr="SUBPAGE" SubPage="image")"};
const Row button = {"Restart", R"(Ctx="NAME" Attr="CONFIRM_POP_BTN" ConfirmPage="confirm_restart" Line="1")"};
const Row no = {"No", R"(Ctx="NAME" Attr="CONFIRM" ItemCnt="2" ItemIndexOnLine="0")"};
const Row yes = {"Yes", R"(Ctx="NAME" Attr="CONFIRM" ItemCnt="2" ItemIndexOnLine="1")"};

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
        rows.push_back({"Cell ", R"(Ctx="ICON_TXT" Attr="SUBPAGE" SubPage="image" Pic=")" + stem + '"'});
    }
    return numbered(rows);
}

} // namespace

const std::vector<Page>& pages()
{
    static const std::string title = R"(Title="Benchmark" TitlePos="Left" )";
    static const std::vector<Page> all = {
        {"vertical5", title + R"(Layout="vertical_align")", vertical_rows(5)},
        {"vertical10", title + R"(Layout="vertical_align")", vertical_rows(10)},
        {"vertical20", title + R"(Layout="vertical_align")", vertical_rows(20)},
        {"tolvane", title + R"(Layout="vertical_tolvane_align")",
         numbered({address, option, bar, status, heading, option, bar, status, heading, address})},
        {"paged", title + R"(Layout="vertical_align_keth" NextPage="image" PrevPage="image" CurPagesNum="2/3")",
         numbered({option, bar, option, bar, address, status, option, bar, sub_page, button})},
        {"icons", R"(Layout="icon" CountPerLine="3")", cells()},
        {"popup", title + R"(Layout="horizontal_align")", {no, yes}},
        {"message", title + R"(Layout="horizontal_align_keth" Msg="The camera starts anew.")", {no, yes}},
    };
    return all;
}

std::string page_xml(const Page& page)
{
    std::ostringstream xml;
    xml << "<Page " << page.attributes << ">\n";
    for (const Row& row : page.rows) {
        xml << "  <Item ItemIndex=\"" << row.label << "\" " << row.attributes << "/>\n";
    }
    xml << "</Page>\n";
    return xml.str();
}

} // namespace bench
