// Stands in front of the heap for blocks of an item's size, to fail one and to count what is left.
#include <atomic>
#include <cstddef>

#include "include/osd_records.h"
#include "tests/fake/calls.h"

extern "C" {
void* __interceptor_calloc(size_t, size_t) __attribute__((weak)); // under the address sanitizer
void __interceptor_free(void*) __attribute__((weak));
void* __libc_calloc(size_t, size_t);
void __libc_free(void*);
}

namespace {

constexpr size_t ITEM_MAX = 4096;
std::atomic<void*> g_items[ITEM_MAX];
std::atomic<int> g_live{0};

void swapEntry(void* from, void* to)
{
    for (std::atomic<void*>& entry : g_items) {
        void* expected = from;
        if (entry.compare_exchange_strong(expected, to)) {
            g_live += from == nullptr ? 1 : -1;
            return;
        }
    }
}

} // namespace

int fake::liveItems() { return g_live; }

extern "C" void* calloc(size_t count, size_t size)
{
    const bool item = count * size == sizeof(tagITEM_NODE_S) && fake::calls().recording;
    if (item && fake::fails("calloc")) {
        return nullptr;
    }
    void* block = __interceptor_calloc != nullptr ? __interceptor_calloc(count, size) : __libc_calloc(count, size);
    if (item) {
        swapEntry(nullptr, block);
    }
    return block;
}

extern "C" void free(void* block)
{
    if (block != nullptr && g_live > 0) {
        swapEntry(block, nullptr);
    }
    __interceptor_free != nullptr ? __interceptor_free(block) : __libc_free(block);
}
