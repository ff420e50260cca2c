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

TEST(TraceCrc, KnownValues) {
    struct Case {
        const char *name;
        std::vector<uint8_t> bytes;
        uint32_t useFirst;
        uint8_t expected;
    };
    // The SD card command CRC uses the same CRC-7: CMD0, CMD8 and CMD17 frames carry 0x95, 0x87 and
    // 0x55 as (CRC << 1) | 1.
    const std::vector<uint8_t> zeros16(16, 0);
    const Case cases[] = {
        {"cmd0", {0x40, 0, 0, 0, 0}, 1, 0x80 | (0x95 >> 1)},
        {"cmd8", {0x48, 0, 0, 0x01, 0xAA}, 1, 0x80 | (0x87 >> 1)},
        {"cmd17", {0x51, 0, 0, 0, 0}, 1, 0x80 | (0x55 >> 1)},
        {"first byte as 0x80",
         {0x00, 0, 0, 0, 0},
         0,
         static_cast<uint8_t>(0x80 | referenceCrc7({0x80, 0, 0, 0, 0}))},
        {"16 zeros", zeros16, 0, traceHead(zeros16)},
        {"empty", {0x12}, 0, 0x80},
    };
    for (const Case &c : cases) {
        const uint8_t len = static_cast<uint8_t>(std::string(c.name) == "empty" ? 0 : c.bytes.size());
        EXPECT_EQ(VQ6192_SDH_GetCRC7(3, c.bytes.data(), len, c.useFirst), c.expected) << c.name;
    }
    // No buffer: the CRC of an empty trace.
    EXPECT_EQ(VQ6192_SDH_GetCRC7(3, nullptr, 16, 0), 0x80);
}

using SdhTraceTest = SdhTest;

TEST_F(SdhTraceTest, HighOrderJ1SentThroughThePageOfItsVc4) {
    const auto msg = text("\x01VQ6192 LINE 1 A", 64);
    for (uint32_t mode : {0u, 1u, 2u}) {
        for (uint32_t n = 0; n < 12; ++n) {
            model.poke(0x2DCC0 + 0x20 * n, static_cast<uint16_t>(mode == 2 ? 0xFFFE : 0xFFFF));
            model.poke(0x2DCC4 + 0x20 * n, 0xFFFE);
        }
        ASSERT_EQ(VQ6192_SDH_SetTxHpJ1(kChip, 2, mode, msg.data(), 1), 0u) << mode;
        const size_t len = mode == 2 ? 64 : 16;
        auto expected = std::vector<uint8_t>(msg.begin(), msg.begin() + len);
        if (mode == 1) {
            expected[0] = traceHead(expected);
        }
        EXPECT_EQ(paths().trace(Page::TxHo, 2, len), expected) << mode;
        for (uint32_t n = 0; n < 12; ++n) {
            const bool mine = n % 4 == 2;
            // 64-byte flag and pass-through in the VC-4's three blocks only; other bits untouched.
            EXPECT_EQ(model.peek(0x2DCC0 + 0x20 * n),
                      mine ? (mode == 2 ? 0xFFFF : 0xFFFE) : (mode == 2 ? 0xFFFE : 0xFFFF))
                << mode << " " << n;
            EXPECT_EQ(model.peek(0x2DCC4 + 0x20 * n), mine ? 0xFFFF : 0xFFFE) << mode << " " << n;
        }
        uint8_t readMode = 9, pass = 9;
        uint8_t back[64] = {};
        ASSERT_EQ(VQ6192_SDH_GetTxHpJ1(kChip, 2, &readMode, back, &pass), 0u);
        EXPECT_EQ(ints(readMode, pass), ints(mode == 2 ? 2 : 0, 1));
        EXPECT_EQ(std::vector<uint8_t>(back, back + len), expected);
    }
    // The other VC-4s' traces are untouched.
    EXPECT_EQ(paths().trace(Page::TxHo, 1, 16), std::vector<uint8_t>(16, 0));
}

TEST_F(SdhTraceTest, LowOrderTracesAndTheirEndings) {
    auto msg = text("\x01VC3 TRACE", 64);
    msg[62] = 'x';
    msg[63] = 'y';
    ASSERT_EQ(VQ6192_SDH_SetTxLpJ1(kChip, 1, 2, 2, msg.data()), 0u);
    auto sent = paths().trace(Page::TxLo, 128 * 1 + 64, 64);
    EXPECT_EQ(ints(sent[62], sent[63]), ints(0x0D, 0x0A));
    EXPECT_EQ(std::vector<uint8_t>(sent.begin(), sent.begin() + 62),
              std::vector<uint8_t>(msg.begin(), msg.begin() + 62));
    EXPECT_EQ(model.peek(0x2DE60 + 0x4000 + 8 * 64) & 1u, 1u);

    ASSERT_EQ(VQ6192_SDH_SetTxLpJ1(kChip, 1, 2, 1, msg.data()), 0u);
    sent = paths().trace(Page::TxLo, 128 * 1 + 64, 16);
    EXPECT_EQ(sent[0], traceHead(std::vector<uint8_t>(msg.begin(), msg.begin() + 16)));
    EXPECT_EQ(model.peek(0x2DE60 + 0x4000 + 8 * 64) & 1u, 0u);
    uint8_t mode = 9;
    uint8_t back[64] = {};
    ASSERT_EQ(VQ6192_SDH_GetTxLpJ1(kChip, 1, 2, &mode, back), 0u);
    EXPECT_EQ(mode, 1);
    EXPECT_EQ(std::vector<uint8_t>(back, back + 16), sent);

    // J2 of VC-12 (v 3, k 1, t 27): channel 59; modes 0 and 2 send the bytes as given.
    const auto j2 = text("\x55J2 TRACE 27", 16);
    for (uint32_t m : {0u, 2u, 1u}) {
        ASSERT_EQ(VQ6192_SDH_SetTxLpJ2(kChip, 3, 1, 27, m, j2.data()), 0u);
        auto expected = j2;
        if (m == 1) {
            expected[0] = traceHead(j2);
        }
        EXPECT_EQ(paths().trace(Page::TxLo, 128 * 3 + 59, 16), expected) << m;
        uint8_t b16[16] = {};
        ASSERT_EQ(VQ6192_SDH_GetTxLpJ2(kChip, 3, 1, 27, b16), 0u);
        EXPECT_EQ(std::vector<uint8_t>(b16, b16 + 16), expected);
    }
}

TEST_F(SdhTraceTest, ReceivedTracesComeFromTheSelectedPathAfterTheWait) {
    auto longTrace = text("RECEIVED ON VC-4 1", 64);
    paths().setTrace(Page::RxHo, 1, longTrace);
    paths().setTrace(Page::RxHo, 0, text("WRONG PATH", 64));
    model.poke(0x2C040 + 0x40 * 1 + 4, 0xFFFF);
    VQ6192_Platform_ResetVirtualTime();
    uint8_t mode = 9;
    uint8_t msg[64] = {};
    ASSERT_EQ(VQ6192_SDH_GetRxHpJ1(kChip, 1, &mode, msg), 0u);
    EXPECT_EQ(mode, 2);
    EXPECT_EQ(std::vector<uint8_t>(msg, msg + 64), longTrace);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 50u * 10000u);
    EXPECT_EQ(paths().earlyReads(Page::RxHo), 0u);

    // Low-order: J1 of the VC-3 of TUG-3 2 (16 bytes with bit 0 of LR+4 clear), J2 of a VC-12.
    const uint32_t vc3 = 128 * 2 + 64;
    paths().setTrace(Page::RxLo, vc3, text("VC3 RX", 64));
    model.poke(0x2C380 + 0x4000 * 2 + 0x40 * 64 + 4, 0xFFFE);
    ASSERT_EQ(VQ6192_SDH_GetRxLpJ1(kChip, 2, 2, &mode, msg), 0u);
    EXPECT_EQ(mode, 1);
    EXPECT_EQ(std::vector<uint8_t>(msg, msg + 16), text("VC3 RX", 16));
    paths().setTrace(Page::RxLo, 128 * 2 + 32 + 5, text("J2 RX", 16));
    ASSERT_EQ(VQ6192_SDH_GetRxLpJ2(kChip, 2, 1, 5, &mode, msg), 0u);
    EXPECT_EQ(mode, 0);
    EXPECT_EQ(std::vector<uint8_t>(msg, msg + 16), text("J2 RX", 16));
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 3u * 50u * 10000u);
    EXPECT_EQ(paths().earlyReads(Page::RxLo), 0u);
}

TEST_F(SdhTraceTest, ExpectedTraceSignatures) {
    auto msg = text(
        "\x01"
        "EXPECTED J1 TRACE",
        64);
    struct Case {
        uint32_t mode;
        bool longTrace;
    };
    const uint32_t lr = 0x2C380 + 0x4000 * 3 + 0x40 * 32;  // VC-4 3, VC-3 of TUG-3 1
    for (Case c : {Case{0, false}, Case{1, false}, Case{4, false}, Case{2, true}}) {
        model.poke(lr + 4, c.longTrace ? 0xFFFE : 0xFFFF);
        model.poke(lr + 6, 0x8000);
        model.poke(lr + 8, 0x1234);
        ASSERT_EQ(VQ6192_SDH_SetRxLpShouldJ1(kChip, 3, 1, c.mode, msg.data()), 0u) << c.mode;
        auto t = msg;
        t[62] = 0x0D;
        t[63] = 0x0A;
        uint32_t crc, sum;
        if (c.longTrace) {
            crc = referenceCrc7(t);
            sum = std::accumulate(t.begin(), t.begin() + 62, 0u);
        } else {
            std::vector<uint8_t> s(t.begin(), t.begin() + 16);
            crc = traceHead(s) & 0x7F;
            sum = std::accumulate(s.begin() + 1, s.end(), 0u);
        }
        EXPECT_EQ(model.peek(lr + 6), 0x8000 | (crc << 8) | (sum & 0xFF)) << c.mode;
        EXPECT_EQ(model.peek(lr + 4), c.longTrace ? 0xFFFF : 0xFFFE) << c.mode;
        EXPECT_EQ(model.peek(lr + 8), c.longTrace ? 0x0D0A : 0x1234) << c.mode;
        uint8_t mode, gcrc, gsum;
        uint16_t last;
        ASSERT_EQ(VQ6192_SDH_GetRxLpShouldJ1(kChip, 3, 1, &mode, &gcrc, &gsum, &last), 0u);
        EXPECT_EQ(ints(mode, gcrc, gsum), ints(c.longTrace ? 2 : 0, crc, sum & 0xFF));
    }
    // J2: 16 bytes, only LR+6 of the VC-12 changes.
    const uint32_t lr12 = 0x2C380 + 0x40 * (32 * 2 + 20);
    model.poke(lr12 + 4, 0xFFFF);
    ASSERT_EQ(VQ6192_SDH_SetRxLpShouldJ2(kChip, 0, 2, 20, msg.data(), 7), 0u);
    std::vector<uint8_t> s(msg.begin(), msg.begin() + 16);
    const uint32_t crc = traceHead(s) & 0x7F;
    const uint32_t sum = std::accumulate(s.begin() + 1, s.end(), 0u) & 0xFF;
    EXPECT_EQ(model.peek(lr12 + 6), (crc << 8) | sum);
    EXPECT_EQ(model.peek(lr12 + 4), 0xFFFF);
    uint8_t gcrc, gsum;
    ASSERT_EQ(VQ6192_SDH_GetRxLpShouldJ2(kChip, 0, 2, 20, &gcrc, &gsum), 0u);
    EXPECT_EQ(ints(gcrc, gsum), ints(crc, sum));
}

TEST_F(SdhTraceTest, RefusalsTouchNothing) {
    const auto msg = text("X", 64);
    uint8_t m, b[64];
    expectRefused({
        {"hp j1 vc4 4", [&] { return VQ6192_SDH_SetTxHpJ1(kChip, 4, 0, msg.data(), 0); }},
        {"hp j1 mode 3", [&] { return VQ6192_SDH_SetTxHpJ1(kChip, 0, 3, msg.data(), 0); }},
        {"hp j1 null", [&] { return VQ6192_SDH_SetTxHpJ1(kChip, 0, 0, nullptr, 0); }},
        {"lp j1 tug3 3", [&] { return VQ6192_SDH_SetTxLpJ1(kChip, 0, 3, 0, msg.data()); }},
        {"lp j2 tu 28", [&] { return VQ6192_SDH_SetTxLpJ2(kChip, 0, 0, 28, 0, msg.data()); }},
        {"should j1 mode 3", [&] { return VQ6192_SDH_SetRxLpShouldJ1(kChip, 0, 0, 3, msg.data()); }},
        {"should j1 mode 5", [&] { return VQ6192_SDH_SetRxLpShouldJ1(kChip, 0, 0, 5, msg.data()); }},
        {"should j2 null", [&] { return VQ6192_SDH_SetRxLpShouldJ2(kChip, 0, 0, 0, nullptr, 0); }},
        {"rx hp j1 null", [&] { return VQ6192_SDH_GetRxHpJ1(kChip, 0, &m, nullptr); }},
        {"rx lp j1 vc4 4", [&] { return VQ6192_SDH_GetRxLpJ1(kChip, 4, 0, &m, b); }},
    });
    expectRefused({{"bad chip", [&] { return VQ6192_SDH_SetTxHpJ1(264, 0, 0, msg.data(), 0); }}}, 0x08080001,
                  false);
}

}  // namespace
}  // namespace sdhtest
