// Started by the shell in the place of the programs that open files: writes how it was called, as one line in
// UTF-8, to the end of the file that the environment names.

#include <windows.h>

namespace {

void AppendLine(const wchar_t* file, const wchar_t* line) {
    char bytes[4096];
    const int size = WideCharToMultiByte(CP_UTF8, 0, line, -1, bytes, sizeof(bytes), nullptr, nullptr);
    if (size <= 0) return;
    bytes[size - 1] = '\n';
    const HANDLE log = CreateFileW(file, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                   OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(log, bytes, static_cast<DWORD>(size), &written, nullptr);
    CloseHandle(log);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    wchar_t file[MAX_PATH] = L"";
    GetEnvironmentVariableW(L"QUORIN_STARTED_LOG", file, MAX_PATH);
    AppendLine(file, GetCommandLineW());
    return 0;
}
