#include "bench/page.h"

#include <sstream>

namespace bench {
namespace {

const std::string status_key = "FwVersion";

struct Kind {
    const char* label;
    tagITEM_CTX_E context;
    const char* value;
    const char* attributes;
};

constexpr Kind kinds[] = {
    {"Setting ", NAME_VAL, "Automatic", R"(Ctx="NAME_VAL" Attr="COMMON" ValType="OPTTXT" PicType="SUBTYPE")"},
    {"Level ", NAME_BAR_VAL, "50", R"(Ctx="NAME_BAR_VAL" Attr="COMMON" ValType="NUMERICAL" DataZone="Image")"},
    {"Address ", NAME_IP_VAL, "192.168.100.120",
     R"(Ctx="NAME_IP_VAL" Attr="EDITABLE" ValType="EDITTXT" NumOfChar="15")"},
    {"FwVersion", NAME_VAL, "1.2.3.4", R"(Ctx="NAME_VAL" Attr="STATUS")"},
    {"Heading ", NAME, "", R"(Ctx="NAME" Attr="CONST_TXT")"},
};

const Kind& kind_of(size_t row) { return kinds[row % std::size(kinds)]; }

} // namespace

std::vector<Row> make_rows(int count)
{
    std::vector<Row> rows;
    for (size_t i = 0; i < static_cast<size_t>(count); i++) {
        const Kind& kind = kind_of(i);
        // the status row has the key of a status source; the others only need a label
        const std::string label = kind.label == status_key ? status_key : kind.label + std::to_string(i + 1);
        rows.push_back({label, kind.context, kind.value});
    }
    return rows;
}

std::string page_xml(const std::vector<Row>& rows)
{
    std::ostringstream xml;
    xml << "<Page Layout=\"vertical_align\" Title=\"" << title << "\" TitlePos=\"Left\">\n";
    for (size_t i = 0; i < rows.size(); i++) {
        xml << "  <Item ItemIndex=\"" << rows[i].label << "\" " << kind_of(i).attributes << "/>\n";
    }
    xml << "</Page>\n";
    return xml.str();
}

} // namespace bench
