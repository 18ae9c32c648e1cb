#include "tests/monkey/other_programs.h"

#include <tlhelp32.h>

namespace {

// Come when they are first needed, and serve every program of the world.
constexpr const wchar_t* OfTheSystem[] = {L"services.exe",   L"svchost.exe",  L"rpcss.exe",   L"explorer.exe",
                                          L"winedevice.exe", L"plugplay.exe", L"winedbg.exe", L"conhost.exe"};

bool IsOfTheSystem(const wchar_t* name) {
    for (const wchar_t* known : OfTheSystem) {
        if (lstrcmpiW(name, known) == 0) return true;
    }
    return false;
}

}  // namespace

std::set<DWORD> OtherPrograms::Running() {
    std::set<DWORD> running;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE) return running;
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry))
        if (!IsOfTheSystem(entry.szExeFile)) running.insert(entry.th32ProcessID);
    CloseHandle(snapshot);
    return running;
}

void OtherPrograms::EndNewOnes() const {
    for (const DWORD id : Running()) {
        if (before_.contains(id)) continue;
        const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, id);
        if (process == nullptr) continue;
        TerminateProcess(process, 0);
        CloseHandle(process);
    }
}
