// Shared fixture of the IMA tests: a chip on the model with its IMA processor, table entries reached by
// the chip's own block, select code and entry address, and the refusal check.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "support/test_support.h"
#include "vq6192/ima.h"
#include "vq6192/sim/ima_processor.h"

namespace imatest {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using Proc = vq6192::sim::ImaProcessor;
using U32s = std::vector<uint32_t>;
using U64s = std::vector<uint64_t>;
using Texts = std::vector<std::string>;

// Status codes of chip 3 (module field 13).
constexpr uint32_t kPara = 0x030D0001, kTimeout = 0x030D0003, kNoEnd = 0x030D0004, kInUse = 0x030D0006,
                   kRefusedCmd = 0x030D0009;
constexpr uint64_t kTickUs = 10000;

// The four access blocks of the IMA tables: processor, receive, transmit and TC.
constexpr uint32_t kPpB = Proc::kProcBlock, kRxB = Proc::kRxBlock, kTxB = Proc::kTxBlock,
                   kTcB = Proc::kTcBlock;

// Select codes of the IMA tables, one line per access block: processor, receive, transmit, TC.
constexpr uint32_t kTxc = 0, kRxc = 1, kGpc = 2, kTxs = 3, kRxs = 4, kGps = 5, kEvent = 6, kIcpFwd = 7;
constexpr uint32_t kLkCnt = 0, kRxGpc = 2, kIcpVld = 3, kIcpBuf = 5, kDelay = 9, kGpCnt = 12, kScvc = 13;
constexpr uint32_t kTxGps = 0, kTxIcp = 1, kTxGpc = 2, kMap = 3, kTxLks = 4, kTxLkc = 5, kInGrp = 6,
                   kDepth = 7;
constexpr uint32_t kRxCfg = 0, kRxSta0 = 1, kRxSta1 = 2, kRxSta2 = 3, kTxCfg = 6, kTxSta = 7, kTxImaif = 8;

class ImaTest : public vqtest::ChipTest {
  protected:
    Proc &proc() { return model.block<Proc>(); }

    uint64_t bits(uint32_t block, uint32_t sel, uint32_t addr, uint32_t bit, uint32_t width) {
        return proc().entryBits(block, sel, addr, bit, width);
    }
    void setBits(uint32_t block, uint32_t sel, uint32_t addr, uint32_t bit, uint32_t width, uint64_t v) {
        proc().setEntryBits(block, sel, addr, bit, width, v);
    }
    uint32_t word(uint32_t block, uint32_t sel, uint32_t addr) {
        return static_cast<uint32_t>(bits(block, sel, addr, 0, 32));
    }
    uint64_t tableWrites() {
        uint64_t n = 0;
        for (uint32_t b : {kPpB, kRxB, kTxB, kTcB}) {
            n += model.tables().writesExecuted(b);
        }
        return n;
    }

    // Refused with `status`, `text` traced (nothing when null) and no register touched.
    void expectRefused(const std::string &what, const std::function<uint32_t()> &op,
                       const char *text = "ParaErr.\r\n", uint32_t status = kPara) {
        SCOPED_TRACE(what);
        capture.clear();
        uint32_t rc = 0;
        const auto t = traced([&] { rc = op(); });
        EXPECT_EQ(rc, status);
        EXPECT_TRUE(t.empty()) << t.size() << " bus accesses";
        EXPECT_EQ(capture.traceTexts(), text ? Texts{text} : Texts{});
    }

    void SetUp() override {
        ChipTest::SetUp();
        VQ6192_Platform_ResetVirtualTime();
    }
};

}  // namespace imatest
