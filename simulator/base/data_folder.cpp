#include "simulator/base/data_folder.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "simulator/base/data.h"

namespace sim {
namespace {

std::string system_words() { return std::generic_category().message(errno); }

} // namespace

std::filesystem::path default_data_folder()
{
    const char* data_home = std::getenv("XDG_DATA_HOME");
    if (data_home != nullptr && data_home[0] == '/') { // the standard says that relative paths don't count
        return std::filesystem::path(data_home) / "camera-sim";
    }
    const char* home = std::getenv("HOME");
    if (home == nullptr || home[0] == '\0') {
        throw BadInput("neither XDG_DATA_HOME nor HOME is set; name a data folder with --data DIR");
    }
    return std::filesystem::path(home) / ".local/share/camera-sim";
}

DataFolder::DataFolder(std::filesystem::path path) : path_(std::move(path))
{
    std::error_code error;
    std::filesystem::create_directories(path_, error);
    if (error) {
        throw BadInput("data folder " + path_.string() + ": can't be made: " + error.message());
    }
    // The kernel drops the lock with the process, so a killed camera leaves nothing behind that must be cleaned.
    const std::string lock_file = (path_ / "camera.lock").string();
    lock_ = ::open(lock_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (lock_ < 0) {
        throw BadInput("data folder " + path_.string() + ": can't be written: " + system_words());
    }
    if (::flock(lock_, LOCK_EX | LOCK_NB) != 0) {
        ::close(lock_);
        throw BadInput("data folder " + path_.string() +
                       ": another camera runs on it; stop that one, or choose another folder with --data DIR");
    }
}

DataFolder::~DataFolder() { ::close(lock_); }

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "camera-sim-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("temporary folder " + pattern + ": can't be made: " + system_words());
    }
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored; // nobody could do more about what stays behind
    std::filesystem::remove_all(path_, ignored);
}

} // namespace sim
