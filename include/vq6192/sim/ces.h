// Chip model: the CES engine's channel drain status and its read-only far-end registers.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "vq6192/sim.h"

namespace vq6192::sim {

// Channel c's drain status, bits 3 and 4 of 0x16C00 + 2c, reads both set once the channel's buffers are
// empty. Disabling a channel (bit 0 of 0x15000 + 2c written 0 while it was 1) starts a drain that
// completes after the channel's drain time in reads (0 by default: drained at the first read; kForever:
// never). Bits 0..13 of the status register keep what tests poke there (the history FIFO alarms).
//
// The far-end sequence-number type registers 0x16800 + 2c are the chip's own: a write to one of them is
// recorded as a violation (tests check there is none).
class CesBlock : public ChipBlock {
  public:
    static constexpr uint32_t kChannels = 352;
    static constexpr uint32_t kForever = UINT32_MAX;

    explicit CesBlock(ChipModel &model);

    // Reads of the drain status after a disable before it reads drained.
    void setDrainReads(uint32_t channel, uint32_t reads) { drainReads_.at(channel) = reads; }
    uint64_t drainStatusReads(uint32_t channel) const { return statusReads_.at(channel); }
    // Addresses of the writes to read-only registers.
    const std::vector<uint32_t> &readOnlyWrites() const { return readOnlyWrites_; }

  private:
    ChipModel &model_;
    std::array<uint32_t, kChannels> drainReads_{};
    std::array<uint32_t, kChannels> pending_{};
    std::array<uint64_t, kChannels> statusReads_{};
    std::vector<uint32_t> readOnlyWrites_;
};

}  // namespace vq6192::sim
