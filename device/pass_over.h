// How the procedures on the serial line treat a step that fails: they go on with the next one.
#pragma once

#include <exception>

namespace keplin {

// Runs a step; a failure of it is passed over.
template <typename Step>
void PassOver(Step&& step) {
    try {
        step();
    } catch (const std::exception&) {  // the outcome is judged by what the controller answers
    }
}

}  // namespace keplin
