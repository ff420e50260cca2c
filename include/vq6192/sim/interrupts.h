// Chip model: interrupt flags and latched status registers (write 1 to clear).
#pragma once

#include <cstdint>
#include <unordered_map>

#include "vq6192/sim.h"

namespace vq6192::sim {

// Every flag register of the interrupt tree and every latched status register clears the bits
// written as 1 and keeps the others. A condition that is still present (setActive) latches its bits
// again at once, so they read 1 even right after a clear.
//
// Registers: top-level flags 0x100 (local alarms, bit n of 0..3 = PLL n out of lock), 0x102, 0x104,
// 0x106, 0x108, 0x10A, 0x10C; CES timing recovery latched status 0x17060 + 2i (i 0..15) with the
// summary 0x17010 (bit i = instance i has a latched bit); CES channel latched status 0x16060 + 2k.
class InterruptBlock : public ChipBlock {
  public:
    explicit InterruptBlock(ChipModel &model);

    // Latches bits once (an event).
    void raise(uint32_t addr, uint16_t bits);
    // A lasting condition: its bits latch now and again after every clear, until clearActive().
    void setActive(uint32_t addr, uint16_t bits);
    void clearActive(uint32_t addr, uint16_t bits);
    // Every register this block treats as write-1-to-clear.
    static bool isFlagRegister(uint32_t addr);

  private:
    void install(uint32_t addr);

    ChipModel &model_;
    std::unordered_map<uint32_t, uint16_t> active_;
};

}  // namespace vq6192::sim
