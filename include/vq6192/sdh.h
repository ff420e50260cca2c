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

VQ6192_EXTERN_C_END

#endif /* VQ6192_SDH_H */
