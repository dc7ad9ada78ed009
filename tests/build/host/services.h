// The smallest camera: pixels on the heap, no settings, one page. Its services may be called by several threads and have
// no lock, so that nobody but the library orders what its threads do.
#pragma once

#include <atomic>

#include "osd_canvas.h"

extern std::atomic<int> g_blocks;                     // of media memory, alive
extern void (*g_pushed)(const tagOSD_MENU_CANVAS_S&); // runs in each push to all channels

// Starts the library; what the last step returned.
int startMenu();

// Prints what isn't as wanted, and counts it.
extern std::atomic<int> g_failures;
void expect(const char* what, int actual, int wanted);
