// Diagnostic commands of the framers, timeslots and PRBS family.
//
// Each command reads through the framer operations and returns their status whole. Without a buffer
// the framed-value commands still query the chip and return its status (the query comes first, as in
// the chip commands); the record-style reports and the PRBS timeslot listing return 0 and touch
// nothing. Outputs are zeroed before the query, so a failed query prints zeros.
#include <array>
#include <cstdint>

#include "diag/layout.h"
#include "diag/registry.h"
#include "vq6192/framer.h"
#include "vq6192/sdh.h"

namespace vq::diag {
namespace {

// Line of a record-style report: the member name padded into its column, the value in decimal.
constexpr char kRecordLine[] = "    |  %-25s: %8u \n";

template <typename Record>
struct Member {
    const char *label;
    uint8_t Record::*byte;
};

// A member of a record of one-byte fields, by its own name.
#define VQ6192_MEMBER(record, name) (Member<record>{#name, &record::name})

// The E3/T3 alarm record in the chip's order: S0, S1, E3 A, E3 D, T3 A, T3 D.
constexpr Member<VQ6192_FRM_ET3_ALARM_S> kEt3Alarms[] = {
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aLosAlarmCur),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aAll0AlarmCur),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aAll1AlarmCur),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aLocAlarmCur),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aSyncfoAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aSyncfuAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aLosAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aAll0AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aAll1AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucET3aLocAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3AAll0AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3AAisAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3AOofAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3ARaiAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3DAll0AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3DAisAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3DOofAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucE3DRaiAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3ARdiAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3AAll0AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3AAll1AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3AAisAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3AIdleAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3AOofAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3ALofAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DRdiAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DAll0AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DAll1AlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DAisAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DIdleAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DOofAlarmHis),
    VQ6192_MEMBER(VQ6192_FRM_ET3_ALARM_S, ucT3DLofAlarmHis),
};
static_assert(std::size(kEt3Alarms) == 32);

// The E3/T3 error counters: A side from P, D side from Q. The labels carry their semicolon.
struct T3Counter {
    const char *label;
    uint16_t VQ6192_FRM_T3_ERR_S::*count;
};
constexpr T3Counter kT3Counters[] = {
    {"usAT3Ferrcnt;", &VQ6192_FRM_T3_ERR_S::usAT3Ferrcnt},
    {"usAT3Merrcnt;", &VQ6192_FRM_T3_ERR_S::usAT3Merrcnt},
    {"usAT3Pcnt;", &VQ6192_FRM_T3_ERR_S::usAT3Pcnt},
    {"usAT3Cpcnt;", &VQ6192_FRM_T3_ERR_S::usAT3Cpcnt},
    {"usAT3Febecnt;", &VQ6192_FRM_T3_ERR_S::usAT3Febecnt},
    {"usDT3Ferrcnt;", &VQ6192_FRM_T3_ERR_S::usDT3Ferrcnt},
    {"usDT3Merrcnt;", &VQ6192_FRM_T3_ERR_S::usDT3Merrcnt},
    {"usDT3Pcnt;", &VQ6192_FRM_T3_ERR_S::usDT3Pcnt},
    {"usDT3Cpcnt;", &VQ6192_FRM_T3_ERR_S::usDT3Cpcnt},
    {"usDT3Febecnt;", &VQ6192_FRM_T3_ERR_S::usDT3Febecnt},
};

// The pointer report lists seven of the nine positions: the second F and the third H3 are left out.
constexpr Member<VQ6192_SDH_AU_PTR_S> kAuPointer[] = {
    VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucH1),   VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucY_1),
    VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucY_2),  VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucH2),
    VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucF_1),  VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucH3_1),
    VQ6192_MEMBER(VQ6192_SDH_AU_PTR_S, ucH3_2),
};

#undef VQ6192_MEMBER

template <typename Record, size_t N>
void recordReport(char *buf, const Record &record, const Member<Record> (&members)[N]) {
    TextBuilder text(buf);
    for (const Member<Record> &m : members) {
        fieldLine(text, kRecordLine, {m.label, record.*m.byte});
    }
    text.add("%s", kPrintEnd);
}

// A framed report of the usual value lines.
void value(char *buf, const char *title, std::initializer_list<Field> fields) {
    TextBuilder text(buf);
    framed(text, kSep, title, fields);
}

// The CES PRBS timeslot listing.
constexpr char kPrbsRule[] = "============================================================================\n";
constexpr uint32_t kCesService = 3;
constexpr uint32_t kPrbsE1PathType = 1;  // E1/T1 paths 0..335 taken as they are
constexpr uint32_t kPrbsE3PathType = 2;  // E3/T3 paths 0..11

}  // namespace
}  // namespace vq::diag

using vq::diag::Field;

extern "C" {

// ---- Framer modes, clocks, alarms and counters -----------------------------------------------------

VQ6192_API uint32_t getfrmtdmmode(uint32_t chip, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_Framer_GetFrmTDMMode(chip, &mode);
    vq::diag::value(buf, "GetFrmTDMMode()", {{"enTDMMode", mode}});
    return rc;
}

VQ6192_API uint32_t getfrmmode(uint32_t chip, uint32_t e1, uint32_t dir, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_Framer_GetFrmMode(chip, e1, dir, &mode);
    vq::diag::value(buf, "GetFrmMode()", {{"reFramerMode", mode}});
    return rc;
}

VQ6192_API uint32_t getfrmclksource(uint32_t chip, uint32_t e1, char *buf) {
    uint16_t src = 0;
    const uint32_t rc = VQ6192_Framer_GetFrmClkSource(chip, e1, &src);
    vq::diag::value(buf, "GetFrmClkSource()", {{"rwClkLinkNum", src}});
    return rc;
}

VQ6192_API uint32_t getfrme3txclksource(uint32_t chip, uint32_t e3, char *buf) {
    uint16_t src = 0;
    const uint32_t rc = VQ6192_Framer_GetFrmET3TxClkSource(chip, e3, &src);
    vq::diag::value(buf, "GetFrmET3TxClkSource()", {{"rwClkLinkNum", src}});
    return rc;
}

VQ6192_API uint32_t getfrmalms(uint32_t chip, uint32_t e1, char *buf) {
    uint16_t ais = 0, rai = 0, bfoof = 0, mfoof = 0;
    const uint32_t rc = VQ6192_Framer_GetFrmAlms(chip, e1, &ais, &rai, &bfoof, &mfoof);
    vq::diag::value(buf, "GetFrmAlm()",
                    {{"VQ6192_FRAMER_BFOOF", bfoof},
                     {"VQ6192_FRAMER_MFOOF", mfoof},
                     {"VQ6192_FRAMER_RAI", rai},
                     {"VQ6192_FRAMER_AIS", ais}});
    return rc;
}

VQ6192_API uint32_t getfrmet3alms(uint32_t chip, uint32_t e3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_FRM_ET3_ALARM_S alarms{};
    const uint32_t rc = VQ6192_Framer_GetFrmET3Alms(chip, e3, &alarms);
    vq::diag::recordReport(buf, alarms, vq::diag::kEt3Alarms);
    return rc;
}

// The counters are addressed by standard coordinates; the status is that of the conversion and the
// three reads together.
VQ6192_API uint32_t getfrmcnts(uint32_t chip, uint32_t e1, char *buf) {
    uint32_t vc4 = 0, tug3 = 0, tug2 = 0, tu = 0;
    uint32_t rc = VQ6192_SDH_InterE1Chno2Standardno(chip, e1, &vc4, &tug3, &tug2, &tu);
    std::array<uint32_t, 3> count{};
    for (uint32_t type : {VQ6192_FRM_CRCERR, VQ6192_FRM_FERR, VQ6192_FRM_FEBE}) {
        rc |= VQ6192_Framer_GetE1FrmCntStd(chip, vc4, tug3, tug2, tu, type, &count[type]);
    }
    vq::diag::value(buf, "GetE1FrmCnt()",
                    {{"VQ6192_FRM_CRCERR", count[VQ6192_FRM_CRCERR]},
                     {"VQ6192_FRM_FERR", count[VQ6192_FRM_FERR]},
                     {"VQ6192_FRM_FEBE", count[VQ6192_FRM_FEBE]}});
    return rc;
}

VQ6192_API uint32_t gett3errorstat(uint32_t chip, uint32_t e3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_FRM_T3_ERR_S counts{};
    const uint32_t rc = VQ6192_Framer_GetT3ErrorStat(chip, e3, &counts);
    vq::TextBuilder text(buf);
    for (const vq::diag::T3Counter &c : vq::diag::kT3Counters) {
        vq::diag::fieldLine(text, vq::diag::kRecordLine, {c.label, counts.*c.count});
    }
    text.add("%s", vq::diag::kPrintEnd);
    return rc;
}

VQ6192_API uint32_t getsdhauptr(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_SDH_AU_PTR_S ptr{};
    const uint32_t rc = VQ6192_Framer_GetSDHAuPtr(chip, &ptr);
    vq::diag::recordReport(buf, ptr, vq::diag::kAuPointer);
    return rc;
}

// ---- Timeslot switch -------------------------------------------------------------------------------

VQ6192_API uint32_t gettscfg(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t ts, char *buf) {
    uint16_t channel = 0;
    uint8_t service = 0, enable = 0;
    uint32_t speed = 0;
    const uint32_t rc = VQ6192_Framer_GetTsCfg(chip, dir, e1, ts, &channel, &service, &speed, &enable);
    vq::diag::value(
        buf, "GetTsCfg()",
        {{"rwChnlDstID", channel}, {"reSrvType", service}, {"reTsSpeed", speed}, {"rbyEnable", enable}});
    return rc;
}

VQ6192_API uint32_t gettspayload(uint32_t chip, uint32_t vc4, char *buf) {
    uint32_t payload = 0;
    const uint32_t rc = VQ6192_Framer_GetTSPayLoad(chip, vc4, &payload);
    vq::diag::value(buf, "GetTSPayLoad()", {{"rePayLoad", payload}});
    return rc;
}

VQ6192_API uint32_t gettssource(uint32_t chip, uint32_t dir, uint32_t src, char *buf) {
    uint32_t source = 0;
    const uint32_t rc = VQ6192_Framer_GetTSSource(chip, dir, src, &source);
    vq::diag::value(buf, "GetTSSource()", {{"reSource", source}});
    return rc;
}

VQ6192_API uint32_t gettssmode(uint32_t chip, uint32_t e1, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_Framer_GetTSSMode(chip, e1, &mode);
    vq::diag::value(buf, "GetTSSMode()", {{"eTSMode", mode}});
    return rc;
}

VQ6192_API uint32_t gethtbloop(uint32_t chip, uint32_t zero, uint32_t idx, uint32_t kind, char *buf) {
    uint8_t loop = 0;
    const uint32_t rc = VQ6192_Framer_GetHTBLoop(chip, zero, idx, kind, &loop);
    vq::diag::value(buf, "GetHTBLoop()", {{"reLoopMode", loop}});
    return rc;
}

VQ6192_API uint32_t gettsegdefaultbyte(uint32_t chip, uint32_t e1, char *buf) {
    uint8_t byte = 0;
    const uint32_t rc = VQ6192_Framer_GetTsEgDefaultByte(chip, e1, &byte);
    vq::diag::value(buf, "GetTsEgDefaultByte()", {{"rbyValue", byte}});
    return rc;
}

VQ6192_API uint32_t gettsloop(uint32_t chip, uint32_t loopPoint, uint32_t chnl, char *buf) {
    uint8_t loop = 0;
    const uint32_t rc = VQ6192_Framer_GetTsLoop(chip, loopPoint, chnl, &loop);
    vq::diag::value(buf, "GetTsLoop()", {{"reLoop", loop}});
    return rc;
}

VQ6192_API uint32_t getresetrfpstate(uint32_t chip, char *buf) {
    uint8_t state = 0;
    const uint32_t rc = VQ6192_Framer_GetResetRfpState(chip, &state);
    vq::diag::value(buf, "GetResetRfpState()", {{"rbyEn", state}});
    return rc;
}

VQ6192_API uint32_t getrfpenableonoff(uint32_t chip, char *buf) {
    uint8_t dropInt = 0, errInt = 0, jitVld = 0, shift = 0;
    const uint32_t rc = VQ6192_Framer_GetRfpEnableOnOff(chip, &dropInt, &errInt, &jitVld, &shift);
    vq::diag::value(
        buf, "GetRfpEnableOnOff()",
        {{"rbyDropIntEn", dropInt}, {"rbyErrIntEn", errInt}, {"rbyJitVldEn", jitVld}, {"rbyShiftEn", shift}});
    return rc;
}

VQ6192_API uint32_t getrfpdelay(uint32_t chip, char *buf) {
    uint16_t delay = 0;
    const uint32_t rc = VQ6192_Framer_GetRfpDelay(chip, &delay);
    vq::diag::value(buf, "GetRfpDelay()", {{"rwDelayNum", delay}});
    return rc;
}

// ---- PRBS engines ----------------------------------------------------------------------------------

VQ6192_API uint32_t gettsprbsins(uint32_t chip, char *buf) {
    uint32_t rate = 0;
    uint8_t enable = 0;
    const uint32_t rc = VQ6192_Framer_GetTsPRBSIns(chip, &rate, &enable);
    vq::diag::value(buf, "GetTsPRBSIns()", {{"reInsRate", rate}, {"reInsEnable", enable}});
    return rc;
}

// The mapper engine's error insertion shares the timeslot engine's report, title included.
VQ6192_API uint32_t getprbserrinsert(uint32_t chip, char *buf) {
    uint32_t rate = 0;
    uint8_t enable = 0;
    const uint32_t rc = VQ6192_Framer_GetPrbsErrInsert(chip, &rate, &enable);
    vq::diag::value(buf, "GetTsPRBSIns()", {{"reInsRate", rate}, {"reInsEnable", enable}});
    return rc;
}

// Every E1/T1 source, then every E3/T3 source, whose timeslots carry a CES channel under PRBS test.
// The status is that of all the reads together.
VQ6192_API uint32_t getprbsts(uint32_t chip, uint32_t dir, char *buf) {
    using vq::diag::kPrbsRule;
    if (buf == nullptr) {
        return 0;
    }
    vq::TextBuilder text(buf);
    uint32_t rc = 0;
    text.add("%s", kPrbsRule)
        .add("              E1: eSrv(1: PPP, 2: ATM , 3: CES) SrvChnl(0~max)\n")
        .add("              E1Chnl(0~335), BitMap(0~0xFFFFFFFF)\n")
        .add("%s", kPrbsRule)
        .add("    eSrv    SrvChnl    E1Chnl    BitMap\n");
    for (uint32_t e1 = 0; e1 < VQ6192_FRM_E1_NUM; ++e1) {
        uint32_t bitmap = 0;
        uint16_t channel = 0;
        rc |= VQ6192_Framer_GetTsCesPrbsCfg(chip, vq::diag::kPrbsE1PathType, dir, e1, &bitmap, &channel);
        if (bitmap != 0) {
            text.add("    %3u    %7u    %7u    0x%8x\n", vq::diag::kCesService,
                     static_cast<uint32_t>(channel), e1, bitmap);
        }
    }
    text.add("%s", kPrbsRule)
        .add("%s", kPrbsRule)
        .add("              E3: eSrv(1: PPP, 2: ATM , 3: CES) SrvChnl(0~max)\n")
        .add("              E3Chnl(336~347), BitMap(0~0xFFFFFFFF)\n")
        .add("%s", kPrbsRule)
        .add("    eSrv    SrvChnl    E3Chnl    BitMap\n");
    for (uint32_t e3 = 0; e3 < VQ6192_FRM_E3_NUM; ++e3) {
        uint32_t bitmap = 0;
        uint16_t channel = 0;
        rc |= VQ6192_Framer_GetTsCesPrbsCfg(chip, vq::diag::kPrbsE3PathType, dir, e3, &bitmap, &channel);
        if (bitmap != 0) {
            text.add("    %3u    %7u\n", vq::diag::kCesService, e3);
        }
    }
    text.add("%s", kPrbsRule);
    return rc;
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    // Framer modes, clocks, alarms and counters
    VQ6192_DIAG_COMMAND(getfrmtdmmode, "FRM", "chip", "show the chip's TDM mode (0 E1, 1 T1)"),
    VQ6192_DIAG_COMMAND(getfrmmode, "FRM", "chip e1 dir",
                        "show an E1/T1 channel's frame mode in a direction"),
    VQ6192_DIAG_COMMAND(getfrmclksource, "FRM", "chip e1", "show an E1/T1 framer's clock source"),
    VQ6192_DIAG_COMMAND(getfrme3txclksource, "FRM", "chip e3",
                        "show an E3/T3 framer's transmit clock source"),
    VQ6192_DIAG_COMMAND(getfrmalms, "FRM", "chip e1", "show an E1/T1 channel's frame alarms"),
    VQ6192_DIAG_COMMAND(getfrmet3alms, "FRM", "chip e3", "show an E3/T3 framer's current and latched alarms"),
    VQ6192_DIAG_COMMAND(getfrmcnts, "FRM", "chip e1",
                        "show an E1/T1 channel's CRC, framing and far-end block errors"),
    VQ6192_DIAG_COMMAND(gett3errorstat, "FRM", "chip e3", "show an E3/T3 framer's ten error counters"),
    VQ6192_DIAG_COMMAND(getsdhauptr, "FRM", "chip", "show the transmitted AU pointer bytes"),
    // Timeslot switch
    VQ6192_DIAG_COMMAND(gettscfg, "TS", "chip dir e1 ts",
                        "show the service, channel and rate of an E1/T1 timeslot"),
    VQ6192_DIAG_COMMAND(gettspayload, "TS", "chip vc4", "show a VC-4's payload type"),
    VQ6192_DIAG_COMMAND(gettssource, "TS", "chip dir src", "show a timeslot source enable"),
    VQ6192_DIAG_COMMAND(gettssmode, "TS", "chip e1", "show an E1/T1 channel's TSS mode (1 whole channel)"),
    VQ6192_DIAG_COMMAND(gethtbloop, "TS", "chip zero idx kind",
                        "show a telecom-bus loop (kind 0 chip level, 1 tributary idx)"),
    VQ6192_DIAG_COMMAND(gettsegdefaultbyte, "TS", "chip e1", "show the egress default byte"),
    VQ6192_DIAG_COMMAND(gettsloop, "TS", "chip loopPoint chnl", "show a timeslot loop (2 out + in)"),
    VQ6192_DIAG_COMMAND(getresetrfpstate, "TS", "chip", "show the receive frame pulse reset"),
    VQ6192_DIAG_COMMAND(getrfpenableonoff, "TS", "chip", "show the receive frame pulse enables"),
    VQ6192_DIAG_COMMAND(getrfpdelay, "TS", "chip", "show the receive frame pulse delay"),
    // PRBS engines
    VQ6192_DIAG_COMMAND(gettsprbsins, "FRM", "chip", "show the timeslot PRBS error insertion"),
    VQ6192_DIAG_COMMAND(getprbserrinsert, "FRM", "chip", "show the mapper PRBS error insertion"),
    VQ6192_DIAG_COMMAND(getprbsts, "FRM", "chip dir",
                        "list the E1/T1 and E3/T3 timeslots of CES channels under PRBS"),
};

}  // namespace

std::span<const Command> framerCommands() {
    return kCommands;
}

}  // namespace vq::diag
