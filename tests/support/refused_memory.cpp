#include "tests/support/refused_memory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

int asked = 0;
// None when it is 0.
int firstRefused = 0;
int lastRefused = 0;

void* Allocate(std::size_t size) {
    return std::malloc(size != 0 ? size : 1);
}

void* AllocateUnlessRefused(std::size_t size) {
    ++asked;
    const bool refused = firstRefused > 0 && asked >= firstRefused && asked <= lastRefused;
    return refused ? nullptr : Allocate(size);
}

}  // namespace

RefusedMemory::RefusedMemory(int first, int last) {
    asked = 0;
    firstRefused = first;
    lastRefused = last;
}

RefusedMemory::~RefusedMemory() {
    firstRefused = 0;
}

int RefusedMemory::Asked() const {
    return asked;
}

void* operator new(std::size_t size) {
    void* const memory = Allocate(size);
    if (memory == nullptr) std::abort();
    return memory;
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return AllocateUnlessRefused(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return AllocateUnlessRefused(size);
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
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
