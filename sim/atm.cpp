// Chip model of the ATM switch's handshakes and FIFOs, from the chip's register map.
#include "vq6192/sim/atm.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kQmDelCmd = 0xA860;
constexpr uint32_t kQmDelStat = 0xA862;
constexpr uint16_t kCmdMask = 3u << 14;
constexpr uint32_t kReportNotEmpty = 0xA262;
constexpr uint32_t kFifoClear = 0xA2CA;

// Entry bits of the tables behind the moving parts.
constexpr uint32_t kQmLenBit = 27;
constexpr uint32_t kQmLenWidth = 19;
constexpr uint32_t kCclocBit = 26;
constexpr uint32_t kSocBit = 32;
constexpr uint32_t kEocBit = 33;

}  // namespace

AtmBlock::AtmBlock(ChipModel &model) : model_(model) {
    model_.onWrite(kQmDelCmd, [this](uint32_t, uint16_t value, uint16_t old) {
        const bool start = (value & kCmdMask) == kCmdMask;
        if (start && (old & kCmdMask) != kCmdMask) {
            deleting_ = true;
            ackLeft_ = ackPolls_;
            deletes_.push_back({value & 0x1FFFu, (value >> 13 & 1u) != 0});
        } else if ((value & kCmdMask) == 0) {
            deleting_ = false;
        }
        return value;
    });
    model_.onRead(kQmDelStat, [this](uint32_t, uint16_t stored) {
        if (!deleting_) {
            return static_cast<uint16_t>(stored & ~kCmdMask);
        }
        if (ackLeft_ == 0) {
            return static_cast<uint16_t>(stored | kCmdMask);
        }
        if (ackLeft_ != kForever) {
            ackLeft_--;
        }
        return static_cast<uint16_t>(stored & ~kCmdMask);
    });
    model_.onRead(kReportNotEmpty, [this](uint32_t, uint16_t stored) {
        return static_cast<uint16_t>((stored & ~3u) | (report_.empty() ? 0u : 1u));
    });
    model_.onWrite(kFifoClear, [this](uint32_t, uint16_t value, uint16_t old) {
        const uint16_t rising = static_cast<uint16_t>(value & ~old);
        for (uint32_t bit = 0; bit < pulses_.size(); ++bit) {
            if ((rising >> bit & 1u) != 0) {
                pulses_[bit]++;
            }
        }
        if ((rising & 1u) != 0) {
            inserted_.clear();
        }
        if ((rising & 2u) != 0) {
            report_.clear();
        }
        return value;
    });
    model_.tables().onTableCommand(kTableBlock, [this](uint32_t select, uint32_t address, bool write) {
        onTable(select, address, write);
    });
}

void AtmBlock::onTable(uint32_t select, uint32_t address, bool write) {
    if (write && select == kSelInsertFifo) {
        inserted_.push_back({entryBits(select, address, 0, 16) | entryBits(select, address, 16, 16) << 16,
                             entryBits(select, address, kSocBit, 1) != 0,
                             entryBits(select, address, kEocBit, 1) != 0});
        return;
    }
    if (write) {
        return;
    }
    // A FIFO with nothing queued leaves its read entry as it is.
    if (select == kSelReportFifo) {
        if (!report_.empty()) {
            loadFifoWord(select, address, report_.front());
            report_.pop_front();
        }
    } else if (select == kSelVcxFifo) {
        if (!vcxFifo_.empty()) {
            TableEngine::Entry e{};
            e[0] = static_cast<uint16_t>(vcxFifo_.front() & 0x1FFFu);
            vcxFifo_.pop_front();
            model_.tables().setEntry(kTableBlock, select, address, e);
        }
    } else if (select == kSelLinkQm) {
        auto it = drains_.find(address);
        if (it == drains_.end()) {
            return;
        }
        it->second.reads++;
        if (it->second.readsLeft == 0) {
            setEntryBits(select, address, kQmLenBit, kQmLenWidth, 0);
        } else if (it->second.readsLeft != kForever) {
            it->second.readsLeft--;
        }
    }
}

void AtmBlock::loadFifoWord(uint32_t select, uint32_t address, FifoWord w) {
    TableEngine::Entry e{};
    e[0] = static_cast<uint16_t>(w.data);
    e[1] = static_cast<uint16_t>(w.data >> 16);
    e[2] = static_cast<uint16_t>((w.soc ? 1u : 0u) | (w.eoc ? 2u : 0u));
    model_.tables().setEntry(kTableBlock, select, address, e);
}

void AtmBlock::setEntryBits(uint32_t select, uint32_t address, uint32_t startBit, uint32_t width,
                            uint32_t value) {
    TableEngine::Entry e = model_.tables().entry(kTableBlock, select, address);
    for (uint32_t i = 0; i < width; ++i) {
        const uint32_t bit = startBit + i;
        const uint16_t mask = static_cast<uint16_t>(1u << (bit % 16));
        e[bit / 16] =
            static_cast<uint16_t>((value >> i & 1u) != 0 ? (e[bit / 16] | mask) : (e[bit / 16] & ~mask));
    }
    model_.tables().setEntry(kTableBlock, select, address, e);
}

uint32_t AtmBlock::entryBits(uint32_t select, uint32_t address, uint32_t startBit, uint32_t width) const {
    const TableEngine::Entry e = model_.tables().entry(kTableBlock, select, address);
    uint32_t v = 0;
    for (uint32_t i = 0; i < width; ++i) {
        const uint32_t bit = startBit + i;
        v |= static_cast<uint32_t>(e[bit / 16] >> (bit % 16) & 1u) << i;
    }
    return v;
}

void AtmBlock::setQueueLength(uint32_t queue, uint32_t cells, uint32_t reads) {
    setEntryBits(kSelLinkQm, queue, kQmLenBit, kQmLenWidth, cells);
    drains_[queue] = {reads, 0};
}

uint64_t AtmBlock::queueReads(uint32_t queue) const {
    auto it = drains_.find(queue);
    return it == drains_.end() ? 0 : it->second.reads;
}

void AtmBlock::reportCell(uint16_t vcx, const std::array<uint8_t, 53> &cell) {
    report_.push_back({vcx, true, false});
    report_.push_back({0xFFFFFFFFu, false, false});  // the second word carries nothing
    for (uint32_t k = 0; k < 13; ++k) {
        const uint8_t *b = cell.data() + 4 * k;
        report_.push_back({static_cast<uint32_t>(b[0]) << 24 | static_cast<uint32_t>(b[1]) << 16 |
                               static_cast<uint32_t>(b[2]) << 8 | b[3],
                           false, false});
    }
    report_.push_back({static_cast<uint32_t>(cell[52]) << 24, false, true});
}

void AtmBlock::setCcloc(uint32_t vcx, bool lost) {
    setEntryBits(kSelOamStatus, vcx, kCclocBit, 1, lost ? 1 : 0);
}

}  // namespace vq6192::sim
