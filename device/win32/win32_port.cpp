#include "device/win32/win32_port.h"

namespace keplin {
namespace {

// The loader knows no other speed.
constexpr std::int32_t kBitsPerSecond = 38400;

}  // namespace

Win32Port::~Win32Port() {
    CloseLine();
}

std::int32_t Win32Port::Open() {
    Close();
    const std::string& name = names_.Choose(portNumber_);
    return lineSpeed_ == kBitsPerSecond && OpenNamed(name) ? 1 : 0;
}

bool Win32Port::OpenNamed(const std::string& name) {
    if (name.empty()) return false;
    line_ = OpenLine(name);
    if (!line_) return false;
    lost_ = false;
    idle_ = true;
    return true;
}

std::int32_t Win32Port::Close() {
    CloseLine();
    lost_ = false;
    return 0;
}

void Win32Port::CloseLine() noexcept {
    unread_ = {};
    ClosePromptly(std::move(line_));
}

// At once: as long as a handle is open, the adapter gets another name when it comes back.
void Win32Port::LoseLine() noexcept {
    CloseLine();
    lost_ = true;
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

void Win32Port::WriteByte(std::uint8_t byte) {
    const char character = static_cast<char>(byte);
    WriteText({&character, 1});
}

void Win32Port::WriteText(std::string_view text) {
    if (!line_) throw PortError(lost_ ? "the line is lost" : "the port is not open");
    idle_ = true;
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

void Win32Port::ReopenLostLine() {
    DiscardInput();
    if (lost_) OpenNamed(names_.FindAgain());
}

}  // namespace keplin
