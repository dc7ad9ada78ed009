#include "simulator/front/stop_signals.h"

#include <pthread.h>
#include <utility>

namespace sim {

StopSignals::StopSignals(std::function<void()> stop)
{
    sigemptyset(&signals_);
    sigaddset(&signals_, SIGINT);
    sigaddset(&signals_, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals_, &before_);
    thread_ = std::thread([this, stop = std::move(stop)] {
        int signal = 0;
        sigwait(&signals_, &signal);
        stop();
    });
}

StopSignals::~StopSignals()
{
    pthread_kill(thread_.native_handle(), SIGTERM); // it may still wait
    thread_.join();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

} // namespace sim
