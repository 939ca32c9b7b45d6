// SPDX-License-Identifier: GPL-3.0-or-later

#include "allocations.h"

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<std::size_t> total = 0;

} // namespace

std::size_t bytesAllocated()
{
    return total;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

// Not every compiler brings the header for it.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*taken)(const volatile void *, std::size_t),
                                                         void (*given)(const volatile void *));

namespace {

void count(const volatile void *, std::size_t size)
{
    total += size;
}

void ignore(const volatile void *) {}

// A sanitizer has its own memory, and says what is taken of it.
const int installed = __sanitizer_install_malloc_and_free_hooks(count, ignore);

} // namespace

#else

// These come before the system's own, for Qt and SQLite too. What they give is given back by the system's free().
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

void *malloc(std::size_t size)
{
    total += size;
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    total += count * size;
    return __libc_calloc(count, size);
}

void *realloc(void *memory, std::size_t size)
{
    total += size;
    return __libc_realloc(memory, size);
}
}

#endif
