#include "app/win32/manual_key.h"

#include <windows.h>
// Behind it.
#include <shellapi.h>

#include <filesystem>

#include "app/manual_due.h"
#include "app/win32/program_folder.h"
#include "platform/win32/object.h"

namespace keplin {

void OpenManual() {
    const std::filesystem::path manual = ProgramFolder() / "manual" / "manual.html";
    std::error_code failed;
    if (!std::filesystem::exists(manual, failed) || !IsManualDue()) return;
    SHELLEXECUTEINFOW open{};
    open.cbSize = sizeof open;
    open.fMask = SEE_MASK_ASYNCOK | SEE_MASK_FLAG_NO_UI;
    open.lpFile = manual.c_str();
    open.nShow = SW_SHOWNORMAL;
    static const auto execute =
        SystemCall<decltype(ShellExecuteExW)>(L"shell32.dll", "ShellExecuteExW");
    win32::BeginObjects();
    execute(&open);
}

}  // namespace keplin
