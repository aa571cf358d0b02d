#include "device/win32/line.h"

#include <chrono>
#include <cstring>
#include <exception>
#include <future>
#include <thread>
#include <utility>

namespace keplin {
namespace {

using namespace std::chrono_literals;

// Starts the work in a thread of its own. Nobody has to wait for it: what it gives to nobody is
// given up as it ends.
template <typename Work>
auto Start(Work work) {
    std::packaged_task<decltype(work())()> task(std::move(work));
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    return result;
}

// Without sharing: no other program gets in as long as it is open.
UniqueHandle OpenDevice(const std::string& name) {
    const std::wstring path = L"\\\\.\\" + std::wstring(name.begin(), name.end());
    const HANDLE device = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    return UniqueHandle(device == INVALID_HANDLE_VALUE ? nullptr : device);
}

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
    COMMTIMEOUTS times{.ReadIntervalTimeout = MAXDWORD,
                       .ReadTotalTimeoutMultiplier = 0,
                       .ReadTotalTimeoutConstant = 0,
                       .WriteTotalTimeoutMultiplier = 0,
                       .WriteTotalTimeoutConstant = 500};
    return SetCommTimeouts(line, &times) != 0;
}

// A window that is dragged about reads nothing meanwhile: the queue holds two seconds.
UniqueHandle OpenAndConfigure(const std::string& name) {
    UniqueHandle line = OpenDevice(name);
    if (line) SetupComm(line.get(), 8192, 4096);
    const bool usable = line && Configure(line.get()) && SetTimes(line.get()) &&
                        PurgeComm(line.get(), PURGE_RXCLEAR | PURGE_TXCLEAR);
    return usable ? std::move(line) : nullptr;
}

}  // namespace

UniqueHandle OpenLine(const std::string& name) {
    auto opened = Start([name] { return OpenAndConfigure(name); });
    return opened.wait_for(2s) == std::future_status::ready ? opened.get() : nullptr;
}

void ClosePromptly(UniqueHandle line) noexcept {
    if (!line) return;
    try {
        auto closed = Start([line = std::move(line)]() mutable {
            PurgeComm(line.get(), PURGE_TXABORT | PURGE_TXCLEAR);
            line.reset();
        });
        closed.wait_for(500ms);
    } catch (const std::exception&) {  // no thread to be had: closed on the way out
    }
}

}  // namespace keplin
