#include "demo/win32/save_picture.h"

#include <wincodec.h>

#include "platform/win32/object.h"
#include "platform/win32/utf16.h"
#include "ui/win32/gdi.h"

namespace keplin {
namespace {

using win32::Object;

win32::Gdi<HBITMAP> Photograph(HWND window) {
    const PixelSize size = win32::InsideOf(window);
    const HDC screen = GetDC(window);
    const win32::MemoryContext memory(CreateCompatibleDC(screen));
    win32::Gdi<HBITMAP> bitmap(CreateCompatibleBitmap(screen, size.width, size.height));
    const win32::Chosen chosen(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, size.width, size.height, screen, 0, 0, SRCCOPY);
    ReleaseDC(window, screen);
    return bitmap;
}

}  // namespace

bool SavePicture(HWND window, const std::string& path) {
    const auto bitmap = Photograph(window);
    const auto codecs =
        win32::ObjectOf<IWICImagingFactory>(CLSID_WICImagingFactory, IID_IWICImagingFactory);
    if (!codecs) return false;
    Object<IWICStream> file;
    Object<IWICBitmapEncoder> encoder;
    Object<IWICBitmapFrameEncode> frame;
    Object<IWICBitmap> pixels;
    return codecs->CreateStream(&file) == S_OK &&
           file->InitializeFromFilename(win32::ToWide(path).c_str(), GENERIC_WRITE) == S_OK &&
           codecs->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder) == S_OK &&
           encoder->Initialize(file.Get(), WICBitmapEncoderNoCache) == S_OK &&
           encoder->CreateNewFrame(&frame, nullptr) == S_OK && frame->Initialize(nullptr) == S_OK &&
           codecs->CreateBitmapFromHBITMAP(bitmap.get(), nullptr, WICBitmapIgnoreAlpha, &pixels) ==
               S_OK &&
           frame->WriteSource(pixels.Get(), nullptr) == S_OK && frame->Commit() == S_OK &&
           encoder->Commit() == S_OK;
}

}  // namespace keplin
