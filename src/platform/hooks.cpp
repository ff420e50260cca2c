// Host hooks, the debug log and the trace sink.
#include <cstdio>
#include <cstring>

#include "platform/osal.h"
#include "platform/settings.h"

namespace vq::platform {
namespace {

void defaultLog(void *, uint32_t, const char *text) {
    size_t n = std::strlen(text);
    std::fputs(text, stderr);
    if (n == 0 || text[n - 1] != '\n') {
        std::fputc('\n', stderr);
    }
}

VQ6192_PLATFORM_HOOKS g_hooks{};
std::atomic<uint32_t> g_logMask{0xFFFFFFFFu};

}  // namespace

Injection g_failAllocs;
Injection g_failSemCreates;
Injection g_failSemTakes;
Injection g_failSemGives;

const VQ6192_PLATFORM_HOOKS &hooks() {
    return g_hooks;
}

namespace {

// Takes one unit from a counter; false when it is already 0.
bool takeOne(std::atomic<uint32_t> &counter) {
    uint32_t n = counter.load(std::memory_order_relaxed);
    while (n != 0) {
        if (counter.compare_exchange_weak(n, n - 1)) {
            return true;
        }
    }
    return false;
}

}  // namespace

void Injection::arm(uint32_t after, uint32_t n) {
    count = 0;
    skip = after;
    count = n;
}

bool Injection::fire() {
    if (count.load(std::memory_order_relaxed) == 0) {
        return false;
    }
    return !takeOne(skip) && takeOne(count);
}

}  // namespace vq::platform

namespace vq {

void PIC_DbgLog(uint32_t levelMask, const char *format, ...) {
    if ((levelMask & platform::g_logMask.load()) == 0) {
        return;
    }
    char line[1024];
    va_list ap;
    va_start(ap, format);
    int n = vsnprintf_truncated_s(line, sizeof line, format, ap);
    va_end(ap);
    if (n < 0) {
        return;
    }
    const auto &h = platform::hooks();
    if (h.pfnLog != nullptr) {
        h.pfnLog(h.ctx, levelMask, line);
    } else {
        platform::defaultLog(nullptr, levelMask, line);
    }
}

bool traceSinkInstalled() {
    return platform::hooks().pfnTrace != nullptr;
}

void traceLine(uint32_t chip, uint32_t moduleId, uint32_t level, const char *text) {
    const auto &h = platform::hooks();
    if (h.pfnTrace != nullptr) {
        h.pfnTrace(h.ctx, chip, moduleId, level, text);
    }
}

}  // namespace vq

extern "C" {

VQ6192_API void VQ6192_Platform_SetHooks(const VQ6192_PLATFORM_HOOKS *hooks) {
    vq::platform::g_hooks = hooks != nullptr ? *hooks : VQ6192_PLATFORM_HOOKS{};
}

VQ6192_API uint32_t VQ6192_Platform_GetTickUs(void) {
    uint32_t t = vq::platform::hooks().ulTickUs;
    return t != 0 ? t : VQ6192_DEFAULT_TICK_US;
}

VQ6192_API void VQ6192_Platform_SetLogMask(uint32_t mask) {
    vq::platform::g_logMask = mask;
}

VQ6192_API void VQ6192_Platform_FailAllocs(uint32_t after, uint32_t count) {
    vq::platform::g_failAllocs.arm(after, count);
}
VQ6192_API void VQ6192_Platform_FailSemCreates(uint32_t after, uint32_t count) {
    vq::platform::g_failSemCreates.arm(after, count);
}
VQ6192_API void VQ6192_Platform_FailSemTakes(uint32_t after, uint32_t count) {
    vq::platform::g_failSemTakes.arm(after, count);
}
VQ6192_API void VQ6192_Platform_FailSemGives(uint32_t after, uint32_t count) {
    vq::platform::g_failSemGives.arm(after, count);
}

}  // extern "C"
