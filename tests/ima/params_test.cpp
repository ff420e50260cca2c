// Running-group parameter changes, VC-4 port removal, UNI counters, the link configuration read-back, and
// the step helpers: entry indexes of the tables that share a select code, link vectors, capture filter
// sub-modes, and the TC state records copied field by field.
#include <tuple>

#include "ima_fixture.h"
#include "vq6192/table.h"

namespace {

using namespace imatest;

class ParamsTest : public ImaTest {};

// A parameter record from its fields in order: eleven bytes, then wMaxDelay.
IMA_GRP_PARAM param(std::initializer_list<uint32_t> v) {
    IMA_GRP_PARAM p{};
    uint8_t *bytes[] = {&p.byClockMd,      &p.bySymmetryMd, &p.byImaVersion, &p.byImaOamLabel,
                        &p.byRxImaIdCfgEn, &p.byRxImaId,    &p.byTxImaId,    &p.byRxM,
                        &p.byPRx,          &p.byTxM,        &p.byPTx};
    size_t i = 0;
    for (uint32_t x : v) {
        if (i < 11) {
            *bytes[i] = static_cast<uint8_t>(x);
        } else {
            p.wMaxDelay = static_cast<uint16_t>(x);
        }
        ++i;
    }
    return p;
}

TEST_F(ParamsTest, RunningGroupParameters) {
    constexpr uint32_t g = 8;
    setBits(kPpB, kGpc, g * 16, 0, 32, 0x01C80000);  // label 1, asymmetric, auto restart
    setBits(kPpB, kGpc, g * 16 + 1, 0, 32, 0xFFFFFFFF);
    setBits(kTxB, kTxGpc, g, 0, 32, 0x0FFFFF01);
    setBits(kRxB, kRxGpc, g, 0, 32, 0xFFFFFC00);
    using W = U32s;
    // Mask, value, then processor words 0..2, transmit and receive group configuration after the change: the
    // third byte alone rewrites word 0 unchanged; label; symmetry; transmit M and clock; receive id; delay.
    const std::tuple<IMA_GRP_PARAM, IMA_GRP_PARAM, W> cases[] = {
        {param({0, 0, 1}), param({1, 1, 1, 1}), {0x01C80000, 0xFFFFFFFF, 0, 0x0FFFFF01, 0xFFFFFC00}},
        {param({0, 0, 0, 1}), param({0, 0, 0, 3}), {0x03C80000, 0xFFFFFFFF, 0, 0x0FFFFF03, 0xFFFFFC00}},
        {param({0, 1}), param({0, 0}), {0x03080000, 0xFFFFFFFF, 0, 0x0FFFFF03, 0xFFFFFC00}},
        {param({1, 0, 0, 0, 0, 0, 0, 0, 0, 1}),
         param({0, 0, 0, 0, 0, 0, 0, 0, 0, 2}),
         {0x03080000, 0xFFBFFFBF, 0, 0x0FFFF703, 0xFFFFFC00}},
        {param({0, 0, 0, 0, 1, 0, 0, 1}),
         param({0, 0, 0, 0, 1, 0x5A, 0, 9}),
         {0x03080000, 0xFFBFFFBF, 0xAD012000, 0x0FFFF703, 0xFFFFFC00}},
        {param({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}),
         param({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 700}),
         {0x03080000, 0xFFBFFFBF, 0xAD012000, 0x0FFFF703, 0xFFFFFEBC}},
    };
    for (const auto &[mask, value, after] : cases) {
        SCOPED_TRACE(after[0]);
        ASSERT_EQ(VQ6192_IMA_SetImaGrpParam(kChip, g, 0, &mask, &value), 0u);
        EXPECT_EQ((W{word(kPpB, kGpc, g * 16 + 0), word(kPpB, kGpc, g * 16 + 1), word(kPpB, kGpc, g * 16 + 2),
                     word(kTxB, kTxGpc, g), word(kRxB, kRxGpc, g)}),
                  after);
    }
}

TEST_F(ParamsTest, Vc4RemovalUniCountersAndLinkConfiguration) {
    poke({{0x4C24, 0xFFFF}, {0x5028, 0xFFFF}});
    setBits(kTxB, kInGrp, 170, 0, 256, 0);
    setBits(kTxB, kInGrp, 170, 168, 3, 7);
    ASSERT_EQ(VQ6192_IMA_DelVc4(kChip, 2, 9), 0u);
    EXPECT_EQ(peek({0x4C24, 0x5028}), (U32s{0xFDFF, 0xFFFB})) << "only the enable bits cleared";
    EXPECT_EQ(bits(kTxB, kInGrp, 170, 168, 3), 3u) << "link 170 (bit 2 of the three) leaves group 170";
    ASSERT_EQ(proc().commands().size(), 84u);
    EXPECT_EQ(proc().commands().front(), (Proc::Command{13, 168, 0, 0, 0}));
    EXPECT_EQ(proc().commands().back(), (Proc::Command{13, 251, 0, 0, 0}));
    EXPECT_EQ(bits(kTcB, kRxCfg, 200, 95, 1), 1u);
    EXPECT_EQ(bits(kTcB, kRxCfg, 200, 89, 1), 0u) << "no idle filter on removal";
    proc().refuse(1);
    EXPECT_EQ(VQ6192_IMA_DelVc4(kChip, 2, 9), kRefusedCmd);
    EXPECT_EQ(proc().commands().size(), 85u) << "the first failure ends it";
    setBits(kRxB, kGpCnt, 30 * 2, 0, 32, 0xFFFFFFFF);
    setBits(kRxB, kGpCnt, 30 * 2 + 1, 0, 32, 0x11);
    IMA_GRP_STAT g{1, 2, 3, 4, 5};
    ASSERT_EQ(VQ6192_IMA_GetUniGrpStat(kChip, 30, &g), 0u);
    EXPECT_EQ(
        (U32s{g.dwTxDiscardCells, g.dwTxUserCells, g.dwTxFillerCells, g.dwRxUserCells, g.dwRxFillerCells}),
        (U32s{0, 0, 0, 0xFFFFFFFF, 0}));
    setBits(kRxB, kLkCnt, 40 * 4 + 2, 0, 32, 1000);
    setBits(kRxB, kLkCnt, 40 * 4 + 3, 0, 32, 7);
    setBits(kTxB, kTxLks, 40 * 2 + 1, 0, 32, 0x00030004);
    IMA_LINK_STAT l{};
    ASSERT_EQ(VQ6192_IMA_GetUniLinkStat(kChip, 40, &l), 0u);
    EXPECT_EQ((U32s{l.dwTxUserCells, l.dwTxStuffCells, l.dwRxUserCells, l.dwRxDroppedCells}),
              (U32s{4, 3, 1000, 7}));
    setBits(kPpB, kTxc, 40, 0, 32, 0x8123F80F);
    setBits(kPpB, kRxc, 40, 0, 32, 0xC0450FFF);
    setBits(kTxB, kTxLkc, 40, 0, 8, 0x77);
    uint16_t cfg[5] = {};
    ASSERT_EQ(VQ6192_IMA_GetImaLinkCfg(kChip, 40, cfg), 0u);
    EXPECT_EQ((std::vector<uint16_t>(cfg, cfg + 5)), (std::vector<uint16_t>{2, 0x123, 0x1F, 3, 0x45}));
    IMA_TX_LINK tx{};
    EXPECT_EQ((U64s{VQ6192_IMA_GetImaTxLinkCfg(kChip, 40, &tx), tx.ucLid}), (U64s{0, 0x1Fu}));
    EXPECT_EQ(tx.ucIcpOffset, 0x77u);
    EXPECT_EQ(tx.usPhyLink, 40u);
}

uint32_t idOf(const char *name) {
    for (uint32_t id = 0; id < VQ6192_CHIP_TABLE_NUM; ++id) {
        if (std::string(g_astVQ6192TblEntryList[id].pszName) == name) {
            return id;
        }
    }
    return UINT32_MAX;
}

TEST_F(ParamsTest, EntryIndexesByNumberAndWord) {
    // Entries per group or link: 16 for the processor group configuration and the ICP buffers, 8 for
    // the group status words, 4 for the link counters and write pointers, 2 for link status pairs and
    // group counters, 32 for the LID map, 1 otherwise.
    const std::tuple<const char *, uint32_t, uint32_t, uint32_t> cases[] = {
        {"Imappgpc3", 5, 3, 83},      {"Imappgpc5", 5, 15, 95},    {"Imapptxs1", 40, 1, 81},
        {"Imappgps7", 3, 7, 31},      {"Imatxgps4", 3, 4, 28},     {"Imarxlkcnt2", 10, 2, 42},
        {"Imarxgpwptr2", 10, 2, 42},  {"Imarxgpcnt1", 7, 1, 15},   {"Imarxunircnt0", 7, 0, 14},
        {"Imarxicpbuf12", 2, 12, 44}, {"Imatxicpbuf0", 2, 10, 42}, {"Imatxmaptbl0", 3, 31, 127},
        {"Imatxgpc", 9, 0, 9},        {"Imarxlks1", 4, 1, 9},      {"Tcrxlnkcfg", 335, 0, 335},
    };
    for (const auto &[table, number, w, want] : cases) {
        uint32_t index = 0;
        EXPECT_EQ((U32s{VQ6192_utlTransIdxID(kChip, idOf(table), number, w, &index), index}), (U32s{0, want}))
            << table;
    }
    const IMA_TX_LINK tx[3] = {{0, 0, 200}, {31, 0, 5}, {7, 0, 9}};
    const uint16_t rx[3] = {3, 40, 31};
    // Transmit LIDs; receive vector of a symmetric group (the LIDs of the transmit records) and of an
    // asymmetric one (link numbers, 40 sets no bit); the LID of link 9, and 0 for a link not found.
    uint32_t v[5] = {0, 0, 0, 9, 9};
    EXPECT_EQ(
        (U32s{VQ6192_setupTxLinksVec(kChip, 3, tx, &v[0]), VQ6192_setupRxLinksVec(kChip, 3, rx, tx, 1, &v[1]),
              VQ6192_setupRxLinksVec(kChip, 3, rx, tx, 2, &v[2]),
              VQ6192_getLidFromPhy(kChip, 9, 3, tx, &v[3]), VQ6192_getLidFromPhy(kChip, 10, 3, tx, &v[4])}),
        U32s(5, 0));
    EXPECT_EQ(U32s(v, v + 5), (U32s{0x80000081, 0x80000081, 0x80000008, 7, 0}));
}

TEST_F(ParamsTest, CaptureSubModesAndTcStateRecords) {
    const std::tuple<uint16_t, uint32_t, uint16_t, uint16_t> cases[] = {
        {0, 0x4C44, 0xFFFF, 0xC000 | (0x15 << 8) | 0x34},
        {2, 0x4C46, 0x03FF, 0x8000 | (0x1E << 10) | 0x3FF},
        {4, 0x4C46, 0x0000, 0x8000 | (0x1E << 10)},
        {3, 0x4C46, 0xFFE0, 0xFFE0 | 0x15},
    };
    IMA_CAP_FILTER f{};
    f.wFlag = 1, f.wSelect = 1024, f.wValueA = 0x15, f.wValueB = 0x1234, f.wFilterNum = 1,
    f.awValueC[0] = 0x1E;
    for (const auto &[subMode, reg, before, after] : cases) {
        f.wSubMode = subMode;
        model.poke(reg, before);
        EXPECT_EQ((U32s{VQ6192_IMA_SetImaCapture(kChip, &f), model.peek(reg)}), (U32s{0, after})) << subMode;
    }
    setBits(kTcB, kRxSta0, 11, 80, 16, 0xBEEF);
    setBits(kTcB, kRxSta0, 11, 60, 2, 2);
    setBits(kTcB, kRxSta0, 11, 0, 8, 0x7A);
    setBits(kTcB, kRxSta1, 11, 0, 16, 0x0101);
    setBits(kTcB, kRxSta1, 11, 80, 16, 0xCAFE);
    setBits(kTcB, kTxSta, 11, 54, 32, 0x12345678);
    setBits(kTcB, kTxSta, 11, 88, 8, 0x9C);
    uint16_t rx0[15] = {}, rx1[6] = {};
    uint32_t tx[11] = {};
    ASSERT_EQ(VQ6192_IMA_GetTcLinkStatus(kChip, 11, rx0, rx1, nullptr, tx), 0u);
    // wRxScrambleByte0, wRxCdfsmSt SYNC, wRxDinDff1, the first receive word, wRxOcdCellCnt, dwHecCrcOut,
    // dwTxCellSentCnt.
    EXPECT_EQ((U32s{rx0[0], rx0[5], rx0[14], rx1[0], rx1[5], tx[0], tx[3]}),
              (U32s{0xBEEF, 2, 0x7A, 0xCAFE, 0x0101, 0x9C, 0x12345678}));
    ASSERT_EQ(VQ6192_IMA_GetTcLinkStatus(kChip, 11, nullptr, rx1, nullptr, tx), 0u);
    EXPECT_EQ((U32s{rx1[5], tx[3]}), (U32s{0, 0})) << "read-clear";
}

}  // namespace
