#pragma once

// Owners of the system's handles, one type a kind. What an owner holds is released when the owner goes, and
// nowhere else: no release call stands outside the destructors here.

#include <cstdio>

#include "platform/ce_files.h"
#include "platform/ce_system.h"
#include "platform/system_types.h"
#include "platform/unique_handle.h"

#include <commctrl.h>

struct FileHandleKind {
    using Type = HANDLE;
    static HANDLE None() { return INVALID_HANDLE_VALUE; }
};

template <typename Handle>
struct GdiKind : NullableKind<Handle> {
    static void Release(Handle object) { DeleteObject(object); }
};

struct KernelFileKind : FileHandleKind {
    static void Release(HANDLE file) { CloseHandle(file); }
};
struct FindKind : FileHandleKind {
    static void Release(HANDLE search) { ce::FindClose(search); }
};
struct StreamKind : NullableKind<std::FILE*> {
    static void Release(std::FILE* file) { std::fclose(file); }
};
struct KeyKind : NullableKind<HKEY> {
    static void Release(HKEY key) { RegCloseKey(key); }
};
struct LibraryKind : NullableKind<HMODULE> {
    static void Release(HMODULE library) { ce::FreeLibrary(library); }
};
struct IconKind : NullableKind<HICON> {
    static void Release(HICON icon) { DestroyIcon(icon); }
};
struct ImageListKind : NullableKind<HIMAGELIST> {
    static void Release(HIMAGELIST images) { ImageList_Destroy(images); }
};
struct MenuKind : NullableKind<HMENU> {
    static void Release(HMENU menu) { DestroyMenu(menu); }
};

using UniqueFont = UniqueHandle<GdiKind<HFONT>>;
using UniqueBrush = UniqueHandle<GdiKind<HBRUSH>>;
using UniqueBitmap = UniqueHandle<GdiKind<HBITMAP>>;
using UniqueIcon = UniqueHandle<IconKind>;
using UniqueImageList = UniqueHandle<ImageListKind>;
using UniqueMenu = UniqueHandle<MenuKind>;
using UniqueFile = UniqueHandle<KernelFileKind>;  // of CreateFileW
using UniqueFind = UniqueHandle<FindKind>;        // of ce::FindFirstFileW
using UniqueStream = UniqueHandle<StreamKind>;    // of the C library, as ce::OpenForReading
using UniqueKey = UniqueHandle<KeyKind>;
using UniqueLibrary = UniqueHandle<LibraryKind>;

// A window's device context, to measure and draw with outside WM_PAINT.
class WindowContext {
  public:
    explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {}
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() {
        if (context_ != nullptr) ReleaseDC(window_, context_);
    }

    explicit operator bool() const { return context_ != nullptr; }
    [[nodiscard]] HDC Get() const { return context_; }

  private:
    HWND window_;
    HDC context_;
};

// The device context of one WM_PAINT.
class PaintContext {
  public:
    // The system asks for what was not painted again and again, before it takes anything else.
    explicit PaintContext(HWND window) : window_(window) {
        if (BeginPaint(window, &paint_) == nullptr) ValidateRect(window, nullptr);
    }
    PaintContext(const PaintContext&) = delete;
    PaintContext& operator=(const PaintContext&) = delete;
    ~PaintContext() { EndPaint(window_, &paint_); }

    [[nodiscard]] HDC Get() const { return paint_.hdc; }
    [[nodiscard]] const PAINTSTRUCT& Paint() const { return paint_; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
};

// An object selected in a device context; the one that was selected before comes back at the end.
class SelectedObject {
  public:
    SelectedObject(HDC context, HGDIOBJ object)
        : context_(context), before_(object != nullptr ? SelectObject(context, object) : nullptr) {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject() {
        if (before_ != nullptr) SelectObject(context_, before_);
    }

  private:
    HDC context_;
    HGDIOBJ before_;
};
