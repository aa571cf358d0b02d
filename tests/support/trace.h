// What a procedure did, step by step, as lines of text: property changes, yields, sleeps and the
// members of the port, in the order in which they happened.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace keplin::test {

class Trace : public Observer {
  public:
    // A read that follows a yield becomes one line with it, and a run of such lines one line.
    void Add(std::string line) {
        if (!Recording) return;
        static const std::string kWait = "Yield, ReadByte";
        if (line == "ReadByte" && !lines_.empty() && lines_.back() == "Yield") {
            lines_.pop_back();
            line = kWait;
        }
        if (line != kWait || lines_.empty() || lines_.back() != kWait) lines_.push_back(line);
    }

    void Changed(const Control& control, const PropertyBase& property) override {
        if (!Recording) return;
        if (control.Name != "Shape2" || property.Which != Aspect::Left) Add(property.Line());
    }

    // All lines since the last Take, each ended by a line feed.
    std::string Take() {
        std::string text;
        for (const std::string& line : lines_)
            text += line + "\n";
        lines_.clear();
        return text;
    }

    bool Recording = true;

  private:
    std::vector<std::string> lines_;
};

}  // namespace keplin::test
