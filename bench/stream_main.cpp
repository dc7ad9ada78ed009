// What the web front end costs: starts the simulated camera with its menu open, watches the main channel at 1920 by 1080
// for some seconds, presses keys, and prints pictures a second, the share of a core, and how late a key is seen. Status 1
// for a figure that is worse than its gate.
//     bench_stream path/to/camera-sim
#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>
#include <turbojpeg.h>
#include <unistd.h>
#include <vector>

#include <httplib.h>

#include "tests/simulator/camera_process.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds watch_time{10};
constexpr int key_count = 30;
constexpr double frame_ms = 40;

/// Whether all figures so far were within their gates.
bool all_hold = true;

/// Prints what was measured, with the words behind it when it doesn't hold.
void report(bool holds, const std::string& words, const char* gate)
{
    all_hold = all_hold && holds;
    std::printf("%s%s\n", words.c_str(), holds ? "" : (std::string("  FAILED, expected ") + gate).c_str());
}

template <typename... Values>
std::string format(const char* pattern, Values... values)
{
    char words[200];
    std::snprintf(words, sizeof words, pattern, values...);
    return words;
}

/// A folder of its own, which goes with all in it.
struct Folder {
    Folder()
    {
        if (mkdtemp(path) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
    }
    ~Folder() { std::filesystem::remove_all(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    char path[32] = "/tmp/bench-stream-XXXXXX";
};

/// A camera with settings of its own.
class Camera {
public:
    Camera(const char* program, const std::string& pixel_format)
        : process_(folder_.path, std::filesystem::absolute(program).string(),
                   "--format " + pixel_format + " --listen 127.0.0.1:0 2>/dev/null"),
          port_(port_of(process_.next_line()))
    {
        if (port_ == 0) {
            throw std::runtime_error(std::string(program) + " doesn't start");
        }
    }

    ~Camera()
    {
        process_.send(SIGTERM);
        process_.end();
    }

    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    httplib::Client client() const { return httplib::Client("127.0.0.1", port_); }

    void press(const std::string& key) const
    {
        if (!client().Post("/keys", R"({"keys": [")" + key + "\"]}", "application/json")) {
            throw std::runtime_error("the camera doesn't take the key " + key);
        }
    }

    /// Seconds of processor time that it has used so far.
    double cpu_seconds() const
    {
        std::ifstream stat("/proc/" + std::to_string(process_.id()) + "/stat");
        std::string word;
        long ticks = 0;
        for (int field = 1; field <= 15 && stat >> word; ++field) {
            ticks += field >= 14 ? std::atol(word.c_str()) : 0;
        }
        return static_cast<double>(ticks) / static_cast<double>(sysconf(_SC_CLK_TCK));
    }

    /// Bytes of memory that are in use.
    double resident_mebibytes() const
    {
        std::ifstream statm("/proc/" + std::to_string(process_.id()) + "/statm");
        double pages = 0;
        statm >> pages >> pages;
        return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
    }

private:
    const Folder folder_;
    const CameraProcess process_;
    const int port_;
};

/// The left 896 columns of a picture, where the menu stands, at an eighth of their size.
std::vector<unsigned char> menu_pixels(const std::string& jpeg)
{
    constexpr int width = 1920 / 8;
    constexpr int height = 1080 / 8;
    const tjhandle reader = tjInitDecompress();
    std::vector<unsigned char> pixels(std::size_t{width} * height);
    const int status = tjDecompress2(reader, reinterpret_cast<const unsigned char*>(jpeg.data()), jpeg.size(),
                                     pixels.data(), width, 0, height, TJPF_GRAY, 0);
    tjDestroy(reader);
    if (status != 0) {
        throw std::runtime_error("a picture of the stream can't be read");
    }
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = i % width < 896 / 8 ? pixels[i] : 0;
    }
    return pixels;
}

/// Watches the main channel on a thread of its own.
class Viewer {
public:
    explicit Viewer(const Camera& camera) : client_(camera.client())
    {
        thread_ = std::thread([this] {
            (void)client_.Get("/channels/0/stream.mjpg",
                              [this](const char* bytes, std::size_t size) { return take(bytes, size); });
        });
    }

    ~Viewer()
    {
        ending_ = true;
        thread_.join();
    }

    Viewer(const Viewer&) = delete;
    Viewer& operator=(const Viewer&) = delete;

    long frames() const { return frames_; }

    /// Waits until the menu looks different from how it did at this count of changes; returns when that was seen.
    Clock::time_point wait_for_change(long seen)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        if (!changed_.wait_for(lock, std::chrono::seconds(5), [&] { return changes_ > seen; })) {
            throw std::runtime_error("a key is not seen in the stream");
        }
        return change_time_;
    }

    long changes()
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return changes_;
    }

private:
    bool take(const char* bytes, std::size_t size)
    {
        buffer_.append(bytes, size);
        const std::string mark = "Content-Length: ";
        const std::size_t length_at = buffer_.find(mark);
        const std::size_t head_end = buffer_.find("\r\n\r\n", length_at == std::string::npos ? 0 : length_at);
        if (length_at == std::string::npos || head_end == std::string::npos) {
            return !ending_;
        }
        const auto length = static_cast<std::size_t>(std::atol(buffer_.c_str() + length_at + mark.size()));
        if (buffer_.size() >= head_end + 4 + length) {
            const auto now = Clock::now();
            look_at(buffer_.substr(head_end + 4, length), now);
            buffer_.erase(0, head_end + 4 + length);
        }
        return !ending_;
    }

    void look_at(const std::string& jpeg, Clock::time_point now)
    {
        std::vector<unsigned char> pixels = menu_pixels(jpeg);
        ++frames_;
        const std::lock_guard<std::mutex> lock(mutex_);
        if (pixels != last_) {
            ++changes_;
            change_time_ = now;
            changed_.notify_one();
        }
        last_ = std::move(pixels);
    }

    httplib::Client client_;
    std::string buffer_;
    std::atomic<bool> ending_{false};
    std::atomic<long> frames_{0};
    std::mutex mutex_; ///< guards the members below
    std::condition_variable changed_;
    std::vector<unsigned char> last_;
    long changes_ = 0;
    Clock::time_point change_time_;
    std::thread thread_;
};

void open_menu(const Camera& camera)
{
    for (const char* key : {"menu", "home"}) {
        camera.press(key);
    }
}

void measure_load(const Camera& camera)
{
    Viewer viewer(camera);
    (void)viewer.wait_for_change(0);
    const double cpu = camera.cpu_seconds();
    const long frames = viewer.frames();
    const auto begin = Clock::now();
    std::this_thread::sleep_for(watch_time);
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    const double rate = static_cast<double>(viewer.frames() - frames) / seconds;
    const double share = (camera.cpu_seconds() - cpu) / seconds;
    report(rate > 24.5 && share < 1,
           format("1920 by 1080, menu open: %.1f pictures a second, %.2f of a core, %.0f MiB resident", rate, share,
                  camera.resident_mebibytes()),
           "25 pictures a second below one core");
}

void measure_keys(const Camera& camera)
{
    Viewer viewer(camera);
    (void)viewer.wait_for_change(0);
    std::vector<double> delays;
    for (int i = 0; i < key_count; ++i) {
        // Another part of the time between two pictures for each key.
        std::this_thread::sleep_for(std::chrono::milliseconds(200 + 37 * i % 40));
        const long seen = viewer.changes();
        const auto pressed = Clock::now();
        camera.press(i % 2 == 0 ? "down" : "up");
        delays.push_back(std::chrono::duration<double, std::milli>(viewer.wait_for_change(seen) - pressed).count());
    }
    std::sort(delays.begin(), delays.end());
    const double median = delays[delays.size() / 2];
    report(
        delays.back() <= 2 * frame_ms,
        format("a key is in the stream after %.0f ms in the median, %.0f ms at most of %d keys: %.1f and %.1f frames",
               median, delays.back(), key_count, median / frame_ms, delays.back() / frame_ms),
        "at most two frames");
}

void measure_rest(const Camera& camera)
{
    std::this_thread::sleep_for(std::chrono::seconds(2));
    const double cpu = camera.cpu_seconds();
    std::this_thread::sleep_for(std::chrono::seconds(5));
    const double share = (camera.cpu_seconds() - cpu) / 5;
    report(share < 0.01, format("nobody watches: %.3f of a core", share), "next to nothing");
}

} // namespace

int main(int argc, char** argv)
{
    try {
        if (argc != 2) {
            throw std::runtime_error("expected one argument, the path of camera-sim");
        }
        {
            const Camera camera(argv[1], "argb8888"); // as people have it
            open_menu(camera);
            measure_load(camera);
            measure_rest(camera);
        }
        // Pixels with one bit of alpha, so that the menu hides the moving scene and every change there is a key's doing.
        const Camera camera(argv[1], "argb1555");
        open_menu(camera);
        measure_keys(camera);
        return all_hold ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_stream: %s\n", error.what());
        return 1;
    }
}
