// Tributary numbering: every conversion against its formula over the accepted range and past it.
#include "sdh/sdh_test.h"
#include "vq6192/sdh.h"

namespace {

using sdhtest::Ints;
using sdhtest::ints;

constexpr uint32_t kChip = 2;
constexpr uint32_t kParaErr = 0x02080001;

struct Std {
    uint32_t v, k, l, m;
    bool operator==(const Std &) const = default;
};

// The numbering of the chip documentation: 63 tributaries per VC-4, 21 per TUG-3, TUG-2 fastest.
uint32_t e1Of(const Std &s) {
    return 63 * s.v + 21 * s.k + 7 * s.m + s.l;
}
uint32_t regOf(const Std &s) {
    return 7 * s.m + s.l;
}
uint32_t hwOf(const Std &s) {
    return 21 * s.m + 3 * s.l + s.k;
}

TEST(SdhNumbering, AllSchemesAgreeOverTheWholeRange) {
    vqtest::PlatformCapture capture;
    // Every (v, k, l, m); VC-4s 4 and 5 are the internal numbers 252..377.
    for (uint32_t n = 0; n < 6 * 3 * 7 * 3; ++n) {
        const Std s{n / 63, n / 21 % 3, n % 7, n / 7 % 3};
        const uint32_t e1 = e1Of(s), reg = regOf(s), hw = hwOf(s);
        SCOPED_TRACE(testing::Message() << "e1 " << e1);
        Std out{}, viaReg{}, viaHw{};
        uint32_t back = 0, fromHw = 0, rv = 9, rk = 9, r = 99, hv = 9, h = 99;
        EXPECT_EQ(
            (Ints{VQ6192_SDH_InterE1Chno2Standardno(kChip, e1, &out.v, &out.k, &out.l, &out.m),
                  VQ6192_SDH_Standardno2InterE1Chno(kChip, s.v, s.k, s.l, s.m, &back), back,
                  VQ6192_SDH_HWChno2InterE1Chno(kChip, s.v, hw, &fromHw), fromHw,
                  VQ6192_SDH_RegChno2Standardno(kChip, s.v, s.k, reg, &viaReg.v, &viaReg.k, &viaReg.l,
                                                &viaReg.m),
                  VQ6192_SDH_HWChno2Standardno(kChip, s.v, hw, &viaHw.v, &viaHw.k, &viaHw.l, &viaHw.m)}),
            ints(0, 0, e1, 0, e1, 0, 0));
        EXPECT_EQ((std::vector<Std>{out, viaReg, viaHw}), (std::vector<Std>{s, s, s}));
        // Register and hardware numbers exist below 336 only; a refusal leaves the outputs alone.
        const uint32_t rc = e1 < 336 ? 0u : kParaErr;
        EXPECT_EQ((Ints{VQ6192_SDH_InterE1Chno2RegChno(kChip, e1, &rv, &rk, &r),
                        VQ6192_SDH_InterE1Chno2HWChno(kChip, e1, &hv, &h), rv, rk, r, hv, h}),
                  rc == 0 ? ints(0, 0, s.v, s.k, reg, s.v, hw) : ints(rc, rc, 9, 9, 99, 9, 99));
        if (s.v < 4) {
            EXPECT_EQ((Ints{VQ6192_SDH_RegChno2InterE1Chno(kChip, s.v, s.k, reg, &back), back}), ints(0, e1));
        }
        uint32_t ov = 0, ok = 0, r1 = 0, r2 = 0, h1 = 0, h2 = 0, ov2 = 0, ov3 = 0, ov4 = 0;
        EXPECT_EQ((Ints{VQ6192_SDH_Standardno2RegChno(kChip, s.v, s.k, s.l, s.m, &ov, &ok, &r1), r1,
                        VQ6192_SDH_HWChno2RegChno(kChip, s.v, hw, &ov2, &ok, &r2), r2,
                        VQ6192_SDH_Standardno2HWChno(kChip, s.v, s.k, s.l, s.m, &ov3, &h1), h1,
                        VQ6192_SDH_RegChnoHWChno(kChip, s.v, s.k, reg, &ov4, &h2), h2, ov, ov2, ov3, ov4}),
                  ints(0, reg, 0, reg, 0, hw, 0, hw, s.v, s.v, s.v, s.v));
    }
    for (uint32_t r = 0; r < 28; ++r) {
        EXPECT_EQ(g_aulVQ6192InterE1no2HwnoPerTug3[r], 3 * r);
    }
}

// Register channels 21..27 (T1) run into the next TUG-3's numbers; the hardware conversions recompute
// the VC-4 from the internal number. Register numbers stop at VC-4 3, TUG-3 2, channel 27.
TEST(SdhNumbering, T1RegisterChannelsAndHardwareNumbersPastTheVc4) {
    vqtest::PlatformCapture capture;
    uint32_t a = 0, b = 0, c = 0, e1 = 0, last = 0;
    ASSERT_EQ(VQ6192_SDH_RegChno2InterE1Chno(kChip, 0, 0, 21, &e1), 0u);
    ASSERT_EQ(VQ6192_SDH_RegChno2InterE1Chno(kChip, 3, 2, 27, &last), 0u);
    ASSERT_EQ(VQ6192_SDH_HWChno2RegChno(kChip, 0, 63 + 2, &a, &b, &c), 0u);
    EXPECT_EQ(ints(e1, last, a, b, c), ints(21, 63 * 3 + 42 + 27, 1, 0, 0));
    EXPECT_EQ(VQ6192_SDH_RegChno2InterE1Chno(kChip, 4, 0, 0, &a), kParaErr);
    EXPECT_EQ(VQ6192_SDH_RegChno2InterE1Chno(kChip, 0, 3, 0, &a), kParaErr);
    EXPECT_EQ(VQ6192_SDH_RegChno2InterE1Chno(kChip, 0, 0, 28, &a), kParaErr);
}

}  // namespace
