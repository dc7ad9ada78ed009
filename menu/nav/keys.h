// The keys of the remote control, but home. Each changes the stack or moves the cursor, and then draws once; the redraw
// reports its own failures.
#pragma once

#include <initializer_list>

#include "osd_menu.h"

// Opens "main" when the menu is closed.
void osdKeyOpen();

// Makes one or two moves on the top page.
void osdKeyMove(std::initializer_list<tagOSD_MENU_KEY_E> aenKey, bool bUpdate);

// The menu key and the advanced key; false when the page count is negative.
bool osdKeyMenu();
bool osdKeyAdvanced();

// Goes back one page; closes the menu.
void osdKeyReturn();
void osdKeyClose();
