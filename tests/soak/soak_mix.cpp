#include "soak/soak_mix.h"

#include <algorithm>
#include <cstring>

#include "diag/registry.h"
#include "vq6192/vq6192.h"

namespace vqsoak {
namespace {

uint64_t seen(uint32_t status, uint64_t outputs = 0) {
    return (outputs << 32) | status;
}

// FNV-1a over the diagnostic text, so that a replay also compares what the command printed.
uint32_t textHash(const char *text) {
    uint32_t h = 2166136261u;
    for (const char *p = text; *p != '\0'; ++p) {
        h = (h ^ static_cast<uint8_t>(*p)) * 16777619u;
    }
    return h;
}

// A diagnostic command whose arguments are the chip id and U32 values, called through the registry.
template <size_t N>
uint64_t diag(const char *name, uint32_t chip, const uint32_t *args, char *buf) {
    const vq::diag::Command *cmd = vq::diag::findCommand(name);
    if (cmd == nullptr || cmd->argc != N + 1) {
        return seen(0xFFFFFFFFu);
    }
    vq::diag::ArgValue values[N + 1];
    values[0].u32 = chip;
    for (size_t i = 0; i < N; ++i) {
        values[i + 1].u32 = args[i];
    }
    buf[0] = '\0';
    uint32_t rc = cmd->invoke(values, buf);
    return seen(rc, textHash(buf));
}

// Ranges follow the chip's channel spaces: 4 VC-4s, 3 AU-3s each, 336 E1/T1 tributaries, 12 E3/T3s,
// 336 ATM line ports, 8192 connections, 2048 pseudowires, 512 PPP channels, 352 CES channels.
constexpr Op kOps[] = {
    // SDH/SONET mapper and telecom bus.
    {"SDH_SetHpLomAisEn", OpKind::Config, {5, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_SDH_SetHpLomAisEn(c, a[0], a[1])); }},
    {"SDH_SetLpAlmMsk", OpKind::Config, {3},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_SDH_SetLpAlmMsk(c, a[0])); }},
    {"SDH_SetVc4TuAisInsEn", OpKind::Config, {5, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_SDH_SetVc4TuAisInsEn(c, a[0], a[1])); }},
    {"SDH_SetSDHMap", OpKind::Config, {4, 3, 15},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_SDH_SetSDHMap(c, a[0], a[1], a[2])); }},
    {"SDH_GetSDHMap", OpKind::Status, {4, 3},
     [](uint32_t c, const uint32_t *a, char *) {
         uint8_t type = 0xEE;
         uint32_t rc = VQ6192_SDH_GetSDHMap(c, a[0], a[1], &type);
         return seen(rc, type);
     }},
    {"Telecom_SetTeleRxFifoErrMsk", OpKind::Config, {5, 2},
     [](uint32_t c, const uint32_t *a, char *) {
         return seen(VQ6192_Telecom_SetTeleRxFifoErrMsk(c, a[0], a[1]));
     }},
    {"Telecom_GetTeleRxFifoErrMsk", OpKind::Status, {5},
     [](uint32_t c, const uint32_t *a, char *) {
         uint8_t msk = 0xEE;
         uint32_t rc = VQ6192_Telecom_GetTeleRxFifoErrMsk(c, a[0], &msk);
         return seen(rc, msk);
     }},
    {"gethplomaisen", OpKind::Diag, {5}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("gethplomaisen", c, a, b); }},
    {"gethpalms", OpKind::Diag, {4}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("gethpalms", c, a, b); }},

    // Framers and timeslot tables.
    {"Framer_SetFrmMode", OpKind::Config, {337, 3, 4},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_Framer_SetFrmMode(c, a[0], a[1], a[2])); }},
    {"Framer_GetFrmMode", OpKind::Status, {336, 3},
     [](uint32_t c, const uint32_t *a, char *) {
         uint32_t mode = 0xEE;
         uint32_t rc = VQ6192_Framer_GetFrmMode(c, a[0], a[1], &mode);
         return seen(rc, mode);
     }},
    {"Framer_SetE1RaiInsEn", OpKind::Config, {337, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_Framer_SetE1RaiInsEn(c, a[0], a[1])); }},
    {"Framer_SetTSSMode", OpKind::Config, {337, 3},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_Framer_SetTSSMode(c, a[0], a[1])); }},
    {"Framer_SetTsEgDefaultByte", OpKind::Config, {337, 256},
     [](uint32_t c, const uint32_t *a, char *) {
         return seen(VQ6192_Framer_SetTsEgDefaultByte(c, a[0], a[1]));
     }},
    {"Framer_SelectSrcE1", OpKind::Config, {3, 336, 512, 5, 0x10000},
     [](uint32_t c, const uint32_t *a, char *) {
         // Timeslots from the low bits, speed from the high ones (0, 1, 3 or 4).
         static constexpr uint32_t kSpeeds[] = {0, 1, 3, 4};
         const uint32_t bitmap = (a[4] * 0x9E3779B1u) & 0xFFFFFFFEu;
         return seen(VQ6192_Framer_SelectSrcE1(c, a[0], a[1], a[2], a[3], bitmap, kSpeeds[a[4] & 3]));
     }},
    {"getfrmmode", OpKind::Diag, {336, 3}, [](uint32_t c, const uint32_t *a, char *b) { return diag<2>("getfrmmode", c, a, b); }},
    {"gettssmode", OpKind::Diag, {337}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("gettssmode", c, a, b); }},
    {"getfrmalms", OpKind::Diag, {336}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("getfrmalms", c, a, b); }},

    // ATM and ATM pseudowires.
    {"ATM_SetAtmPortEn", OpKind::Config, {337, 2, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_ATM_SetAtmPortEn(c, a[0], a[1], a[2])); }},
    {"ATM_SetAtmVcxEn", OpKind::Config, {8193, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_ATM_SetAtmVcxEn(c, a[0], a[1])); }},
    {"ATM_SetPwEnable", OpKind::Config, {2049, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_ATM_SetPwEnable(c, a[0], a[1])); }},
    {"ATM_GetPwExpectRange", OpKind::Status, {2048},
     [](uint32_t c, const uint32_t *a, char *) {
         uint16_t range = 0xEE;
         uint32_t rc = VQ6192_ATM_GetPwExpectRange(c, a[0], &range);
         return seen(rc, range);
     }},
    {"getatmvcxenstat", OpKind::Diag, {8192}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("getatmvcxenstat", c, a, b); }},
    {"getatmportenstat", OpKind::Diag, {336, 2}, [](uint32_t c, const uint32_t *a, char *b) { return diag<2>("getatmportenstat", c, a, b); }},
    {"getpwenable", OpKind::Diag, {2048}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("getpwenable", c, a, b); }},

    // PPP.
    {"PPP_SetPppMRU", OpKind::Config, {513, 2040},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_PPP_SetPppMRU(c, a[0], a[1])); }},
    {"PPP_SetPppACFCEnable", OpKind::Config, {513, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_PPP_SetPppACFCEnable(c, a[0], a[1])); }},
    {"PPP_GetPppMRU", OpKind::Status, {512},
     [](uint32_t c, const uint32_t *a, char *) {
         uint32_t mru = 0xEE;
         uint32_t rc = VQ6192_PPP_GetPppMRU(c, a[0], &mru);
         return seen(rc, mru);
     }},
    {"getpppacfcenable", OpKind::Diag, {512}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("getpppacfcenable", c, a, b); }},

    // CES.
    {"CES_SetCesChanEnable", OpKind::Config, {353, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_CES_SetCesChanEnable(c, a[0], a[1])); }},
    {"CES_SetCesIdleCode", OpKind::Config, {353, 256},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_CES_SetCesIdleCode(c, a[0], a[1])); }},
    {"CES_GetCesChanEnable", OpKind::Status, {352},
     [](uint32_t c, const uint32_t *a, char *) {
         uint32_t en = 0xEE;
         uint32_t rc = VQ6192_CES_GetCesChanEnable(c, a[0], &en);
         return seen(rc, en);
     }},
    {"getceschanenable", OpKind::Diag, {352}, [](uint32_t c, const uint32_t *a, char *b) { return diag<1>("getceschanenable", c, a, b); }},

    // Ethernet side and MAC ports.
    {"ETH_SetIngVlanID", OpKind::Config, {5, 2049, 4097},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_ETH_SetIngVlanID(c, a[0], a[1], a[2])); }},
    {"ETH_GetIngVlanID", OpKind::Status, {4, 512},
     [](uint32_t c, const uint32_t *a, char *) {
         uint32_t vlan = 0xEE;
         uint32_t rc = VQ6192_ETH_GetIngVlanID(c, a[0], a[1], &vlan);
         return seen(rc, vlan);
     }},
    {"MAC_SetPortTxEn", OpKind::Config, {3, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_MAC_SetPortTxEn(c, a[0], a[1])); }},
    {"getingvlanid", OpKind::Diag, {4, 512}, [](uint32_t c, const uint32_t *a, char *b) { return diag<2>("getingvlanid", c, a, b); }},

    // Interrupts.
    // Interrupt sources are one-hot ids 1..256; 512 is refused.
    {"INT_SetIntEnable", OpKind::Config, {10, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_INT_SetIntEnable(c, 1u << a[0], a[1])); }},
    {"INT_GetIntEnable", OpKind::Status, {9},
     [](uint32_t c, const uint32_t *a, char *) {
         uint16_t en = 0xEE;
         uint32_t rc = VQ6192_INT_GetIntEnable(c, 1u << a[0], &en);
         return seen(rc, en);
     }},
    {"INT_SetET3IntEn", OpKind::Config, {13, 4, 2},
     [](uint32_t c, const uint32_t *a, char *) { return seen(VQ6192_INT_SetET3IntEn(c, a[0], a[1], a[2])); }},
};

constexpr Op kReaderOps[] = {
    {"SDH_GetHpAlms",
     OpKind::Status,
     {4},
     [](uint32_t c, const uint32_t *a, char *) {
         uint8_t oom = 0, lom = 0, cur = 0;
         return seen(VQ6192_SDH_GetHpAlms(c, a[0], &oom, &lom, &cur));
     }},
    {"SDH_GetRxHpB3Cnt",
     OpKind::Status,
     {4},
     [](uint32_t c, const uint32_t *a, char *) {
         uint8_t flag = 0, count = 0;
         return seen(VQ6192_SDH_GetRxHpB3Cnt(c, a[0], &flag, &count));
     }},
    {"SDH_GetSDHET1FifoAlm",
     OpKind::Status,
     {336},
     [](uint32_t c, const uint32_t *a, char *) {
         uint8_t alarms[4] = {};
         return seen(VQ6192_SDH_GetSDHET1FifoAlm(c, a[0], alarms));
     }},
    {"Telecom_GetTeleFpLos",
     OpKind::Status,
     {1},
     [](uint32_t c, const uint32_t *, char *) {
         uint8_t jitter = 0, los = 0, fifo = 0, clk = 0;
         return seen(VQ6192_Telecom_GetTeleFpLos(c, &jitter, &los, &fifo, &clk));
     }},
    {"Telecom_GetTeleRxB2Cnt",
     OpKind::Status,
     {4},
     [](uint32_t c, const uint32_t *a, char *) {
         uint16_t count = 0;
         return seen(VQ6192_Telecom_GetTeleRxB2Cnt(c, a[0], &count));
     }},
    {"Framer_GetRfpAlm",
     OpKind::Status,
     {1},
     [](uint32_t c, const uint32_t *, char *) {
         uint8_t w = 0, x = 0, y = 0, z = 0;
         return seen(VQ6192_Framer_GetRfpAlm(c, &w, &x, &y, &z));
     }},
    {"Framer_GetPRBSErrCnt",
     OpKind::Status,
     {1},
     [](uint32_t c, const uint32_t *, char *) {
         uint16_t count = 0;
         return seen(VQ6192_Framer_GetPRBSErrCnt(c, &count));
     }},
    {"SAM_GetSamCnt",
     OpKind::Status,
     {336},
     [](uint32_t c, const uint32_t *a, char *) {
         uint32_t n0 = 0, n1 = 0, n2 = 0, n3 = 0;
         return seen(VQ6192_SAM_GetSamCnt(c, a[0], &n0, &n1, &n2, &n3));
     }},
};

}  // namespace

std::span<const Op> operations() {
    return kOps;
}

std::span<const Op> readerOperations() {
    return kReaderOps;
}

std::mt19937 chipRng(uint32_t seed, uint32_t chip) {
    std::seed_seq seq{seed, chip};
    return std::mt19937(seq);
}

Step draw(std::mt19937 &rng, std::span<const Op> ops) {
    return drawArgs(rng, ops, static_cast<uint16_t>(rng() % ops.size()));
}

Step drawArgs(std::mt19937 &rng, std::span<const Op> ops, uint16_t op) {
    Step s{};
    s.op = op;
    for (size_t i = 0; i < 5; ++i) {
        const uint32_t bound = ops[s.op].bounds[i];
        // Half of the draws come from the first few channels, so that operations meet the state
        // earlier ones left (a PW disabled after it was enabled runs the delete handshake).
        const uint32_t r = rng();
        s.args[i] = bound == 0 ? 0 : (r & 1) != 0 ? (r >> 1) % std::min(bound, 8u) : (r >> 1) % bound;
    }
    return s;
}

Step runOne(uint32_t chip, std::mt19937 &rng, char *buf) {
    Step s = draw(rng, kOps);
    s.seen = kOps[s.op].run(chip, s.args, buf);
    return s;
}

uint64_t replay(uint32_t chip, const Step &step, char *buf) {
    return kOps[step.op].run(chip, step.args, buf);
}

}  // namespace vqsoak
