// Chip model: the two Ethernet MACs. Their register files are tables of the Ethernet lookup block
// (select 9 for MAC 1, 10 for MAC 2), one 32-bit entry per MAC register; this block reads and sets
// them by MAC and register number, for counters and status bits that tests set.
#pragma once

#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

class MacBlock : public ChipBlock {
  public:
    static constexpr uint32_t kLookupBlock = 0x4000;
    static constexpr uint32_t kMac1Select = 9;
    static constexpr uint32_t kMac2Select = 10;
    static constexpr uint32_t kLinkUpBit = 20;  // of register 22

    explicit MacBlock(ChipModel &model) : model_(model) {}

    // mac 1 or 2, register 0..127.
    uint32_t reg(uint32_t mac, uint32_t n) const;
    void setReg(uint32_t mac, uint32_t n, uint32_t value);
    void setLinkUp(uint32_t mac, bool up);

  private:
    ChipModel &model_;
};

}  // namespace vq6192::sim
