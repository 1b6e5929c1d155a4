// SPDX-License-Identifier: GPL-3.0-or-later
//
// The allocator's functions. operator new and delete end here too: the standard library's are built
// on malloc, aligned_alloc and free.
//
// The originals are called by the names under which the C library keeps them. Looking them up with
// dlsym, as for the other functions, does not work: dlsym may itself allocate.

#include "tests/support/Interpose.h"

#include <cerrno>
#include <cstddef>
#include <malloc.h>

// The C library's headers name parameters in its own, reserved way.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name,bugprone-reserved-identifier)

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

INTERPOSED void* malloc(std::size_t size) {
    AudioThreadGuard::note("malloc");
    return __libc_malloc(size);
}

INTERPOSED void* calloc(std::size_t count, std::size_t size) {
    AudioThreadGuard::note("calloc");
    return __libc_calloc(count, size);
}

INTERPOSED void* realloc(void* block, std::size_t size) {
    AudioThreadGuard::note("realloc");
    return __libc_realloc(block, size);
}

INTERPOSED void* reallocarray(void* block, std::size_t count, std::size_t size) {
    AudioThreadGuard::note("reallocarray");
    std::size_t bytes = 0;
    if (__builtin_mul_overflow(count, size, &bytes)) {
        errno = ENOMEM;
        return nullptr;
    }
    return __libc_realloc(block, bytes);
}

INTERPOSED void free(void* block) {
    AudioThreadGuard::note("free");
    __libc_free(block);
}

INTERPOSED void* memalign(std::size_t alignment, std::size_t size) {
    AudioThreadGuard::note("memalign");
    return __libc_memalign(alignment, size);
}

INTERPOSED void* aligned_alloc(std::size_t alignment, std::size_t size) {
    AudioThreadGuard::note("aligned_alloc");
    return __libc_memalign(alignment, size);
}

INTERPOSED int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
    AudioThreadGuard::note("posix_memalign");
    const bool powerOfTwo = alignment != 0 && (alignment & (alignment - 1)) == 0;
    if (!powerOfTwo || alignment % sizeof(void*) != 0)
        return EINVAL;
    void* const result = __libc_memalign(alignment, size);
    if (result == nullptr)
        return ENOMEM;
    *block = result;
    return 0;
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name,bugprone-reserved-identifier)
