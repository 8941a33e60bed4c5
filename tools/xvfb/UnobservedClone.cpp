#include <sched.h>

#include <cstdarg>

extern "C" int __clone(int (*function)(void*), void* stack, int flags, void* argument, ...);

// Replaces the thread sanitizer's own version, which takes every child for a copy of this process.
// Qt starts programs with children that share this process's memory until they run the program;
// after one of those, the sanitizer would no longer see the locks of the thread that started it.
extern "C" int clone(int (*function)(void*), void* stack, int flags, void* argument, ...) noexcept {
    va_list further;
    va_start(further, argument);
    void* const parentId = va_arg(further, void*);
    void* const threadStorage = va_arg(further, void*);
    void* const childId = va_arg(further, void*);
    va_end(further);
    return __clone(function, stack, flags, argument, parentId, threadStorage, childId);
}
