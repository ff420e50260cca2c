// Chip model: PLL lock alarms and SerDes lock status.
#pragma once

#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

// PLLs 0..3 report loss of lock in bits 0..3 of the local alarm register 0x100 (write 1 to clear,
// kept by the interrupt block). A healthy PLL latches nothing; an unlocked one latches its bit again
// right after every clear, so programming it fails.
//
// SerDes lock: the lanes lock when lane 2's reset (0x214 bit 1) is released, the last step of the
// SerDes start; bits 0..3 of 0x220 then latch the lock bits (all four by default). The lock can be
// withheld for good or for a number of reads of 0x220. Otherwise 0x220 holds what was written.
class ClockBlock : public ChipBlock {
  public:
    static constexpr uint32_t kPlls = 4;
    static constexpr uint16_t kAllLocked = 0xF;
    static constexpr uint32_t kForever = UINT32_MAX;

    explicit ClockBlock(ChipModel &model);

    void setPllLocked(uint32_t pll, bool locked);

    // Lock bits once locked; 0..0xF.
    void setSerdesLock(uint16_t bits) { serdesLock_ = bits & kAllLocked; }
    // After a lane reset release, the first `reads` reads of 0x220 show no lock yet (kForever: the
    // lanes never lock).
    void delaySerdesLock(uint32_t reads) { lockDelay_ = reads; }
    uint64_t serdesLockReads() const { return serdesLockReads_; }

  private:
    ChipModel &model_;
    uint16_t serdesLock_ = kAllLocked;
    uint32_t lockDelay_ = 0;
    uint32_t unlockedReadsLeft_ = 0;
    bool locking_ = false;  // lane reset released, lock bits not latched yet
    uint64_t serdesLockReads_ = 0;
};

}  // namespace vq6192::sim
