#include "tests/support/running_program.h"

#include "tests/support/driver_error.h"
#include "tests/support/utf8.h"

namespace {
constexpr DWORD LongestLoading = 10000;
}

RunningProgram::~RunningProgram() {
    if (job_ != nullptr) Kill();
    if (process_ != nullptr) CloseHandle(process_);
    if (job_ != nullptr) CloseHandle(job_);
}

void RunningProgram::Start(const ProgramStart& start) {
    // Wine starts its desktop's process when a program first needs it. It must not be a child of this
    // program, in whose job it would end with it and leave all later programs without a desktop.
    GetDesktopWindow();
    job_ = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job_, JobObjectExtendedLimitInformation, &limits, sizeof(limits));

    const PROCESS_INFORMATION started = CreateSuspended(start);
    process_ = started.hProcess;
    processId_ = started.dwProcessId;
    AssignProcessToJobObject(job_, process_);
    if (!start.probePath.empty()) BringLibrary(start.probePath);
    ResumeThread(started.hThread);
    CloseHandle(started.hThread);
}

// Once in some thousand starts Wine loses the new process before its first instruction, and says so.
PROCESS_INFORMATION RunningProgram::CreateSuspended(const ProgramStart& start) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(start.showCommand);
    const wchar_t* folder = start.workingFolder.empty() ? nullptr : start.workingFolder.c_str();
    DWORD code = ERROR_INTERNAL_ERROR;
    for (int attempt = 0; attempt < 3 && code == ERROR_INTERNAL_ERROR; ++attempt) {
        std::wstring commandLine = L"\"" + start.path + L"\"";
        if (!start.arguments.empty()) commandLine += L" " + start.arguments;
        PROCESS_INFORMATION started = {};
        if (CreateProcessW(start.path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                           nullptr, folder, &startup, &started)) {
            return started;
        }
        code = GetLastError();
    }
    throw DriverError("cannot start " + Utf8(start.path) + ", error " + std::to_string(code));
}

// A thread of the process loads it while the program's own one waits for its beginning.
void RunningProgram::BringLibrary(const std::wstring& path) const {
    const SIZE_T size = (path.size() + 1) * sizeof(wchar_t);
    void* const name = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW"));
    HANDLE thread = nullptr;
    if (name != nullptr && WriteProcessMemory(process_, name, path.c_str(), size, nullptr))
        thread = CreateRemoteThread(process_, nullptr, 0, load, name, 0, nullptr);
    DWORD loaded = 0;
    if (thread != nullptr && WaitForSingleObject(thread, LongestLoading) == WAIT_OBJECT_0)
        GetExitCodeThread(thread, &loaded);
    if (thread != nullptr) CloseHandle(thread);
    if (loaded == 0) throw DriverError("the library could not be brought into the program: " + Utf8(path));
}

void RunningProgram::Attach(HWND mainWindow) {
    GetWindowThreadProcessId(mainWindow, &processId_);
    process_ = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, processId_);
    if (process_ == nullptr) throw DriverError("the program's process cannot be opened");
}

std::optional<DWORD> RunningProgram::ExitCode(DWORD milliseconds) const {
    DWORD code = 0;
    if (WaitForSingleObject(process_, milliseconds) != WAIT_OBJECT_0) return std::nullopt;
    GetExitCodeProcess(process_, &code);
    return code;
}

bool RunningProgram::IsRunning() const {
    return process_ != nullptr && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

void RunningProgram::Kill() {
    if (!IsRunning()) return;
    TerminateProcess(process_, 0xDEAD);
    WaitForSingleObject(process_, 5000);
}

HWND RunningProgram::MainWindow() const {
    for (HWND window = FindWindowExW(nullptr, nullptr, L"QuorinSearch", nullptr); window != nullptr;
         window = FindWindowExW(nullptr, window, L"QuorinSearch", nullptr)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId_) return window;
    }
    return nullptr;
}
