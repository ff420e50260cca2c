// PLL lock alarms and SerDes lock status.
#include "vq6192/sim/clocks.h"

#include "vq6192/sim/interrupts.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kLocalAlarms = 0x100;
constexpr uint32_t kSerdesLock = 0x220;

}  // namespace

ClockBlock::ClockBlock(ChipModel &model) : model_(model) {
    model.onRead(kSerdesLock, [this](uint32_t, uint16_t stored) {
        serdesLockReads_++;
        uint16_t lock = serdesLock_;
        if (serdesUnlockedReads_ > 0) {
            lock = 0;
            if (serdesUnlockedReads_ != kForever) {
                serdesUnlockedReads_--;
            }
        }
        return static_cast<uint16_t>((stored & ~kAllLocked) | lock);
    });
}

void ClockBlock::setPllLocked(uint32_t pll, bool locked) {
    auto &irq = model_.block<InterruptBlock>();
    const auto bit = static_cast<uint16_t>(1u << pll);
    if (locked) {
        irq.clearActive(kLocalAlarms, bit);
    } else {
        irq.setActive(kLocalAlarms, bit);
    }
}

}  // namespace vq6192::sim
