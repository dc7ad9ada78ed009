// Stands in front of the heap for blocks of an item's size: fails one, and counts what is left. Runs before the
// sanitizer has started, so this file is compiled without it and uses no inline function of a library.
#include <malloc.h>
#include <stddef.h>

#include "osd_records.h"
#include "tests/fake/calls.h"

extern "C" {
void* __interceptor_calloc(size_t, size_t) __attribute__((weak)); // under the address sanitizer
void __interceptor_free(void*) __attribute__((weak));
void* __libc_calloc(size_t, size_t);
void __libc_free(void*);
}

static size_t g_itemBlock = 0; // what the heap calls the size of an item's block
static int g_live = 0;
static char g_text[OSD_TEXT_LEN]; // of the item released last

int fake::liveItems() { return g_live; }
const char* fake::releasedText() { return g_text; }

extern "C" void* calloc(size_t count, size_t size)
{
    const bool item = count * size == sizeof(tagITEM_NODE_S) && fake::calls().recording;
    if (item && fake::fails("calloc")) {
        return nullptr;
    }
    void* block = __interceptor_calloc != nullptr ? __interceptor_calloc(count, size) : __libc_calloc(count, size);
    if (item) {
        g_itemBlock = malloc_usable_size(block);
        g_live++;
    }
    return block;
}

extern "C" void free(void* block)
{
    if (block != nullptr && g_live > 0 && malloc_usable_size(block) == g_itemBlock) {
        g_live--;
        __builtin_memcpy(g_text, static_cast<tagITEM_NODE_S*>(block)->acValue[0], sizeof g_text);
    }
    __interceptor_free != nullptr ? __interceptor_free(block) : __libc_free(block);
}
