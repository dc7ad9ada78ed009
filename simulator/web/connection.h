// One connection of the web server, with limits on what a client may take.
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string>

#include <httplib.h>

namespace sim {

/// The sockets of all connections, so that the server can end without waiting for slow clients.
class OpenSockets {
public:
    void add(int socket);
    /// Closes it: nobody else can have got its number before it is forgotten.
    void close(int socket);

    /// Gives all connections this long to end by themselves, then has every call on their sockets fail; those of later
    /// connections too.
    void end(std::chrono::milliseconds patience);

private:
    std::mutex mutex_; ///< guards the members below
    std::condition_variable changed_;
    std::set<int> sockets_;
    bool ended_ = false;
};

/// Reads a request and writes its answer. A client gets five seconds for the whole of a request, however slowly its
/// bytes come, and five seconds for each piece of the answer that it doesn't take; and a request has at most this many
/// bytes. Behind a limit all calls fail, which ends the request. Owns the socket.
class Connection : public httplib::Stream {
public:
    static constexpr std::size_t max_request = std::size_t{128} << 10;

    Connection(int socket, OpenSockets& sockets)
        : socket_(socket), sockets_(sockets), request_end_(Clock::now() + patience)
    {
        sockets_.add(socket_);
    }
    /// Lets the client read the answer before the connection goes, also when it is still sending.
    ~Connection() override;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* target, size_t size) override;
    ssize_t write(const char* bytes, size_t size) override;
    void get_remote_ip_and_port(std::string& ip, int& port) const override;
    void get_local_ip_and_port(std::string& ip, int& port) const override;
    int socket() const override { return socket_; }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::seconds patience{5};

    bool wait_for(short events, Clock::time_point end) const;
    bool fill();

    int socket_;
    OpenSockets& sockets_;
    Clock::time_point request_end_;
    std::size_t received_ = 0;
    std::array<char, 16384> buffer_;
    std::size_t begin_ = 0; ///< of what the buffer holds
    std::size_t end_ = 0;
};

} // namespace sim
