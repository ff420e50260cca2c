// The chip model's register file: sparse pages of 16-bit registers, per-address behaviours, stuck
// bits, the bus trace and the access counters.
#include <utility>

#include "vq6192/sim.h"

namespace vq6192::sim {
namespace {

uint32_t maskOf(uint32_t startBit, uint32_t width) {
    if (width == 0 || width > 32 || startBit >= 32) {
        return 0;
    }
    return (width == 32 ? 0xFFFFFFFFu : (1u << width) - 1u) << startBit;
}

}  // namespace

ChipModel::ChipModel() : tables_(*this) {
    installBlocks(*this);
}

ChipModel::~ChipModel() {
    detach();
}

ChipModel::Page *ChipModel::page(uint32_t addr, bool create) {
    uint32_t index = addr >> kPageShift;
    if (index == lastPageIndex_) {
        return lastPage_;
    }
    auto it = pages_.find(index);
    if (it == pages_.end()) {
        if (!create) {
            return nullptr;
        }
        it = pages_.emplace(index, std::make_unique<Page>()).first;
    }
    lastPageIndex_ = index;
    lastPage_ = it->second.get();
    return lastPage_;
}

const ChipModel::Page *ChipModel::page(uint32_t addr) const {
    uint32_t index = addr >> kPageShift;
    if (index == lastPageIndex_) {
        return lastPage_;
    }
    auto it = pages_.find(index);
    return it == pages_.end() ? nullptr : it->second.get();
}

ChipModel::Special &ChipModel::special(uint32_t addr) {
    page(addr, true)->special = true;
    return special_[addr & ~1u];
}

uint16_t ChipModel::peek(uint32_t addr) const {
    const Page *p = page(addr);
    return p == nullptr ? 0 : p->regs[(addr >> 1) & (kPageRegs - 1)];
}

void ChipModel::poke(uint32_t addr, uint16_t value) {
    page(addr, true)->regs[(addr >> 1) & (kPageRegs - 1)] = value;
}

void ChipModel::reset() {
    for (auto &[index, p] : pages_) {
        p->regs.fill(0);
    }
    oddAccesses_ = 0;
}

std::map<uint32_t, uint16_t> ChipModel::registers() const {
    std::map<uint32_t, uint16_t> out;
    for (const auto &[index, p] : pages_) {
        for (uint32_t k = 0; k < kPageRegs; ++k) {
            if (p->regs[k] != 0) {
                out.emplace((index << kPageShift) | (k << 1), p->regs[k]);
            }
        }
    }
    return out;
}

uint16_t ChipModel::load(uint32_t addr) {
    oddAccesses_ += addr & 1u;
    Page *p = page(addr, true);
    uint16_t value = p->regs[(addr >> 1) & (kPageRegs - 1)];
    if (!p->special) {
        return value;
    }
    auto it = special_.find(addr & ~1u);
    if (it == special_.end()) {
        return value;
    }
    const Special &s = it->second;
    if (s.read) {
        value = s.read(addr, value);
    }
    return static_cast<uint16_t>((value & ~s.stuckMask) | (s.stuckValue & s.stuckMask));
}

void ChipModel::store(uint32_t addr, uint16_t value) {
    oddAccesses_ += addr & 1u;
    Page *p = page(addr, true);
    uint16_t &reg = p->regs[(addr >> 1) & (kPageRegs - 1)];
    if (p->special) {
        auto it = special_.find(addr & ~1u);
        if (it != special_.end()) {
            const Special &s = it->second;
            if (s.write) {
                value = s.write(addr, value, reg);
            }
            value = static_cast<uint16_t>((value & ~s.stuckMask) | (s.stuckValue & s.stuckMask));
        }
    }
    reg = value;
}

void ChipModel::record(BusOp op, uint32_t addr, uint32_t value, uint32_t startBit, uint32_t width) {
    switch (op) {
        case BusOp::Read:
            counters_.reads++;
            break;
        case BusOp::Write:
            counters_.writes++;
            break;
        case BusOp::FieldRead:
            counters_.fieldReads++;
            break;
        case BusOp::FieldWrite:
            counters_.fieldWrites++;
            break;
    }
    if (tracing_) {
        trace_.push_back({op, addr, value, static_cast<uint8_t>(startBit), static_cast<uint8_t>(width)});
    }
}

uint16_t ChipModel::busRead(uint32_t addr) {
    uint16_t value = load(addr);
    record(BusOp::Read, addr, value, 0, 16);
    return value;
}

void ChipModel::busWrite(uint32_t addr, uint16_t value) {
    record(BusOp::Write, addr, value, 0, 16);
    store(addr, value);
}

uint32_t ChipModel::busReadField(uint32_t addr, uint32_t startBit, uint32_t width) {
    uint32_t mask = maskOf(startBit, width);
    uint32_t value = mask == 0 ? 0 : ((load(addr) & mask) >> startBit) & 0xFFFFu;
    record(BusOp::FieldRead, addr, value, startBit, width);
    return value;
}

void ChipModel::busWriteField(uint32_t addr, uint32_t value, uint32_t startBit, uint32_t width) {
    record(BusOp::FieldWrite, addr, value, startBit, width);
    uint32_t old = load(addr);
    uint32_t shifted = startBit >= 32 ? 0 : value << startBit;
    store(addr, static_cast<uint16_t>(old ^ ((old ^ shifted) & maskOf(startBit, width))));
}

void ChipModel::onRead(uint32_t addr, ReadFn fn) {
    special(addr).read = std::move(fn);
}

void ChipModel::onWrite(uint32_t addr, WriteFn fn) {
    special(addr).write = std::move(fn);
}

void ChipModel::stickBits(uint32_t addr, uint16_t mask, uint16_t value) {
    Special &s = special(addr);
    s.stuckMask = mask;
    s.stuckValue = value;
}

void ChipModel::clearStuckBits() {
    for (auto &[addr, s] : special_) {
        s.stuckMask = 0;
        s.stuckValue = 0;
    }
}

}  // namespace vq6192::sim
