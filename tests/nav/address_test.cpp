// Editing of an address: its two forms, the edit cursor, and texts that are no address.
#include "tests/nav/nav_test.h"

using namespace fake;
using AddressTest = NavTest;

TEST_F(AddressTest, FormsCursorAndDigits)
{
    check(R"(
        third
        home                       | > Ip [1]92.168.001.005, was 192.168.1.5
        then home                  | > Ip 192.168.1.5
        home right right right     | > Ip 192.[1]68.001.005, was 192.168.1.5
        then left                  | > Ip 19[2].168.001.005, was 192.168.1.5
        then home home left        | > Ip 192.168.001.00[5], was 192.168.1.5
        then up                    | > Ip 192.168.001.00[6], was 192.168.1.5
        home left left down        | > Ip 192.168.001.0[9]5, was 192.168.1.5
        home left right            | > Ip [1]92.168.001.005, was 192.168.1.5
        then right up              | > Ip 1[0]2.168.001.005, was 192.168.1.5
        home down_right            | > Ip 0[9]2.168.001.005, was 192.168.1.5
        then home                  | > Ip 92.168.1.5, was 192.168.1.5
        Ip=010.000.000.001 refresh home | > Ip [0]10.000.000.001
        then home                  | > Ip 10.0.0.1, was 010.000.000.001
        Ip=10.0.0.255 refresh home left up right up home | > Ip 110.0.0.256, was 10.0.0.255
    )");
}

// The edit cursor stays in the text, and the text in its field.
TEST_F(AddressTest, WithoutLengthAndWithoutAddress)
{
    for (const int length : {0, -5, 16, 32, 1000000}) {
        for (const char* text : {"192.168.1.5", "", "...", "a.b.c.d", "99999999999999", "-2147483648.-2.-3.-4"}) {
            setText("Ip", "", text);
            openAll("third");
            tagITEM_NODE_S& item = itemOf("Ip");
            item.s32NumOfChar = length;
            for (const char* keys : {"home left", "up left", "down right", "right up", "home", "home left"}) {
                (void)press(keys);
                const size_t end = strnlen(item.acValue[1], OSD_TEXT_LEN);
                EXPECT_TRUE(end < 32 && item.s32EditCursor >= 0 && item.s32EditCursor < 31) << text << ": " << keys;
            }
        }
    }
}

TEST_F(AddressTest, CountsUpToTheCursor)
{
    tagITEM_NODE_S item = {};
    setField(item.acValue[1], "192.168.a-1.005");
    for (const auto& [cursor, digits, dots] : {std::tuple(0, 1, 0), {4, 4, 1}, {14, 10, 3}, {30, 10, 3}, {-5, 0, 0}}) {
        item.s32EditCursor = cursor;
        int counted[2] = {-1, -1};
        EXPECT_EQ(osdMenuCalcInfoBeforeCursor(&item, &counted[0], &counted[1]), 0);
        EXPECT_TRUE(counted[0] == digits && counted[1] == dots) << cursor;
    }
    EXPECT_EQ(osdMenuIsItemEditing(), 0);
    EXPECT_EQ(osdMenuEditableItemKeyEvent(OSD_MENU_KEY_UP), -1);
}
