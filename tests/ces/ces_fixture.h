// Shared fixture of the CES tests: a chip on the model, the CES tables as the model holds them, and the
// far-end registers that must never be written.
#pragma once

#include <array>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/ces.h"
#include "vq6192/framer.h"
#include "vq6192/sim/ces.h"

namespace cestest {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vq6192::sim::TableEngine;
using U32s = std::vector<uint32_t>;
using U64s = std::vector<uint64_t>;
// Rows of a table-driven test, N numbers each, bound by name in the loop.
template <size_t N>
using Rows = std::initializer_list<std::array<uint32_t, N>>;

// The CES indirect-access block and its table select codes.
constexpr uint32_t kCesBlock = 0xa000;
constexpr uint32_t kTxCw = 0, kRxCw = 1, kTxTsMask = 2, kRxTsMask = 3, kIdle = 4, kTxCnt = 5, kRxCnt = 9,
                   kJbFullCnt = 15, kJbEmpCnt = 14, kJbFullDropCnt = 13, kFrmMap = 16;

constexpr uint32_t kCesPara = 0x03030001;
constexpr uint32_t kCesStep = 0x03030004;

class CesTest : public vqtest::ChipTest {
  protected:
    vq6192::sim::CesBlock &ces() { return model.block<vq6192::sim::CesBlock>(); }

    void TearDown() override {
        EXPECT_TRUE(ces().readOnlyWrites().empty()) << "a far-end sequence-number register was written";
        vqtest::ChipTest::TearDown();
    }

    // Bits lo..lo+width-1 of a CES table entry in the model (halves in data-register order, low first).
    uint64_t bits(uint32_t select, uint32_t index, uint32_t lo, uint32_t width) {
        const TableEngine::Entry e = model.tables().entry(kCesBlock, select, index);
        uint64_t v = 0;
        for (int k = 3; k >= 0; --k) {
            v = v << 16 | e[k];
        }
        return (v >> lo) & ((width == 64 ? 0 : (uint64_t{1} << width)) - 1);
    }
    void setEntry(uint32_t select, uint32_t index, uint64_t value) {
        TableEngine::Entry e{};
        for (int k = 0; k < 4; ++k) {
            e[k] = static_cast<uint16_t>(value >> (16 * k));
        }
        model.tables().setEntry(kCesBlock, select, index, e);
    }
    void expectRefused(const std::string &what, const std::function<uint32_t()> &op) {
        SCOPED_TRACE(what);
        capture.clear();
        uint32_t rc = 0;
        const auto t = traced([&] { rc = op(); });
        EXPECT_EQ(rc, kCesPara);
        EXPECT_TRUE(t.empty()) << t.size() << " bus accesses";
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{"ParaErr.\r\n"});
    }
};

// A call refused with the parameter error, named by its own text.
#define CES_REFUSED(call) expectRefused(#call, [&] { return call; })

}  // namespace cestest
