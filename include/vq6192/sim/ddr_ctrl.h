// Chip model: the DDR controller's start-up registers (ready flag, write levelling, training).
#pragma once

#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

// Start: writing 1 to bit 0 of 0xD008 starts the controller's initialisation; bit 3 of 0xD000 reads 1
// while it runs, for a number of reads of 0xD000 (none by default: ready at the first read), and 0
// before any start. Write levelling: lane k's result in 0xD272 + 4k, 0 (clean) at power-on; the
// driver clears a failed lane by writing 0 there. Training: bits 8..11 of 0xD0D4 read 15 after a
// good training (the power-on state of a healthy chip).
class DdrCtrlBlock : public ChipBlock {
  public:
    static constexpr uint32_t kForever = UINT32_MAX;
    static constexpr uint32_t kLanes = 5;
    static constexpr uint16_t kTrainingGood = 15;

    explicit DdrCtrlBlock(ChipModel &model);

    // Starts from number `fromStart` on (counting from 0) stay busy for `reads` reads of 0xD000
    // (kForever: never ready); earlier starts are ready at once.
    void setBusyReads(uint32_t reads, uint32_t fromStart = 0);
    uint32_t starts() const { return starts_; }

    // A lane's write-levelling result as the controller leaves it after a start.
    void setWriteLevel(uint32_t lane, uint16_t value);
    // Training result, bits 8..11 of 0xD0D4 (0..15).
    void setTraining(uint16_t result) { training_ = result & 0xFu; }

  private:
    ChipModel &model_;
    uint32_t busyReads_ = 0;
    uint32_t busyFromStart_ = 0;
    uint32_t busyLeft_ = 0;
    uint32_t starts_ = 0;
    uint16_t training_ = kTrainingGood;
};

}  // namespace vq6192::sim
