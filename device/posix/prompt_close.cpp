#include "device/posix/prompt_close.h"

#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <ctime>
#include <optional>

namespace keplin {
namespace {

constexpr long kMillisecond = 1'000'000;  // ns

// Interrupts this thread's system calls, the first time after 0.1 s and then again and again: the
// first signal might come before the call that is to be interrupted.
class Interrupter {
  public:
    Interrupter() noexcept {
        struct sigaction nothing {};
        nothing.sa_handler = [](int) {};
        sigaction(SIGALRM, &nothing, &formerAction_);
        sigset_t alarm;
        sigemptyset(&alarm);
        sigaddset(&alarm, SIGALRM);
        pthread_sigmask(SIG_UNBLOCK, &alarm, &formerMask_);
        Start();
    }
    ~Interrupter() {
        if (timer_) timer_delete(*timer_);
        pthread_sigmask(SIG_SETMASK, &formerMask_, nullptr);
        sigaction(SIGALRM, &formerAction_, nullptr);
    }
    Interrupter(const Interrupter&) = delete;
    Interrupter& operator=(const Interrupter&) = delete;

  private:
    // Without a timer the closing takes as long as the driver likes.
    void Start() noexcept {
        sigevent event{};
        event.sigev_notify = SIGEV_THREAD_ID;
        event.sigev_signo = SIGALRM;
        event._sigev_un._tid = gettid();
        timer_t timer{};
        if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0) return;
        timer_ = timer;
        const itimerspec times{{0, 20 * kMillisecond}, {0, 100 * kMillisecond}};
        timer_settime(timer, 0, &times, nullptr);
    }

    struct sigaction formerAction_ {};
    sigset_t formerMask_{};
    std::optional<timer_t> timer_;
};

}  // namespace

void ClosePromptly(UniqueFd line) noexcept {
    if (!line) return;
    tcflush(line.Get(), TCOFLUSH);
    const Interrupter interrupter;
    line.Reset();
}

}  // namespace keplin
