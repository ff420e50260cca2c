// Path traces: the trace CRC-7 against independently known values, traces sent and read through the
// selector pages, and the expected-trace signature the receiver compares.
#include <numeric>

#include "sdh/sdh_test.h"

namespace sdhtest {
namespace {

// CRC-7 by polynomial long division: the message bits (MSB first) followed by seven 0 bits, each
// shifted into the remainder, which sheds x^7 + x^3 + 1 (0x89) whenever its bit 7 comes up.
uint8_t referenceCrc7(const std::vector<uint8_t> &msg) {
    std::vector<int> bits;
    for (uint8_t b : msg) {
        for (int i = 7; i >= 0; --i) {
            bits.push_back((b >> i) & 1);
        }
    }
    bits.insert(bits.end(), 7, 0);
    uint32_t rem = 0;
    for (int bit : bits) {
        rem = (rem << 1) | static_cast<uint32_t>(bit);
        rem ^= (rem & 0x80) != 0 ? 0x89 : 0;
    }
    return static_cast<uint8_t>(rem);
}

// The first byte of a 16-byte trace: 1, then the CRC-7 of the trace with that byte taken as 0x80.
uint8_t traceHead(std::vector<uint8_t> msg) {
    msg[0] = 0x80;
    return static_cast<uint8_t>(0x80 | referenceCrc7(msg));
}

std::vector<uint8_t> text(const char *s, size_t len) {
    std::vector<uint8_t> v(len, ' ');
    for (size_t i = 0; i < len && s[i] != 0; ++i) {
        v[i] = static_cast<uint8_t>(s[i]);
    }
    return v;
}

// The SD card command CRC uses the same CRC-7: CMD0, CMD8 and CMD17 frames carry 0x95, 0x87 and 0x55
// as (CRC << 1) | 1. Without the first byte it is taken as 0x80; no bytes (or no buffer) give 0x80.
TEST(TraceCrc, KnownValues) {
    const std::vector<uint8_t> zeros16(16, 0);
    const struct {
        std::vector<uint8_t> bytes;
        uint8_t len, useFirst, expected;
    } cases[] = {
        {{0x40, 0, 0, 0, 0}, 5, 1, 0x80 | (0x95 >> 1)},
        {{0x48, 0, 0, 0x01, 0xAA}, 5, 1, 0x80 | (0x87 >> 1)},
        {{0x51, 0, 0, 0, 0}, 5, 1, 0x80 | (0x55 >> 1)},
        {zeros16, 16, 0, traceHead(zeros16)},
        {{0x12}, 0, 0, 0x80},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(VQ6192_SDH_GetCRC7(3, c.bytes.data(), c.len, c.useFirst), c.expected) << int(c.bytes[0]);
    }
    EXPECT_EQ(VQ6192_SDH_GetCRC7(3, nullptr, 16, 0), 0x80);
}

using SdhTraceTest = SdhTest;

TEST_F(SdhTraceTest, HighOrderJ1SentThroughThePageOfItsVc4) {
    const auto msg = text("\x01VQ6192 LINE 1 A", 64);
    for (uint32_t mode : {0u, 1u, 2u}) {
        // The 64-byte flag (TH+0 bit 0) and pass-through (TH+4 bit 0) in the VC-4's three blocks only.
        fill12(th, 0, mode == 2 ? 0xFFFE : 0xFFFF);
        fill12(th, 4, 0xFFFE);
        ASSERT_EQ(VQ6192_SDH_SetTxHpJ1(kChip, 2, mode, msg.data(), 1), 0u) << mode;
        const size_t len = mode == 2 ? 64 : 16;
        auto expected = std::vector<uint8_t>(msg.begin(), msg.begin() + len);
        expected[0] = mode == 1 ? traceHead(expected) : expected[0];
        EXPECT_EQ(paths().trace(Page::TxHo, 2, len), expected) << mode;
        EXPECT_EQ(peek12(th, 0), ofVc4(2, mode == 2 ? 0xFFFF : 0xFFFE, mode == 2 ? 0xFFFE : 0xFFFF)) << mode;
        EXPECT_EQ(peek12(th, 4), ofVc4(2, 0xFFFF, 0xFFFE)) << mode;
        uint8_t readMode = 9, pass = 9, back[64] = {};
        EXPECT_EQ((Ints{VQ6192_SDH_GetTxHpJ1(kChip, 2, &readMode, back, &pass), readMode, pass}),
                  ints(0, mode == 2 ? 2 : 0, 1));
        EXPECT_EQ(std::vector<uint8_t>(back, back + len), expected);
    }
    EXPECT_EQ(paths().trace(Page::TxHo, 1, 16), std::vector<uint8_t>(16, 0)) << "other VC-4s untouched";
}

TEST_F(SdhTraceTest, LowOrderTracesAndTheirEndings) {
    // A 64-byte trace ends in CR LF whatever the caller gave; LT+0 bit 0 of the VC-3 says 64 bytes.
    auto msg = text("\x01VC3 TRACE", 64);
    msg[62] = 'x';
    msg[63] = 'y';
    const uint32_t vc3 = lt(1, 64);
    ASSERT_EQ(VQ6192_SDH_SetTxLpJ1(kChip, 1, 2, 2, msg.data()), 0u);
    auto expected = msg;
    expected[62] = 0x0D;
    expected[63] = 0x0A;
    EXPECT_EQ(ints(paths().trace(Page::TxLo, 128 * 1 + 64, 64) == expected, model.peek(vc3) & 1u),
              ints(1, 1));
    ASSERT_EQ(VQ6192_SDH_SetTxLpJ1(kChip, 1, 2, 1, msg.data()), 0u);
    expected.resize(16);
    expected[0] = traceHead(expected);
    uint8_t mode = 9, back[64] = {};
    EXPECT_EQ((Ints{paths().trace(Page::TxLo, 128 * 1 + 64, 16) == expected, model.peek(vc3) & 1u,
                    VQ6192_SDH_GetTxLpJ1(kChip, 1, 2, &mode, back), mode}),
              ints(1, 0, 0, 1));
    EXPECT_EQ(std::vector<uint8_t>(back, back + 16), expected);

    // J2 of VC-12 (v 3, k 1, t 27): channel 59; modes 0 and 2 send the bytes as given.
    const auto j2 = text("\x55J2 TRACE 27", 16);
    for (uint32_t m : {0u, 2u, 1u}) {
        ASSERT_EQ(VQ6192_SDH_SetTxLpJ2(kChip, 3, 1, 27, m, j2.data()), 0u);
        auto sent = j2;
        sent[0] = m == 1 ? traceHead(j2) : j2[0];
        uint8_t b16[16] = {};
        EXPECT_EQ(paths().trace(Page::TxLo, 128 * 3 + 59, 16), sent) << m;
        EXPECT_EQ(
            (Ints{VQ6192_SDH_GetTxLpJ2(kChip, 3, 1, 27, b16), std::vector<uint8_t>(b16, b16 + 16) == sent}),
            ints(0, 1));
    }
}

TEST_F(SdhTraceTest, ReceivedTracesComeFromTheSelectedPathAfterTheWait) {
    // The high-order trace of VC-4 1 (64 bytes: HR+4 bit 0 set); low-order: J1 of the VC-3 of TUG-3 2
    // (16 bytes with bit 0 of LR+4 clear), J2 of a VC-12. Each page selection waits 50 x 10 ms.
    paths().setTrace(Page::RxHo, 1, text("RECEIVED ON VC-4 1", 64));
    paths().setTrace(Page::RxHo, 0, text("WRONG PATH", 64));
    paths().setTrace(Page::RxLo, 128 * 2 + 64, text("VC3 RX", 64));
    paths().setTrace(Page::RxLo, 128 * 2 + 32 + 5, text("J2 RX", 16));
    model.poke(hr(1) + 4, 0xFFFF);
    model.poke(lr(2, 64) + 4, 0xFFFE);
    VQ6192_Platform_ResetVirtualTime();
    uint8_t hoMode = 9, loMode = 9, j2Mode = 9, ho[64] = {}, lo[64] = {}, j2[64] = {};
    EXPECT_EQ(
        (Ints{VQ6192_SDH_GetRxHpJ1(kChip, 1, &hoMode, ho), hoMode,
              int64_t(VQ6192_Platform_GetVirtualTimeUs()), VQ6192_SDH_GetRxLpJ1(kChip, 2, 2, &loMode, lo),
              loMode, VQ6192_SDH_GetRxLpJ2(kChip, 2, 1, 5, &j2Mode, j2), j2Mode,
              int64_t(VQ6192_Platform_GetVirtualTimeUs()), int64_t(paths().earlyReads(Page::RxHo)),
              int64_t(paths().earlyReads(Page::RxLo))}),
        ints(0, 2, 50 * 10000, 0, 1, 0, 0, 3 * 50 * 10000, 0, 0));
    EXPECT_EQ(std::vector<uint8_t>(ho, ho + 64), text("RECEIVED ON VC-4 1", 64));
    EXPECT_EQ(std::vector<uint8_t>(lo, lo + 16), text("VC3 RX", 16));
    EXPECT_EQ(std::vector<uint8_t>(j2, j2 + 16), text("J2 RX", 16));
}

// The receiver compares against a signature in LR+6: bit 15 kept, the CRC-7 in bits 14..8 and the low
// byte of the byte sum. 16 bytes: CRC of the trace with its first byte as 0x80, sum of bytes 1..15; 64
// bytes (LR+4 bit 0 set): CRC and sum of the trace with CR LF as bytes 62, 63, which also go to LR+8.
TEST_F(SdhTraceTest, ExpectedTraceSignatures) {
    auto msg = text(
        "\x01"
        "EXPECTED J1 TRACE",
        64);
    const uint32_t vc3 = lr(3, 32);
    for (auto [mode, longTrace] : {std::pair{0u, false}, {1u, false}, {4u, false}, {2u, true}}) {
        model.poke(vc3 + 4, longTrace ? 0xFFFE : 0xFFFF);
        model.poke(vc3 + 6, 0x8000);
        model.poke(vc3 + 8, 0x1234);
        auto t = msg;
        t[62] = 0x0D;
        t[63] = 0x0A;
        const std::vector<uint8_t> s16(t.begin(), t.begin() + 16);
        const uint32_t crc = longTrace ? referenceCrc7(t) : traceHead(s16) & 0x7F;
        const uint32_t sum = longTrace ? std::accumulate(t.begin(), t.begin() + 62, 0u)
                                       : std::accumulate(s16.begin() + 1, s16.end(), 0u);
        uint8_t gotMode, gcrc, gsum;
        uint16_t last;
        EXPECT_EQ((Ints{VQ6192_SDH_SetRxLpShouldJ1(kChip, 3, 1, mode, msg.data()), model.peek(vc3 + 6),
                        model.peek(vc3 + 4), model.peek(vc3 + 8),
                        VQ6192_SDH_GetRxLpShouldJ1(kChip, 3, 1, &gotMode, &gcrc, &gsum, &last), gotMode, gcrc,
                        gsum}),
                  ints(0, 0x8000 | (crc << 8) | (sum & 0xFF), longTrace ? 0xFFFF : 0xFFFE,
                       longTrace ? 0x0D0A : 0x1234, 0, longTrace ? 2 : 0, crc, sum & 0xFF))
            << mode;
    }
    // J2: 16 bytes, only LR+6 of the VC-12 changes.
    const uint32_t vc12 = lr(0, 32 * 2 + 20);
    model.poke(vc12 + 4, 0xFFFF);
    const std::vector<uint8_t> s(msg.begin(), msg.begin() + 16);
    const uint32_t crc = traceHead(s) & 0x7F, sum = std::accumulate(s.begin() + 1, s.end(), 0u) & 0xFF;
    uint8_t gcrc, gsum;
    EXPECT_EQ(
        (Ints{VQ6192_SDH_SetRxLpShouldJ2(kChip, 0, 2, 20, msg.data(), 7), model.peek(vc12 + 6),
              model.peek(vc12 + 4), VQ6192_SDH_GetRxLpShouldJ2(kChip, 0, 2, 20, &gcrc, &gsum), gcrc, gsum}),
        ints(0, (crc << 8) | sum, 0xFFFF, 0, crc, sum));
}

TEST_F(SdhTraceTest, RefusalsTouchNothing) {
    const auto msg = text("X", 64);
    uint8_t m, b[64];
    expectRefused({
        {"hp j1 vc4 4", [&] { return VQ6192_SDH_SetTxHpJ1(kChip, 4, 0, msg.data(), 0); }},
        {"hp j1 mode 3", [&] { return VQ6192_SDH_SetTxHpJ1(kChip, 0, 3, msg.data(), 0); }},
        {"lp j1 tug3 3", [&] { return VQ6192_SDH_SetTxLpJ1(kChip, 0, 3, 0, msg.data()); }},
        {"lp j2 tu 28", [&] { return VQ6192_SDH_SetTxLpJ2(kChip, 0, 0, 28, 0, msg.data()); }},
        {"should j1 mode 3", [&] { return VQ6192_SDH_SetRxLpShouldJ1(kChip, 0, 0, 3, msg.data()); }},
        {"should j1 mode 5", [&] { return VQ6192_SDH_SetRxLpShouldJ1(kChip, 0, 0, 5, msg.data()); }},
        {"rx lp j1 vc4 4", [&] { return VQ6192_SDH_GetRxLpJ1(kChip, 4, 0, &m, b); }},
    });
}

}  // namespace
}  // namespace sdhtest
