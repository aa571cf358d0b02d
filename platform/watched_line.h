// The serial line as a desktop sees it: what a yield may wait for, and what may go while nobody
// uses it.
#pragma once

namespace keplin {

class WatchedLine {
  public:
    virtual ~WatchedLine() = default;

    // Whether this yield may wait for a byte. True once after each step that leaves none to read:
    // an opening, a discard, a read that found none. A write allows it too where the line's byte
    // ends the wait, and takes it back where it does not.
    [[nodiscard]] virtual bool TakeWait() = 0;

    // Notices a line that hung up also while nobody reads it, and lets go of it.
    virtual void CheckLine() noexcept = 0;
};

}  // namespace keplin
