// keplin-bench-controller: a simulated controller in a process of its own. Prints the path of its
// serial device and stays until standard input ends; then it prints, for each record it answered,
// the moment at which the last byte of the reply line had passed the line.
#include <iostream>
#include <limits>
#include <vector>

#include "benchmarks/moment.h"
#include "simulator/loader.h"
#include "simulator/posix/pseudo_terminal_line.h"

namespace keplin::benchmarks {
namespace {

class TimedLoader final : public simulator::DeviceEnd {
  public:
    void Receive(std::uint8_t byte, std::vector<simulator::SentByte>& answer) override {
        loader_.Receive(byte, answer);
        if (!answer.empty() && answer.back().value == '\n') replying_ = true;
    }

    void LineIdle(std::vector<simulator::SentByte>&) override {
        if (replying_) moments_.push_back(Now());
        replying_ = false;
    }

    [[nodiscard]] const std::vector<Moment>& Replies() const { return moments_; }

  private:
    simulator::Loader loader_;
    bool replying_ = false;  // the end of a reply line is on the wire
    std::vector<Moment> moments_;
};

void Serve() {
    TimedLoader loader;
    {
        const simulator::PseudoTerminalLine line(loader);
        std::cout << line.DevicePath() << std::endl;
        std::cin.ignore(std::numeric_limits<std::streamsize>::max());
    }
    for (const Moment moment : loader.Replies())
        std::cout << moment << "\n";
}

}  // namespace
}  // namespace keplin::benchmarks

int main() {
    keplin::benchmarks::Serve();
}
