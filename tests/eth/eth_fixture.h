// Shared fixture of the Ethernet-side and MAC port tests: the chip on the model, the Ethernet lookup
// tables by their select codes, and refusals that must touch nothing.
#pragma once

#include <array>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/eth.h"
#include "vq6192/sim/eth.h"
#include "vq6192/sim/mac.h"

namespace ethtest {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vq6192::sim::TableEngine;
using U32s = std::vector<uint32_t>;
using Reg = std::pair<uint32_t, uint32_t>;
// Rows of a table-driven test, N numbers each, bound by name in the loop.
template <size_t N>
using Rows = std::initializer_list<std::array<uint32_t, N>>;

// Status codes of chip 3.
constexpr uint32_t kEthPara = 0x03050001;
constexpr uint32_t kEthTimeout = 0x03050003;
constexpr uint32_t kEthBusy = 0x03050004;
constexpr uint32_t kEthKind = 0x03050007;
constexpr uint32_t kMacPara = 0x03060001;

// The Ethernet lookup block and its select codes.
constexpr uint32_t kBlock = 0x4000;
constexpr uint32_t kPsn = 0, kUpType = 1, kNo2Pid = 2, kVlan = 3, kDownPro = 4, kPid2No = 5, kMpls2Key = 6,
                   kTxHead = 7, kRxHead = 8, kCpuProto = 11;

class EthFixture : public vqtest::ChipTest {
  protected:
    vq6192::sim::EthBlock &eth() { return model.block<vq6192::sim::EthBlock>(); }
    vq6192::sim::MacBlock &mac() { return model.block<vq6192::sim::MacBlock>(); }

    // Bits start..start+width-1 of a table entry (entry bit n is bit n mod 16 of data register n / 16).
    uint64_t bits(uint32_t sel, uint32_t index, uint32_t start, uint32_t width) {
        const TableEngine::Entry e = model.tables().entry(kBlock, sel, index);
        uint64_t v = 0;
        for (uint32_t b = 0; b < width; ++b) {
            const uint32_t n = start + b;
            v |= static_cast<uint64_t>((e[n / 16] >> (n % 16)) & 1u) << b;
        }
        return v;
    }
    uint32_t word(uint32_t sel, uint32_t index) { return static_cast<uint32_t>(bits(sel, index, 0, 32)); }
    // An entry with every bit set, so that a write that clobbers a neighbour shows.
    void fillOnes(uint32_t sel, uint32_t index) {
        TableEngine::Entry e;
        e.fill(0xFFFF);
        model.tables().setEntry(kBlock, sel, index, e);
    }
    void setWord(uint32_t sel, uint32_t index, uint32_t value) {
        TableEngine::Entry e{};
        e[0] = static_cast<uint16_t>(value);
        e[1] = static_cast<uint16_t>(value >> 16);
        model.tables().setEntry(kBlock, sel, index, e);
    }  // MAC registers of one MAC, set or read in a list.
    void setMac(uint32_t m, std::initializer_list<Reg> regs) {
        for (const auto &[n, value] : regs) {
            mac().setReg(m, n, value);
        }
    }
    U32s macRegs(uint32_t m, std::initializer_list<uint32_t> regs) {
        U32s v;
        for (uint32_t n : regs) {
            v.push_back(mac().reg(m, n));
        }
        return v;
    }

    // A call that must be refused with `status`, trace `line` and touch no register.
    void expectRefused(const char *what, uint32_t status, const std::function<uint32_t()> &op,
                       const std::string &line = "ParaErr.\r\n") {
        SCOPED_TRACE(what);
        capture.clear();
        uint32_t rc = 0;
        const auto t = traced([&] { rc = op(); });
        EXPECT_EQ(rc, status);
        EXPECT_TRUE(t.empty()) << t.size() << " bus accesses";
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{line});
    }
};

// A call refused with the Ethernet or MAC parameter error, named by its own text.
#define ETH_REFUSED(call) expectRefused(#call, kEthPara, [&] { return call; })
#define MAC_REFUSED(call) expectRefused(#call, kMacPara, [&] { return call; })

}  // namespace ethtest
