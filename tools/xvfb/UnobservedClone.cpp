#include <sched.h>

#include <cstdarg>

extern "C" int __clone(int (*function)(void*), void* stack, int flags, void* argument, ...);

// Stands before the thread sanitizer's own version. That one takes every child for a copy of this
// process; after a child that borrows this process's memory until it runs its program, which is how
// Qt starts programs, the sanitizer no longer sees the locks of the thread that started it.
extern "C" int clone(int (*function)(void*), void* stack, int flags, void* argument, ...) noexcept {
    va_list further;
    va_start(further, argument);
    void* const parentId = va_arg(further, void*);
    void* const threadStorage = va_arg(further, void*);
    void* const childId = va_arg(further, void*);
    va_end(further);
    return __clone(function, stack, flags, argument, parentId, threadStorage, childId);
}
