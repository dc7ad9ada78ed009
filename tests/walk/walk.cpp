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
        for (const auto& [name, function] : keys()) {
            names.push_back(name);
        }
        for (const auto& [name, times] :
             {std::pair("home", 7U), {"down", 6}, {"right", 4}, {"left", 2}, {"up", 2}, {"set", 2}}) {
            names.insert(names.end(), times, name);
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
            const std::string list = joined(setting.value("options", std::vector<std::string>()), ":");
            setText(key, list.c_str(), setting.value("default", "").c_str());
        }
        setNumber("LedCustomColor", 0, 0xFFFFFF, 5, 0x1E91FF);
        platform().answers[OSD_MENU_GET_LED_CUSTOM_COLOR] = "1E91FF";
    }

    int below(size_t limit) { return std::uniform_int_distribution<int>(0, static_cast<int>(limit) - 1)(random); }

    // The host: stores the value, and now and then comes back.
    void apply(tagITEM_NODE_S* item)
    {
        calls++;
        const bool number = item->enValType == NUMERICAL;
        const bool pending = number ? item->s32Cur != item->s32Saved : item->s32CurIdx != item->s32SavedIdx;
        const tagPAGE_NODE_S* page = osdXmlGetCurPage();
        // what the host itself sets needn't be committed
        if (pending && item->enAttr != CONST_TXT && page != nullptr && page->bConfirmBtn == 0 && sets == 0) {
            ADD_FAILURE() << "not committed: " << item->acItemIndex << " " << valueOf(*item);
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
        if (depth < 3 && below(8) == 0) {
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
        if (item.enValType == NUMERICAL) {
            return item.s32Cur >= item.s32Min && item.s32Cur <= item.s32Max;
        }
        return item.s32CurIdx >= (item.s32ValCnt > 0 ? 0 : -1) && item.s32CurIdx <= std::max(item.s32ValCnt - 1, 0);
    }

    void checkState()
    {
        const int count = gstPageMgr.s32PageCnt;
        if (count < 0 || count > 5 || (count == 0 && liveItems() != 0)) {
            ADD_FAILURE() << count << " pages, " << liveItems() << " items";
        }
        for (int at = 0; at < count && !HasFailure(); at++) {
            tagPAGE_NODE_S& page = gstPageMgr.astPage[at];
            const auto items = itemsOf(page);
            const auto active =
                std::count_if(items.begin(), items.end(), [](auto* item) { return item->bActive == 1; });
            const bool icon = page.enLayout == PAGE_LAYOUT_ICON;
            // an automatic mode gives the cursor to a second item
            const int most = strcmp(page.acPageName, "network") == 0 ? 2 : 1;
            const bool cursor =
                icon ? page.s32SelIdx >= 0 && page.s32SelIdx < std::max(page.s32ItemCnt, 1) : active <= most;
            if (!cursor || !std::all_of(items.begin(), items.end(), [](auto* item) { return inRange(*item); })) {
                ADD_FAILURE() << "cursor or value: " << joined(screen(), "\n");
            }
        }
    }

    std::mt19937 random{static_cast<unsigned>(g_options.at("--seed"))};
    std::vector<std::string> names; // a key as often as it is pressed
    int depth = 0;
    int sets = 0;
    long calls = 0;
};

TEST_F(WalkTest, RandomKeys)
{
    const long count = g_options.at("--keys");
    long done = 0;
    while (done < count && !HasFailure()) {
        testing::internal::CaptureStdout(); // what the library prints
        for (int i = 0; i < 1000 && done < count && !HasFailure(); i++, done++) {
            if (below(10) == 0) {
                change();
            }
            key_();
            checkState();
            fake::calls().lines.clear();
            platform().pushes.clear();
            platform().log.clear();
        }
        (void)testing::internal::GetCapturedStdout();
    }
    (void)press("close");
    EXPECT_FALSE(HasFailure()) << "at key " << done << " of seed " << g_options.at("--seed");
    EXPECT_EQ(liveItems(), 0);
    EXPECT_EQ(fake::calls().surfaces.size(), 1u);
    EXPECT_EQ(platform().blocks.size(), 2u);
    EXPECT_TRUE(count < 1000 || calls > 0);
    printf("%ld keys, %ld business calls\n", done, calls);
}

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    for (int at = 1; at + 1 < argc; at += 2) {
        g_options.at(argv[at]) = std::stol(argv[at + 1]);
    }
    return RUN_ALL_TESTS();
}
