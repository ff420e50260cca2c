// Bad input over every exported operation. Each operation is called
//  - with chip id 264: refused with a parameter error carrying the chip bits 264 & 0xF = 8, and the
//    installed chip's registers untouched;
//  - on a chip that has a chip model but was never installed: the installed chip untouched (a chip
//    that was never installed is a zeroed record the operation acts on, so no status is expected);
//  - on the installed chip with each pointer null and with each integer at its type's maximum: no
//    crash or sanitizer report, no allocation kept, and a parameter error writes no register.
#include <set>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "sweep/ops.h"
#include "vq6192/vq6192.h"

namespace {

using sweep::Arg;
using sweep::Op;
using sweep::Plan;

constexpr uint32_t kBadChip = 264;
constexpr uint32_t kUninstalled = 200;
constexpr uint32_t kParaErr = 1, kNullErr = 2;

// Operations that take chip id 264 without refusing it, as the chip documentation describes them.
// A name ending in '_' stands for every operation it begins.
constexpr sweep::Exception kAccepts264[] = {
    {"VQ6192_ReadReg", "returns the register value: 0 for a chip above 263"},
    {"VQ6192_ReadRegField", "returns the field value: 0 for a chip above 263"},
    {"VQ6192_ReadRegDirect", "returns the register value: 0 for a chip above 263"},
    {"VQ6192_ReadRegIndirect", "returns the register value: 0 for a chip above 263"},
    {"VQ6192_ReadRegFieldB", "returns the field value: 0 for a chip above 263"},
    {"VQ6192_ReadRegFieldBDirect", "returns the field value: 0 for a chip above 263"},
    {"VQ6192_ReadRegFieldBIndirect", "returns the field value: 0 for a chip above 263"},
    {"VQ6192_WriteRegDirect", "a chip above 263 returns at once, nothing written"},
    {"VQ6192_WriteRegIndirect", "a chip above 263 returns at once, nothing written"},
    {"VQ6192_Indirect_ReadReg16", "the spare record has no indirect function: 0"},
    {"VQ6192_Indirect_WriteReg16", "the spare record has no indirect function: 0"},
    {"VQ6192_SemP", "the spare record has no semaphore: 0"},
    {"VQ6192_SemV", "the spare record has no semaphore: 0"},
    {"VQ6192_GetArbitrateFunc", "the spare record has no semaphore or hooks: 0"},
    {"VQ6192_GiveArbitrateFunc", "the spare record has no semaphore or hooks: 0"},
    {"VQ6192_Base_ReadReg", "checks the out pointer and the field only; a chip above 263 reads 0"},
    {"VQ6192_Base_WriteReg", "checks the field only; a chip above 263 writes nothing"},
    {"VQ6192_GetSupportProductFlag", "no range check: callers have checked the id"},
    {"VQ6192_GetRegIndirectFlag", "no range check: callers have checked the id"},
    {"VQ6192_Show_Printf_Flag", "no range check: prints the spare record's flags"},
    {"VQ6192_Set_Diag_Printf_Flag", "the setter logs the bad id; the success line follows, status 0"},
    {"VQ6192_Write_Table", "no check of the chip id: the register steps of chip 264 do nothing"},
    {"VQ6192_Read_Table", "no check of the chip id: the register steps of chip 264 do nothing"},
    {"VQ6192_Base_RamBist", "returns the mask of failed RAM blocks, not a status"},
    {"VQ6192_MAC_GetPortMibCntDfx", "no checks: the status is the table read's"},
    {"VQ6192_Telecom_SetTeleRst", "writes bit 0 of any value and never fails"},
    {"VQ6192_SAM_ResetSam", "the host's reset pulse: two register writes, no check"},
    {"VQ6192_ATM_CalcPolicingPara", "a conversion: no chip access"},
    {"VQ6192_ATM_CalcShappingPara", "a conversion: no chip access"},
    {"VQ6192_ATM_GetExponent", "a conversion: no chip access"},
    {"VQ6192_ATM_gen_byte_crc10_table", "fills the CRC-10 table of any record, the spare one included"},
    {"VQ6192_ATM_crc10", "computes over the caller's cell with the record's CRC-10 table"},
    {"VQ6192_PPP_CalcPppChnl", "returns an inner channel number, not a status"},
    {"VQ6192_PPP_ReCalcPppChnl", "returns a channel number, not a status"},
    {"VQ6192_PPP_ComputeDdrCapAddr", "returns the inner channel number, not a status"},
    {"getlinkdata", "lists the host-filled connection storage"},
    {"getbmtemplate", "lists the host-filled template storage"},
    {"getvcxdropall", "lists drop counters; reads of chip 264 give 0"},
    {"getportdropall", "lists drop counters; reads of chip 264 give 0"},
    {"getdropall", "lists drop counters; reads of chip 264 give 0"},
    {"getmpctrltimeout", "prints a zero value"},
    {"getmpmcmap", "prints a zero value"},
    {"setpppqueweight", "prints the operation's status and returns 0"},
    {"setmpqueweight", "prints the operation's status and returns 0"},
    {"DbgGetCapPkt", "prints the chip's capture state (not started)"},
    {"DbgGetCapPktMatchCapture", "prints the chip's capture state (not started)"},
    {"DbgGetPppconfig", "prints a table; no status"},
    {"DbgGetMpconfig", "prints a table; no status"},
    {"DbgGetCesChannelInfo", "prints a table; no status"},
    {"DbgGetCesRtpParam", "prints a table; no status"},
};

bool accepts264(std::string_view name) {
    // Help blocks of the SDH and telecom commands query nothing.
    if (name.ends_with("_h")) {
        return true;
    }
    for (const sweep::Exception &a : kAccepts264) {
        if (name == a.name) {
            return true;
        }
    }
    return false;
}

// Arguments left out of the maximum run or of the no-write check, with why.
struct ArgException {
    const char *name;
    int arg;
    const char *reason;
};
// Lengths of a caller's buffer (a length beyond the buffer is the caller's overrun, not the
// library's) and repeat counts the caller chooses.
constexpr ArgException kCallerCounts[] = {
    {"VQ6192_ATM_update_crc10_by_bytes", 3, "bytes of the caller's buffer"},
    {"VQ6192_Read_QMLEN", 2, "reads the queue length n times, 200 ticks apart"},
    {"DbgGetCesConfig", -1,
     "scans every line's timeslots on each call (seconds): the diagnostic fuzzer has it"},
    {"DbgGetCesPara", -1, "lists channels first up to last (seconds): the diagnostic fuzzer has it"},
};
// Refusals the chip documentation orders after a register write (argument -1: whichever argument).
constexpr ArgException kWriteBeforeRefusal[] = {
    {"VQ6192_ATM_CaptureAtmCell", -1, "no cell captured: the parameter-error code after the match"},
    {"captureatmcell", -1, "no cell captured: the parameter-error code after the match"},
    {"VQ6192_SAM_SetSaBitInsert", 2, "bitPos is checked once the entry was read (table-access registers)"},
    {"VQ6192_SAM_GetSaBitValue", 2, "bitPos is checked after the extraction enable is written"},
    {"VQ6192_PPP_DelPppChan", 2,
     "the E1 is checked by the timeslot step; earlier steps stand (statuses ORed)"},
    {"DbgReadPppAllCntAndStatus", -1, "prints ten readers in one go, some read-clear, whatever one refuses"},
    {"VQ6192_ATM_DelAtmBwdQm", 2, "an unknown kind clears the queue-delete command field first"},
};

bool listed(const auto &list, std::string_view name, int arg) {
    for (const ArgException &e : list) {
        if (name == e.name && (arg == e.arg || e.arg < 0)) {
            return true;
        }
    }
    return false;
}

// The diagnostic commands return the status of the operation they call, the SDH and telecom ones its
// low 16 bits only; the exact code is asserted on the operations themselves.
bool diagnostic(std::string_view name) {
    return !name.starts_with("VQ6192_");
}

class BadInputSweep : public vqtest::ChipTest {
  protected:
    void SetUp() override {
        ChipTest::SetUp();
        other.attach(kUninstalled);
        model.setTrace(true);
    }
    void TearDown() override {
        other.detach();
        ChipTest::TearDown();
    }

    // Calls one operation on a freshly installed chip (no state left by the operation before) and
    // checks that everything it allocated is given back by the time the chip is uninstalled.
    sweep::Result run(const Op &op, const Plan &plan) {
        VQ6192_UnInstall_SDK(kChip);
        model.reset();
        model.tables().clear();
        const uint64_t before = vqtest::outstandingAllocations();
        EXPECT_EQ(VQ6192_Install_SDK(&para), 0u);
        model.clearTrace();
        const sweep::Result r = op.call(plan);
        if (model.oddAccesses() != 0) {
            oddOps.insert(std::string(op.name));
            model.reset();  // counted here, not at the end of the test
        }
        VQ6192_UnInstall_SDK(kChip);
        EXPECT_EQ(vqtest::outstandingAllocations(), before) << op.name << ": allocation kept";
        EXPECT_EQ(VQ6192_Install_SDK(&para), 0u);
        return r;
    }

    vq6192::sim::ChipModel other;
    std::set<std::string> oddOps;  // operations that reached an odd register address
};

TEST_F(BadInputSweep, ChipIdOutOfRangeOrNeverInstalled) {
    size_t swept = 0;
    for (const Op &op : sweep::exportedOps()) {
        if (sweep::notCalled(op.name) != nullptr || sweep::noChip(op.name) != nullptr) {
            continue;
        }
        SCOPED_TRACE(std::string(op.name));
        ++swept;
        const sweep::Result r = run(op, {.chip = kBadChip});
        EXPECT_TRUE(model.trace().empty()) << op.name << ": chip 264 reached chip " << kChip;
        if (r.hasStatus && !accepts264(op.name)) {
            EXPECT_NE(r.status, 0u) << op.name << ": chip 264 accepted";
            if (r.status != 0 && !diagnostic(op.name)) {
                EXPECT_EQ(VQ6192_STATUS_CHIP(r.status), kBadChip & 0xFu)
                    << op.name << std::hex << " " << r.status;
                EXPECT_EQ(VQ6192_STATUS_ERROR(r.status), kParaErr) << op.name << std::hex << " " << r.status;
                const int module = sweep::moduleField(op.name);
                if (module >= 0) {
                    EXPECT_EQ(VQ6192_STATUS_MODULE(r.status), uint32_t(module))
                        << op.name << std::hex << " " << r.status;
                }
            }
        }
        run(op, {.chip = kUninstalled});
        EXPECT_TRUE(model.trace().empty()) << op.name << ": an uninstalled chip reached chip " << kChip;
    }
    RecordProperty("operations", std::to_string(swept));
    std::printf("chip ids out of range and never installed: %zu operations\n", swept);
}

TEST_F(BadInputSweep, NullPointersAndIntegersAtTheirMaximum) {
    size_t swept = 0, calls = 0;
    for (const Op &op : sweep::exportedOps()) {
        if (sweep::notCalled(op.name) != nullptr) {
            continue;
        }
        const bool chipFirst = sweep::noChip(op.name) == nullptr;
        SCOPED_TRACE(std::string(op.name));
        ++swept;
        for (int i = chipFirst ? 1 : 0; i < int(op.args.size()); ++i) {
            Plan plan{.chip = kChip, .chipFirst = chipFirst};
            if (listed(kCallerCounts, op.name, i)) {
                continue;
            }
            if (op.args[size_t(i)] == Arg::Pointer) {
                plan.nullArg = i;
            } else if (op.args[size_t(i)] == Arg::Integer || op.args[size_t(i)] == Arg::Floating) {
                plan.maxArg = i;
            } else {
                continue;
            }
            ++calls;
            const sweep::Result r = run(op, plan);
            const uint32_t err = VQ6192_STATUS_ERROR(r.status);
            if (r.hasStatus && (err == kParaErr || (plan.nullArg >= 0 && err == kNullErr)) &&
                !listed(kWriteBeforeRefusal, op.name, i)) {
                EXPECT_TRUE(vqtest::writes(model.trace()).empty())
                    << op.name << " argument " << i << ": refused with " << std::hex << r.status
                    << " after writing a register";
            }
        }
    }
    std::printf("null pointers and integer maxima: %zu operations, %zu calls\n", swept, calls);
    // Only the raw register operations, whose address is the caller's, reach an odd address.
    for (const std::string &name : oddOps) {
        const bool raw = name.starts_with("VQ6192_ReadReg") || name.starts_with("VQ6192_WriteReg") ||
                         name.starts_with("VQ6192_Indirect_ReadReg") ||
                         name.starts_with("VQ6192_Indirect_WriteReg");
        EXPECT_TRUE(raw) << name;
    }
}

}  // namespace
