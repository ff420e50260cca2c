// Access records of the chip tables, one per table id 0..216: where the table's indirect-access block
// is, the table's select code, depth, data registers, width and kind. Laid out like the chip's table
// list; the block layouts below come from the chip's register map.
#include "vq6192/table.h"

namespace {

constexpr uint16_t kNone = VQ6192_TBL_NO_VALUE;

// An indirect-access block: its seven register fields with the command values. Register numbers in
// hex; the select field's value is the table's select code, filled in per table.
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
constexpr Block kTsRead1 {0x10ab, {0x10ab, 0, 2, 0, 2},  {0x10ab, 0, 2, 1, 3},  {0x10ac, 0, 1, kNone, 0},  {0x10ad, 0, 1, 0, 0},  {0x10ae, 0, 14, kNone, 0}, {0x10b0, 0, 16, 0, 0}, {0x10af, 0, 16, 0, 0}};
constexpr Block kEth     {0x4000, {0x4000, 0, 2, 0, 2},  {0x4000, 0, 2, 0, 3},  {0x4001, 0, 1, kNone, 0},  {0x4002, 0, 4, 0, 0},  {0x4003, 0, 13, kNone, 0}, {0x4024, 0, 16, 0, 0}, {0x4004, 0, 16, 0, 0}};
constexpr Block kAtmTc   {0x2800, {0x2800, 0, 2, 0, 2},  {0x2800, 0, 2, 1, 3},  {0x2801, 0, 1, kNone, 0},  {0x2802, 0, 4, 0, 0},  {0x2803, 0, 9, kNone, 0},  {0x2804, 0, 16, 0, 0}, {0x280a, 0, 16, 0, 0}};
constexpr Block kImaPp   {0x2201, {0x2201, 13, 2, 0, 1}, {0x2201, 13, 2, 2, 3}, {0x2201, 15, 1, kNone, 0}, {0x2201, 0, 4, 0, 0},  {0x2202, 0, 13, kNone, 0}, {0x2207, 0, 16, 0, 0}, {0x2203, 0, 16, 0, 0}};
constexpr Block kImaRx   {0x2600, {0x2600, 13, 2, 0, 1}, {0x2600, 13, 2, 2, 3}, {0x2600, 15, 1, kNone, 0}, {0x2600, 0, 4, 0, 0},  {0x2601, 0, 13, kNone, 0}, {0x2606, 0, 16, 0, 0}, {0x2604, 0, 16, 0, 0}};
constexpr Block kImaRx14 {0x2600, {0x2600, 13, 2, 0, 1}, {0x2600, 13, 2, 2, 3}, {0x2600, 15, 1, kNone, 0}, {0x2600, 0, 4, 0, 0},  {0x2601, 0, 14, kNone, 0}, {0x2606, 0, 16, 0, 0}, {0x2604, 0, 16, 0, 0}};
constexpr Block kImaTx   {0x2400, {0x2400, 13, 2, 0, 1}, {0x2400, 13, 2, 2, 3}, {0x2400, 15, 1, kNone, 0}, {0x2400, 0, 3, 0, 0},  {0x2401, 0, 14, kNone, 0}, {0x2410, 0, 16, 0, 0}, {0x2430, 0, 16, 0, 0}};
// clang-format on

constexpr uint32_t kStatus = VQ6192_TBL_KIND_STATUS;
constexpr uint32_t kConfig = VQ6192_TBL_KIND_CONFIG;
constexpr uint32_t kWriteFifo = VQ6192_TBL_KIND_WRITE_FIFO;
constexpr uint32_t kClockRec = VQ6192_TBL_KIND_CLOCK_RECOVERY;

// The counter-layout word is informational and not documented per table; it stays 0.
constexpr VQ6192_CHIP_TABLE_INFO_S table(const Block &b, uint16_t select, uint32_t depth, uint16_t data16,
                                         uint16_t width, uint32_t kind) {
    VQ6192_TBL_FIELD_S sel = b.select;
    sel.usValue1 = select;
    return {b.base,     depth,     data16, width, 0,         kind,        1,
            b.writeCmd, b.readCmd, b.busy, sel,   b.address, b.writeData, b.readData};
}

}  // namespace

// clang-format off
extern "C" VQ6192_API const VQ6192_CHIP_TABLE_INFO_S g_VQ6192_CHIP_TABLE_INFO[VQ6192_CHIP_TABLE_NUM] = {
    //    block     select  depth data16 width kind            id name
    table(kAtm,        37,   512, 10,  35, kStatus),    //   0 Atmpwe3pktbuf
    table(kAtm,        38,    32, 10,  15, kConfig),    //   1 Atmpwe3pritab
    table(kAtm,        32,  2048, 10,   4, kConfig),    //   2 Atmpwe3pwcfgtab
    table(kAtm,        35,  2048, 10,  38, kConfig),    //   3 Atmpwe3rxmanagetab
    table(kAtm,        36,  2048, 10, 121, kStatus),    //   4 Atmpwe3rxsttab
    table(kAtm,        33,  2048, 10,  30, kConfig),    //   5 Atmpwe3txmanagetab
    table(kAtm,        34,  2048, 10,  86, kStatus),    //   6 Atmpwe3txsttab
    table(kAtm,        27,    33, 10,  34, kStatus),    //   7 Atmswlcapfifo
    table(kAtm,         6,   336, 10,  64, kStatus),    //   8 Atmswlpcc
    table(kAtm,         5,   336, 10,  15, kConfig),    //   9 Atmswlpct
    table(kAtm,         9,  8192, 10,  27, kStatus),    //  10 Atmswoamst
    table(kAtm,         4,  8192, 10,  52, kConfig),    //  11 Atmswpolcfg
    table(kAtm,         3,  8192, 10,  66, kStatus),    //  12 Atmswpolst
    table(kAtm,        24,    33, 10,  34, kStatus),    //  13 Atmswrfifo
    table(kAtm,        28,    33, 10,  34, kStatus),    //  14 Atmswscapfifo
    table(kAtm,         8,  2048, 10,  64, kStatus),    //  15 Atmswspcc
    table(kAtm,         7,  2048, 10,  12, kConfig),    //  16 Atmswspct
    table(kAtm,        10,  8192, 10,  81, kConfig),    //  17 Atmswtcam
    table(kAtm,         1,  8192, 10,  32, kStatus),    //  18 Atmswtrcc
    table(kAtm,         2,  8192, 10,  32, kStatus),    //  19 Atmswttcc
    table(kAtm,         0,  8192, 10,  69, kConfig),    //  20 Atmswvct
    table(kAtm,        26,     8, 10,  13, kStatus),    //  21 Atmswvcxfifo
    table(kAtm,        25,    33, 10,  34, kWriteFifo),  //  22 Atmswwfifo
    table(kAtm,        19,   336, 10,  57, kConfig),    //  23 Atmbmfifocfg
    table(kAtm,        20,   336, 10,  16, kStatus),    //  24 Atmbmfifosta
    table(kAtm,        16,  8192, 10,  10, kConfig),    //  25 Atmbmpvccfg
    table(kAtm,        18,  8192, 10,  64, kStatus),    //  26 Atmbmpvcsta
    table(kAtm,        17,   320, 10, 151, kConfig),    //  27 Atmbmthcfg
    table(kAtm,        56,   336, 10,  66, kConfig),    //  28 Atmebscfg
    table(kAtm,        48,  8529, 10,  46, kConfig),    //  29 Atmlinkqmcfg
    table(kAtm,        49,  5376, 10,  83, kConfig),    //  30 Atmlinkshvccfg
    table(kAtm,        58,   336, 10,  38, kConfig),    //  31 Atmportqmcfg
    table(kAtm,        57,   336, 10,  36, kConfig),    //  32 Reserved
    table(kAtm,        51,   336, 10,  24, kConfig),    //  33 Atmtmnrtvbrshapcfg
    table(kAtm,        54,   336, 10,  24, kStatus),    //  34 Reserved
    table(kAtm,        50,   336, 10,  24, kConfig),    //  35 Atmtmrtvbrshapcfg
    table(kAtm,        53,   336, 10,  24, kStatus),    //  36 Reserved
    table(kAtm,        52,   336, 10,  24, kConfig),    //  37 Atmtmubrplsshapcfg
    table(kAtm,        67,   336, 10,  24, kStatus),    //  38 Reserved
    table(kPpu,         2,  2048, 10,  12, kConfig),    //  39 Afidcfg
    table(kPpu,         0,  2048, 10,  28, kConfig),    //  40 Rppucfg
    table(kPpu,         4,  2048, 10,  80, kStatus),    //  41 Rppupstat
    table(kPpu,         3, 16384, 10, 176, kStatus),    //  42 Rppustat
    table(kPpu,         1,  2048, 10,  13, kConfig),    //  43 Tppucfg
    table(kPpu,         6,  2048, 10, 145, kStatus),    //  44 Tppupstat
    table(kPpu,         5,  8192, 10,  96, kStatus),    //  45 Tppustat
    table(kPpu,        30,  2048, 10,   8, kStatus),    //  46 Mplooppktcnt
    table(kPpu,        29,  2048, 10, 128, kStatus),    //  47 Mplooptimestp
    table(kPpu,        41,   256, 10,  23, kConfig),    //  48 Mprgrpcfg
    table(kPpu,        28,  2048, 10,   2, kStatus),    //  49 Mprgrpmcstat
    table(kPpu,        42,  1536, 10, 160, kStatus),    //  50 Mprgrppktcnt
    table(kPpu,        27,   256, 10,  32, kStatus),    //  51 Mprpbytecnt
    table(kPpu,        43,   512, 10,   1, kConfig),    //  52 Mprpcsptcfg1
    table(kPpu,        44,   256, 10,   9, kConfig),    //  53 Mprpcsptcfg2
    table(kPpu,        40,   256, 10,  18, kStatus),    //  54 Mprxmbdcnt
    table(kPpu,        39,   256, 10,  32, kStatus),    //  55 Mprxmbecnt
    table(kPpu,        34,  2048, 10,   3, kConfig),    //  56 Mprxmhdlccfg1
    table(kPpu,        35,  2048, 10,   9, kConfig),    //  57 Mprxmhdlccfg2
    table(kPpu,        38,  2048, 10,  32, kStatus),    //  58 Mprxmhdlcpktcnt
    table(kPpu,        31,  2048, 10,  16, kStatus),    //  59 Mprxmmccnt
    table(kPpu,        36,   256, 10,  36, kConfig),    //  60 Mprxmmpcfg1
    table(kPpu,        37,   256, 10,   4, kConfig),    //  61 Mprxmmpcfg2
    table(kPpu,        32,  2048, 10,   6, kConfig),    //  62 Mpskyeyecfg
    table(kPpu,        33,  2048, 10,   1, kConfig),    //  63 Mptesttxen
    table(kPpu,        10,  2048, 10,   9, kStatus),    //  64 Chfifost
    table(kPpu,        12,  2048, 10,  33, kStatus),    //  65 Fillst
    table(kPpu,         9,   256, 10,  16, kConfig),    //  66 Fragcfg
    table(kPpu,        20,   256, 10,   8, kStatus),    //  67 Hddisst
    table(kPpu,        18,   256, 10,   8, kStatus),    //  68 Hdeptst
    table(kPpu,        14,  2048, 10,  60, kConfig),    //  69 Hdfccfg
    table(kPpu,        16,  2048, 10,  61, kStatus),    //  70 Hdqst
    table(kPpu,        11,  2048, 10,  14, kConfig),    //  71 Linkcfg
    table(kPpu,        15,  2048, 10,  60, kConfig),    //  72 Mcfccfg
    table(kPpu,        17,  2048, 10,  61, kStatus),    //  73 Mcqst
    table(kPpu,        13,   256, 10, 192, kStatus),    //  74 Mcsn
    table(kPpu,        21,   256, 10,   8, kStatus),    //  75 Mpdisst
    table(kPpu,        19,   256, 10,   8, kStatus),    //  76 Mpeptst
    table(kPpu,        26,   256, 10,   4, kStatus),    //  77 Mpschst
    table(kPpu,        23,   256, 10,  56, kConfig),    //  78 Mpwgtcfg
    table(kPpu,        25,   256, 10, 158, kStatus),    //  79 Mpwgtst
    table(kPpu,         8,   256, 10,   8, kConfig),    //  80 Pppencfg
    table(kPpu,        22,   256, 10,  56, kConfig),    //  81 Pppwgtcfg
    table(kPpu,        24,   256, 10, 158, kStatus),    //  82 Pppwgtst
    table(kPpu,         7,   512, 10,   8, kConfig),    //  83 Qmencfg
    table(kPpu,        46,   256, 10,  96, kStatus),    //  84 Snctrlbase
    table(kPpu,        45,   256, 10,  64, kConfig),    //  85 Snctrlcfg
    table(kPpu,        47,  2048, 10, 128, kStatus),    //  86 Snctrlwind
    table(kCes,         4,   336,  4,   8, kConfig),    //  87 Cesidlecode
    table(kCes,        14,   352,  4,  16, kStatus),    //  88 Cesjbempcnt
    table(kCes,        15,   352,  4,  16, kStatus),    //  89 Cesjbfullcnt
    table(kCes,        13,   352,  4,  32, kStatus),    //  90 Cesjbfulldropcnt
    table(kCes,        11,   352,  4,  32, kStatus),    //  91 Cesrxjbrdcnt
    table(kCes,        10,   352,  4,  32, kStatus),    //  92 Cesrxjbwrcnt
    table(kCes,         9,   352,  9, 128, kStatus),    //  93 Cesrxcnt
    table(kCes,         1,   352,  4,  51, kConfig),    //  94 Cesrxcwrtp
    table(kCes,         3,   336,  4,  32, kConfig),    //  95 Cesrxtsmask
    table(kCes,        12,   352,  4,  32, kStatus),    //  96 Cestsrxcnt
    table(kCes,         8,   352,  4,  32, kStatus),    //  97 Ceststxcnt
    table(kCes,         6,   352,  4,  32, kStatus),    //  98 Cestxtbrdcnt
    table(kCes,         7,   352,  4,  32, kStatus),    //  99 Cestxtbwrcnt
    table(kCes,         5,   352,  4,  32, kStatus),    // 100 Cestxcnt
    table(kCes,         0,   352,  4,  50, kConfig),    // 101 Cestxcwrtp
    table(kCes,         2,   336,  4,  32, kConfig),    // 102 Cestxtsmask
    table(kCes,       255,   352,  8,  32, kClockRec),  // 103 Dds12key
    table(kCes,       255,   352,  8,  32, kClockRec),  // 104 Tsfifo
    table(kSam,         3,   336, 10,  14, kStatus),    // 105 Samcfiforxcit
    table(kSam,         4,   336, 10,  10, kStatus),    // 106 Samcfiforxfbt
    table(kSam,         9,   336, 10,  14, kStatus),    // 107 Samcfifotxcit
    table(kSam,        10,   336, 10,  10, kConfig),    // 108 Samcfifotxfbt
    table(kSam,         5,   336, 10,  20, kStatus),    // 109 Samfthsbt
    table(kSam,        11,   336, 10,  20, kConfig),    // 110 Saminssbt
    table(kSam,         0,   336,  2,   6, kConfig),    // 111 Samrppucfg
    table(kSam,         2, 16383, 10, 144, kStatus),    // 112 Samrppucnt
    table(kSam,         1,   336, 10,  80, kStatus),    // 113 Samrppusta
    table(kSam,         6,   336,  2,  12, kConfig),    // 114 Samtppucfg
    table(kSam,         8, 16383, 10,  96, kStatus),    // 115 Samtppucnt
    table(kSam,         7,   336, 10, 145, kStatus),    // 116 Samtppusta
    table(kTs,          1, 16384,  1,  16, kConfig),    // 117 Tsdlet1tab
    table(kTsRead1,     1, 16384,  1,  16, kConfig),    // 118 Tsdlet3vc4tab
    table(kTs,          0, 16384,  1,  16, kConfig),    // 119 Tsulet1tab
    table(kTsRead1,     0, 16384,  1,  16, kConfig),    // 120 Tsulet3vc4tab
    table(kEth,         4,    32, 32,  16, kConfig),    // 121 Downppppro
    table(kEth,         6,  8192, 32,  12, kConfig),    // 122 Mpls2key
    table(kEth,         2,  1536, 32,  13, kConfig),    // 123 No2pid
    table(kEth,         5,  4096, 32,  10, kConfig),    // 124 Pid2no
    table(kEth,         0,  3168, 32, 208, kConfig),    // 125 Psnheader
    table(kEth,         8,    64, 32, 512, kConfig),    // 126 Rxheadfield
    table(kEth,         7,    64, 32, 512, kConfig),    // 127 Txheadfield
    table(kEth,         1,    32, 32,  16, kConfig),    // 128 Upppptype
    table(kEth,         3,  4096, 32,  12, kConfig),    // 129 Vlan2lable
    table(kEth,         9,   128, 32,  32, kConfig),    // 130 Mac1Cnt
    table(kEth,        10,   128, 32,  32, kConfig),    // 131 Mac2Cnt
    table(kAtmTc,       0,   336,  6,  96, kConfig),    // 132 Tcrxlnkcfg
    table(kAtmTc,       1,   336,  6,  96, kConfig),    // 133 Tcrxlnksta0
    table(kAtmTc,       2,   336,  6,  96, kConfig),    // 134 Tcrxlnksta1
    table(kAtmTc,       3,   336,  6,  96, kConfig),    // 135 Tcrxlnksta2
    table(kAtmTc,       4,   336,  6,  16, kConfig),    // 136 Tcrximaiflnksta
    table(kAtmTc,       5,   336,  6,  16, kConfig),    // 137 Tcrxtsiflnksta
    table(kAtmTc,       6,   336,  6,  96, kConfig),    // 138 Tctxlnkcfg
    table(kAtmTc,       7,   336,  6,  96, kConfig),    // 139 Tctxlnksta
    table(kAtmTc,       8,   336,  6,  16, kConfig),    // 140 Tctximaiflnksta
    table(kAtmTc,       9,   336,  6,  16, kConfig),    // 141 Tctxtsiflnksta
    table(kImaPp,       0,   336,  4,  32, kConfig),    // 142 Imapptxc
    table(kImaPp,       1,   336,  4,  32, kConfig),    // 143 Imapprxc
    table(kImaPp,       2,  5376,  4,  32, kConfig),    // 144 Imappgpc0
    table(kImaPp,       2,  5376,  4,  32, kConfig),    // 145 Imappgpc1
    table(kImaPp,       2,  5376,  4,  32, kConfig),    // 146 Imappgpc2
    table(kImaPp,       2,  5376,  4,  32, kConfig),    // 147 Imappgpc3
    table(kImaPp,       2,  5376,  4,  32, kConfig),    // 148 Imappgpc4
    table(kImaPp,       2,  5376,  4,  32, kConfig),    // 149 Imappgpc5
    table(kImaPp,       3,   672,  4,  32, kConfig),    // 150 Imapptxs0
    table(kImaPp,       3,   672,  4,  32, kConfig),    // 151 Imapptxs1
    table(kImaPp,       4,   672,  4,  32, kConfig),    // 152 Imapprxs0
    table(kImaPp,       4,   672,  4,  32, kConfig),    // 153 Imapprxs1
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 154 Imappgps0
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 155 Imappgps1
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 156 Imappgps2
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 157 Imappgps3
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 158 Imappgps4
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 159 Imappgps5
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 160 Imappgps6
    table(kImaPp,       5,  2688,  4,  64, kConfig),    // 161 Imappgps7
    table(kImaPp,       6,   336,  4,  64, kConfig),    // 162 Readevent031
    table(kImaPp,       6,   336,  4,  64, kConfig),    // 163 Readevent32
    table(kImaPp,       6,   336,  4,  64, kConfig),    // 164 Readevent33
    table(kImaPp,       6,   336,  4,  64, kConfig),    // 165 Readevent34
    table(kImaPp,       7,   336,  4,  32, kConfig),    // 166 Icpfwd0
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 167 Imarxlkcnt0
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 168 Imarxlkcnt1
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 169 Imarxlkcnt2
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 170 Imarxlkcnt3
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 171 Imarxuniwcnt0
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 172 Imarxuniwcnt1
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 173 Imarxuniwcnt2
    table(kImaRx,       0,  1344,  2,  32, kConfig),    // 174 Imarxuniwcnt3
    table(kImaRx,       1,   336,  2,  32, kConfig),    // 175 Imarxlkc
    table(kImaRx,       2,   336,  2,  32, kConfig),    // 176 Imarxgpc
    table(kImaRx,       3,   336,  2,  32, kConfig),    // 177 Imarxicpvld
    table(kImaRx,       4,   672,  2,  32, kConfig),    // 178 Imarxlks0
    table(kImaRx,       4,   672,  2,  32, kConfig),    // 179 Imarxlks1
    table(kImaRx,       5,  5376,  2,  32, kConfig),    // 180 Imarxicpbuf0
    table(kImaRx,       5,  5376,  2,  32, kConfig),    // 181 Imarxicpbuf12
    table(kImaRx,       6,   336,  2,  32, kConfig),    // 182 Imarximarptr
    table(kImaRx,       6,   336,  2,  32, kConfig),    // 183 Imarxunirptr
    table(kImaRx,       7,   336,  2,  32, kConfig),    // 184 Imarximawptr
    table(kImaRx,       7,   336,  2,  32, kConfig),    // 185 Imarxuniwptr
    table(kImaRx,       8,  1344,  2,  32, kConfig),    // 186 Imarxgpwptr0
    table(kImaRx14,     8,  1344,  2,  32, kConfig),    // 187 Imarxgpwptr1
    table(kImaRx14,     8,  1344,  2,  32, kConfig),    // 188 Imarxgpwptr2
    table(kImaRx14,     9,   336,  2,  32, kConfig),    // 189 Imarxrddly031
    table(kImaRx14,     9,   336,  2,  32, kConfig),    // 190 Imarxrddly32
    table(kImaRx14,     9,   336,  2,  32, kConfig),    // 191 Imarxrddly33
    table(kImaRx14,    12,   672,  2,  32, kConfig),    // 192 Imarxgpcnt0
    table(kImaRx14,    12,   672,  2,  32, kConfig),    // 193 Imarxgpcnt1
    table(kImaRx14,    12,   672,  2,  32, kConfig),    // 194 Imarxunircnt0
    table(kImaRx14,    13,   336,  2,  10, kConfig),    // 195 Imarxscvcrr
    table(kImaRx14,    14,   336,  2,  32, kConfig),    // 196 Imarxscvcctrl
    table(kImaTx,       0,  2688, 21,  32, kConfig),    // 197 Imatxgps0
    table(kImaTx,       0,  2688, 21,  32, kConfig),    // 198 Imatxgps1
    table(kImaTx,       0,  2688, 21,  32, kConfig),    // 199 Imatxgps2
    table(kImaTx,       0,  2688, 21,  32, kConfig),    // 200 Imatxgps3
    table(kImaTx,       0,  2688, 21,  32, kConfig),    // 201 Imatxgps4
    table(kImaTx,       1,  5376, 21,  32, kConfig),    // 202 Imatxicpbuf0
    table(kImaTx,       2,   336, 21,  32, kConfig),    // 203 Imatxgpc
    table(kImaTx,       3, 10752, 21,   9, kConfig),    // 204 Imatxmaptbl0
    table(kImaTx,       4,   672, 21,  32, kConfig),    // 205 Imatxlks0
    table(kImaTx,       4,   672, 21,  32, kConfig),    // 206 Imatxlks1
    table(kImaTx,       5,   336, 21,   8, kConfig),    // 207 Imatxlkc
    table(kImaTx,       6,   336, 21, 336, kConfig),    // 208 Imatxlinkingp
    table(kImaTx,       7,   336, 21,  11, kConfig),    // 209 Imatxgpdepth
    table(kAtm,        59,   336, 10,  18, kConfig),    // 210 Atmportperiodcfg
    table(kPpu,        48,   256, 10,  12, kConfig),    // 211 Mprpmrrucfg
    table(kPpu,        49,  2048, 10,   1, kConfig),    // 212 Mptestrefstat
    table(kPpu,        50,   256, 10,  32, kStatus),    // 213 Mprpkt
    table(kPpu,        51,   256, 10,  32, kStatus),    // 214 Mprbyte
    table(kEth,        11,    16, 32,   8, kConfig),    // 215 Cpuprotocol
    table(kCes,        16,   336,  4,  32, kConfig),    // 216 Cestxpkgchnmap
};
// clang-format on
