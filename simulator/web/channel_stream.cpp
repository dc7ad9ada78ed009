#include "simulator/web/channel_stream.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "simulator/base/log.h"
#include "simulator/video/encode.h"

namespace sim {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds frame_time{40};
constexpr std::chrono::milliseconds shortest_frame_time{20}; ///< a picture brought forward by a push
constexpr std::chrono::seconds repeat_time{1};               ///< browsers show a picture when the next one comes
constexpr int quality = 80;

} // namespace

ChannelStream::ChannelStream(Camera& camera, int channel) : camera_(camera), channel_(channel)
{
    thread_ = std::thread([this] { work(); });
}

ChannelStream::~ChannelStream()
{
    close();
    thread_.join();
}

void ChannelStream::close()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    closed_ = true;
    changed_.notify_all();
    camera_.video.channels.wake();
}

std::multiset<std::string> ChannelStream::viewers() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return viewers_;
}

std::uint64_t ChannelStream::encoded() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return encoded_;
}

/// False when the stream is to end.
bool ChannelStream::wait_for_viewers()
{
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return closed_ || !viewers_.empty(); });
    return !closed_;
}

bool ChannelStream::has_frame() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return frame_ != nullptr;
}

void ChannelStream::encode()
{
    Image image = camera_.video.draw(channel_);
    if (has_frame() && image.size.width == last_.size.width && image.pixels == last_.pixels) {
        return;
    }
    auto frame = std::make_shared<Frame>();
    frame->jpeg = encode_jpeg(image, quality);
    last_ = std::move(image);
    const std::lock_guard<std::mutex> lock(mutex_);
    frame->number = ++encoded_;
    frame_ = std::move(frame);
    changed_.notify_all();
}

/// Whether there was a picture. A failure is told when it begins, not 25 times a second.
bool ChannelStream::encode_or_tell(bool told)
{
    try {
        encode();
        return true;
    } catch (const std::exception& error) { // no memory: perhaps there is some for the next picture
        if (!told) {
            log_line(LogLevel::Error, "stream", error.what());
        }
        return false;
    }
}

void ChannelStream::work()
{
    auto due = Clock::now();
    bool failing = false;
    while (wait_for_viewers()) {
        const auto begin = Clock::now();
        // However long drawing takes, or often pushes come.
        due = std::clamp(due + frame_time, begin, begin + frame_time);
        const std::uint64_t seen = camera_.video.channels.changes();
        failing = !encode_or_tell(failing);
        (void)camera_.video.channels.wait_for_change(seen, due); // either way the next picture is due
        std::this_thread::sleep_until(begin + shortest_frame_time);
    }
}

ChannelStream::Viewer::Viewer(ChannelStream& stream, std::string name) : stream_(stream), name_(std::move(name))
{
    const std::lock_guard<std::mutex> lock(stream_.mutex_);
    if (stream_.viewers_.empty()) {
        stream_.frame_ = nullptr; // of the time when somebody watched last
        stream_.changed_.notify_all();
    }
    stream_.viewers_.insert(name_);
}

ChannelStream::Viewer::~Viewer()
{
    const std::lock_guard<std::mutex> lock(stream_.mutex_);
    stream_.viewers_.erase(stream_.viewers_.find(name_));
}

std::shared_ptr<const ChannelStream::Frame> ChannelStream::Viewer::next()
{
    std::unique_lock<std::mutex> lock(stream_.mutex_);
    const auto has_news = [this] {
        return stream_.closed_ || (stream_.frame_ != nullptr && stream_.frame_->number != seen_);
    };
    do {
        stream_.changed_.wait_for(lock, repeat_time, has_news);
    } while (!stream_.closed_ && stream_.frame_ == nullptr); // the first picture may take longer
    if (stream_.closed_) {
        return nullptr;
    }
    seen_ = stream_.frame_->number;
    return stream_.frame_;
}

} // namespace sim
