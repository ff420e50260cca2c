// Chip model of the SAM block: the ready bit beside the SA-bit table engine's controls.
#include "vq6192/sim/sam.h"

namespace vq6192::sim {

SamBlock::SamBlock(ChipModel &model) : model_(model) {
    setReady(true);
}

// The ready bit is status: it reads the block's state whatever the table engine's writes carry.
void SamBlock::setReady(bool ready) {
    model_.stickBits(kReadyReg, kReadyBit, ready ? kReadyBit : 0);
}

}  // namespace vq6192::sim
