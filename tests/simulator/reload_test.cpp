// Changed files of the resources: noticed, checked, and shown or refused.
#include <condition_variable>
#include <functional>
#include <gmock/gmock.h>
#include <mutex>
#include <optional>

#include "osd_page.h"
#include "simulator/base/folder_watch.h"
#include "simulator/base/resources.h"
#include "simulator/host/key_script.h"
#include "simulator/host/live_reload.h"
#include "simulator/host/page_stack.h"
#include "simulator/video/snapshot.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;
namespace fs = std::filesystem;

TEST(FolderWatch, TellsOfEachChange)
{
    const TempFolder folder;
    folder.write("pages/a.xml", "1");
    std::mutex mutex;
    std::condition_variable came;
    bool changed = false;
    const auto note = [&] {
        const std::lock_guard<std::mutex> lock(mutex);
        changed = true;
        came.notify_all();
    };
    const fs::path pages = folder.path("pages");
    const fs::path late = folder.path("late/lang");
    const FolderWatch watch({pages, late}, note);
    const fs::path page = pages / "a.xml";
    const std::pair<const char*, std::function<void()>> steps[] = {
        {"written in place", [&] { folder.write("pages/a.xml", "2"); }},
        {"replaced", [&] { fs::rename(folder.write("b.tmp", "3"), page); }},
        {"readable again", [&] { fs::permissions(page, fs::perms::owner_all); }},
        {"all readable again", [&] { fs::permissions(pages, fs::perms::owner_all); }},
        {"linked", [&] { fs::create_symlink("a.xml", pages / "link.xml"); }},
        {"deleted", [&] { fs::remove(page); }},
        {"renamed", [&] { fs::rename(pages / "link.xml", folder.path("c.tmp")); }},
        {"folder made at last", [&] { folder.write("late/lang/x.json", "5"); }},
        {"and used", [&] { folder.write("late/lang/y.json", "5"); }},
        {"folder above renamed", [&] { fs::rename(folder.path("late"), folder.path("gone")); }},
        {"another one there", [&] { folder.write("late/lang/z.json", "6"); }},
        {"folder deleted", [&] { fs::remove_all(pages); }},
        {"made again", [&] { folder.write("pages/a.xml", "7"); }},
        {"and used again", [&] { folder.write("pages/a.xml", "8"); }},
    };
    for (const auto& [name, act] : steps) {
        std::unique_lock<std::mutex> lock(mutex);
        changed = false;
        act();
        EXPECT_TRUE(came.wait_for(lock, std::chrono::seconds(10), [&] { return changed; })) << name;
    }
}

struct Reload : testing::Test {
    CameraConfig config() const
    {
        for (const char* part : {"pages", "lang", "pic", "settings.json"}) {
            fs::copy(default_resources() / part, folder.path(part));
        }
        return {folder.path(), folder.path("data"), false, {false, true, false}, "English", {}};
    }
    void SetUp() override { EXPECT_EQ(look(), ""); }
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
        std::string lines;
        for (const Finding& problem : live.problems()) {
            lines += line_of(problem, "") + "\n";
        }
        return lines;
    }
    static std::string selected()
    {
        tagITEM_NODE_S* item = osdMenuGetSelectedItem(&gstPageMgr.astPage[gstPageMgr.s32PageCnt - 1]);
        return item == nullptr ? "" : item->acItemIndex;
    }
    std::vector<Color> screen() { return camera.video.look_at(2).pixels; }

    TempFolder folder;
    Camera camera{config()};
    MenuHost host{camera, {2, 0, false, "", ""}};
    Pictures pictures{folder.path()};
    LiveReload live{camera, pictures};
};

TEST_F(Reload, KeepsTheLastGoodFileAndTellsAllMistakes)
{
    press_keys("menu home down down");
    const std::string cursor = selected();
    const auto shown = screen();
    const std::string page = "pages/image_page.xml";
    const std::string texts = "lang/English.json";
    const auto with_item = [](const std::string& attributes) {
        return "<Page Layout=\"vertical_align\">\n\n<Item " + attributes + "/>\n<Item/></Page>";
    };
    const std::tuple<std::string, std::string, std::vector<std::string>> broken[] = {
        {page, "<Page>\n<Item>\n</Page>", {page + ":3:3: error"}},
        {page, with_item(R"(ItemIndex="Nix" Ctx="NAME" Attr="CONST_TXT")"), {page + ":3:.*Nix", page + ":4:.*Ctx"}},
        {texts, "{\n\"On\": \n}", {texts + ":3:1: error: syntax error"}},
        {texts, replaced(folder.read(texts), "\"Brightness\":", "\"Xrightness\":"), {"error: .*'Brightness'"}},
        {"settings.json", "{\n\n\n", {"settings.json:4:1: error: syntax error"}},
        {"settings.json",
         replaced(folder.read("settings.json"), "\"max\": 100", "\"max\": -1"),
         {"settings.json:.*'min' below 'max'"}},
    };
    for (const auto& [file, text, expected] : broken) {
        const std::string good = folder.read(file);
        const std::string told = change(file, text);
        for (const std::string& words : expected) {
            EXPECT_THAT(told, ContainsRegex(words));
        }
        EXPECT_EQ(screen(), shown) << text;
        press_keys("return home down down"); // read again, it is still the last good one
        EXPECT_EQ(screen(), shown) << text;
        EXPECT_EQ(change(file, good), "");
        EXPECT_EQ(selected(), cursor);
    }
    fs::remove(folder.path(page));
    EXPECT_THAT(look(), HasSubstr("'image'"));
    fs::remove_all(folder.path("pages"));
    EXPECT_THAT(look(), HasSubstr("pages/ is missing"));
    EXPECT_EQ(screen(), shown);
}

TEST_F(Reload, ShowsEachGoodChangeOnceWithAllCursors)
{
    press_keys("menu right home down down"); // an icon page below
    const std::string cursor = selected();
    const std::string page = "pages/exposure_page.xml";
    const std::string texts = "lang/English.json";
    const auto before = screen();
    std::string told;
    const Subscription events = camera.events.listen([&told](const Event& event) { told += to_line(event) + ";"; });
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {page, "<Item", "<Item ItemIndex=\"Mirror\" Ctx=\"NAME\" Attr=\"CONST_TXT\"/><Item"},
        {texts, "\"ExpComp\": \"", "\"ExpComp\": \"Light "},
        {"settings.json", "\"ExposureParam\", \"kind\": \"integer\", \"min\": 0, \"max\": 15",
         "\"ExposureParam\", \"kind\": \"integer\", \"min\": 0, \"max\": 30"}, // of the gain limit's bar
    };
    for (const auto& [file, from, to] : cases) {
        const std::string good = folder.read(file);
        told.clear();
        EXPECT_EQ(change(file, from, to), "");
        EXPECT_THAT(told, EndsWith("page main;page exposure;show;"));
        EXPECT_NE(screen(), before) << to;
        EXPECT_EQ(selected(), cursor);
        EXPECT_EQ(change(file, good), "");
        EXPECT_EQ(screen(), before) << to;
    }
    told.clear();
    camera.faults.set(parse_faults({"language-refusing"})); // says nothing about pages
    EXPECT_EQ(change(page, folder.read(page)), "");
    EXPECT_EQ(told, "") << "it is the same again";
    press_keys("return");
    EXPECT_EQ(gstPageMgr.astPage[0].s32SelIdx, 1);
}

TEST_F(Reload, ShowsWhatCanBeUsedAndTellsItsMistakes)
{
    press_keys("menu home");
    const auto before = screen();
    EXPECT_THAT(change("pages/image_page.xml", "<Item", "letters <Item"),
                ContainsRegex("image_page.xml:.*: warning: "));
    EXPECT_EQ(screen(), before);
    EXPECT_THAT(change("pages/image_page.xml", "\"Brightness\"", "\"Contrast\""), ContainsRegex("'Contrast'"));
    EXPECT_NE(screen(), before);
    EXPECT_THAT(look(), HasSubstr("warning: "));
}

TEST_F(Reload, ChecksOnAThreadOfItsOwn)
{
    std::mutex mutex;
    std::condition_variable came;
    std::optional<std::string> rule; // of the first finding
    Checker checker(folder.path(), [&] {
        const Verdict verdict = checker.take();
        const std::lock_guard<std::mutex> lock(mutex);
        rule = verdict.findings.empty() ? "" : verdict.findings.front().rule;
        came.notify_all();
    });
    const auto comes = [&](const std::string& expected) {
        std::unique_lock<std::mutex> lock(mutex);
        rule.reset();
        checker.look_again();
        return came.wait_for(lock, std::chrono::seconds(30), [&] { return rule == expected; });
    };
    const std::string good = folder.read("lang/English.json");
    camera.faults.set(parse_faults({"fonts-missing"})); // is for the menu alone
    EXPECT_TRUE(comes(""));
    folder.write("lang/English.json", "{");
    EXPECT_TRUE(comes("text"));
    folder.write("lang/English.json", good);
    EXPECT_TRUE(comes(""));
    const std::string mirror = "\"Mirror\": \"";
    std::string wide = good;
    wide.insert(wide.find(mirror) + mirror.size(), 20, 'W');
    folder.write("lang/English.json", wide);
    EXPECT_TRUE(comes("text-cut")) << "is drawn";
    folder.write("lang/English.json", good);
    EXPECT_TRUE(comes(""));
}

static Color color_of(const std::string& picture)
{
    return load_png(OSD_RESOURCE_DIR "/pic/" + picture + ".bmp").pixels[0]; // loaded as the menu does
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
    EXPECT_THAT(change("pic/bar.svg", "<svg>\n<"), StartsWith("pic/bar.svg:2:"));
    EXPECT_EQ(color_of("bar"), 0xFFFF0000U);
    folder.write("pic/late.svg", svg("#0000ff")); // while no camera looked
    const LiveReload next_start(camera, pictures);
    EXPECT_EQ(color_of("late"), 0xFF0000FFU);
    fs::remove(folder.path("pic/bar.svg"));
    EXPECT_THAT(look(), HasSubstr("[menu-picture]"));
    EXPECT_EQ(color_of("bar"), staged);
}
