#include <string>

#include "ui/win32/gdi.h"

namespace keplin::win32 {
namespace {

constexpr const wchar_t* kIcon = L"KEPLIN";
constexpr const wchar_t* kOwnIcon = L"APPLICATION";  // of a program that has another one

HICON LoadIconOf(const wchar_t* name, int pixels) {
    return static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), name, IMAGE_ICON, pixels, pixels, LR_SHARED));
}

// The picture prepared for that width, or for the next larger one, or for the largest.
const BITMAPINFO* FindPicture(int width) {
    const HMODULE program = GetModuleHandleW(nullptr);
    const BITMAPINFO* found = nullptr;
    for (const int prepared : {292, 365, 438, 584}) {
        const std::wstring name = L"GETTING_STARTED_" + std::to_wstring(prepared);
        const HRSRC resource = FindResourceW(program, name.c_str(), RT_BITMAP);
        if (resource == nullptr) continue;
        found = static_cast<const BITMAPINFO*>(LockResource(LoadResource(program, resource)));
        if (prepared >= width) break;
    }
    return found;
}

void DrawPicture(HDC context, PixelSize size) {
    const BITMAPINFO* picture = FindPicture(size.width);
    if (picture == nullptr) return;
    const BITMAPINFOHEADER& header = picture->bmiHeader;
    const DWORD colours = header.biClrUsed == 0 ? 1U << header.biBitCount : header.biClrUsed;
    SetStretchBltMode(context, HALFTONE);
    SetBrushOrgEx(context, 0, 0, nullptr);
    StretchDIBits(context, 0, 0, size.width, size.height, 0, 0, header.biWidth, header.biHeight,
                  picture->bmiColors + colours, picture, DIB_RGB_COLORS, SRCCOPY);
}

}  // namespace

void DrawImage(HDC context, Picture::Image image, PixelSize size) {
    if (image != Picture::Image::Icon) return DrawPicture(context, size);
    DrawIconEx(context, 0, 0, LoadIconOf(kIcon, size.width), size.width, size.height, 0, nullptr,
               DI_NORMAL);
}

HICON ProgramIcon(int size) {
    const int pixels = GetSystemMetrics(size);
    const HICON own = LoadIconOf(kOwnIcon, pixels);
    return own ? own : LoadIconOf(kIcon, pixels);
}

}  // namespace keplin::win32
