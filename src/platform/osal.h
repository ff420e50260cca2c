// Platform interfaces the driver calls: debug log, binary semaphores, memory, delays and the bounded
// memory and string functions. Defaults are POSIX; a host redirects them through
// VQ6192_Platform_SetHooks. They live in a namespace so that they never collide with a host's own
// C library functions of the same names.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>

#include "vq6192/platform.h"

namespace vq {

// Debug log: formats and hands the line to the log sink when levelMask passes the log mask.
void PIC_DbgLog(uint32_t levelMask, const char *format, ...) __attribute__((format(printf, 2, 3)));

// Binary semaphores over a VQ6192_SEM_BLOCK_SIZE block. 0 = success.
uint32_t DrvSemBCreate(void *block, uint32_t initial);
uint32_t DrvSemDelete(void *block);
uint32_t iof_sema_timewait(void *sem, uint32_t timeoutTicks);
uint32_t iof_sema_post(void *sem);

// Memory with accounting per source tag (tags are string literals).
void *_drv_malloc(size_t size, const char *sourceTag, uint32_t line);
void _drv_free(void *p);

// Delays.
void OSK_TaskDelay(uint32_t ticks);
void DrvDelayUs(uint32_t us);

// Bounded memory and string functions: 0 = success, nonzero = refused (nothing or a cleared
// destination written).
int memcpy_s(void *dst, size_t dstMax, const void *src, size_t count);
int memset_s(void *dst, size_t dstMax, int c, size_t count);
int strncpy_s(char *dst, size_t dstMax, const char *src, size_t count);

// Formats into buf of `size` bytes, truncating; returns the characters written (at most size-1), or -1
// for a null buffer, a zero size or a formatting error.
int snprintf_truncated_s(char *buf, size_t size, const char *format, ...)
    __attribute__((format(printf, 3, 4)));
int vsnprintf_truncated_s(char *buf, size_t size, const char *format, va_list ap)
    __attribute__((format(printf, 3, 0)));

// Trace sink behind VQ6192_Printf (null when the host installed none).
bool traceSinkInstalled();
void traceLine(uint32_t chip, uint32_t moduleId, uint32_t level, const char *text);

}  // namespace vq
