#pragma once

// Owners of what only the desktop has: hooks, and its own enumerations of folders.

#include "platform/handles.h"

#include <utility>

struct HookKind : NullableKind<HHOOK> {
    static void Release(HHOOK hook) { UnhookWindowsHookEx(hook); }
};
using UniqueHook = UniqueHandle<HookKind>;

// Of the system's FindFirstFileW, which ce::FindFirstFileW stands on.
struct SystemFindKind : FileHandleKind {
    static void Release(HANDLE search) { ::FindClose(search); }
};
using UniqueSystemFind = UniqueHandle<SystemFindKind>;

// Gives the window a font made to these measures by the message (WM_SETFONT and its kind) and keeps it; the
// one before is released when the window has let go of it. False, with nothing changed, when none is made.
inline bool ReplaceFont(HWND window, UINT message, const LOGFONTW& measures, UniqueFont& owner) {
    UniqueFont font(CreateFontIndirectW(&measures));
    if (!font) return false;
    SendMessageW(window, message, reinterpret_cast<WPARAM>(font.Get()), FALSE);
    owner = std::move(font);
    return true;
}
