// Memory allocation, and what the C++ library does where it would throw. The program is compiled without
// exceptions: when memory runs out, nothrow new returns null and plain new draws on a reserve. When the
// reserve is used up too, the program ends. The library's own versions would pull in the whole exception
// machinery, a third of the program's size, only to end in the same way.

#include <cstdlib>
#include <new>

#include "platform/windows_ce.h"

namespace {

constexpr UINT OutOfMemory = 3;

[[noreturn]] void EndProgram() {
    while (true)
        TerminateProcess(GetCurrentProcess(), OutOfMemory);
}

void* Allocate(std::size_t size) {
    return std::malloc(size != 0 ? size : 1);
}

// Enough for the dialogs and paths that a user needs to free some memory or to close the program.
constexpr std::size_t ReserveSize = std::size_t{64} * 1024;

void* reserve = nullptr;

void* AllocateFromReserve(std::size_t size) {
    std::free(reserve);
    reserve = nullptr;
    void* const memory = Allocate(size);
    if (memory == nullptr) EndProgram();
    return memory;
}

void* AllocateOrEnd(std::size_t size) {
    if (reserve == nullptr) reserve = Allocate(ReserveSize);
    void* const memory = Allocate(size);
    return memory != nullptr ? memory : AllocateFromReserve(size);
}

}  // namespace

void* operator new(std::size_t size) {
    return AllocateOrEnd(size);
}
void* operator new[](std::size_t size) {
    return AllocateOrEnd(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace std {

// What the library calls to report a full memory, an impossible length or an index out of range. The names
// are part of its binary interface: if it calls one that is not defined here, its own versions are linked as
// well and the link fails with duplicate symbols.
// NOLINTBEGIN(bugprone-reserved-identifier)
[[noreturn]] void __throw_bad_alloc() {
    EndProgram();
}
[[noreturn]] void __throw_bad_array_new_length() {
    EndProgram();
}
[[noreturn]] void __throw_length_error(const char*) {
    EndProgram();
}
[[noreturn]] void __throw_logic_error(const char*) {
    EndProgram();
}
[[noreturn]] void __throw_out_of_range_fmt(const char*, ...) {
    EndProgram();
}
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace std
