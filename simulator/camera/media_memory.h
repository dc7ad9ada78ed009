// Memory of the media platform: page-aligned blocks, accounted by name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "osd_canvas.h"

namespace sim {

struct MemoryUse {
    std::size_t blocks = 0;
    std::size_t bytes = 0;
};

/// Hands out blocks and takes them back. Safe to use from several threads. What is never given back goes with it.
class MediaMemory {
public:
    /// More than any canvas needs: a picture of 3840 by 2160 in four bytes a pixel takes 32 MiB.
    static constexpr std::uint32_t max_block = 64U << 20;

    /// A zeroed block; false for the size 0, an absurd size, or when there is no memory.
    bool allocate(const std::string& name, std::uint32_t size, tagOSD_MEM_S& block);
    /// Takes a block back and zeroes the record; false, with nothing changed, for a block that isn't one of ours.
    bool release(tagOSD_MEM_S& block);

    /// The size of the block at this address, 0 when there is none.
    std::size_t size_at(const void* address) const;
    /// What is handed out at present, by name.
    std::map<std::string, MemoryUse> in_use() const;

private:
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    struct Block {
        std::string name;
        std::uint32_t size = 0;
        std::unique_ptr<void, Free> memory;
    };

    mutable std::mutex mutex_;
    std::map<const void*, Block> blocks_;
};

} // namespace sim
