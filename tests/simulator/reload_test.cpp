// Changed files of the resources: noticed, checked, and shown or refused.
#include <SDL_image.h>
#include <condition_variable>
#include <functional>
#include <gmock/gmock.h>
#include <mutex>

#include "osd_page.h"
#include "simulator/core/folder_watch.h"
#include "simulator/core/resource_check.h"
#include "simulator/host/key_script.h"
#include "simulator/host/live_reload.h"
#include "simulator/host/page_stack.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;
namespace fs = std::filesystem;

TEST(FolderWatch, TellsWhatChanged)
{
    const TempFolder folder;
    folder.write("pages/a.xml", "1");
    folder.write("pages/old.xml", "1");
    std::mutex mutex;
    std::condition_variable came;
    std::set<fs::path> changed;
    const auto note = [&](const FolderWatch::Changed& more) {
        const std::lock_guard<std::mutex> lock(mutex);
        changed.insert(more.begin(), more.end());
        came.notify_all();
    };
    const fs::path pages = folder.path("pages");
    const fs::path late = folder.path("late/lang");
    const FolderWatch watch({pages, late}, note);
    const auto path = [&](const char* name) { return folder.path(name); };
    const std::tuple<const char*, std::function<void()>, fs::path> steps[] = {
        {"written in place", [&] { folder.write("pages/a.xml", "2"); }, pages / "a.xml"},
        {"replaced", [&] { fs::rename(folder.write("b.tmp", "3"), path("pages/a.xml")); }, pages / "a.xml"},
        {"readable again", [&] { fs::permissions(path("pages/a.xml"), fs::perms::owner_all); }, pages / "a.xml"},
        {"all readable again", [&] { fs::permissions(pages, fs::perms::owner_all); }, pages},
        {"made", [&] { folder.write("pages/new.xml", "4"); }, pages / "new.xml"},
        {"linked", [&] { fs::create_symlink("a.xml", path("pages/link.xml")); }, pages / "link.xml"},
        {"deleted", [&] { fs::remove(path("pages/new.xml")); }, pages / "new.xml"},
        {"renamed", [&] { fs::rename(path("pages/old.xml"), path("c.tmp")); }, pages / "old.xml"},
        {"folder made at last", [&] { folder.write("late/lang/x.json", "5"); }, late},
        {"and used", [&] { folder.write("late/lang/y.json", "5"); }, late / "y.json"},
        {"folder above renamed", [&] { fs::rename(path("late"), path("gone")); }, late},
        {"another one there", [&] { folder.write("late/lang/z.json", "6"); }, late},
        {"folder deleted", [&] { fs::remove_all(pages); }, pages},
        {"made again", [&] { folder.write("pages/a.xml", "7"); }, pages},
        {"and used again", [&] { folder.write("pages/a.xml", "8"); }, pages / "a.xml"},
    };
    for (const auto& [name, act, expected] : steps) {
        const fs::path awaited = expected;
        {
            const std::lock_guard<std::mutex> lock(mutex);
            changed.clear();
        }
        act();
        std::unique_lock<std::mutex> lock(mutex);
        EXPECT_TRUE(came.wait_for(lock, std::chrono::seconds(10), [&] { return changed.count(awaited) > 0; })) << name;
    }
}

static std::string problem_line(const Problem& problem)
{
    return problem.file + ":" + std::to_string(problem.line) + ": " + problem.reason;
}

struct Reload : testing::Test {
    CameraConfig config() const
    {
        fs::copy(OSD_RESOURCE_DIR "/menu", folder.path("pages"));
        fs::copy(OSD_RESOURCE_DIR "/lang", folder.path("lang"));
        fs::copy(OSD_RESOURCE_DIR "/settings.json", folder.path("settings.json"));
        folder.write("pages/broken_page.xml", "<Page"); // from the start
        return {folder.path(), folder.path("data"), false, false, true, "English", {}};
    }
    void press_keys(const std::string& keys) { KeyPlayer(parse_keys(keys), host).press_all_now(); }
    /// Writes a file and lets the menu know. Returns the problems, one a line, but for that from the start.
    std::string change(const std::string& file, const std::string& text)
    {
        folder.write(file, text);
        live.reload({folder.path(file)});
        return problem_lines();
    }
    std::string problem_lines() const
    {
        std::string lines;
        for (const Problem& problem : live.problems()) {
            lines += problem.file == "pages/broken_page.xml" ? "" : problem_line(problem) + "\n";
        }
        return lines;
    }
    static std::string selected()
    {
        tagITEM_NODE_S* item = osdMenuGetSelectedItem(&gstPageMgr.astPage[gstPageMgr.s32PageCnt - 1]);
        return item == nullptr ? "" : item->acItemIndex;
    }
    std::vector<Color> screen() { return camera.look_at(2).pixels; }

    TempFolder folder;
    Camera camera{config()};
    MenuHost host{camera, {2, 0, false, "", ""}};
    Pictures pictures{folder.path()};
    LiveReload live{camera, pictures};
};

TEST_F(Reload, KeepsTheLastGoodPageAndNamesTheMistake)
{
    EXPECT_EQ(problem_line(live.problems().front()), "pages/broken_page.xml:1: no well formed XML: parsing element");
    press_keys("menu home down down");
    const std::string good = folder.read("pages/image_page.xml");
    const std::string cursor = selected();
    const auto shown = screen();
    const std::string first_line = good.substr(0, good.find('\n') + 1);
    const auto item = [](const std::string& attributes) {
        return "<Page Layout=\"vertical_align\">\n\n<Item " + attributes;
    };
    const std::tuple<std::string, const char*> broken[] = {
        {"<Page>\n<Item>\n</Page>", "2: no well formed XML: what begins here isn't closed"},
        {"", "0: no well formed XML: empty document"},
        {"<Page Layout=\"heap\"/>", "1: the menu refuses the page: its Layout"},
        {item("ItemIndex=\"Mirror\" Ctx=\"VAL\" Attr=\"COMMON\"/></Page>"),
         "3: the menu refuses <Item ItemIndex=\"Mirror\">"},
        {item("ItemIndex=\"Nix\" Ctx=\"NAME\" Attr=\"CONST_TXT\"/></Page>"), "3: no text for 'Nix' in English"},
        {item("ItemIndex=\"" + std::string(32, 'x') + "\"/></Page>"), "3: ItemIndex holds 32 bytes, at most 31 fit"},
        {item("ItemIndex=\"Mirror\" Ctx=\"NAME_VAL\" Attr=\"SUBITEM\">\n<Mode "
              "ModeIndex=\"On\">\n<Sub/></Mode></Item></Page>"),
         "5: the menu refuses <Sub>: an attribute"},
    };
    for (const auto& [text, words] : broken) {
        EXPECT_THAT(change("pages/image_page.xml", text), StartsWith(std::string("pages/image_page.xml:") + words));
        EXPECT_EQ(screen(), shown) << text;
        press_keys("return home down down"); // read again, it is still the last good one
        EXPECT_EQ(screen(), shown) << text;
    }
    fs::remove(folder.path("pages/image_page.xml"));
    live.reload({folder.path("pages")});
    EXPECT_EQ(live.problems().size(), 2U);
    EXPECT_EQ(change("pages/image_page.xml", good), "");
    EXPECT_EQ(selected(), cursor);
}

TEST_F(Reload, ShowsAChangedPageWithItsCursorAndNeverHidesTheMenu)
{
    press_keys("menu right home"); // an icon page below
    const std::string page = open_page_names().back();
    press_keys("down down");
    const std::string cursor = selected();
    const auto before = screen();
    std::string told;
    camera.events().listen([&told](const Event& event) { told += to_line(event) + ";"; });
    const std::string file = "pages/" + page + "_page.xml";
    const std::string text = folder.read(file);
    const std::size_t item = text.find("<Item");
    const std::string line = "<Item ItemIndex=\"Mirror\" Ctx=\"NAME\" Attr=\"CONST_TXT\"/>\n";
    EXPECT_EQ(change(file, text.substr(0, item) + line + text.substr(item)), "");
    EXPECT_EQ(told, "page main;page " + page + ";show;");
    EXPECT_EQ(selected(), cursor);
    EXPECT_NE(screen(), before);
    told.clear();
    EXPECT_EQ(change(file, folder.read(file)), ""); // the same again
    EXPECT_EQ(told, "");
    EXPECT_EQ(change(file, text), "");
    EXPECT_EQ(screen(), before);
    press_keys("return");
    EXPECT_EQ(gstPageMgr.astPage[0].s32SelIdx, 1);
}

TEST_F(Reload, TakesTextsAndDefinitionsOver)
{
    press_keys("menu home");
    const auto before = screen();
    const std::string good_text = folder.read("lang/English.json");
    const std::string good_settings = folder.read("settings.json");
    EXPECT_THAT(change("lang/English.json", "{\n\"On\": \n}"), StartsWith("lang/English.json:3: syntax error"));
    EXPECT_THAT(change("settings.json", "{\n\n\n"), AllOf(HasSubstr("lang/"), HasSubstr("settings.json:4: syntax")));
    EXPECT_EQ(screen(), before);
    EXPECT_THAT(change("settings.json", good_settings), Not(HasSubstr("settings.json")));
    EXPECT_EQ(change("lang/English.json", good_text), "");
    const std::string label = "\"Brightness\": \"Brightness\"";
    std::string changed = good_text;
    changed.replace(changed.find(label), label.size(), "\"Brightness\": \"Light\"");
    EXPECT_EQ(change("lang/English.json", changed), "");
    EXPECT_NE(screen(), before);
    // A text that a page needs can't go.
    changed.replace(changed.find("\"Brightness\":"), 13, "\"Xrightness\":");
    EXPECT_EQ(change("lang/English.json", changed),
              "lang/English.json:0: the text 'Brightness' is missing, page 'image' needs it\n");
    EXPECT_EQ(change("lang/English.json", "{\"Extra\": \"Extra\"," + good_text.substr(good_text.find('{') + 1)), "");
    const std::string good_page = folder.read("pages/image_page.xml");
    std::string page = good_page;
    page.replace(page.find("\"Brightness\""), 12, "\"Extra\"");
    EXPECT_EQ(change("pages/image_page.xml", page), "");
    EXPECT_NE(screen(), before);
    EXPECT_EQ(change("pages/image_page.xml", good_page), "");
    EXPECT_EQ(change("lang/English.json", good_text), "");
    EXPECT_EQ(screen(), before);
    camera.faults().set(parse_faults({"language-refusing"})); // says nothing about pages
    EXPECT_EQ(change("pages/main_page.xml", folder.read("pages/main_page.xml") + "\n"), "");
    camera.faults().set({});
    camera.change({"ImageParam", "Brightness"}, "100");
    std::string narrow = good_settings;
    const std::size_t max = narrow.find("\"max\"", narrow.find("\"Brightness\""));
    narrow.replace(max, narrow.find(',', max) - max, "\"max\": 60");
    EXPECT_EQ(change("settings.json", narrow), "");
    EXPECT_EQ(camera.settings().by_name("ImageParam.Brightness").max, 60);
    EXPECT_EQ(camera.settings().value({"ImageParam", "Brightness"}),
              camera.settings().by_name("ImageParam.Brightness").default_text);
}

TEST_F(Reload, TellsWhatTheBuildWouldRefuseInFilesThatCanBeUsed)
{
    const std::tuple<const char*, std::string, const char*, const char*> cases[] = {
        {"settings.json", "\"Saturation\"", "\"Colour\"", "pages/image_page.xml:[0-9]+: item 'Saturation': no setting"},
        {"pages/main_page.xml", "SubPage=\"image\"", "SubPage=\"sound\"",
         "main_page.xml:[0-9]+: SubPage 'sound': there"},
        {"pages/image_page.xml", "\"Brightness\"", "\"Contrast\"", "image_page.xml:[0-9]+: item 'Contrast' stands"},
        {"lang/German.json", "\"On\": \"", "\"On\": \"\xF0\x9F\x98\x80", "German.json:0: key 'On': .*has no glyph"}};
    const auto checked = [this] {
        live.set_findings(check_resources(folder.path(), false).value());
        return problem_lines();
    };
    std::map<std::string, std::string> good;
    for (const auto& [file, from, to, words] : cases) {
        std::string text = good[file] = folder.read(file);
        (void)change(file, text.replace(text.find(from), from.size(), to));
    }
    const std::string found = checked();
    for (const auto& [file, text] : good) {
        (void)change(file, text);
    }
    const std::string found_later = checked();
    for (const auto& [file, from, to, words] : cases) {
        EXPECT_THAT(found, ContainsRegex(words));
        EXPECT_THAT(found_later, Not(ContainsRegex(words)));
    }
    (void)change("settings.json", R"({"settings": [1]})");
    EXPECT_FALSE(check_resources(folder.path(), false)); // which says nothing of other files
    // Of a broken file nothing else is told.
    EXPECT_THAT(change("pages/main_page.xml", "<Page"), Not(HasSubstr("there is no such picture")));
}

/// The color of a picture that the menu loads; 0 when there is none.
static Color color_of(const std::string& name)
{
    const std::string file = OSD_RESOURCE_DIR "/pic/" + name + ".bmp";
    SDL_Surface* picture = access(file.c_str(), F_OK) == 0 ? IMG_Load(file.c_str()) : nullptr; // as the menu does
    const Color color = picture == nullptr ? 0 : *static_cast<const Color*>(picture->pixels);
    SDL_FreeSurface(picture);
    return color;
}

TEST_F(Reload, DrawsPicturesForThisCameraAloneAndKeepsTheOldOne)
{
    const auto svg = [](const char* color) {
        return std::string("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"3\"><rect width=\"4\" "
                           "height=\"3\" fill=\"") +
               color + "\"/></svg>";
    };
    const Color staged = color_of("bar");
    EXPECT_EQ(change("pic/bar.svg", svg("#ff0000")), "");
    EXPECT_EQ(color_of("bar"), 0xFFFF0000U);
    EXPECT_THAT(change("pic/bar.svg", "<svg>\n<"), StartsWith("pic/bar.svg:2: XML parse error"));
    EXPECT_EQ(color_of("bar"), 0xFFFF0000U);
    EXPECT_EQ(change("pic/bar.svg", svg("#00ff00")), "");
    EXPECT_EQ(color_of("bar"), 0xFF00FF00U);
    folder.write("pic/late.svg", svg("#0000ff")); // while no camera looked
    const LiveReload next_start(camera, pictures);
    EXPECT_EQ(color_of("late"), 0xFF0000FFU);
    EXPECT_NE(change("pic/bar.svg", ""), "");
    fs::remove(folder.path("pic/bar.svg")); // and its problem with it
    live.reload({folder.path("pic")});
    EXPECT_EQ(problem_lines(), "");
    EXPECT_EQ(color_of("bar"), staged);
}
