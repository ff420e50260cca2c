/* VQ6192 driver SDK: chip initialisation, health, self-tests and interrupt control. C-compatible. */
#ifndef VQ6192_CHIP_H
#define VQ6192_CHIP_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* ==== Chip initialisation (module BASE) ========================================================== */

/* Bring-up modes of VQ6192_Base_Initialize. */
#define VQ6192_BASE_INIT_FULL 1u    /* power-on to working chip */
#define VQ6192_BASE_INIT_RESTORE 2u /* module initialisers only, hardware left running */

/* PLL programming tables: one row of ten words per PLL 0..3 (w0 reg 0x6A bit 6 for PLL2/3, w1 divider
 * A, w2 divider B, w4 * 16 + w3 combined value, w6 8-bit value, w7 16-bit value, w8 settle time in
 * 10 ms units; w5 and w9 unused). */
#define VQ6192_PLL_NUM 4u
#define VQ6192_PLL_CFG_WORDS 10u
VQ6192_API extern uint16_t g_ausVQ6192E1PLLCfg[VQ6192_PLL_NUM][VQ6192_PLL_CFG_WORDS];
VQ6192_API extern uint16_t g_ausVQ6192T1PLLCfg[VQ6192_PLL_NUM][VQ6192_PLL_CFG_WORDS];

/* Bring-up tunables. Times in microseconds. */
VQ6192_API extern uint32_t g_ulVQ6192DDRWaitTime;            /* settle time and DDR-ready poll period */
VQ6192_API extern uint32_t g_ulVq6192DdrResetDelayTime;      /* DDR reset assertion */
VQ6192_API extern uint32_t g_ulVq6192DdrResetDelayLaterTime; /* wait after DDR reset release */
VQ6192_API extern uint32_t g_ulVq6192DdrCl;                  /* CAS latency 0..16, else rewritten to 6 */
VQ6192_API extern uint32_t g_ulVq6192DdrTaref;               /* refresh interval code, added to 0x5000 */
VQ6192_API extern uint16_t g_usTestSysclkSel;                /* reg 0x200 bit 3 at SerDes start */
#define VQ6192_DDR_BADDR_NUM 10u
#define VQ6192_DDR_CL_NUM 17u
VQ6192_API extern uint16_t g_ausVq6192DDRBAddr[VQ6192_DDR_BADDR_NUM]; /* 11-bit address-map values */
VQ6192_API extern uint32_t g_aulVq6192CL_HL_Cfg[VQ6192_DDR_CL_NUM];   /* mode-register code per CL */

VQ6192_API uint32_t VQ6192_Base_Initialize(uint32_t chip, uint32_t mode, uint32_t tdmMode, uint32_t ddrTest,
                                           uint32_t frmOption, const void *ddrOption);
VQ6192_API uint32_t VQ6192_Base_SetPLLCfg(uint32_t chip, const uint16_t table[40]);
VQ6192_API uint32_t VQ6192_Base_InitDDR(uint32_t chip, uint8_t *failed, const void *ddrOption);
VQ6192_API uint32_t VQ6192_Base_ResetChip(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_Base_SetSoftResetModule(uint32_t chip, uint32_t module, uint32_t value);
VQ6192_API uint32_t VQ6192_Base_SetModuleClkEn(uint32_t chip, uint32_t module, uint32_t enable);

/* ==== Chip health and self-tests (module BASE) ================================================== */

/* Last DDR byte address the 9-step scan covers. */
VQ6192_API extern uint32_t g_ulVq6192Ddr9StepTestMaxAddr;
/* DDR block access polls its busy bit g_ulVQ6192DDRRWWaitTimes x 3 times, 10 ms apart. */
VQ6192_API extern uint32_t g_ulVQ6192DDRRWWaitTimes;
/* Release label shown by the version text. */
VQ6192_API extern const char g_szVq6192DrvRelease[];

/* Smallest buffer VQ6192_Base_GetVersion accepts. */
#define VQ6192_VERSION_BUF_MIN 40u

/* PLL power-down settings (each 0..1), bits of the PLL control register. The operations take them
 * as an array of five u16 in this order. */
typedef struct {
    uint16_t wSysPllVcoPd;   /* bit 5 */
    uint16_t wSysPllPdivPd;  /* bit 4 */
    uint16_t wSysPllPhasePd; /* bit 3 */
    uint16_t wSysPllDsmPd;   /* bit 2 */
    uint16_t wSysPllPd;      /* bit 0 */
} VQ6192_PLL_PD_CFG;
#define VQ6192_PLL_PD_CFG_NUM 5u

/* DDR controller test statistics. */
typedef struct {
    uint16_t wDdr2cTestCurrSt;  /* 0xC036 bits 8..11 */
    uint16_t wDdr2cTestNextSt;  /* 0xC036 bits 12..15 */
    uint16_t wDdr2cRrCurrSt;    /* 0xC102 bits 0..10 */
    uint16_t wDdr2cRrNextSt;    /* 0xC104 bits 0..10 */
    uint32_t dwScanErrAddr;     /* (0xC038 << 16) + 0xC03A */
    uint16_t wScanErrStep;      /* 0xC036 bits 4..6 */
    uint16_t awScanErrRData[4]; /* 0xC040 + 2k */
    uint16_t awScanExpRData[4]; /* 0xC048 + 2k */
} VQ6192_DDR_TEST_STATS;

/* Result of the DDR 9-step scan (new form). */
typedef struct {
    uint8_t ucStatus;           /* 1 = failed */
    uint16_t wScanErrAddrHigh;  /* 0xC038 */
    uint16_t wScanErrAddrLow;   /* 0xC03A */
    uint16_t awScanErrRData[4]; /* 0xC040 + 2k */
    uint16_t awScanExpRData[4]; /* 0xC048 + 2k */
} VQ6192_DDR9STEP_RESULT;

/* DDR CRC error counters, one per DDR client (reg 0xC128 + 8k). */
typedef struct {
    uint16_t wDDR2CIMACRCERRCNT;
    uint16_t wDDR2CPWE3CRCERRCNT;
    uint16_t wDDR2CATMCRCERRCNT;
    uint16_t wDDR2CCESICRCERRCNT;
    uint16_t wDDR2CCESECRCERRCNT;
    uint16_t wDDR2CCRPCRCERRCNT;
    uint16_t wDDR2CPPPICRCERRCNT;
    uint16_t wDDR2CPKTCRCERRCNT;
    uint16_t wDDR2CPPPECRCERRCNT;
} VQ6192_DDR_CRC_CNT;
#define VQ6192_DDR_CRC_CNT_NUM 9u

/* DDR FIFO and CRC status flags (each 0 or 1), 77 bytes in register order. */
typedef struct {
    /* 0xC004 bits 10..0 */
    uint8_t bddr2cmpicrcerr, bddr2cppucrcerr, bddr2cpppecrcerr, bddr2cpktcrcerr, bddr2cpppicrcerr;
    uint8_t bddr2ccrpcrcerr, bddr2ccesecrcerr, bddr2ccesicrcerr, bddr2cimacrcerr, bddr2cpwe3crcerr;
    uint8_t bddr2catmcrcerr;
    /* 0xC060 bits 1, 0 */
    uint8_t btabrfull, btabwfull;
    /* 0xC100 bits 3..0 */
    uint8_t brrecfiforerr, brrecfifowerr, brredfiforerr, brredfifowerr;
    /* 0xC126 bits 3..0 */
    uint8_t btabwdfiforerr, btabwdfifowerr, btabcfiforerr, btabcfifowerr;
    /* DDR clients, bits 5..0 of 0xC12E, 0xC136, 0xC13E, 0xC146, 0xC14E, 0xC156, 0xC15E */
    uint8_t batmrdfiforerr, batmrdfifowerr, batmwdfiforerr, batmwdfifowerr, batmcfiforerr, batmcfifowerr;
    uint8_t bpwe3rdfiforerr, bpwe3rdfifowerr, bpwe3wdfiforerr, bpwe3wdfifowerr, bpwe3cfiforerr,
        bpwe3cfifowerr;
    uint8_t bimardfiforerr, bimardfifowerr, bimawdfiforerr, bimawdfifowerr, bimacfiforerr, bimacfifowerr;
    uint8_t bcesirdfiforerr, bcesirdfifowerr, bcesiwdfiforerr, bcesiwdfifowerr, bcesicfiforerr,
        bcesicfifowerr;
    uint8_t bceserdfiforerr, bceserdfifowerr, bcesewdfiforerr, bcesewdfifowerr, bcesecfiforerr,
        bcesecfifowerr;
    uint8_t bcrprdfiforerr, bcrprdfifowerr, bcrpwdfiforerr, bcrpwdfifowerr, bcrpcfiforerr, bcrpcfifowerr;
    uint8_t bpppirdfiforerr, bpppirdfifowerr, bpppiwdfiforerr, bpppiwdfifowerr, bpppicfiforerr,
        bpppicfifowerr;
    /* 0xC166 bits 3..0 */
    uint8_t bpktwdfiforerr, bpktwdfifowerr, bpktcfiforerr, bpktcfifowerr;
    /* 0xC16E bits 5..0 */
    uint8_t bppperdfiforerr, bppperdfifowerr, bpppewdfiforerr, bpppewdfifowerr, bpppecfiforerr,
        bpppecfifowerr;
    /* 0xC176 bits 5, 4, 1, 0 */
    uint8_t bppurdfiforerr, bppurdfifowerr, bppucfiforerr, bppucfifowerr;
} VQ6192_DDR_FIFO_STAT;
#define VQ6192_DDR_FIFO_STAT_NUM 77u

/* Die id, 22 bytes. */
typedef struct {
    uint8_t byRead_protect_out;  /* 0x160 bit 3 */
    uint8_t byWrite_protect_out; /* 0x160 bit 2 */
    uint8_t byDieId_read_done;   /* 0x160 bit 1 */
    uint8_t byDieId_write_done;  /* 0x160 bit 0 */
    uint8_t byDieId_crc_right;   /* 0x162 bit 8 */
    uint8_t byDieId_crc;         /* 0x162 bits 0..7 */
    uint16_t byDieId_out_0;      /* 0x164 */
    uint16_t byDieId_out_1;      /* 0x166 */
    uint16_t byDieId_out_2;      /* 0x168 */
    uint16_t byDieId_out_3;      /* 0x16A */
    uint16_t byDieId_out_4;      /* 0x16C */
    uint16_t byDieId_out_5;      /* 0x16E */
    uint16_t byDieId_out_6;      /* 0x170 */
    uint16_t byDieId_out_7;      /* 0x172 bits 0..5 */
} VQ6192_DIE_ID;
#define VQ6192_DIE_ID_SIZE 22u

/* The software DDR 3-step test.
 * Status bytes (the test's u8 array, VQ6192_DDR3STEP_STATUS_NUM bytes):
 *  [0] stage reached: 1 at the start, 2 after step 1, 3 after step 2, 0 when no fault was found
 *  [1] step-1 fault kind (VQ6192_DDR3STEP_STUCK_OPEN_*), [2] its data bit
 *  [3] step-2 fault kind (VQ6192_DDR3STEP_*), [4] its data bit, [6] the other data bit of a short
 *  [5] step-3 verdict (VQ6192_DDR3STEP_ADDR_*), [6] the address line's code (0..12 A0..A12,
 *      50..52 BA0..BA2). */
#define VQ6192_DDR3STEP_STATUS_NUM 7u
#define VQ6192_DDR3STEP_STUCK_OPEN_0 1u
#define VQ6192_DDR3STEP_STUCK_OPEN_1 2u
#define VQ6192_DDR3STEP_STUCK_AT_0 1u
#define VQ6192_DDR3STEP_STUCK_AT_1 2u
#define VQ6192_DDR3STEP_SHORT_0 4u
#define VQ6192_DDR3STEP_SHORT_1 8u
#define VQ6192_DDR3STEP_ADDR_STUCK_AT 48u
#define VQ6192_DDR3STEP_ADDR_SHORT 192u
/* Bare result of a 3-step test that found a fault (no chip bits). */
#define VQ6192_DDR3STEP_FAULT 0x10007u

/* Masks the 3-step test collects: data bits per fault kind, then address lines per verdict (bit n
 * for line n: A0..A12 are 0..12, BA0..BA2 are 13..15). */
typedef struct {
    uint32_t ulReserved; /* cleared by the test */
    uint32_t ulStuckOpen1Mask;
    uint32_t ulStuckOpen0Mask;
    uint32_t ulStuckAt0Mask;
    uint32_t ulStuckAt1Mask;
    uint32_t ulShort1Mask;
    uint32_t ulShort0Mask;
    uint32_t ulAddrShortXMask;
    uint32_t ulAddrStuckAtMask;
    uint32_t ulAddrShortMask;
    uint32_t ulAddrUnknownMask;
} VQ6192_DDR3STEP_CTX;

/* Clock selections. */
typedef enum { CDK_FE_VQ6192_MAC_CLK_SERDES = 0, CDK_FE_VQ6192_MAC_CLK_PLL = 1 } CDK_FE_VQ6192_MAC_CLK_SEL_E;
typedef enum {
    CDK_FE_VQ6192_CLK_DETECT_SERDES = 0,
    CDK_FE_VQ6192_CLK_DETECT_HW = 1
} CDK_FE_VQ6192_CLK_DETECT_SEL_E;

/* Service numbers of the service power operations. */
#define VQ6192_SRV_PPP0 0u
#define VQ6192_SRV_PPP1 1u
#define VQ6192_SRV_ATM 2u
#define VQ6192_SRV_CES 3u

/* RAM built-in self-test blocks: ATM, MPTX, MPRX, CES, ETH, SAM, FRM, OHP, DDR2C. */
#define VQ6192_RAM_BIST_BLOCK_NUM 9u

/* Identity and register access. */
VQ6192_API uint32_t VQ6192_Base_GetVersion(uint32_t chip, char *buf, uint32_t len);
VQ6192_API uint32_t VQ6192_Base_GetVersionReg(uint32_t chip, uint32_t *out);
VQ6192_API uint32_t VQ6192_Base_GetChipStatus(uint32_t chip, uint8_t *failed, uint16_t *readVal,
                                              uint16_t *writeVal);
VQ6192_API uint32_t VQ6192_Base_ChipRWTest(uint32_t chip, uint16_t *written, uint16_t *read);
VQ6192_API uint32_t VQ6192_Base_GetChipStatus_Test(uint32_t chip, uint32_t fail[2]);

/* PLL and service power. */
VQ6192_API uint32_t VQ6192_Base_SetPLLPowerDown(uint32_t chip, uint32_t pll, const uint16_t cfg[5]);
VQ6192_API uint32_t VQ6192_Base_GetPLLPowerDown(uint32_t chip, uint32_t pll, uint16_t cfg[5]);
VQ6192_API uint32_t VQ6192_Base_SetPLL1TotalPowerDown(uint32_t chip);
VQ6192_API uint32_t VQ6192_Base_SetSrvPowerDownEn(uint32_t chip, uint32_t srv, uint32_t enable);
VQ6192_API uint32_t VQ6192_Base_GetSrvPowerDownEn(uint32_t chip, uint32_t srv, uint16_t *out);
VQ6192_API uint32_t VQ6192_Base_GetSrvPdStat(uint32_t chip, uint32_t srv, uint16_t *out);

/* RAM built-in self-test. VQ6192_Base_RamBist returns a mask of failed blocks, not a status. */
VQ6192_API uint32_t VQ6192_Base_RamBistTest(uint32_t chip, uint32_t block, uint8_t *failed);
VQ6192_API uint32_t VQ6192_Base_RamBist(uint32_t chip);

/* DDR tests, statistics and block access. */
VQ6192_API uint32_t VQ6192_Base_DDR9StepTest(uint32_t chip, const uint16_t pattern[4], uint8_t *failed);
VQ6192_API uint32_t VQ6192_Base_DDR9StepTestNew(uint32_t chip, const uint16_t pattern[4],
                                                VQ6192_DDR9STEP_RESULT *result);
VQ6192_API uint32_t VQ6192_Base_GetDDRTestStats(uint32_t chip, VQ6192_DDR_TEST_STATS *stats);
VQ6192_API uint32_t VQ6192_Base_DDR3StepTest(uint32_t chip, uint8_t *failed, VQ6192_DDR3STEP_CTX *ctx);
VQ6192_API uint32_t VQ6192_Base_WriteDdr64Bytes(uint32_t chip, uint32_t addr, const uint16_t data[32],
                                                uint32_t count);
VQ6192_API uint32_t VQ6192_Base_ReadDdr64Bytes(uint32_t chip, uint32_t addr, uint16_t out[32], uint32_t swap,
                                               uint32_t count);
VQ6192_API uint32_t VQ6192_Base_GetDdrTabWBusy(uint32_t chip);
VQ6192_API uint32_t VQ6192_Base_GetDdrTabRBusy(uint32_t chip);
VQ6192_API uint32_t VQ6192_Base_GetDDRFifoStats(uint32_t chip, VQ6192_DDR_FIFO_STAT *out);
VQ6192_API uint32_t VQ6192_Base_GetDDRCntStats(uint32_t chip, VQ6192_DDR_CRC_CNT *out);

/* Die id, ECC, frame pulse state and clocks. */
VQ6192_API uint32_t VQ6192_Base_GetEccState(uint32_t chip, uint16_t *a, uint16_t *b, uint16_t *c,
                                            uint16_t *d);
VQ6192_API uint32_t VQ6192_GetFpState(uint32_t chip, uint32_t *a, uint32_t *b);
VQ6192_API uint32_t VQ6192_Base_GetDieID(uint32_t chip, VQ6192_DIE_ID *out);
VQ6192_API uint32_t VQ6192_Base_CheckClkPll(uint32_t chip, uint8_t *alarm);
VQ6192_API uint32_t VQ6192_Base_SetSdsTxclkSel(uint32_t chip, uint32_t sel);
VQ6192_API uint32_t VQ6192_Base_GetSdsTxclkSel(uint32_t chip, uint32_t *sel);
VQ6192_API uint32_t VQ6192_Base_SetE3OutClkSel(uint32_t chip, uint32_t sel);
VQ6192_API uint32_t VQ6192_Base_GetE3OutClkSel(uint32_t chip, uint32_t *sel);
VQ6192_API uint32_t VQ6192_Base_SetMacClkSel(uint32_t chip, uint32_t sel);
VQ6192_API uint32_t VQ6192_Base_GetMacClkSel(uint32_t chip, uint32_t *sel);
VQ6192_API uint32_t VQ6192_Base_SetClkDetectSel(uint32_t chip, uint32_t sel);
VQ6192_API uint32_t VQ6192_Base_GetClkDetectSel(uint32_t chip, uint32_t *sel);

/* Diagnostic commands over the health operations: each writes a report into a 48128-byte text
 * buffer (buf, last) and returns the status of the operation it wraps. */
VQ6192_API uint32_t getversion(uint32_t chip, char *buf);
VQ6192_API uint32_t getchipstatus(uint32_t chip, char *buf);
VQ6192_API uint32_t getpllpowerdown(uint32_t chip, uint32_t pll, char *buf);
VQ6192_API uint32_t getddrfifostats(uint32_t chip, char *buf);
VQ6192_API uint32_t getddrcntstats(uint32_t chip, char *buf);
VQ6192_API uint32_t getddrteststats(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdstxclksel(uint32_t chip, char *buf);
VQ6192_API uint32_t gete3outclksel(uint32_t chip, char *buf);
VQ6192_API uint32_t getmacclksel(uint32_t chip, char *buf);
VQ6192_API uint32_t getclkdetectsel(uint32_t chip, char *buf);
VQ6192_API uint32_t getdieid(uint32_t chip, char *buf);
VQ6192_API uint32_t getsrvpowerdownen(uint32_t chip, char *buf);
VQ6192_API uint32_t getsrvpdstat(uint32_t chip, char *buf);

/* ==== Interrupt control (module INT) ============================================================ */

/* Top-level interrupt sources (one-hot ids). */
#define VQ6192_INT_SRC_PMU 1u
#define VQ6192_INT_SRC_MP 2u
#define VQ6192_INT_SRC_ATM0 4u
#define VQ6192_INT_SRC_ATM1 8u
#define VQ6192_INT_SRC_LOCAL 128u
#define VQ6192_INT_SRC_BOUND 257u

/* Bare result of VQ6192_INT_GetCesTrInt when no instance is pending. */
#define VQ6192_INT_CES_TR_NONE 4u
/* Kinds of VQ6192_INT_GetCesTrIntStat. */
#define VQ6192_INT_CES_TR_KIND_BIT2 7u
#define VQ6192_INT_CES_TR_KIND_BIT3 8u
#define VQ6192_INT_CES_TR_KIND_BIT0 9u
/* Instance / channel argument meaning "all". */
#define VQ6192_INT_ALL 0xFFFFFFFFu

VQ6192_API uint32_t VQ6192_INT_SetIntActiveMode(uint32_t chip, uint32_t a, uint32_t b);
VQ6192_API uint32_t VQ6192_INT_GetIntActiveMode(uint32_t chip, uint32_t *a, uint32_t *b);
VQ6192_API uint32_t VQ6192_INT_SetIntEnable(uint32_t chip, uint32_t id, uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_GetIntEnable(uint32_t chip, uint32_t id, uint16_t *out);
VQ6192_API uint32_t VQ6192_INT_SetIntMode(uint32_t chip, uint32_t id, uint32_t mode);
VQ6192_API uint32_t VQ6192_INT_GetIntFlag(uint32_t chip, uint32_t id, uint32_t sub, uint32_t clear,
                                          uint16_t *out);
VQ6192_API uint32_t VQ6192_INT_GetIntAlm(uint32_t chip, uint32_t id, uint32_t sub, uint16_t *out);
VQ6192_API uint32_t VQ6192_INT_GetLocIntFlag(uint32_t chip, uint32_t unused, uint32_t clear, uint16_t out[5]);
VQ6192_API uint32_t VQ6192_INT_GetIntIndex(uint32_t chip, uint16_t *out);
VQ6192_API uint32_t VQ6192_INT_SetPmuIntEn(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_SetMpIntEn(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_GetPmuInt(uint32_t chip, uint16_t *out, uint32_t clear);
VQ6192_API uint32_t VQ6192_INT_GetMpInt(uint32_t chip, uint16_t *out, uint32_t clear);
VQ6192_API uint32_t VQ6192_INT_SetAtmIntEn(uint32_t chip, uint32_t en0, uint32_t en1);
VQ6192_API uint32_t VQ6192_INT_GetAtmInt(uint32_t chip, uint16_t *f0, uint16_t *f1, uint32_t clear);
VQ6192_API uint32_t VQ6192_INT_SetCesTrIntEn(uint32_t chip, uint32_t instance, uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_GetCesTrInt(uint32_t chip, uint16_t *instance, uint16_t *f3, uint16_t *f2,
                                           uint16_t *f0, uint32_t clear);
VQ6192_API uint32_t VQ6192_INT_GetCesTrIntStat(uint32_t chip, uint32_t instance, uint32_t kind,
                                               uint32_t latched, uint8_t *out, uint32_t clear);
VQ6192_API uint32_t VQ6192_INT_SetCesIntEn(uint32_t chip, uint32_t channel, uint32_t en, uint32_t en2,
                                           uint32_t en3);
VQ6192_API uint32_t VQ6192_INT_GetCESIntStat(uint32_t chip, uint32_t channel, uint32_t type, uint32_t latched,
                                             uint8_t *out, uint32_t clear);
VQ6192_API uint32_t VQ6192_INT_SetE1MapRfpIntEn(uint32_t chip, uint32_t a, uint32_t b);
VQ6192_API uint32_t VQ6192_INT_GetE1MapRfpInt(uint32_t chip, uint16_t *f1, uint16_t *f2, uint32_t select);
VQ6192_API uint32_t VQ6192_INT_SetE1MapLpIntEn(uint32_t chip, uint32_t type, uint32_t group, uint32_t index,
                                               uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_GetE1MapLpInt(uint32_t chip, uint32_t type, uint32_t index, uint16_t *f1,
                                             uint16_t *f0);
VQ6192_API uint32_t VQ6192_INT_SetE1MapHpIntEn(uint32_t chip, uint32_t kind, uint32_t index, uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_GetE1MapHpInt(uint32_t chip, uint32_t index, uint16_t *f3, uint16_t *f2);
VQ6192_API uint32_t VQ6192_INT_SetHtbWarmIntEn(uint32_t chip, uint32_t a, uint32_t b);
VQ6192_API uint32_t VQ6192_INT_GetHtbWarmInt(uint32_t chip, uint16_t *a, uint16_t *b);
VQ6192_API uint32_t VQ6192_INT_SetHtbB2sfIntEn(uint32_t chip, uint32_t a, uint32_t b);
VQ6192_API uint32_t VQ6192_INT_GetHtbB2sfInt(uint32_t chip, uint16_t *a, uint16_t *b);
VQ6192_API uint32_t VQ6192_INT_SetET3IntEn(uint32_t chip, uint32_t port, uint32_t kind, uint32_t enable);
VQ6192_API uint32_t VQ6192_INT_GetET3Int(uint32_t chip, uint32_t port, uint32_t kind, uint8_t *out);
VQ6192_API uint32_t VQ6192_INT_GetE1MapIntIndex(uint32_t chip, uint16_t *out);

VQ6192_EXTERN_C_END

#endif /* VQ6192_CHIP_H */
