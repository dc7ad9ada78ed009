// The fixture of all tests: a started library over the fakes, and nothing left behind.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "osd_comm.h"
#include "osd_menu.h"
#include "tests/fake/calls.h"
#include "tests/fake/page.h"
#include "tests/fake/platform.h"

namespace fake {

struct Config {
    uint32_t style = 0;
    uint32_t format = 2;
    OSD_BOOL big = 0;
    tagOSD_MENU_RECT_S place = {0.0f, 0.0f, 0.5208f, 0.9259f}; // 1000 by 1000 on the base of 1920 by 1080
    bool parents = false;                                      // with the data zone callback
};

class MenuTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    int init(const Config& config = {});
    void start(const Config& config = {}); // init that must succeed, with an empty log of calls
    void stop();                           // gives everything back that the library holds

    // Parses the page of that name and counts it as open.
    static tagPAGE_NODE_S* open(std::string name, int expected = 0);
    // The same with a page "p" of these items, completed with the usual words.
    static tagPAGE_NODE_S* openPage(const std::string& items, const std::string& attributes = "");

private:
    std::string heldBefore;
};

// One pixel of a surface as 0xAARRGGBB.
uint32_t pixelAt(SDL_Surface* surface, int x, int y);

} // namespace fake
