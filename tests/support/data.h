// The texts of tests/data, which are too long to stand in a test.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "platform/path.h"

namespace keplin::test {

// All that the file holds; empty when there is none.
inline std::string Data(const std::string& name) {
    std::ifstream file(ToPath(KEPLIN_TEST_DATA) / name, std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
}

// The text with `name` in place of the path, which is another one in every run.
inline std::string WithoutPath(std::string text, const std::string& path) {
    return text.replace(text.find(path), path.size(), "FILE");
}

}  // namespace keplin::test
