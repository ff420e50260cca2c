// The default dump lists: the chip's register blocks and its table groups, in the order the dump
// walks them. Every table record carries its own copy of the table's access record (the register
// blocks below are the chip's indirect-access blocks); they match the table catalogue except that the
// counter-layout word is 0, RPPUSTAT is dumped 65535 deep, the CES tables sized for the 336 E1s are
// dumped over all 352 CES channels, and the E3/VC-4 timeslot tables are read with command value 0.
#include "chip/dump_lists.h"

#include <iterator>

namespace {

constexpr uint16_t kNone = VQ6192_TBL_NO_VALUE;
constexpr uint32_t kDumpFlags = 0x03000000u;
constexpr uint8_t kBlockVersion = 3;
constexpr uint8_t kKind = VQ6192_DUMP_KIND_RANGES;

// ---- Register blocks -----------------------------------------------------------------------------

// clang-format off
constexpr VQ6192_DUMP_REG_BLOCK_S kBlocks[vq::dump::kDefaultBlockCount] = {
    // name       id  ver            ranges kind      (base, first, last)
    {"GLB_CFG",    1, kBlockVersion, 1, kKind, 0, {{0x0000, 0, 0x132}}},
    {"IMA",        2, kBlockVersion, 5, kKind, 0, {{0x2000, 0, 0x4}, {0x2800, 0, 0x24F}, {0x2200, 0, 0x29}, {0x2400, 0, 0x60},
                                                   {0x2600, 0, 0xBE}}},
    {"PPP",        3, kBlockVersion, 4, kKind, 0, {{0x8000, 0, 0x2F}, {0x8800, 0, 0x3D3}, {0x9000, 0, 0x114}, {0x9800, 0, 0x308}}},
    {"ATM",        4, kBlockVersion, 5, kKind, 0, {{0x5000, 0, 0x50}, {0x5200, 0, 0xE0}, {0x5400, 0x30, 0x41}, {0x5100, 0x30, 0x90},
                                                   {0x5300, 0x40, 0xD0}}},
    {"CES",        5, kBlockVersion, 4, kKind, 0, {{0xA000, 0, 0x45F}, {0xA800, 0, 0x75F}, {0xB000, 0, 0x793}, {0xB800, 0, 0x157}}},
    {"SAM",        6, kBlockVersion, 1, kKind, 0, {{0x3000, 0, 0x54F}}},
    {"DDR2C",      7, kBlockVersion, 1, kKind, 0, {{0x6000, 0, 0xC9}}},
    {"MDDRC",      8, kBlockVersion, 1, kKind, 0, {{0x6800, 0, 0x215}}},
    {"ETH",        9, kBlockVersion, 2, kKind, 0, {{0x4000, 0, 0x11F}, {0x4800, 0, 0x127}}},
    {"TS",        10, kBlockVersion, 1, kKind, 0, {{0x1000, 0, 0x2FC}}},
    // The E1 map registers lie above register 0xFFFF: base 0xFFFF plus the first and last offsets.
    {"E1Map",     11, kBlockVersion, 4, kKind, 0, {{0xFFFF, 0x2, 0x408}, {0xFFFF, 0x1001, 0x111C}, {0xFFFF, 0x6001, 0xF40A},
                                                   {0xFFFF, 0x2001, 0x4C20}}},
};
// clang-format on

// ---- Table groups --------------------------------------------------------------------------------

constexpr uint32_t kStatus = VQ6192_TBL_KIND_STATUS;
constexpr uint32_t kConfig = VQ6192_TBL_KIND_CONFIG;
constexpr uint32_t kWriteFifo = VQ6192_TBL_KIND_WRITE_FIFO;
constexpr uint32_t kClockRec = VQ6192_TBL_KIND_CLOCK_RECOVERY;

// An indirect-access block: its seven register fields (register number, start bit, width, value1,
// value2), the select value filled in per table.
struct Block {
    uint32_t base;
    VQ6192_TBL_FIELD_S writeCmd, readCmd, busy, select, address, writeData, readData;
};

// clang-format off
//                        base    write command          read command           busy                       select                 address                    write data             read data
constexpr Block kAtm     {0x5000, {0x5002, 0, 2, 0, 2},  {0x5002, 0, 2, 0, 3},  {0x5003, 0, 1, kNone, 0},  {0x5000, 0, 6, 0, 0},  {0x5001, 0, 16, kNone, 0}, {0x5010, 0, 16, 0, 0}, {0x5020, 0, 16, 0, 0}};
constexpr Block kPpu     {0x8000, {0x8000, 0, 2, 0, 2},  {0x8000, 0, 2, 0, 3},  {0x8001, 0, 1, kNone, 0},  {0x8002, 0, 16, 0, 0}, {0x8003, 0, 16, kNone, 0}, {0x8004, 0, 16, 0, 0}, {0x8008, 0, 16, 0, 0}};
constexpr Block kCes     {0xa000, {0xa000, 0, 2, 0, 1},  {0xa000, 0, 2, 0, 3},  {0xa001, 0, 1, kNone, 0},  {0xa002, 0, 5, 0, 0},  {0xa003, 0, 9, kNone, 0},  {0xa010, 0, 16, 0, 0}, {0xa004, 0, 16, 0, 0}};
constexpr Block kSam     {0x3000, {0x3000, 4, 2, 0, 1},  {0x3000, 4, 2, 0, 3},  {0x3000, 6, 1, kNone, 0},  {0x3000, 0, 4, 0, 0},  {0x3001, 0, 14, kNone, 0}, {0x3010, 0, 16, 0, 0}, {0x3020, 0, 16, 0, 0}};
constexpr Block kTs      {0x10ab, {0x10ab, 0, 2, 0, 2},  {0x10ab, 0, 2, 0, 3},  {0x10ac, 0, 1, kNone, 0},  {0x10ad, 0, 1, 0, 0},  {0x10ae, 0, 14, kNone, 0}, {0x10b0, 0, 16, 0, 0}, {0x10af, 0, 16, 0, 0}};
constexpr Block kEth     {0x4000, {0x4000, 0, 2, 0, 2},  {0x4000, 0, 2, 0, 3},  {0x4001, 0, 1, kNone, 0},  {0x4002, 0, 4, 0, 0},  {0x4003, 0, 13, kNone, 0}, {0x4024, 0, 16, 0, 0}, {0x4004, 0, 16, 0, 0}};
constexpr Block kAtmTc   {0x2800, {0x2800, 0, 2, 0, 2},  {0x2800, 0, 2, 1, 3},  {0x2801, 0, 1, kNone, 0},  {0x2802, 0, 4, 0, 0},  {0x2803, 0, 9, kNone, 0},  {0x2804, 0, 16, 0, 0}, {0x280a, 0, 16, 0, 0}};
constexpr Block kImaPp   {0x2201, {0x2201, 13, 2, 0, 1}, {0x2201, 13, 2, 2, 3}, {0x2201, 15, 1, kNone, 0}, {0x2201, 0, 4, 0, 0},  {0x2202, 0, 13, kNone, 0}, {0x2207, 0, 16, 0, 0}, {0x2203, 0, 16, 0, 0}};
constexpr Block kImaRx   {0x2600, {0x2600, 13, 2, 0, 1}, {0x2600, 13, 2, 2, 3}, {0x2600, 15, 1, kNone, 0}, {0x2600, 0, 4, 0, 0},  {0x2601, 0, 13, kNone, 0}, {0x2606, 0, 16, 0, 0}, {0x2604, 0, 16, 0, 0}};
constexpr Block kImaRx14 {0x2600, {0x2600, 13, 2, 0, 1}, {0x2600, 13, 2, 2, 3}, {0x2600, 15, 1, kNone, 0}, {0x2600, 0, 4, 0, 0},  {0x2601, 0, 14, kNone, 0}, {0x2606, 0, 16, 0, 0}, {0x2604, 0, 16, 0, 0}};
constexpr Block kImaTx   {0x2400, {0x2400, 13, 2, 0, 1}, {0x2400, 13, 2, 2, 3}, {0x2400, 15, 1, kNone, 0}, {0x2400, 0, 3, 0, 0},  {0x2401, 0, 14, kNone, 0}, {0x2410, 0, 16, 0, 0}, {0x2430, 0, 16, 0, 0}};
// clang-format on

// One default table record: the catalogue id of its layout, its dump name and its access record.
struct Row {
    uint16_t id;
    const char *name;
    const Block &block;
    uint16_t select;
    uint32_t depth;
    uint16_t data16;
    uint16_t width;
    uint32_t kind;
};

// The multi-word IMA tables are dumped once per select code, under the layout of their first word.
// clang-format off
constexpr Row kImaTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    {132, "TC_RX_LNK_CFG",       kAtmTc,     0,   336,  6,  96, kConfig},  // Tcrxlnkcfg
    {133, "TC_RX_LNK_STA0",      kAtmTc,     1,   336,  6,  96, kConfig},  // Tcrxlnksta0
    {134, "TC_RX_LNK_STA1",      kAtmTc,     2,   336,  6,  96, kConfig},  // Tcrxlnksta1
    {135, "TC_RX_LNK_STA2",      kAtmTc,     3,   336,  6,  96, kConfig},  // Tcrxlnksta2
    {136, "TC_RX_IMA_LNK_STA",   kAtmTc,     4,   336,  6,  16, kConfig},  // Tcrximaiflnksta
    {137, "TC_RX_TSIF_LNK_STA",  kAtmTc,     5,   336,  6,  16, kConfig},  // Tcrxtsiflnksta
    {138, "TC_TX_LNK_CFG",       kAtmTc,     6,   336,  6,  96, kConfig},  // Tctxlnkcfg
    {139, "TC_TX_LNK_STA",       kAtmTc,     7,   336,  6,  96, kConfig},  // Tctxlnksta
    {140, "TC_TX_IMA_LNK_STA",   kAtmTc,     8,   336,  6,  16, kConfig},  // Tctximaiflnksta
    {141, "TC_TX_TSIF_LNK_STA",  kAtmTc,     9,   336,  6,  16, kConfig},  // Tctxtsiflnksta
    {142, "IMAPP_TXC",           kImaPp,     0,   336,  4,  32, kConfig},  // Imapptxc
    {143, "IMAPP_RXC",           kImaPp,     1,   336,  4,  32, kConfig},  // Imapprxc
    {144, "IMAPP_GPC",           kImaPp,     2,  5376,  4,  32, kConfig},  // Imappgpc0
    {150, "IMAPP_TXS",           kImaPp,     3,   672,  4,  32, kConfig},  // Imapptxs0
    {152, "IMAPP_RXS",           kImaPp,     4,   672,  4,  32, kConfig},  // Imapprxs0
    {154, "IMAPP_GPS",           kImaPp,     5,  2688,  4,  64, kConfig},  // Imappgps0
    {162, "IMAPP_READ_EVENT",    kImaPp,     6,   336,  4,  64, kConfig},  // Readevent031
    {166, "IMAPP_ICP_FWD",       kImaPp,     7,   336,  4,  32, kConfig},  // Icpfwd0
    {167, "IMARX_LK_CNT",        kImaRx,     0,  1344,  2,  32, kConfig},  // Imarxlkcnt0
    {175, "IMARX_LKC",           kImaRx,     1,   336,  2,  32, kConfig},  // Imarxlkc
    {176, "IMARX_GPC",           kImaRx,     2,   336,  2,  32, kConfig},  // Imarxgpc
    {177, "IMARX_ICP_VLD",       kImaRx,     3,   336,  2,  32, kConfig},  // Imarxicpvld
    {178, "IMARX_LKS",           kImaRx,     4,   672,  2,  32, kConfig},  // Imarxlks0
    {180, "IMARX_ICP_BUF",       kImaRx,     5,  5376,  2,  32, kConfig},  // Imarxicpbuf0
    {182, "IMARX_IMA_RPTR",      kImaRx,     6,   336,  2,  32, kConfig},  // Imarximarptr
    {184, "IMARX_IMA_WPTR",      kImaRx,     7,   336,  2,  32, kConfig},  // Imarximawptr
    {186, "IMARX_GP_WPTR",       kImaRx,     8,  1344,  2,  32, kConfig},  // Imarxgpwptr0
    {189, "IMARX_RD_DLY",        kImaRx14,   9,   336,  2,  32, kConfig},  // Imarxrddly031
    {192, "IMARX_GP_CNT",        kImaRx14,  12,   672,  2,  32, kConfig},  // Imarxgpcnt0
    {195, "IMARX_SCVC_RR",       kImaRx14,  13,   336,  2,  10, kConfig},  // Imarxscvcrr
    {196, "IMARX_SCVC_CTRL",     kImaRx14,  14,   336,  2,  32, kConfig},  // Imarxscvcctrl
    {197, "IMATX_GPS",           kImaTx,     0,  2688, 21,  32, kConfig},  // Imatxgps0
    {202, "IMATX_ICP_BUF",       kImaTx,     1,  5376, 21,  32, kConfig},  // Imatxicpbuf0
    {203, "IMATX_GPC",           kImaTx,     2,   336, 21,  32, kConfig},  // Imatxgpc
    {204, "IMATX_MAP_TBL",       kImaTx,     3, 10752, 21,   9, kConfig},  // Imatxmaptbl0
    {205, "IMATX_LKS",           kImaTx,     4,   672, 21,  32, kConfig},  // Imatxlks0
    {207, "IMATX_LKC",           kImaTx,     5,   336, 21,   8, kConfig},  // Imatxlkc
    {208, "IMATX_LINK_IN_GP",    kImaTx,     6,   336, 21, 336, kConfig},  // Imatxlinkingp
    {209, "IMATX_GP_DEPTH_PRI",  kImaTx,     7,   336, 21,  11, kConfig},  // Imatxgpdepth
};

constexpr Row kPppTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    { 39, "AFIDCFG",             kPpu,       2,  2048, 10,  12, kConfig},  // Afidcfg
    { 40, "RPPUCFG",             kPpu,       0,  2048, 10,  28, kConfig},  // Rppucfg
    { 41, "RPPUPSTAT",           kPpu,       4,  2048, 10,  80, kStatus},  // Rppupstat
    { 42, "RPPUSTAT",            kPpu,       3, 65535, 10, 176, kStatus},  // Rppustat
    { 43, "TPPUCFG",             kPpu,       1,  2048, 10,  13, kConfig},  // Tppucfg
    { 44, "TPPUPSTAT",           kPpu,       6,  2048, 10, 145, kStatus},  // Tppupstat
    { 45, "TPPUSTAT",            kPpu,       5,  8192, 10,  96, kStatus},  // Tppustat
    { 46, "MP_LOOP_PKT_CNT",     kPpu,      30,  2048, 10,   8, kStatus},  // Mplooppktcnt
    { 47, "MP_LOOP_TIMESTP",     kPpu,      29,  2048, 10, 128, kStatus},  // Mplooptimestp
    { 48, "MP_RGRP_CFG",         kPpu,      41,   256, 10,  23, kConfig},  // Mprgrpcfg
    { 49, "MP_RGRP_MC_STAT",     kPpu,      28,  2048, 10,   2, kStatus},  // Mprgrpmcstat
    { 50, "MP_RGRP_PKT_CNT",     kPpu,      42,  1536, 10, 160, kStatus},  // Mprgrppktcnt
    { 51, "MP_RP_BYTE_CNT",      kPpu,      27,   256, 10,  32, kStatus},  // Mprpbytecnt
    { 52, "MP_RP_CSPT_CFG1",     kPpu,      43,   512, 10,   1, kConfig},  // Mprpcsptcfg1
    { 53, "MP_RP_CSPT_CFG2",     kPpu,      44,   256, 10,   9, kConfig},  // Mprpcsptcfg2
    { 54, "MP_RXM_BD_CNT",       kPpu,      40,   256, 10,  18, kStatus},  // Mprxmbdcnt
    { 55, "MP_RXM_BE_CNT",       kPpu,      39,   256, 10,  32, kStatus},  // Mprxmbecnt
    { 56, "MP_RXM_HDLC_CFG1",    kPpu,      34,  2048, 10,   3, kConfig},  // Mprxmhdlccfg1
    { 57, "MP_RXM_HDLC_CFG2",    kPpu,      35,  2048, 10,   9, kConfig},  // Mprxmhdlccfg2
    { 58, "MP_RXM_HDLC_PKTCNT",  kPpu,      38,  2048, 10,  32, kStatus},  // Mprxmhdlcpktcnt
    { 59, "MP_RXM_MC_CNT",       kPpu,      31,  2048, 10,  16, kStatus},  // Mprxmmccnt
    { 60, "MP_RXM_MP_CFG1",      kPpu,      36,   256, 10,  36, kConfig},  // Mprxmmpcfg1
    { 61, "MP_RXM_MP_CFG2",      kPpu,      37,   256, 10,   4, kConfig},  // Mprxmmpcfg2
    { 62, "MP_SKYEYE_CFG",       kPpu,      32,  2048, 10,   6, kConfig},  // Mpskyeyecfg
    { 63, "MP_TEST_TX_EN",       kPpu,      33,  2048, 10,   1, kConfig},  // Mptesttxen
    { 64, "CH_FIFO_ST",          kPpu,      10,  2048, 10,   9, kStatus},  // Chfifost
    { 65, "FILL_ST",             kPpu,      12,  2048, 10,  33, kStatus},  // Fillst
    { 66, "FRAG_CFG",            kPpu,       9,   256, 10,  16, kConfig},  // Fragcfg
    { 67, "HD_DIS_ST",           kPpu,      20,   256, 10,   8, kStatus},  // Hddisst
    { 68, "HD_EPT_ST",           kPpu,      18,   256, 10,   8, kStatus},  // Hdeptst
    { 69, "HD_FC_CFG",           kPpu,      14,  2048, 10,  60, kConfig},  // Hdfccfg
    { 70, "HD_Q_ST",             kPpu,      16,  2048, 10,  61, kStatus},  // Hdqst
    { 71, "LINK_CFG",            kPpu,      11,  2048, 10,  14, kConfig},  // Linkcfg
    { 72, "MC_FC_CFG",           kPpu,      15,  2048, 10,  60, kConfig},  // Mcfccfg
    { 73, "MC_Q_ST",             kPpu,      17,  2048, 10,  61, kStatus},  // Mcqst
    { 74, "MC_SN",               kPpu,      13,   256, 10, 192, kStatus},  // Mcsn
    { 75, "MP_DIS_ST",           kPpu,      21,   256, 10,   8, kStatus},  // Mpdisst
    { 76, "MP_EPT_ST",           kPpu,      19,   256, 10,   8, kStatus},  // Mpeptst
    { 77, "MP_SCH_ST",           kPpu,      26,   256, 10,   4, kStatus},  // Mpschst
    { 78, "MP_WGT_CFG",          kPpu,      23,   256, 10,  56, kConfig},  // Mpwgtcfg
    { 79, "MP_WGT_ST",           kPpu,      25,   256, 10, 158, kStatus},  // Mpwgtst
    { 80, "PPP_EN_CFG",          kPpu,       8,   256, 10,   8, kConfig},  // Pppencfg
    { 81, "PPP_WGT_CFG",         kPpu,      22,   256, 10,  56, kConfig},  // Pppwgtcfg
    { 82, "PPP_WGT_ST",          kPpu,      24,   256, 10, 158, kStatus},  // Pppwgtst
    { 83, "QM_EN_CFG",           kPpu,       7,   512, 10,   8, kConfig},  // Qmencfg
    { 84, "SN_CTRL_BASE",        kPpu,      46,   256, 10,  96, kStatus},  // Snctrlbase
    { 85, "SN_CTRL_CFG",         kPpu,      45,   256, 10,  64, kConfig},  // Snctrlcfg
    { 86, "SN_CTRL_WIND",        kPpu,      47,  2048, 10, 128, kStatus},  // Snctrlwind
    {211, "MP_RP_MRRU_CFG",      kPpu,      48,   256, 10,  12, kConfig},  // Mprpmrrucfg
    {212, "MP_TEST_REF_STAT",    kPpu,      49,  2048, 10,   1, kConfig},  // Mptestrefstat
    {213, "MP_RPKT",             kPpu,      50,   256, 10,  32, kStatus},  // Mprpkt
    {214, "MP_RBYTE",            kPpu,      51,   256, 10,  32, kStatus},  // Mprbyte
};

constexpr Row kAtmTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    {  0, "ATMPWE3_PKT_BUF",     kAtm,      37,   512, 10,  35, kStatus},  // Atmpwe3pktbuf
    {  1, "ATMPWE3_PRI_TAB",     kAtm,      38,    32, 10,  15, kConfig},  // Atmpwe3pritab
    {  2, "ATMPWE3_PWCFG_TAB",   kAtm,      32,  2048, 10,   4, kConfig},  // Atmpwe3pwcfgtab
    {  3, "ATMPWE3_RXMNG_TAB",   kAtm,      35,  2048, 10,  38, kConfig},  // Atmpwe3rxmanagetab
    {  4, "ATMPWE3_RXST_TAB",    kAtm,      36,  2048, 10, 121, kStatus},  // Atmpwe3rxsttab
    {  5, "ATMPWE3_TXMNG_TAB",   kAtm,      33,  2048, 10,  30, kConfig},  // Atmpwe3txmanagetab
    {  6, "ATMPWE3_TXST_TAB",    kAtm,      34,  2048, 10,  86, kStatus},  // Atmpwe3txsttab
    {  7, "ATMSW_LCAP_FIFO",     kAtm,      27,    33, 10,  34, kStatus},  // Atmswlcapfifo
    {  8, "ATMSW_LPCC",          kAtm,       6,   336, 10,  64, kStatus},  // Atmswlpcc
    {  9, "ATMSW_LPCT",          kAtm,       5,   336, 10,  15, kConfig},  // Atmswlpct
    { 10, "ATMSW_OAMST",         kAtm,       9,  8192, 10,  27, kStatus},  // Atmswoamst
    { 11, "ATMSW_POLCFG",        kAtm,       4,  8192, 10,  52, kConfig},  // Atmswpolcfg
    { 12, "ATMSW_POLST",         kAtm,       3,  8192, 10,  66, kStatus},  // Atmswpolst
    { 13, "ATMSW_RFIFO",         kAtm,      24,    33, 10,  34, kStatus},  // Atmswrfifo
    { 14, "ATMSW_SCAP_FIFO",     kAtm,      28,    33, 10,  34, kStatus},  // Atmswscapfifo
    { 15, "ATMSW_SPCC",          kAtm,       8,  2048, 10,  64, kStatus},  // Atmswspcc
    { 16, "ATMSW_SPCT",          kAtm,       7,  2048, 10,  12, kConfig},  // Atmswspct
    { 17, "ATMSW_TCAM",          kAtm,      10,  8192, 10,  81, kConfig},  // Atmswtcam
    { 18, "ATMSW_TRCC",          kAtm,       1,  8192, 10,  32, kStatus},  // Atmswtrcc
    { 19, "ATMSW_TTCC",          kAtm,       2,  8192, 10,  32, kStatus},  // Atmswttcc
    { 20, "ATMSW_VCT",           kAtm,       0,  8192, 10,  69, kConfig},  // Atmswvct
    { 21, "ATMSW_VCX_FIFO",      kAtm,      26,     8, 10,  13, kStatus},  // Atmswvcxfifo
    { 22, "ATMSW_WFIFO",         kAtm,      25,    33, 10,  34, kWriteFifo},  // Atmswwfifo
    { 23, "ATMBM_FIFO_CFG",      kAtm,      19,   336, 10,  57, kConfig},  // Atmbmfifocfg
    { 24, "ATMBM_FIFO_STA",      kAtm,      20,   336, 10,  16, kStatus},  // Atmbmfifosta
    { 25, "ATMBM_PVC_CFG",       kAtm,      16,  8192, 10,  10, kConfig},  // Atmbmpvccfg
    { 26, "ATMBM_PVC_STA",       kAtm,      18,  8192, 10,  64, kStatus},  // Atmbmpvcsta
    { 27, "ATMBM_TH_CFG",        kAtm,      17,   320, 10, 151, kConfig},  // Atmbmthcfg
    { 28, "ATM_EBS_CFG",         kAtm,      56,   336, 10,  66, kConfig},  // Atmebscfg
    { 29, "ATM_LINK_QM_CFG",     kAtm,      48,  8529, 10,  46, kConfig},  // Atmlinkqmcfg
    { 30, "ATM_LINK_SHVC_CFG",   kAtm,      49,  5376, 10,  83, kConfig},  // Atmlinkshvccfg
    { 31, "ATM_PORT_QM_CFG",     kAtm,      58,   336, 10,  38, kConfig},  // Atmportqmcfg
    { 32, "ATM_RESERVED_57",     kAtm,      57,   336, 10,  36, kConfig},  // Reserved
    { 33, "ATMTM_NRTVBR_SHAP",   kAtm,      51,   336, 10,  24, kConfig},  // Atmtmnrtvbrshapcfg
    { 34, "ATM_RESERVED_54",     kAtm,      54,   336, 10,  24, kStatus},  // Reserved
    { 35, "ATMTM_RTVBR_SHAP",    kAtm,      50,   336, 10,  24, kConfig},  // Atmtmrtvbrshapcfg
    { 36, "ATM_RESERVED_53",     kAtm,      53,   336, 10,  24, kStatus},  // Reserved
    { 37, "ATMTM_UBRPLS_SHAP",   kAtm,      52,   336, 10,  24, kConfig},  // Atmtmubrplsshapcfg
    { 38, "ATM_RESERVED_67",     kAtm,      67,   336, 10,  24, kStatus},  // Reserved
    {210, "ATM_PORT_PERIOD_CFG", kAtm,      59,   336, 10,  18, kConfig},  // Atmportperiodcfg
};

constexpr Row kCesTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    { 87, "CES_IDLE_CODE",       kCes,       4,   352,  4,   8, kConfig},  // Cesidlecode
    { 88, "CES_JB_EMP_CNT",      kCes,      14,   352,  4,  16, kStatus},  // Cesjbempcnt
    { 89, "CES_JB_FULL_CNT",     kCes,      15,   352,  4,  16, kStatus},  // Cesjbfullcnt
    { 90, "CES_JBFULL_DROPCNT",  kCes,      13,   352,  4,  32, kStatus},  // Cesjbfulldropcnt
    { 91, "CES_RX_JBRD_CNT",     kCes,      11,   352,  4,  32, kStatus},  // Cesrxjbrdcnt
    { 92, "CES_RX_JBWR_CNT",     kCes,      10,   352,  4,  32, kStatus},  // Cesrxjbwrcnt
    { 93, "CES_RX_CNT",          kCes,       9,   352,  9, 128, kStatus},  // Cesrxcnt
    { 94, "CES_RX_CWRTP",        kCes,       1,   352,  4,  51, kConfig},  // Cesrxcwrtp
    { 95, "CES_RX_TS_MASK",      kCes,       3,   352,  4,  32, kConfig},  // Cesrxtsmask
    { 96, "CES_TS_RX_CNT",       kCes,      12,   352,  4,  32, kStatus},  // Cestsrxcnt
    { 97, "CES_TS_TX_CNT",       kCes,       8,   352,  4,  32, kStatus},  // Ceststxcnt
    { 98, "CES_TX_TBRD_CNT",     kCes,       6,   352,  4,  32, kStatus},  // Cestxtbrdcnt
    { 99, "CES_TX_TBWR_CNT",     kCes,       7,   352,  4,  32, kStatus},  // Cestxtbwrcnt
    {100, "CES_TX_CNT",          kCes,       5,   352,  4,  32, kStatus},  // Cestxcnt
    {101, "CES_TX_CWRTP",        kCes,       0,   352,  4,  50, kConfig},  // Cestxcwrtp
    {102, "CES_TX_TS_MASK",      kCes,       2,   352,  4,  32, kConfig},  // Cestxtsmask
    {103, "CES_DDS12_KEY",       kCes,     255,   352,  8,  32, kClockRec},  // Dds12key
    {104, "CES_TS_FIFO",         kCes,     255,   352,  8,  32, kClockRec},  // Tsfifo
    {216, "CES_TXPKG_CHN_MAP",   kCes,      16,   336,  4,  32, kConfig},  // Cestxpkgchnmap
};

constexpr Row kSamTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    {105, "SAM_CFIFO_RX_CIT",    kSam,       3,   336, 10,  14, kStatus},  // Samcfiforxcit
    {106, "SAM_CFIFO_RX_FBT",    kSam,       4,   336, 10,  10, kStatus},  // Samcfiforxfbt
    {107, "SAM_CFIFO_TX_CIT",    kSam,       9,   336, 10,  14, kStatus},  // Samcfifotxcit
    {108, "SAM_CFIFO_TX_FBT",    kSam,      10,   336, 10,  10, kConfig},  // Samcfifotxfbt
    {109, "SAM_FTH_SBT",         kSam,       5,   336, 10,  20, kStatus},  // Samfthsbt
    {110, "SAM_INS_SBT",         kSam,      11,   336, 10,  20, kConfig},  // Saminssbt
    {111, "SAM_RPPU_CFG",        kSam,       0,   336,  2,   6, kConfig},  // Samrppucfg
    {112, "SAM_RPPU_CNT",        kSam,       2, 16383, 10, 144, kStatus},  // Samrppucnt
    {113, "SAM_RPPU_STA",        kSam,       1,   336, 10,  80, kStatus},  // Samrppusta
    {114, "SAM_TPPU_CFG",        kSam,       6,   336,  2,  12, kConfig},  // Samtppucfg
    {115, "SAM_TPPU_CNT",        kSam,       8, 16383, 10,  96, kStatus},  // Samtppucnt
    {116, "SAM_TPPU_STA",        kSam,       7,   336, 10, 145, kStatus},  // Samtppusta
};

constexpr Row kEthTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    {121, "DOWN_PPP_PRO",        kEth,       4,    32, 32,  16, kConfig},  // Downppppro
    {122, "MPLS2KEY",            kEth,       6,  8192, 32,  12, kConfig},  // Mpls2key
    {123, "NO2PID",              kEth,       2,  1536, 32,  13, kConfig},  // No2pid
    {124, "PID2NO",              kEth,       5,  4096, 32,  10, kConfig},  // Pid2no
    {125, "PSN_HEADER",          kEth,       0,  3168, 32, 208, kConfig},  // Psnheader
    {126, "RX_HEAD_FIELD",       kEth,       8,    64, 32, 512, kConfig},  // Rxheadfield
    {127, "TX_HEAD_FIELD",       kEth,       7,    64, 32, 512, kConfig},  // Txheadfield
    {128, "UP_PPP_TYPE",         kEth,       1,    32, 32,  16, kConfig},  // Upppptype
    {129, "VLAN2LABLE",          kEth,       3,  4096, 32,  12, kConfig},  // Vlan2lable
    {130, "MAC1_CNT",            kEth,       9,   128, 32,  32, kConfig},  // Mac1Cnt
    {131, "MAC2_CNT",            kEth,      10,   128, 32,  32, kConfig},  // Mac2Cnt
};

constexpr Row kTsTables[] = {
    // id  dump name              block     select depth data16 width kind           catalogue name
    {117, "TS_DL_ET1_TAB",       kTs,        1, 16384,  1,  16, kConfig},  // Tsdlet1tab
    {118, "TS_DL_ET3_VC4_TAB",   kTs,        1, 16384,  1,  16, kConfig},  // Tsdlet3vc4tab
    {119, "TS_UL_ET1_TAB",       kTs,        0, 16384,  1,  16, kConfig},  // Tsulet1tab
    {120, "TS_UL_ET3_VC4_TAB",   kTs,        0, 16384,  1,  16, kConfig},  // Tsulet3vc4tab
};
// clang-format on

constexpr VQ6192_DUMP_TBL_S record(const Row &r) {
    const Block &b = r.block;
    VQ6192_TBL_FIELD_S select = b.select;
    select.usValue1 = r.select;
    return {r.name,
            kDumpFlags,
            {b.base, r.depth, r.data16, r.width, 0, r.kind, 1, b.writeCmd, b.readCmd, b.busy, select,
             b.address, b.writeData, b.readData}};
}

template <size_t N>
constexpr VQ6192_DUMP_TBL_GROUP_S group(const char *name, uint32_t id, const Row (&rows)[N]) {
    static_assert(N <= VQ6192_DUMP_GROUP_TBL_MAX);
    VQ6192_DUMP_TBL_GROUP_S g{name, id, static_cast<uint8_t>(N), kKind, {0, 0}, {}};
    for (size_t i = 0; i < N; ++i) {
        g.astTbl[i] = record(rows[i]);
    }
    return g;
}

struct GroupRows {
    const Row *rows;
    uint32_t count;
};

constexpr GroupRows kGroupRows[vq::dump::kDefaultGroupCount] = {
    {kImaTables, std::size(kImaTables)}, {kPppTables, std::size(kPppTables)},
    {kAtmTables, std::size(kAtmTables)}, {kCesTables, std::size(kCesTables)},
    {kSamTables, std::size(kSamTables)}, {kEthTables, std::size(kEthTables)},
    {kTsTables, std::size(kTsTables)},
};

}  // namespace

extern "C" {

const VQ6192_DUMP_REG_BLOCK_S g_VQ6192_ChipDump_DirectReg[vq::dump::kDefaultBlockCount] = {
    kBlocks[0], kBlocks[1], kBlocks[2], kBlocks[3], kBlocks[4],  kBlocks[5],
    kBlocks[6], kBlocks[7], kBlocks[8], kBlocks[9], kBlocks[10],
};
const uint32_t g_VQ6192_ChipDump_DirectReg_Cnt = vq::dump::kDefaultBlockCount;

// clang-format off
constinit const VQ6192_DUMP_TBL_GROUP_S g_VQ6192_ChipDump_InDirectReg[vq::dump::kDefaultGroupCount] = {
    //    name   id  tables
    group("IMA",  2, kImaTables),
    group("PPP",  3, kPppTables),
    group("ATM",  4, kAtmTables),
    group("CES",  5, kCesTables),
    group("SAM",  6, kSamTables),
    group("ETH",  9, kEthTables),
    group("TS",  10, kTsTables),
};
// clang-format on
const uint32_t g_VQ6192_ChipDump_InDirectReg_Cnt = vq::dump::kDefaultGroupCount;

}  // extern "C"

namespace vq::dump {

int32_t defaultTableCatalogueId(uint32_t group, uint32_t table) {
    if (group >= kDefaultGroupCount || table >= kGroupRows[group].count) {
        return -1;
    }
    return kGroupRows[group].rows[table].id;
}

}  // namespace vq::dump
