/* VQ6192 driver SDK: SDH/SONET line mode, AU-3/TUG-3 mapping, tributary numbering and mapper loopbacks.
 * C-compatible.
 *
 * Four VC-4 slots (0..3), three AU-3/TUG-3 slots each (0..2); AU-3 index = 3 * VC-4 + AU-3 (0..11).
 * A 2 Mbit/s or 1.5 Mbit/s tributary has four numbers: the internal E1 number (0..335), the register
 * channel (VC-4, TUG-3, r = 7 * TU + TUG-2), the standard K-L-M number (VC-4, TUG-3, TUG-2, TU) and
 * the hardware channel (VC-4, h = 21 * TU + 3 * TUG-2 + TUG-3). */
#ifndef VQ6192_SDH_H
#define VQ6192_SDH_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

#define VQ6192_SDH_VC4_NUM 4u
#define VQ6192_SDH_AU3_NUM 3u        /* per VC-4 */
#define VQ6192_SDH_AU3_INDEX_NUM 12u /* 3 * VC-4 + AU-3 */
#define VQ6192_SDH_E1_NUM 336u       /* internal E1 numbers 0..335 */
#define VQ6192_SDH_MAP_TYPE_NUM 14u  /* map types 0..13 */
#define VQ6192_SDH_MAP_CFG_COLUMNS 20u

/* Line mode. */
#define VQ6192_SDH_MODE_SDH 0u
#define VQ6192_SDH_MODE_SONET 1u

/* Map types of an AU-3/TUG-3 slot. */
typedef enum {
    SDHSONET_MAP_VC4_BYPASS = 0,
    SDHSONET_MAP_C4_BYPASS = 1,
    CKD_FE_SDHSONET_MAP_HTB_E1 = 2,
    CKD_FE_SDHSONET_MAP_HTB_T1 = 3,
    CKD_FE_SDHSONET_MAP_LIU_E3 = 4,
    CKD_FE_SDHSONET_MAP_LIU_DS3 = 5,
    CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4 = 6,
    CKD_FE_SDHSONET_MAP_DS1_VC11VC12TU12TUG3_AU4 = 7,
    CKD_FE_SDHSONET_MAP_DS1_E1VC1TU12TUG3_AU4 = 8,
    CKD_FE_SDHSONET_MAP_E3_VC3TUG3_AU4 = 9,
    CKD_FE_SDHSONET_MAP_DS3_VC3TUG3_AU4 = 10,
    CKD_FE_SDHSONET_MAP_E1_VT3_STS1 = 11,
    CKD_FE_SDHSONET_MAP_DS1_VT15_STS1 = 12,
    CKD_FE_SDHSONET_MAP_DS3_STS1SPE_STS1 = 13,
    NULL_MAP_PATH = 14
} VQ6192_SDH_MAP_TYPE_E;

/* Map configuration of VC-4 0 and of VC-4s 1..3: row = map type, column = register field
 * (0xFFFF: left alone / not checked). */
VQ6192_API extern const uint16_t g_aausVQ6192SDHMapCfg0[VQ6192_SDH_MAP_TYPE_NUM][VQ6192_SDH_MAP_CFG_COLUMNS];
VQ6192_API extern const uint16_t g_aausVQ6192SDHMapCfg123[VQ6192_SDH_MAP_TYPE_NUM]
                                                         [VQ6192_SDH_MAP_CFG_COLUMNS];
/* Register channel r of TUG-3 0 to hardware channel: 3 * r. */
VQ6192_API extern const uint32_t g_aulVQ6192InterE1no2HwnoPerTug3[28];

/* Line mode and mapping. */
VQ6192_API uint32_t VQ6192_SDH_SetSDHSonetMode(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetSDHSonetMode(uint32_t chip, uint8_t *mode);
VQ6192_API uint32_t VQ6192_SDH_SetSDHMap(uint32_t chip, uint32_t vc4, uint32_t au3, uint32_t mapType);
VQ6192_API uint32_t VQ6192_SDH_GetSDHMap(uint32_t chip, uint32_t vc4, uint32_t au3, uint8_t *mapType);

/* Mapper loopbacks (loop points 0..4, loop mode 0 none, 1 bit A, 2 bit B) and switches. */
VQ6192_API uint32_t VQ6192_SDH_SetSDHLoop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3,
                                          uint32_t loopMode);
VQ6192_API uint32_t VQ6192_SDH_GetSDHLoop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3,
                                          uint8_t *loopState);
VQ6192_API uint32_t VQ6192_SDH_SetMapLoopCfg(uint32_t chip, uint32_t sdhSonetLbMode, uint32_t mapAisLbIns,
                                             uint32_t mapLbEn);
VQ6192_API uint32_t VQ6192_SDH_GetMapLoopCfg(uint32_t chip, uint8_t *sdhSonetLbMode, uint8_t *mapAisLbIns,
                                             uint8_t *mapLbEn);
VQ6192_API uint32_t VQ6192_SDH_SetDS3RxFifoRst(uint32_t chip, uint32_t vc4, uint32_t enable);

/* Tributary numbering. */
VQ6192_API uint32_t VQ6192_SDH_InterE1Chno2RegChno(uint32_t chip, uint32_t e1, uint32_t *vc4, uint32_t *tug3,
                                                   uint32_t *reg);
VQ6192_API uint32_t VQ6192_SDH_RegChno2InterE1Chno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t reg,
                                                   uint32_t *e1);
VQ6192_API uint32_t VQ6192_SDH_InterE1Chno2HWChno(uint32_t chip, uint32_t e1, uint32_t *vc4, uint32_t *hw);
VQ6192_API uint32_t VQ6192_SDH_HWChno2InterE1Chno(uint32_t chip, uint32_t vc4, uint32_t hw, uint32_t *e1);
VQ6192_API uint32_t VQ6192_SDH_InterE1Chno2Standardno(uint32_t chip, uint32_t e1, uint32_t *vc4,
                                                      uint32_t *tug3, uint32_t *tug2, uint32_t *tu);
VQ6192_API uint32_t VQ6192_SDH_Standardno2InterE1Chno(uint32_t chip, uint32_t vc4, uint32_t tug3,
                                                      uint32_t tug2, uint32_t tu, uint32_t *e1);
VQ6192_API uint32_t VQ6192_SDH_RegChno2Standardno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t reg,
                                                  uint32_t *outVc4, uint32_t *outTug3, uint32_t *tug2,
                                                  uint32_t *tu);
VQ6192_API uint32_t VQ6192_SDH_Standardno2RegChno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tug2,
                                                  uint32_t tu, uint32_t *outVc4, uint32_t *outTug3,
                                                  uint32_t *reg);
VQ6192_API uint32_t VQ6192_SDH_HWChno2Standardno(uint32_t chip, uint32_t vc4, uint32_t hw, uint32_t *outVc4,
                                                 uint32_t *tug3, uint32_t *tug2, uint32_t *tu);
VQ6192_API uint32_t VQ6192_SDH_Standardno2HWChno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tug2,
                                                 uint32_t tu, uint32_t *outVc4, uint32_t *hw);
VQ6192_API uint32_t VQ6192_SDH_HWChno2RegChno(uint32_t chip, uint32_t vc4, uint32_t hw, uint32_t *outVc4,
                                              uint32_t *tug3, uint32_t *reg);
VQ6192_API uint32_t VQ6192_SDH_RegChnoHWChno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t reg,
                                             uint32_t *outVc4, uint32_t *hw);

/* ---- Path overhead, alarms and counters -------------------------------------------------------------
 * v: VC-4 0..3; k: AU-3/TUG-3 0..2; t: tributary within the TUG-3 0..27; high-order block n = v + 4 * k
 * (0..11). Low-order channel of VC-4 v: 32 * k + t (the VC-3 of a TUG-3 is 32 * k). Traces are 16 bytes
 * (mode 0, or mode 1 with the trace CRC-7 in the first byte) or 64 bytes (mode 2). Directions: 0 ingress,
 * 1 egress, 2 both. */

#define VQ6192_SDH_TRACE_SHORT 16u
#define VQ6192_SDH_TRACE_LONG 64u
#define VQ6192_SDH_LP_ALARM_NUM 13u

/* Transmit high-order path. */
VQ6192_API uint32_t VQ6192_SDH_SetTxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint32_t value,
                                           uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetTxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint8_t *value,
                                           uint8_t *mode);
VQ6192_API uint32_t VQ6192_SDH_SetTxHpJ1(uint32_t chip, uint32_t vc4, uint32_t j1Mode, const uint8_t *msg,
                                         uint32_t byPass);
VQ6192_API uint32_t VQ6192_SDH_GetTxHpJ1(uint32_t chip, uint32_t vc4, uint8_t *j1Mode, uint8_t *msg,
                                         uint8_t *byPass);
VQ6192_API uint32_t VQ6192_SDH_SetTxHpB3Err(uint32_t chip, uint32_t vc4, uint32_t value, uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetTxHpB3Err(uint32_t chip, uint32_t vc4, uint8_t *value, uint8_t *mode);
VQ6192_API uint32_t VQ6192_SDH_SetTxHpPtrYFInsSel(uint32_t chip, uint32_t vc4, uint32_t yySel,
                                                  uint32_t ffSel);
VQ6192_API uint32_t VQ6192_SDH_GetTxHpPtrYFInsSel(uint32_t chip, uint32_t vc4, uint8_t *yySel,
                                                  uint8_t *ffSel);
VQ6192_API uint32_t VQ6192_SDH_SetTxHpPtrSSInsVal(uint32_t chip, uint32_t vc4, uint32_t ss);
VQ6192_API uint32_t VQ6192_SDH_GetTxHpPtrSSInsVal(uint32_t chip, uint32_t vc4, uint8_t *ss);

/* Receive high-order path. The received bytes and traces are read 50 ticks after selecting the VC-4. */
VQ6192_API uint32_t VQ6192_SDH_GetRxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_GetRxHpJ1(uint32_t chip, uint32_t vc4, uint8_t *j1Mode, uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_SetRxHpRst(uint32_t chip, uint32_t vc4, uint32_t rst);
VQ6192_API uint32_t VQ6192_SDH_GetRxHpRst(uint32_t chip, uint32_t vc4, uint8_t *rst);
VQ6192_API uint32_t VQ6192_SDH_SetHpLomAisEn(uint32_t chip, uint32_t vc4, uint32_t en);
VQ6192_API uint32_t VQ6192_SDH_GetHpLomAisEn(uint32_t chip, uint32_t vc4, uint8_t *en);
VQ6192_API uint32_t VQ6192_SDH_SetHpLomIntMsk(uint32_t chip, uint32_t hpNo, uint32_t msk);
VQ6192_API uint32_t VQ6192_SDH_GetHpLomIntMsk(uint32_t chip, uint32_t hpNo, uint8_t *msk);
VQ6192_API uint32_t VQ6192_SDH_SetHpLomMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_SDH_GetHpLomMsk(uint32_t chip, uint8_t *msk);
VQ6192_API uint32_t VQ6192_SDH_SetLpAlmMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_SDH_GetLpAlmMsk(uint32_t chip, uint8_t *msk);
VQ6192_API uint32_t VQ6192_SDH_GetHpAlms(uint32_t chip, uint32_t vc4, uint8_t *oomHis, uint8_t *lomHis,
                                         uint8_t *lomCur);
VQ6192_API uint32_t VQ6192_SDH_GetRxHpB3Cnt(uint32_t chip, uint32_t vc4, uint8_t *flag, uint8_t *count);

/* Low-order paths, transmit. Byte types of a VC-3: 0 C2, 1 F2, 2 F3, 3 H4, 4 K3, 5 N1, 6 G1, 7 B3. */
VQ6192_API uint32_t VQ6192_SDH_SetTxLpByte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType,
                                           uint32_t mode, uint32_t value);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpByte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType,
                                           uint8_t *mode, uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpB3(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                         uint32_t value);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpB3(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpG1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                         uint32_t value);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpG1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                         const uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t mode, const uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t mode, uint32_t value);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *mode, uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpK4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t mode, uint32_t value);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpK4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *mode, uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpN2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t value);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpN2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpB3Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t value,
                                            uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpB3Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *value,
                                            uint8_t *mode);
VQ6192_API uint32_t VQ6192_SDH_SetTxLpV5Bip2Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                uint32_t value, uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetTxLpV5Bip2Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                uint8_t *byB2, uint8_t *byB2Mode);

/* Low-order paths, receive and both directions. */
VQ6192_API uint32_t VQ6192_SDH_GetRxLpVc3Byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType,
                                              uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpVc12Byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint32_t byteType, uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *value);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *mode, uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                               const uint8_t *msg);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                               uint8_t *crc, uint8_t *sum, uint16_t *last);
VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               const uint8_t *msg, uint32_t ignored);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint8_t *crc, uint8_t *sum);
VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldC2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t c2);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldC2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *c2);
VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldV5SgnlLbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                      uint32_t label);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldV5SgnlLbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                      uint8_t *label);
VQ6192_API uint32_t VQ6192_SDH_SetLpReiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                            uint32_t dir, uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetLpReiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                            uint8_t *ingress, uint8_t *egress);
VQ6192_API uint32_t VQ6192_SDH_SetVc12ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint32_t dir, uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetVc12ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint8_t *ingress, uint8_t *egress);
VQ6192_API uint32_t VQ6192_SDH_SetVc3ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode);
VQ6192_API uint32_t VQ6192_SDH_GetVc3ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode);
VQ6192_API uint32_t VQ6192_SDH_SetSdhLpTranInsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                  uint32_t type, uint32_t en);
VQ6192_API uint32_t VQ6192_SDH_GetSdhLpTranInsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                  uint32_t type, uint8_t *en);
VQ6192_API uint32_t VQ6192_SDH_SetTuAisIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint32_t msk);
VQ6192_API uint32_t VQ6192_SDH_GetTuAisIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint8_t *msk);
VQ6192_API uint32_t VQ6192_SDH_SetTuLopIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint32_t msk);
VQ6192_API uint32_t VQ6192_SDH_GetTuLopIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint8_t *msk);
VQ6192_API uint32_t VQ6192_SDH_SetRxLpRst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                          uint32_t rst);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpRst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                          uint8_t *rst);
/* alarms[13]: RFI, PDI, SDI, RDI, CDI, VC-AIS, PLM, UNEQ, TIM histories, TU-AIS current and history,
 * TU-LOP current and history. */
VQ6192_API uint32_t VQ6192_SDH_GetLpAlms(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *alarms);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpB3B2Cnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint16_t *count);
VQ6192_API uint32_t VQ6192_SDH_GetRxLpReiCnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                             uint8_t *count);
VQ6192_API uint32_t VQ6192_SDH_GetLpPointAdjust(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                uint16_t *adjustA, uint16_t *adjustB, uint16_t *adjustC);

/* Chip-wide controls and the mapper FIFOs. */
VQ6192_API uint32_t VQ6192_SDH_SetVc4TuAisInsEn(uint32_t chip, uint32_t vc4, uint32_t en);
VQ6192_API uint32_t VQ6192_SDH_GetVc4TuAisInsEn(uint32_t chip, uint32_t vc4, uint8_t *en);
VQ6192_API uint32_t VQ6192_SDH_SetSONETB3ChkMode(uint32_t chip, uint32_t off);
VQ6192_API uint32_t VQ6192_SDH_GetSONETB3ChkMode(uint32_t chip, uint8_t *off);
VQ6192_API uint32_t VQ6192_SDH_SetOdLpSsCfg(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_SDH_GetOdLpSsCfg(uint32_t chip, uint8_t *en);
VQ6192_API uint32_t VQ6192_SDH_SetFltAlarmNum(uint32_t chip, uint32_t type, uint32_t num);
VQ6192_API uint32_t VQ6192_SDH_GetFltAlarmNum(uint32_t chip, uint32_t type, uint8_t *num);
/* alarms[4]: overflow, underflow, overflow history, underflow history. */
VQ6192_API uint32_t VQ6192_SDH_GetSDHET1FifoAlm(uint32_t chip, uint32_t e1, uint8_t *alarms);
/* alarms[2]: overflow, underflow. */
VQ6192_API uint32_t VQ6192_SDH_GetSDHET3FifoAlm(uint32_t chip, uint32_t e3, uint8_t *alarms);

/* Trace CRC-7 (x^7 + x^3 + 1) over len bytes, returned with bit 7 set: the trace's first byte. With
 * useFirst 0 the first byte counts as 0x80. */
VQ6192_API uint8_t VQ6192_SDH_GetCRC7(uint32_t chip, const uint8_t *buf, uint8_t len, uint32_t useFirst);

/* ---- Telecom bus (one port per VC-4, 0..3); status codes of the SDH module ------------------------- */

VQ6192_API uint32_t VQ6192_Telecom_SetTeleRst(uint32_t chip, uint32_t value);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRst(uint32_t chip, uint8_t *value);
VQ6192_API uint32_t VQ6192_Telecom_SetFpFifoRead(uint32_t chip, uint32_t phase);
VQ6192_API uint32_t VQ6192_Telecom_GetFpFifoRead(uint32_t chip, uint16_t *phase);
VQ6192_API uint32_t VQ6192_Telecom_SetFpJitterMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetFpJitterMsk(uint32_t chip, uint16_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetFpLosMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetFpLosMsk(uint32_t chip, uint16_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetFpErrMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetFpErrMsk(uint32_t chip, uint16_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetClkLocMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetClkLocMsk(uint32_t chip, uint16_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetIntGlbMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetIntGlbMsk(uint32_t chip, uint16_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetIntPortMsk(uint32_t chip, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetIntPortMsk(uint32_t chip, uint16_t *msk);
/* Edge types 0 (receive clock), 1, 2; edge 0 rising, 1 falling. */
VQ6192_API uint32_t VQ6192_Telecom_SetTeleClkEdge(uint32_t chip, uint32_t edgeType, uint32_t edge);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleClkEdge(uint32_t chip, uint32_t edgeType, uint16_t *edge);
VQ6192_API uint32_t VQ6192_Telecom_SetRstPort(uint32_t chip, uint32_t rst);
VQ6192_API uint32_t VQ6192_Telecom_GetRstPort(uint32_t chip, uint16_t *rst);
VQ6192_API uint32_t VQ6192_Telecom_SetTeleTxB2Ins(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleTxB2Ins(uint32_t chip, uint16_t *en);
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxB2Mod(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxB2Mod(uint32_t chip, uint16_t *mode);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleFpLos(uint32_t chip, uint8_t *jitter, uint8_t *los,
                                                uint8_t *fifoErr, uint8_t *clkLoc);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleFpLosHis(uint32_t chip, uint8_t *jitter, uint8_t *los,
                                                   uint8_t *fifoErr, uint8_t *clkLoc);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleFpDisvalue(uint32_t chip, uint16_t *value);
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxFifoErrMsk(uint32_t chip, uint32_t port, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxFifoErrMsk(uint32_t chip, uint32_t port, uint8_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxB2OFMsk(uint32_t chip, uint32_t port, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxB2OFMsk(uint32_t chip, uint32_t port, uint8_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxC1ErrMsk(uint32_t chip, uint32_t port, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxC1ErrMsk(uint32_t chip, uint32_t port, uint8_t *msk);
/* pair 0: the C1/J1/SPE lines of VC-4s 0 and 1; pair 1: VC-4s 2 and 3. */
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxC1J1AllMsk(uint32_t chip, uint32_t pair, uint32_t msk);
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxC1J1AllMsk(uint32_t chip, uint32_t pair, uint8_t *msk);
VQ6192_API uint32_t VQ6192_Telecom_GetB2C1j1speErr(uint32_t chip, uint32_t port, uint8_t *fifoErr,
                                                   uint8_t *b2Of, uint8_t *c1Err, uint8_t *c1j1Spe);
VQ6192_API uint32_t VQ6192_Telecom_GetB2C1j1speErrHis(uint32_t chip, uint32_t port, uint8_t *fifoErr,
                                                      uint8_t *b2Of, uint8_t *c1Err, uint8_t *c1j1Spe);
/* The chip clears a port's receive B2 counter when it is read. */
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxB2Cnt(uint32_t chip, uint32_t port, uint16_t *count);

/* ---- SA bits, TU-AIS and the SAM block (per internal E1 number 0..335; status module SAM) ------------ */

VQ6192_API uint32_t VQ6192_SAM_InitSam(uint32_t chip, uint32_t initType);
VQ6192_API uint32_t VQ6192_SAM_ResetSam(uint32_t chip);
VQ6192_API uint32_t VQ6192_SAM_SetSamGlbTuaisEn(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_SAM_SetSamChnTuaisEn(uint32_t chip, uint32_t e1, uint32_t en);
VQ6192_API uint32_t VQ6192_SAM_SetSamHdlcSel(uint32_t chip, uint32_t sel);
VQ6192_API uint32_t VQ6192_SAM_SetSamFthEn(uint32_t chip, uint32_t e1, uint32_t enA, uint32_t saEn);
VQ6192_API uint32_t VQ6192_SAM_SetSamFthMod(uint32_t chip, uint32_t e1, uint32_t mode);
VQ6192_API uint32_t VQ6192_SAM_SetSamInsEn(uint32_t chip, uint32_t e1, uint32_t enA, uint32_t saEn);
VQ6192_API uint32_t VQ6192_SAM_SetSamInsMod(uint32_t chip, uint32_t e1, uint32_t mode);
/* bitPos 0..3: the message bit whose Sa8..Sa4 (five bits) are inserted or read. */
VQ6192_API uint32_t VQ6192_SAM_SetSaBitInsert(uint32_t chip, uint32_t e1, uint32_t bitPos, uint32_t saBits,
                                              uint32_t insEn);
VQ6192_API uint32_t VQ6192_SAM_GetSaBitValue(uint32_t chip, uint32_t e1, uint32_t bitPos, uint32_t *saBits,
                                             uint32_t fthEn);
VQ6192_API uint32_t VQ6192_SAM_GetSamCnt(uint32_t chip, uint32_t e1, uint32_t *cnt0, uint32_t *cnt1,
                                         uint32_t *cnt2, uint32_t *cnt3);
VQ6192_API uint32_t VQ6192_SAM_GetSamMpiAisWarn(uint32_t chip, uint32_t e1, uint32_t *warn1, uint32_t *warn0);
/* flags[i] = bit 12 - i of the SRAM soft-error register. */
VQ6192_API uint32_t VQ6192_SAM_GetSamSramSoftErr(uint32_t chip, uint32_t *flags);

/* ---- Diagnostic commands of the SDH and telecom bus family ------------------------------------------
 * Each writes a report into buf (48128 bytes) and returns the low 16 bits of the operation's status; a
 * null buffer prints nothing and returns 0. The _h commands write a help block and return 0. */
VQ6192_API uint32_t getsdhsonetmode(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdhsonetmode_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdhloop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3, char *buf);
VQ6192_API uint32_t getsdhloop_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxhpbyte(uint32_t chip, uint32_t vc4, uint32_t byteType, char *buf);
VQ6192_API uint32_t gettxhpbyte_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxhpbyte(uint32_t chip, uint32_t vc4, uint32_t byteType, char *buf);
VQ6192_API uint32_t getrxhpbyte_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxhpb3err(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gettxhpb3err_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpbyte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType, char *buf);
VQ6192_API uint32_t gettxlpbyte_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpvc3byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType, char *buf);
VQ6192_API uint32_t getrxlpvc3byte_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpshouldc2(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t getrxlpshouldc2_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpshouldj1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t getrxlpshouldj1_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpb3err(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t gettxlpb3err_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpshouldj2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getrxlpshouldj2_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpv5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettxlpv5_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpv5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getrxlpv5_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpshouldv5sgnllbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                           char *buf);
VQ6192_API uint32_t getrxlpshouldv5sgnllbl_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpk4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettxlpk4_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpn2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettxlpn2_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpvc12byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                    uint32_t byteType, char *buf);
VQ6192_API uint32_t getrxlpvc12byte_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpv5bip2err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettxlpv5bip2err_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getlpreimode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getlpreimode_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getvc3erdimode(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t getvc3erdimode_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getvc12erdimode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getvc12erdimode_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gethplomaisen(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gethplomaisen_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getfltalarmnum(uint32_t chip, uint32_t type, char *buf);
VQ6192_API uint32_t getfltalarmnum_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdhlptraninsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint32_t type,
                                       char *buf);
VQ6192_API uint32_t getsdhlptraninsert_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gethplommsk(uint32_t chip, char *buf);
VQ6192_API uint32_t gethplommsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getlpalmmsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getlpalmmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gethplomintmsk(uint32_t chip, uint32_t hpNo, char *buf);
VQ6192_API uint32_t gethplomintmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettuaisintmsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettuaisintmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettulopintmsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettulopintmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxhprst(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t getrxhprst_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlprst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getrxlprst_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxhpptryfinssel(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gettxhpptryfinssel_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxhpptrssinsval(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gettxhpptrssinsval_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpb3b2cnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getrxlpb3b2cnt_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getvc4tuaisinsen(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t getsonetb3chkmode(uint32_t chip, char *buf);
VQ6192_API uint32_t getmaploopcfg(uint32_t chip, char *buf);
VQ6192_API uint32_t getodlpsscfg(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxhpb3cnt(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t getrxhpb3cnt_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpreicnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getrxlpreicnt_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gethpalms(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gethpalms_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpg1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t gettxlpg1_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpb3(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t gettxlpb3_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerst(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerst_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getfpfiforead(uint32_t chip, char *buf);
VQ6192_API uint32_t getfpfiforead_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getfpjittermsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getfpjittermsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getfplosmsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getfplosmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getfperrmsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getfperrmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getclklocmsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getclklocmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getintglbmsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getintglbmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getintportmsk(uint32_t chip, char *buf);
VQ6192_API uint32_t getintportmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getteleclkedge(uint32_t chip, uint32_t edgeType, char *buf);
VQ6192_API uint32_t getteleclkedge_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrstport(uint32_t chip, char *buf);
VQ6192_API uint32_t getrstport_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getteletxb2ins(uint32_t chip, char *buf);
VQ6192_API uint32_t getteletxb2ins_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxb2mod(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxb2mod_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelefploshis(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelefploshis_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelefplos(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelefplos_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelefpdisvalue(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelefpdisvalue_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxfifoerrmsk(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t gettelerxfifoerrmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxb2ofmsk(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t gettelerxb2ofmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxc1errmsk(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t gettelerxc1errmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxc1j1allmsk(uint32_t chip, uint32_t pair, char *buf);
VQ6192_API uint32_t gettelerxc1j1allmsk_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getb2c1j1speerrhis(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t gettelerxc1j1allerrhis_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getb2c1j1speerrhis_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getb2c1j1speerr(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t gettelerxc1j1allerr_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getb2c1j1speerr_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettelerxb2cnt(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t gettelerxb2cnt_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdhmap(uint32_t chip, uint32_t vc4, uint32_t au3, char *buf);
VQ6192_API uint32_t getsdhmaps(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxhpj1(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gettxhpj1_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxhpj1(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t getrxhpj1_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpj1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t gettxlpj1_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpj1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf);
VQ6192_API uint32_t getrxlpj1_h(uint32_t chip, char *buf);
VQ6192_API uint32_t gettxlpj2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t gettxlpj2_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getrxlpj2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getrxlpj2_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getlpalms(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf);
VQ6192_API uint32_t getlpalmhis_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getlpalms_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdhe1fifoalm(uint32_t chip, uint32_t e1, char *buf);
VQ6192_API uint32_t getsdhe1fifoalm_h(uint32_t chip, char *buf);
VQ6192_API uint32_t getsdhe3fifoalm(uint32_t chip, uint32_t e3, char *buf);
VQ6192_API uint32_t getsdhe3fifoalm_h(uint32_t chip, char *buf);

VQ6192_EXTERN_C_END

#endif /* VQ6192_SDH_H */
