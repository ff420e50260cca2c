// Chip model: the telecom bus. The four receive B2 error counters clear when they are read.
#pragma once

#include <cstdint>

#include "vq6192/sim.h"

namespace vq6192::sim {

class TelecomBus : public ChipBlock {
  public:
    explicit TelecomBus(ChipModel &model);

    static constexpr uint32_t b2CounterAddr(uint32_t port) { return 0x22230 + 2 * port; }
    // Errors counted on a port since the last read.
    void setB2Count(uint32_t port, uint16_t count);

  private:
    ChipModel &model_;
};

}  // namespace vq6192::sim
