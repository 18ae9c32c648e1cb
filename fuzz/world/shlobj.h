#pragma once

// The shell's shortcut object of the made-up system: it keeps what it is told (made_up_link.h).

#include <windows.h>

using HRESULT = LONG;
using REFIID = const int&;

#define SUCCEEDED(result) ((result) >= 0)
#define FAILED(result) ((result) < 0)
#define COINIT_APARTMENTTHREADED 2
#define CLSCTX_INPROC_SERVER 1
#define CP_ACP 0
#define ERROR_FILENAME_EXCED_RANGE 206

inline constexpr int CLSID_ShellLink = 1;
inline constexpr int IID_IShellLinkW = 2;
inline constexpr int IID_IPersistFile = 3;

struct IUnknown {
    void Release() {}
};
struct IPersistFile : IUnknown {
    HRESULT Save(const wchar_t* path, BOOL remember);
};
struct IShellLinkW : IUnknown {
    HRESULT QueryInterface(REFIID what, void** file);
    HRESULT SetPath(const wchar_t* path);
    HRESULT SetArguments(const wchar_t* arguments);
};

inline HRESULT CoInitializeEx(void*, DWORD) {
    return 0;
}
inline void CoUninitialize() {}
HRESULT CoCreateInstance(REFIID which, IUnknown* outer, DWORD context, REFIID what, void** object);
