// Path overhead bytes through their pages, insertion enables, error insertion and its refusals, REI /
// enhanced RDI modes and consequent actions; path alarms, counters and pointer adjustments decoded from
// injected chip states, and the masks and chip-wide controls.
#include "sdh/sdh_test.h"

namespace sdhtest {
namespace {

using SdhOverheadTest = SdhTest;

TEST_F(SdhOverheadTest, HighOrderBytesAndTheirInsertionEnables) {
    // Byte type, its paged register, and its insertion enable in TH(n)+4 (-1: none).
    const struct {
        uint32_t type, reg;
        int enableBit;
    } cases[] = {{0, 0x2DCA2, 4},  {1, 0x2DCA6, 8},  {2, 0x2DCAA, 6}, {3, 0x2DCA8, 10},
                 {4, 0x2DCAC, 12}, {5, 0x2DCAE, 14}, {6, 0x2DCA4, -1}};
    for (const auto &c : cases) {
        for (uint32_t mode : {1u, 0u}) {
            const uint16_t before = mode == 1 ? 0x0003 : 0xFFF3;
            fill12(th, 4, before);
            const uint32_t value = 0x40 + c.type;
            uint8_t v = 0, m = 9;
            EXPECT_EQ((Ints{VQ6192_SDH_SetTxHpByte(kChip, 3, c.type, value, mode),
                            paths().paged(Page::TxHo, 3, c.reg) & 0xFF, paths().paged(Page::TxHo, 0, c.reg),
                            VQ6192_SDH_GetTxHpByte(kChip, 3, c.type, &v, &m), v, m}),
                      ints(0, value, 0, 0, value, mode))
                << c.type;
            EXPECT_EQ(peek12(th, 4),
                      ofVc4(3, c.enableBit < 0 ? before : before ^ (1u << c.enableBit), before))
                << c.type << " mode " << mode;
        }
    }
}

TEST_F(SdhOverheadTest, HighOrderByteTypesTwoSixAndSeven) {
    // Type 2: low bits copied into HR(n)+0 bits 6..5, TH(n)+2 bit 5 says "not 0xFF".
    fill12(hr, 0, 0xFF9F);
    fill12(th, 2, 0xFFFF);
    ASSERT_EQ(VQ6192_SDH_SetTxHpByte(kChip, 1, 2, 0x16, 1), 0u);
    EXPECT_EQ(peek12(hr, 0), ofVc4(1, 0xFFDF, 0xFF9F));
    EXPECT_EQ(peek12(th, 2), ofVc4(1, 0xFFFF, 0xFFFF));
    ASSERT_EQ(VQ6192_SDH_SetTxHpByte(kChip, 1, 2, 0xFF, 1), 0u);
    EXPECT_EQ(ints(model.peek(th(5) + 2), model.peek(hr(5))), ints(0xFFDF, 0xFFFF));

    // Type 6 mode 1: TH(n)+0 bit 1 set, bits 5..4 and 3..2 both 2; the getter refuses other encodings.
    model.poke(th(0), 0xFFC1);
    uint8_t v, m, m0;
    EXPECT_EQ(
        (Ints{VQ6192_SDH_SetTxHpByte(kChip, 0, 6, 0x5A, 1), model.peek(th(0)), model.peek(th(4)),
              VQ6192_SDH_GetTxHpByte(kChip, 0, 6, &v, &m), v, m, VQ6192_SDH_SetTxHpByte(kChip, 0, 6, 0x5A, 0),
              VQ6192_SDH_GetTxHpByte(kChip, 0, 6, &v, &m0), m0}),
        ints(0, 0xFFC1 | 0x2 | (2u << 4) | (2u << 2), 0x0002 | (2u << 4) | (2u << 2), 0, 0x5A, 1, 0, 0, 0));
    model.poke(th(0), static_cast<uint16_t>((3u << 4) | (3u << 2)));
    EXPECT_EQ(VQ6192_SDH_GetTxHpByte(kChip, 0, 6, &v, &m), kPrereqErr);

    // Type 7: the B3 source select 0..2 in TH(n)+4 bits 3..2; the value in bits 7..0 of the selector.
    fill12(th, 4, 0xFFF3);
    ASSERT_EQ(VQ6192_SDH_SetTxHpByte(kChip, 2, 7, 0xA5, 2), 0u);
    EXPECT_EQ(peek12(th, 4), ofVc4(2, 0xFFFB, 0xFFF3));
    EXPECT_EQ((Ints{paths().paged(Page::TxHo, 2, 0x2DCA0), VQ6192_SDH_GetTxHpByte(kChip, 2, 7, &v, &m), v, m,
                    VQ6192_SDH_SetTxHpByte(kChip, 2, 6, 0, 2), VQ6192_SDH_SetTxHpByte(kChip, 2, 8, 0, 0)}),
              ints(0xA5, 0, 0xA5, 2, kParaErr, kParaErr));
}

TEST_F(SdhOverheadTest, ReceivedBytesOfEachPathKind) {
    VQ6192_Platform_ResetVirtualTime();
    // Received high-order byte types 0..6 and VC-3 byte types 0..6 share one layout.
    struct Loc {
        uint32_t offset, shift;
    };
    const Loc layout[7] = {{0x0, 0}, {0x2, 8}, {0x4, 0}, {0x4, 8}, {0x6, 0}, {0x6, 8}, {0x2, 0}};
    for (uint32_t type = 0; type < 7; ++type) {
        paths().setPaged(Page::RxHo, 2, 0x2C012 + layout[type].offset,
                         static_cast<uint16_t>((0x30 + type) << layout[type].shift));
        paths().setPaged(Page::RxLo, 128 * 1 + 32, 0x2C362 + layout[type].offset,
                         static_cast<uint16_t>((0x60 + type) << layout[type].shift));
        uint8_t ho = 0, lo = 0;
        EXPECT_EQ((Ints{VQ6192_SDH_GetRxHpByte(kChip, 2, type, &ho), ho,
                        VQ6192_SDH_GetRxLpVc3Byte(kChip, 1, 1, type, &lo), lo}),
                  ints(0, 0x30 + type, 0, 0x60 + type))
            << type;
        paths().setPaged(Page::RxHo, 2, 0x2C012 + layout[type].offset, 0);
        paths().setPaged(Page::RxLo, 128 * 1 + 32, 0x2C362 + layout[type].offset, 0);
    }
    // VC-12 byte types: V5 at 0x2C362 bits 7..0, 0x2C360, then both halves of 0x2C368.
    const uint32_t c = 32 * 2 + 9;
    paths().setPaged(Page::RxLo, 128 * 3 + c, 0x2C362, 0xAB71);
    paths().setPaged(Page::RxLo, 128 * 3 + c, 0x2C368, 0x7273);
    paths().setTrace(Page::RxLo, 128 * 3 + c, {0x74});
    for (auto [type, expected] : {std::pair{0u, 0x71}, {1u, 0x74}, {2u, 0x72}, {3u, 0x73}}) {
        uint8_t v = 0;
        EXPECT_EQ((Ints{VQ6192_SDH_GetRxLpVc12Byte(kChip, 3, 2, 9, type, &v), v}), ints(0, expected)) << type;
    }
    uint8_t v5 = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_GetRxLpV5(kChip, 3, 2, 9, &v5), v5}), ints(0, 0x71));
    // Every receive page read waited for the chip to fetch the path: 15 selections of 50 ticks.
    EXPECT_EQ(paths().earlyReads(Page::RxHo) + paths().earlyReads(Page::RxLo), 0u);
    EXPECT_EQ(paths().selections(Page::RxHo) + paths().selections(Page::RxLo), 19u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 19u * 500000u);
}

TEST_F(SdhOverheadTest, LowOrderTransmitBytesThroughTheirPage) {
    // VC-3 byte types 0..7 in their page registers (types 0..5 of VC-3 (1, 2), page 128 + 64, the G1 and
    // B3 types of VC-3 (0, 1), page 32); type 0 in software mode 1. Bit 7 set: every byte is eight bits.
    const uint32_t vc3Regs[8] = {0x2DE44, 0x2DE48, 0x2DE4C, 0x2DE4A, 0x2DE4E, 0x2DE50, 0x2DE46, 0x2DE42};
    for (uint32_t type = 0; type < 8; ++type) {
        const uint32_t v = type < 6 ? 1 : 0, k = type < 6 ? 2 : 1, value = 0xA1 + type;
        EXPECT_EQ((Ints{VQ6192_SDH_SetTxLpByte(kChip, v, k, type, type == 0 ? 1 : 0, value),
                        paths().paged(Page::TxLo, 128 * v + 32 * k, vc3Regs[type]) & 0xFF}),
                  ints(0, value))
            << type;
    }
    // V5 of VC-12 (2, 0, 13), K4 of (2, 1, 27) (channel 59) and N2 of the VC-3 (3, 2).
    EXPECT_EQ(
        (Ints{VQ6192_SDH_SetTxLpV5(kChip, 2, 0, 13, 0, 0xA9),
              paths().paged(Page::TxLo, 256 + 13, 0x2DE44) & 0xFF,
              VQ6192_SDH_SetTxLpK4(kChip, 2, 1, 27, 0, 0xAA),
              paths().paged(Page::TxLo, 256 + 59, 0x2DE4E) & 0xFF, VQ6192_SDH_SetTxLpN2(kChip, 3, 2, 0, 0xAB),
              paths().paged(Page::TxLo, 384 + 64, 0x2DE50) & 0xFF}),
        ints(0, 0xA9, 0, 0xAA, 0, 0xAB));
    uint8_t m = 9, v = 0, k = 0, n = 0;
    EXPECT_EQ(
        (Ints{VQ6192_SDH_GetTxLpByte(kChip, 1, 2, 3, &m, &v), v,
              VQ6192_SDH_GetTxLpK4(kChip, 2, 1, 27, &m, &k), k, VQ6192_SDH_GetTxLpN2(kChip, 3, 2, 0, &n), n}),
        ints(0, 0xA4, 0, 0xAA, 0, 0xAB));
}

TEST_F(SdhOverheadTest, SoftwareInsertionBits) {
    // G1: LT+0 bits 3, 2 = mode and bit 4 = mode != 0; B3: bit 5; V5: bits 5, 3, 6, 2; K4: bit 2.
    const uint32_t vc3 = lt(1, 64), vc12 = lt(0, 32 + 4);
    uint8_t m = 9, v = 9, m0 = 9, v0 = 9;
    model.poke(vc3, 0xFF83);
    EXPECT_EQ((Ints{VQ6192_SDH_SetTxLpG1(kChip, 1, 2, 1, 0x11), model.peek(vc3),
                    VQ6192_SDH_GetTxLpG1(kChip, 1, 2, &m, &v), m}),
              ints(0, 0xFF9F, 0, 1));
    model.poke(vc3, 0xFF97);  // bit 3 missing
    EXPECT_EQ((Ints{VQ6192_SDH_GetTxLpByte(kChip, 1, 2, 6, &m0, &v0), m0, v0,
                    VQ6192_SDH_SetTxLpB3(kChip, 1, 2, 1, 0x22), model.peek(vc3),
                    VQ6192_SDH_GetTxLpB3(kChip, 1, 2, &m, &v), m, v}),
              ints(0, 0, 0x11, 0, 0xFFB7, 0, 1, 0x22));
    model.poke(vc12, 0xFF93);
    EXPECT_EQ((Ints{VQ6192_SDH_SetTxLpV5(kChip, 0, 1, 4, 1, 0x0C), model.peek(vc12),
                    VQ6192_SDH_GetTxLpV5(kChip, 0, 1, 4, &m, &v), m, v}),
              ints(0, 0xFFFF, 0, 1, 0x0C));
    // A partial setting reads back as off and is cleared.
    model.poke(vc12, 0xFFDF);  // bit 5 missing
    EXPECT_EQ((Ints{VQ6192_SDH_GetTxLpV5(kChip, 0, 1, 4, &m0, &v), m0, model.peek(vc12),
                    VQ6192_SDH_SetTxLpK4(kChip, 0, 1, 4, 1, 0x3), model.peek(vc12),
                    VQ6192_SDH_GetTxLpK4(kChip, 0, 1, 4, &m, &v), m}),
              ints(0, 0, 0xFF93, 0, 0xFF97, 0, 1));
}

TEST_F(SdhOverheadTest, ErrorInsertion) {
    // High-order B3: value (mode 0), 0x200 + value, 0x300 + value into TH(n)+8 of the three blocks.
    struct Case {
        uint32_t mode, value;
        uint16_t field;
    };
    uint8_t v, m;
    for (Case c : {Case{0, 5, 5}, Case{1, 5, 0x205}, Case{2, 0x7F, 0x37F}}) {
        fill12(th, 8, 0xFC00);
        EXPECT_EQ((Ints{VQ6192_SDH_SetTxHpB3Err(kChip, 1, c.value, c.mode),
                        VQ6192_SDH_GetTxHpB3Err(kChip, 1, &v, &m), v, m}),
                  ints(0, 0, c.value, c.mode));
        EXPECT_EQ(peek12(th, 8), ofVc4(1, 0xFC00 | c.field, 0xFC00)) << c.mode;
    }
    // Bits 9..8 = 1, which the setter never writes, read back as mode 0.
    model.poke(th(1) + 8, 0x0123);
    EXPECT_EQ((Ints{VQ6192_SDH_GetTxHpB3Err(kChip, 1, &v, &m), v, m}), ints(0, 0x23, 0));
    // Refused while the B3 source select is not 0.
    model.poke(th(1) + 4, 1u << 2);
    capture.clear();
    EXPECT_TRUE(vqtest::writes(traced([&] {
                    EXPECT_EQ(VQ6192_SDH_SetTxHpB3Err(kChip, 1, 1, 1), kPrereqErr);
                })).empty());
    EXPECT_EQ(
        capture.traceTexts(),
        std::vector<std::string>{"Err. VQ6192_SDH_SetTxHpB3Err.VQ6192_OA_HPOH_SRCSEL_ReadOaHpb3srcsel(3,1)"
                                 "       ErrCode[0x3080004]\r\n"});

    // Low-order B3: mode 0 writes 0; BIP-2: 8 + value, 12 + value.
    const uint32_t vc3 = lt(2, 0) + 4, vc12 = lt(2, 64 + 3) + 4;
    model.poke(vc3, 0xFC00 | 0x3FF);
    EXPECT_EQ((Ints{VQ6192_SDH_SetTxLpB3Err(kChip, 2, 0, 5, 0), model.peek(vc3),
                    VQ6192_SDH_SetTxLpB3Err(kChip, 2, 0, 9, 2), model.peek(vc3),
                    VQ6192_SDH_GetTxLpB3Err(kChip, 2, 0, &v, &m), v, m}),
              ints(0, 0xFC00, 0, 0xFC00 | 0x309, 0, 9, 2));
    for (Case c : {Case{1, 2, 10}, Case{2, 1, 13}, Case{0, 3, 0}}) {
        model.poke(vc12, 0xFC00);
        EXPECT_EQ((Ints{VQ6192_SDH_SetTxLpV5Bip2Err(kChip, 2, 2, 3, c.value, c.mode), model.peek(vc12),
                        VQ6192_SDH_GetTxLpV5Bip2Err(kChip, 2, 2, 3, &v, &m), v, m}),
                  ints(0, 0xFC00 | c.field, 0, c.mode == 0 ? 0 : c.value, c.mode));
    }
    // Refused while software B3 or V5 insertion is on.
    model.poke(lt(2, 0), 1u << 5);
    capture.clear();
    EXPECT_EQ(VQ6192_SDH_SetTxLpB3Err(kChip, 2, 0, 1, 1), kPrereqErr);
    EXPECT_EQ(
        capture.traceTexts(),
        std::vector<std::string>{"Err. chipid 3 VQ6192_SDH_SetTxLpB3Err.VQ6192_SDH_GetTxLpB3(2,0)       "
                                 "ErrCode[0x3080004]\r\n"});
    EXPECT_EQ(model.peek(vc3), 0xFC00 | 0x309);
    model.poke(lt(2, 64 + 3), 0x6C);
    model.poke(vc12, 0);
    EXPECT_EQ(VQ6192_SDH_SetTxLpV5Bip2Err(kChip, 2, 2, 3, 1, 1), kPrereqErr);
    EXPECT_EQ(model.peek(vc12), 0);
}

TEST_F(SdhOverheadTest, ReiErdiModesAndConsequentActions) {
    struct Dir {
        uint32_t dir;
        bool ing, eg;
    };
    const uint32_t c = 32 * 1 + 6;
    for (Dir d : {Dir{0, true, false}, Dir{1, false, true}, Dir{2, true, true}}) {
        model.poke(lr(3, c) + 4, 0xFFE7);
        model.poke(lt(3, c), 0xFE7F);
        uint8_t i = 9, e = 9, ei = 9, ee = 9;
        EXPECT_EQ((Ints{VQ6192_SDH_SetLpReiMode(kChip, 3, 1, 6, d.dir, 1),
                        VQ6192_SDH_SetVc12ErdiMode(kChip, 3, 1, 6, d.dir, 1), model.peek(lr(3, c) + 4),
                        model.peek(lt(3, c)), VQ6192_SDH_GetLpReiMode(kChip, 3, 1, 6, &i, &e),
                        VQ6192_SDH_GetVc12ErdiMode(kChip, 3, 1, 6, &ei, &ee), i, e, ei}),
                  ints(0, 0, d.ing ? 0xFFFF : 0xFFE7, d.eg ? 0xFFFF : 0xFE7F, 0, 0, d.ing, d.eg, d.ing))
            << d.dir;
    }
    EXPECT_EQ(VQ6192_SDH_SetLpReiMode(kChip, 3, 1, 6, 3, 1), kParaErr);
    // VC-3 enhanced RDI on VC-4 2 changes only VC-4 2's bit.
    poke({{lt(0, 32), 0xFFFD}, {lt(1, 32), 0xFFFD}, {lt(2, 32), 0xFFFD}, {lt(3, 32), 0xFFFD}});
    ASSERT_EQ(VQ6192_SDH_SetVc3ErdiMode(kChip, 2, 1, 1), 0u);
    EXPECT_EQ(peek({lt(0, 32), lt(1, 32), lt(2, 32), lt(3, 32)}),
              (std::vector<uint32_t>{0xFFFD, 0xFFFD, 0xFFFF, 0xFFFD}));
    // Consequent actions 0..4 are enables in LR+0xE (bits 3, 5, 4, 1, 0), 5..9 disables in LT+2 (bits 2,
    // 4, 3, 0, 1) of a register of ones.
    const uint16_t rx[10] = {0x0008, 0x0020, 0x0010, 0x0002, 0x0001, 0, 0, 0, 0, 0};
    const uint16_t tx[10] = {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF, 0xFFFB, 0xFFEF, 0xFFF7, 0xFFFE, 0xFFFD};
    for (uint32_t type = 0; type < 10; ++type) {
        model.poke(lr(0, 5) + 0xE, 0);
        model.poke(lt(0, 5) + 2, 0xFFFF);
        uint8_t en = 9;
        EXPECT_EQ(
            (Ints{VQ6192_SDH_SetSdhLpTranInsert(kChip, 0, 0, 5, type, 1), model.peek(lr(0, 5) + 0xE),
                  model.peek(lt(0, 5) + 2), VQ6192_SDH_GetSdhLpTranInsert(kChip, 0, 0, 5, type, &en), en}),
            ints(0, rx[type], tx[type], 0, 1))
            << type;
    }
    EXPECT_EQ(VQ6192_SDH_SetSdhLpTranInsert(kChip, 0, 0, 5, 10, 1), kParaErr);
}

TEST_F(SdhOverheadTest, RefusalsTouchNothing) {
    uint8_t a;
    uint16_t w;
    beginRefusals();
    expectRefusals(kParaErr, false, VQ6192_SDH_SetTxHpByte(3, 4, 0, 1, 0),
                   VQ6192_SDH_SetTxHpByte(3, 0, 0, 1, 2), VQ6192_SDH_SetTxHpB3Err(3, 0, 1, 3),
                   VQ6192_SDH_SetTxHpPtrYFInsSel(3, 0, 2, 0), VQ6192_SDH_SetTxHpPtrSSInsVal(3, 0, 4),
                   VQ6192_SDH_GetRxHpByte(3, 0, 7, &a), VQ6192_SDH_SetRxHpRst(3, 0, 2),
                   VQ6192_SDH_SetHpLomIntMsk(3, 12, 1), VQ6192_SDH_SetTxLpByte(3, 0, 0, 8, 0, 1),
                   VQ6192_SDH_SetTxLpByte(3, 0, 0, 0, 2, 1), VQ6192_SDH_SetTxLpV5(3, 0, 0, 28, 0, 1),
                   VQ6192_SDH_SetTxLpB3Err(3, 0, 3, 1, 1), VQ6192_SDH_SetTxLpV5Bip2Err(3, 0, 0, 0, 1, 3),
                   VQ6192_SDH_GetRxLpVc12Byte(3, 0, 0, 0, 4, &a), VQ6192_SDH_GetRxLpVc3Byte(3, 0, 0, 7, &a),
                   VQ6192_SDH_SetRxLpShouldV5SgnlLbl(3, 0, 0, 0, 8), VQ6192_SDH_SetRxLpShouldC2(3, 0, 0, 256),
                   VQ6192_SDH_SetVc3ErdiMode(3, 0, 0, 2), VQ6192_SDH_SetTuAisIntMsk(3, 0, 0, 0, 2),
                   VQ6192_SDH_SetFltAlarmNum(3, 4, 1), VQ6192_SDH_SetVc4TuAisInsEn(3, 4, 1),
                   VQ6192_SDH_GetLpPointAdjust(3, 0, 0, 28, &w, &w, &w),
                   VQ6192_SDH_GetSDHET1FifoAlm(3, 336, &a), VQ6192_SDH_GetSDHET3FifoAlm(3, 12, &a));
}

using SdhAlarmTest = SdhTest;

TEST_F(SdhAlarmTest, LowOrderAlarmRecord) {
    // Record order and sources: W = LR+0x20, W2 = LR+0x22, C = LR+0x16.
    const struct {
        const char *name;
        uint32_t word, bit;
    } flags[13] = {
        {"ucLpRfiAlarmHis", 0x20, 8},   {"ucLpPdiAlarmHis", 0x20, 7},   {"ucLpSdiAlarmHis", 0x20, 5},
        {"ucLpRdiAlarmHis", 0x20, 4},   {"ucLpCdiAlarmHis", 0x20, 6},   {"ucLpVcAisAlarmHis", 0x20, 3},
        {"ucLpPlmAlarmHis", 0x20, 2},   {"ucLpUneqAlarmHis", 0x20, 1},  {"ucLpTimAlarmHis", 0x20, 0},
        {"ucLpTuAisAlarmCur", 0x16, 1}, {"ucLpTuAisAlarmHis", 0x22, 1}, {"ucLpTuLopAlarmCur", 0x16, 0},
        {"ucLpTuLopAlarmHis", 0x22, 0},
    };
    const uint32_t base = lr(2, 32 * 1 + 17);
    for (uint32_t i = 0; i < 13; ++i) {
        // Only this flag's bit set; a neighbouring channel has every bit set.
        for (uint32_t word : {0x16u, 0x20u, 0x22u}) {
            model.poke(base + word, static_cast<uint16_t>(word == flags[i].word ? 1u << flags[i].bit : 0));
            model.poke(base + 0x40 + word, 0xFFFF);
        }
        uint8_t alarms[13] = {7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
        ASSERT_EQ(VQ6192_SDH_GetLpAlms(kChip, 2, 1, 17, alarms), 0u);
        for (uint32_t j = 0; j < 13; ++j) {
            EXPECT_EQ(alarms[j], i == j ? 1 : 0) << flags[i].name << " -> " << flags[j].name;
        }
    }
}

TEST_F(SdhAlarmTest, HighOrderAlarmsCountersAndFifoAlarms) {
    model.poke(hr(3) + 0x1E, 0xFFF7);  // OOM history clear, LOM history set
    poke({{hr(3) + 0x16, 0x0004}, {hr(7) + 0x1E, 0xFFFF}, {hr(1) + 0x2A, 0x1234}, {hr(1) + 4, 0xFFFD}});
    uint8_t a = 9, b = 9, d = 9, o = 9, e = 9, rei = 9;
    EXPECT_EQ((Ints{VQ6192_SDH_GetHpAlms(kChip, 3, &a, &b, &d), a, b, d,
                    VQ6192_SDH_GetRxHpB3Cnt(kChip, 1, &o, &e), o, e}),
              ints(0, 0, 1, 1, 0, 0, 0x34));
    const uint32_t c = 32 * 2 + 27;
    poke({{lr(1, c) + 0x28, 0xBEEF}, {lr(1, c) + 0x2A, 0x0180}, {lr(1, c) + 0x2C, 0xF5A3}});
    uint16_t bip = 0, p = 0, q = 0, r = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_GetRxLpB3B2Cnt(kChip, 1, 2, 27, &bip), bip,
                    VQ6192_SDH_GetRxLpReiCnt(kChip, 1, 2, 27, &rei), rei,
                    VQ6192_SDH_GetLpPointAdjust(kChip, 1, 2, 27, &p, &q, &r), p, q, r}),
              ints(0, 0xBEEF, 0, 0x80, 0, 0x3, 0xA, 0x5));
    poke({{0x3C000 + 8 * 335, 0xFFFE}, {0x3C002 + 8 * 335, 0x0001}, {hr(11) + 0x24, 0xFFFD}});
    uint8_t e1[4] = {9, 9, 9, 9}, e3[2] = {9, 9};
    EXPECT_EQ((Ints{VQ6192_SDH_GetSDHET1FifoAlm(kChip, 335, e1), e1[0], e1[1], e1[2], e1[3],
                    VQ6192_SDH_GetSDHET3FifoAlm(kChip, 11, e3), e3[0], e3[1]}),
              ints(0, 1, 0, 0, 1, 0, 0, 1));
}

TEST_F(SdhAlarmTest, MasksResetsAndChipWideControls) {
    using F = Field<uint8_t>;
    expectFields<uint8_t>({
        F{"rx hp rst", [](auto c, auto x) { return VQ6192_SDH_SetRxHpRst(c, 2, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetRxHpRst(c, 2, o); }, hr(2) + 2, 0x100, 3, 0, 1, 1},
        F{"hp lom ais", [](auto c, auto x) { return VQ6192_SDH_SetHpLomAisEn(c, 0, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetHpLomAisEn(c, 0, o); }, hr(0) + 0xE, 0x100, 3, 2, 1, 1},
        F{"hp lom int msk", [](auto c, auto x) { return VQ6192_SDH_SetHpLomIntMsk(c, 9, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetHpLomIntMsk(c, 9, o); }, hr(9) + 0xC, 0, 1, 2, 1, 1},
        F{"hp lom msk", VQ6192_SDH_SetHpLomMsk, VQ6192_SDH_GetHpLomMsk, 0x2C008, 0, 1, 5, 1, 1},
        F{"lp alm msk", VQ6192_SDH_SetLpAlmMsk, VQ6192_SDH_GetLpAlmMsk, 0x2C008, 0, 1, 6, 1, 1},
        F{"tu ais", [](auto c, auto x) { return VQ6192_SDH_SetTuAisIntMsk(c, 1, 0, 3, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetTuAisIntMsk(c, 1, 0, 3, o); }, lr(1, 3) + 0xC, 0, 1, 1, 1,
          1},
        F{"tu lop", [](auto c, auto x) { return VQ6192_SDH_SetTuLopIntMsk(c, 1, 0, 3, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetTuLopIntMsk(c, 1, 0, 3, o); }, lr(1, 3) + 0xC, 0, 1, 0, 1,
          1},
        F{"rx lp rst", [](auto c, auto x) { return VQ6192_SDH_SetRxLpRst(c, 3, 2, 0, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetRxLpRst(c, 3, 2, 0, o); }, lr(3, 64) + 2, 0, 1, 0, 1, 1},
        F{"should c2", [](auto c, auto x) { return VQ6192_SDH_SetRxLpShouldC2(c, 0, 2, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetRxLpShouldC2(c, 0, 2, o); }, lr(0, 64) + 0xA, 0, 1, 0, 8,
          0x13},
        F{"v5 label", [](auto c, auto x) { return VQ6192_SDH_SetRxLpShouldV5SgnlLbl(c, 0, 1, 1, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetRxLpShouldV5SgnlLbl(c, 0, 1, 1, o); }, lr(0, 33) + 0xA, 0,
          1, 8, 3, 5},
        F{"tu-ais ins", [](auto c, auto x) { return VQ6192_SDH_SetVc4TuAisInsEn(c, 3, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetVc4TuAisInsEn(c, 3, o); }, 0x2C002, 0, 1, 11, 1, 1},
        F{"sonet b3 check", VQ6192_SDH_SetSONETB3ChkMode, VQ6192_SDH_GetSONETB3ChkMode, 0x2C000, 0, 1, 1, 1,
          1},
        F{"label check", VQ6192_SDH_SetOdLpSsCfg, VQ6192_SDH_GetOdLpSsCfg, 0x2C346, 0, 1, 0, 1, 1},
        F{"filter 0", [](auto c, auto x) { return VQ6192_SDH_SetFltAlarmNum(c, 0, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetFltAlarmNum(c, 0, o); }, 0x2C340, 0, 1, 12, 4, 9},
        F{"filter 3", [](auto c, auto x) { return VQ6192_SDH_SetFltAlarmNum(c, 3, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetFltAlarmNum(c, 3, o); }, 0x2C340, 0, 1, 0, 4, 6},
        F{"ptr yy ff", [](auto c, auto x) { return VQ6192_SDH_SetTxHpPtrSSInsVal(c, 1, x); },
          [](auto c, auto o) { return VQ6192_SDH_GetTxHpPtrSSInsVal(c, 1, o); }, 0, 0, 0, 0, 0, 2},
    });
    // The filter number is cut to 4 bits. Pointer controls of the VC-4 selected: YY bit 0, FF bit 1.
    uint8_t yy = 9, ff = 9, ff0 = 9;
    EXPECT_EQ((Ints{VQ6192_SDH_SetFltAlarmNum(kChip, 1, 0x1F), (model.peek(0x2C340) >> 8) & 0xF,
                    VQ6192_SDH_SetTxHpPtrYFInsSel(kChip, 1, 0, 1),
                    VQ6192_SDH_GetTxHpPtrYFInsSel(kChip, 1, &yy, &ff), yy, ff,
                    VQ6192_SDH_GetTxHpPtrYFInsSel(kChip, 0, &yy, &ff0), ff0}),
              ints(0, 0xF, 0, 0, 0, 1, 0, 0));
}

}  // namespace
}  // namespace sdhtest
