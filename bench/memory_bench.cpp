#include <windows.h>

#include <cstdio>
#include <string>

#include "bench/benches.h"
#include "bench/comparison.h"
#include "bench/ready_rows.h"
#include "bench/shipped_program.h"

namespace {

constexpr double Kilobyte = 1024;
constexpr RECT ListPlace = {0, 126, 240, 270};

std::wstring OwnPath() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

double KilobytesInProgram(const std::wstring& folder) {
    ShippedProgram program;
    program.Ask(folder);
    const double before = program.PrivateBytes();
    program.Find();
    const double after = program.PrivateBytes();
    program.Close();
    return (after - before) / Kilobyte;
}

// In a process of its own: memory that rows have left behind in this one would be filled first. The exit code
// is the answer.
double KilobytesInPlainList(const std::wstring& folder) {
    std::wstring commandLine = L"\"" + OwnPath() + L"\" --memory-of-rows \"" + folder + L"\"";
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started)) {
        return 0;
    }
    DWORD kilobytes = 0;
    WaitForSingleObject(started.hProcess, INFINITE);
    GetExitCodeProcess(started.hProcess, &kilobytes);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return kilobytes;
}

}  // namespace

int MemoryOfPlainRows(const std::wstring& folder) {
    const std::vector<ReadyRow> rows = RowsBelow(folder);
    PlainList list(ListPlace);
    const double before = PrivateBytesOf(GetCurrentProcessId());
    list.Insert(rows);
    return static_cast<int>((PrivateBytesOf(GetCurrentProcessId()) - before) / Kilobyte);
}

bool CompareMemory(const BenchTree& tree, int files, int turns) {
    const std::wstring folder = tree.Rows(files);
    Pairs pairs;
    for (int turn = 0; turn < turns; ++turn) {
        const double ours = KilobytesInProgram(folder);
        const double bare = KilobytesInPlainList(folder);
        if (ours <= 0 || bare <= 0) return false;
        pairs.Add(ours, bare);
    }
    pairs.Print("memory of " + std::to_string(files) + " rows, in KB", 1.2);
    return true;
}
