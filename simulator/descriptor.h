// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace keplin::simulator {

class Descriptor {
  public:
    Descriptor() = default;
    // Takes over an open descriptor; -1 stands for none.
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        other.Close();
        return *this;
    }
    ~Descriptor() { Close(); }

    [[nodiscard]] int Get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

    void Close() {
        if (number_ >= 0) ::close(std::exchange(number_, -1));
    }

  private:
    int number_ = -1;
};

}  // namespace keplin::simulator
