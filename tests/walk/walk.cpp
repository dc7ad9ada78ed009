// Random keys on the camera's own pages, with a host that comes back into the menu and settings that change under it.
// One seed gives one walk; a failure names the key where it happened.
//     osdmenu_walk --keys 20000 --seed 1
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "osd_page.h"
#include "tests/fake/keys.h"
#include "tests/fake/menu_test.h"

using namespace fake;

static std::map<std::string, long> g_options = {{"--keys", 20000}, {"--seed", 1}};

class WalkTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        loadPages();
        loadSettings();
        std::istringstream often(
            "home home home home home home home home down down down down down down down right right right "
            "right left left left up up up set set ");
        names.assign(std::istream_iterator<std::string>(often), {});
        for (const auto& [name, function] : keys()) {
            names.push_back(name);
        }
        fake::calls().byteWidth = fake::calls().lineHeight = 1; // little to draw
        platform().host = [this](tagITEM_NODE_S* item) { apply(item); };
        start({0, 2, 0, {0.0f, 0.0f, 0.05f, 0.05f}, true});
    }

    void loadPages()
    {
        for (const auto& entry : std::filesystem::directory_iterator(OSD_PAGE_DIR)) {
            const std::string file = entry.path().filename();
            std::ifstream in(entry.path());
            platform().pages[file.substr(0, file.rfind("_page.xml"))] = {std::istreambuf_iterator<char>(in), {}};
        }
    }

    static void loadSettings()
    {
        const auto all = nlohmann::json::parse(std::ifstream(OSD_PAGE_DIR "/../settings.json"));
        for (const auto& [zone, parent] : all.at("zones").items()) {
            platform().parents[zone] = parent;
        }
        for (const auto& setting : all.at("settings")) {
            std::string key = setting.value("parent", "") + "/" + setting.value("key", "");
            key = key[0] == '/' ? key.substr(1) : key;
            if (setting.value("kind", "") == "integer") {
                setNumber(key, setting.at("min"), setting.at("max"), setting.at("step"), setting.at("default"));
                continue;
            }
            std::string list;
            for (const std::string& option : setting.value("options", std::vector<std::string>())) {
                list += (list.empty() ? "" : ":") + option;
            }
            setText(key, list.c_str(), setting.value("default", "").c_str());
        }
        setNumber("LedCustomColor", 0, 0xFFFFFF, 5, 0x1E91FF);
        platform().answers[OSD_MENU_GET_LED_CUSTOM_COLOR] = "1E91FF";
    }

    int below(size_t limit) { return std::uniform_int_distribution<int>(0, static_cast<int>(limit) - 1)(random); }
    bool oneIn(int chance) { return below(static_cast<size_t>(chance)) == 0; }
    void fault(const std::string& text) { problem = problem.empty() ? text : problem; }

    // The host: stores the value, and now and then comes back.
    void apply(tagITEM_NODE_S* item)
    {
        calls++;
        const bool number = item->enValType == NUMERICAL;
        const bool pending = number ? item->s32Cur != item->s32Saved : item->s32CurIdx != item->s32SavedIdx;
        const tagPAGE_NODE_S* page = osdXmlGetCurPage();
        // what the host itself sets needn't be committed
        if (pending && item->enAttr != CONST_TXT && page != nullptr && page->bConfirmBtn == 0 && sets == 0) {
            fault(std::string("not committed: ") + item->acItemIndex + " " + valueOf(*item));
        }
        const char* parent = dataZoneParent(item->acDataZone);
        const std::string key = (parent != nullptr ? std::string(parent) + "/" : "") + item->acItemIndex;
        if (number && platform().numbers.count(key) != 0) {
            platform().numbers[key].s32Cur = item->s32Cur;
        } else if (!number && platform().texts.count(key) != 0 && item->s32CurIdx >= 0) {
            const std::string value = item->enAttr == EDITABLE ? item->acValue[0] : item->acValueKey[item->s32CurIdx];
            (void)fake::press(key + "=" + value);
        }
        if (std::string(item->acItemIndex) == "Language") {
            platform().language = item->acValueKey[item->s32CurIdx];
        }
        if (depth < 3 && oneIn(8)) {
            key_();
        }
    }

    void key_()
    {
        const std::string& name = names[static_cast<size_t>(below(names.size()))];
        depth++;
        sets += name == "set" ? 1 : 0;
        (void)fake::press(name);
        sets -= name == "set" ? 1 : 0;
        depth--;
    }

    // Other values in two settings.
    void change()
    {
        auto text = std::next(platform().texts.begin(), below(platform().texts.size()));
        const std::string list = text->second.acList;
        if (!list.empty()) {
            const std::string rest = list.substr(list.rfind(':', static_cast<size_t>(below(list.size()))) + 1);
            (void)fake::press(text->first + "=" + rest.substr(0, rest.find(':')));
        }
        auto number = std::next(platform().numbers.begin(), below(platform().numbers.size()));
        number->second.s32Cur =
            number->second.s32Min + below(static_cast<size_t>(number->second.s32Max - number->second.s32Min + 1));
    }

    static bool inRange(const tagITEM_NODE_S& item)
    {
        const bool number = item.enValType == NUMERICAL;
        const int first = number ? item.s32Min : item.s32ValCnt > 0 ? 0 : -1;
        const int last = number ? item.s32Max : std::max(item.s32ValCnt - 1, 0);
        const int now = number ? item.s32Cur : item.s32CurIdx;
        return now >= first && now <= last;
    }

    void checkState()
    {
        const int count = gstPageMgr.s32PageCnt;
        if (count < 0 || count > 5 || (count == 0 && liveItems() != 0)) {
            fault(format("%d pages, %d items", count, liveItems()));
        }
        for (int at = 0; at < count && problem.empty(); at++) {
            tagPAGE_NODE_S& page = gstPageMgr.astPage[at];
            const auto items = itemsOf(page);
            const auto active =
                std::count_if(items.begin(), items.end(), [](auto* item) { return item->bActive == 1; });
            const bool icon = page.enLayout == PAGE_LAYOUT_ICON;
            const bool two =
                strcmp(page.acPageName, "network") == 0; // an automatic mode gives the cursor to a second item
            const bool cursor =
                icon ? page.s32SelIdx >= 0 && page.s32SelIdx < std::max(page.s32ItemCnt, 1) : active < 2 || two;
            if (!cursor || !std::all_of(items.begin(), items.end(), [](auto* item) { return inRange(*item); })) {
                fault("cursor or value: " + joined(screen(), "\n"));
            }
        }
    }

    std::mt19937 random{static_cast<unsigned>(g_options.at("--seed"))};
    std::vector<std::string> names; // a key as often as it is pressed
    std::string problem;
    int depth = 0;
    int sets = 0;
    long calls = 0;
    long pages = 0;
};

TEST_F(WalkTest, RandomKeys)
{
    const long count = g_options.at("--keys");
    long done = 0;
    while (done < count && problem.empty()) {
        testing::internal::CaptureStdout(); // what the library prints
        for (int i = 0; i < 1000 && done < count && problem.empty(); i++, done++) {
            if (oneIn(10)) {
                change();
            }
            key_();
            checkState();
            pages += static_cast<long>(linesOf({"document "}).size());
            fake::calls().lines.clear();
            platform().pushes.clear();
            platform().log.clear();
        }
        (void)testing::internal::GetCapturedStdout();
    }
    (void)press("close");
    EXPECT_EQ(problem, "") << "at key " << done << " of seed " << g_options.at("--seed");
    EXPECT_EQ(liveItems(), 0);
    EXPECT_EQ(fake::calls().surfaces.size(), 1u);
    EXPECT_EQ(platform().blocks.size(), 2u);
    EXPECT_TRUE(count < 1000 || (calls > 0 && pages > 0));
    printf("%ld keys, %ld pages opened, %ld business calls\n", done, pages, calls);
}

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    for (int at = 1; at + 1 < argc; at += 2) {
        g_options.at(argv[at]) = std::stol(argv[at + 1]);
    }
    return RUN_ALL_TESTS();
}
