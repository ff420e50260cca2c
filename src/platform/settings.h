// Platform settings shared by the platform layer's files: the host hooks in force and the fault
// injection counters.
#pragma once

#include <atomic>
#include <cstdint>

#include "vq6192/platform.h"

namespace vq::platform {

const VQ6192_PLATFORM_HOOKS &hooks();

// A fault to inject: `skip` calls pass, then `count` calls fail.
struct Injection {
    std::atomic<uint32_t> skip{0};
    std::atomic<uint32_t> count{0};
    void arm(uint32_t after, uint32_t n);
    // True when the current call must fail.
    bool fire();
};

extern Injection g_failAllocs;
extern Injection g_failSemCreates;
extern Injection g_failSemTakes;
extern Injection g_failSemGives;

}  // namespace vq::platform
