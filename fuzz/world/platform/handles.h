#pragma once

// The owners of the handles that there are in memory.

#include <cstdio>

#include "platform/unique_handle.h"
#include "platform/windows_ce.h"

struct KeyKind : NullableKind<HKEY> {
    static void Release(HKEY key) { RegCloseKey(key); }
};
struct FindKind {
    using Type = HANDLE;
    static HANDLE None() { return INVALID_HANDLE_VALUE; }
    static void Release(HANDLE search) { ce::FindClose(search); }
};
struct StreamKind : NullableKind<std::FILE*> {
    static void Release(std::FILE* file) { std::fclose(file); }
};
struct FontKind : NullableKind<HFONT> {
    static void Release(HFONT font) { DeleteFont(font); }
};

using UniqueFont = UniqueHandle<FontKind>;
using UniqueKey = UniqueHandle<KeyKind>;
using UniqueFind = UniqueHandle<FindKind>;
using UniqueStream = UniqueHandle<StreamKind>;
