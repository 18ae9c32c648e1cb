// The program's memory, and what the C++ library does where it would throw. The program is compiled without
// exceptions: where memory gives out, an asker that looks is told, and one that does not is given of a
// reserve. When that is used up as well the program ends. The library's own versions would bring the whole
// machinery of exceptions along, a third of the program's size, to end in the same way.

#include <cstdlib>
#include <new>

#include "platform/windows_ce.h"

namespace {

constexpr UINT OutOfMemory = 3;

[[noreturn]] void EndProgram() {
    TerminateProcess(GetCurrentProcess(), OutOfMemory);
    std::abort();
}

void* Allocate(std::size_t size) {
    return std::malloc(size != 0 ? size : 1);
}

// Enough for the dialogs and paths of a person who makes room and closes the program.
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

// The library's reports of a full memory and of sizes and places that cannot be. Their names are part of its
// binary interface: where a library calls one that does not stand here, linking fails with doubled names.
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
