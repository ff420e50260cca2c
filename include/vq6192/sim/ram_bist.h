// Chip model: the RAM built-in self-test engine.
#pragma once

#include <array>
#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

// Registers: 0xA0 enable (bit b: block b), 0xA2 start, 0xA4 done, 0xA6 fail. Writing a start bit of
// an enabled block runs that block's test; it is done after a number of polls of the done register
// (0 by default: done at the first poll) and fails if the block was made to fail. Writing 0 to the
// enable or start register stops every test and clears done and fail.
class RamBistBlock : public ChipBlock {
  public:
    static constexpr uint32_t kBlocks = 9;
    static constexpr uint32_t kForever = UINT32_MAX;

    explicit RamBistBlock(ChipModel &model);

    void setFailing(uint32_t block, bool fail) { fail_.at(block) = fail; }
    // Polls of the done register before the block's test finishes (kForever: never).
    void setRunPolls(uint32_t block, uint32_t polls) { runPolls_.at(block) = polls; }
    uint64_t runs(uint32_t block) const { return runs_.at(block); }
    // BIST clock selection (0x62 bits 0..11) seen when the block's last test started.
    uint16_t clockSelAtStart(uint32_t block) const { return clockAtStart_.at(block); }

  private:
    void start(uint16_t bits);
    void stop();
    uint16_t pollDone(uint16_t stored);

    ChipModel &model_;
    std::array<bool, kBlocks> fail_{};
    std::array<uint32_t, kBlocks> runPolls_{};
    std::array<uint32_t, kBlocks> left_{};
    std::array<bool, kBlocks> running_{};
    std::array<uint64_t, kBlocks> runs_{};
    std::array<uint16_t, kBlocks> clockAtStart_{};
};

}  // namespace vq6192::sim
