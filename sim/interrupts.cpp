// Write-1-to-clear interrupt flags and latched status registers, and the CES timing recovery
// summary register.
#include "vq6192/sim/interrupts.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kTopFlags[] = {0x100, 0x102, 0x104, 0x106, 0x108, 0x10A, 0x10C};
constexpr uint32_t kCesTrLatched = 0x17060;
constexpr uint32_t kCesTrInstances = 16;
constexpr uint32_t kCesTrSummary = 0x17010;
constexpr uint32_t kCesLatched = 0x16060;
constexpr uint32_t kCesLatchedRegs = 89;  // channels 0..355, four per register

}  // namespace

InterruptBlock::InterruptBlock(ChipModel &model) : model_(model) {
    for (uint32_t addr : kTopFlags) {
        install(addr);
    }
    for (uint32_t i = 0; i < kCesTrInstances; ++i) {
        install(kCesTrLatched + 2 * i);
    }
    for (uint32_t k = 0; k < kCesLatchedRegs; ++k) {
        install(kCesLatched + 2 * k);
    }
    model.onRead(kCesTrSummary, [this](uint32_t, uint16_t) {
        uint16_t summary = 0;
        for (uint32_t i = 0; i < kCesTrInstances; ++i) {
            if ((model_.peek(kCesTrLatched + 2 * i) & 0xFu) != 0) {
                summary = static_cast<uint16_t>(summary | 1u << i);
            }
        }
        return summary;
    });
}

bool InterruptBlock::isFlagRegister(uint32_t addr) {
    for (uint32_t a : kTopFlags) {
        if (a == addr) {
            return true;
        }
    }
    if (addr >= kCesTrLatched && addr < kCesTrLatched + 2 * kCesTrInstances && addr % 2 == 0) {
        return true;
    }
    return addr >= kCesLatched && addr < kCesLatched + 2 * kCesLatchedRegs && addr % 2 == 0;
}

void InterruptBlock::install(uint32_t addr) {
    model_.onWrite(addr, [this](uint32_t a, uint16_t written, uint16_t old) {
        auto it = active_.find(a);
        const uint16_t active = it == active_.end() ? 0 : it->second;
        return static_cast<uint16_t>((old & ~written) | active);
    });
}

void InterruptBlock::raise(uint32_t addr, uint16_t bits) {
    model_.poke(addr, static_cast<uint16_t>(model_.peek(addr) | bits));
}

void InterruptBlock::setActive(uint32_t addr, uint16_t bits) {
    active_[addr] = static_cast<uint16_t>(active_[addr] | bits);
    raise(addr, bits);
}

void InterruptBlock::clearActive(uint32_t addr, uint16_t bits) {
    active_[addr] = static_cast<uint16_t>(active_[addr] & ~bits);
}

}  // namespace vq6192::sim
