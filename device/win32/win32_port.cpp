#include "device/win32/win32_port.h"

namespace keplin {

bool Win32Port::OpenLine(const std::string& name) {
    line_ = keplin::OpenLine(name);
    return IsOpen();
}

void Win32Port::CloseLine() noexcept {
    unread_ = {};
    ClosePromptly(std::move(line_));
}

// The one call that also tells of a far end that hung up.
void Win32Port::CheckLine() noexcept {
    DWORD errors = 0;
    if (line_ && !ClearCommError(line_.get(), &errors, nullptr)) LoseLine();
}

std::int32_t Win32Port::ReadByte() {
    if (unread_.empty()) ReadBlock();
    idle_ = unread_.empty();
    if (idle_) return -1;
    const std::uint8_t byte = unread_.front();
    unread_ = unread_.subspan(1);
    return byte;
}

void Win32Port::ReadBlock() {
    if (!line_) return;
    DWORD count = 0;
    if (!ReadFile(line_.get(), block_.data(), sizeof block_, &count, nullptr)) return LoseLine();
    unread_ = std::span(block_).first(count);
    if (count == 0) CheckLine();
}

void Win32Port::WriteText(std::string_view text) {
    BeginWrite();
    DWORD taken = 0;
    if (!WriteFile(line_.get(), text.data(), static_cast<DWORD>(text.size()), &taken, nullptr)) {
        LoseLine();
        throw PortError("the line was lost while writing");
    }
    if (taken == text.size()) return;
    // Half a record that left later would run into the next one, where the driver lets it be taken
    // back.
    PurgeComm(line_.get(), PURGE_TXABORT | PURGE_TXCLEAR);
    throw PortError("the device takes no more bytes");
}

void Win32Port::DiscardInput() {
    unread_ = {};
    if (!line_) return;
    idle_ = true;
    if (PurgeComm(line_.get(), PURGE_RXCLEAR)) {
        CheckLine();
    } else {
        LoseLine();
    }
}

}  // namespace keplin
