// Chip model: PLL lock alarms and SerDes lock status.
#pragma once

#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

// PLLs 0..3 report loss of lock in bits 0..3 of the local alarm register 0x100 (write 1 to clear,
// kept by the interrupt block). A healthy PLL latches nothing; an unlocked one latches its bit again
// right after every clear, so programming it fails.
//
// SerDes lock: bits 0..3 of 0x220 read 1 for every locked lane element (all four by default). The
// lock can be withheld for good or for a number of reads of the register.
class ClockBlock : public ChipBlock {
  public:
    static constexpr uint32_t kPlls = 4;
    static constexpr uint16_t kAllLocked = 0xF;
    static constexpr uint32_t kForever = UINT32_MAX;

    explicit ClockBlock(ChipModel &model);

    void setPllLocked(uint32_t pll, bool locked);

    // Lock bits once locked; 0..0xF.
    void setSerdesLock(uint16_t bits) { serdesLock_ = bits & kAllLocked; }
    // The next `reads` reads of 0x220 show no lock (kForever: never locks).
    void delaySerdesLock(uint32_t reads) { serdesUnlockedReads_ = reads; }
    uint64_t serdesLockReads() const { return serdesLockReads_; }

  private:
    ChipModel &model_;
    uint16_t serdesLock_ = kAllLocked;
    uint32_t serdesUnlockedReads_ = 0;
    uint64_t serdesLockReads_ = 0;
};

}  // namespace vq6192::sim
