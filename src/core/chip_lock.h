// The chip lock: the chip's binary semaphore, then the host bus arbitration.
#pragma once

#include <cstdint>

namespace vq {

// Semaphore time-outs, in platform ticks.
inline constexpr uint32_t kSemTimeout = 600;
inline constexpr uint32_t kQuietSemTimeout = 10;

// Result of taking the chip lock for one register access.
enum class LockState {
    Held,        // semaphore and arbitration held: access, then release
    CardAbsent,  // the card-present hook answered 0: the lock was already given back, skip the access
    Failed,      // not obtained (logged and counted)
};

// Takes the lock as VQ6192_GetArbitrateFunc does, and tells apart a card found absent, after which
// the lock is already released. `status` receives the lock step's code (0, 8 or 0x10007).
LockState lockForAccess(uint32_t chip, uint32_t addr, uint32_t value, uint32_t *status = nullptr);

}  // namespace vq
