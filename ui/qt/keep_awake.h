// Keeps the computer from falling asleep, through the desktop's session service where there is one.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace keplin::qt {

class KeepAwake {
  public:
    // From now on the computer stays awake (true) or may sleep (false). Returns at once: the
    // service is asked on a thread of its own, since a stuck one must not hold anything up. Throws
    // std::system_error where the system has no thread left.
    void Set(bool awake);

  private:
    void Work(const std::stop_token& stop);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    bool wanted_ = false;
    std::jthread worker_;  // started by the first wish
};

}  // namespace keplin::qt
