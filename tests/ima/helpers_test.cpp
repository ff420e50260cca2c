// Step helpers: entry indexes of the tables that share a select code, link vectors, capture filter
// sub-modes, and the TC state records copied field by field.
#include <tuple>

#include "ima_fixture.h"
#include "vq6192/table.h"

namespace {

using namespace imatest;

class HelpersTest : public ImaTest {};

uint32_t idOf(const char *name) {
    for (uint32_t id = 0; id < VQ6192_CHIP_TABLE_NUM; ++id) {
        if (std::string(g_astVQ6192TblEntryList[id].pszName) == name) {
            return id;
        }
    }
    return UINT32_MAX;
}

TEST_F(HelpersTest, EntryIndexesByNumberAndWord) {
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
}

TEST_F(HelpersTest, LinkVectors) {
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

TEST_F(HelpersTest, CaptureSubModes) {
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
}

TEST_F(HelpersTest, TcStateRecords) {
    setFields(kTcB, kRxSta0, 11, {{0, 96, 0}, {80, 16, 0xBEEF}, {60, 2, 2}, {0, 8, 0x7A}});
    setFields(kTcB, kRxSta1, 11, {{0, 16, 0x0101}, {80, 16, 0xCAFE}});
    setFields(kTcB, kTxSta, 11, {{54, 32, 0x12345678}, {88, 8, 0x9C}});
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
