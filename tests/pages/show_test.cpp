// What shows pages: pictures and their difference, sheets, and the map that a walk by keys draws.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <set>
#include <unistd.h>

#include "pages/data/text_file.h"
#include "pages/map/map.h"
#include "pages/map/walk.h"
#include "pages/preview/canvas.h"
#include "pages/preview/preview.h"
#include "pages/preview/sheet.h"

namespace {

namespace fs = std::filesystem;
using namespace pages;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::Pair;
using testing::UnorderedElementsAre;

class ShowTest : public testing::Test {
protected:
    ShowTest()
    {
        fs::create_directory(root);
        fs::copy(OSD_SOURCE_DIR "/tests/pages/good", root / "good", fs::copy_options::recursive);
    }
    ~ShowTest() override { fs::remove_all(root); }

    ResourceFolder folder() const { return read_resource_folder(root / "good", OSD_RESOURCE_DIR "/ttf"); }

    void replace(const std::string& file, const std::string& part, const std::string& by) const
    {
        std::string text = read_text_file(root / "good" / file);
        const std::size_t at = text.find(part);
        ASSERT_NE(at, std::string::npos) << part;
        std::ofstream(root / "good" / file) << text.replace(at, part.size(), by);
    }

    /// A list with one row, which opens another page.
    void add_page(const std::string& name, const std::string& opened) const
    {
        std::ofstream(root / "good/pages" / (name + "_page.xml"))
            << R"(<Page Layout="vertical_align"><Item ItemIndex="Note" Ctx="NAME" Attr="SUBPAGE" SubPage=")" << opened
            << "\"/></Page>\n";
    }

    const fs::path root = fs::path(testing::TempDir()) / ("show" + std::to_string(getpid()));
};

TEST_F(ShowTest, AChangedTextIsTheOnlyDifferenceToAnEarlierRun)
{
    const Selection selection{{}, {}, {1}, false};
    EXPECT_EQ(write_preview(folder(), root / "before", selection, {}).pictures, 2U * 13);
    replace("lang/German.json", "Stärke", "Stufe");
    fs::remove(root / "good/pages/rotate_page.xml");
    add_page("late", "image");
    const Preview preview = write_preview(folder(), root / "now", selection, root / "before");
    EXPECT_THAT(preview.changes,
                UnorderedElementsAre(Pair("German/style1-1080p/image.Noise-Manual.png", Change::Changed),
                                     Pair("English/style1-1080p/late.png", Change::Added),
                                     Pair("German/style1-1080p/late.png", Change::Added),
                                     Pair("English/style1-1080p/rotate.png", Change::Gone),
                                     Pair("German/style1-1080p/rotate.png", Change::Gone),
                                     // without the page that asks
                                     Pair("English/style1-1080p/restart.png", Change::Changed),
                                     Pair("German/style1-1080p/restart.png", Change::Changed)));
    for (const auto& [file, change] : preview.changes) {
        EXPECT_EQ(fs::exists(root / "now" / file), change != Change::Gone) << file;
        EXPECT_EQ(fs::exists(root / "now/before" / file), change != Change::Added) << file;
        EXPECT_EQ(fs::exists(root / "now/difference" / file), change == Change::Changed) << file;
    }
    EXPECT_THAT(read_text_file(root / "now/index.html"), HasSubstr(R"("label":"image: Noise = Manual")"));
    EXPECT_THROW(write_preview(folder(), root / "now", selection, root / "good"), BadInput);
    EXPECT_THROW(write_preview(folder(), root / "now", selection, root / "now"), BadInput);
}

TEST_F(ShowTest, TilesOfASheetCarryDifferentPictures)
{
    ASSERT_THAT(write_sheets(folder(), root / "image.png", {{"image"}, {}, {}, {}}), ElementsAre(root / "image.png"));
    const Canvas sheet(root / "image.png"); // two languages, each with two options
    std::set<std::string> tiles;
    for (int top = 0; top < sheet.height(); top += sheet.height() / 2) {
        for (int left = 0; left < sheet.width(); left += sheet.width() / 2) {
            Canvas tile(sheet.width() / 2, sheet.height() / 2, 0);
            for (int y = 0; y < tile.height(); ++y) {
                std::copy_n(sheet.row(top + y) + left, tile.width(), tile.row(y));
            }
            tile.fill({0, 0, tile.width(), 90}, 0); // the name
            tiles.insert(tile.png());
        }
    }
    EXPECT_EQ(tiles.size(), 4U);
    EXPECT_EQ(write_sheets(folder(), root / "sheets", {{"main", "image"}, {}, {0}, false}).size(), 2U + 2);
    EXPECT_THROW(write_sheets(folder(), root / "image.png", {{"imago"}, {}, {}, {}}), BadInput);
}

TEST_F(ShowTest, TheFewestPressesLeadToASetting)
{
    const ResourceFolder good = folder();
    const Walk found = walk(good, {"English", 0, false});
    std::map<std::string, std::string> keys;
    for (const ReachedSetting& row : found.settings) {
        keys[row.page + " " + row.setting.key] = words_of(row.keys);
    }
    EXPECT_EQ(keys["image Brightness"], "menu, home");
    EXPECT_EQ(keys["image Strength"], "menu, home, down, right, down");
    EXPECT_EQ(keys["system Standby"], "menu, right, home, down");
    EXPECT_EQ(keys["network IpAddr"], "menu, left, home, down"); // the icon before the first is the last one
    EXPECT_EQ(found.pages.size(), good.pages.size());
    EXPECT_TRUE(found.ends.empty());
    EXPECT_TRUE(found.too_deep.empty());
}

TEST_F(ShowTest, APartOfTheTallyLightsColorChangesIt)
{
    replace("settings.json", "\"settings\": [",
            R"("settings": [{"key": "LedCustomColor", "kind": "color", "default": "FF0000"},)");
    replace("pages/image_page.xml", "\"Brightness\"", "\"LedCustomRed\"");
    replace("lang/English.json", "{", R"({"LedCustomRed": "Red",)");
    EXPECT_THAT(walk(folder(), {"English", 0, false}).settings,
                testing::Contains(Field(&ReachedSetting::setting, Field(&SettingId::key, "LedCustomColor"))));
}

TEST_F(ShowTest, TheMapTellsOfPagesThatDontOpen)
{
    replace("pages/advanced_page.xml", R"(SubPage="rotate")", R"(SubPage="deep2")");
    for (const int depth : {2, 3, 4, 5}) {
        add_page("deep" + std::to_string(depth), "deep" + std::to_string(depth + 1));
    }
    add_page("deep6", "deep2");
    replace("pages/main_page.xml", R"(SubPage="network")", R"(SubPage="netwrok")");
    replace("pages/confirm_image_page.xml", R"(ItemIndex="No")", R"(ItemIndex="Note")");
    const Walk found = walk(folder(), {"English", 0, false});
    EXPECT_THAT(found.too_deep, ElementsAre(ElementsAre("advanced", "deep2", "deep3", "deep4", "deep5", "deep6")));
    const auto end = [](const std::string& page, int line, const std::string& words) {
        return AllOf(Field(&DeadEnd::page, page), Field(&DeadEnd::place, Field(&Place::line, line)),
                     Field(&DeadEnd::words, HasSubstr(words)));
    };
    EXPECT_THAT(found.ends,
                UnorderedElementsAre(end("main", 6, "'network' opens the page 'netwrok', which doesn't exist"),
                                     end("confirm_image", 2, "without the answer No")));
    const MapCounts counts = write_map(folder(), root / "map.html", {});
    EXPECT_EQ(counts.unreached, 4U); // deep6, network, rotate and its question
    EXPECT_EQ(counts.reached + counts.unreached, folder().pages.size());
    EXPECT_THAT(read_text_file(root / "map.html"),
                AllOf(HasSubstr("<li>rotate</li>"), HasSubstr("<td>advanced, down, home</td>")));
}

struct Output {
    int status;
    std::string words; ///< on both streams
};

Output output_of(const std::string& arguments)
{
    std::FILE* pipe = popen((OSD_PAGES_PROGRAM " " + arguments + " 2>&1").c_str(), "r"); // NOLINT(cert-env33-c)
    Output result{0, ""};
    for (int letter = std::fgetc(pipe); letter != EOF; letter = std::fgetc(pipe)) {
        result.words += static_cast<char>(letter);
    }
    result.status = WEXITSTATUS(pclose(pipe));
    return result;
}

TEST_F(ShowTest, CommandsSayWhatTheyExpect)
{
    const struct {
        const char* arguments; ///< DIR stands for the folder of good/
        int status;
        const char* words;
    } rows[] = {
        {"chek DIR/good", 2, "there is no command 'chek', expected 'check' (one of check, "},
        {"texts exprot DIR/good", 2, "there is no command 'exprot', expected 'export' (one of export, import)"},
        {"--version", 0, "osdmenu-pages 1."},
        {"measure DIR/good --page nope", 2, "no page 'nope', expected one of "},
        {"measure DIR/good --language Deutsch --page image", 0, "  German  "},
        {"preview DIR/good --language Deutsch --page image -o DIR/out", 0, "DIR/out/index.html"},
        {"texts export DIR/good Deutsch DIR/de.po", 0, "texts, "},
        {"texts export DIR/good German DIR/de.po --update", 0, "texts, "},
        {"preview DIR/good -o DIR/good/lang/out", 2, "lies among the resources of DIR/good, expected one outside"},
        {"pseudo DIR/good -o DIR/good/longer", 2, "lies among the resources of DIR/good, expected one outside"},
    };
    replace("settings.json", "\"German\": \"German\"", "\"German\": \"German\", \"Deutsch\": \"German\"");
    replace("settings.json", "\"English\", \"German\"]", "\"English\", \"German\", \"Deutsch\"]");
    const auto here = [&](std::string words) {
        for (std::size_t at = words.find("DIR"); at != words.npos; at = words.find("DIR")) {
            words.replace(at, 3, root.string());
        }
        return words;
    };
    for (const auto& row : rows) {
        const Output result = output_of(here(row.arguments));
        EXPECT_EQ(result.status, row.status) << row.arguments << "\n" << result.words;
        EXPECT_THAT(result.words, HasSubstr(here(row.words))) << row.arguments;
    }
}

} // namespace
