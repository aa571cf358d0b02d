// The serial line as a desktop sees it: what a yield may wait for, and what may go while nobody
// uses it.
#pragma once

namespace keplin {

class WatchedLine {
  public:
    virtual ~WatchedLine() = default;

    // Whether this yield may wait for the next byte: the last read found nothing, or nothing was
    // read since the last opening or discard; where a byte ends the wait, or since the last write.
    // Says so once for each read that finds nothing.
    [[nodiscard]] virtual bool TakeIdle() = 0;

    // Notices a line that hung up while nobody uses it, and lets go of it.
    virtual void CheckLine() noexcept = 0;
};

}  // namespace keplin
