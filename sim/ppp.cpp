// The PPP and multilink block: the reset engine shared by channel and bundle resets, the group reset
// request and acknowledge registers, the egress MC queue counts that drain, the DDR capture records,
// and the COBC and FIFO frame capture registers.
#include "vq6192/sim/ppp.h"

#include "vq6192/sim/ddr.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kResetReady = 0x12202;
constexpr uint32_t kChanReset = 0x12216;
constexpr uint16_t kChanStrobe = 0x800;
constexpr uint32_t kBundleReset = 0x12218;
constexpr uint16_t kBundleStrobe = 0x100;
constexpr uint32_t kGroupReq = 0x13080;
constexpr uint32_t kGroupAck = 0x130A0;
constexpr uint32_t kGroupRegs = 16;

// Table block 0x8000: select register, address register, first read-data register (byte addresses).
constexpr uint32_t kTabSelect = 0x8002 * 2;
constexpr uint32_t kTabAddress = 0x8003 * 2;
constexpr uint32_t kTabReadData = 0x8008 * 2;
constexpr uint32_t kTabBlock = 0x8000;
constexpr uint32_t kMcqstSelect = 17;

constexpr uint32_t kCobcRead = 0x11018;
constexpr uint32_t kCobcReady = 0x1101C;
constexpr uint32_t kCobcData = 0x1101E;
constexpr uint32_t kCobcFlags = 0x11020;

constexpr uint32_t kFifoCtrl = 0x1300C;
constexpr uint16_t kFifoStart = 0x2;
constexpr uint32_t kFifoReady = 0x13010;
constexpr uint32_t kFifoRead = 0x13014;
constexpr uint32_t kFifoAck = 0x13016;
constexpr uint32_t kFifoData0 = 0x13018;
constexpr uint32_t kFifoData1 = 0x1301A;
constexpr uint32_t kFifoFlags = 0x1301C;

bool rising(uint16_t written, uint16_t old, uint16_t bit) {
    return (written & bit) != 0 && (old & bit) == 0;
}

}  // namespace

PppBlock::PppBlock(ChipModel &model) : model_(model) {
    model.onRead(kResetReady, [this](uint32_t, uint16_t stored) { return readReady(stored); });
    model.onWrite(kChanReset, [this](uint32_t, uint16_t written, uint16_t old) {
        if (rising(written, old, kChanStrobe)) {
            strobe(channelResets_, written & 0x7FFu);
        }
        return written;
    });
    model.onWrite(kBundleReset, [this](uint32_t, uint16_t written, uint16_t old) {
        if (rising(written, old, kBundleStrobe)) {
            strobe(bundleResets_, written & 0xFFu);
        }
        return written;
    });
    for (uint32_t r = 0; r < kGroupRegs; ++r) {
        model.onWrite(kGroupReq + 2 * r, [this, r](uint32_t, uint16_t written, uint16_t old) {
            for (uint32_t bit = 0; bit < 16; ++bit) {
                if (rising(written, old, static_cast<uint16_t>(1u << bit))) {
                    groupResets_.push_back(16 * r + bit);
                    ackWait_[16 * r + bit] = ackDelay_;
                }
            }
            return written;
        });
        // The acknowledge follows the request bits, after the delay, except for refused bundles.
        model.onRead(kGroupAck + 2 * r, [this, r](uint32_t, uint16_t) {
            const uint16_t req = model_.peek(kGroupReq + 2 * r);
            uint16_t ack = 0;
            for (uint32_t bit = 0; bit < 16; ++bit) {
                const uint32_t b = 16 * r + bit;
                if ((req >> bit & 1u) == 0 || refused_[b]) {
                    continue;
                }
                if (ackWait_[b] > 0) {
                    ackWait_[b]--;
                    continue;
                }
                ack = static_cast<uint16_t>(ack | (1u << bit));
            }
            return ack;
        });
    }
    model.onRead(kTabReadData, [this](uint32_t, uint16_t stored) {
        if (model_.peek(kTabSelect) != kMcqstSelect) {
            return stored;
        }
        const uint32_t entry = model_.peek(kTabAddress);
        auto it = drainReads_.find(entry);
        if (it != drainReads_.end() && it->second != kForever && --it->second == 0) {
            model_.tables().setEntry(kTabBlock, kMcqstSelect, entry, TableEngine::Entry{});
            drainReads_.erase(it);
        }
        return stored;
    });
    model.onRead(kCobcReady, [this](uint32_t, uint16_t stored) -> uint16_t {
        if (cobcReadyHold_ > 0) {
            --cobcReadyHold_;
            return 0;
        }
        return stored;
    });
    model.onWrite(kCobcRead, [this](uint32_t, uint16_t written, uint16_t old) {
        if (rising(written, old, 1)) {
            if (cobcMisses_ > 0 || cobc_.empty()) {
                if (cobcMisses_ > 0) {
                    cobcMisses_--;
                }
                model_.poke(kCobcReady, 0);
            } else {
                model_.poke(kCobcData, cobc_.front().data);
                model_.poke(kCobcFlags, cobc_.front().flags);
                model_.poke(kCobcReady, 1);
                cobc_.pop_front();
            }
        }
        return written;
    });
    model.onWrite(kFifoCtrl, [this](uint32_t, uint16_t written, uint16_t old) {
        if (rising(written, old, kFifoStart)) {
            model_.poke(kFifoReady, fifoReady_ && !fifo_.empty() ? 1 : 0);
        }
        return written;
    });
    model.onWrite(kFifoRead, [this](uint32_t, uint16_t written, uint16_t old) {
        if (rising(written, old, 1)) {
            if (fifo_.empty() || fifoAckWords_ == 0) {
                model_.poke(kFifoAck, 0);
            } else {
                if (fifoAckWords_ != kForever) {
                    fifoAckWords_--;
                }
                model_.poke(kFifoData1, fifo_.front()[0]);
                model_.poke(kFifoData0, fifo_.front()[1]);
                model_.poke(kFifoFlags, fifo_.front()[2]);
                model_.poke(kFifoAck, 1);
                fifo_.pop_front();
            }
        }
        return written;
    });
}

uint16_t PppBlock::readReady(uint16_t stored) {
    if (notReady_ > 0) {
        if (notReady_ != kForever) {
            notReady_--;
        }
        return static_cast<uint16_t>(stored & ~1u);
    }
    return static_cast<uint16_t>(stored | 1u);
}

void PppBlock::strobe(std::vector<uint32_t> &log, uint32_t value) {
    log.push_back(value);
    if (resetBusy_ > notReady_) {
        notReady_ = resetBusy_;
    }
}

void PppBlock::fillQueue(uint32_t bundle, uint32_t q, uint32_t blocks, uint32_t drainAfterReads) {
    const uint32_t entry = 8 * bundle + q;
    TableEngine::Entry e{};
    // Cnt: entry bits 1..20.
    const uint32_t bits = (blocks & 0xFFFFFu) << 1;
    e[0] = static_cast<uint16_t>(bits & 0xFFFFu);
    e[1] = static_cast<uint16_t>(bits >> 16);
    model_.tables().setEntry(kTabBlock, kMcqstSelect, entry, e);
    if (blocks != 0) {
        drainReads_[entry] = drainAfterReads;
    } else {
        drainReads_.erase(entry);
    }
}

void PppBlock::putCaptureBlock(uint32_t addr, const DdrBlockWords &words) {
    DdrBlock &ddr = model_.block<DdrBlock>();
    for (uint32_t k = 0; k < 32; ++k) {
        // The block read reverses the four words of every 64-bit group.
        const uint32_t stored = (k & ~3u) + 3 - (k & 3u);
        ddr.setWord(addr + 2 * stored, words[k]);
    }
}

uint32_t PppBlock::putIngressFrame(uint32_t addr, const std::vector<uint8_t> &frame, uint32_t reportedLen,
                                   bool withEnd) {
    const uint32_t len = reportedLen == UINT32_MAX ? static_cast<uint32_t>(frame.size()) : reportedLen;
    size_t pos = 0;
    bool first = true;
    do {
        DdrBlockWords w{};
        for (uint32_t k = 0; k < 56 && pos < frame.size(); ++k, ++pos) {
            const uint32_t byte = 4 + k;
            w[byte / 2] = static_cast<uint16_t>(w[byte / 2] | (byte % 2 == 0 ? frame[pos] << 8 : frame[pos]));
        }
        if (first) {
            w[1] = static_cast<uint16_t>(w[1] | 0x2);
        }
        if (pos >= frame.size() && withEnd) {
            w[1] = static_cast<uint16_t>(w[1] | 0x1 | (len & 0x3FFu) << 6);
            w[0] = static_cast<uint16_t>(w[0] | (len >> 16 & 1u));
        }
        putCaptureBlock(addr, w);
        addr += 64;
        first = false;
    } while (pos < frame.size());
    return addr;
}

uint32_t PppBlock::putEgressFrame(uint32_t addr, const std::vector<uint8_t> &frame) {
    size_t pos = 0;
    bool first = true;
    do {
        DdrBlockWords w{};
        const uint32_t from = first ? 8 : 4;
        uint32_t n = 0;
        for (; from + n < 64 && pos < frame.size(); ++n, ++pos) {
            const uint32_t byte = from + n;
            w[byte / 2] = static_cast<uint16_t>(w[byte / 2] | (byte % 2 == 0 ? frame[pos] << 8 : frame[pos]));
        }
        w[0] = static_cast<uint16_t>(w[0] | (n & 0x3Fu) << 4);
        if (first) {
            w[0] = static_cast<uint16_t>(w[0] | 0x8000);
        }
        if (pos >= frame.size() && !first) {
            w[0] = static_cast<uint16_t>(w[0] | 0x4000);
        }
        putCaptureBlock(addr, w);
        addr += 64;
        first = false;
    } while (pos < frame.size());
    return addr;
}

void PppBlock::loadCobcWords(const std::vector<CobcWord> &words) {
    cobc_.assign(words.begin(), words.end());
    model_.poke(kCobcReady, cobc_.empty() ? 0 : 1);
}

void PppBlock::loadFifoFrame(const std::vector<uint8_t> &frame) {
    fifo_.clear();
    for (size_t pos = 0; pos < frame.size(); pos += 4) {
        const size_t n = frame.size() - pos < 4 ? frame.size() - pos : 4;
        uint8_t b[4] = {};
        for (size_t k = 0; k < n; ++k) {
            b[k] = frame[pos + k];
        }
        uint16_t flags = static_cast<uint16_t>(n - 1);
        if (pos + 4 >= frame.size()) {
            flags = static_cast<uint16_t>(flags | 0x4);
        }
        fifo_.push_back(
            {static_cast<uint16_t>(b[0] << 8 | b[1]), static_cast<uint16_t>(b[2] << 8 | b[3]), flags});
    }
}

}  // namespace vq6192::sim
