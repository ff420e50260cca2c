// A chip on the model for the ATM tests: entries of the ATM tables by select code, read and set bit
// by bit as the chip documentation numbers them, and the chip's ATM status codes.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/atm.h"
#include "vq6192/sim/atm.h"

namespace atmtest {

// Select codes of the ATM tables in the chip's ATM access block.
constexpr uint32_t kVct = 0, kPolCfg = 4, kLpct = 5, kSpct = 7, kOamSt = 9, kTcam = 10, kBmPvc = 16,
                   kBmTh = 17, kBmFifo = 19, kLinkQm = 48, kShVc = 49, kRtVbrShap = 50, kNrtVbrShap = 51,
                   kUbrPlusShap = 52, kEbs = 56, kPortQm = 58;

constexpr uint32_t kAtmBlock = 0x5000;
// Chip 3: (3 << 24) + (ATM module 2 << 16) + error 1.
constexpr uint32_t kPara = 0x03020001;

using V = std::vector<uint64_t>;
using V32 = std::vector<uint32_t>;
struct Field {
    uint32_t start, width;
};
struct FieldValue {
    uint32_t start, width;
    uint64_t value;
};

class AtmTest : public vqtest::ChipTest {
  protected:
    void SetUp() override {
        ChipTest::SetUp();
        model.setTrace(true);
    }
    vq6192::sim::AtmBlock &atm() { return model.block<vq6192::sim::AtmBlock>(); }

    uint64_t bits(uint32_t sel, uint32_t index, uint32_t start, uint32_t width) {
        const auto e = model.tables().entry(kAtmBlock, sel, index);
        uint64_t v = 0;
        for (uint32_t i = 0; i < width; ++i) {
            const uint32_t b = start + i;
            // Past 64 bits a set bit folds into the top bit, so a wide entry still reads as non-zero.
            v |= static_cast<uint64_t>(e[b / 16] >> (b % 16) & 1u) << (i < 64 ? i : 63);
        }
        return v;
    }
    void setBits(uint32_t sel, uint32_t index, uint32_t start, uint32_t width, uint64_t value) {
        auto e = model.tables().entry(kAtmBlock, sel, index);
        for (uint32_t i = 0; i < width; ++i) {
            const uint32_t b = start + i;
            const uint16_t m = static_cast<uint16_t>(1u << (b % 16));
            // Past 64 bits the value's top bit is repeated, so ~0 fills and 0 clears a wide entry.
            const bool one = (value >> (i < 64 ? i : 63) & 1u) != 0;
            e[b / 16] = static_cast<uint16_t>(one ? (e[b / 16] | m) : (e[b / 16] & ~m));
        }
        model.tables().setEntry(kAtmBlock, sel, index, e);
    }
    // Every bit of an entry set, so that a write that clobbers a neighbour shows.
    void fillEntry(uint32_t sel, uint32_t index, uint32_t widthBits) {
        setBits(sel, index, 0, widthBits, ~0ull);
    }
    // Several fields of one entry at once: {start, width} in, values out; {start, width, value} to set.
    std::vector<uint64_t> fields(uint32_t sel, uint32_t index, std::initializer_list<Field> fs) {
        std::vector<uint64_t> v;
        for (const Field &f : fs) {
            v.push_back(bits(sel, index, f.start, f.width));
        }
        return v;
    }
    void setFields(uint32_t sel, uint32_t index, std::initializer_list<FieldValue> fs) {
        for (const FieldValue &f : fs) {
            setBits(sel, index, f.start, f.width, f.value);
        }
    }
    uint64_t tableCommands() {
        return model.tables().writesExecuted(kAtmBlock) + model.tables().readsExecuted(kAtmBlock);
    }
    using vqtest::ChipTest::traced;
    bool traced(const std::string &line) {
        const auto t = capture.traceTexts();
        return std::find(t.begin(), t.end(), line) != t.end();
    }
};

}  // namespace atmtest
