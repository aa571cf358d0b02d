#include "device/port_paths.h"

#include <algorithm>

namespace keplin {
namespace {

bool Contains(const std::vector<std::string>& paths, const std::string& path) {
    return std::find(paths.begin(), paths.end(), path) != paths.end();
}

}  // namespace

const std::string& PortPaths::Choose(std::int32_t port) {
    others_ = paths_();
    const auto index = static_cast<std::size_t>(port - 1);
    chosen_ = index < others_.size() ? std::exchange(others_[index], "") : "";
    return chosen_;
}

const std::string& PortPaths::FindAgain() {
    const auto now = paths_();
    if (Contains(now, chosen_)) return chosen_;
    const auto come = std::find_if(now.begin(), now.end(), [this](const std::string& path) {
        return !path.empty() && !Contains(others_, path);
    });
    if (come != now.end()) chosen_ = *come;
    return chosen_;
}

}  // namespace keplin
