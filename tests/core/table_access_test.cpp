// Table access on the chip model: every table round-trips through its block, the exact register
// sequences, busy time-outs, lock failures and an absent card.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/table.h"

namespace {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vq6192::sim::TableEngine;
using vqtest::ChipTest;
using Lines = std::vector<std::string>;

constexpr uint32_t kPri = 1;  // Atmpwe3pritab: block 0x5000, select 38, depth 32, 10 data registers

class TableTest : public ChipTest {
  protected:
    // True when the chip lock is free: both the arbitration hook and the semaphore were given back.
    bool lockFree() {
        if (model.arbitrationsTaken() != model.arbitrationsGiven()) {
            return false;
        }
        if (VQ6192_SemP(kChip, 0, 0) != 0) {
            return false;
        }
        VQ6192_SemV(kChip, 0, 0);
        return true;
    }
};

// Every chip table: a pattern written through the driver lands in the model's memory of the table's
// block, under its select code and at the entry's address, and reads back.
TEST_F(TableTest, EveryTableRoundTripsThroughItsBlock) {
    for (uint32_t id = 0; id < VQ6192_CHIP_TABLE_NUM; ++id) {
        SCOPED_TRACE(testing::Message() << "table " << id << " " << g_astVQ6192TblEntryList[id].pszName);
        const VQ6192_CHIP_TABLE_INFO_S &info = g_VQ6192_CHIP_TABLE_INFO[id];
        const uint32_t index = (id * 37 + 5) % info.ulDepth;
        uint32_t entry[VQ6192_TBL_MAX_WORDS];
        for (uint32_t w = 0; w < VQ6192_TBL_MAX_WORDS; ++w) {
            entry[w] = 0x9E3779B9u * (id + 1) + 0x01010101u * w;
        }
        ASSERT_EQ(VQ6192_Write_Table(kChip, id, index, entry), 0u);

        // The select field keeps its own width of the code: three tables have codes that do not fit.
        const uint32_t select = info.stSelect.usValue1 & ((1u << info.stSelect.usWidth) - 1);
        const TableEngine::Entry stored = model.tables().entry(info.ulBlockBase, select, index);
        for (uint32_t k = 0; k < info.usData16; ++k) {
            const uint16_t half = static_cast<uint16_t>(k % 2 == 0 ? entry[k / 2] : entry[k / 2] >> 16);
            EXPECT_EQ(stored[k], half) << "data register " << k;
        }

        uint32_t back[VQ6192_TBL_MAX_WORDS];
        std::fill(std::begin(back), std::end(back), 0xA5A5A5A5u);
        ASSERT_EQ(VQ6192_Read_Table(kChip, id, index, back), 0u);
        for (uint32_t k = 0; k < info.usData16; ++k) {
            const uint16_t half = static_cast<uint16_t>(k % 2 == 0 ? back[k / 2] : back[k / 2] >> 16);
            EXPECT_EQ(half, stored[k]) << "data register " << k;
        }
        if (info.usData16 % 2 == 1) {
            EXPECT_EQ(back[info.usData16 / 2] >> 16, 0xA5A5u) << "the odd half keeps the caller's bits";
        }
        if (info.usData16 < 2 * VQ6192_TBL_MAX_WORDS - 1) {
            EXPECT_EQ(back[(info.usData16 + 1) / 2], 0xA5A5A5A5u) << "nothing past the entry";
        }
    }
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 0, 0, 0}));
    EXPECT_TRUE(lockFree());
}

// Table 38 (select 67) shares the 0x5000 block's six-bit select field with table 3 (67 & 0x3F), and
// the CES clock-recovery tables 103 and 104 (select 255) reach code 31 of the five-bit CES field.
TEST_F(TableTest, SelectCodesWiderThanTheirFieldAreCutToIt) {
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {0x1357};
    ASSERT_EQ(VQ6192_Write_Table(kChip, 38, 1, entry), 0u);
    EXPECT_EQ(model.tables().entry(0x5000, 3, 1)[0], 0x1357);
    uint32_t back[VQ6192_TBL_MAX_WORDS] = {};
    ASSERT_EQ(VQ6192_Read_Table(kChip, 12, 1, back), 0u);  // Atmswpolst: select 3
    EXPECT_EQ(back[0], 0x1357u);
    ASSERT_EQ(VQ6192_Write_Table(kChip, 103, 2, entry), 0u);
    EXPECT_EQ(model.tables().entry(0xa000, 31, 2)[0], 0x1357);
}

TEST_F(TableTest, WriteSequenceAndCost) {
    uint32_t entry[5] = {0x00011000, 0x00030002, 0x00050004, 0x00070006, 0x00090008};
    model.setTrace(true);
    ASSERT_EQ(VQ6192_Write_Table(kChip, kPri, 5, entry), 0u);

    std::vector<BusAccess> expected = {
        {BusOp::FieldRead, 0xA006, 0, 0, 1},    // idle
        {BusOp::FieldWrite, 0xA000, 38, 0, 6},  // select
        {BusOp::FieldWrite, 0xA002, 5, 0, 16},  // entry address
    };
    for (uint32_t k = 0; k < 10; ++k) {
        expected.push_back({BusOp::FieldWrite, 0xA020 + 2 * k, k == 0 ? 0x1000u : k, 0, 16});
    }
    expected.push_back({BusOp::FieldWrite, 0xA004, 0, 0, 2});  // command value1
    expected.push_back({BusOp::FieldWrite, 0xA004, 2, 0, 2});  // command value2: write
    expected.push_back({BusOp::FieldRead, 0xA006, 0, 0, 1});   // done
    expected.push_back({BusOp::FieldWrite, 0xA004, 0, 0, 2});  // back to idle
    EXPECT_EQ(model.trace(), expected);
    EXPECT_EQ(model.tables().writesExecuted(0x5000), 1u);
    EXPECT_EQ(model.arbitrationsTaken(), 1u);
    EXPECT_TRUE(lockFree());
}

TEST_F(TableTest, ReadSequenceAndCost) {
    TableEngine::Entry stored{};
    for (uint32_t k = 0; k < 10; ++k) {
        stored[k] = static_cast<uint16_t>(0x100 + k);
    }
    model.tables().setEntry(0x5000, 38, 7, stored);
    model.setTrace(true);
    uint32_t entry[5] = {};
    ASSERT_EQ(VQ6192_Read_Table(kChip, kPri, 7, entry), 0u);
    EXPECT_EQ(entry[0], 0x01010100u);
    EXPECT_EQ(entry[4], 0x01090108u);

    std::vector<BusAccess> expected = {
        {BusOp::FieldRead, 0xA006, 0, 0, 1},   {BusOp::FieldWrite, 0xA000, 38, 0, 6},
        {BusOp::FieldWrite, 0xA002, 7, 0, 16}, {BusOp::FieldWrite, 0xA004, 0, 0, 2},
        {BusOp::FieldWrite, 0xA004, 3, 0, 2},  {BusOp::FieldRead, 0xA006, 0, 0, 1},
    };
    for (uint32_t k = 0; k < 10; ++k) {
        expected.push_back({BusOp::FieldRead, 0xA040 + 2 * k, 0x100 + k, 0, 16});
    }
    expected.push_back({BusOp::FieldWrite, 0xA004, 0, 0, 2});
    EXPECT_EQ(model.trace(), expected);
}

TEST_F(TableTest, IndexChecksAndNullBuffers) {
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    model.setTrace(true);
    EXPECT_EQ(VQ6192_Read_Table(kChip, 20, 8192, entry), 0x030C0001u);
    EXPECT_EQ(VQ6192_Read_Table_Pro(kChip, 20, 8192, entry), 0x030C0002u);
    EXPECT_EQ(VQ6192_Read_Table(kChip, 20, 0, nullptr), 0x030C0002u);
    EXPECT_EQ(VQ6192_Read_Table_Pro(kChip, 20, 0, nullptr), 0x030C0002u);
    EXPECT_EQ(VQ6192_Write_Table(kChip, kPri, 5, nullptr), 0x030C0002u);
    // Ids outside the catalogue or the registry are refused untouched.
    EXPECT_EQ(VQ6192_Read_Table(kChip, 217, 0, entry), 0x030C0001u);
    EXPECT_EQ(VQ6192_Write_Table(kChip, 5000, 0, entry), 0x030C0001u);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
    EXPECT_EQ(capture.traceTexts(), (std::vector<std::string>{
                                        "Err. VQ6192_Write_Table(3,1,5)       ErrCode[0x30c0002]\r\n",
                                        "ParaErr.\r\n",
                                        "ParaErr.\r\n",
                                    }));

    EXPECT_EQ(VQ6192_Read_Table(kChip, 20, 8191, entry), 0u);
    // The write keeps the address field's bits of the index.
    model.clearTrace();
    EXPECT_EQ(VQ6192_Write_Table(kChip, 20, 0x12345, entry), 0u);
    EXPECT_EQ(model.trace()[2], (BusAccess{BusOp::FieldWrite, 0xA002, 0x2345, 0, 16}));
}

// Every way a table access fails, one call per row from a clean chip, on Atmpwe3pritab entry 5: the
// status, the log lines (mask 2), the trace lines, the failure counters it adds, the bus accesses it
// makes, and whether the entry moved; the lock is always given back.
TEST_F(TableTest, FailuresStatusesLogsAndCounters) {
    const uint32_t forever = TableEngine::kForever;
    const std::string pre = "chip 3 pwe3 ";
    const std::string wTrace = "Err. VQ6192_Write_Table(3,1,5)       ",
                      rTrace = "Err. VQ6192_Read_Table(3,1,5)       ";
    struct Row {
        const char *what;
        char op;  // W write, R read, Q quiet read
        std::function<void()> arm;
        uint32_t status;
        Lines logs;
        std::optional<Lines> traces;
        std::vector<uint32_t> counters;  // arbitration, sem take, sem give, time-out failures
        int busAccesses;                 // -1: not checked
        int moved;                       // the entry reached the RAM or the buffer; -1: not checked
    };
    // clang-format off
    const Row rows[] = {
        {"busy before the command", 'W', [&] { model.tables().holdBusy(0x5000, forever); }, 0x030C0003,
         {pre + "write table timeout,table 0x1,index 0x5"}, Lines{wTrace + "ErrCode[TimeOut]\r\n"}, {0, 0, 0, 1}, 500, 0},
        {"busy before the command", 'R', [&] { model.tables().holdBusy(0x5000, forever); }, 0x030C0003,
         {pre + "read table timeout,table 0x1,index 0x5"}, Lines{rTrace + "ErrCode[TimeOut]\r\n"}, {0, 0, 0, 1}, 500, 0},
        {"busy after the command", 'W', [&] { model.tables().setCommandBusy(0x5000, forever); }, 0x030C0003,
         {pre + "write table timeout1,table 0x1,index 0x5"}, Lines{"Err. VQ6192_Write_Table(3,1,5)      Step7 ErrCode[TimeOut]\r\n"},
         {0, 0, 0, 1}, -1, 1},  // a write that timed out may have reached the RAM
        {"busy after the command", 'R', [&] { model.tables().setCommandBusy(0x5000, forever); }, 0x030C0003,
         {pre + "read table timeout1,table 0x1,index 0x5"}, Lines{rTrace + "ErrCode[TimeOut]\r\n"}, {0, 0, 0, 1}, -1, -1},
        // A failing release after a time-out is a lock failure, not counted as a time-out.
        {"time-out, release fails", 'W', [&] { model.tables().holdBusy(0x5000, forever); VQ6192_Platform_FailSemGives(0, 1); },
         0x030C0008, {pre + "write table give sem1 fail,table 0x1,index 0x5"}, {}, {0, 0, 1, 0}, -1, 0},
        {"time-out, release fails", 'R', [&] { model.tables().setCommandBusy(0x5000, forever); VQ6192_Platform_FailSemGives(0, 1); },
         0x030C0008, {pre + "read table give sem2 fail,table 0x1,index 0x5"}, {}, {0, 0, 1, 0}, -1, -1},
        {"semaphore refused", 'W', [] { VQ6192_Platform_FailSemTakes(0, 1); }, 0x030C0008,
         {pre + "write table get sem fail,table 0x1,index 0x5"}, {}, {0, 1, 0, 0}, 0, 0},
        {"semaphore refused", 'R', [] { VQ6192_Platform_FailSemTakes(0, 1); }, 0x030C0008,
         {pre + "read table get sem fail,table 0x1,index 0x5"}, {}, {0, 1, 0, 0}, 0, 0},
        {"arbitration refused", 'W', [&] { model.refuseArbitration(1); }, 0x030C0008,
         {pre + "write table get attrb fail,table 0x1,index 0x5"}, {}, {1, 0, 0, 0}, 0, 0},
        {"arbitration refused, release fails", 'R', [&] { model.refuseArbitration(1); VQ6192_Platform_FailSemGives(0, 1); },
         0x030C0008, {pre + "read table get attrb fail,table 0x1,index 0x5", pre + "read table give sem fail,table 0x1,index 0x5"},
         {}, {1, 0, 1, 0}, 0, 0},
        // A failing final release still moves the data.
        {"final release fails", 'W', [] { VQ6192_Platform_FailSemGives(0, 1); }, 0x030C0008,
         {pre + "write table give sem3 fail,table 0x1,index 0x5"}, {}, {0, 0, 1, 0}, -1, 1},
        {"final release fails", 'R', [] { VQ6192_Platform_FailSemGives(0, 1); }, 0x030C0008,
         {pre + "read table give sem3 fail,table 0x1,index 0x5"}, {}, {0, 0, 1, 0}, -1, 1},
        // An absent card ends the access quietly with success; the read's completion wait leaves silently.
        {"card out before the command", 'W', [&] { model.setCardPresent(false); model.tables().holdBusy(0x5000, 1); }, 0,
         {pre + "card out"}, {}, {0, 0, 0, 0}, 1, 0},
        {"card out before the command", 'R', [&] { model.setCardPresent(false); model.tables().holdBusy(0x5000, 1); }, 0,
         {pre + "card out"}, {}, {0, 0, 0, 0}, 1, 0},
        {"card out after the command", 'W', [&] { model.tables().setCommandBusy(0x5000, 1); model.setCardPresent(false); }, 0,
         {pre + "card out"}, {}, {0, 0, 0, 0}, -1, -1},
        {"card out after the command", 'R', [&] { model.tables().setCommandBusy(0x5000, 1); model.setCardPresent(false); }, 0,
         {}, {}, {0, 0, 0, 0}, -1, 0},
        // The quiet read counts its failures but never logs or traces them.
        {"quiet: busy before", 'Q', [&] { model.tables().holdBusy(0x5000, forever); }, 0x030C0003, {}, Lines{}, {0, 0, 0, 1}, -1, -1},
        {"quiet: busy after", 'Q', [&] { model.tables().setCommandBusy(0x5000, forever); }, 0x030C0003, {}, Lines{}, {0, 0, 0, 1}, -1, -1},
        {"quiet: semaphore", 'Q', [] { VQ6192_Platform_FailSemTakes(0, 1); }, 0x030C0008, {}, Lines{}, {0, 1, 0, 0}, 0, 0},
        {"quiet: arbitration", 'Q', [&] { model.refuseArbitration(1); }, 0x030C0008, {}, Lines{}, {1, 0, 0, 0}, 0, 0},
        {"quiet: card out", 'Q', [&] { model.setCardPresent(false); }, 0, {}, Lines{}, {0, 0, 0, 0}, -1, -1},
    };
    // clang-format on
    for (const Row &r : rows) {
        SCOPED_TRACE(testing::Message() << r.op << " " << r.what);
        model.tables().setEntry(0x5000, 38, 5, TableEngine::Entry{0x4321});
        uint32_t entry[VQ6192_TBL_MAX_WORDS] = {r.op == 'W' ? 0x1234u : 0x7777u};
        std::fill(std::begin(g_vq6192[kChip].aulRegFailInfo), std::end(g_vq6192[kChip].aulRegFailInfo), 0);
        capture.clear();
        r.arm();
        uint32_t rc = 0;
        const auto t = traced([&] {
            rc = r.op == 'W'   ? VQ6192_Write_Table(kChip, kPri, 5, entry)
                 : r.op == 'R' ? VQ6192_Read_Table(kChip, kPri, 5, entry)
                               : VQ6192_Read_Table_Pro(kChip, kPri, 5, entry);
        });
        EXPECT_EQ(rc, r.status);
        EXPECT_EQ(capture.logTexts(), r.logs);
        for (const auto &line : capture.logs) {
            EXPECT_EQ(line.mask, 2u);
        }
        if (r.traces) {
            EXPECT_EQ(capture.traceTexts(), *r.traces);
        }
        EXPECT_EQ(failCounters(), r.counters);
        if (r.busAccesses >= 0) {
            EXPECT_EQ(t.size(), static_cast<size_t>(r.busAccesses));
        }
        if (r.moved >= 0) {
            const uint32_t now = r.op == 'W' ? model.tables().entry(0x5000, 38, 5)[0] : entry[0];
            const uint32_t moved = r.op == 'W' ? 0x1234 : 0x4321, kept = r.op == 'W' ? 0x4321 : 0x7777;
            EXPECT_EQ(now, r.moved != 0 ? moved : kept);
        }
        model.tables().holdBusy(0x5000, 0);
        model.tables().setCommandBusy(0x5000, 0);
        model.setCardPresent(true);
        EXPECT_TRUE(lockFree());
    }
    // 499 busy polls: the 500th finds the block idle.
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    model.tables().holdBusy(0x5000, 499);
    EXPECT_EQ(VQ6192_Write_Table(kChip, kPri, 5, entry), 0u);
}

TEST_F(TableTest, TestWriteSetsThePriorities) {
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {0xFFFFFFFFu};
    ASSERT_EQ(VQ6192_Write_Table(kChip, kPri, 4, entry), 0u);
    EXPECT_EQ(VQ6192_Wt_Test(kChip, 4), 0u);
    EXPECT_EQ(model.tables().entry(0x5000, 38, 4)[0], 0xB47F) << "bits 6..14 := 0xD1, the rest kept";
    model.tables().holdBusy(0x5000, TableEngine::kForever);
    EXPECT_EQ(VQ6192_Wt_Test(kChip, 4), 0x030C0003u);
}

}  // namespace
