// The table catalogue checked against the chip's table list: access records, the print catalogue's
// structure, and a few member layouts in full.
#include <algorithm>
#include <cstring>
#include <set>
#include <stdexcept>
#include <string>

#include "core/entry_field.h"
#include "support/test_support.h"
#include "vq6192/table.h"

namespace {

struct ChipTable {
    uint32_t id;
    const char *name;
    uint32_t block;
    uint32_t select;
    uint32_t depth;
    uint32_t data16;
    uint32_t width;
    char kind;  // S status, C config, F write FIFO, R clock recovery
};

// The chip's table list, two tables a line: id, name, block, select, depth, data registers, width, kind.
// clang-format off
const ChipTable kChipTables[] = {
    {  0, "Atmpwe3pktbuf",       0x5000,  37,   512, 10,  35, 'S'}, {  1, "Atmpwe3pritab",       0x5000,  38,    32, 10,  15, 'C'},
    {  2, "Atmpwe3pwcfgtab",     0x5000,  32,  2048, 10,   4, 'C'}, {  3, "Atmpwe3rxmanagetab",  0x5000,  35,  2048, 10,  38, 'C'},
    {  4, "Atmpwe3rxsttab",      0x5000,  36,  2048, 10, 121, 'S'}, {  5, "Atmpwe3txmanagetab",  0x5000,  33,  2048, 10,  30, 'C'},
    {  6, "Atmpwe3txsttab",      0x5000,  34,  2048, 10,  86, 'S'}, {  7, "Atmswlcapfifo",       0x5000,  27,    33, 10,  34, 'S'},
    {  8, "Atmswlpcc",           0x5000,   6,   336, 10,  64, 'S'}, {  9, "Atmswlpct",           0x5000,   5,   336, 10,  15, 'C'},
    { 10, "Atmswoamst",          0x5000,   9,  8192, 10,  27, 'S'}, { 11, "Atmswpolcfg",         0x5000,   4,  8192, 10,  52, 'C'},
    { 12, "Atmswpolst",          0x5000,   3,  8192, 10,  66, 'S'}, { 13, "Atmswrfifo",          0x5000,  24,    33, 10,  34, 'S'},
    { 14, "Atmswscapfifo",       0x5000,  28,    33, 10,  34, 'S'}, { 15, "Atmswspcc",           0x5000,   8,  2048, 10,  64, 'S'},
    { 16, "Atmswspct",           0x5000,   7,  2048, 10,  12, 'C'}, { 17, "Atmswtcam",           0x5000,  10,  8192, 10,  81, 'C'},
    { 18, "Atmswtrcc",           0x5000,   1,  8192, 10,  32, 'S'}, { 19, "Atmswttcc",           0x5000,   2,  8192, 10,  32, 'S'},
    { 20, "Atmswvct",            0x5000,   0,  8192, 10,  69, 'C'}, { 21, "Atmswvcxfifo",        0x5000,  26,     8, 10,  13, 'S'},
    { 22, "Atmswwfifo",          0x5000,  25,    33, 10,  34, 'F'}, { 23, "Atmbmfifocfg",        0x5000,  19,   336, 10,  57, 'C'},
    { 24, "Atmbmfifosta",        0x5000,  20,   336, 10,  16, 'S'}, { 25, "Atmbmpvccfg",         0x5000,  16,  8192, 10,  10, 'C'},
    { 26, "Atmbmpvcsta",         0x5000,  18,  8192, 10,  64, 'S'}, { 27, "Atmbmthcfg",          0x5000,  17,   320, 10, 151, 'C'},
    { 28, "Atmebscfg",           0x5000,  56,   336, 10,  66, 'C'}, { 29, "Atmlinkqmcfg",        0x5000,  48,  8529, 10,  46, 'C'},
    { 30, "Atmlinkshvccfg",      0x5000,  49,  5376, 10,  83, 'C'}, { 31, "Atmportqmcfg",        0x5000,  58,   336, 10,  38, 'C'},
    { 32, "Reserved",            0x5000,  57,   336, 10,  36, 'C'}, { 33, "Atmtmnrtvbrshapcfg",  0x5000,  51,   336, 10,  24, 'C'},
    { 34, "Reserved",            0x5000,  54,   336, 10,  24, 'S'}, { 35, "Atmtmrtvbrshapcfg",   0x5000,  50,   336, 10,  24, 'C'},
    { 36, "Reserved",            0x5000,  53,   336, 10,  24, 'S'}, { 37, "Atmtmubrplsshapcfg",  0x5000,  52,   336, 10,  24, 'C'},
    { 38, "Reserved",            0x5000,  67,   336, 10,  24, 'S'}, { 39, "Afidcfg",             0x8000,   2,  2048, 10,  12, 'C'},
    { 40, "Rppucfg",             0x8000,   0,  2048, 10,  28, 'C'}, { 41, "Rppupstat",           0x8000,   4,  2048, 10,  80, 'S'},
    { 42, "Rppustat",            0x8000,   3, 16384, 10, 176, 'S'}, { 43, "Tppucfg",             0x8000,   1,  2048, 10,  13, 'C'},
    { 44, "Tppupstat",           0x8000,   6,  2048, 10, 145, 'S'}, { 45, "Tppustat",            0x8000,   5,  8192, 10,  96, 'S'},
    { 46, "Mplooppktcnt",        0x8000,  30,  2048, 10,   8, 'S'}, { 47, "Mplooptimestp",       0x8000,  29,  2048, 10, 128, 'S'},
    { 48, "Mprgrpcfg",           0x8000,  41,   256, 10,  23, 'C'}, { 49, "Mprgrpmcstat",        0x8000,  28,  2048, 10,   2, 'S'},
    { 50, "Mprgrppktcnt",        0x8000,  42,  1536, 10, 160, 'S'}, { 51, "Mprpbytecnt",         0x8000,  27,   256, 10,  32, 'S'},
    { 52, "Mprpcsptcfg1",        0x8000,  43,   512, 10,   1, 'C'}, { 53, "Mprpcsptcfg2",        0x8000,  44,   256, 10,   9, 'C'},
    { 54, "Mprxmbdcnt",          0x8000,  40,   256, 10,  18, 'S'}, { 55, "Mprxmbecnt",          0x8000,  39,   256, 10,  32, 'S'},
    { 56, "Mprxmhdlccfg1",       0x8000,  34,  2048, 10,   3, 'C'}, { 57, "Mprxmhdlccfg2",       0x8000,  35,  2048, 10,   9, 'C'},
    { 58, "Mprxmhdlcpktcnt",     0x8000,  38,  2048, 10,  32, 'S'}, { 59, "Mprxmmccnt",          0x8000,  31,  2048, 10,  16, 'S'},
    { 60, "Mprxmmpcfg1",         0x8000,  36,   256, 10,  36, 'C'}, { 61, "Mprxmmpcfg2",         0x8000,  37,   256, 10,   4, 'C'},
    { 62, "Mpskyeyecfg",         0x8000,  32,  2048, 10,   6, 'C'}, { 63, "Mptesttxen",          0x8000,  33,  2048, 10,   1, 'C'},
    { 64, "Chfifost",            0x8000,  10,  2048, 10,   9, 'S'}, { 65, "Fillst",              0x8000,  12,  2048, 10,  33, 'S'},
    { 66, "Fragcfg",             0x8000,   9,   256, 10,  16, 'C'}, { 67, "Hddisst",             0x8000,  20,   256, 10,   8, 'S'},
    { 68, "Hdeptst",             0x8000,  18,   256, 10,   8, 'S'}, { 69, "Hdfccfg",             0x8000,  14,  2048, 10,  60, 'C'},
    { 70, "Hdqst",               0x8000,  16,  2048, 10,  61, 'S'}, { 71, "Linkcfg",             0x8000,  11,  2048, 10,  14, 'C'},
    { 72, "Mcfccfg",             0x8000,  15,  2048, 10,  60, 'C'}, { 73, "Mcqst",               0x8000,  17,  2048, 10,  61, 'S'},
    { 74, "Mcsn",                0x8000,  13,   256, 10, 192, 'S'}, { 75, "Mpdisst",             0x8000,  21,   256, 10,   8, 'S'},
    { 76, "Mpeptst",             0x8000,  19,   256, 10,   8, 'S'}, { 77, "Mpschst",             0x8000,  26,   256, 10,   4, 'S'},
    { 78, "Mpwgtcfg",            0x8000,  23,   256, 10,  56, 'C'}, { 79, "Mpwgtst",             0x8000,  25,   256, 10, 158, 'S'},
    { 80, "Pppencfg",            0x8000,   8,   256, 10,   8, 'C'}, { 81, "Pppwgtcfg",           0x8000,  22,   256, 10,  56, 'C'},
    { 82, "Pppwgtst",            0x8000,  24,   256, 10, 158, 'S'}, { 83, "Qmencfg",             0x8000,   7,   512, 10,   8, 'C'},
    { 84, "Snctrlbase",          0x8000,  46,   256, 10,  96, 'S'}, { 85, "Snctrlcfg",           0x8000,  45,   256, 10,  64, 'C'},
    { 86, "Snctrlwind",          0x8000,  47,  2048, 10, 128, 'S'}, { 87, "Cesidlecode",         0xa000,   4,   336,  4,   8, 'C'},
    { 88, "Cesjbempcnt",         0xa000,  14,   352,  4,  16, 'S'}, { 89, "Cesjbfullcnt",        0xa000,  15,   352,  4,  16, 'S'},
    { 90, "Cesjbfulldropcnt",    0xa000,  13,   352,  4,  32, 'S'}, { 91, "Cesrxjbrdcnt",        0xa000,  11,   352,  4,  32, 'S'},
    { 92, "Cesrxjbwrcnt",        0xa000,  10,   352,  4,  32, 'S'}, { 93, "Cesrxcnt",            0xa000,   9,   352,  9, 128, 'S'},
    { 94, "Cesrxcwrtp",          0xa000,   1,   352,  4,  51, 'C'}, { 95, "Cesrxtsmask",         0xa000,   3,   336,  4,  32, 'C'},
    { 96, "Cestsrxcnt",          0xa000,  12,   352,  4,  32, 'S'}, { 97, "Ceststxcnt",          0xa000,   8,   352,  4,  32, 'S'},
    { 98, "Cestxtbrdcnt",        0xa000,   6,   352,  4,  32, 'S'}, { 99, "Cestxtbwrcnt",        0xa000,   7,   352,  4,  32, 'S'},
    {100, "Cestxcnt",            0xa000,   5,   352,  4,  32, 'S'}, {101, "Cestxcwrtp",          0xa000,   0,   352,  4,  50, 'C'},
    {102, "Cestxtsmask",         0xa000,   2,   336,  4,  32, 'C'}, {103, "Dds12key",            0xa000, 255,   352,  8,  32, 'R'},
    {104, "Tsfifo",              0xa000, 255,   352,  8,  32, 'R'}, {105, "Samcfiforxcit",       0x3000,   3,   336, 10,  14, 'S'},
    {106, "Samcfiforxfbt",       0x3000,   4,   336, 10,  10, 'S'}, {107, "Samcfifotxcit",       0x3000,   9,   336, 10,  14, 'S'},
    {108, "Samcfifotxfbt",       0x3000,  10,   336, 10,  10, 'C'}, {109, "Samfthsbt",           0x3000,   5,   336, 10,  20, 'S'},
    {110, "Saminssbt",           0x3000,  11,   336, 10,  20, 'C'}, {111, "Samrppucfg",          0x3000,   0,   336,  2,   6, 'C'},
    {112, "Samrppucnt",          0x3000,   2, 16383, 10, 144, 'S'}, {113, "Samrppusta",          0x3000,   1,   336, 10,  80, 'S'},
    {114, "Samtppucfg",          0x3000,   6,   336,  2,  12, 'C'}, {115, "Samtppucnt",          0x3000,   8, 16383, 10,  96, 'S'},
    {116, "Samtppusta",          0x3000,   7,   336, 10, 145, 'S'}, {117, "Tsdlet1tab",          0x10ab,   1, 16384,  1,  16, 'C'},
    {118, "Tsdlet3vc4tab",       0x10ab,   1, 16384,  1,  16, 'C'}, {119, "Tsulet1tab",          0x10ab,   0, 16384,  1,  16, 'C'},
    {120, "Tsulet3vc4tab",       0x10ab,   0, 16384,  1,  16, 'C'}, {121, "Downppppro",          0x4000,   4,    32, 32,  16, 'C'},
    {122, "Mpls2key",            0x4000,   6,  8192, 32,  12, 'C'}, {123, "No2pid",              0x4000,   2,  1536, 32,  13, 'C'},
    {124, "Pid2no",              0x4000,   5,  4096, 32,  10, 'C'}, {125, "Psnheader",           0x4000,   0,  3168, 32, 208, 'C'},
    {126, "Rxheadfield",         0x4000,   8,    64, 32, 512, 'C'}, {127, "Txheadfield",         0x4000,   7,    64, 32, 512, 'C'},
    {128, "Upppptype",           0x4000,   1,    32, 32,  16, 'C'}, {129, "Vlan2lable",          0x4000,   3,  4096, 32,  12, 'C'},
    {130, "Mac1Cnt",             0x4000,   9,   128, 32,  32, 'C'}, {131, "Mac2Cnt",             0x4000,  10,   128, 32,  32, 'C'},
    {132, "Tcrxlnkcfg",          0x2800,   0,   336,  6,  96, 'C'}, {133, "Tcrxlnksta0",         0x2800,   1,   336,  6,  96, 'C'},
    {134, "Tcrxlnksta1",         0x2800,   2,   336,  6,  96, 'C'}, {135, "Tcrxlnksta2",         0x2800,   3,   336,  6,  96, 'C'},
    {136, "Tcrximaiflnksta",     0x2800,   4,   336,  6,  16, 'C'}, {137, "Tcrxtsiflnksta",      0x2800,   5,   336,  6,  16, 'C'},
    {138, "Tctxlnkcfg",          0x2800,   6,   336,  6,  96, 'C'}, {139, "Tctxlnksta",          0x2800,   7,   336,  6,  96, 'C'},
    {140, "Tctximaiflnksta",     0x2800,   8,   336,  6,  16, 'C'}, {141, "Tctxtsiflnksta",      0x2800,   9,   336,  6,  16, 'C'},
    {142, "Imapptxc",            0x2201,   0,   336,  4,  32, 'C'}, {143, "Imapprxc",            0x2201,   1,   336,  4,  32, 'C'},
    {144, "Imappgpc0",           0x2201,   2,  5376,  4,  32, 'C'}, {145, "Imappgpc1",           0x2201,   2,  5376,  4,  32, 'C'},
    {146, "Imappgpc2",           0x2201,   2,  5376,  4,  32, 'C'}, {147, "Imappgpc3",           0x2201,   2,  5376,  4,  32, 'C'},
    {148, "Imappgpc4",           0x2201,   2,  5376,  4,  32, 'C'}, {149, "Imappgpc5",           0x2201,   2,  5376,  4,  32, 'C'},
    {150, "Imapptxs0",           0x2201,   3,   672,  4,  32, 'C'}, {151, "Imapptxs1",           0x2201,   3,   672,  4,  32, 'C'},
    {152, "Imapprxs0",           0x2201,   4,   672,  4,  32, 'C'}, {153, "Imapprxs1",           0x2201,   4,   672,  4,  32, 'C'},
    {154, "Imappgps0",           0x2201,   5,  2688,  4,  64, 'C'}, {155, "Imappgps1",           0x2201,   5,  2688,  4,  64, 'C'},
    {156, "Imappgps2",           0x2201,   5,  2688,  4,  64, 'C'}, {157, "Imappgps3",           0x2201,   5,  2688,  4,  64, 'C'},
    {158, "Imappgps4",           0x2201,   5,  2688,  4,  64, 'C'}, {159, "Imappgps5",           0x2201,   5,  2688,  4,  64, 'C'},
    {160, "Imappgps6",           0x2201,   5,  2688,  4,  64, 'C'}, {161, "Imappgps7",           0x2201,   5,  2688,  4,  64, 'C'},
    {162, "Readevent031",        0x2201,   6,   336,  4,  64, 'C'}, {163, "Readevent32",         0x2201,   6,   336,  4,  64, 'C'},
    {164, "Readevent33",         0x2201,   6,   336,  4,  64, 'C'}, {165, "Readevent34",         0x2201,   6,   336,  4,  64, 'C'},
    {166, "Icpfwd0",             0x2201,   7,   336,  4,  32, 'C'}, {167, "Imarxlkcnt0",         0x2600,   0,  1344,  2,  32, 'C'},
    {168, "Imarxlkcnt1",         0x2600,   0,  1344,  2,  32, 'C'}, {169, "Imarxlkcnt2",         0x2600,   0,  1344,  2,  32, 'C'},
    {170, "Imarxlkcnt3",         0x2600,   0,  1344,  2,  32, 'C'}, {171, "Imarxuniwcnt0",       0x2600,   0,  1344,  2,  32, 'C'},
    {172, "Imarxuniwcnt1",       0x2600,   0,  1344,  2,  32, 'C'}, {173, "Imarxuniwcnt2",       0x2600,   0,  1344,  2,  32, 'C'},
    {174, "Imarxuniwcnt3",       0x2600,   0,  1344,  2,  32, 'C'}, {175, "Imarxlkc",            0x2600,   1,   336,  2,  32, 'C'},
    {176, "Imarxgpc",            0x2600,   2,   336,  2,  32, 'C'}, {177, "Imarxicpvld",         0x2600,   3,   336,  2,  32, 'C'},
    {178, "Imarxlks0",           0x2600,   4,   672,  2,  32, 'C'}, {179, "Imarxlks1",           0x2600,   4,   672,  2,  32, 'C'},
    {180, "Imarxicpbuf0",        0x2600,   5,  5376,  2,  32, 'C'}, {181, "Imarxicpbuf12",       0x2600,   5,  5376,  2,  32, 'C'},
    {182, "Imarximarptr",        0x2600,   6,   336,  2,  32, 'C'}, {183, "Imarxunirptr",        0x2600,   6,   336,  2,  32, 'C'},
    {184, "Imarximawptr",        0x2600,   7,   336,  2,  32, 'C'}, {185, "Imarxuniwptr",        0x2600,   7,   336,  2,  32, 'C'},
    {186, "Imarxgpwptr0",        0x2600,   8,  1344,  2,  32, 'C'}, {187, "Imarxgpwptr1",        0x2600,   8,  1344,  2,  32, 'C'},
    {188, "Imarxgpwptr2",        0x2600,   8,  1344,  2,  32, 'C'}, {189, "Imarxrddly031",       0x2600,   9,   336,  2,  32, 'C'},
    {190, "Imarxrddly32",        0x2600,   9,   336,  2,  32, 'C'}, {191, "Imarxrddly33",        0x2600,   9,   336,  2,  32, 'C'},
    {192, "Imarxgpcnt0",         0x2600,  12,   672,  2,  32, 'C'}, {193, "Imarxgpcnt1",         0x2600,  12,   672,  2,  32, 'C'},
    {194, "Imarxunircnt0",       0x2600,  12,   672,  2,  32, 'C'}, {195, "Imarxscvcrr",         0x2600,  13,   336,  2,  10, 'C'},
    {196, "Imarxscvcctrl",       0x2600,  14,   336,  2,  32, 'C'}, {197, "Imatxgps0",           0x2400,   0,  2688, 21,  32, 'C'},
    {198, "Imatxgps1",           0x2400,   0,  2688, 21,  32, 'C'}, {199, "Imatxgps2",           0x2400,   0,  2688, 21,  32, 'C'},
    {200, "Imatxgps3",           0x2400,   0,  2688, 21,  32, 'C'}, {201, "Imatxgps4",           0x2400,   0,  2688, 21,  32, 'C'},
    {202, "Imatxicpbuf0",        0x2400,   1,  5376, 21,  32, 'C'}, {203, "Imatxgpc",            0x2400,   2,   336, 21,  32, 'C'},
    {204, "Imatxmaptbl0",        0x2400,   3, 10752, 21,   9, 'C'}, {205, "Imatxlks0",           0x2400,   4,   672, 21,  32, 'C'},
    {206, "Imatxlks1",           0x2400,   4,   672, 21,  32, 'C'}, {207, "Imatxlkc",            0x2400,   5,   336, 21,   8, 'C'},
    {208, "Imatxlinkingp",       0x2400,   6,   336, 21, 336, 'C'}, {209, "Imatxgpdepth",        0x2400,   7,   336, 21,  11, 'C'},
    {210, "Atmportperiodcfg",    0x5000,  59,   336, 10,  18, 'C'}, {211, "Mprpmrrucfg",         0x8000,  48,   256, 10,  12, 'C'},
    {212, "Mptestrefstat",       0x8000,  49,  2048, 10,   1, 'C'}, {213, "Mprpkt",              0x8000,  50,   256, 10,  32, 'S'},
    {214, "Mprbyte",             0x8000,  51,   256, 10,  32, 'S'}, {215, "Cpuprotocol",         0x4000,  11,    16, 32,   8, 'C'},
    {216, "Cestxpkgchnmap",      0xa000,  16,   336,  4,  32, 'C'},
};
// clang-format on

// The print-only entries 217..333, in catalogue order.
// clang-format off
const char *const kPrintOnlyNames[] = {
    "Imappgpc6", "Imappgpc7", "Imappgpc8", "Imappgpc9", "Imappgpc10", "Imappgpc11", "Imappgpc12",
    "Imappgpc13", "Imappgpc14", "Imappgpc15", "Icpfwd1", "Icpfwd2", "Icpfwd3", "Icpfwd4", "Icpfwd5",
    "Icpfwd6", "Icpfwd7", "Icpfwd8", "Icpfwd9", "Icpfwd10", "Icpfwd11", "Imatxicpbuf1", "Imatxicpbuf2",
    "Imatxicpbuf3", "Imatxicpbuf4", "Imatxicpbuf5", "Imatxicpbuf6", "Imatxicpbuf7", "Imatxicpbuf8",
    "Imarxicpbuf1", "Imarxicpbuf2", "Imarxicpbuf3", "Imarxicpbuf4", "Imarxicpbuf5", "Imarxicpbuf6",
    "Imarxicpbuf7", "Imarxicpbuf8", "Imarxicpbuf9", "Imarxicpbuf10", "Imarxicpbuf11", "Imarxgpwptr3",
    "Stationaddrlow", "Stationaddrhigh", "Duplexsel", "Fdfctype", "Appfifothrsld", "Fctxtimer", "Fdfcaddrlow",
    "Fdfcaddrhigh", "Ipgtxtimer", "Preamblecfg", "Pausethr", "Maxfrmsize", "Portmode", "Porten", "Fdfcen",
    "Shortruntsthr", "Dropunkctlfrm", "Synok", "Mactxfen", "Macrxpsen", "Portmcaddrlow", "Portmcaddrhigh",
    "Macsoftrst", "Macfifoerr", "Portlinkstat", "Macporten", "Lineloopback", "Cfcrcstrip", "Cfdflsinglerx",
    "Lpctrl", "Macrxctrl", "Cfserdesorder", "Rxfailcommacnt", "Invalidcharcnt", "Cfvlancode", "Rxoverruncnt",
    "Rxlengthfielderrcnt", "Rxoctetsokcnt", "Rxoctetsbadcnt", "Rxucpktcnt", "Rxmcpktcnt", "Rxbcpktcnt",
    "Rxpkts64octcnt", "Rxpkts65to127octcnt", "Rxpkts128to255octcnt", "Rxpkts256to511octcnt",
    "Rxpkts512to1023octcnt", "Rxpkts1024to1518octcnt", "Rxpkts1519tomaxoctcnt", "Rxfcserrcnt", "Rxtaggedcnt",
    "Rxdataerrcnt", "Rxlongerrcnt", "Rxjabbererrcnt", "Rxpausecnt", "Rxunkctlcnt", "Rxverylongerrcnt",
    "Rxrunterrcnt", "Rxshorterrcnt", "Txoctetsokcnt", "Txoctetsbadcnt", "Txucpktcnt", "Txmcpktcnt",
    "Txbcpktcnt", "Txpkts64octcnt", "Txpkts65to127octcnt", "Txpkts128to255octcnt", "Txpkts256to511octcnt",
    "Txpkts512to1023octcnt", "Txpkts1024to1518octcnt", "Txpkts1519tomaxoctcnt", "Txexclendropcnt",
    "Txunderruncnt", "Txtaggedcnt", "Txcrcerrcnt", "Txpausecnt",
};
// clang-format on

// Command values of each block: write value1, value2; read value1, value2; and the register
// numbers of the busy, select and address fields with their bits.
struct BlockCommands {
    uint32_t block;
    uint16_t wr1, wr2, rd1, rd2;
    uint32_t cmdReg, cmdStart, busyReg, busyBit, selectReg, selectWidth, addrReg, addrWidth, writeData,
        readData;
};

// clang-format off
const BlockCommands kBlocks[] = {
    //  block  wr1 wr2 rd1 rd2  cmd    start busy   bit  select  w   address  w   wdata   rdata
    {0x5000, 0, 2, 0, 3, 0x5002, 0,  0x5003, 0,  0x5000, 6,  0x5001, 16, 0x5010, 0x5020},
    {0x8000, 0, 2, 0, 3, 0x8000, 0,  0x8001, 0,  0x8002, 16, 0x8003, 16, 0x8004, 0x8008},
    {0xa000, 0, 1, 0, 3, 0xa000, 0,  0xa001, 0,  0xa002, 5,  0xa003, 9,  0xa010, 0xa004},
    {0x3000, 0, 1, 0, 3, 0x3000, 4,  0x3000, 6,  0x3000, 4,  0x3001, 14, 0x3010, 0x3020},
    {0x10ab, 0, 2, 0, 3, 0x10ab, 0,  0x10ac, 0,  0x10ad, 1,  0x10ae, 14, 0x10b0, 0x10af},
    {0x4000, 0, 2, 0, 3, 0x4000, 0,  0x4001, 0,  0x4002, 4,  0x4003, 13, 0x4024, 0x4004},
    {0x2800, 0, 2, 1, 3, 0x2800, 0,  0x2801, 0,  0x2802, 4,  0x2803, 9,  0x2804, 0x280a},
    {0x2201, 0, 1, 2, 3, 0x2201, 13, 0x2201, 15, 0x2201, 4,  0x2202, 13, 0x2207, 0x2203},
    {0x2600, 0, 1, 2, 3, 0x2600, 13, 0x2600, 15, 0x2600, 4,  0x2601, 13, 0x2606, 0x2604},
    {0x2400, 0, 1, 2, 3, 0x2400, 13, 0x2400, 15, 0x2400, 3,  0x2401, 14, 0x2410, 0x2430},
};
// clang-format on

const BlockCommands &blockOf(uint32_t base) {
    for (const auto &b : kBlocks) {
        if (b.block == base) {
            return b;
        }
    }
    throw std::out_of_range("block");
}

uint32_t kindCode(char kind) {
    return kind == 'S'   ? VQ6192_TBL_KIND_STATUS
           : kind == 'C' ? VQ6192_TBL_KIND_CONFIG
           : kind == 'F' ? VQ6192_TBL_KIND_WRITE_FIFO
                         : VQ6192_TBL_KIND_CLOCK_RECOVERY;
}

void expectField(const VQ6192_TBL_FIELD_S &f, uint32_t reg, uint32_t start, uint32_t width, uint32_t v1,
                 uint32_t v2) {
    EXPECT_EQ(f.ulRegNo, reg);
    EXPECT_EQ(f.usStartBit, start);
    EXPECT_EQ(f.usWidth, width);
    EXPECT_EQ(f.usValue1, v1);
    EXPECT_EQ(f.usValue2, v2);
}

TEST(TableCatalogue, AccessRecordsFollowTheChipTableList) {
    ASSERT_EQ(std::size(kChipTables), VQ6192_CHIP_TABLE_NUM);
    for (const ChipTable &t : kChipTables) {
        SCOPED_TRACE(testing::Message() << "table " << t.id << " " << t.name);
        const VQ6192_CHIP_TABLE_INFO_S &info = g_VQ6192_CHIP_TABLE_INFO[t.id];
        const BlockCommands &b = blockOf(t.block);
        EXPECT_STREQ(g_astVQ6192TblEntryList[t.id].pszName, t.name);
        EXPECT_EQ(info.ulBlockBase, t.block);
        EXPECT_EQ(info.ulDepth, t.depth);
        EXPECT_EQ(info.usData16, t.data16);
        EXPECT_EQ(VQ6192_GetTabelDataSizeById(t.id), t.data16);
        EXPECT_EQ(info.usWidth, t.width);
        EXPECT_EQ(info.ulAccessKind, kindCode(t.kind));
        EXPECT_EQ(info.ulPresent, 1u);

        // The E3/VC-4 timeslot tables start their read with 1; the other two with 0.
        const uint16_t rd1 = (t.id == 118 || t.id == 120) ? 1 : b.rd1;
        // IMA receive tables 187..196 have a 14-bit address field.
        const uint32_t addrWidth = (t.id >= 187 && t.id <= 196) ? 14 : b.addrWidth;
        expectField(info.stWriteCmd, b.cmdReg, b.cmdStart, 2, b.wr1, b.wr2);
        expectField(info.stReadCmd, b.cmdReg, b.cmdStart, 2, rd1, b.rd2);
        expectField(info.stBusy, b.busyReg, b.busyBit, 1, 0xFFFF, 0);
        expectField(info.stSelect, b.selectReg, 0, b.selectWidth, t.select, 0);
        expectField(info.stAddress, b.addrReg, 0, addrWidth, 0xFFFF, 0);
        expectField(info.stWriteData, b.writeData, 0, 16, 0, 0);
        expectField(info.stReadData, b.readData, 0, 16, 0, 0);
    }
    EXPECT_EQ(VQ6192_GetTabelDataSizeById(217), 0u);
}

TEST(TableCatalogue, PrintCatalogueStructure) {
    EXPECT_EQ(g_VQ192_MAX_Tbl, 334u);
    uint32_t members = 0;
    std::set<std::string> names;
    for (uint32_t id = 0; id < VQ6192_TBL_ENTRY_NUM; ++id) {
        const VQ6192_TBL_ENTRY_S &e = g_astVQ6192TblEntryList[id];
        SCOPED_TRACE(testing::Message() << "entry " << id << " " << e.pszName);
        if (id >= VQ6192_CHIP_TABLE_NUM) {
            EXPECT_STREQ(e.pszName, kPrintOnlyNames[id - VQ6192_CHIP_TABLE_NUM]);
        }
        ASSERT_NE(e.pstMember, nullptr);
        ASSERT_NE(e.pszDesc, nullptr);
        EXPECT_EQ(e.usMemberNum, e.usMemberNum2);
        ASSERT_GT(e.usMemberNum, 0);
        if (std::strcmp(e.pszName, "Reserved") == 0) {
            EXPECT_EQ(e.pstMember, g_astVQ6192TblMemberNULL);
        } else {
            EXPECT_TRUE(names.insert(e.pszName).second) << "duplicate name";
            EXPECT_NE(e.pstMember, g_astVQ6192TblMemberNULL);
        }
        // Every member lies inside the entry: its width or the data registers the chip moves, whichever
        // is larger (one word for print-only layouts). Members run from the most significant field down.
        uint32_t bits = 32;
        if (id < VQ6192_CHIP_TABLE_NUM) {
            const VQ6192_CHIP_TABLE_INFO_S &info = g_VQ6192_CHIP_TABLE_INFO[id];
            bits = std::max<uint32_t>(info.usWidth, info.usData16 * 16u);
        }
        for (uint32_t i = 0; i < e.usMemberNum; ++i) {
            const VQ6192_TBL_MEMBER_S &m = e.pstMember[i];
            EXPECT_GT(std::strlen(m.pszName), 0u);
            ASSERT_NE(m.pszDesc, nullptr);
            EXPECT_GE(m.usWidth, 1);
            EXPECT_LE(m.usWidth, 32);
            EXPECT_LE(m.usStartBit + m.usWidth, bits) << m.pszName;
            // Macrxctrl opens with a reserved field that overlaps the ones below it.
            if (i > 0 && std::strcmp(e.pszName, "Macrxctrl") != 0) {
                EXPECT_LT(m.usStartBit, e.pstMember[i - 1].usStartBit) << m.pszName;
            }
        }
        members += e.usMemberNum;
    }
    // 1349 members, counting the shared reserved layout once for each of the four reserved tables.
    EXPECT_EQ(members, 1349u);
}

TEST(TableCatalogue, MemberLayouts) {
    // The priority template's member layout is pinned by the tables shell session.
    EXPECT_EQ(g_astVQ6192TblEntryList[1].pstMember, g_astVQ6192TblMemberAtmpwe3pritab);
    // Catalogue lookups by name at compile time.
    static_assert(vq::tableId("Atmswvct") == 20);
    static_assert(vq::tableId("Txpausecnt") == 333);
    constexpr vq::EntryField traffic = vq::entryField("Atmswvct", "Traffictype");
    static_assert(traffic.table == 20 && traffic.startBit == 66 && traffic.width == 3);
    constexpr vq::EntryField pkt = vq::entryField("Atmpwe3pktbuf", "Pwe3capturepkt");
    static_assert(pkt.startBit == 3 && pkt.width == 32);
    constexpr vq::EntryField gplink = vq::entryField("Imappgpc15", "Rxphylink31");
    static_assert(gplink.table == 226 && gplink.startBit == 9 && gplink.width == 9);
}

}  // namespace
