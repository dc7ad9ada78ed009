// The pictures of one channel, for everybody who watches it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>

#include "simulator/camera/camera.h"

namespace sim {

/// Draws and encodes 25 pictures a second while somebody watches and rests otherwise. A push of a canvas brings the
/// next picture forward. Each viewer gets the newest picture only: a slow one misses some. A picture equal to the one
/// before is not encoded again.
class ChannelStream {
public:
    struct Frame {
        std::uint64_t number = 0; ///< counts from 1
        std::string jpeg;
    };

    ChannelStream(Camera& camera, int channel);
    ~ChannelStream();
    ChannelStream(const ChannelStream&) = delete;
    ChannelStream& operator=(const ChannelStream&) = delete;

    int channel() const { return channel_; }

    /// Somebody who watches, as long as the object lives; it must not outlive the stream.
    class Viewer {
    public:
        /// The name needs not be the only one of its kind.
        Viewer(ChannelStream& stream, std::string name);
        ~Viewer();
        Viewer(const Viewer&) = delete;
        Viewer& operator=(const Viewer&) = delete;

        /// The next picture; waits for it, at most a second, and gives the last one again then. Null when the stream
        /// has been closed.
        std::shared_ptr<const Frame> next();

    private:
        ChannelStream& stream_;
        const std::string name_;
        std::uint64_t seen_ = 0;
    };

    /// Ends the waiting of all viewers, now and later.
    void close();

    /// The names of those who watch.
    std::multiset<std::string> viewers() const;
    std::uint64_t encoded() const;

private:
    void work();
    bool wait_for_viewers();
    bool has_frame() const;
    void encode();
    bool encode_or_tell(bool told);

    Camera& camera_;
    const int channel_;
    Image last_; ///< of the working thread

    mutable std::mutex mutex_; ///< guards the members below
    std::condition_variable changed_;
    std::shared_ptr<const Frame> frame_;
    std::multiset<std::string> viewers_;
    std::uint64_t encoded_ = 0;
    bool closed_ = false;
    std::thread thread_;
};

} // namespace sim
