// SPDX-License-Identifier: GPL-3.0-or-later
//
// The C library's doors to the system that careless code is likely to use, and the output functions
// of a forgotten message. Not all of them: SystemCallTrap catches the rest.
//
// Reading a clock is not listed; on Linux it does not enter the system.

#include "tests/support/Interpose.h"

#include <cstdarg>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/uio.h>
#include <unistd.h>

// The C library's headers name parameters in its own, reserved way.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

// clang-format off
INTERPOSE(ssize_t, read,     (int file, void* buffer, std::size_t size), (file, buffer, size));
INTERPOSE(ssize_t, pread,    (int file, void* buffer, std::size_t size, off_t at), (file, buffer, size, at));
INTERPOSE(ssize_t, readv,    (int file, const iovec* parts, int count), (file, parts, count));
INTERPOSE(ssize_t, write,    (int file, const void* buffer, std::size_t size), (file, buffer, size));
INTERPOSE(ssize_t, pwrite,   (int file, const void* buffer, std::size_t size, off_t at), (file, buffer, size, at));
INTERPOSE(ssize_t, writev,   (int file, const iovec* parts, int count), (file, parts, count));
INTERPOSE(int,     close,    (int file), (file));
INTERPOSE(int,     fsync,    (int file), (file));
INTERPOSE(int,     poll,     (pollfd* files, nfds_t count, int milliseconds), (files, count, milliseconds));
INTERPOSE(void*,   mmap,     (void* at, std::size_t size, int access, int flags, int file, off_t offset), (at, size, access, flags, file, offset));
INTERPOSE(int,     munmap,   (void* at, std::size_t size), (at, size));
INTERPOSE(int,     mprotect, (void* at, std::size_t size, int access), (at, size, access));

INTERPOSE(int, sched_yield,     (), ());
INTERPOSE(int, usleep,          (useconds_t microseconds), (microseconds));
INTERPOSE(int, nanosleep,       (const timespec* time, timespec* rest), (time, rest));
INTERPOSE(int, clock_nanosleep, (clockid_t clock, int flags, const timespec* time, timespec* rest), (clock, flags, time, rest));

INTERPOSE(FILE*,       fopen,    (const char* path, const char* mode), (path, mode));
INTERPOSE(int,         fclose,   (FILE* file), (file));
INTERPOSE(int,         fflush,   (FILE* file), (file));
INTERPOSE(std::size_t, fwrite,   (const void* data, std::size_t size, std::size_t count, FILE* file), (data, size, count, file));
INTERPOSE(int,         fputs,    (const char* text, FILE* file), (text, file));
INTERPOSE(int,         fputc,    (int character, FILE* file), (character, file));
INTERPOSE(int,         puts,     (const char* text), (text));
INTERPOSE(int,         vfprintf, (FILE* file, const char* format, va_list values), (file, format, values));

// clang-format on

INTERPOSED int printf(const char* format, ...) {
    va_list values;
    va_start(values, format);
    // The analyser takes va_start for a function it does not know.
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized)
    const int written = vfprintf(stdout, format, values);
    va_end(values);
    return written;
}

INTERPOSED int fprintf(FILE* file, const char* format, ...) {
    va_list values;
    va_start(values, format);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): as above
    const int written = vfprintf(file, format, values);
    va_end(values);
    return written;
}

// The mode is only there when a file may be created. On this platform a register that nobody set is
// harmless to pass on, and the system looks at it in no other case.
INTERPOSED int open(const char* path, int flags, ...) {
    static std::atomic<void*> original{nullptr};
    AudioThreadGuard::note("open");
    va_list values;
    va_start(values, flags);
    const auto mode = va_arg(values, mode_t);
    va_end(values);
    return originalOf<int(const char*, int, ...)>("open", original)(path, flags, mode);
}

INTERPOSED int openat(int folder, const char* path, int flags, ...) {
    static std::atomic<void*> original{nullptr};
    AudioThreadGuard::note("openat");
    va_list values;
    va_start(values, flags);
    const auto mode = va_arg(values, mode_t);
    va_end(values);
    return originalOf<int(int, const char*, int, ...)>("openat", original)(folder, path, flags,
                                                                           mode);
}

INTERPOSED int ioctl(int file, unsigned long request, ...) {
    static std::atomic<void*> original{nullptr};
    AudioThreadGuard::note("ioctl");
    va_list values;
    va_start(values, request);
    void* const argument = va_arg(values, void*);
    va_end(values);
    return originalOf<int(int, unsigned long, ...)>("ioctl", original)(file, request, argument);
}

INTERPOSED long syscall(long number, ...) {
    static std::atomic<void*> original{nullptr};
    AudioThreadGuard::note("syscall");
    va_list values;
    va_start(values, number);
    long arguments[6];
    for (long& argument : arguments)
        argument = va_arg(values, long);
    va_end(values);
    return originalOf<long(long, ...)>("syscall", original)(
        number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], arguments[5]);
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
