// Any bytes as the update file: the load ends, and what it stored is what the file holds.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "tests/support/virtual_desktop.h"
#include "update/update_file.h"

namespace {

using keplin::UpdateFile;

// The file's lines by another road: everything at once, from the end of one line to the next.
std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\r'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (text.starts_with('\n')) text.remove_prefix(1);
    }
    return lines;
}

void Demand(bool holds) {
    if (!holds) std::abort();
}

// The lines up to the one that ended the load were stored, and nothing behind them.
void Check(const UpdateFile& file, const std::vector<std::string>& lines, bool loaded) {
    const auto& slots = file.HexLines;
    const auto rest = std::ranges::mismatch(slots, lines).in1;
    const auto stored = rest - slots.begin();
    if (loaded) Demand(stored == std::ssize(lines) && file.LineCount == stored);
    // A line that sums too high, or one line too many.
    if (!loaded) Demand(stored > 0 && file.LineCount == 0);
    Demand(std::all_of(rest, slots.end(), [](const auto& slot) { return slot.empty(); }));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const int file = memfd_create("update", 0);
    Demand(ftruncate(file, 0) == 0);
    Demand(pwrite(file, data, size, 0) == static_cast<ssize_t>(size));

    keplin::test::VirtualScreen screen;
    screen.desktop.Answer = "/proc/self/fd/" + std::to_string(file);
    UpdateFile update(screen.window, screen.desktop);
    const bool loaded = update.LoadUpdateFile();
    Check(update, LinesOf({reinterpret_cast<const char*>(data), size}), loaded);
    return 0;
}
