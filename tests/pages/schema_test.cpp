// The schema knows what the pages use, and the documents have its tables.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <set>

#include "pages/data/resource_folder.h"
#include "pages/data/text_file.h"
#include "pages/grammar/attributes.h"
#include "pages/schema/schema.h"

namespace {

namespace fs = std::filesystem;
using namespace pages;

/// Just as much of an XML schema as ours needs.
class Schema {
public:
    /// What the first mistake in an element is, or nothing.
    std::string problem_with(const Element& element) const
    {
        const Element* rule = find(*page_.root, "xs:element", "name", element.name);
        if (rule == nullptr) {
            return "unknown element " + element.name;
        }
        std::string problem = problem_with_attributes(element, *rule);
        for (const auto& child : element.children) {
            const bool allowed = find(*rule, "xs:element", "ref", child->name) != nullptr;
            const std::string below = allowed ? problem_with(*child) : child->name + " in " + element.name;
            problem = problem.empty() ? below : problem;
        }
        return problem;
    }

    /// An element at any depth.
    static const Element* find(const Element& below, const std::string& tag, const char* attribute,
                               const std::string& value)
    {
        const Element* found = nullptr;
        for_each_element(below, [&](const Element& element) {
            found = found == nullptr && element.name == tag && element.value(attribute) == value ? &element : found;
        });
        return found;
    }

    const Element& root() const { return *page_.root; }

private:
    static std::string problem_with_attributes(const Element& element, const Element& rule)
    {
        for (const Attribute& attribute : element.attributes) {
            const Element* known = find(rule, "xs:attribute", "name", attribute.name);
            if (known == nullptr) {
                return "unknown attribute " + attribute.name;
            }
            if (!known->find("type") && find(*known, "xs:enumeration", "value", attribute.value) == nullptr) {
                return "unknown word " + attribute.value;
            }
        }
        std::string missing;
        for_each_element(rule, [&](const Element& one) {
            if (one.value("use") == "required" && element.find(one.value("name")) == nullptr) {
                missing = "missing " + one.value("name");
            }
        });
        return missing;
    }

    std::vector<BadInput> mistakes_;
    PageFile page_ = read_page("schema", schema(), mistakes_);
};

TEST(SchemaTest, TakesTheShippedPages)
{
    const ResourceFolder folder = read_resource_folder(fs::path(OSD_SOURCE_DIR) / "resource");
    for (const auto& [name, page] : folder.pages) {
        EXPECT_EQ(Schema().problem_with(*page.root), "") << name;
    }
}

TEST(SchemaTest, RefusesWhatMeansNothing)
{
    const std::pair<const char*, const char*> rows[] = {
        {"<Pages/>", "unknown element Pages"},
        {"<Page/>", "missing Layout"},
        {R"(<Page Layout="list"/>)", "unknown word list"},
        {R"(<Page Layout="icon" Pic="a"/>)", "unknown attribute Pic"},
        {R"(<Page Layout="icon"><Option ModeIndex="On"/></Page>)", "Option in Page"},
        {R"(<Page Layout="icon"><Item ItemIndex="a" Ctx="NAME" Attr="STATUS"><Option/></Item></Page>)",
         "missing ModeIndex"},
    };
    for (const auto& [page, problem] : rows) {
        std::vector<BadInput> mistakes;
        EXPECT_EQ(Schema().problem_with(*read_page("page", page, mistakes).root), problem);
    }
}

TEST(SchemaTest, HasASentenceForEveryElementAttributeAndWord)
{
    std::set<std::string> told;
    const Schema schema;
    for_each_element(schema.root(), [&](const Element& element) {
        const bool sentence = !element.texts.empty() && element.name == "xs:documentation";
        if (sentence) {
            const Element& owner = *element.parent->parent;
            told.insert(owner.value("name") + owner.value("value"));
        }
    });
    for (const AttributeUse& use : attribute_uses()) {
        EXPECT_EQ(told.count(use.name()), 1U) << use.name();
        for (const Word& word : use.words) {
            EXPECT_EQ(told.count(word.word), 1U) << word.word;
        }
    }
    for (const char* element : {"Page", "Item", "Option"}) {
        EXPECT_EQ(told.count(element), 1U) << element;
    }
}

TEST(SchemaTest, TablesStandInTheDocument)
{
    const std::string file = std::string(OSD_SOURCE_DIR) + "/docs/PAGES.md";
    const std::string document = read_text_file(file);
    EXPECT_EQ(document, with_schema_tables(document, file))
        << "the tables differ, mend them with: osdmenu-pages schema --into docs/PAGES.md";
    EXPECT_THROW((void)with_schema_tables("# Pages\n", file), BadInput);
}

} // namespace
