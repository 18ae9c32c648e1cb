#include "tests/support/probe/imported_calls.h"

#include <cstring>

namespace probe {
namespace {

template <typename Record>
Record* At(DWORD_PTR offset) {
    return reinterpret_cast<Record*>(reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr)) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* FirstLibrary() {
    const auto* headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD_PTR>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    return At<IMAGE_IMPORT_DESCRIPTOR>(imports);
}

bool IsNamed(const IMAGE_THUNK_DATA& call, const char* name) {
    if (IMAGE_SNAP_BY_ORDINAL(call.u1.Ordinal)) return false;
    return std::strcmp(At<IMAGE_IMPORT_BY_NAME>(call.u1.AddressOfData)->Name, name) == 0;
}

// Of one library: its calls' names, and beside each the call's address.
ULONGLONG* FindCall(DWORD names, DWORD addresses, const char* name) {
    const auto* call = At<IMAGE_THUNK_DATA>(names);
    auto* address = At<IMAGE_THUNK_DATA>(addresses);
    for (; call->u1.AddressOfData != 0; ++call, ++address) {
        if (IsNamed(*call, name)) return &address->u1.Function;
    }
    return nullptr;
}

}  // namespace

ULONGLONG* FindImportedCall(const char* name) {
    for (const IMAGE_IMPORT_DESCRIPTOR* library = FirstLibrary(); library->Name != 0; ++library) {
        ULONGLONG* const found = FindCall(library->OriginalFirstThunk, library->FirstThunk, name);
        if (found != nullptr) return found;
    }
    return nullptr;
}

void PutCall(ULONGLONG& address, const void* routine) {
    DWORD before = 0;
    VirtualProtect(&address, sizeof address, PAGE_READWRITE, &before);
    address = reinterpret_cast<ULONGLONG>(routine);
    VirtualProtect(&address, sizeof address, before, &before);
}

bool ReplaceImportedCall(const char* name, void* replacement) {
    ULONGLONG* const address = FindImportedCall(name);
    if (address != nullptr) PutCall(*address, replacement);
    return address != nullptr;
}

}  // namespace probe
