#include "tests/support/probe/power_loss.h"

#include "tests/support/probe/imported_calls.h"

namespace probe {
namespace {

Power* power = nullptr;

void EndBeforeChange() {
    if (InterlockedIncrement(&power->changes) == power->endBefore)
        TerminateProcess(GetCurrentProcess(), PowerLossCode);
}

BOOL WINAPI Move(const wchar_t* from, const wchar_t* to) {
    EndBeforeChange();
    return MoveFileW(from, to);
}

BOOL WINAPI Delete(const wchar_t* path) {
    EndBeforeChange();
    return DeleteFileW(path);
}

BOOL WINAPI SetAttributes(const wchar_t* path, DWORD attributes) {
    EndBeforeChange();
    return SetFileAttributesW(path, attributes);
}

// Reading changes nothing.
HANDLE WINAPI Open(const wchar_t* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                   DWORD disposition, DWORD flags, HANDLE model) {
    if (disposition != OPEN_EXISTING) EndBeforeChange();
    return CreateFileW(path, access, sharing, security, disposition, flags, model);
}

LSTATUS WINAPI CreateKey(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className, DWORD options,
                         REGSAM access, const SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition) {
    EndBeforeChange();
    return RegCreateKeyExW(root, path, reserved, className, options, access,
                           const_cast<SECURITY_ATTRIBUTES*>(security), key, disposition);
}

LSTATUS WINAPI SetValue(HKEY key, const wchar_t* name, DWORD reserved, DWORD type, const BYTE* data,
                        DWORD size) {
    EndBeforeChange();
    return RegSetValueExW(key, name, reserved, type, data, size);
}

// Key by key, as the system does it inside.
LSTATUS DeleteKeys(HKEY root, const wchar_t* path) {
    HKEY key = nullptr;
    const LSTATUS opened = RegOpenKeyExW(root, path, 0, KEY_ALL_ACCESS, &key);
    if (opened != ERROR_SUCCESS) return opened;
    wchar_t name[256];
    for (DWORD length = 256;
         RegEnumKeyExW(key, 0, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         length = 256) {
        if (DeleteKeys(key, name) != ERROR_SUCCESS) break;
    }
    RegCloseKey(key);
    EndBeforeChange();
    return RegDeleteKeyW(root, path);
}

template <typename Call>
void Replace(const char* name, Call replacement) {
    ReplaceImportedCall(name, reinterpret_cast<void*>(replacement));
}

void ReplaceChanges() {
    Replace("MoveFileW", &Move);
    Replace("DeleteFileW", &Delete);
    Replace("SetFileAttributesW", &SetAttributes);
    Replace("CreateFileW", &Open);
    Replace("RegCreateKeyExW", &CreateKey);
    Replace("RegSetValueExW", &SetValue);
    Replace("RegDeleteTreeW", &DeleteKeys);
}

}  // namespace

void PreparePowerLoss() {
    wchar_t name[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(PowerVariable, name, MAX_PATH) == 0) return;
    const HANDLE section = OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, name);
    if (section == nullptr) return;
    power = static_cast<Power*>(MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Power)));
    CloseHandle(section);
    if (power != nullptr && power->ownerId != GetCurrentProcessId()) ReplaceChanges();
}

}  // namespace probe
