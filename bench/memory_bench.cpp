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

// What the rows take in a fresh heap, and what they take where others have been before: the list's arrays
// grow by a few places at a time and leave holes behind, more or fewer of them by accident.
struct Kilobytes {
    double first;
    double second;
};

Kilobytes KilobytesInProgram(const BenchTree& tree, const std::wstring& folder) {
    ShippedProgram program;
    program.Ask(folder);
    const double before = program.PrivateBytes();
    program.Find();
    const double first = program.PrivateBytes();
    program.Ask(tree.Empty());
    program.Find();
    program.Ask(folder);
    program.Find();
    const double second = program.PrivateBytes();
    program.Close();
    return {(first - before) / Kilobyte, (second - before) / Kilobyte};
}

// In a process of its own, whose exit code is the answer.
double KilobytesOfFilling(const std::wstring& folder, const wchar_t* times) {
    std::wstring commandLine = L"\"" + OwnPath() + L"\" --memory-of-rows \"" + folder + L"\" " + times;
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

int MemoryOfPlainRows(const std::wstring& folder, int times) {
    PlainList list(ListPlace);
    const double before = PrivateBytesOf(GetCurrentProcessId());
    for (int filling = 0; filling < times; ++filling) {
        list.DeleteAll();
        list.InsertBelow(folder);
    }
    return static_cast<int>((PrivateBytesOf(GetCurrentProcessId()) - before) / Kilobyte);
}

bool CompareMemory(const BenchTree& tree, int files) {
    const std::wstring folder = tree.Rows(files);
    const Kilobytes ours = KilobytesInProgram(tree, folder);
    const Kilobytes bare = {KilobytesOfFilling(folder, L"1"), KilobytesOfFilling(folder, L"2")};
    if (ours.first <= 0 || bare.first <= 0 || bare.second <= 0) return false;
    Pairs first, second;
    first.Add(ours.first, bare.first);
    second.Add(ours.second, bare.second);
    first.Print("KB of " + std::to_string(files) + " rows after the first find", 1.2);
    second.Print("KB of " + std::to_string(files) + " rows after the second find", 1.2);
    return true;
}
