#include "tests/soak/holding.h"

#include <windows.h>

#include <psapi.h>

#include <vector>

#include "framework/application.h"
#include "tests/support/process_figures.h"

namespace {

long long BytesOf(HANDLE heap) {
    long long bytes = 0;
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
    }
    HeapUnlock(heap);
    return bytes;
}

long long HeapBytes() {
    constexpr DWORD MostHeaps = 64;
    HANDLE heaps[MostHeaps] = {};
    const DWORD count = GetProcessHeaps(MostHeaps, heaps);
    long long bytes = 0;
    for (DWORD heap = 0; heap < count && heap < MostHeaps; ++heap)
        bytes += BytesOf(heaps[heap]);
    return bytes;
}

long long PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<long long>(counters.PagefileUsage);
}

// The table of the drawing objects that the system shares with the process: one row an object.
struct DrawingObject {
    void* object;
    USHORT processId, unknown, generation, kind;
    void* userPointer;
};

int DrawingObjects() {
    constexpr std::size_t TableOffset = 0xF8, TableLength = 0x10000;
    const auto* const environment = reinterpret_cast<const BYTE*>(__readgsqword(0x60));
    const auto* const table = *reinterpret_cast<const DrawingObject* const*>(environment + TableOffset);
    const auto own = static_cast<USHORT>(GetCurrentProcessId());
    int count = 0;
    for (std::size_t row = 0; table != nullptr && row < TableLength; ++row) {
        const bool isOwn = table[row].processId == own || table[row].processId == 0;
        if (table[row].kind != 0 && isOwn) ++count;
    }
    return count;
}

// The system has so many places for windows, menus, icons and cursors together; what is free is seen by
// filling it with menus.
int UserObjects() {
    constexpr int Places = 32768;
    std::vector<HMENU> menus;
    while (const HMENU menu = CreateMenu())
        menus.push_back(menu);
    for (const HMENU menu : menus)
        DestroyMenu(menu);
    return Places - static_cast<int>(menus.size());
}

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountTree(HWND window, LPARAM count) {
    CountWindow(window, count);
    EnumChildWindows(window, CountWindow, count);
    return TRUE;
}

int Windows() {
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountTree, reinterpret_cast<LPARAM>(&count));
    return count;
}

std::string Difference(const char* name, long long before, long long after) {
    const long long more = after - before;
    return std::string(name) + (more < 0 ? " " : " +") + std::to_string(more);
}

}  // namespace

Holding HeldNow() {
    Holding held;
    held.handles = HandlesOf(GetCurrentProcessId());
    held.drawingObjects = DrawingObjects();
    held.windows = Windows();
    const WindowMap* const map = Application::Windows();
    held.mapEntries = map != nullptr ? static_cast<int>(map->Count()) : 0;
    held.userObjects = UserObjects();
    held.heapBytes = HeapBytes();
    held.privateBytes = PrivateBytes();
    return held;
}

std::string Growth(const Holding& before, const Holding& after) {
    return Difference("heap bytes", before.heapBytes, after.heapBytes) + ", " +
           Difference("private bytes", before.privateBytes, after.privateBytes) + ", " +
           Difference("handles", before.handles, after.handles) + ", " +
           Difference("drawing objects", before.drawingObjects, after.drawingObjects) + ", " +
           Difference("user objects", before.userObjects, after.userObjects) + ", " +
           Difference("windows", before.windows, after.windows) + ", " +
           Difference("map entries", before.mapEntries, after.mapEntries);
}
