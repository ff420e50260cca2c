// The DDR controller's start-up registers: ready flag after a start, write-levelling results and the
// training result.
#include "vq6192/sim/ddr_ctrl.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kStatus = 0xD000;
constexpr uint16_t kBusy = 1u << 3;
constexpr uint32_t kStart = 0xD008;
constexpr uint32_t kTraining = 0xD0D4;
constexpr uint16_t kTrainingMask = 0x0F00;
constexpr uint32_t kWriteLevel = 0xD272;

}  // namespace

DdrCtrlBlock::DdrCtrlBlock(ChipModel &model) : model_(model) {
    model.onWrite(kStart, [this](uint32_t, uint16_t written, uint16_t) {
        if ((written & 1u) != 0) {
            busyLeft_ = starts_ >= busyFromStart_ ? busyReads_ : 0;
            starts_++;
        }
        return written;
    });
    model.onRead(kStatus, [this](uint32_t, uint16_t stored) {
        uint16_t value = static_cast<uint16_t>(stored & ~kBusy);
        if (busyLeft_ > 0) {
            value |= kBusy;
            if (busyLeft_ != kForever) {
                busyLeft_--;
            }
        }
        return value;
    });
    model.onRead(kTraining, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>((stored & ~kTrainingMask) | training_ << 8);
    });
}

void DdrCtrlBlock::setBusyReads(uint32_t reads, uint32_t fromStart) {
    busyReads_ = reads;
    busyFromStart_ = fromStart;
}

void DdrCtrlBlock::setWriteLevel(uint32_t lane, uint16_t value) {
    model_.poke(kWriteLevel + 4 * lane, value);
}

}  // namespace vq6192::sim
