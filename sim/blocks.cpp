// Every block model of the chip, created with each chip model: one line per block.
#include "vq6192/sim.h"
#include "vq6192/sim/framers.h"

namespace vq6192::sim {

void installBlocks(ChipModel &model) {
    model.block<Framers>();
}

}  // namespace vq6192::sim
