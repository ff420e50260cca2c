// Delays, and the virtual clock that tests install so that waits return at once and are totalled.
#include <cerrno>
#include <ctime>

#include "platform/osal.h"
#include "platform/settings.h"

namespace vq::platform {
namespace {

// The virtual clock is a plain total: adding to it orders nothing between the threads that wait, so it
// is counted with relaxed atomics (a race checker then still sees the threads' other accesses as they
// are, instead of ordered by every delay).
std::atomic<bool> g_virtual{false};
std::atomic<uint64_t> g_virtualUs{0};

bool virtualClock() {
    return g_virtual.load(std::memory_order_relaxed);
}

void addVirtualUs(uint64_t us) {
    g_virtualUs.fetch_add(us, std::memory_order_relaxed);
}

void posixDelayUs(uint32_t us) {
    timespec req{static_cast<time_t>(us / 1000000u), static_cast<long>(us % 1000000u) * 1000};
    timespec rem{};
    while (nanosleep(&req, &rem) != 0 && errno == EINTR) {
        req = rem;
    }
}

}  // namespace
}  // namespace vq::platform

namespace vq {

void DrvDelayUs(uint32_t us) {
    using namespace platform;
    if (virtualClock()) {
        addVirtualUs(us);
        return;
    }
    const auto &h = hooks();
    if (h.pfnDelayUs != nullptr) {
        h.pfnDelayUs(h.ctx, us);
    } else {
        posixDelayUs(us);
    }
}

void OSK_TaskDelay(uint32_t ticks) {
    using namespace platform;
    uint64_t us = static_cast<uint64_t>(ticks) * VQ6192_Platform_GetTickUs();
    if (virtualClock()) {
        addVirtualUs(us);
        return;
    }
    const auto &h = hooks();
    if (h.pfnTaskDelay != nullptr) {
        h.pfnTaskDelay(h.ctx, ticks);
        return;
    }
    for (; us > UINT32_MAX; us -= UINT32_MAX) {
        DrvDelayUs(UINT32_MAX);
    }
    DrvDelayUs(static_cast<uint32_t>(us));
}

}  // namespace vq

extern "C" {

VQ6192_API void VQ6192_Platform_SetVirtualClock(uint32_t enable) {
    vq::platform::g_virtual = enable != 0;
}
VQ6192_API uint32_t VQ6192_Platform_GetVirtualClock(void) {
    return vq::platform::g_virtual ? 1 : 0;
}
VQ6192_API uint64_t VQ6192_Platform_GetVirtualTimeUs(void) {
    return vq::platform::g_virtualUs;
}
VQ6192_API void VQ6192_Platform_ResetVirtualTime(void) {
    vq::platform::g_virtualUs = 0;
}

}  // extern "C"
