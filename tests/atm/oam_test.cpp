// OAM cells and CRC-10: the CRC table and checks against an independent bitwise division, each cell
// kind built and pushed through the insertion FIFO, reported cells read back, the location ID and the
// per-connection OAM flags.
#include <array>
#include <tuple>

#include "atm/atm_fixture.h"
#include "vq6192/platform.h"

namespace {

using namespace atmtest;
using Cell = std::array<uint8_t, 53>;
using Word = vq6192::sim::AtmBlock::FifoWord;

// Remainder of a bit string (most significant bit first) divided by x^10 + x^9 + x^5 + x^4 + x + 1.
uint32_t polyMod(const uint8_t *bytes, size_t n) {
    uint32_t r = 0;
    for (size_t i = 0; i < n * 8; ++i) {
        r = r << 1 | (bytes[i / 8] >> (7 - i % 8) & 1u);
        if ((r & 0x400u) != 0) {
            r ^= 0x633u;
        }
    }
    return r;
}

// A payload with its CRC field (the last ten bits) filled by long division.
void seal(uint8_t *payload) {
    payload[46] &= 0xFC;
    payload[47] = 0;
    const uint32_t crc = polyMod(payload, 48);
    payload[46] |= static_cast<uint8_t>(crc >> 8);
    payload[47] = static_cast<uint8_t>(crc);
}

// An OAM cell: header byte 3, OAM type and function in byte 5, the rest of the payload 0x6A from
// byte `fillFrom`, the CRC-10 sealed over bytes 5..52.
Cell oamCell(uint8_t byte3, uint8_t func, int fillFrom = 6, const std::vector<uint8_t> &body = {}) {
    Cell c{};
    c[3] = byte3;
    c[5] = func;
    std::copy(body.begin(), body.end(), c.begin() + 6);
    std::fill(c.begin() + fillFrom, c.end(), 0x6A);
    seal(c.data() + 5);
    return c;
}

std::vector<Word> fifoWords(uint16_t vcx, const Cell &c) {
    std::vector<Word> w = {{vcx, true, false}, {0, false, false}};
    for (int k = 2; k <= 14; ++k) {
        const uint8_t *b = c.data() + 4 * k - 8;
        w.push_back({uint32_t(b[0]) << 24 | uint32_t(b[1]) << 16 | uint32_t(b[2]) << 8 | b[3], false, false});
    }
    w.push_back({uint32_t(c[52]) << 24, false, true});
    return w;
}

class OamTest : public AtmTest {};

TEST_F(OamTest, Crc10TableAndChecks) {
    ASSERT_EQ(VQ6192_ATM_gen_byte_crc10_table(kChip), 0u);
    // Entry i is i x^10 modulo the generator (entry 1 0x233, 2 0x255, 128 0x188, 255 0x0E1).
    for (uint32_t i = 0; i < 256; ++i) {
        const uint8_t b[3] = {static_cast<uint8_t>(i >> 6), static_cast<uint8_t>(i << 2), 0};  // i << 10
        EXPECT_EQ(g_VQ6192_byte_crc10_table[kChip][i], polyMod(b, 3)) << i;
    }
    uint32_t seed = 12345;
    for (int n = 0; n < 20; ++n) {
        uint8_t p[48];
        for (uint8_t &b : p) {
            seed = seed * 1103515245u + 12345u;
            b = static_cast<uint8_t>(seed >> 16);
        }
        SCOPED_TRACE(n);
        EXPECT_EQ(VQ6192_ATM_crc10(kChip, p, 0), polyMod(p, 48)) << "check of an unsealed payload";
        uint8_t sealed[48];
        std::copy(p, p + 48, sealed);
        seal(sealed);
        EXPECT_EQ(VQ6192_ATM_crc10(kChip, p, 1), uint32_t(sealed[46] & 3u) << 8 | sealed[47]);
        EXPECT_TRUE(std::equal(p, p + 48, sealed)) << "CRC written, reserved bits kept";
        EXPECT_EQ(VQ6192_ATM_crc10(kChip, p, 0), 0u) << "a sealed payload checks to 0";
    }
    const uint8_t data[3] = {1, 2, 3};  // no bytes to add: the CRC as it was
    EXPECT_EQ((V{VQ6192_ATM_update_crc10_by_bytes(kChip, 0x155, data, 0),
                 VQ6192_ATM_update_crc10_by_bytes(kChip, 0x155, data, -4)}),
              (V{0x155, 0x155}));
}

TEST_F(OamTest, FaultManagementCells) {
    const std::tuple<uint32_t, uint32_t, uint32_t, uint8_t> cases[] = {
        {1, 0, 16, 0x30}, {2, 0, 16, 0x40}, {1, 1, 17, 0x08}, {2, 1, 20, 0x0A}, {2, 0, 20, 0x40},
    };
    for (const auto &[flow, level, func, byte3] : cases) {
        SCOPED_TRACE(testing::Message() << flow << "/" << level << "/" << func);
        Cell got;
        got.fill(0xEE);
        ASSERT_EQ(VQ6192_ATM_FillInsOamCell(kChip, flow, level, func, got.data()), 0u);
        EXPECT_EQ(got, oamCell(byte3, static_cast<uint8_t>(func)));
        uint8_t b3 = 0;
        EXPECT_EQ((V{VQ6192_ATM_FillInsertCellHead(kChip, flow, level, &b3), b3}), (V{0, byte3}));
    }
    // The F4 end-to-end AIS cell: CRC-10 0x2DC in its last two bytes.
    Cell ais{};
    ASSERT_EQ(VQ6192_ATM_FillInsOamCell(kChip, 2, 0, 16, ais.data()), 0u);
    EXPECT_EQ((V{ais[51], ais[52]}), (V{0x6A, 0xDC}));
    uint8_t b3 = 0x55;
    EXPECT_EQ(
        (V32{VQ6192_ATM_FillInsertCellHead(kChip, 3, 0, &b3), VQ6192_ATM_FillInsertCellHead(kChip, 1, 2, &b3),
             VQ6192_ATM_FillInsOamCell(kChip, 1, 0, 18, ais.data())}),
        V32(3, kPara));
    EXPECT_EQ(b3, 0x55);
}

TEST_F(OamTest, EachCellKindIsPushedWordByWord) {
    const std::tuple<const char *, decltype(&VQ6192_ATM_InsertAISCell), uint8_t> cases[] = {
        {"AIS", VQ6192_ATM_InsertAISCell, 0x10},
        {"RDI", VQ6192_ATM_InsertRDICell, 0x11},
        {"CC", VQ6192_ATM_InsertCCCell, 0x14}};
    for (const auto &[name, insert, func] : cases) {
        SCOPED_TRACE(name);
        VQ6192_ATM_SetOamFifoClear(kChip, 1);
        ASSERT_EQ(insert(kChip, 8191, 1, 1), 0u);
        EXPECT_EQ(atm().inserted(), fifoWords(8191, oamCell(0x08, func)));
        model.clearTrace();
        EXPECT_EQ((V32{insert(kChip, 8192, 1, 1), insert(kChip, 1, 0, 1)}), V32(2, kPara));
        EXPECT_TRUE(model.trace().empty());
    }
    VQ6192_ATM_SetOamFifoClear(kChip, 1);
    // Loopback: indication 1, correlation tag, location ID, source ID.
    std::vector<uint8_t> body = {1, 1, 2, 3, 4};
    for (int i = 0; i < 32; ++i) {
        body.push_back(static_cast<uint8_t>(i < 16 ? 0xA0 + i : 0x10 + i - 16));
    }
    ASSERT_EQ(VQ6192_ATM_InsertLBCell(kChip, 77, body.data() + 5, body.data() + 21, 0x01020304, 2, 0, 1), 0u);
    const Cell want = oamCell(0x40, 0x18, 43, body);
    EXPECT_EQ(atm().inserted(), fifoWords(77, want));
    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_InsertLBCell(kChip, 77, body.data(), body.data(), 1, 2, 0, 2),
                   VQ6192_ATM_InsertLBCell(kChip, 77, nullptr, body.data(), 1, 2, 0, 1),
                   VQ6192_ATM_InsertOamCell(kChip, 8192, want.data())}),
              V32(3, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(OamTest, ReportedCellsAndTheGuardedReadOfTheirFlag) {
    Cell cell;
    for (int i = 0; i < 53; ++i) {
        cell[i] = static_cast<uint8_t>(i * 7 + 1);
    }
    for (auto get : {VQ6192_ATM_GetOamCell, VQ6192_ATM_GetOamCellTest}) {
        atm().pushReportWord({0xDEAD, false, false});  // the tail of an earlier cell
        atm().reportCell(0x1ABC, cell);
        uint16_t vcx = 0;
        Cell got{};
        ASSERT_EQ(get(kChip, &vcx, got.data()), 0u);
        EXPECT_EQ(vcx, 0x1ABC);
        EXPECT_EQ(got, cell);
        EXPECT_EQ(atm().reportWordsLeft(), 0u);

        // Empty: the outputs stay as they were, and nothing is traced.
        capture.clear();
        vcx = 5;
        got.fill(9);
        EXPECT_EQ(get(kChip, &vcx, got.data()), kPara);
        EXPECT_EQ((V{vcx, got[0]}), (V{5, 9}));
        EXPECT_TRUE(capture.traceTexts().empty());

        // No start of cell within 17 words.
        for (int i = 0; i < 20; ++i) {
            atm().pushReportWord({1, false, false});
        }
        EXPECT_EQ(get(kChip, &vcx, got.data()), kPara);
        EXPECT_EQ(atm().reportWordsLeft(), 3u);
        VQ6192_ATM_SetOamCapFifoClear(kChip);
        EXPECT_EQ(atm().reportWordsLeft(), 0u);
    }

    // The report flag read refused by the lock.
    atm().reportCell(3, Cell{});
    uint16_t vcx = 0;
    Cell got{};
    VQ6192_Platform_FailSemTakes(0, 1);
    EXPECT_EQ(VQ6192_ATM_GetOamCellTest(kChip, &vcx, got.data()), 0x03020003u);
    EXPECT_TRUE(capture.traceTexts().empty());
    EXPECT_TRUE(capture.logTexts().empty());
    model.refuseArbitration(1);
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_GetOamCellTest(kChip, &vcx, got.data()), 0x03020008u);
    EXPECT_EQ(capture.logTexts(),
              (std::vector<std::string>{"chip 3 pwe3 read reg get attrb fail oam,addr 0xa262"}));
    VQ6192_Platform_FailSemGives(0, 1);
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_GetOamCellTest(kChip, &vcx, got.data()), 0x03020008u);
    EXPECT_EQ(capture.logTexts(),
              (std::vector<std::string>{"chip 3 pwe3 read reg give sem fail,addr 0xa262"}));
    EXPECT_EQ((V{VQ6192_ATM_GetOamCellTest(kChip, &vcx, got.data()), vcx}), (V{0, 3}))
        << "read once let through";
}

TEST_F(OamTest, LocationId) {
    model.poke(0xA284, 0xFFFE);
    const uint8_t id[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    // Invalid while rewritten, ID bytes 0 and 1 in 0xA282 down to bytes 14 and 15 in 0xA274, valid again.
    const auto w = traced([&] { ASSERT_EQ(VQ6192_ATM_SetOamLLID(kChip, id), 0u); });
    V got;
    for (const auto &a : vqtest::writes(w)) {
        got.insert(got.end(), {a.addr, a.value});
    }
    EXPECT_EQ(got, (V{0xA284, 0xFFFE, 0xA282, 0x0001, 0xA280, 0x0203, 0xA27E, 0x0405, 0xA27C, 0x0607,
                      0xA27A, 0x0809, 0xA278, 0x0A0B, 0xA276, 0x0C0D, 0xA274, 0x0E0F, 0xA284, 0xFFFF}));
    uint8_t back[16] = {};
    ASSERT_EQ(VQ6192_ATM_GetOamLLID(kChip, back), 0u);
    EXPECT_TRUE(std::equal(id, id + 16, back));
}

TEST_F(OamTest, ContinuityCheckSegmentEndsAndAutomaticInsertion) {
    const std::tuple<uint32_t, uint32_t, uint32_t, uint32_t, uint32_t> cases[] = {
        {0x0, 1, 1, 0xA, 1}, {0x0, 1, 2, 0x5, 2}, {0x0, 1, 3, 0xF, 3}, {0x0, 2, 3, 0xC, 3},
        {0xF, 1, 0, 0x0, 0}, {0xF, 0, 4, 0x5, 2}, {0xF, 0, 5, 0xA, 1}, {0x5, 0, 1, 0xD, 3},
    };
    // Start flags 46..49, flow type, action, flags after, reported state.
    for (const auto &[start, flowType, action, bits4649, wantState] : cases) {
        SCOPED_TRACE(testing::Message() << "action " << action << " type " << flowType);
        setBits(kVct, 8191, 0, 69, ~0ull);
        setBits(kVct, 8191, 64, 5, 0x1F);
        setBits(kVct, 8191, 46, 4, start);
        ASSERT_EQ(VQ6192_ATM_SetOamLinkCC(kChip, 8191, flowType, action), 0u);
        EXPECT_EQ((fields(kVct, 8191, {{46, 4}, {0, 46}, {50, 19}})),
                  (V{bits4649, (1ull << 46) - 1, 0x7FFFF}));
        uint8_t src = 9, sink = 9;
        uint32_t state = 9;
        ASSERT_EQ(VQ6192_ATM_GetOamLinkCC(kChip, 8191, &src, &sink, &state), 0u);
        EXPECT_EQ((V{state, src, sink}), (V{wantState, bits4649 >> 1 & 1u, bits4649 & 1u}));
    }
    for (uint32_t type = 0; type < 4; ++type) {
        setBits(kVct, 9, 0, 69, ~0ull);
        setBits(kVct, 9, 64, 5, 0x1F);
        ASSERT_EQ(VQ6192_ATM_SetOamSegEnd(kChip, 9, type), 0u);
        // Segment point 51, end point 50.
        EXPECT_EQ((fields(kVct, 9, {{51, 1}, {50, 1}, {0, 50}})),
                  (V{type & 1u, type >> 1, (1ull << 50) - 1}));
        uint32_t back = 9;
        EXPECT_EQ((V{VQ6192_ATM_GetOamSegEnd(kChip, 9, &back), back}), (V{0, type}));
    }
    const uint32_t bitOf[4] = {45, 44, 43, 42};  // segment AIS, end AIS, segment RDI, end RDI
    for (uint32_t kind = 0; kind < 4; ++kind) {
        setBits(kVct, 9, 0, 69, 0);
        ASSERT_EQ(VQ6192_ATM_SetOamAutoInsertEn(kChip, 9, kind, 1), 0u);
        EXPECT_EQ(bits(kVct, 9, 0, 64), 1ull << bitOf[kind]);
        uint8_t en = 0;
        EXPECT_EQ((V{VQ6192_ATM_GetOamAutoInsertEnStat(kChip, 9, kind, &en), en}), (V{0, 1}));
    }
    model.clearTrace();
    EXPECT_EQ(
        (V32{VQ6192_ATM_SetOamLinkCC(kChip, 8192, 1, 1), VQ6192_ATM_SetOamLinkCC(kChip, 1, 3, 1),
             VQ6192_ATM_SetOamLinkCC(kChip, 1, 1, 6), VQ6192_ATM_SetOamSegEnd(kChip, 9, 4),
             VQ6192_ATM_SetOamAutoInsertEn(kChip, 9, 4, 1), VQ6192_ATM_SetOamAutoInsertEn(kChip, 9, 0, 2)}),
        V32(6, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(OamTest, LossOfContinuityVcxFifoAndCrcCheck) {
    model.poke(0xA008, 0xFFE0);
    atm().setCcloc(8192, true);
    uint8_t loc = 0;
    ASSERT_EQ(VQ6192_ATM_GetOamCcloc(kChip, 8192, &loc), 0x030C0001u) << "the status table ends at 8191";
    atm().setCcloc(100, true);
    model.clearTrace();
    ASSERT_EQ(VQ6192_ATM_GetOamCcloc(kChip, 100, &loc), 0u);
    EXPECT_EQ(loc, 1);
    const auto w = vqtest::writes(model.trace());
    ASSERT_GE(w.size(), 2u);
    EXPECT_EQ((V{w.front().addr, w.front().value, w.back().addr, w.back().value}),
              (V{0xA008, 0xFFF0, 0xA008, 0xFFFF}));
    atm().setCcloc(100, false);
    ASSERT_EQ(VQ6192_ATM_GetOamCcloc(kChip, 100, &loc), 0u);
    EXPECT_EQ(loc, 0);

    model.poke(0xA2C0, 0xFFFE);
    ASSERT_EQ(VQ6192_ATM_SetOamCrcEn(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0xA2C0), 0xFFFF);
    uint8_t en = 0;
    EXPECT_EQ((V{VQ6192_ATM_GetOamCrcEnStat(kChip, &en), en}), (V{0, 1}));
    EXPECT_EQ(VQ6192_ATM_SetOamCrcEn(kChip, 2), kPara);
}

}  // namespace
