// Tells when files in folders change.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <thread>
#include <vector>

namespace sim {

/// Watches whole folders on a thread of its own: files that are written, made, renamed, replaced or deleted in them, or
/// get other permissions. A folder may be missing, go and come back. What is in folders below them doesn't count.
class FolderWatch {
public:
    /// The function is called on the watching thread, when no further change came for 50 ms, at the latest 500 ms
    /// behind the first one. Throws std::runtime_error when the system refuses.
    FolderWatch(std::vector<std::filesystem::path> folders, std::function<void()> on_change);
    /// Ends the watching at once; behind it the function isn't called any more.
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

private:
    /// A file of the system's that closes itself.
    class Handle {
    public:
        Handle(int number, const char* what);
        ~Handle();
        Handle(const Handle&) = delete;
        Handle& operator=(const Handle&) = delete;
        int number() const { return number_; }

    private:
        int number_;
    };

    using Clock = std::chrono::steady_clock;

    void run();
    /// Waits for an event, for the time at which to call, or for the end, which gives false.
    bool wait();
    void read_events();
    void take(int watch, std::uint32_t what, const std::filesystem::path& name);
    void note();
    void tell_when_due();
    Clock::time_point due() const;

    /// Watches each folder, or where it is missing the nearest one above it, in which it will appear.
    void watch_all();
    void watch_one(const std::filesystem::path& folder);
    /// Forgets what is watched and begins again; whatever is in the folders counts as changed.
    void watch_anew();
    bool is_on_the_way(const std::filesystem::path& path) const;

    const std::vector<std::filesystem::path> folders_;
    const std::function<void()> on_change_;
    Handle events_;
    Handle stop_;
    std::map<int, std::filesystem::path> watches_;
    std::set<std::filesystem::path> seen_; ///< folders that are watched themselves
    bool changed_ = false;
    Clock::time_point first_;
    Clock::time_point last_;
    std::thread thread_;
};

} // namespace sim
