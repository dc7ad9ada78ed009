#include "simulator/web/connection.h"

#include <algorithm>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace sim {
namespace {

// A client that sends more than it may gets its answer all the same: up to these limits the rest is read and dropped.
constexpr std::size_t max_dropped = std::size_t{256} << 20;
constexpr std::chrono::seconds drop_patience{5};
constexpr std::chrono::milliseconds farewell_patience{200};

int milliseconds_until(std::chrono::steady_clock::time_point end)
{
    using namespace std::chrono;
    const auto left = ceil<milliseconds>(end - steady_clock::now());
    return static_cast<int>(std::max(left, milliseconds(0)).count());
}

} // namespace

void OpenSockets::add(int socket)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    sockets_.insert(socket);
    if (ended_) {
        ::shutdown(socket, SHUT_RDWR);
    }
}

void OpenSockets::close(int socket)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    sockets_.erase(socket);
    ::close(socket);
    changed_.notify_all();
}

void OpenSockets::end(std::chrono::milliseconds patience)
{
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait_for(lock, patience, [this] { return sockets_.empty(); });
    ended_ = true;
    for (const int socket : sockets_) {
        ::shutdown(socket, SHUT_RDWR);
    }
}

Connection::~Connection()
{
    // Closing with bytes unread would reset the connection, and the answer with it.
    ::shutdown(socket_, SHUT_WR);
    const bool sending = wait_for(POLLIN, Clock::now() + farewell_patience);
    const auto end = Clock::now() + drop_patience;
    std::size_t dropped = 0;
    while (sending && dropped < max_dropped && wait_for(POLLIN, end)) {
        const ssize_t count = ::recv(socket_, buffer_.data(), buffer_.size(), 0);
        if (count <= 0) {
            break;
        }
        dropped += static_cast<std::size_t>(count);
    }
    sockets_.close(socket_);
}

bool Connection::wait_for(short events, Clock::time_point end) const
{
    pollfd poll{socket_, events, 0};
    return ::poll(&poll, 1, milliseconds_until(end)) > 0;
}

bool Connection::is_readable() const { return begin_ < end_ || wait_for(POLLIN, request_end_); }

bool Connection::is_writable() const { return wait_for(POLLOUT, Clock::now() + patience); }

bool Connection::fill()
{
    if (received_ >= max_request || !wait_for(POLLIN, request_end_)) {
        return false;
    }
    const ssize_t count = ::recv(socket_, buffer_.data(), std::min(buffer_.size(), max_request - received_), 0);
    if (count <= 0) {
        return false;
    }
    begin_ = 0;
    end_ = static_cast<std::size_t>(count);
    received_ += end_;
    return true;
}

ssize_t Connection::read(char* target, size_t size)
{
    if (begin_ == end_ && !fill()) {
        return -1;
    }
    const std::size_t count = std::min(size, end_ - begin_);
    std::memcpy(target, buffer_.data() + begin_, count);
    begin_ += count;
    return static_cast<ssize_t>(count);
}

ssize_t Connection::write(const char* bytes, size_t size)
{
    return is_writable() ? ::send(socket_, bytes, size, MSG_NOSIGNAL | MSG_DONTWAIT) : -1;
}

// Only the log of the library would show these.
void Connection::get_remote_ip_and_port(std::string& ip, int& port) const
{
    ip.clear();
    port = 0;
}

void Connection::get_local_ip_and_port(std::string& ip, int& port) const { get_remote_ip_and_port(ip, port); }

} // namespace sim
