#include "simulator/host/page_check.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <tinyxml2.h>

#include "osd_page.h"
#include "osd_xml.h"
#include "simulator/core/log.h"
#include "simulator/host/page_stack.h"

namespace sim {
namespace {

using tinyxml2::XMLElement;

/// A list of items that goes with all of them.
struct ItemList {
    ItemList() = default;
    ~ItemList()
    {
        while (head.next != &head) {
            list_head* link = head.next;
            head.next = link->next;
            osdMenuReleaseItem(item_of(link));
        }
    }
    ItemList(const ItemList&) = delete;
    ItemList& operator=(const ItemList&) = delete;

    list_head head{&head, &head};
};

PageMistake syntax_mistake(const tinyxml2::XMLDocument& document)
{
    if (document.ErrorID() == tinyxml2::XML_ERROR_MISMATCHED_ELEMENT) { // the parser tells where it begins
        return {document.ErrorLineNum(), "no well formed XML: what begins here isn't closed by an end tag of its name"};
    }
    constexpr std::string_view prefix = "XML_ERROR_";
    std::string words = document.ErrorName();
    words.erase(0, words.compare(0, prefix.size(), prefix) == 0 ? prefix.size() : 0);
    std::transform(words.begin(), words.end(), words.begin(),
                   [](unsigned char c) { return c == '_' ? ' ' : static_cast<char>(std::tolower(c)); });
    return {document.ErrorLineNum(), "no well formed XML: " + words};
}

/// What the log says of an element that the menu refuses: "line 12: ..." or a missing text.
PageMistake mistake_in_log(const LogTrap& trap, int line, const std::string& otherwise)
{
    for (const LogEntry& entry : trap.entries()) {
        int told = 0;
        int words = 0;
        if (std::sscanf(entry.text.c_str(), "line %d: %n", &told, &words) == 1 && words > 0) {
            return {told, entry.text.substr(static_cast<std::size_t>(words))};
        }
        if (entry.tag == "language") {
            return {line, entry.text};
        }
    }
    return {line, otherwise};
}

std::string start_of(const XMLElement& element)
{
    const char* key = element.Attribute("ItemIndex");
    return std::string("<") + element.Name() + (key == nullptr ? "" : std::string(" ItemIndex=\"") + key + "\"") + ">";
}

class PageReader {
public:
    PageReader(Camera& camera, const std::string& name) : camera_(camera)
    {
        std::snprintf(name_.data(), name_.size(), "%s", name.c_str());
        std::snprintf(language_.data(), language_.size(), "%s", camera.language().c_str());
    }

    std::optional<PageMistake> find_mistake(XMLElement& root)
    {
        tagPAGE_NODE_S page{};
        const LogTrap trap;
        camera_.forget_missing_texts();
        if (osdXmlParsePageAttribute(language_.data(), &root, &page, name_.data()) != 0) {
            return mistake_in_log(trap, root.GetLineNum(),
                                  "the menu refuses the page: its Layout, or a word that belongs to that layout, is "
                                  "missing or unknown");
        }
        for (XMLElement* element = root.FirstChildElement(); element != nullptr;
             element = element->NextSiblingElement()) {
            if (auto mistake = find_mistake_in_item(*element)) {
                return mistake;
            }
        }
        return std::nullopt;
    }

private:
    /// The innermost item that is refused by itself.
    std::optional<PageMistake> find_mistake_in_item(XMLElement& element)
    {
        const LogTrap trap;
        camera_.forget_missing_texts(); // each is told once only, and here it's needed
        ItemList items;
        if (osdXmlParseItemAttribute(language_.data(), &element, ITEM_LEVEL_TOP, 0, 0, &items.head) == 0) {
            return std::nullopt;
        }
        for (XMLElement* option = element.FirstChildElement(); option != nullptr;
             option = option->NextSiblingElement()) {
            for (XMLElement* sub = option->FirstChildElement(); sub != nullptr; sub = sub->NextSiblingElement()) {
                if (auto mistake = find_mistake_in_item(*sub)) {
                    return mistake;
                }
            }
        }
        return mistake_in_log(trap, element.GetLineNum(),
                              "the menu refuses " + start_of(element) +
                                  ": an attribute that it needs is missing, or a word such as its Ctx or Attr is "
                                  "unknown");
    }

    Camera& camera_;
    std::array<char, OSD_TEXT_LEN> name_{};
    std::array<char, OSD_TEXT_LEN> language_{};
};

} // namespace

std::optional<PageMistake> find_page_mistake(Camera& camera, const std::string& name, const std::string& text)
{
    if (name.size() >= OSD_TEXT_LEN) {
        return PageMistake{0, "the name of a page has at most 31 bytes"};
    }
    tinyxml2::XMLDocument document;
    if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS) {
        return syntax_mistake(document);
    }
    XMLElement* root = document.RootElement();
    if (root == nullptr) {
        return PageMistake{0, "there is no element in it"};
    }
    const FaultPause honest; // a fault that is on says nothing about the page
    std::optional<PageMistake> mistake = PageReader(camera, name).find_mistake(*root);
    camera.forget_missing_texts(); // what was only tried is told when it's shown
    return mistake;
}

} // namespace sim
