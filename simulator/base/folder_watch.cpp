#include "simulator/base/folder_watch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "simulator/base/guard.h"

namespace sim {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto quiet_time = 50ms;    // an editor or a checkout makes many changes at once
constexpr auto longest_wait = 500ms; // but somebody who never stops writing isn't waited for

constexpr std::uint32_t gone = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT;
constexpr std::uint32_t wanted = IN_ATTRIB | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_CREATE |
                                 IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

/// Only what may be read may be watched; the folder above tells when that changes.
bool can_be_watched(const fs::path& path)
{
    std::error_code ignored; // what can't be looked at isn't there
    return fs::is_directory(path, ignored) && ::access(path.c_str(), R_OK) == 0;
}

fs::path nearest_folder(fs::path path)
{
    while (!can_be_watched(path) && path.has_relative_path()) {
        path = path.parent_path();
    }
    return path;
}

/// A file that was made is closed later, when its content is there. Links have theirs at once.
bool has_its_content(const fs::path& made)
{
    struct stat status {};
    return ::lstat(made.c_str(), &status) == 0 && (S_ISLNK(status.st_mode) || status.st_nlink > 1);
}

} // namespace

FolderWatch::Handle::Handle(int number, const char* what) : number_(number)
{
    if (number < 0) {
        throw std::runtime_error(std::string(what) + ": " + std::generic_category().message(errno));
    }
}

FolderWatch::Handle::~Handle() { ::close(number_); }

FolderWatch::FolderWatch(std::vector<fs::path> folders, std::function<void()> on_change)
    : folders_(std::move(folders)), on_change_(std::move(on_change)),
      events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC), "folders can't be watched"),
      stop_(::eventfd(0, EFD_CLOEXEC), "folders can't be watched")
{
    watch_all();
    changed_ = false; // they are known as they are now
    thread_ = std::thread([this] { run(); });
}

FolderWatch::~FolderWatch()
{
    ::eventfd_write(stop_.number(), 1);
    thread_.join();
}

void FolderWatch::run()
{
    while (wait()) {
        (void)guarded("watch", false, [this] {
            read_events();
            tell_when_due();
            return true;
        });
    }
}

FolderWatch::Clock::time_point FolderWatch::due() const { return std::min(last_ + quiet_time, first_ + longest_wait); }

bool FolderWatch::wait()
{
    std::array<pollfd, 2> sources{{{events_.number(), POLLIN, 0}, {stop_.number(), POLLIN, 0}}};
    int time = -1;
    if (changed_) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(due() - Clock::now());
        time = static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
    }
    (void)::poll(sources.data(), sources.size(), time); // a signal only makes it look sooner
    return sources[1].revents == 0;
}

void FolderWatch::read_events()
{
    alignas(inotify_event) std::array<char, 16384> buffer;
    for (;;) {
        const ssize_t got = ::read(events_.number(), buffer.data(), buffer.size());
        if (got <= 0) {
            return;
        }
        for (std::size_t at = 0; at < static_cast<std::size_t>(got);) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
            take(event->wd, event->mask, event->len > 0 ? event->name : "");
            at += sizeof(inotify_event) + event->len;
        }
    }
}

void FolderWatch::take(int watch, std::uint32_t what, const fs::path& name)
{
    if ((what & IN_Q_OVERFLOW) != 0) {
        watch_anew(); // whatever was lost, all is looked at as if it were new
        return;
    }
    const auto place = watches_.find(watch);
    if (place == watches_.end()) {
        return; // the last events of a watch that has ended
    }
    const fs::path path = place->second / name;
    if ((what & gone) != 0 || ((what & IN_MOVED_FROM) != 0 && is_on_the_way(path))) {
        watch_anew(); // the folders below it may have gone with it: they don't say so when it is renamed
        return;
    }
    if ((what & IN_ISDIR) != 0) {
        if (is_on_the_way(path)) {
            watch_all();
        }
        if (name.empty() && seen_.count(place->second) > 0) {
            note(); // its files may be readable again
        }
    } else if (seen_.count(place->second) > 0 && ((what & IN_CREATE) == 0 || has_its_content(path))) {
        note();
    }
}

void FolderWatch::note()
{
    last_ = Clock::now();
    if (!std::exchange(changed_, true)) {
        first_ = last_;
    }
}

void FolderWatch::tell_when_due()
{
    if (changed_ && Clock::now() >= due()) {
        changed_ = false;
        on_change_();
    }
}

void FolderWatch::watch_all()
{
    for (const fs::path& folder : folders_) {
        watch_one(folder);
    }
}

void FolderWatch::watch_one(const fs::path& folder)
{
    for (;;) {
        const fs::path nearest = nearest_folder(folder);
        const int watch = ::inotify_add_watch(events_.number(), nearest.c_str(), wanted);
        const int error = errno;
        if (watch < 0 && error != ENOENT && error != ENOTDIR && error != EACCES) {
            throw std::runtime_error("folder " + nearest.string() +
                                     " can't be watched: " + std::generic_category().message(error));
        }
        if (watch >= 0) {
            watches_[watch] = nearest;
            if (nearest == folder && seen_.insert(folder).second) {
                note();
            }
        }
        if (watch >= 0 && nearest_folder(folder) == nearest) { // else it came or went meanwhile
            return;
        }
    }
}

void FolderWatch::watch_anew()
{
    for (const auto& [watch, path] : watches_) {
        (void)::inotify_rm_watch(events_.number(), watch); // a deleted folder's has ended by itself
    }
    watches_.clear();
    if (!seen_.empty()) {
        note();
    }
    seen_.clear();
    watch_all();
}

/// Whether one of the folders is this path or lies below it.
bool FolderWatch::is_on_the_way(const fs::path& path) const
{
    return std::any_of(folders_.begin(), folders_.end(), [&path](const fs::path& folder) {
        return std::mismatch(path.begin(), path.end(), folder.begin(), folder.end()).first == path.end();
    });
}

} // namespace sim
