#include "tests/failing_library.h"

#include <cstddef>
#include <cstdio>
#include <new>

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return records_left-- == 0 ? nullptr : ::operator new(size);
}
extern "C" int ferror(std::FILE* /*file*/) noexcept {
    return reading_fails ? 1 : 0;
}
