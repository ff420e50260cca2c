// The DDR controller and the DDR memory: the 9-step scan engine, the 64-byte block engine over a
// sparse memory with data-line and address-line faults, and the latched ECC flags.
#include "vq6192/sim/ddr.h"

#include <utility>

namespace vq6192::sim {
namespace {

constexpr uint32_t kTestMode = 0xC000;
constexpr uint32_t kScanStart = 0xC020;
constexpr uint32_t kScanMaxHigh = 0xC022;
constexpr uint32_t kScanMaxLow = 0xC024;
constexpr uint32_t kScanPattern = 0xC026;
constexpr uint32_t kScanStatus = 0xC036;
constexpr uint16_t kScanStatusBits = 0x73;  // done, error, step
constexpr uint32_t kScanErrHigh = 0xC038;
constexpr uint32_t kScanErrLow = 0xC03A;
constexpr uint32_t kScanErrRead = 0xC040;
constexpr uint32_t kScanExpRead = 0xC048;

constexpr uint32_t kTabStatus = 0xC060;
constexpr uint32_t kTabCtrl = 0xC062;
constexpr uint16_t kTabWrite = 1u << 0;
constexpr uint16_t kTabRead = 1u << 4;
constexpr uint32_t kTabAddrHigh = 0xC064;
constexpr uint32_t kTabAddrLow = 0xC066;
constexpr uint32_t kTabLength = 0xC068;
constexpr uint32_t kTabWData = 0xC080;
constexpr uint32_t kTabRData = 0xC0C0;

constexpr uint32_t kEccState = 0xD000;
constexpr uint32_t kEccClear = 0xD00C;
constexpr uint16_t kEccBits = 0xF0;

constexpr uint32_t kMemoryMask = 0x0FFFFFFF;

// Address bit of a line in the row (bank) phase and in the column phase, -1 for none.
int rowBit(uint32_t line) {
    return line < 13 ? static_cast<int>(15 + line) : static_cast<int>(12 + line - 13);
}
int colBit(uint32_t line) {
    return line >= 3 && line <= 9 ? static_cast<int>(line + 2) : -1;
}

}  // namespace

DdrBlock::DdrBlock(ChipModel &model) : model_(model) {
    dataStuck_.fill(-1);
    addrStuck_.fill(-1);
    model.onWrite(kTabCtrl, [this](uint32_t, uint16_t written, uint16_t old) {
        const uint16_t rising = static_cast<uint16_t>(written & ~old);
        if ((rising & kTabWrite) != 0) {
            blockWrite();
        }
        if ((rising & kTabRead) != 0) {
            blockRead();
        }
        return written;
    });
    model.onRead(kTabStatus, [this](uint32_t, uint16_t stored) { return pollBusy(stored); });
    model.onWrite(kScanStart, [this](uint32_t, uint16_t written, uint16_t old) {
        if ((written & 1u) != 0 && (old & 1u) == 0 && (model_.peek(kTestMode) & 1u) != 0) {
            startScan();
        } else if ((written & 1u) == 0) {
            scanRunning_ = false;
        }
        return written;
    });
    model.onWrite(kTestMode, [this](uint32_t, uint16_t written, uint16_t) {
        if ((written & 1u) == 0) {
            scanRunning_ = false;
        }
        return written;
    });
    model.onRead(kScanStatus, [this](uint32_t, uint16_t stored) { return pollScan(stored); });
    model.onWrite(kEccClear, [this](uint32_t, uint16_t written, uint16_t) {
        model_.poke(kEccState, static_cast<uint16_t>(model_.peek(kEccState) & ~(written & kEccBits)));
        return written;
    });
}

uint16_t DdrBlock::word(uint32_t addr) const {
    auto it = memory_.find((addr & kMemoryMask) >> 1);
    return it == memory_.end() ? 0 : it->second;
}

void DdrBlock::setWord(uint32_t addr, uint16_t value) {
    memory_[(addr & kMemoryMask) >> 1] = value;
}

void DdrBlock::stickDataLine(uint32_t line, bool value) {
    dataStuck_.at(line) = value ? 1 : 0;
}

void DdrBlock::shortDataLines(uint32_t a, uint32_t b, Short kind) {
    dataShorts_.push_back({a % kDataLines, b % kDataLines, kind});
}

void DdrBlock::stickAddressLine(uint32_t line, bool value) {
    addrStuck_.at(line) = value ? 1 : 0;
}

void DdrBlock::shortAddressLines(uint32_t a, uint32_t b, Short kind) {
    addrShorts_.push_back({a % kAddressLines, b % kAddressLines, kind});
}

void DdrBlock::clearFaults() {
    dataStuck_.fill(-1);
    addrStuck_.fill(-1);
    dataShorts_.clear();
    addrShorts_.clear();
    readFilter_ = nullptr;
    stallAfter_ = kForever;
}

uint32_t DdrBlock::physical(uint32_t addr) const {
    uint32_t a = addr & kMemoryMask;
    for (int (*bitOf)(uint32_t) : {rowBit, colBit}) {
        auto get = [&](uint32_t line) { return (a >> bitOf(line)) & 1u; };
        auto put = [&](uint32_t line, uint32_t v) { a = (a & ~(1u << bitOf(line))) | (v << bitOf(line)); };
        for (const DataShort &s : addrShorts_) {
            if (bitOf(s.a) < 0 || bitOf(s.b) < 0) {
                continue;
            }
            const uint32_t v = s.kind == Short::And ? (get(s.a) & get(s.b)) : (get(s.a) | get(s.b));
            put(s.a, v);
            put(s.b, v);
        }
        for (uint32_t line = 0; line < kAddressLines; ++line) {
            if (addrStuck_[line] >= 0 && bitOf(line) >= 0) {
                put(line, static_cast<uint32_t>(addrStuck_[line]));
            }
        }
    }
    return a;
}

void DdrBlock::dataBus(std::array<uint16_t, 4> &lanes, uint32_t present) const {
    for (uint32_t beat = 0; beat < 2; ++beat) {
        uint32_t v = 0;
        for (uint32_t lane = 0; lane < 4; ++lane) {
            v |= ((lanes[lane] >> (8 * beat)) & 0xFFu) << (8 * lane);
        }
        for (const DataShort &s : dataShorts_) {
            if ((present >> (s.a / 8) & 1u) == 0 || (present >> (s.b / 8) & 1u) == 0) {
                continue;
            }
            const uint32_t x = (v >> s.a) & 1u;
            const uint32_t y = (v >> s.b) & 1u;
            const uint32_t r = s.kind == Short::And ? (x & y) : (x | y);
            v = (v & ~(1u << s.a) & ~(1u << s.b)) | (r << s.a) | (r << s.b);
        }
        for (uint32_t line = 0; line < kDataLines; ++line) {
            if (dataStuck_[line] >= 0) {
                v = (v & ~(1u << line)) | (static_cast<uint32_t>(dataStuck_[line]) << line);
            }
        }
        for (uint32_t lane = 0; lane < 4; ++lane) {
            if ((present >> lane & 1u) == 0) {
                continue;
            }
            const uint32_t shift = 8 * beat;
            const uint32_t byte = (v >> (8 * lane)) & 0xFFu;
            lanes[lane] = static_cast<uint16_t>((lanes[lane] & ~(0xFFu << shift)) | (byte << shift));
        }
    }
}

uint32_t DdrBlock::blockAddr() const {
    return static_cast<uint32_t>(model_.peek(kTabAddrHigh)) << 16 | model_.peek(kTabAddrLow);
}

// The length register holds the byte count less one.
uint32_t DdrBlock::blockWordCount() const {
    const uint32_t bytes = (model_.peek(kTabLength) & 0x3Fu) + 1;
    return (bytes + 1) / 2;
}

// The words of a block, group by group: each 64-bit group crosses the data lines together.
template <typename Fn>
static void forEachGroup(uint32_t addr, uint32_t words, Fn fn) {
    uint32_t k = 0;
    while (k < words) {
        const uint32_t group = (addr + 2 * k) & ~7u;
        std::array<uint32_t, 4> index{};
        uint32_t present = 0;
        for (; k < words && ((addr + 2 * k) & ~7u) == group; ++k) {
            const uint32_t lane = ((addr + 2 * k) >> 1) & 3u;
            index[lane] = k;
            present |= 1u << lane;
        }
        fn(group, present, index);
    }
}

uint32_t DdrBlock::commandBusy() {
    if (stallAfter_ == kForever) {
        return commandBusy_;
    }
    if (stallAfter_ == 0) {
        return kForever;
    }
    stallAfter_--;
    return commandBusy_;
}

void DdrBlock::blockWrite() {
    blockWrites_++;
    writeBusyLeft_ = commandBusy();
    const uint32_t addr = blockAddr();
    forEachGroup(addr, blockWordCount(),
                 [&](uint32_t group, uint32_t present, const std::array<uint32_t, 4> &index) {
                     std::array<uint16_t, 4> lanes{};
                     for (uint32_t lane = 0; lane < 4; ++lane) {
                         if ((present >> lane & 1u) != 0) {
                             lanes[lane] = model_.peek(kTabWData + 2 * index[lane]);
                         }
                     }
                     dataBus(lanes, present);
                     for (uint32_t lane = 0; lane < 4; ++lane) {
                         if ((present >> lane & 1u) != 0) {
                             memory_[physical(group + 2 * lane) >> 1] = lanes[lane];
                         }
                     }
                 });
}

void DdrBlock::blockRead() {
    blockReads_++;
    readBusyLeft_ = commandBusy();
    const uint32_t addr = blockAddr();
    const uint32_t words = blockWordCount();
    Block block{};
    forEachGroup(addr, words, [&](uint32_t group, uint32_t present, const std::array<uint32_t, 4> &index) {
        std::array<uint16_t, 4> lanes{};
        for (uint32_t lane = 0; lane < 4; ++lane) {
            if ((present >> lane & 1u) != 0) {
                lanes[lane] = word(physical(group + 2 * lane));
            }
        }
        dataBus(lanes, present);
        for (uint32_t lane = 0; lane < 4; ++lane) {
            if ((present >> lane & 1u) != 0) {
                block[index[lane]] = lanes[lane];
            }
        }
    });
    if (readFilter_) {
        readFilter_(addr, words, block);
    }
    for (uint32_t k = 0; k < kBlockWords; ++k) {
        model_.poke(kTabRData + 2 * k, block[k]);
    }
}

uint16_t DdrBlock::pollBusy(uint16_t stored) {
    uint16_t busy = 0;
    for (auto [left, bit] : {std::pair<uint32_t *, uint16_t>{&writeBusyLeft_, 1}, {&readBusyLeft_, 2}}) {
        if (*left == 0) {
            continue;
        }
        busy = static_cast<uint16_t>(busy | bit);
        if (*left != kForever) {
            (*left)--;
        }
    }
    return static_cast<uint16_t>(stored | busy);
}

void DdrBlock::failScan(uint32_t addr, uint16_t step, const std::array<uint16_t, 4> &read) {
    scanFails_ = true;
    scanErrAddr_ = addr;
    scanErrStep_ = step;
    scanErrRead_ = read;
}

void DdrBlock::startScan() {
    scansStarted_++;
    for (uint32_t k = 0; k < 4; ++k) {
        scanPattern_[k] = model_.peek(kScanPattern + 2 * k);
    }
    scanMaxAddr_ = static_cast<uint32_t>(model_.peek(kScanMaxHigh)) << 16 | model_.peek(kScanMaxLow);
    scanRunning_ = true;
    scanLeft_ = scanPolls_;
    model_.poke(kScanStatus, static_cast<uint16_t>(model_.peek(kScanStatus) & ~kScanStatusBits));
}

uint16_t DdrBlock::pollScan(uint16_t stored) {
    if (!scanRunning_ || scanLeft_ == kForever) {
        return stored;
    }
    if (scanLeft_ > 1) {
        scanLeft_--;
        return stored;
    }
    scanRunning_ = false;
    uint16_t status = 1;
    if (scanFails_) {
        status = static_cast<uint16_t>(status | 2u | (scanErrStep_ & 7u) << 4);
        model_.poke(kScanErrHigh, static_cast<uint16_t>(scanErrAddr_ >> 16));
        model_.poke(kScanErrLow, static_cast<uint16_t>(scanErrAddr_ & 0xFFFFu));
        for (uint32_t k = 0; k < 4; ++k) {
            model_.poke(kScanErrRead + 2 * k, scanErrRead_[k]);
            model_.poke(kScanExpRead + 2 * k, scanPattern_[k]);
        }
    }
    const uint16_t value = static_cast<uint16_t>((stored & ~kScanStatusBits) | status);
    model_.poke(kScanStatus, value);
    return value;
}

void DdrBlock::raiseEcc(uint16_t bits) {
    model_.poke(kEccState, static_cast<uint16_t>(model_.peek(kEccState) | (bits & kEccBits)));
}

}  // namespace vq6192::sim
