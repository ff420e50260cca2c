// Chip model: a memory-mapped window over the chip's registers, for code that reads the chip as plain
// host memory (the chip dump's direct register path).
#pragma once

#include <cstdint>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

// The window is host memory laid out like the chip's byte-address space: the register at byte address
// a is the 16-bit word at base() + a. It is a copy, not the register file: sync() fills it from the
// model's registers (without side effects), and what a program writes into it stays in the window
// (no register behaviour runs). The memory is taken on first use.
class RegisterWindow : public ChipBlock {
  public:
    static constexpr uint32_t kBytes = 0x40000;  // byte addresses 0 .. 0x3FFFE

    explicit RegisterWindow(ChipModel &model);

    uintptr_t base();
    void sync();
    uint16_t at(uint32_t addr);
    void set(uint32_t addr, uint16_t value);

  private:
    std::vector<uint16_t> &memory();

    ChipModel &model_;
    std::vector<uint16_t> mem_;
};

}  // namespace vq6192::sim
