// Owns one file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace keplin {

class UniqueFd {
  public:
    UniqueFd() = default;
    // Takes the descriptor over; a negative one is none.
    explicit UniqueFd(int descriptor) : descriptor_(descriptor) {}
    UniqueFd(UniqueFd&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    UniqueFd(const UniqueFd&) = delete;
    UniqueFd& operator=(const UniqueFd&) = delete;
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        other.Reset();
        return *this;
    }
    ~UniqueFd() { Reset(); }

    // Closes the descriptor, if there is one.
    void Reset() noexcept {
        if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
    }

    // The descriptor, or -1.
    [[nodiscard]] int Get() const { return descriptor_; }
    explicit operator bool() const { return descriptor_ >= 0; }

  private:
    int descriptor_ = -1;
};

}  // namespace keplin
