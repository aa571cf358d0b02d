// What is drawn with: objects of the system that are freed with their owner.
#pragma once

#include "platform/win32/owned.h"

namespace keplin::win32 {

template <typename Handle>
using Gdi = Owned<Handle, DeleteObject>;
using MemoryContext = Owned<HDC, DeleteDC>;

// An object that is chosen into a context for as long as this exists.
class Chosen {
  public:
    Chosen(HDC context, HGDIOBJ object)
        : context_(context), before_(SelectObject(context, object)) {}
    ~Chosen() { SelectObject(context_, before_); }
    Chosen(const Chosen&) = delete;
    Chosen& operator=(const Chosen&) = delete;

  private:
    const HDC context_;
    const HGDIOBJ before_;
};

}  // namespace keplin::win32
