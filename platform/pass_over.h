// How a procedure treats a step that fails: it goes on with the next one.
#pragma once

#include <exception>

namespace keplin {

// Runs a step; a failure of it is passed over.
template <typename Step>
void PassOver(Step&& step) {
    try {
        step();
    } catch (const std::exception&) {  // what counts is what the controller answers
    }
}

}  // namespace keplin
