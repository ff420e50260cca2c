// PLL lock alarms and SerDes lock status.
#include "vq6192/sim/clocks.h"

#include "vq6192/sim/interrupts.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kLocalAlarms = 0x100;
constexpr uint32_t kSerdesLock = 0x220;
constexpr uint32_t kLane2Reset = 0x214;
constexpr uint16_t kLaneResetBit = 1u << 1;

}  // namespace

ClockBlock::ClockBlock(ChipModel &model) : model_(model) {
    model.onWrite(kLane2Reset, [this](uint32_t, uint16_t written, uint16_t old) {
        if ((old & kLaneResetBit) != 0 && (written & kLaneResetBit) == 0) {
            locking_ = true;
            unlockedReadsLeft_ = lockDelay_;
        }
        return written;
    });
    model.onRead(kSerdesLock, [this](uint32_t addr, uint16_t stored) {
        serdesLockReads_++;
        if (!locking_) {
            return stored;
        }
        if (unlockedReadsLeft_ > 0) {
            if (unlockedReadsLeft_ != kForever) {
                unlockedReadsLeft_--;
            }
            return static_cast<uint16_t>(stored & ~kAllLocked);
        }
        locking_ = false;
        const auto locked = static_cast<uint16_t>((stored & ~kAllLocked) | serdesLock_);
        model_.poke(addr, locked);
        return locked;
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
