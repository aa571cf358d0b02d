#include "update/update_file.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "platform/int16.h"
#include "platform/path.h"
#include "ui/program_instructions.h"
#include "update/line_reader.h"
#include "update/line_sum.h"

namespace keplin {
namespace {

// Upper-case digits without leading zeros, "0" for zero.
std::string Hex(std::uint64_t number) {
    std::string text;
    do {
        text.insert(text.begin(), "0123456789ABCDEF"[number % 16]);
        number /= 16;
    } while (number > 0);
    return text;
}

std::int32_t Add(std::int32_t total, std::int16_t sum) {
    const std::int64_t result = std::int64_t{total} + sum;
    if (!std::in_range<std::int32_t>(result)) throw std::overflow_error("32 bits");
    return static_cast<std::int32_t>(result);
}

}  // namespace

bool UpdateFile::LoadUpdateFile() {
    try {
        ShowProgramInstructions(window_, desktop_);
        const std::string path = ChooseFile();
        OpenForReading(path);
        ShowFacts(path);
        const Contents contents = ReadLines();
        ShowContents(contents);
        LineCount = contents.lines;
        file_.close();
        return true;
    } catch (const std::exception&) {  // no message: the programming page stays away
        return false;
    }
}

std::string UpdateFile::ChooseFile() {
    window_.CommonDialog1 = {
        .filter = "QDX-470 Files (*.HEX)|*.HEX",
        .title = "Select file to Upload",
        .initialDirectory = desktop_.CurrentDirectory(),
        .hideReadOnly = true,
    };
    const auto path = desktop_.ShowOpen(window_.CommonDialog1);
    if (!path) throw std::runtime_error("cancelled");
    return *path;
}

// Only a regular file has an end: a pipe or a device would keep the window waiting for ever.
void UpdateFile::OpenForReading(const std::string& path) {
    const std::filesystem::path file = ToPath(path);
    if (std::filesystem::is_regular_file(file)) file_.open(file, std::ios::binary);
    if (!file_.is_open()) throw std::runtime_error("cannot open");
}

void UpdateFile::ShowFacts(const std::string& path) {
    window_.StatusBar1.Panels(1).Text = " " + path;
    desktop_.YieldOnce();
    const std::uint64_t length = desktop_.FileLength(path);
    window_.StatusBar2.Panels(1).Text =
        " File Size: " + std::to_string(length) + "     Hex: " + Hex(length);
    desktop_.YieldOnce();
    window_.StatusBar2.Panels(2).Text = " Created " + desktop_.FileDateTime(path);
    desktop_.YieldOnce();
}

UpdateFile::Contents UpdateFile::ReadLines() {
    Contents contents;
    LineReader reader(file_);
    while (!reader.AtEnd()) {
        const std::string_view line = reader.ReadLine();
        HexLines.at(static_cast<std::size_t>(contents.lines)) = std::string(line);
        contents.sum = Add(contents.sum, LineDataSum(line));
        contents.lines = ToInt16(contents.lines + 1);
    }
    return contents;
}

void UpdateFile::ShowContents(const Contents& contents) {
    window_.StatusBar1.Panels(2).Text =
        " Number of Lines: " + std::to_string(contents.lines) + "  ";
    window_.StatusBar2.Panels(3).Text =
        "Checksum: " + Hex(static_cast<std::uint32_t>(contents.sum));
    desktop_.YieldOnce();
}

}  // namespace keplin
