// Every block model of the chip, created with each chip model: one line per block.
#include "vq6192/sim.h"

namespace vq6192::sim {

void installBlocks(ChipModel & /*model*/) {}

}  // namespace vq6192::sim
