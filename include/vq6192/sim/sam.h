// Chip model: the SAM block. Its Sa-bit tables sit behind the SA-bit table engine (select, command and
// busy in register 0x6000); bit 7 of that register reports the block ready, 1 unless a test says
// otherwise.
#pragma once

#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

class SamBlock : public ChipBlock {
  public:
    static constexpr uint32_t kReadyReg = 0x6000;
    static constexpr uint16_t kReadyBit = 1u << 7;

    explicit SamBlock(ChipModel &model);
    void setReady(bool ready);

  private:
    ChipModel &model_;
};

}  // namespace vq6192::sim
