#include "tests/support/process_figures.h"

#include <vector>

#include "tests/support/driver_error.h"

namespace {

// Not every system answers GetProcessHandleCount; this list all of them have.
struct HandleEntry {
    void* object;
    ULONG_PTR processId;
    ULONG_PTR handle;
    ULONG access;
    USHORT trace, type;
    ULONG attributes, reserved;
};
struct HandleList {
    ULONG_PTR count, reserved;
    HandleEntry entries[1];
};
constexpr ULONG SystemExtendedHandles = 64;
using QuerySystem = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);

}  // namespace

int HandlesOf(DWORD processId) {
    constexpr ULONG Room = 1u << 22;
    static const auto query = reinterpret_cast<QuerySystem>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation"));
    std::vector<BYTE> room(Room);
    ULONG size = 0;
    if (query == nullptr || query(SystemExtendedHandles, room.data(), Room, &size) != 0)
        throw DriverError("the system does not list its handles");
    const auto* list = reinterpret_cast<const HandleList*>(room.data());
    int count = 0;
    for (ULONG_PTR entry = 0; entry < list->count; ++entry) {
        if (list->entries[entry].processId == processId) ++count;
    }
    return count;
}
