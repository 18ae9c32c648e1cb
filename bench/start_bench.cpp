#include <cstdio>
#include <string>

#include "app/product.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "platform/system_types.h"

namespace {

constexpr DWORD Patience = 20000;
// The system goes on clearing up after a process has ended; the next start is not to pay for that.
constexpr DWORD SettlingTime = 200;
constexpr double SizeLimit = 250.0 * 1024;

std::wstring FolderOfThisProgram() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring whole = path;
    return whole.substr(0, whole.rfind(L'\\'));
}

// A program with one window, started and ended.
class StartedProgram {
  public:
    StartedProgram(std::wstring executable, const wchar_t* mainWindowClass)
        : path_(std::move(executable)), windowClass_(mainWindowClass) {}

    // From the making of the process until it waits for input, having painted everything that was to be
    // painted.
    void Start() {
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION started = {};
        if (!CreateProcessW(path_.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &started)) {
            failed_ = true;
            return;
        }
        CloseHandle(started.hThread);
        process_ = started.hProcess;
        if (WaitForInputIdle(process_, Patience) != 0) failed_ = true;
    }

    void End() {
        if (process_ == nullptr) return;
        const HWND window = FindWindowW(windowClass_, nullptr);
        if (window == nullptr || !IsWindowVisible(window) || GetUpdateRect(window, nullptr, FALSE))
            failed_ = true;
        PostMessageW(window, WM_CLOSE, 0, 0);
        if (window == nullptr || WaitForSingleObject(process_, Patience) != WAIT_OBJECT_0) {
            failed_ = true;
            TerminateProcess(process_, 1);
        }
        CloseHandle(process_);
        process_ = nullptr;
        Sleep(SettlingTime);
    }

    [[nodiscard]] bool Failed() const { return failed_; }

  private:
    std::wstring path_;
    const wchar_t* windowClass_;
    HANDLE process_ = nullptr;
    bool failed_ = false;
};

bool PrintSize(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return false;
    PrintLine("bytes of the program / 250 KB", data.nFileSizeLow, SizeLimit);
    return true;
}

}  // namespace

bool CompareStart(int runs) {
    const std::wstring folder = FolderOfThisProgram();
    const std::wstring program = folder + L"\\..\\quorinsearch.exe";
    StartedProgram ours(program, MainWindowClass);
    StartedProgram bare(folder + L"\\quorin_bare_window.exe", L"QuorinBareWindow");
    StartedProgram same(folder + L"\\quorin_same_windows.exe", L"QuorinSameWindows");
    const auto compare = [runs](const char* name, StartedProgram& one, StartedProgram& other) {
        MeasureAndPrint({name, [&] { one.Start(); }, [&] { other.Start(); },
                         [&] {
                             one.End();
                             other.End();
                         }},
                        runs);
    };
    compare("start / start of a bare window with a list", ours, bare);
    compare("start / start of the same windows alone", ours, same);
    compare("the same windows alone / the bare window", same, bare);
    if (!ours.Failed() && !bare.Failed() && !same.Failed() && PrintSize(program)) return true;
    std::printf("a program did not start or end as it should\n");
    return false;
}
