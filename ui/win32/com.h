// An object of the system that is let go of with its owner.
#pragma once

#include <windows.h>

#include <utility>

namespace keplin::win32 {

template <typename Interface>
class Com {
  public:
    Com() = default;
    Com(Com&& other) noexcept : held_(std::exchange(other.held_, nullptr)) {}
    ~Com() {
        if (held_ != nullptr) held_->Release();
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;

    // The system's object of that class; empty where it has none.
    static Com Make(const CLSID& object, const IID& interfaceId) {
        Com made;
        void* found = nullptr;
        if (CoCreateInstance(object, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &found) == S_OK)
            made.held_ = static_cast<Interface*>(found);
        return made;
    }

    [[nodiscard]] Interface* Get() const { return held_; }
    Interface* operator->() const { return held_; }
    explicit operator bool() const { return held_ != nullptr; }

    // For a function of the system that hands an object out; while this holds none.
    Interface** Out() { return &held_; }

  private:
    Interface* held_ = nullptr;
};

}  // namespace keplin::win32
