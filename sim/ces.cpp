// Chip model of the CES engine: drain status after a channel disable, read-only far-end registers.
#include "vq6192/sim/ces.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kCtrlReg = 0x15000;
constexpr uint32_t kDrainReg = 0x16C00;
constexpr uint32_t kFeSnTypeReg = 0x16800;
constexpr uint16_t kEnable = 1u << 0;
constexpr uint16_t kDrained = 0x18;  // bits 3 and 4

}  // namespace

CesBlock::CesBlock(ChipModel &model) : model_(model) {
    for (uint32_t c = 0; c < kChannels; ++c) {
        model.onWrite(kCtrlReg + 2 * c, [this, c](uint32_t, uint16_t written, uint16_t old) {
            if ((old & kEnable) != 0 && (written & kEnable) == 0) {
                pending_[c] = drainReads_[c];
            }
            return written;
        });
        model.onRead(kDrainReg + 2 * c, [this, c](uint32_t, uint16_t stored) {
            ++statusReads_[c];
            if (pending_[c] > 0) {
                if (pending_[c] != kForever) {
                    --pending_[c];
                }
                return static_cast<uint16_t>(stored & ~kDrained);
            }
            return static_cast<uint16_t>(stored | kDrained);
        });
        model.onWrite(kFeSnTypeReg + 2 * c, [this](uint32_t addr, uint16_t, uint16_t old) {
            readOnlyWrites_.push_back(addr);
            return old;
        });
    }
}

}  // namespace vq6192::sim
