// PPP tests: a chip on the model with the PPP tables reachable by their select codes in table block
// 0x8000, as the chip's table list gives them.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/framer.h"
#include "vq6192/ppp.h"
#include "vq6192/sim/ppp.h"

namespace ppptest {

// Select codes of the PPP tables in block 0x8000.
constexpr uint32_t kRppucfg = 0, kTppucfg = 1, kAfidcfg = 2, kRppustat = 3, kTppustat = 5, kQmencfg = 7,
                   kPppencfg = 8, kFragcfg = 9, kLinkcfg = 11, kHdfccfg = 14, kMcfccfg = 15, kMcqst = 17,
                   kPppwgtcfg = 22, kMpwgtcfg = 23, kMprpbytecnt = 27, kMplooptimestp = 29, kMprxmmccnt = 31,
                   kMpskyeyecfg = 32, kMptesttxen = 33, kHdlccfg1 = 34, kHdlccfg2 = 35, kMprxmmpcfg1 = 36,
                   kMprxmhdlcpktcnt = 38, kMprxmbecnt = 39, kMprgrpcfg = 41, kMprgrppktcnt = 42,
                   kCsptcfg1 = 43, kCsptcfg2 = 44, kSnctrlcfg = 45, kMprpmrrucfg = 48, kMprpkt = 50,
                   kMprbyte = 51;

// Table blocks of the PPP and timeslot tables; the VC-4 PPP enable register.
constexpr uint32_t kPppBlock = 0x8000, kTsBlock = 0x10ab, kVc4Enable = 0x10048;
// Status codes of chip 3 (the fixture's chip) in module PPP.
constexpr uint32_t kParaErr = 0x03040001, kNoMem = 0x03040002, kTimeout = 0x03040004, kNoData = 0x03040007;

using U32s = std::vector<uint32_t>;
using U64s = std::vector<uint64_t>;
// Rows of a table-driven test, N numbers each, bound by name in the loop.
template <size_t N>
using Rows = std::initializer_list<std::array<uint64_t, N>>;

// A call on chip c and its text, for table rows {name, op, ...}.
#define PPP_REFUSED(call, condition) \
    expectRefused(                   \
        #call, [&] { return call; }, condition)
#define PPP_OP(call) #call, [](uint32_t c) { return call; }

// An operation from an entry's value before to its value after, and from a register's.
struct EntryCase {
    const char *name;
    uint32_t (*op)(uint32_t chip);
    uint32_t select, index;
    uint64_t before, after;
};
struct RegCase {
    const char *name;
    uint32_t (*op)(uint32_t chip);
    uint32_t addr, before, after;
};

class PppTest : public vqtest::ChipTest {
  protected:
    void SetUp() override {
        ChipTest::SetUp();
        VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_PPP, VQ6192_PRINT_ALL);
    }
    // Entry bits 0..63 of a PPP table entry.
    uint64_t entry(uint32_t select, uint32_t index) {
        const auto e = model.tables().entry(kPppBlock, select, index);
        return uint64_t{e[0]} | uint64_t{e[1]} << 16 | uint64_t{e[2]} << 32 | uint64_t{e[3]} << 48;
    }
    // Entries of several tables at one index, in a list.
    U64s entries(std::initializer_list<uint32_t> selects, uint32_t index) {
        U64s v;
        for (uint32_t s : selects) {
            v.push_back(entry(s, index));
        }
        return v;
    }
    // Entries of several tables at one index: {select, bits} each.
    void setEntries(uint32_t index, std::initializer_list<std::pair<uint32_t, uint64_t>> list) {
        for (const auto &[select, bits] : list) {
            setEntry(select, index, bits);
        }
    }
    void setEntry(uint32_t select, uint32_t index, uint64_t bits) {
        vq6192::sim::TableEngine::Entry e{};
        for (uint32_t k = 0; k < 4; ++k) {
            e[k] = static_cast<uint16_t>(bits >> (16 * k));
        }
        model.tables().setEntry(kPppBlock, select, index, e);
    }
    // Sets a 16-bit half of a longer entry (counter tables).
    void setHalf(uint32_t select, uint32_t index, uint32_t half, uint16_t value) {
        auto e = model.tables().entry(kPppBlock, select, index);
        e[half] = value;
        model.tables().setEntry(kPppBlock, select, index, e);
    }
    uint16_t tsEntry(uint32_t select, uint32_t e1, uint32_t ts) {
        return model.tables().entry(kTsBlock, select, (e1 << 5) | ts)[0];
    }
    vq6192::sim::PppBlock &ppp() { return model.block<vq6192::sim::PppBlock>(); }
    // A call refused with the parameter error: the condition traced and no register written.
    void expectRefused(const char *call, const std::function<uint32_t()> &op, const std::string &condition) {
        SCOPED_TRACE(call);
        capture.clear();
        EXPECT_TRUE(vqtest::writes(traced([&] { EXPECT_EQ(op(), kParaErr); })).empty());
        std::vector<std::string> paraErrs;
        for (const auto &t : capture.traces) {
            if (t.level == VQ6192_PRINT_PARA_WRONG) {
                paraErrs.push_back(t.text);
            }
        }
        EXPECT_EQ(paraErrs, std::vector<std::string>{"ParaErr. [ " + condition + " ]\r\n"});
    }
    void expectEntryOps(std::initializer_list<EntryCase> cases) {
        for (const EntryCase &c : cases) {
            SCOPED_TRACE(c.name);
            model.tables().clear();
            setEntry(c.select, c.index, c.before);
            ASSERT_EQ(c.op(kChip), 0u);
            EXPECT_EQ(entry(c.select, c.index), c.after);
        }
    }
    uint64_t virtualUs() { return VQ6192_Platform_GetVirtualTimeUs(); }
    bool tracedLine(const std::string &text) {
        const auto t = capture.traceTexts();
        return std::find(t.begin(), t.end(), text) != t.end();
    }
    // The values written to one register, in order.
    U32s writesTo(uint32_t addr) {
        U32s out;
        for (const auto &a : vqtest::writes(model.trace())) {
            if (a.addr == addr) {
                out.push_back(a.value);
            }
        }
        return out;
    }
};

}  // namespace ppptest
