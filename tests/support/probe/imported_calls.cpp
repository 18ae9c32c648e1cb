#include "tests/support/probe/imported_calls.h"

#include <windows.h>

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

void Overwrite(ULONGLONG& address, void* replacement) {
    DWORD before = 0;
    VirtualProtect(&address, sizeof address, PAGE_READWRITE, &before);
    address = reinterpret_cast<ULONGLONG>(replacement);
    VirtualProtect(&address, sizeof address, before, &before);
}

}  // namespace

bool ReplaceImportedCall(const char* name, void* replacement) {
    for (const IMAGE_IMPORT_DESCRIPTOR* library = FirstLibrary(); library->Name != 0; ++library) {
        const auto* call = At<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
        auto* address = At<IMAGE_THUNK_DATA>(library->FirstThunk);
        for (; call->u1.AddressOfData != 0; ++call, ++address) {
            if (!IsNamed(*call, name)) continue;
            Overwrite(address->u1.Function, replacement);
            return true;
        }
    }
    return false;
}

}  // namespace probe
