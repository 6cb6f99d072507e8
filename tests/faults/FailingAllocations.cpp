// The linker puts the functions __wrap_... in the place of the C library's (--wrap).
#include "FailingAllocations.h"

#include <cstdlib>
#include <new>

namespace {

int counted = 0;
int failing = 0;

bool mayAllocate() noexcept {
    return ++counted != failing;
}

}  // namespace

void faults::failAllocation(int n) noexcept {
    counted = 0;
    failing = n;
}

int faults::allocations() noexcept {
    return counted;
}

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);

void* __wrap_malloc(std::size_t size) {
    return mayAllocate() ? __real_malloc(size) : nullptr;
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
    return mayAllocate() ? __real_calloc(count, size) : nullptr;
}

void* __wrap_realloc(void* block, std::size_t size) {
    return mayAllocate() ? __real_realloc(block, size) : nullptr;
}
}
// NOLINTEND(bugprone-reserved-identifier)

void* operator new(std::size_t size) {
    if (void* const block = std::malloc(size != 0 ? size : 1))
        return block;
    throw std::bad_alloc();
}

// The sanitizers' own forms for arrays do not come down to the others.
void* operator new[](std::size_t size) {
    return operator new(size);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}
