// The cursor of a page in a paged sequence: it passes over status lines, turns the page at the ends of the list, and
// the right key enters a sub-page.
#pragma once

#include "menu/nav/list_cursor.h"

tagMOVE_E osdCursorPaged(list_head* pstList, tagOSD_MENU_KEY_E enKey);
