#include "simulator/camera/media_memory.h"

#include <cstring>

namespace sim {
namespace {

constexpr std::size_t page_size = 4096;

} // namespace

bool MediaMemory::allocate(const std::string& name, std::uint32_t size, tagOSD_MEM_S& block)
{
    if (size == 0 || size > max_block) {
        return false;
    }
    const std::size_t rounded = (size + page_size - 1) / page_size * page_size; // what aligned_alloc asks for
    std::unique_ptr<void, Free> memory(std::aligned_alloc(page_size, rounded));
    if (memory == nullptr) {
        return false;
    }
    std::memset(memory.get(), 0, rounded);
    tagOSD_MEM_S filled{};
    filled.pvVirAddr = memory.get();
    filled.au64Service[0] = size;
    const std::lock_guard<std::mutex> lock(mutex_);
    blocks_[filled.pvVirAddr] = {name, size, std::move(memory)};
    block = filled; // last, so that no failure touches it
    return true;
}

bool MediaMemory::release(tagOSD_MEM_S& block)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (blocks_.erase(block.pvVirAddr) == 0) {
        return false;
    }
    block = {};
    return true;
}

std::size_t MediaMemory::size_at(const void* address) const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = blocks_.find(address);
    return found == blocks_.end() ? 0 : found->second.size;
}

std::map<std::string, MemoryUse> MediaMemory::in_use() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    std::map<std::string, MemoryUse> uses;
    for (const auto& [address, block] : blocks_) {
        MemoryUse& use = uses[block.name];
        ++use.blocks;
        use.bytes += block.size;
    }
    return uses;
}

} // namespace sim
