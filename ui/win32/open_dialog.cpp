#include "ui/win32/open_dialog.h"

#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "ui/win32/utf16.h"

namespace keplin::win32 {
namespace {

constexpr std::size_t kLongestPath = 32768;

// Each part of the filter is ended by a null character, and the whole by one more.
std::wstring FilterOf(const std::string& filter) {
    std::wstring parts = ToWide(filter) + L"||";
    std::replace(parts.begin(), parts.end(), L'|', L'\0');
    return parts;
}

}  // namespace

std::optional<std::string> AskForFile(HWND window, const OpenFileRequest& request) {
    const std::wstring filter = FilterOf(request.filter);
    const std::wstring title = ToWide(request.title);
    const std::wstring folder = ToWide(request.initialDirectory);
    std::vector<wchar_t> path(kLongestPath);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = window;
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrInitialDir = folder.c_str();
    dialog.lpstrTitle = title.c_str();
    dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_DONTADDTORECENT;
    if (request.hideReadOnly) dialog.Flags |= OFN_HIDEREADONLY;
    if (!GetOpenFileNameW(&dialog)) return std::nullopt;
    return ToUtf8(path.data());
}

}  // namespace keplin::win32
