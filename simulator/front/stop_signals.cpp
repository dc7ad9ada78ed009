#include "simulator/front/stop_signals.h"

#include <pthread.h>
#include <unistd.h>
#include <utility>

namespace sim {
namespace {

constexpr int wake = SIGUSR1; ///< ends the waiting

} // namespace

StopSignals::StopSignals(std::function<void()> stop)
{
    sigemptyset(&signals_);
    sigaddset(&signals_, SIGINT);
    sigaddset(&signals_, SIGTERM);
    sigaddset(&signals_, wake);
    pthread_sigmask(SIG_BLOCK, &signals_, &before_);
    thread_ = std::thread([this, stop = std::move(stop)] {
        int signal = 0;
        for (bool asked = false; sigwait(&signals_, &signal) == 0 && signal != wake; asked = true) {
            if (asked) {
                _exit(128 + signal); // as the shell calls it
            }
            stop();
        }
    });
}

StopSignals::~StopSignals()
{
    pthread_kill(thread_.native_handle(), wake);
    thread_.join();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

} // namespace sim
