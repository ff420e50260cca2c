// Bring-up data: the PLL programming tables of the E1 and T1 worlds and the DDR start-up tunables.
#include "vq6192/chip.h"

extern "C" {

// clang-format off
// PLL programming, one row per PLL:
//                                                     w0      w1  w2    w3 w4 w5 w6    w7      w8 w9
VQ6192_API uint16_t g_ausVQ6192E1PLLCfg[VQ6192_PLL_NUM][VQ6192_PLL_CFG_WORDS] = {
    /* PLL0 */                                       {0xFFFF, 1,  0x20, 4, 1, 0, 0,    0,      5, 0},
    /* PLL1 */                                       {0xFFFF, 1,  0x23, 5, 1, 0, 0x5B, 0xA782, 5, 0},
    /* PLL2 */                                       {0,      1,  0x3C, 3, 1, 0, 0,    0,      5, 0},
    /* PLL3 */                                       {0,      1,  0x40, 4, 1, 0, 0,    0,      5, 0},
};
VQ6192_API uint16_t g_ausVQ6192T1PLLCfg[VQ6192_PLL_NUM][VQ6192_PLL_CFG_WORDS] = {
    /* PLL0 */                                       {0xFFFF, 1,  0x20, 4, 1, 0, 0,    0,      5, 0},
    /* PLL1 */                                       {0xFFFF, 1,  0x24, 4, 1, 0, 0xD1, 0xDB57, 5, 0},
    /* PLL2 */                                       {0,      1,  0x3C, 3, 1, 0, 0,    0,      5, 0},
    /* PLL3 */                                       {0,      1,  0x40, 4, 1, 0, 0,    0x81C3, 5, 0},
};
// clang-format on

VQ6192_API uint32_t g_ulVQ6192DDRWaitTime = 70000;
VQ6192_API uint32_t g_ulVq6192DdrResetDelayTime = 10000;
VQ6192_API uint32_t g_ulVq6192DdrResetDelayLaterTime = 10000;
VQ6192_API uint32_t g_ulVq6192DdrCl = 6;
VQ6192_API uint32_t g_ulVq6192DdrTaref = 97;
VQ6192_API uint16_t g_usTestSysclkSel = 1;

// DDR address map, one 11-bit value per address-map register.
VQ6192_API uint16_t g_ausVq6192DDRBAddr[VQ6192_DDR_BADDR_NUM] = {
    0x000, 0x180, 0x1C0, 0x4F9, 0x519, 0x6B7, 0x279, 0x100, 0x2F9, 0x278,
};

// DDR mode-register code per CAS latency 0..16.
VQ6192_API uint32_t g_aulVq6192CL_HL_Cfg[VQ6192_DDR_CL_NUM] = {
    0, 0, 0, 0, 0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9,
};

}  // extern "C"
