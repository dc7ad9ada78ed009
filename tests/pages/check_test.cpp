// The check: each folder of bad/ is what good/ becomes by one mistake, and holds the lines that are told of it. What has
// no error is walked by keys.
#include "pages/check/check.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>
#include <unistd.h>

#include "pages/menu/menu.h"

namespace {

using namespace pages;
namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

const fs::path cases = OSD_SOURCE_DIR "/tests/pages";
const std::string fonts = OSD_RESOURCE_DIR "/ttf";

std::vector<std::string> lines_of(const fs::path& file)
{
    std::vector<std::string> lines;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// good/ with the files of a bad folder over it, and without those that this one removes.
class BadFolder {
public:
    explicit BadFolder(const std::string& name)
    {
        const auto over = fs::copy_options::recursive | fs::copy_options::overwrite_existing;
        fs::copy(cases / "good", path_, over);
        fs::copy(cases / "bad" / name, path_, over);
        for (const std::string& removed : lines_of(path_ / "removed.txt")) {
            EXPECT_TRUE(fs::remove(path_ / removed)) << removed;
        }
    }
    ~BadFolder() { fs::remove_all(path_); }
    BadFolder(const BadFolder&) = delete;
    BadFolder& operator=(const BadFolder&) = delete;

    const fs::path& root() const { return path_; }
    ResourceFolder read() const { return read_resource_folder(path_, fonts); }
    std::vector<std::string> expected() const { return lines_of(path_ / "expected.txt"); }

private:
    fs::path path_ = fs::path(testing::TempDir()) / ("pages_check_" + std::to_string(getpid()));
};

/// Presses keys until each row of each page was selected, with each of its options, and all that opens was opened.
class Walk {
public:
    explicit Walk(const ResourceFolder& folder) : Walk(folder, folder.languages.begin()->first, 1) {}
    Walk(const ResourceFolder& folder, const std::string& language, std::uint32_t style) : menu_(folder, language)
    {
        menu_.look({language, style, false});
        start(folder, "main", Key::Menu);
        start(folder, "advanced", Key::Advanced);
    }

    /// Draws each page in each language, style and size, as it opens.
    void draw_all(const ResourceFolder& folder)
    {
        for (const View& view : all_views(folder)) {
            menu_.look(view);
            for (const auto& [name, page] : folder.pages) {
                menu_.close_all();
                EXPECT_TRUE(menu_.open(name)) << name;
                (void)menu_.draw();
                hear();
            }
        }
    }

    /// The pages that were reached.
    const std::set<std::string>& seen() const { return seen_; }
    const std::vector<std::string>& failures() const { return failures_; }

private:
    void start(const ResourceFolder& folder, const std::string& page, Key key)
    {
        menu_.close_all();
        if (folder.pages.count(page) > 0) {
            press(key);
            visit();
        }
    }

    void press(Key key)
    {
        menu_.press(key);
        hear();
    }

    void hear()
    {
        for (const std::string& line : menu_.take_lines()) {
            failures_.push_back(menu_.open_pages().back() + " (" + to_string(menu_.view()) + "): " + line);
        }
    }

    bool is_icon_page() { return menu_.top()->enLayout == PAGE_LAYOUT_ICON; }

    tagITEM_NODE_S* selected()
    {
        const auto rows = menu_.rows();
        const auto found = std::find_if(rows.begin(), rows.end(), [](const auto* row) { return row->bActive == 1; });
        return is_icon_page()        ? rows[static_cast<std::size_t>(menu_.top()->s32SelIdx)]
               : found == rows.end() ? nullptr
                                     : *found;
    }

    /// How often the rows must be passed until each option was there.
    int passes()
    {
        int most = 1;
        for (const tagITEM_NODE_S* row : menu_.rows()) {
            const bool has_options = row->enAttr == SUBITEM || row->enAttr == MSG_WITH_SUBITEM;
            most = std::max(most, has_options ? row->s32ValCnt : 1);
        }
        return most;
    }

    void visit()
    {
        seen_.insert(menu_.top()->acPageName);
        const bool in_row = is_icon_page() || menu_.top()->enLayout == PAGE_LAYOUT_HORIZONTAL ||
                            menu_.top()->enLayout == PAGE_LAYOUT_HORIZONTAL_KETH;
        for (int pass = passes(); pass > 0; --pass) {
            for (std::size_t row = 0; row < menu_.rows().size(); ++row) {
                use(selected());
                go(in_row ? Key::Right : Key::Down);
            }
        }
    }

    /// A key that may open a page, which is left again.
    void go(Key key)
    {
        const std::size_t open = menu_.open_pages().size();
        press(key);
        if (menu_.open_pages().size() > open) {
            if (seen_.count(menu_.top()->acPageName) == 0) {
                visit();
            }
            press(Key::Return);
        }
    }

    void use(const tagITEM_NODE_S* item)
    {
        const bool question = std::strncmp(item->acItemIndex, "Yes", 4) == 0; // the camera would take a second for it
        if (item->enAttr == COMMON || item->enAttr == SUBITEM || item->enAttr == KEY_WITH_MSG ||
            item->enAttr == MSG_WITH_SUBITEM) {
            press(Key::Right);
        }
        if (!question && std::strncmp(item->acItemIndex, "No", 3) != 0) {
            go(Key::Home);
        }
        if (item->enAttr == EDITABLE) { // is edited now
            press(Key::Right);
            press(Key::Home);
        }
    }

    Menu menu_;
    std::set<std::string> seen_;
    std::vector<std::string> failures_;
};

std::vector<std::string> told(const CheckResult& result)
{
    std::vector<std::string> lines;
    for (const Finding& finding : result.findings) {
        lines.push_back(line_of(finding, ""));
    }
    return lines;
}

bool has_error(const CheckResult& result)
{
    return std::any_of(result.findings.begin(), result.findings.end(),
                       [](const Finding& finding) { return finding.severity == Severity::Error; });
}

TEST(Check, TellsEachMistakeOnceAndWhatPassesIsDrawn)
{
    const std::set<std::string> distorted{"answers_in_one_place", "icons_in_columns_of_words", "icons_in_no_columns",
                                          "icons_beyond_the_edge"}; // of which nothing more is told when they are drawn
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(cases / "bad")) {
        SCOPED_TRACE(entry.path());
        const std::string name = entry.path().filename().string();
        const BadFolder bad(name);
        const ResourceFolder folder = bad.read();
        const CheckResult result = check(folder, {name.rfind("measured_", 0) == 0 || distorted.count(name) > 0, {}});
        EXPECT_EQ(told(result), bad.expected());
        if (name.rfind("measured_allowed", 0) == 0) {
            EXPECT_THAT(told(check(folder, {false, {}})), IsEmpty());
        }
        if (!has_error(result)) {
            EXPECT_THAT(result.refused, IsEmpty());
            EXPECT_THAT(Walk(folder).failures(), IsEmpty());
        }
        ++count;
    }
    EXPECT_GT(count, 100U);
}

TEST(Check, TellsWhichPagesTheMenuRefuses)
{
    for (const auto& [name, refused] :
         std::map<std::string, std::set<std::string>>{{"layout_missing", {"image"}},
                                                      {"tag_not_closed", {"image"}},
                                                      {"translation_missing", {"image"}},
                                                      {"text_missing_at_many_places", {"advanced", "rotate", "system"}},
                                                      {"zone_unknown", {}}}) {
        EXPECT_EQ(check(BadFolder(name).read(), {false, {}}).refused, refused) << name;
    }
}

TEST(Check, FindsNothingWhereAllIsWellAndAllPagesAreDrawn)
{
    for (const fs::path& path : {cases / "good", fs::path(OSD_SHIPPED_DIR)}) {
        const ResourceFolder folder = read_resource_folder(path, fonts);
        EXPECT_THAT(told(check(folder, {path.filename() == "good", {}})), IsEmpty());
        {
            Walk walk(folder, folder.languages.rbegin()->first, 2);
            walk.draw_all(folder);
            EXPECT_THAT(walk.failures(), IsEmpty());
            EXPECT_EQ(walk.seen().size(), folder.pages.size());
        }
        EXPECT_THAT(Walk(folder).failures(), IsEmpty());
    }
}

TEST(Check, WhatIsNotDrawnIsHeardOnTheWalk)
{
    for (const char* name : {"icon_without_picture", "picture_of_menu_missing", "text_empty"}) {
        EXPECT_THAT(Walk(BadFolder(name).read(), "German", 1).failures(), Not(IsEmpty())) << name;
    }
}

TEST(Check, TellsAllButWhatNeedsFontsWithoutThem)
{
    const BadFolder bad("word_misspelt");
    const ResourceFolder folder = read_resource_folder(bad.root(), cases / "none");
    std::vector<std::string> rules;
    for (const Finding& finding : check(folder, {true, {}}).findings) {
        rules.push_back(finding.rule);
    }
    EXPECT_THAT(rules, ElementsAre("word", "font", "font", "font"));
    EXPECT_THROW(measure(folder, {}), BadInput);
}

TEST(Check, TellsByItsExitStatus)
{
    const std::string program = OSD_PAGES_PROGRAM " check --quick ";
    const auto status = [&](const std::string& arguments) {
        return WEXITSTATUS(std::system((program + arguments + " > /dev/null 2>&1").c_str()));
    };
    EXPECT_EQ(status((cases / "good").string()), 0);
    EXPECT_EQ(status("--rules"), 0);
    EXPECT_EQ(status((cases / "bad/stray_page_file").string()), 1);
    EXPECT_EQ(status((cases / "none").string()), 2);
    EXPECT_EQ(status("--unknown"), 2);
    EXPECT_EQ(WEXITSTATUS(std::system((program + "--rules > /dev/full 2>&1").c_str())), 2);
}

TEST(Check, TellsTheSameAsJson)
{
    const std::vector<Finding> findings = check(BadFolder("word_misspelt").read(), {false, {}}).findings;
    const auto first = nlohmann::json::parse(to_json(findings)).at("findings").at(0);
    EXPECT_EQ(first.at("file"), "pages/image_page.xml");
    EXPECT_EQ(first.at("line"), 3);
    EXPECT_EQ(first.at("severity"), "error");
    EXPECT_EQ(first.at("rule"), "word");
}

} // namespace
