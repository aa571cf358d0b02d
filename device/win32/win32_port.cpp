#include "device/win32/win32_port.h"

#include <cstring>
#include <memory>
#include <new>

#include "platform/win32/ends_within.h"

namespace keplin {
namespace {

using namespace std::chrono_literals;

// Nothing holds back, changes or drops a byte.
void SetRaw(DCB& settings) {
    settings.BaudRate = CBR_38400;
    settings.ByteSize = 8;
    settings.Parity = NOPARITY;
    settings.StopBits = ONESTOPBIT;
    settings.fBinary = TRUE;
    settings.fOutxCtsFlow = settings.fOutxDsrFlow = settings.fDsrSensitivity = FALSE;
    settings.fOutX = settings.fInX = FALSE;
    settings.fParity = settings.fErrorChar = settings.fNull = settings.fAbortOnError = FALSE;
    settings.fDtrControl = DTR_CONTROL_ENABLE;
    settings.fRtsControl = RTS_CONTROL_ENABLE;
}

// Setting may succeed where the driver took something else: only reading back tells.
bool Configure(HANDLE line) {
    DCB wanted{};
    wanted.DCBlength = sizeof wanted;
    if (!GetCommState(line, &wanted)) return false;  // a port that is not there may open
    SetRaw(wanted);
    DCB found = wanted;
    if (!SetCommState(line, &wanted) || !GetCommState(line, &found)) return false;
    wanted = found;
    SetRaw(wanted);
    return std::memcmp(&wanted, &found, sizeof found) == 0;
}

bool SetTimes(HANDLE line) {
    COMMTIMEOUTS times{};
    times.ReadIntervalTimeout = MAXDWORD;  // a read returns at once
    times.WriteTotalTimeoutConstant = 500;
    return SetCommTimeouts(line, &times) != 0;
}

// Without sharing: no other program gets in as long as it is open. A window that is dragged about
// reads nothing meanwhile: the queue holds two seconds.
UniqueHandle OpenAndConfigure(const std::wstring& path) {
    UniqueHandle line = Own(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    if (line) SetupComm(line.get(), 8192, 4096);
    const bool usable = line && Configure(line.get()) && SetTimes(line.get()) &&
                        PurgeComm(line.get(), PURGE_RXCLEAR | PURGE_TXCLEAR);
    return usable ? std::move(line) : nullptr;
}

// Drops what was written and has not left yet. A driver that waits for longer closes behind the
// program's back.
void ClosePromptly(UniqueHandle line) {
    const auto owned = std::make_shared<UniqueHandle>(std::move(line));
    EndsWithin(500ms, [owned] {
        PurgeComm(owned->get(), PURGE_TXABORT | PURGE_TXCLEAR);
        owned->reset();
    });
}

}  // namespace

bool Win32Port::OpenLine(const std::string& name) {
    const auto line = std::make_shared<UniqueHandle>();
    const auto open = [line, path = L"\\\\.\\" + std::wstring(name.begin(), name.end())] {
        *line = OpenAndConfigure(path);
    };
    if (EndsWithin(2s, open)) line_ = std::move(*line);
    return IsOpen();
}

void Win32Port::CloseLine() noexcept {
    unread_ = {};
    if (!line_) return;
    try {
        ClosePromptly(std::move(line_));
    } catch (const std::bad_alloc&) {  // closed on the way out
    }
}

// The one call that also tells of a far end that hung up.
void Win32Port::CheckLine() noexcept {
    DWORD errors = 0;
    if (line_ && !ClearCommError(line_.get(), &errors, nullptr)) LoseLine();
}

std::int32_t Win32Port::ReadByte() {
    if (unread_.empty()) ReadBlock();
    mayWait_ = unread_.empty();
    if (mayWait_) return -1;
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
    RequireOpen();
    mayWait_ = false;  // no byte ends the wait, and its answer may be there by the next yield
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
    mayWait_ = true;
    if (PurgeComm(line_.get(), PURGE_RXCLEAR)) {
        CheckLine();
    } else {
        LoseLine();
    }
}

}  // namespace keplin
