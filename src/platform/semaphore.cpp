// Binary semaphores. The default is a POSIX semaphore inside the block the library allocates, with a
// flag that keeps it binary: giving a semaphore that is already free leaves it free, so a stray second
// release can never let two owners in.
#include <semaphore.h>

#include <atomic>
#include <cerrno>
#include <ctime>
#include <new>

#include "platform/osal.h"
#include "platform/settings.h"

namespace vq::platform {
namespace {

struct PosixBinarySem {
    sem_t sem;
    std::atomic<uint32_t> held;
};
static_assert(sizeof(PosixBinarySem) <= VQ6192_SEM_BLOCK_SIZE, "semaphore block too small");

uint32_t posixCreate(void *block, uint32_t initial) {
    auto *s = new (block) PosixBinarySem;
    if (sem_init(&s->sem, 0, initial != 0 ? 1 : 0) != 0) {
        return 1;
    }
    s->held = initial != 0 ? 0 : 1;
    return 0;
}

uint32_t posixDelete(void *block) {
    auto *s = static_cast<PosixBinarySem *>(block);
    int rc = sem_destroy(&s->sem);
    s->~PosixBinarySem();
    return rc == 0 ? 0 : 1;
}

uint32_t posixTake(void *block, uint32_t timeoutTicks) {
    auto *s = static_cast<PosixBinarySem *>(block);
    // Uncontended: no deadline to compute.
    if (sem_trywait(&s->sem) == 0) {
        s->held = 1;
        return 0;
    }
    uint64_t waitUs = static_cast<uint64_t>(timeoutTicks) * VQ6192_Platform_GetTickUs();
    timespec deadline{};
    clock_gettime(CLOCK_REALTIME, &deadline);
    uint64_t ns = static_cast<uint64_t>(deadline.tv_nsec) + (waitUs % 1000000u) * 1000u;
    deadline.tv_sec += static_cast<time_t>(waitUs / 1000000u + ns / 1000000000u);
    deadline.tv_nsec = static_cast<long>(ns % 1000000000u);
    int rc;
    do {
        rc = sem_timedwait(&s->sem, &deadline);
    } while (rc != 0 && errno == EINTR);
    if (rc != 0) {
        return 1;
    }
    s->held = 1;
    return 0;
}

uint32_t posixGive(void *block) {
    auto *s = static_cast<PosixBinarySem *>(block);
    if (s->held.exchange(0) == 1 && sem_post(&s->sem) != 0) {
        return 1;
    }
    return 0;
}

}  // namespace
}  // namespace vq::platform

namespace vq {

uint32_t DrvSemBCreate(void *block, uint32_t initial) {
    using namespace platform;
    if (block == nullptr || g_failSemCreates.fire()) {
        return 1;
    }
    const auto &h = hooks();
    return h.pfnSemCreate != nullptr ? h.pfnSemCreate(h.ctx, block, initial) : posixCreate(block, initial);
}

uint32_t DrvSemDelete(void *block) {
    using namespace platform;
    if (block == nullptr) {
        return 1;
    }
    const auto &h = hooks();
    return h.pfnSemDelete != nullptr ? h.pfnSemDelete(h.ctx, block) : posixDelete(block);
}

uint32_t iof_sema_timewait(void *sem, uint32_t timeoutTicks) {
    using namespace platform;
    if (sem == nullptr || g_failSemTakes.fire()) {
        return 1;
    }
    const auto &h = hooks();
    return h.pfnSemTake != nullptr ? h.pfnSemTake(h.ctx, sem, timeoutTicks) : posixTake(sem, timeoutTicks);
}

uint32_t iof_sema_post(void *sem) {
    using namespace platform;
    if (sem == nullptr) {
        return 1;
    }
    bool inject = g_failSemGives.fire();
    const auto &h = hooks();
    uint32_t rc = h.pfnSemGive != nullptr ? h.pfnSemGive(h.ctx, sem) : posixGive(sem);
    return inject ? 1 : rc;
}

}  // namespace vq
