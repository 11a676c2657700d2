#include "tests/failing_library.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return memory_is_exhausted ? nullptr : std::malloc(size);
}
void* operator new(std::size_t size) {
    void* const memory = operator new(size, std::nothrow);
    return memory == nullptr ? throw std::bad_alloc() : memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
extern "C" int ferror(std::FILE* /*file*/) noexcept {
    return reading_fails ? 1 : 0;
}
