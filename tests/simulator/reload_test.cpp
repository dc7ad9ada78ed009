// Changed files of the resources: noticed, checked, and shown or refused.
#include <SDL_image.h>
#include <condition_variable>
#include <functional>
#include <gmock/gmock.h>
#include <mutex>

#include "osd_page.h"
#include "simulator/core/folder_watch.h"
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
    const fs::path page = pages / "a.xml";
    const std::tuple<const char*, std::function<void()>, fs::path> steps[] = {
        {"written in place", [&] { folder.write("pages/a.xml", "2"); }, page},
        {"replaced", [&] { fs::rename(folder.write("b.tmp", "3"), page); }, page},
        {"readable again", [&] { fs::permissions(page, fs::perms::owner_all); }, page},
        {"all readable again", [&] { fs::permissions(pages, fs::perms::owner_all); }, pages},
        {"linked", [&] { fs::create_symlink("a.xml", pages / "link.xml"); }, pages / "link.xml"},
        {"deleted", [&] { fs::remove(page); }, page},
        {"renamed", [&] { fs::rename(pages / "link.xml", folder.path("c.tmp")); }, pages / "link.xml"},
        {"folder made at last", [&] { folder.write("late/lang/x.json", "5"); }, late},
        {"and used", [&] { folder.write("late/lang/y.json", "5"); }, late / "y.json"},
        {"folder above renamed", [&] { fs::rename(folder.path("late"), folder.path("gone")); }, late},
        {"another one there", [&] { folder.write("late/lang/z.json", "6"); }, late},
        {"folder deleted", [&] { fs::remove_all(pages); }, pages},
        {"made again", [&] { folder.write("pages/a.xml", "7"); }, pages},
        {"and used again", [&] { folder.write("pages/a.xml", "8"); }, page},
    };
    for (const auto& [name, act, expected] : steps) {
        std::unique_lock<std::mutex> lock(mutex);
        changed.clear();
        lock.unlock();
        act();
        lock.lock();
        const auto told = [&, awaited = &expected] { return changed.count(*awaited) > 0; };
        EXPECT_TRUE(came.wait_for(lock, std::chrono::seconds(10), told)) << name;
    }
}

struct Reload : testing::Test {
    CameraConfig config() const
    {
        fs::copy(OSD_RESOURCE_DIR "/menu", folder.path("pages"));
        fs::copy(OSD_RESOURCE_DIR "/lang", folder.path("lang"));
        fs::copy(OSD_RESOURCE_DIR "/settings.json", folder.path("settings.json"));
        return {folder.path(), folder.path("data"), false, false, true, "English", {}};
    }
    void press_keys(const std::string& keys) { KeyPlayer(parse_keys(keys), host).press_all_now(); }
    /// Writes a file and lets the menu know. Returns the problems, one a line.
    std::string change(const std::string& file, const std::string& text)
    {
        folder.write(file, text);
        return look();
    }
    std::string change(const std::string& file, const std::string& from, const std::string& to)
    {
        return change(file, replaced(folder.read(file), from, to));
    }
    std::string look()
    {
        live.take(judge(folder.path()));
        return problem_lines();
    }
    std::string problem_lines() const
    {
        std::string lines;
        for (const Finding& problem : live.problems()) {
            lines += problem.place.file + ":" + std::to_string(problem.place.line) + ": " + words_of(problem) + "\n";
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
    press_keys("menu home down down");
    const std::string good = folder.read("pages/image_page.xml");
    const std::string cursor = selected();
    const auto shown = screen();
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
    EXPECT_THAT(look(), HasSubstr("image"));
    EXPECT_EQ(change("pages/image_page.xml", good), "");
    EXPECT_EQ(selected(), cursor);
}

TEST_F(Reload, ShowsAChangedPageOnceWithAllCursors)
{
    press_keys("menu right home down down"); // an icon page below
    const std::string page = open_page_names().back();
    const std::string file = "pages/" + page + "_page.xml";
    const std::string cursor = selected();
    std::string told;
    camera.events().listen([&told](const Event& event) { told += to_line(event) + ";"; });
    const std::string line = "<Item ItemIndex=\"Mirror\" Ctx=\"NAME\" Attr=\"CONST_TXT\"/>\n";
    EXPECT_EQ(change(file, "<Item", line + "<Item"), "");
    EXPECT_EQ(change(file, folder.read(file)), ""); // the same again
    EXPECT_EQ(told, "page main;page " + page + ";show;");
    EXPECT_EQ(selected(), cursor);
    press_keys("return");
    EXPECT_EQ(gstPageMgr.astPage[0].s32SelIdx, 1);
}

TEST_F(Reload, TakesTextsAndDefinitionsOver)
{
    press_keys("menu home");
    const auto before = screen();
    const std::string texts = "lang/English.json";
    const std::string good_texts = folder.read(texts);
    const std::string good_settings = folder.read("settings.json");
    EXPECT_THAT(change(texts, "{\n\"On\": \n}"), StartsWith("lang/English.json:3: syntax error"));
    EXPECT_THAT(change("settings.json", "{\n\n\n"), AllOf(HasSubstr("lang/"), HasSubstr("settings.json:4: syntax")));
    EXPECT_EQ(screen(), before);
    EXPECT_THAT(change("settings.json", good_settings), Not(HasSubstr("settings.json")));
    EXPECT_EQ(change(texts, good_texts), "");
    EXPECT_EQ(change(texts, "\"Brightness\": \"Brightness\"", "\"Brightness\": \"Light\""), "");
    EXPECT_NE(screen(), before);
    // A text that a page needs can't go.
    EXPECT_EQ(change(texts, "\"Brightness\":", "\"Xrightness\":"),
              "lang/English.json:0: the text 'Brightness' is missing, page 'image' needs it\n");
    EXPECT_EQ(change(texts, replaced(good_texts, "{", "{\"Extra\": \"Extra\",")), "");
    EXPECT_EQ(screen(), before);
    EXPECT_EQ(change("pages/image_page.xml", "\"Brightness\"", "\"Extra\""), "");
    EXPECT_NE(screen(), before);
    camera.faults().set(parse_faults({"language-refusing"})); // says nothing about pages
    EXPECT_EQ(change("pages/main_page.xml", folder.read("pages/main_page.xml") + "\n"), "");
    camera.faults().set({});
    const SettingId brightness{"ImageParam", "Brightness"};
    camera.change(brightness, "100");
    EXPECT_EQ(change("settings.json", replaced(good_settings, "\"max\": 100", "\"max\": 60")), "");
    EXPECT_EQ(camera.settings().value(brightness), "50");
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
    const auto svg = [](const std::string& color) {
        return R"(<svg xmlns="http://www.w3.org/2000/svg" width="4" height="3"><rect width="4" height="3" fill=")" +
               color + "\"/></svg>";
    };
    const Color staged = color_of("bar");
    EXPECT_EQ(change("pic/bar.svg", svg("#ff0000")), "");
    EXPECT_EQ(color_of("bar"), 0xFFFF0000U);
    EXPECT_THAT(change("pic/bar.svg", "<svg>\n<"), StartsWith("pic/bar.svg:2: XML parse error"));
    EXPECT_EQ(color_of("bar"), 0xFFFF0000U);
    folder.write("pic/late.svg", svg("#0000ff")); // while no camera looked
    const LiveReload next_start(camera, pictures);
    EXPECT_EQ(color_of("late"), 0xFF0000FFU);
    fs::remove(folder.path("pic/bar.svg")); // and its problem with it
    EXPECT_EQ(look(), "");
    EXPECT_EQ(color_of("bar"), staged);
}
