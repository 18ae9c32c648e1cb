#include <cstdio>
#include <string>

#include "app/product.h"
#include "bench/benches.h"
#include "bench/comparison.h"
#include "bench/shipped_program.h"
#include "platform/system_types.h"
#include "resources/resource_ids.h"

namespace {

constexpr DWORD Patience = 20000;
// The system goes on clearing up after a process has ended; the next start is not to pay for that.
constexpr DWORD SettlingTime = 200;
constexpr double SizeLimit = 240.0 * 1024;

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
        processId_ = started.dwProcessId;
        if (WaitForInputIdle(process_, Patience) != 0) failed_ = true;
    }

    // The last of the pages has been made, and what is made with it.
    void WaitForParts() {
        const HWND window = WindowOfProcess(windowClass_, processId_);
        const ULONGLONG end = GetTickCount64() + Patience;
        while (PageWith(window, SPIN_KILOBYTES) == nullptr && GetTickCount64() < end)
            Sleep(1);
        SendMessageW(window, WM_NULL, 0, 0);
    }

    void End() {
        if (process_ == nullptr) return;
        const HWND window = WindowOfProcess(windowClass_, processId_);
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

    // A whole turn: what the start alone takes.
    double Turn() {
        const double took = MillisecondsOf([this] { Start(); });
        End();
        return took;
    }

    [[nodiscard]] bool Failed() const { return failed_; }

  private:
    std::wstring path_;
    const wchar_t* windowClass_;
    HANDLE process_ = nullptr;
    DWORD processId_ = 0;
    bool failed_ = false;
};

double TurnUntilLoaded(StartedProgram& program) {
    const double took = MillisecondsOf([&] {
        program.Start();
        program.WaitForParts();
    });
    program.End();
    return took;
}

bool PrintSize(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return false;
    Pairs sizes;
    sizes.Add(data.nFileSizeLow, SizeLimit);
    sizes.Print("bytes of the program / 240 KB", 1);
    return true;
}

}  // namespace

bool CompareStart(int turns) {
    const std::wstring folder = FolderOfThisProgram();
    StartedProgram ours(ShippedProgramPath(), MainWindowClass);
    StartedProgram bare(folder + L"\\quorin_bare_window.exe", L"QuorinBareWindow");
    StartedProgram same(folder + L"\\quorin_same_windows.exe", L"QuorinSameWindows");
    const auto turnOf = [](StartedProgram& program) { return [&] { return program.Turn(); }; };
    Compare("start to the first picture / the same windows", 1.1, turns, turnOf(ours), turnOf(same));
    Compare(
        "start until everything is loaded / the same windows", 1.6, turns,
        [&] { return TurnUntilLoaded(ours); }, turnOf(same));
    Compare("the same windows / a bare window with a list", 0, turns, turnOf(same), turnOf(bare));
    if (!ours.Failed() && !bare.Failed() && !same.Failed() && PrintSize(ShippedProgramPath())) return true;
    std::printf("a program did not start or end as it should\n");
    return false;
}
