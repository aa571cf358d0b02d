// The update file: choosing it, reading its lines, and showing its facts in the status bars.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "ui/isp_main.h"

namespace keplin {

class UpdateFile {
  public:
    static constexpr std::size_t kSlots = 10001;

    UpdateFile(ISPMain& window, Desktop& desktop) : window_(window), desktop_(desktop) {}

    // Lets the technician choose a file, reads its lines into HexLines and shows name, length,
    // date, number of lines and checksum. False when the dialog was cancelled or the file could
    // not be read to its end; then what was stored and shown before the failure stays, and so does
    // the file, open.
    bool LoadUpdateFile();

    // One line of the file in each slot, as read, without its end. An empty slot is a blank line or
    // lies past the last line.
    std::vector<std::string> HexLines = std::vector<std::string>(kSlots);

    // Lines of the file that was loaded, 0 to 10001; 0 before a load has succeeded.
    std::int16_t LineCount = 0;

  private:
    // What reading found: the number of lines and the sum of the data bytes of all of them.
    struct Contents {
        std::int16_t lines = 0;
        std::int32_t sum = 0;
    };

    std::string ChooseFile();
    void OpenForReading(const std::string& path);
    void ShowFacts(const std::string& path);
    Contents ReadLines();
    void ShowContents(const Contents& contents);

    ISPMain& window_;
    Desktop& desktop_;
    std::ifstream file_;
};

}  // namespace keplin
