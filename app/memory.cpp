// The program's memory, and what the C++ library does where it would throw. The program is compiled without
// exceptions: where memory gives out and the asker does not look, it ends. The library's own versions would
// bring the whole machinery of exceptions along, a third of the program's size, to end in the same way.

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

void* AllocateOrEnd(std::size_t size) {
    void* const memory = Allocate(size);
    if (memory == nullptr) EndProgram();
    return memory;
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

}  // namespace std
