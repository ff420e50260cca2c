// ATM traffic parameters: descriptors of every type to bucket pairs, the mantissa/exponent codes,
// policer and shaper entries, CBR rate classes, drop-threshold templates and excess-bandwidth weights.
#include <tuple>

#include "atm/atm_fixture.h"

namespace {

using namespace atmtest;

class TrafficTest : public AtmTest {};

TEST_F(TrafficTest, DescriptorsToBucketPairs) {
    // CDVT 5000 x 100 ns = 500 us.
    const std::tuple<uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, double, double, double, double, double,
                     double>
        cases[] = {
            {2, 100000, 0, 0, 0, 100000, 10000, 7, 0, 0, 0},
            {3, 20000, 5000, 0, 0, 20000, 50000, 7, 5000, 200000, 5},
            {4, 2000000, 5000, 0, 0, 2000000, 704, 7, 5000, 200000, 6},
            {5, 100000, 50000, 0, 32, 50000, 742320, 7, 100000, 102400, 7},
            {6, 100000, 50000, 0, 32, 50000, 742320, 5, 100000, 102400, 7},
            {7, 100000, 50000, 0, 32, 100000, 102400, 7, 50000, 742320, 6},
            {9, 3000, 0, 5000, 0, 3000, 900000, 7, 0, 0, 0},
            {10, 200000, 1000, 5000, 100, 1000, 178209000, 7, 200000, 900000, 7},
            {11, 3000, 0, 5000, 0, 3000, 900000, 7, 3000, 900000, 4},
            {12, 100, 0, 5000, 0, 100, 10100000, 7, 0, 0, 0},
            {13, 200000, 1000, 5000, 100, 1000, 178209000, 7, 200000, 900000, 7},
            {14, 200000, 1000, 5000, 100, 1000, 178209000, 5, 200000, 900000, 7},
            {15, 200000, 1000, 5000, 100, 200000, 900000, 7, 1000, 178209000, 6},
            {0, 1000, 0, 0, 0, 0, 0, 0, 0, 0, 0},
            {16, 1000, 0, 0, 0, 0, 0, 0, 0, 0, 0},
        };
    for (const auto &[type, pcr, scr, cdvt, mbs, rateA, tolA, modeA, rateB, tolB, modeB] : cases) {
        SCOPED_TRACE(type);
        ATM_BUCKET_PAIR p{};
        p.dRateA = 99;  // whatever was there is replaced
        VQ6192_ATM_ConvertPolicingPara(kChip, type, pcr, scr, cdvt, mbs, &p);
        const double got[6] = {p.dRateA, p.dTolA, double(p.wModeA), p.dRateB, p.dTolB, double(p.wModeB)};
        const double want[6] = {rateA, tolA, modeA, rateB, tolB, modeB};
        for (int i = 0; i < 6; ++i) {
            EXPECT_NEAR(got[i], want[i], 1e-6) << "rate, tolerance, mode of A then B: " << i;
        }
    }
    // Type 2 is clamped for shaping only; a missing pair and a type past 16 trace without a blank.
    ATM_BUCKET_PAIR p{};
    VQ6192_ATM_ConvertShapping2(kChip, 1000000, 0, 0, 0, &p);
    EXPECT_DOUBLE_EQ(p.dTolA, 1000.0);
    VQ6192_ATM_ConvertPolicing2(kChip, 2000000, 0, 0, 0, &p);
    EXPECT_DOUBLE_EQ(p.dTolA, 500.0);
    capture.clear();
    VQ6192_ATM_ConvertPolicingPara(kChip, 17, 1, 1, 1, 1, &p);
    VQ6192_ATM_ConvertPolicing5(kChip, 1, 1, 1, 1, nullptr);
    EXPECT_EQ(capture.traceTexts(), (std::vector<std::string>{"ParaErr.\r\n", "ParaErr.\r\n"}));
    EXPECT_DOUBLE_EQ(p.dTolA, 500.0) << "left as it was";
}

TEST_F(TrafficTest, ExponentMantissaAndTolerances) {
    // Value, base, mantissa, exponent.
    const std::tuple<double, uint32_t, uint16_t, uint16_t> cases[] = {
        {2.0, 1024, 0, 1}, {1.5, 1024, 512, 0}, {1280.0, 8, 2, 10},
        {1.0, 1024, 0, 0}, {3.999, 8, 7, 1},    {0.5, 1024, static_cast<uint16_t>(-512), 0},
    };
    for (const auto &[value, base, mantissa, exponent] : cases) {
        uint16_t m = 1, e = 1;
        EXPECT_EQ(VQ6192_ATM_GetExponent(kChip, &m, &e, base, value), 0u);
        EXPECT_EQ((V{m, e}), (V{mantissa, exponent})) << value;
    }
    EXPECT_EQ(VQ6192_ATM_CheckDoubleNotZero(-0.0), 0u);
    EXPECT_EQ(VQ6192_ATM_CheckDoubleNotZero(1e-300), 1u);
    double t = 1e12;
    VQ6192_ATM_Calibrate_CDVT_BT(kChip, &t);
    EXPECT_DOUBLE_EQ(t, 1696000000.0);
    t = 1.0;
    VQ6192_ATM_Calibrate_CDVT_BT(kChip, &t);
    EXPECT_DOUBLE_EQ(t, 704.0);
    const double got[5] = {
        VQ6192_ATM_ComputeAtmPolCdvt(kChip, 1000), VQ6192_ATM_ComputeAtmPolCdvt(kChip, 100000),
        VQ6192_ATM_ComputeAtmPolCdvt(kChip, 2000000), VQ6192_ATM_ComputeAtmPolMbs(kChip, 100000, 1e6),
        VQ6192_ATM_ComputeAtmPolMbs(kChip, 100000, 10.0)};
    const double want[5] = {1000000.0, 52355.072, 704.0, 1100000.0, 52355.072};
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(got[i], want[i], 1e-6) << i;
    }
}

TEST_F(TrafficTest, PolicerEntries) {
    const std::tuple<const char *, ATM_TRAFFIC_DESC, V> cases[] = {
        {"type 5 of the worked example", {100000, 50000, 0, 32, 5}, {7, 0x6344, 0x4A, 7, 0x6343, 0x27}},
        {"type 2, tolerance raised to 1280 ticks", {100000, 0, 0, 0, 2}, {7, 0x6343, 0x4A, 0, 0, 0}},
        {"type 2, 1000 cells/s", {1000, 0, 0, 0, 2}, {7, 0x318A, 0x6A, 0, 0, 0}},
        {"type 3", {20000, 5000, 0, 0, 3}, {7, 3590, 0x4A, 5, 3592, 8}},
        {"type 11 tags with bucket B", {3000, 0, 5000, 0, 11}, {7, 27816, 0x4A, 4, 27816, 42}},
        {"type 15", {200000, 1000, 5000, 100, 15}, {7, 25410, 0x4A, 6, 12682, 241}},
        {"type 8: both buckets off", {1000, 1000, 1000, 10, 8}, {0, 0, 0, 0, 0, 0}},
        {"type 1: both buckets off", {1000, 1000, 1000, 10, 1}, {0, 0, 0, 0, 0, 0}},
        // Above about 1.42 million cells/s the increment is below one tick: the low bits of the
        // negative mantissa (value 0.71) reach the field.
        {"type 2 beyond the increment range", {2000000, 0, 0, 0, 2}, {7, 0x5B00, 0x4A, 0, 0, 0}},
    };
    for (const auto &[name, d, c] : cases) {
        SCOPED_TRACE(name);
        setBits(kPolCfg, 8191, 0, 64, ~0ull);
        ASSERT_EQ(VQ6192_ATM_SetAtmPolcfgQos(kChip, 8191, &d), 0u);
        EXPECT_EQ((fields(kPolCfg, 8191, {{8, 3}, {11, 15}, {0, 8}, {34, 3}, {37, 15}, {26, 8}})), c);
        EXPECT_EQ(bits(kPolCfg, 8191, 52, 12), 0xFFFu) << "bits above the policer kept";
        ATM_POLICING_CFG raw{};
        ASSERT_EQ(VQ6192_ATM_GetAtmPolcfg(kChip, 8191, &raw), 0u);
        EXPECT_EQ((V{raw.wIncrA, raw.wLimitB}), (V{c[1], c[5]}));
    }
    // Raw records: every field at its largest, then each one past it.
    const ATM_POLICING_CFG good{32767, 7, 255, 1, 4, 2};
    ASSERT_EQ(VQ6192_ATM_SetAtmPolcfg(kChip, 0, &good), 0u);
    EXPECT_EQ(bits(kPolCfg, 0, 0, 52), 32767ull << 37 | 7ull << 34 | 255ull << 26 | 1u << 11 | 4u << 8 | 2u);
    const ATM_POLICING_CFG bad[] = {
        {32768, 0, 0, 0, 0, 0}, {0, 8, 0, 0, 0, 0}, {0, 0, 256, 0, 0, 0},
        {0, 0, 0, 32768, 0, 0}, {0, 0, 0, 0, 8, 0}, {0, 0, 0, 0, 0, 256},
    };
    model.clearTrace();
    capture.clear();
    for (const ATM_POLICING_CFG &b : bad) {
        EXPECT_EQ(VQ6192_ATM_SetAtmPolcfg(kChip, 0, &b), kPara);
    }
    ATM_TRAFFIC_DESC d16{1000, 0, 0, 0, 16}, d0{1000, 0, 0, 0, 0}, d{1000, 0, 0, 0, 2};
    EXPECT_EQ((V32{VQ6192_ATM_SetAtmPolcfgQos(kChip, 1, &d16), VQ6192_ATM_SetAtmPolcfgQos(kChip, 1, &d0),
                   VQ6192_ATM_SetAtmPolcfgQos(kChip, 8192, &d)}),
              V32(3, kPara));
    EXPECT_TRUE(model.trace().empty());
    // Refused before the policer step: that step's refusal would log its own failure.
    EXPECT_FALSE(traced("Err. VQ6192_ATM_SetAtmPolcfgQos: CONFIGURE error!  ChipID: 0x3\r\n"));

    // A policer write that does not complete.
    model.tables().failCommand(kAtmBlock, 2);
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_SetAtmPolcfgQos(kChip, 1, &d), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_SetAtmPolcfgQos: CONFIGURE error!  ChipID: 0x3\r\n"));
}

TEST_F(TrafficTest, ShaperEntries) {
    const std::tuple<uint32_t, uint32_t, ATM_TRAFFIC_DESC, uint32_t, uint32_t, uint32_t> cases[] = {
        {2, kRtVbrShap, {100000, 50000, 0, 32, 5}, 25410, 8, 1},
        {3, kNrtVbrShap, {100000, 0, 0, 0, 2}, 25409, 193, 1},
        {4, kUbrPlusShap, {1000000, 0, 0, 0, 2}, 11648, 96, 1},
        {4, kUbrPlusShap, {1000000, 0, 0, 0, 1}, 0, 0, 0},
    };
    for (const auto &[cls, sel, d, incr, limit, mode] : cases) {
        SCOPED_TRACE(cls);
        setBits(sel, 335, 0, 32, ~0ull);
        ASSERT_EQ(VQ6192_ATM_SetAtmShapcfgQos(kChip, 335, cls, &d), 0u);
        EXPECT_EQ((fields(sel, 335, {{9, 15}, {0, 8}, {8, 1}, {24, 8}})), (V{incr, limit, mode, 0xFF}));
    }
    model.clearTrace();
    for (uint8_t type : {3, 4, 6, 7, 8, 11, 14, 15}) {
        const ATM_TRAFFIC_DESC d{1000, 1000, 1000, 10, type};
        EXPECT_EQ(VQ6192_ATM_SetAtmShapcfgQos(kChip, 1, 2, &d), kPara) << int(type);
    }
    const ATM_TRAFFIC_DESC d{1000, 0, 0, 0, 2};
    EXPECT_EQ((V32{VQ6192_ATM_SetAtmShapcfgQos(kChip, 1, 1, &d), VQ6192_ATM_SetAtmShapcfgQos(kChip, 1, 5, &d),
                   VQ6192_ATM_SetAtmShapcfgQos(kChip, 336, 2, &d)}),
              V32(3, kPara));
    EXPECT_TRUE(model.trace().empty());

    // A shaper write that does not complete.
    model.tables().failCommand(kAtmBlock, 1);
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_SetAtmShapcfgQos(kChip, 1, 2, &d), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_SetAtmShapcfgQos: CONFIGURE error!  ChipID: 0x3\r\n"));
    model.tables().failCommand(kAtmBlock, 0);
    model.tables().holdBusy(kAtmBlock, 0);

    const ATM_POLICING_CFG raw{0, 0, 0, 0x1234, 3, 0x1AB};
    ASSERT_EQ(VQ6192_ATM_SetAtmShapcfg(kChip, 5, 3, &raw), 0u);
    EXPECT_EQ(bits(kNrtVbrShap, 5, 0, 24), 0x1234u << 9 | 1u << 8 | 0xABu);
    ATM_POLICING_CFG back{};
    ASSERT_EQ(VQ6192_ATM_GetAtmShapcfg(kChip, 5, 3, &back), 0u);
    EXPECT_EQ((V{back.wIncrA, back.wPAMode, back.wLimitA}), (V{0x1234, 1, 0xAB}));
}

TEST_F(TrafficTest, CbrRatesDropThresholdsAndExcessBandwidth) {
    // 8: the quotient 2976190.476 rounds to 2976190.5 in single precision.
    const std::tuple<uint32_t, uint32_t, uint32_t> cases[] = {
        {2976191, 6, 3401360}, {6, 3968252, 6}, {8, 2976189, 8}, {0, 0, 0}};
    for (const auto &[rate, period, cells] : cases) {
        SCOPED_TRACE(rate);
        setBits(kShVc, 5375, 0, 87, ~0ull);
        setBits(kShVc, 5375, 64, 23, 0x7FFFFF);
        ASSERT_EQ(VQ6192_ATM_SetAtmShVc(kChip, 335, 15, rate), 0u);
        EXPECT_EQ(bits(kShVc, 5375, 0, 22), period);
        EXPECT_EQ(bits(kShVc, 5375, 22, 42), (1ull << 42) - 1) << "scheduler state kept";
        uint32_t back = 1;
        ASSERT_EQ(VQ6192_ATM_GetAtmShVc(kChip, 335, 15, &back), 0u);
        EXPECT_EQ(back, cells);
    }
    model.clearTrace();
    for (uint32_t rate : {1u, 5u, 2976192u}) {
        EXPECT_EQ(VQ6192_ATM_SetAtmShVc(kChip, 0, 0, rate), kPara) << rate;
    }
    for (uint32_t period : {1u, 5u, 3968253u}) {
        EXPECT_EQ(VQ6192_ATM_SetAtmShVcByPeriod(kChip, 0, 0, period), kPara) << period;
    }
    uint32_t out = 0;
    EXPECT_EQ(
        (V32{VQ6192_ATM_SetAtmShVc(kChip, 0, 16, 100), VQ6192_ATM_SetAtmShVcByPeriod(kChip, 0, 16, 6),
             VQ6192_ATM_GetAtmShVc(kChip, 0, 16, &out), VQ6192_ATM_GetAtmShVcPeriod(kChip, 0, 16, &out)}),
        V32(4, kPara))
        << "class 16";
    EXPECT_TRUE(model.trace().empty());
    ASSERT_EQ(VQ6192_ATM_SetAtmShVcByPeriod(kChip, 1, 2, 3968252), 0u);
    uint32_t period = 0;
    ASSERT_EQ(VQ6192_ATM_GetAtmShVcPeriod(kChip, 1, 2, &period), 0u);
    EXPECT_EQ(period, 3968252u);
    EXPECT_EQ(bits(kShVc, 18, 0, 22), 3968252u);

    // Drop-threshold templates and excess-bandwidth weights.
    setBits(kBmTh, 319, 151, 9, 0x1FF);
    const ATM_BM_TH th{0xBEEF, 0x1234, 31, 0x11111, 0x22222, 0x33333, 0x44444, 0x55555, 0x7FFFF};
    ASSERT_EQ(VQ6192_ATM_SetAtmBmTh(kChip, 63, 5, &th), 0u);
    EXPECT_EQ((fields(kBmTh, 319, {{0, 19}, {19, 19}, {38, 19}, {57, 19}, {76, 19}, {95, 19}})),
              (V{0x7FFFF, 0x55555, 0x44444, 0x33333, 0x22222, 0x11111}));
    EXPECT_EQ((fields(kBmTh, 319, {{114, 5}, {119, 16}, {135, 16}, {151, 9}})),
              (V{31, 0x1234, 0xBEEF, 0x1FF}));
    ATM_BM_TH back{};
    ASSERT_EQ(VQ6192_ATM_GetAtmBmTh(kChip, 63, 5, &back), 0u);
    EXPECT_EQ((V{back.dwBmClpTh1, back.wBmClp0S0}), (V{0x7FFFF, 0xBEEF}));
    ASSERT_EQ(VQ6192_ATM_SetAtmBmTh(kChip, 0, 1, &th), 0u);
    EXPECT_EQ(bits(kBmTh, 0, 114, 5), 31u) << "CBR template 0 is entry 0";

    model.clearTrace();
    ATM_BM_TH weight = th, red = th;
    weight.bBmWeight = 32;
    red.dwBmRedMin = 0x80000;
    EXPECT_EQ((V32{VQ6192_ATM_SetAtmBmTh(kChip, 0, 1, &weight), VQ6192_ATM_SetAtmBmTh(kChip, 0, 1, &red),
                   VQ6192_ATM_SetAtmBmTh(kChip, 64, 1, &th), VQ6192_ATM_SetAtmBmTh(kChip, 0, 0, &th),
                   VQ6192_ATM_SetAtmBmTh(kChip, 0, 6, &th)}),
              V32(5, kPara));
    EXPECT_TRUE(model.trace().empty());

    setBits(kEbs, 7, 66, 14, 0x3FFF);
    const ATM_EBS_CFG ebs{1, 0, 0xAAAA, 0xBBBB, 0xCCCC, 0xDDDD};
    ASSERT_EQ(VQ6192_ATM_SetAtmEbs(kChip, 7, &ebs), 0u);
    EXPECT_EQ((fields(kEbs, 7, {{0, 64}, {64, 2}, {66, 14}})), (V{0xAAAABBBBCCCCDDDDull, 2, 0x3FFF}));
    ATM_EBS_CFG bad = ebs;
    bad.byNvbrEn = 2;
    EXPECT_EQ(VQ6192_ATM_SetAtmEbs(kChip, 7, &bad), kPara);
}

}  // namespace
