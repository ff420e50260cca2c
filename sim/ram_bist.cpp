// The RAM built-in self-test engine.
#include "vq6192/sim/ram_bist.h"

namespace vq6192::sim {
namespace {

constexpr uint32_t kClockSel = 0x62;
constexpr uint32_t kEnable = 0xA0;
constexpr uint32_t kStart = 0xA2;
constexpr uint32_t kDone = 0xA4;
constexpr uint32_t kFail = 0xA6;

}  // namespace

RamBistBlock::RamBistBlock(ChipModel &model) : model_(model) {
    model.onWrite(kStart, [this](uint32_t, uint16_t written, uint16_t) {
        if (written == 0) {
            stop();
        } else {
            start(written);
        }
        return written;
    });
    model.onWrite(kEnable, [this](uint32_t, uint16_t written, uint16_t) {
        if (written == 0) {
            stop();
        }
        return written;
    });
    model.onRead(kDone, [this](uint32_t, uint16_t stored) { return pollDone(stored); });
}

void RamBistBlock::start(uint16_t bits) {
    const uint16_t enabled = model_.peek(kEnable);
    for (uint32_t b = 0; b < kBlocks; ++b) {
        if (((bits & enabled) >> b & 1u) == 0) {
            continue;
        }
        running_[b] = true;
        left_[b] = runPolls_[b];
        runs_[b]++;
        clockAtStart_[b] = static_cast<uint16_t>(model_.peek(kClockSel) & 0xFFFu);
    }
}

void RamBistBlock::stop() {
    running_.fill(false);
    model_.poke(kDone, 0);
    model_.poke(kFail, 0);
}

uint16_t RamBistBlock::pollDone(uint16_t stored) {
    uint16_t done = stored;
    uint16_t fail = model_.peek(kFail);
    for (uint32_t b = 0; b < kBlocks; ++b) {
        if (!running_[b]) {
            continue;
        }
        if (left_[b] == kForever) {
            continue;
        }
        if (left_[b] > 0) {
            left_[b]--;
            continue;
        }
        running_[b] = false;
        done = static_cast<uint16_t>(done | 1u << b);
        if (fail_[b]) {
            fail = static_cast<uint16_t>(fail | 1u << b);
        }
    }
    model_.poke(kDone, done);
    model_.poke(kFail, fail);
    return done;
}

}  // namespace vq6192::sim
