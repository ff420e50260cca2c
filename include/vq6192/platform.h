/* VQ6192 driver SDK: the platform layer a host can redirect (log, trace, clock, memory, semaphores),
 * with the controls tests use (virtual clock, allocation accounting, fault injection). C-compatible. */
#ifndef VQ6192_PLATFORM_H
#define VQ6192_PLATFORM_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* One OSK_TaskDelay tick is 10 ms (100 Hz) unless a host sets ulTickUs; semaphore time-outs count in
 * the same ticks (a table access waits up to 600 ticks for the chip semaphore). */
#define VQ6192_DEFAULT_TICK_US 10000u

/* Bytes of the block the library allocates for a chip's semaphore and hands to the semaphore
 * functions. The default POSIX semaphore lives inside it. */
#define VQ6192_SEM_BLOCK_SIZE 48u

/* Host hooks. A null member keeps the built-in default; ctx is passed back to every hook.
 *  pfnLog       receives every PIC_DbgLog line whose level mask passes the log mask (default: stderr).
 *  pfnTrace     receives VQ6192_Printf lines that pass the chip's print flag (default: none, so the trace
 *               point has no effect).
 *  pfnDelayUs   microsecond sleep (default: nanosleep, restarted with the remaining time on EINTR).
 *  pfnTaskDelay tick sleep (default: ticks * ulTickUs microseconds through the microsecond sleep).
 *  pfnMalloc / pfnFree  raw memory (default: malloc/free); accounting and fault injection stay in force.
 *  pfnSem*      binary semaphores over a VQ6192_SEM_BLOCK_SIZE block; 0 = success; time-out in ticks. */
typedef struct {
    void *ctx;
    void (*pfnLog)(void *ctx, uint32_t levelMask, const char *text);
    void (*pfnTrace)(void *ctx, uint32_t chip, uint32_t moduleId, uint32_t level, const char *text);
    void (*pfnDelayUs)(void *ctx, uint32_t us);
    void (*pfnTaskDelay)(void *ctx, uint32_t ticks);
    void *(*pfnMalloc)(void *ctx, size_t size);
    void (*pfnFree)(void *ctx, void *p);
    uint32_t (*pfnSemCreate)(void *ctx, void *block, uint32_t initial);
    uint32_t (*pfnSemDelete)(void *ctx, void *block);
    uint32_t (*pfnSemTake)(void *ctx, void *block, uint32_t timeoutTicks);
    uint32_t (*pfnSemGive)(void *ctx, void *block);
    uint32_t ulTickUs; /* 0 keeps VQ6192_DEFAULT_TICK_US */
} VQ6192_PLATFORM_HOOKS;

/* Installs hooks (null record: back to all defaults). Call while no operation runs. */
VQ6192_API void VQ6192_Platform_SetHooks(const VQ6192_PLATFORM_HOOKS *hooks);
VQ6192_API uint32_t VQ6192_Platform_GetTickUs(void);

/* PIC_DbgLog lines pass when (levelMask & logMask) != 0; default mask: all bits. */
VQ6192_API void VQ6192_Platform_SetLogMask(uint32_t mask);

/* Virtual clock: while enabled every delay returns at once and adds the requested time to a total. */
VQ6192_API void VQ6192_Platform_SetVirtualClock(uint32_t enable);
VQ6192_API uint32_t VQ6192_Platform_GetVirtualClock(void);
VQ6192_API uint64_t VQ6192_Platform_GetVirtualTimeUs(void);
VQ6192_API void VQ6192_Platform_ResetVirtualTime(void);

/* Allocation accounting per source tag (null tag: all tags together). */
typedef struct {
    uint64_t ullAllocs;      /* successful allocations */
    uint64_t ullFrees;       /* frees */
    uint64_t ullFailed;      /* allocations refused (injected or out of memory) */
    uint64_t ullOutstanding; /* blocks allocated and not yet freed */
    uint64_t ullBytesInUse;  /* bytes in those blocks */
} VQ6192_MEM_STATS;

VQ6192_API void VQ6192_Platform_GetMemStats(const char *tag, VQ6192_MEM_STATS *out);

/* Fault injection: after `after` further calls succeed, the next `count` calls fail (count 0 cancels).
 * An injected semaphore give failure still releases the semaphore, so a test can carry on without
 * waiting for a time-out. */
VQ6192_API void VQ6192_Platform_FailAllocs(uint32_t after, uint32_t count);
VQ6192_API void VQ6192_Platform_FailSemCreates(uint32_t after, uint32_t count);
VQ6192_API void VQ6192_Platform_FailSemTakes(uint32_t after, uint32_t count);
VQ6192_API void VQ6192_Platform_FailSemGives(uint32_t after, uint32_t count);

/* ---- Dump files --------------------------------------------------------------------------------
 * The library's own dump file hooks, which VQ6192_DUMP_F installs. Without file functions each does
 * nothing and returns 0, leaving the handle 0 (so a default dump writes no file and its flushes fail).
 * A host that wants the default dump in a file installs file functions here (null record: none);
 * 0 = success, and an open must give a nonzero handle. */
typedef struct {
    void *ctx;
    uint32_t (*pfnOpen)(void *ctx, const char *name, const char *mode, uintptr_t *handle);
    uint32_t (*pfnWrite)(void *ctx, const void *data, uint32_t size, uint32_t count, uintptr_t handle);
    uint32_t (*pfnClose)(void *ctx, uintptr_t *handle);
} VQ6192_PLATFORM_FILE_HOOKS;

VQ6192_API void VQ6192_Platform_SetFileHooks(const VQ6192_PLATFORM_FILE_HOOKS *hooks);

VQ6192_API uint32_t vq6192_fileopen_func(const char *name, const char *mode, uintptr_t *handle);
VQ6192_API uint32_t vq6192_filewrite_func(const void *data, uint32_t size, uint32_t count, uintptr_t handle);
VQ6192_API uint32_t vq6192_fileclose_func(uintptr_t *handle);

VQ6192_EXTERN_C_END

#endif /* VQ6192_PLATFORM_H */
