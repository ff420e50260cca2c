/* VQ6192 driver SDK: E1/T1 and E3/T3 framers. C-compatible.
 *
 * One E1/T1 framer per tributary (internal E1 number 0..335) and one E3/T3 framer per AU-3 slot
 * (0..11). Framer status codes carry module number 14; error 1 parameter, 4 a sub-operation failed,
 * 7 inconsistent state; the framer's trace lines print under module FRM (15). */
#ifndef VQ6192_FRAMER_H
#define VQ6192_FRAMER_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* TDM mode. */
#define VQ6192_BASE_TDM_E1 0u
#define VQ6192_BASE_TDM_T1 1u

#define VQ6192_FRM_E1_NUM 336u
#define VQ6192_FRM_E3_NUM 12u

/* E1/T1 alarm bits of a channel's ingress status word. */
#define VQ6192_FRAMER_RAI 0x1u
#define VQ6192_FRAMER_AIS 0x2u
#define VQ6192_FRAMER_MFOOF 0x4u
#define VQ6192_FRAMER_BFOOF 0x8u

/* E1/T1 counter types. */
typedef enum { VQ6192_FRM_CRCERR = 0, VQ6192_FRM_FERR = 1, VQ6192_FRM_FEBE = 2 } VQ6192_FRM_CNT_TYPE_E;

/* E3/T3 alarms: 1 = alarm; Cur current state, His latched history. */
typedef struct {
    uint8_t ucET3aLosAlarmCur;
    uint8_t ucET3aAll0AlarmCur;
    uint8_t ucET3aAll1AlarmCur;
    uint8_t ucET3aLocAlarmCur;
    uint8_t ucET3aSyncfoAlarmHis;
    uint8_t ucET3aSyncfuAlarmHis;
    uint8_t ucET3aLosAlarmHis;
    uint8_t ucET3aAll0AlarmHis;
    uint8_t ucET3aAll1AlarmHis;
    uint8_t ucET3aLocAlarmHis;
    uint8_t ucE3AAll0AlarmHis;
    uint8_t ucE3AAisAlarmHis;
    uint8_t ucE3AOofAlarmHis;
    uint8_t ucE3ARaiAlarmHis;
    uint8_t ucE3DAll0AlarmHis;
    uint8_t ucE3DAisAlarmHis;
    uint8_t ucE3DOofAlarmHis;
    uint8_t ucE3DRaiAlarmHis;
    uint8_t ucT3ARdiAlarmHis;
    uint8_t ucT3AAll0AlarmHis;
    uint8_t ucT3AAll1AlarmHis;
    uint8_t ucT3AAisAlarmHis;
    uint8_t ucT3AIdleAlarmHis;
    uint8_t ucT3AOofAlarmHis;
    uint8_t ucT3ALofAlarmHis;
    uint8_t ucT3DRdiAlarmHis;
    uint8_t ucT3DAll0AlarmHis;
    uint8_t ucT3DAll1AlarmHis;
    uint8_t ucT3DAisAlarmHis;
    uint8_t ucT3DIdleAlarmHis;
    uint8_t ucT3DOofAlarmHis;
    uint8_t ucT3DLofAlarmHis;
} VQ6192_FRM_ET3_ALARM_S;

/* E3/T3 error counters. */
typedef struct {
    uint16_t usAT3Ferrcnt;
    uint16_t usAT3Merrcnt;
    uint16_t usAT3Pcnt;
    uint16_t usAT3Cpcnt;
    uint16_t usAT3Febecnt;
    uint16_t usDT3Ferrcnt;
    uint16_t usDT3Merrcnt;
    uint16_t usDT3Pcnt;
    uint16_t usDT3Cpcnt;
    uint16_t usDT3Febecnt;
} VQ6192_FRM_T3_ERR_S;

/* The H1 Y Y H2 F F H3 H3 H3 bytes of the transmitted AU-4 pointer row. */
typedef struct {
    uint8_t ucH1;
    uint8_t ucY_1;
    uint8_t ucY_2;
    uint8_t ucH2;
    uint8_t ucF_1;
    uint8_t ucF_2;
    uint8_t ucH3_1;
    uint8_t ucH3_2;
    uint8_t ucH3_3;
} VQ6192_SDH_AU_PTR_S;

/* Modes and channels. dir: 0 ingress, 1 egress, 2 both. */
VQ6192_API uint32_t VQ6192_Framer_SetFrmTDMMode(uint32_t chip, uint32_t tdmMode);
VQ6192_API uint32_t VQ6192_Framer_GetFrmTDMMode(uint32_t chip, uint32_t *tdmMode);
VQ6192_API uint32_t VQ6192_Framer_SetFrmMode(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t frmMode);
VQ6192_API uint32_t VQ6192_Framer_GetFrmMode(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t *frmMode);
VQ6192_API uint32_t VQ6192_Framer_ReFrmFrame(uint32_t chip, uint32_t e1);
VQ6192_API uint32_t VQ6192_Framer_ReSetFrmChnl(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t reset);
VQ6192_API uint32_t VQ6192_Framer_ReSetFrmChnlStd(uint32_t chip, uint32_t ignored, uint32_t vc4,
                                                  uint32_t tug3, uint32_t tug2, uint32_t tu, uint32_t dir,
                                                  uint32_t reset);
VQ6192_API uint16_t VQ6192_Framer_CalcTug12ToTu12Chnl(uint32_t chip, uint32_t tug2, uint32_t tu);
VQ6192_API uint32_t VQ6192_Framer_RvCaclMapChnl(uint32_t chip, uint32_t e1, uint8_t *ignored, uint16_t *vc4,
                                                uint16_t *tug3, uint16_t *tug2, uint16_t *tu);
VQ6192_API uint32_t VQ6192_Framer_FrmInit(uint32_t chip, uint32_t initType, uint32_t sdhSonet);

/* Overhead insertion (egress). */
VQ6192_API uint32_t VQ6192_Framer_SetET1OhInsEn(uint32_t chip, uint32_t e1, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_SetET1OhInsMode(uint32_t chip, uint32_t e1, uint32_t ohType,
                                                  uint32_t insMode, uint32_t value, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_SetE1RaiInsEn(uint32_t chip, uint32_t e1, uint32_t en);
VQ6192_API uint32_t VQ6192_Framer_SetE1RaiInsSelEn(uint32_t chip, uint32_t e1, uint32_t en);
VQ6192_API uint32_t VQ6192_Framer_SetE1RaiInsValue(uint32_t chip, uint32_t e1, uint32_t val);
VQ6192_API uint32_t VQ6192_Framer_GetE1OvhInsRegVal(uint32_t chip, uint32_t e1, uint16_t *regVal);

/* Alarms and counters. */
VQ6192_API uint32_t VQ6192_Framer_GetFrmAlms(uint32_t chip, uint32_t e1, uint16_t *ais, uint16_t *rai,
                                             uint16_t *bfoof, uint16_t *mfoof);
VQ6192_API uint32_t VQ6192_Framer_GetE1AlmRegVal(uint32_t chip, uint32_t e1, uint16_t *regVal);
VQ6192_API uint32_t VQ6192_Framer_GetE1FrmCntStd(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tug2,
                                                 uint32_t tu, uint32_t cntType, uint32_t *count);
VQ6192_API uint32_t VQ6192_Framer_GetFrmET3Alms(uint32_t chip, uint32_t e3, VQ6192_FRM_ET3_ALARM_S *alarms);
VQ6192_API uint32_t VQ6192_Framer_GetT3ErrorStat(uint32_t chip, uint32_t e3, VQ6192_FRM_T3_ERR_S *counts);

/* Clocks and miscellaneous. */
VQ6192_API uint32_t VQ6192_Framer_SetFrmClkSource(uint32_t chip, uint32_t e1, uint32_t src);
VQ6192_API uint32_t VQ6192_Framer_GetFrmClkSource(uint32_t chip, uint32_t e1, uint16_t *src);
VQ6192_API uint32_t VQ6192_Framer_SetFrmET3TxClkSource(uint32_t chip, uint32_t e3, uint32_t src);
VQ6192_API uint32_t VQ6192_Framer_GetFrmET3TxClkSource(uint32_t chip, uint32_t e3, uint16_t *src);
VQ6192_API uint32_t VQ6192_HTBE_TCLK_CLKSEL(uint32_t chip, uint32_t i, uint32_t sel);
VQ6192_API uint32_t VQ6192_HTBE_RT_CLKSEL(uint32_t chip, uint32_t i, uint32_t sel);
VQ6192_API uint32_t VQ6192_Framer_SetE1MapClkGate(uint32_t chip, uint32_t gate, uint32_t en);
VQ6192_API uint32_t VQ6192_Framer_GetE1MapClkGate(uint32_t chip, uint32_t gate, uint16_t *en);
VQ6192_API uint32_t VQ6192_Framer_SetSOHByPassMode(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_Framer_GetSOHByPassMode(uint32_t chip, uint16_t *en);
VQ6192_API uint32_t VQ6192_Framer_SetSDHAuPtr(uint32_t chip, const VQ6192_SDH_AU_PTR_S *ptr);
VQ6192_API uint32_t VQ6192_Framer_GetSDHAuPtr(uint32_t chip, VQ6192_SDH_AU_PTR_S *ptr);
VQ6192_API uint32_t VQ6192_Framer_GetE1FromSvrNo(uint32_t chip, uint32_t svcChnl, uint32_t dir,
                                                 uint32_t svcType, uint32_t speed, uint16_t *e1);

VQ6192_EXTERN_C_END

#endif /* VQ6192_FRAMER_H */
