// The map configuration tables: for every map type (row) the value of each mapper register field
// (column); x (0xFFFF) leaves the field alone, or for the check columns 7, 16 and 17 does not check it.
// VC-4 0 uses the first table; VC-4s 1..3 the second, which leaves registers 0x24002 and 0x24006
// (columns 2 and 3) alone for the TU-12 and VT structures.
#include "vq6192/sdh.h"

namespace {
constexpr uint16_t x = 0xFFFF;  // field left alone / not checked
}

// clang-format off
extern "C" VQ6192_API const uint16_t g_aausVQ6192SDHMapCfg0[VQ6192_SDH_MAP_TYPE_NUM][VQ6192_SDH_MAP_CFG_COLUMNS] = {
    // 0  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19
    {  x, x, x, x, x, 1, x, 0, x, x, x, 2, x, x, x, x, x, x, x, x},  //  0 VC-4 bypass
    {  x, x, x, x, x, 0, 1, 0, x, x, x, 2, x, x, x, x, x, x, x, x},  //  1 C-4 bypass
    {  0, 0, 1, 1, x, 0, 0, x, x, x, x, 0, 0, 1, 1, 0, x, 0, x, x},  //  2 E1 on the telecom bus
    {  1, 1, 1, 1, x, 0, 0, x, x, x, x, 0, 7, 0, 0, x, x, 1, x, x},  //  3 T1 on the telecom bus
    {  x, x, x, x, 0, 0, 0, x, x, x, x, 1, x, x, x, x, 0, x, 1, 1},  //  4 E3 from the line interface
    {  x, x, x, x, 0, 0, 0, x, x, x, x, 1, x, x, x, x, 1, x, 0, 0},  //  5 DS3 from the line interface
    {  0, 0, 0, 0, x, 0, 0, 0, 0, 1, 0, 0, x, 1, 1, 0, x, 0, x, x},  //  6 E1 in VC-12/TU-12/TUG-3/AU-4
    {  1, 1, 0, 0, x, 0, 0, 0, 2, 1, 0, 0, x, 1, 0, x, x, 1, x, x},  //  7 DS1 in VC-11 in TU-12
    {  1, 1, 0, 0, x, 0, 0, 0, 1, 1, 0, 0, x, 1, 1, 2, x, 1, x, x},  //  8 DS1/E1 in VC-1x, TU-12
    {  x, x, x, x, 1, 0, 0, 0, x, 3, 0, 1, x, x, x, x, 0, x, 1, 1},  //  9 E3 in VC-3/TUG-3/AU-4
    {  x, x, x, x, 1, 0, 0, 0, x, 2, 0, 1, x, x, x, x, 1, x, 0, 0},  // 10 DS3 in VC-3/TUG-3/AU-4
    {  0, 0, 0, 0, x, 0, 0, 1, 0, 1, 1, 0, x, 1, 1, 0, x, 0, x, x},  // 11 E1 in VT2 of an STS-1
    {  1, 1, 0, 0, x, 0, 0, 1, 0, 0, 1, 0, x, 0, 0, x, x, 1, x, x},  // 12 DS1 in VT1.5 of an STS-1
    {  x, x, x, x, 1, 0, 0, 1, x, 2, 1, 1, x, x, x, x, 1, x, 0, 0},  // 13 DS3 in the STS-1 SPE
};

extern "C" VQ6192_API const uint16_t g_aausVQ6192SDHMapCfg123[VQ6192_SDH_MAP_TYPE_NUM][VQ6192_SDH_MAP_CFG_COLUMNS] = {
    // 0  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19
    {  x, x, x, x, x, 1, x, 0, x, x, x, 2, x, x, x, x, x, x, x, x},  //  0 VC-4 bypass
    {  x, x, x, x, x, 0, 1, 0, x, x, x, 2, x, x, x, x, x, x, x, x},  //  1 C-4 bypass
    {  0, 0, 1, 1, x, 0, 0, x, x, x, x, 0, 0, 1, 1, 0, x, 0, x, x},  //  2 E1 on the telecom bus
    {  1, 1, 1, 1, x, 0, 0, x, x, x, x, 0, 7, 0, 0, x, x, 1, x, x},  //  3 T1 on the telecom bus
    {  x, x, x, x, 0, 0, 0, x, x, x, x, 1, x, x, x, x, 0, x, 1, 1},  //  4 E3 from the line interface
    {  x, x, x, x, 0, 0, 0, x, x, x, x, 1, x, x, x, x, 1, x, 0, 0},  //  5 DS3 from the line interface
    {  0, 0, x, x, x, 0, 0, 0, 0, 1, 0, 0, x, 1, 1, 0, x, 0, x, x},  //  6 E1 in VC-12/TU-12/TUG-3/AU-4
    {  1, 1, x, x, x, 0, 0, 0, 2, 1, 0, 0, x, 1, 0, x, x, 1, x, x},  //  7 DS1 in VC-11 in TU-12
    {  1, 1, x, x, x, 0, 0, 0, 1, 1, 0, 0, x, 1, 1, 2, x, 1, x, x},  //  8 DS1/E1 in VC-1x, TU-12
    {  x, x, x, x, 1, 0, 0, 0, x, 3, 0, 1, x, x, x, x, 0, x, 1, 1},  //  9 E3 in VC-3/TUG-3/AU-4
    {  x, x, x, x, 1, 0, 0, 0, x, 2, 0, 1, x, x, x, x, 1, x, 0, 0},  // 10 DS3 in VC-3/TUG-3/AU-4
    {  0, 0, x, x, x, 0, 0, 1, 0, 1, 1, 0, x, 1, 1, 0, x, 0, x, x},  // 11 E1 in VT2 of an STS-1
    {  1, 1, x, x, x, 0, 0, 1, 0, 0, 1, 0, x, 0, 0, x, x, 1, x, x},  // 12 DS1 in VT1.5 of an STS-1
    {  x, x, x, x, 1, 0, 0, 1, x, 2, 1, 1, x, x, x, x, 1, x, 0, 0},  // 13 DS3 in the STS-1 SPE
};

extern "C" VQ6192_API const uint32_t g_aulVQ6192InterE1no2HwnoPerTug3[28] = {
     0,  3,  6,  9, 12, 15, 18, 21, 24, 27, 30, 33, 36, 39,
    42, 45, 48, 51, 54, 57, 60, 63, 66, 69, 72, 75, 78, 81,
};
// clang-format on
