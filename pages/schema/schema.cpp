#include "pages/schema/schema.h"

#include <string_view>

#include "pages/schema/holds.h"

namespace pages {
namespace {

/// Adds lines of XML, each indented as deep as it lies.
class Writer {
public:
    void line(const std::string& text) { text_ += std::string(depth_ * 2, ' ') + text + "\n"; }

    void open(const std::string& tag, const std::string& attributes = "")
    {
        line("<" + tag + (attributes.empty() ? "" : " " + attributes) + ">");
        ++depth_;
    }

    void close(const std::string& tag)
    {
        --depth_;
        line("</" + tag + ">");
    }

    void document(std::string_view sentence)
    {
        line("<xs:annotation><xs:documentation>" + escaped(sentence) + "</xs:documentation></xs:annotation>");
    }

    const std::string& text() const { return text_; }

private:
    static std::string escaped(std::string_view words)
    {
        std::string safe;
        for (const char letter : words) {
            safe += letter == '&' ? "&amp;" : letter == '<' ? "&lt;" : letter == '>' ? "&gt;" : std::string(1, letter);
        }
        return safe;
    }

    std::string text_;
    std::size_t depth_ = 0;
};

std::string quoted(const char* attribute, const std::string& value)
{
    return std::string(attribute) + "=\"" + value + "\"";
}

void write_text_type(Writer& out, const char* name, const char* least, const char* sentence)
{
    out.open("xs:simpleType", quoted("name", name));
    out.document(sentence);
    out.open("xs:restriction", quoted("base", "xs:string"));
    out.line(std::string("<xs:minLength ") + quoted("value", least) + "/>");
    out.line("<xs:maxLength " + quoted("value", "31") + "/>");
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void write_words(Writer& out, const AttributeUse& use)
{
    out.open("xs:simpleType");
    out.open("xs:restriction", quoted("base", "xs:string"));
    for (const Word& word : use.words) {
        out.open("xs:enumeration", quoted("value", word.word));
        out.document(word.meaning);
        out.close("xs:enumeration");
    }
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void write_attribute(Writer& out, const AttributeUse& use)
{
    const HoldsWords& holds = described(use.holds);
    const bool by_all = std::string_view(use.needed).substr(0, 6) == "every ";
    std::string attributes = quoted("name", use.name());
    attributes += *holds.type == '\0' ? "" : " " + quoted("type", holds.type);
    attributes += by_all ? " " + quoted("use", "required") : "";
    const std::string needed = *use.needed == '\0' || by_all ? "" : std::string(" Needed by: ") + use.needed + ".";
    const std::string kind = use.holds == Holds::Word ? "" : std::string(" ") + holds.meaning;
    out.open("xs:attribute", attributes);
    out.document(use.meaning + kind + needed);
    if (use.holds == Holds::Word) {
        write_words(out, use);
    }
    out.close("xs:attribute");
}

void write_element(Writer& out, const ElementWords& element)
{
    out.open("xs:element", quoted("name", element.name));
    out.document(element.meaning);
    out.open("xs:complexType");
    out.open("xs:sequence");
    out.line(std::string("<xs:element ") + quoted("ref", element.child) + " minOccurs=\"0\" maxOccurs=\"unbounded\"/>");
    out.close("xs:sequence");
    for (const AttributeUse& use : attribute_uses()) {
        if (use.on == element.on) {
            write_attribute(out, use);
        }
    }
    out.close("xs:complexType");
    out.close("xs:element");
}

} // namespace

std::string schema()
{
    Writer out;
    out.line("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    out.line("<!-- Written by \"osdmenu-pages schema\". -->");
    out.open("xs:schema", "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"");
    out.document("Pages of the menu. The check knows more than a schema can say: osdmenu-pages check FOLDER.");
    write_text_type(out, "Key", "1", "A key: at most 31 bytes.");
    write_text_type(out, "Name", "1", "A name without folder and ending: at most 31 bytes.");
    write_text_type(out, "Literal", "0", "At most 31 bytes.");
    for (const ElementWords& element : element_words) {
        write_element(out, element);
    }
    out.close("xs:schema");
    return out.text();
}

} // namespace pages
