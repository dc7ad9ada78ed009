// What keys have in common.
#pragma once

#include "osd_page.h"

// Draws at the end of a key; the redraw reports its own failures. Returns 0, the key's result.
int osdKeyRender();
