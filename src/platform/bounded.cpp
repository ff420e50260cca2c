// Bounded memory and string functions.
#include <cstdio>
#include <cstring>

#include "platform/osal.h"

namespace vq {

int memcpy_s(void *dst, size_t dstMax, const void *src, size_t count) {
    if (dst == nullptr || src == nullptr || count > dstMax) {
        return 1;
    }
    std::memmove(dst, src, count);
    return 0;
}

int memset_s(void *dst, size_t dstMax, int c, size_t count) {
    if (dst == nullptr || count > dstMax) {
        return 1;
    }
    std::memset(dst, c, count);
    return 0;
}

int strncpy_s(char *dst, size_t dstMax, const char *src, size_t count) {
    if (dst == nullptr || dstMax == 0) {
        return 1;
    }
    if (src == nullptr) {
        dst[0] = '\0';
        return 1;
    }
    size_t n = strnlen(src, count);
    if (n >= dstMax) {
        dst[0] = '\0';
        return 1;
    }
    std::memcpy(dst, src, n);
    dst[n] = '\0';
    return 0;
}

int vsnprintf_truncated_s(char *buf, size_t size, const char *format, va_list ap) {
    if (buf == nullptr || size == 0 || format == nullptr) {
        return -1;
    }
    int n = std::vsnprintf(buf, size, format, ap);
    if (n < 0) {
        buf[0] = '\0';
        return -1;
    }
    return static_cast<size_t>(n) < size ? n : static_cast<int>(size - 1);
}

int snprintf_truncated_s(char *buf, size_t size, const char *format, ...) {
    va_list ap;
    va_start(ap, format);
    int n = vsnprintf_truncated_s(buf, size, format, ap);
    va_end(ap);
    return n;
}

}  // namespace vq
