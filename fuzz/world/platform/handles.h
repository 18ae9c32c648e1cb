#pragma once

// The owners that the fuzzed sources use, in the place of platform/handles.h, which has those of windows too.

#include "platform/unique_handle.h"
#include "platform/windows_ce.h"

struct FindKind : FileHandleKind {
    static void Release(HANDLE search) { ce::FindClose(search); }
};
struct KeyKind : NullableKind<HKEY> {
    static void Release(HKEY key) { RegCloseKey(key); }
};

using UniqueFind = UniqueHandle<FindKind>;
using UniqueKey = UniqueHandle<KeyKind>;
