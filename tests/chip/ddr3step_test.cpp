// The software DDR 3-step test against the DDR model's data-line and address-line faults.
#include <algorithm>

#include "chip_fixture.h"

namespace {

using namespace chiptest;
using Short = vq6192::sim::DdrBlock::Short;
using Ctx = VQ6192_DDR3STEP_CTX;

const char *const kLineName[16] = {"A0", "A1", "A2",  "A3",  "A4",  "A5",  "A6",  "A7",
                                   "A8", "A9", "A10", "A11", "A12", "BA0", "BA1", "BA2"};
constexpr uint8_t kLineCode[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 50, 51, 52};

class Ddr3Step : public ChipFixture {
  protected:
    struct Result {
        uint32_t rc;
        std::array<uint8_t, VQ6192_DDR3STEP_STATUS_NUM> status;
        VQ6192_DDR3STEP_CTX ctx;
        Lines verdicts;  // trace lines naming a fault
    };

    Result run() {
        capture.clear();
        ddr().clearMemory();
        Result r{};
        r.status.fill(0xEE);
        std::memset(&r.ctx, 0xEE, sizeof r.ctx);
        r.rc = VQ6192_Base_DDR3StepTest(kChip, r.status.data(), &r.ctx);
        for (const std::string &t : capture.traceTexts()) {
            if (t.find("fault") != std::string::npos) {
                r.verdicts.push_back(t);
            }
        }
        return r;
    }

    // The status bytes at `at`.
    static U32s st(const Result &r, std::initializer_list<size_t> at) {
        U32s v;
        for (size_t k : at) {
            v.push_back(r.status[k]);
        }
        return v;
    }
    static uint32_t dataMasks(const VQ6192_DDR3STEP_CTX &c) {
        return c.ulStuckOpen1Mask | c.ulStuckOpen0Mask | c.ulStuckAt0Mask | c.ulStuckAt1Mask |
               c.ulShort1Mask | c.ulShort0Mask;
    }
    static uint32_t addrMasks(const VQ6192_DDR3STEP_CTX &c) {
        return c.ulAddrShortXMask | c.ulAddrStuckAtMask | c.ulAddrShortMask | c.ulAddrUnknownMask;
    }
    // One fault found: the status bytes at `at`, the one context mask that names it, the verdict lines.
    static void expectFound(const Result &r, std::initializer_list<size_t> at, const U32s &status,
                            uint32_t VQ6192_DDR3STEP_CTX::*mask, uint32_t bits, const Lines &verdicts) {
        EXPECT_EQ(r.rc, VQ6192_DDR3STEP_FAULT);
        EXPECT_EQ(st(r, at), status);
        EXPECT_EQ((U32s{r.ctx.*mask, dataMasks(r.ctx) | addrMasks(r.ctx)}), (U32s{bits, bits}));
        EXPECT_EQ(r.verdicts, verdicts);
    }
    bool traced(const std::string &line) const {
        const auto t = capture.traceTexts();
        return std::find(t.begin(), t.end(), line) != t.end();
    }
};

TEST_F(Ddr3Step, HealthyMemoryPassesEveryStep) {
    VQ6192_Platform_ResetVirtualTime();
    const Result r = run();
    EXPECT_EQ(r.rc, 0u);
    EXPECT_EQ(r.status, (std::array<uint8_t, 7>{}));
    EXPECT_EQ(dataMasks(r.ctx) | addrMasks(r.ctx) | r.ctx.ulReserved, 0u);
    EXPECT_TRUE(r.verdicts.empty());
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u);  // the table port is never busy
    EXPECT_EQ(ddr().blockWrites(), 2u + 64 + 34);
    EXPECT_EQ(ddr().blockReads(), 2u + 64 + 34);
    Lines stages;
    for (const std::string &t : capture.traceTexts()) {
        if (t.rfind(" 3", 0) != 0) {
            stages.push_back(t);
        }
    }
    EXPECT_EQ(stages, (Lines{"\nStep 1: data bus testing (step 1)...\n", "\nStep 1 PASS!",
                             "\nStep 2a: data bus testing (step 1)...", "\nStep 2a PASS!",
                             "\r\nStep 2b: data bus testing (step 0)...", "\nStep 2b PASS!\n",
                             "\nStep 2 PASS!", "\r\nStep 3a: Addr bus testing (step 0)...\n",
                             "\r\nStep 3b: Addr bus testing (step 1)...\n", "\nStep 3a PASS! \n"}));
    EXPECT_TRUE(traced(" 3a. aulTestStep3DataMask0[0]=0xfffffffe\n"));
    EXPECT_TRUE(traced(" 3a. aulTemReadData0[16]=0xfffeffff\n"));
    EXPECT_TRUE(traced(" 3b. aulTestStep3DataMask1[16]=0xff0000ff\n"));
    EXPECT_TRUE(traced(" 3b. aulTemReadData1[3]=0x40000\n"));
    EXPECT_EQ(capture.traceTexts().size(), stages.size() + 4 * 17);
}

// Step 1 finds every data line stuck at 1 or 0 (on its own) and names it as stuck-open.
TEST_F(Ddr3Step, EveryStuckDataLineIsFoundInStepOne) {
    for (uint32_t line = 0; line < 32; ++line) {
        for (bool value : {true, false}) {
            SCOPED_TRACE(testing::Message() << "DQ" << line << " stuck at " << value);
            ddr().clearFaults();
            ddr().stickDataLine(line, value);
            expectFound(
                run(), {0, 1, 2},
                {1, value ? VQ6192_DDR3STEP_STUCK_OPEN_1 : VQ6192_DDR3STEP_STUCK_OPEN_0, line},
                value ? &Ctx::ulStuckOpen1Mask : &Ctx::ulStuckOpen0Mask, 1u << line,
                {"data[" + std::to_string(line) + "] is Stuck-open-" + (value ? "1" : "0") + " fault\n"});
        }
    }
}

// Step 2 finds every short between two data lines: a wired AND as short-to-0, a wired OR as
// short-to-1, reported once for the lower line with the higher one as its partner. Step 2b (walking
// zero) may pass, step 2 as a whole does not.
TEST_F(Ddr3Step, EveryDataLineShortIsFoundInStepTwo) {
    for (uint32_t i = 0; i < 32; ++i) {
        for (uint32_t j = i + 1; j < 32; ++j) {
            for (Short kind : {Short::And, Short::Or}) {
                SCOPED_TRACE(testing::Message()
                             << "DQ" << i << " DQ" << j << (kind == Short::And ? " AND" : " OR"));
                ddr().clearFaults();
                ddr().shortDataLines(j, i, kind);
                const bool to0 = kind == Short::And;
                expectFound(run(), {0, 3, 4, 6},
                            {2, to0 ? VQ6192_DDR3STEP_SHORT_0 : VQ6192_DDR3STEP_SHORT_1, i, j},
                            to0 ? &Ctx::ulShort0Mask : &Ctx::ulShort1Mask, 1u << i,
                            {"\n Step 2: data[" + std::to_string(i) + "] and data[" + std::to_string(j) +
                             "] is Stuck-short-" + (to0 ? "0" : "1") + " fault\n"});
                EXPECT_FALSE(traced("\nStep 2 PASS!"));
            }
        }
    }
}

// The fault status and the short-to-1 code as the chip documentation numbers them.
TEST_F(Ddr3Step, ShortOfBitsThreeAndFourAsTheReadBacksShowIt) {
    ddr().shortDataLines(3, 4, Short::Or);  // 1 << 3 and 1 << 4 read 0x18, complements 0xFFFFFFFF
    const Result r = run();
    EXPECT_EQ(r.rc, 0x10007u);
    EXPECT_EQ(st(r, {3, 4, 6}), (U32s{8, 3, 4}));
    EXPECT_TRUE(traced("\nStep 2b PASS!\n"));
}

// Step 2's stuck-at rules judge the two read-backs as whole words: a bit whose walking one and walking
// zero both read back 0 is stuck-at-0; walking one reading 0 and walking zero reading 1 is stuck-at-1.
// Such pattern-dependent read-backs come from a read filter on the model.
TEST_F(Ddr3Step, StepTwoStuckAtVerdicts) {
    struct Case {
        uint32_t bit, walkingZeroReadsAs, kind;  // walking zero: low byte of word 0; words 1..3 read 0
        uint32_t Ctx::*mask;
        std::string text;
    };
    const Case cases[] = {
        {5, 0, VQ6192_DDR3STEP_STUCK_AT_0, &Ctx::ulStuckAt0Mask, "\n Step 2: data[5] is S-A-0 fault\n"},
        {17, 1, VQ6192_DDR3STEP_STUCK_AT_1, &Ctx::ulStuckAt1Mask, "\n Step 2: data[17] is S-A-1 fault\n"}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        ddr().clearFaults();
        ddr().setReadFilter([&](uint32_t addr, uint32_t words, vq6192::sim::DdrBlock::Block &b) {
            if (addr != 0x0FEFFF60 || words != 8) {
                return;
            }
            uint32_t v = 0;
            for (int k = 0; k < 4; ++k) {
                v |= static_cast<uint32_t>(b[k] & 0xFF) << (8 * k);
            }
            if (v == 1u << c.bit || v == ~(1u << c.bit)) {
                const bool walkingZero = v != 1u << c.bit;
                b[0] = static_cast<uint16_t>(walkingZero ? c.walkingZeroReadsAs : 0);
                b[1] = b[2] = b[3] = 0;
            }
        });
        expectFound(run(), {0, 3, 4}, {2, c.kind, c.bit}, c.mask, 1u << c.bit, {c.text});
    }
}

// A stuck address line sends its step-3a address and the step-3b base address onto the cells of the
// base: its read-back equals the base's in both steps, the "Stuck-Short-x" verdict.
TEST_F(Ddr3Step, EveryStuckAddressLineIsFoundInStepThree) {
    for (uint32_t line = 0; line < 16; ++line) {
        for (bool value : {true, false}) {
            SCOPED_TRACE(testing::Message() << kLineName[line] << " stuck at " << value);
            ddr().clearFaults();
            ddr().stickAddressLine(line, value);
            expectFound(run(), {0, 5, 6}, {3, 0, kLineCode[line]}, &Ctx::ulAddrShortXMask, 1u << line,
                        {std::string("\nStep 3ab: ") + kLineName[line] + " is Stuck-Short-x fault\n"});
        }
    }
}

// Two shorted address lines collapse two addresses of one step onto the base and two of the other
// step onto each other: base-equal in one step only, the "S-A-1 or S-A-0" verdict. Lines that share
// both phases (row and column, or row only) are both named; otherwise the one the base address
// catches is.
TEST_F(Ddr3Step, EveryAddressLineShortIsFoundInStepThree) {
    auto hasColumn = [](uint32_t line) { return line >= 3 && line <= 9; };
    for (uint32_t a = 0; a < 16; ++a) {
        for (uint32_t b = a + 1; b < 16; ++b) {
            for (Short kind : {Short::And, Short::Or}) {
                SCOPED_TRACE(testing::Message()
                             << kLineName[a] << " " << kLineName[b] << (kind == Short::And ? " AND" : " OR"));
                ddr().clearFaults();
                ddr().shortAddressLines(a, b, kind);
                const Result r = run();
                ASSERT_EQ(r.rc, VQ6192_DDR3STEP_FAULT);
                EXPECT_EQ(st(r, {0, 5}), (U32s{3, VQ6192_DDR3STEP_ADDR_STUCK_AT}));
                const uint32_t pair = 1u << a | 1u << b;
                EXPECT_EQ(addrMasks(r.ctx), r.ctx.ulAddrStuckAtMask);
                EXPECT_NE(r.ctx.ulAddrStuckAtMask, 0u);
                EXPECT_EQ(r.ctx.ulAddrStuckAtMask & ~pair, 0u);
                if (hasColumn(a) == hasColumn(b)) {
                    EXPECT_EQ(r.ctx.ulAddrStuckAtMask, pair);
                    EXPECT_EQ(r.status[6], kLineCode[b]);
                    EXPECT_EQ(
                        r.verdicts,
                        (Lines{std::string("\nStep 3ab: ") + kLineName[a] + " is S-A-1 or S-A-0 fault\n",
                               std::string("\nStep 3ab: ") + kLineName[b] + " is S-A-1 or S-A-0 fault\n"}));
                }
            }
        }
    }
}

// Read-backs that equal each other but not the base are the aliasing verdict; a read-back that matches
// nothing is unknown. The read filter makes them.
TEST_F(Ddr3Step, AliasedAndUnknownAddressVerdicts) {
    ddr().setReadFilter([](uint32_t addr, uint32_t words, vq6192::sim::DdrBlock::Block &b) {
        if (words == 4 && (addr == 0x0FEFFF60 || addr == 0x0FDFFEE0)) {  // A5 and A6 in step 3a
            b[0] = 0x5678;
            b[1] = 0x1234;
        }
    });
    expectFound(run(), {5, 6}, {VQ6192_DDR3STEP_ADDR_SHORT, 6}, &Ctx::ulAddrShortMask, 1u << 5 | 1u << 6,
                {"\nStep 3ab: A5 is Stuck-Short-1 or Stuck-Short-0 fault\n",
                 "\nStep 3ab: A6 is Stuck-Short-1 or Stuck-Short-0 fault\n"});
    EXPECT_TRUE(traced(" 3a. aulTemReadData0[5]=0x12345678\n"));

    ddr().setReadFilter([](uint32_t addr, uint32_t words, vq6192::sim::DdrBlock::Block &b) {
        if (words == 4 && addr == 0x00002000) {  // BA1 in step 3b
            b[0] = 0xBEEF;
            b[1] = 0xDEAD;
        }
    });
    expectFound(run(), {5, 6}, {0, 51}, &Ctx::ulAddrUnknownMask, 1u << 14,
                {"\nStep 3ab: BA1 is Un-Know fault\n"});
}

// A block access that fails ends the test with its status and, in steps 1 and 2, a line naming it.
TEST_F(Ddr3Step, BlockAccessFailureEndsTheTest) {
    struct Case {
        uint32_t after, stage;  // block commands that succeed first, the step that fails
        std::string text;
    };
    // clang-format off
    const Case cases[] = {
        {0, 1, " : WriteDdrDword:[0xfff7fe0] Data to Reg Failed, ulRtn = 50397191 \n"},
        {1, 1, " : ReadDdrDword:[0xfff7fe0] Data From Reg Failed!\n"},
        {2, 1, " : WriteDdrDword:[0xfefff60] Data From Reg Failed!\n"},
        {3, 1, " : ReadDdrDword:[0xfefff60] Data From Reg Failed!\n"},
        {4, 2, "\n Step 2a: write err and write addr is:0xfefff60"}, {5, 2, "\n Step 2a: Read err and write addr:0xfefff60"},
        {68, 2, "\n Step 2b: write err and write addr is:0xfefff60"}, {69, 2, "\n Step 2b: Read err at:0xfefff60\n"},
        {132, 3, ""}, {167, 3, ""},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.after);
        ddr().clearFaults();
        ddr().stallAfter(c.after);
        const Result r = run();
        EXPECT_EQ(r.rc, kBaseFailed);
        EXPECT_EQ(r.status[0], c.stage);
        if (!c.text.empty()) {
            EXPECT_EQ(capture.traceTexts().back(), c.text);
        }
    }
}

}  // namespace
