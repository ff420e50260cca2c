// The chip control block: version registers, the register test register, service power status that
// follows the power bits, and the die id registers.
#include "vq6192/sim/chip_control.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kVersionHigh = 0x00;
constexpr uint32_t kVersionLow = 0x02;
constexpr uint32_t kTestReg = 0x04;
constexpr uint32_t kPowerReg = 0x18;
constexpr uint32_t kStatusReg0 = 0x1A;  // CES bits 0..3, ATM bits 4..9
constexpr uint32_t kStatusReg1 = 0x1C;  // PPP bits 0..11
constexpr uint32_t kDieIdCtrl = 0x160;
constexpr uint32_t kDieIdCrc = 0x162;
constexpr uint32_t kDieIdWords = 0x164;

// Status bits of each service once powered: ATM, PPP, CES.
constexpr uint16_t kStatusMask[3] = {0x3F, 0xFFF, 0xF};

}  // namespace

ChipControlBlock::ChipControlBlock(ChipModel &model) : model_(model) {
    model.onRead(kVersionHigh, [this](uint32_t, uint16_t) { return versionHigh_; });
    model.onRead(kVersionLow, [this](uint32_t, uint16_t) { return versionLow_; });
    model.onRead(kTestReg, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>((~stored & ~nonInverting_) | (stored & nonInverting_));
    });
    model.onRead(kStatusReg0, [this](uint32_t, uint16_t stored) {
        const uint16_t bits = static_cast<uint16_t>(status(Service::Ces) | status(Service::Atm) << 4);
        return static_cast<uint16_t>((stored & ~0x3FFu) | bits);
    });
    model.onRead(kStatusReg1, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>((stored & ~0xFFFu) | status(Service::Ppp));
    });
    model.onRead(kDieIdCtrl, [this](uint32_t, uint16_t) { return dieId_.ctrl; });
    model.onRead(kDieIdCrc, [this](uint32_t, uint16_t) { return dieId_.crc; });
    for (uint32_t k = 0; k < 8; ++k) {
        model.onRead(kDieIdWords + 2 * k, [this, k](uint32_t, uint16_t) { return dieId_.words[k]; });
    }
}

void ChipControlBlock::setVersion(uint16_t high, uint16_t low) {
    versionHigh_ = high;
    versionLow_ = low;
}

void ChipControlBlock::holdPowerStatus(Service s, uint16_t status) {
    hold_[static_cast<size_t>(s)] = {true, status};
}

void ChipControlBlock::releasePowerStatus(Service s) {
    hold_[static_cast<size_t>(s)] = {};
}

uint16_t ChipControlBlock::status(Service s) const {
    const size_t i = static_cast<size_t>(s);
    const Hold &h = hold_[i];
    if (h.on) {
        return static_cast<uint16_t>(h.status & kStatusMask[i]);
    }
    const bool powered = ((model_.peek(kPowerReg) >> i) & 1u) != 0;
    return powered ? kStatusMask[i] : 0;
}

}  // namespace vq6192::sim
