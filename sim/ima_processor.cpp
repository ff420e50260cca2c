// Chip model: the IMA processor (see the header for what it covers).
#include "vq6192/sim/ima_processor.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kMbox = 0x4440;
constexpr uint16_t kBusy = 1u << 15, kAccepted = 1u << 14, kStart = 1u << 13;
constexpr uint32_t kMboxGroup = 0x4442, kMboxPara = 0x4444;
constexpr uint32_t kEventFetch = 0x4424;
constexpr uint16_t kEventRequest = 1u << 11, kEventBusy = 1u << 10;
constexpr uint32_t kEventPending = 0x442C, kFeRestart = 0x4422;
constexpr uint32_t kCaptureBusy = 0x4C3A;

// Processor select codes and the words of a group's status block.
constexpr uint32_t kSelTxs = 3, kSelRxs = 4, kSelGps = 5;
constexpr uint32_t kGpsPerGroup = 8;
constexpr uint32_t kGroupEnBit = 62, kTxValidBit = 32, kRxValidBit = 0;
constexpr uint32_t kLinkEnBit = 31;
constexpr uint32_t kNetxlsmBit = 27, kNetxlsmWidth = 4, kNetxDeleted = 1;
constexpr uint32_t kNerxlsmBit = 25, kNerxlsmWidth = 6, kNerxDeleted = 2;
constexpr uint32_t kTcSelTxImaif = 8, kDepthBit = 2, kDepthWidth = 10;

uint32_t countDown(uint32_t &n) {
    if (n != 0 && n != ImaProcessor::kForever) {
        --n;
        return n + 1;
    }
    return n;
}

}  // namespace

ImaProcessor::ImaProcessor(ChipModel &model) : model_(model) {
    model_.onWrite(kMbox, [this](uint32_t, uint16_t value, uint16_t old) {
        const uint16_t stored = static_cast<uint16_t>(value & ~(kBusy | kAccepted));
        if ((value & kStart) != 0 && (old & kStart) == 0) {
            execute((value >> 8) & 0x1F);
        }
        return stored;
    });
    model_.onRead(kMbox, [this](uint32_t, uint16_t stored) { return readMailbox(stored); });
    model_.onWrite(kEventFetch, [this](uint32_t, uint16_t value, uint16_t old) {
        uint16_t stored = static_cast<uint16_t>(value & ~kEventBusy);
        if ((value & kEventRequest) != 0 && (old & kEventRequest) == 0) {
            stored = static_cast<uint16_t>((stored & ~0x1FFu) | (pendingGroup_ & 0x1FFu));
        }
        return stored;
    });
    model_.onRead(kEventFetch, [this](uint32_t, uint16_t stored) {
        const bool busy = countDown(eventBusy_) != 0;
        return static_cast<uint16_t>(busy ? (stored | kEventBusy) : (stored & ~kEventBusy));
    });
    model_.onRead(kCaptureBusy, [this](uint32_t, uint16_t stored) {
        const bool busy = countDown(captureBusy_) != 0;
        return static_cast<uint16_t>(busy ? (stored | 1u) : (stored & ~1u));
    });
    model_.tables().addReadHooks([this](uint32_t b, uint32_t s, uint32_t a) { beforeRead(b, s, a); },
                                 [this](uint32_t b, uint32_t s, uint32_t a) { afterRead(b, s, a); });
}

uint16_t ImaProcessor::readMailbox(uint16_t stored) {
    bool busy = countDown(holdBusy_) != 0;
    if (!busy && busyLeft_ != 0) {
        --busyLeft_;
        busy = true;
    }
    uint16_t v = static_cast<uint16_t>(stored & ~(kBusy | kAccepted));
    if (busy) {
        v |= kBusy;
    }
    if (accepted_) {
        v |= kAccepted;
    }
    return v;
}

void ImaProcessor::execute(uint32_t code) {
    auto para = [this](uint32_t i) {
        return static_cast<uint32_t>(model_.peek(kMboxPara + 4 * i)) |
               (static_cast<uint32_t>(model_.peek(kMboxPara + 4 * i + 2)) << 16);
    };
    const uint32_t group = model_.peek(kMboxGroup) & 0x1FFu;
    const Command c{code, group, para(0), para(1), para(2)};
    commands_.push_back(c);
    busyLeft_ = commandBusy_;
    accepted_ = countDown(refuse_) == 0;
    if (!accepted_) {
        return;
    }
    const uint32_t gps = group * kGpsPerGroup;
    auto orBits = [&](uint32_t word, uint32_t bit, uint32_t v, bool add) {
        const uint64_t old = entryBits(kProcBlock, kSelGps, gps + word, bit, 32);
        setEntryBits(kProcBlock, kSelGps, gps + word, bit, 32, add ? (old | v) : (old & ~uint64_t{v}));
    };
    switch (code) {
        case 0:  // add_group: an IMA group with its link vectors
            setEntryBits(kProcBlock, kSelGps, gps, kGroupEnBit, 2, 3);
            setEntryBits(kProcBlock, kSelGps, gps + 2, kTxValidBit, 32, c.para1);
            setEntryBits(kProcBlock, kSelGps, gps + 3, kRxValidBit, 32, c.para2);
            break;
        case 1:   // delete_group
        case 13:  // delete of a UNI or VC-4 group
            setEntryBits(kProcBlock, kSelGps, gps, kGroupEnBit, 2, 0);
            break;
        case 8:  // start_lasr
            orBits(2, kTxValidBit, c.para1, true);
            orBits(3, kRxValidBit, c.para2, true);
            break;
        case 9:  // delete_link
            orBits(2, kTxValidBit, c.para1, false);
            orBits(3, kRxValidBit, c.para2, false);
            break;
        default:
            break;
    }
}

void ImaProcessor::setDrainReads(uint32_t reads) {
    draining_ = true;
    drainReads_ = reads;
}

void ImaProcessor::raiseEvent(uint32_t group, bool feRestart) {
    pendingGroup_ = group;
    model_.poke(kEventPending, static_cast<uint16_t>(model_.peek(kEventPending) | 2u));
    if (feRestart) {
        model_.poke(kFeRestart, static_cast<uint16_t>(model_.peek(kFeRestart) | 2u));
    }
}

uint64_t ImaProcessor::entryBits(uint32_t block, uint32_t select, uint32_t address, uint32_t startBit,
                                 uint32_t width) const {
    const TableEngine::Entry e = const_cast<ChipModel &>(model_).tables().entry(block, select, address);
    uint64_t v = 0;
    for (uint32_t i = 0; i < width; ++i) {
        const uint32_t b = startBit + i;
        if (i < 64) {
            v |= static_cast<uint64_t>((e[b / 16] >> (b % 16)) & 1u) << i;
        }
    }
    return v;
}

void ImaProcessor::setEntryBits(uint32_t block, uint32_t select, uint32_t address, uint32_t startBit,
                                uint32_t width, uint64_t value) {
    TableEngine::Entry e = model_.tables().entry(block, select, address);
    for (uint32_t i = 0; i < width; ++i) {
        const uint32_t b = startBit + i;
        const uint16_t mask = static_cast<uint16_t>(1u << (b % 16));
        const bool one = i < 64 && ((value >> i) & 1u) != 0;
        e[b / 16] = static_cast<uint16_t>(one ? (e[b / 16] | mask) : (e[b / 16] & ~mask));
    }
    model_.tables().setEntry(block, select, address, e);
}

void ImaProcessor::beforeRead(uint32_t block, uint32_t select, uint32_t address) {
    if (block == kTcBlock && select == kTcSelTxImaif && draining_) {
        const bool full = countDown(drainReads_) != 0;
        setEntryBits(block, select, address, kDepthBit, kDepthWidth, full ? 5 : 0);
        draining_ = full;
        return;
    }
    if (block != kProcBlock || (select != kSelTxs && select != kSelRxs) || address % 2 != 0) {
        return;
    }
    // A link set to Deleted leaves the group once the processor has seen it for deleteReads_ reads.
    const bool tx = select == kSelTxs;
    const uint32_t state = static_cast<uint32_t>(entryBits(
        block, select, address, tx ? kNetxlsmBit : kNerxlsmBit, tx ? kNetxlsmWidth : kNerxlsmWidth));
    if (entryBits(block, select, address, kLinkEnBit, 1) == 0 ||
        state != (tx ? kNetxDeleted : kNerxDeleted)) {
        return;
    }
    const uint64_t key = (static_cast<uint64_t>(select) << 32) | address;
    auto it = deleteLeft_.try_emplace(key, deleteReads_).first;
    if (countDown(it->second) == 0) {
        setEntryBits(block, select, address, kLinkEnBit, 1, 0);
        deleteLeft_.erase(it);
    }
}

void ImaProcessor::afterRead(uint32_t block, uint32_t select, uint32_t address) {
    // Read-clear counters: receive link and UNI counters, group counters, transmit group counters
    // (words 1..3), transmit link counters (word 1), TC receive counters and the cell counter of the
    // second receive state word, the TC transmit cell counter.
    const bool clearAll = (block == kRxBlock && (select == 0 || select == 12)) ||
                          (block == kTxBlock && select == 0 && address % 8 >= 1 && address % 8 <= 3) ||
                          (block == kTxBlock && select == 4 && address % 2 == 1);
    if (clearAll) {
        model_.tables().setEntry(block, select, address, TableEngine::Entry{});
    } else if (block == kTcBlock && select == 2) {
        setEntryBits(block, select, address, 0, 80, 0);
    } else if (block == kTcBlock && select == 3) {
        setEntryBits(block, select, address, 0, 32, 0);
    } else if (block == kTcBlock && select == 7) {
        setEntryBits(block, select, address, 54, 32, 0);
    }
}

}  // namespace vq6192::sim
