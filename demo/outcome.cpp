#include "demo/outcome.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>

#include "demo/file_image.h"
#include "platform/path.h"

namespace keplin {
namespace {

using Memory = std::span<const std::uint8_t>;

bool Save(const std::string& path, Memory memory) {
    if (path.empty()) return true;
    std::ofstream file(ToPath(path), std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(memory.data()),
               static_cast<std::streamsize>(memory.size()));
    file.close();
    if (!file) std::cerr << "keplin-demo: cannot write " << path << "\n";
    return !file.fail();
}

// What is wrong after a walk, or nothing.
std::string Complaint(const std::string& path, bool completed, Memory memory) {
    if (!completed) return "The completion page was not reached.";
    const auto image = ImageOfFile(path);
    if (image.empty())
        return "The completion page stands, but what the file describes is no memory.";
    const auto different = std::mismatch(memory.begin(), memory.end(), image.begin()).first;
    if (different == memory.end()) return "";
    return "The completion page stands, but the controller's memory differs from the file at "
           "address " +
           std::to_string(different - memory.begin()) + ".";
}

}  // namespace

int EndOfDemo(const DemoOptions& options, bool completed, Memory memory) {
    if (!Save(options.memory, memory)) return 1;
    if (!options.walk) return 0;
    const std::string complaint = Complaint(options.file, completed, memory);
    std::cout << (complaint.empty()
                      ? "The update is complete, and the controller's memory holds exactly the "
                        "file's data."
                      : complaint)
              << std::endl;
    return complaint.empty() ? 0 : 1;
}

}  // namespace keplin
