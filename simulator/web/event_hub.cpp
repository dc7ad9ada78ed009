#include "simulator/web/event_hub.h"

#include "simulator/web/http.h"

namespace sim {
namespace {

/// JSON has no line breaks of its own, so that a message is one line of data.
std::string message_of(const char* name, const nlohmann::json& data)
{
    return std::string("event: ") + name + "\ndata: " + to_text(data) + "\n\n";
}

} // namespace

std::optional<std::string> EventHub::Listener::next(std::chrono::milliseconds patience)
{
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait_for(lock, patience, [this] { return closed_ || !waiting_.empty(); });
    if (closed_) {
        return std::nullopt;
    }
    return std::exchange(waiting_, {});
}

void EventHub::Listener::put(const std::string& message)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    closed_ = closed_ || waiting_.size() + message.size() > most_bytes;
    if (!closed_) {
        waiting_ += message;
    }
    changed_.notify_one();
}

void EventHub::Listener::close()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    closed_ = true;
    changed_.notify_one();
}

void EventHub::send(const std::string& message)
{
    listeners_.remove_if([&message](const std::weak_ptr<Listener>& weak) {
        const auto listener = weak.lock();
        if (listener != nullptr) {
            listener->put(message);
        }
        return listener == nullptr;
    });
}

void EventHub::publish(const char* name, const nlohmann::json& data)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    send(message_of(name, data));
}

void EventHub::publish_log(const nlohmann::json& data)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    log_.push_back(message_of("log", data));
    if (log_.size() > kept_lines) {
        log_.pop_front();
    }
    send(log_.back());
}

std::shared_ptr<EventHub::Listener> EventHub::listen(const char* first_name, const nlohmann::json& first)
{
    auto listener = std::make_shared<Listener>();
    listener->put(message_of(first_name, first));
    const std::lock_guard<std::mutex> lock(mutex_);
    for (const std::string& line : log_) {
        listener->put(line);
    }
    listeners_.push_back(listener);
    return listener;
}

bool EventHub::has_listeners()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    listeners_.remove_if([](const std::weak_ptr<Listener>& weak) { return weak.expired(); });
    return !listeners_.empty();
}

void EventHub::close()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    for (const auto& weak : listeners_) {
        if (const auto listener = weak.lock()) {
            listener->close();
        }
    }
}

} // namespace sim
