#include "platform/desktop/shell_library.h"

namespace {

// Never unloaded: what has been opened with it may go on.
HMODULE loaded = nullptr;

template <typename Call>
Call* ShellCall(const char* name) {
    if (loaded == nullptr) loaded = LoadLibraryExW(L"shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return loaded != nullptr ? reinterpret_cast<Call*>(GetProcAddress(loaded, name)) : nullptr;
}

}  // namespace

DWORD_PTR ShellFileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    const auto call = ShellCall<decltype(::SHGetFileInfoW)>("SHGetFileInfoW");
    return call != nullptr ? call(path, attributes, info, size, flags) : 0;
}

BOOL ShellExecution(SHELLEXECUTEINFOW* info) {
    const auto call = ShellCall<decltype(::ShellExecuteExW)>("ShellExecuteExW");
    return call != nullptr && call(info);
}
