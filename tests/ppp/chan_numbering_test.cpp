// PPP channel numbering against the VC-4 PPP enable register.
#include "ppp_fixture.h"

namespace {

using namespace ppptest;
using PppNumbering = PppTest;

TEST_F(PppNumbering, EnabledVc4ChannelsLiveAtMultiplesOf512) {
    // VC-4 enables, channel, inner number.
    const uint32_t forward[][3] = {{0x2, 1, 0x200}, {0x0, 1, 1},     {0x1, 0, 0},
                                   {0x0, 0, 0},     {0xF, 3, 0x600}, {0xF, 4, 4},
                                   {0xF, 511, 511}, {0xFFF0, 2, 2},  {0x4, 2, 0x400}};
    for (const auto &[enables, channel, inner] : forward) {
        model.poke(kVc4Enable, static_cast<uint16_t>(enables));
        for (uint32_t dir : {0u, 1u, 2u}) {
            EXPECT_EQ(VQ6192_PPP_CalcPppChnl(kChip, channel, dir), inner) << enables << " " << channel;
        }
    }
    // VC-4 enables, inner number, channel.
    const uint32_t inverse[][3] = {{0x2, 0x200, 1},     {0x0, 0x200, 0x200}, {0x8, 0x600, 3},
                                   {0x8, 0x601, 0x601}, {0xF, 0x800, 0x800}, {0xF, 0x100, 0x100},
                                   {0xF, 5, 5},         {0x1, 0, 0}};
    for (const auto &[enables, inner, channel] : inverse) {
        model.poke(kVc4Enable, static_cast<uint16_t>(enables));
        EXPECT_EQ(VQ6192_PPP_ReCalcPppChnl(kChip, inner, 0), channel) << enables << " " << inner;
    }
    // Round trip over the whole channel space with all four VC-4 channels enabled.
    model.poke(kVc4Enable, 0xF);
    for (uint32_t ch = 0; ch < VQ6192_NONE_SCH_PPP_MAX; ++ch) {
        EXPECT_EQ(VQ6192_PPP_ReCalcPppChnl(kChip, VQ6192_PPP_CalcPppChnl(kChip, ch, 0), 0), ch);
    }
}

TEST_F(PppNumbering, ReadsTheEnableRegisterEveryTimeAndTracesEgress) {
    model.poke(kVc4Enable, 0x1);
    const auto t = traced([] {
        VQ6192_PPP_CalcPppChnl(kChip, 0, 1);  // VC-4 channel: no trace
        VQ6192_PPP_CalcPppChnl(kChip, 7, 1);
        VQ6192_PPP_CalcPppChnl(kChip, 7, 0);
        VQ6192_PPP_ReCalcPppChnl(kChip, 7, 1);
    });
    ASSERT_EQ(t.size(), 4u);
    for (const auto &a : t) {
        EXPECT_EQ(a.addr, kVc4Enable);
    }
    EXPECT_EQ(capture.traceTexts(),
              (std::vector<std::string>{"VQ6192_PPP_CalcPppChnl bSpecialChnl TRUE!\n",
                                        "VQ6192_PPP_ReCalcPppChnl bSpecialChnl TRUE!\n"}));
}

}  // namespace
