// Chip model of the ATM pseudowire block, the switch's read-clear counters and its cell capture, from
// the chip's register map.
#include "vq6192/sim/atm_pwe3.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kPwDel = 0xA740;  // bits 0..10 PW, 11 start, 12 done
constexpr uint32_t kPwCap = 0xA720;  // bits 0..10 PW, 11 direction, 12 start, 13 done
constexpr uint32_t kPwMask = 0x7FF;
constexpr uint32_t kRxOverflow = 0xA6E0;
constexpr uint32_t kTxOverflow = 0xA6E2;
constexpr uint32_t kPktBufEntries = 512;

// Per side: start registers and their start bits, the captured flag.
struct CaptureSide {
    uint32_t portReg;
    uint16_t portStart;
    uint32_t vcxReg;
    uint16_t vcxStart;
    uint32_t flag;
};
constexpr CaptureSide kSides[2] = {{0xA2DC, 1u << 9, 0xA2DE, 1u << 13, 0xA2EC},
                                   {0xA2E4, 1u << 11, 0xA2E6, 1u << 13, 0xA2EA}};
constexpr uint32_t kCapFifoIndex = 1;

// One poll of a running handshake: true from the poll that brings `left` to 0 on.
bool countDown(bool running, uint32_t &left) {
    if (!running || left == AtmPwe3Block::kForever) {
        return false;
    }
    if (left > 1) {
        left--;
        return false;
    }
    left = 1;
    return true;
}

// Counter fields cleared by a read: (select, start bit, width).
struct Counter {
    uint32_t select;
    uint32_t startBit;
    uint32_t width;
};
constexpr Counter kCounters[] = {
    {AtmPwe3Block::kSelTrcc, 0, 32},     {AtmPwe3Block::kSelTtcc, 0, 32},
    {AtmPwe3Block::kSelLpcc, 0, 64},     {AtmPwe3Block::kSelSpcc, 0, 64},
    {AtmPwe3Block::kSelBmPvcSta, 0, 16}, {AtmPwe3Block::kSelBmFifoSta, 0, 16},
    {AtmPwe3Block::kSelPwTxSt, 0, 48},  // transmitted and delayed packets
    {AtmPwe3Block::kSelPwRxSt, 0, 80},  // fraction cells, out-of-order, lost, received packets
};

}  // namespace

AtmPwe3Block::AtmPwe3Block(ChipModel &model) : model_(model) {
    model_.onWrite(kPwDel, [this](uint32_t, uint16_t value, uint16_t old) {
        const uint16_t start = 1u << 11;
        if ((value & start) != 0 && (old & start) == 0) {
            deleting_ = true;
            deleteLeft_ = deletePolls_;
            deletes_.push_back({value & kPwMask, 0});
        } else if ((value & start) == 0) {
            deleting_ = false;
        }
        return static_cast<uint16_t>(value & ~(1u << 12));
    });
    model_.onRead(kPwDel, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>(countDown(deleting_, deleteLeft_) ? (stored | 1u << 12) : stored);
    });
    model_.onWrite(kPwCap, [this](uint32_t, uint16_t value, uint16_t old) {
        const uint16_t start = 1u << 12;
        if ((value & start) != 0 && (old & start) == 0) {
            capturing_ = true;
            captureLeft_ = capturePolls_;
            captures_.push_back({value & kPwMask, static_cast<uint32_t>(value >> 11 & 1u)});
            fillPacketBuffer();
        } else if ((value & start) == 0) {
            capturing_ = false;
        }
        return static_cast<uint16_t>(value & ~(1u << 13));
    });
    model_.onRead(kPwCap, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>(countDown(capturing_, captureLeft_) ? (stored | 1u << 13) : stored);
    });
    // Overflow counters clear when read.
    for (uint32_t reg : {kRxOverflow, kTxOverflow}) {
        model_.onRead(reg, [this](uint32_t addr, uint16_t stored) {
            model_.poke(addr, 0);
            return stored;
        });
    }
    for (uint32_t side = 0; side < 2; ++side) {
        model_.onRead(kSides[side].flag, [this, side](uint32_t, uint16_t stored) {
            const CaptureSide &s = kSides[side];
            const bool started =
                (model_.peek(s.portReg) & s.portStart) != 0 || (model_.peek(s.vcxReg) & s.vcxStart) != 0;
            return static_cast<uint16_t>((stored & ~1u) | (started && !fifo_[side].empty() ? 1u : 0u));
        });
    }
    model_.tables().onTableCommand(kTableBlock, [this](uint32_t select, uint32_t address, bool write) {
        const uint32_t side = select == kSelLcapFifo ? 0 : select == kSelScapFifo ? 1 : 2;
        if (write || side == 2 || address != kCapFifoIndex || fifo_[side].empty()) {
            return;  // an empty FIFO, or a read at another index, leaves the entry as it is
        }
        TableEngine::Entry e{};
        e[0] = static_cast<uint16_t>(fifo_[side].front());
        e[1] = static_cast<uint16_t>(fifo_[side].front() >> 16);
        fifo_[side].pop_front();
        model_.tables().setEntry(kTableBlock, select, address, e);
    });
    model_.tables().addReadHooks(nullptr, [this](uint32_t block, uint32_t select, uint32_t address) {
        if (block == kTableBlock) {
            onReadDone(select, address);
        }
    });
}

void AtmPwe3Block::onReadDone(uint32_t select, uint32_t address) {
    if (!readClear_) {
        return;
    }
    for (const Counter &c : kCounters) {
        if (c.select == select) {
            clearBits(select, address, c.startBit, c.width);
        }
    }
}

void AtmPwe3Block::clearBits(uint32_t select, uint32_t address, uint32_t startBit, uint32_t width) {
    TableEngine::Entry e = model_.tables().entry(kTableBlock, select, address);
    for (uint32_t bit = startBit; bit < startBit + width; ++bit) {
        e[bit / 16] = static_cast<uint16_t>(e[bit / 16] & ~(1u << (bit % 16)));
    }
    model_.tables().setEntry(kTableBlock, select, address, e);
}

// Entry layout: bit 0 end of packet, bits 1..2 byte count - 1 of a closing entry, bits 3..34 data with
// the first byte most significant.
void AtmPwe3Block::fillPacketBuffer() {
    uint32_t index = 0;
    auto put = [&](uint64_t data, uint32_t count, bool eof) {
        const uint64_t v = data << 3 | static_cast<uint64_t>(count - 1) << 1 | (eof ? 1u : 0u);
        TableEngine::Entry e{};
        e[0] = static_cast<uint16_t>(v);
        e[1] = static_cast<uint16_t>(v >> 16);
        e[2] = static_cast<uint16_t>(v >> 32);
        model_.tables().setEntry(kTableBlock, kSelPktBuf, index++, e);
    };
    for (const auto &p : packets_) {
        for (size_t k = 0; k < p.size() && index < kPktBufEntries; k += 4) {
            uint64_t word = 0;
            const uint32_t n = static_cast<uint32_t>(p.size() - k < 4 ? p.size() - k : 4);
            for (uint32_t b = 0; b < n; ++b) {
                word |= static_cast<uint64_t>(p[k + b]) << (24 - 8 * b);
            }
            put(word, n, k + 4 >= p.size());
        }
    }
    while (index < kPktBufEntries) {
        model_.tables().setEntry(kTableBlock, kSelPktBuf, index++, TableEngine::Entry{});
    }
    packets_.clear();
}

void AtmPwe3Block::queueCell(uint32_t side, const Cell &cell) {
    for (size_t k = 0; k < cell.size(); k += 4) {
        fifo_[side].push_back(static_cast<uint32_t>(cell[k]) << 24 |
                              static_cast<uint32_t>(cell[k + 1]) << 16 |
                              static_cast<uint32_t>(cell[k + 2]) << 8 | cell[k + 3]);
    }
}

}  // namespace vq6192::sim
