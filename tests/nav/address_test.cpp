// Editing of an address: its two forms, the edit cursor, and texts that are no address.
#include "menu/nav/address.h"
#include "tests/nav/nav_test.h"

using namespace fake;
using AddressTest = NavTest;

TEST_F(AddressTest, FormsCursorAndDigits)
{
    check(R"(
        a = Ip@
        a; home; show a.Ip=192.168.1.5|192.168.001.005@0; a(Ip*=192.168.1.5|192.168.001.005@0)
        a; home | home; show a.Ip=192.168.1.5; a(Ip*=192.168.1.5)
        a; Ip=010.000.000.001 refresh | home; show a.Ip=010.000.000.001@0; a(Ip*=010.000.000.001@0)
        a; Ip=010.000.000.001 refresh home | home; show a.Ip=010.000.000.001|10.0.0.1; a(Ip*=010.000.000.001|10.0.0.1)
        a; home right right | right; show a.Ip=192.168.1.5|192.168.001.005@4; a(Ip*=192.168.1.5|192.168.001.005@4)
        a; home right right right | left; show a.Ip=192.168.1.5|192.168.001.005@2; a(Ip*=192.168.1.5|192.168.001.005@2)
        a; home left left left | down; show a.Ip=192.168.1.5|192.168.001.905@12; a(Ip*=192.168.1.5|192.168.001.905@12)
        a; home left left left | left; show a.Ip=192.168.1.5|192.168.001.005@10; a(Ip*=192.168.1.5|192.168.001.005@10)
        a; home left | up; show a.Ip=192.168.1.5|192.168.001.006@14; a(Ip*=192.168.1.5|192.168.001.006@14)
        a; home left | right; show a.Ip=192.168.1.5|192.168.001.005@0; a(Ip*=192.168.1.5|192.168.001.005@0)
        a; home right | up; show a.Ip=192.168.1.5|102.168.001.005@1; a(Ip*=192.168.1.5|102.168.001.005@1)
        a; home | down_right; show a.Ip=192.168.1.5|092.168.001.005@1; a(Ip*=192.168.1.5|092.168.001.005@1)
        a; Ip=10.0.0.255 refresh home left up right up | home; show a.Ip=10.0.0.255|110.0.0.256; a(Ip*=10.0.0.255|110.0.0.256)
    )");
}

// The edit cursor stays in the text, and the text in its field.
TEST_F(AddressTest, WithoutLengthAndWithoutAddress)
{
    check("a = Ip@");
    tagPAGE_NODE_S& page = gstPageMgr.astPage[0];
    for (const int length : {0, -5, 16, 32, 1000000}) {
        for (const char* text : {"192.168.1.5", "", "...", "a.b.c.d", "99999999999999", "-2147483648.-2.-3.-4"}) {
            setText("Ip", "", text);
            openAll("a");
            itemAt(page.stItemList, 0)->s32NumOfChar = length;
            for (const char* key :
                 {"home", "left", "up", "left", "down", "right", "right", "up", "home", "home", "left"}) {
                (void)pressed(key);
                const tagITEM_NODE_S& item = *itemAt(page.stItemList, 0);
                const size_t end = strnlen(item.acValue[1], OSD_TEXT_LEN);
                EXPECT_TRUE(end < 32 && item.s32EditCursor >= 0 && item.s32EditCursor < 31) << text << ": " << state();
            }
        }
    }
}

TEST_F(AddressTest, CountsUpToTheCursor)
{
    const std::tuple<int, const char*, int, int> cases[] = {{0, "192.168.001.005", 1, 0},
                                                            {4, "192.168.001.005", 4, 1},
                                                            {14, "192.168.001.005", 12, 3},
                                                            {3, "", 0, 0},
                                                            {5, "a1. -2", 2, 1}};
    for (const auto& [cursor, text, digits, dots] : cases) {
        tagITEM_NODE_S item = {};
        setField(item.acValue[1], text);
        item.s32EditCursor = cursor;
        int counted[2] = {-1, -1};
        EXPECT_EQ(osdMenuCalcInfoBeforeCursor(&item, &counted[0], &counted[1]), 0);
        EXPECT_TRUE(counted[0] == digits && counted[1] == dots) << text << " " << cursor;
    }
    EXPECT_EQ(osdMenuIsItemEditing(), 0);
    EXPECT_EQ(osdMenuEditableItemKeyEvent(OSD_MENU_KEY_UP), -1);
}
