/* VQ6192 driver SDK: E1/T1 and E3/T3 framers, the timeslot switch and the PRBS test engines.
 * C-compatible.
 *
 * One E1/T1 framer per tributary (internal E1 number 0..335) and one E3/T3 framer per AU-3 slot
 * (0..11). Framer and timeslot status codes carry module number 14; error 1 parameter, 4 a sub-operation
 * failed, 7 inconsistent state; the framer's trace lines print under module FRM (15). */
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

/* ---- Timeslot switch ---------------------------------------------------------------------------
 * Service types: 1 PPP, 2 ATM, 3 CES, 4 none. Speeds: 0 16 kbit/s, 1 32 kbit/s, 3 64 kbit/s, 4 8 kbit/s
 * (2 is refused); readers return the raw rate field (3 64k, 2 32k, 1 16k, 0 8k). */
#define VQ6192_TS_SPEED_MAX 5u
#define VQ6192_TS_LOOP_POINT_ET1 0u
#define VQ6192_TS_LOOP_POINT_ET3 1u

/* Per-chip CES PRBS flag: while 1, CES timeslot entries are written with the PRBS test bit. */
VQ6192_API extern uint32_t g_uiPrbsFlag[VQ6192_CHIP_RECORD_NUM];

typedef struct {
    uint32_t ulChipId;
    uint16_t usDir;
    uint16_t usE1;
    uint16_t usTs;
    uint16_t usSvcChnl; /* out */
    uint8_t ucSvcType;  /* out */
    uint32_t ulSpeed;   /* out */
    uint8_t ucEn;       /* out */
} VQ6192_FRM_TS_CFG_S;

/* Raw table access (the entry is the low 16 bits of the word). */
VQ6192_API uint32_t VQ6192_Framer_SetTSTab(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t ts,
                                           const uint32_t *entry);
VQ6192_API uint32_t VQ6192_Framer_SetE3TSTab(uint32_t chip, uint32_t e3, uint32_t dir, const uint32_t *entry);
VQ6192_API uint32_t VQ6192_Framer_SetVC4TSTab(uint32_t chip, uint32_t vc4, uint32_t dir,
                                              const uint32_t *entry);
VQ6192_API uint32_t VQ6192_Framer_GetE3TSTab(uint32_t chip, uint32_t e3, uint32_t dir, uint32_t *entry);
VQ6192_API uint32_t VQ6192_Framer_GetVC4TSTab(uint32_t chip, uint32_t vc4, uint32_t dir, uint32_t *entry);

/* Source selection. */
VQ6192_API uint32_t VQ6192_Framer_SelectSrcE1(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t svcChnl,
                                              uint32_t svcType, uint32_t tsBitmap, uint32_t speed);
VQ6192_API uint32_t VQ6192_Framer_DeleteSrcE1(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t tsBitmap);
VQ6192_API uint32_t VQ6192_Framer_SelectSrcE3(uint32_t chip, uint32_t dir, uint32_t e3, uint32_t svcChnl,
                                              uint32_t svcType);
VQ6192_API uint32_t VQ6192_Framer_DeleteSrcE3(uint32_t chip, uint32_t dir, uint32_t e3);
VQ6192_API uint32_t VQ6192_Framer_SelectSrcVC4(uint32_t chip, uint32_t dir, uint32_t vc4, uint32_t svcChnl,
                                               uint32_t svcType);
VQ6192_API uint32_t VQ6192_Framer_DeleteSrcVC4(uint32_t chip, uint32_t dir, uint32_t vc4);
VQ6192_API uint32_t VQ6192_Framer_SelectSrcVC4DisIngTs(uint32_t chip, uint32_t dir, uint32_t vc4,
                                                       uint32_t svcChnl, uint32_t svcType);
VQ6192_API uint32_t VQ6192_Framer_DeleteSrcVC4DisIngTs(uint32_t chip, uint32_t dir, uint32_t vc4);
VQ6192_API uint32_t VQ6192_Framer_SetTsVc4En(uint32_t chip, uint32_t dir, uint32_t vc4, uint32_t en);
VQ6192_API uint32_t VQ6192_Framer_GetTsVc4En(uint32_t chip, uint32_t dir, uint32_t vc4, uint16_t *en);

/* Readers. */
VQ6192_API uint32_t VQ6192_Framer_GetTsCfg(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t ts,
                                           uint16_t *svcChnl, uint8_t *svcType, uint32_t *speed, uint8_t *en);
VQ6192_API uint32_t VQ6192_Framer_GetTsCfg2(VQ6192_FRM_TS_CFG_S *cfg);
VQ6192_API uint32_t VQ6192_Framer_GetE3TsCfg(uint32_t chip, uint32_t dir, uint32_t e3, uint16_t *svcChnl,
                                             uint8_t *svcType, uint32_t *speed, uint8_t *en);
VQ6192_API uint32_t VQ6192_Framer_GetVC4TsCfg(uint32_t chip, uint32_t dir, uint32_t vc4, uint16_t *svcChnl,
                                              uint8_t *svcType, uint32_t *speed, uint8_t *en);

/* Switch-side controls. */
VQ6192_API uint32_t VQ6192_Framer_SetTSSMode(uint32_t chip, uint32_t e1, uint32_t mode);
VQ6192_API uint32_t VQ6192_Framer_GetTSSMode(uint32_t chip, uint32_t e1, uint32_t *mode);
VQ6192_API uint32_t VQ6192_Framer_SetTSPayLoad(uint32_t chip, uint32_t vc4, uint32_t payload);
VQ6192_API uint32_t VQ6192_Framer_GetTSPayLoad(uint32_t chip, uint32_t vc4, uint32_t *payload);
VQ6192_API uint32_t VQ6192_Framer_SetTSSource(uint32_t chip, uint32_t dir, uint32_t src, uint32_t value);
VQ6192_API uint32_t VQ6192_Framer_GetTSSource(uint32_t chip, uint32_t dir, uint32_t src, uint32_t *value);
VQ6192_API uint32_t VQ6192_SetTsUxcEnable(uint32_t chip, uint32_t idx, uint32_t en);
VQ6192_API uint32_t VQ6192_GetTsUxcEnable(uint32_t chip, uint32_t idx, uint32_t *en);
VQ6192_API uint32_t VQ6192_GetTsUxcRegVal(uint32_t chip, uint16_t *val);
VQ6192_API uint32_t VQ6192_Framer_SetTsEgDefaultByte(uint32_t chip, uint32_t e1, uint32_t byte);
VQ6192_API uint32_t VQ6192_Framer_GetTsEgDefaultByte(uint32_t chip, uint32_t e1, uint8_t *byte);
VQ6192_API uint32_t VQ6192_Framer_SetTsLoop(uint32_t chip, uint32_t loopPoint, uint32_t chnl,
                                            uint32_t loopMode);
VQ6192_API uint32_t VQ6192_Framer_GetTsLoop(uint32_t chip, uint32_t loopPoint, uint32_t chnl,
                                            uint8_t *loopState);
VQ6192_API uint32_t VQ6192_Framer_SetHTBLoop(uint32_t chip, uint32_t zero, uint32_t idx, uint32_t kind,
                                             uint32_t loopMode);
VQ6192_API uint32_t VQ6192_Framer_GetHTBLoop(uint32_t chip, uint32_t zero, uint32_t idx, uint32_t kind,
                                             uint8_t *loopState);
VQ6192_API uint32_t VQ6192_Framer_ResetRfp(uint32_t chip, uint32_t value);
VQ6192_API uint32_t VQ6192_Framer_GetResetRfpState(uint32_t chip, uint8_t *state);
VQ6192_API uint32_t VQ6192_Framer_SetRfpEnableOnOff(uint32_t chip, uint32_t dropIntEn, uint32_t errIntEn,
                                                    uint32_t jitVldEn, uint32_t shiftEn);
VQ6192_API uint32_t VQ6192_Framer_GetRfpEnableOnOff(uint32_t chip, uint8_t *dropIntEn, uint8_t *errIntEn,
                                                    uint8_t *jitVldEn, uint8_t *shiftEn);
VQ6192_API uint32_t VQ6192_Framer_SetRfpDelay(uint32_t chip, uint32_t delay);
VQ6192_API uint32_t VQ6192_Framer_GetRfpDelay(uint32_t chip, uint16_t *delay);
VQ6192_API uint32_t VQ6192_Framer_GetRfpAlm(uint32_t chip, uint8_t *a, uint8_t *b, uint8_t *c, uint8_t *d);
VQ6192_API uint32_t VQ6192_Framer_SetMapDelayTime(uint32_t chip, uint32_t idx, uint32_t time);
VQ6192_API uint32_t VQ6192_Framer_GetMapDelayTime(uint32_t chip, uint32_t idx, uint16_t *time);

/* ---- PRBS test engines --------------------------------------------------------------------------
 * Path types: 0 and 1 E1/T1 paths, 2 and 3 E3/T3 or VC-4 paths (0..11). */
typedef struct {
    uint32_t ulSel;
    uint32_t ulMode;
    uint32_t ulFlag;
    uint32_t ulPattern;
    uint16_t usPath;
    uint8_t ucEnFlag;
} VQ6192_FRM_PRBS_INS_ATTR_S;

typedef struct {
    uint32_t ulMode;
    uint32_t ulFlag;
    uint32_t ulPattern;
    uint16_t usET3Path;
    uint16_t usPath;
} VQ6192_FRM_PRBS_CHK_ATTR_S;

/* Mapper engine. */
VQ6192_API uint32_t VQ6192_Framer_SetPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                 const VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_SetPRBSInsAttrNew(uint32_t chip, uint32_t pathType,
                                                    const VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_GetPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                 VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint8_t *enable);
VQ6192_API uint32_t VQ6192_Framer_SetPRBSChkAttr(uint32_t chip, const VQ6192_FRM_PRBS_CHK_ATTR_S *chk,
                                                 uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_SetPRBSChkAttrNew(uint32_t chip, const VQ6192_FRM_PRBS_CHK_ATTR_S *chk,
                                                    uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_GetPRBSChkAttr(uint32_t chip, VQ6192_FRM_PRBS_CHK_ATTR_S *chk,
                                                 uint8_t *enable);
VQ6192_API uint32_t VQ6192_Framer_SetPrbsErrInsert(uint32_t chip, uint32_t mode, uint32_t rate,
                                                   uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_GetPrbsErrInsert(uint32_t chip, uint32_t *rate, uint8_t *enable);
VQ6192_API uint32_t VQ6192_Framer_GetPRBSAlm(uint32_t chip, uint16_t alarms[4]);
VQ6192_API uint32_t VQ6192_Framer_GetPRBSErrCnt(uint32_t chip, uint16_t *count);

/* Timeslot engine. */
VQ6192_API uint32_t VQ6192_Framer_SetTsPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                   const VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                   VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint8_t *enable);
VQ6192_API uint32_t VQ6192_Framer_SetTsPRBSChkAttr(uint32_t chip, uint32_t pathType,
                                                   const VQ6192_FRM_PRBS_CHK_ATTR_S *chk, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSChkAttr(uint32_t chip, uint32_t pathType,
                                                   VQ6192_FRM_PRBS_CHK_ATTR_S *chk, uint8_t *enable);
VQ6192_API uint32_t VQ6192_Framer_SetTsPRBSIns(uint32_t chip, uint32_t mode, uint32_t rate, uint32_t enable);
VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSIns(uint32_t chip, uint32_t *reInsRate, uint8_t *reInsEnable);
VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSAlm(uint32_t chip, uint16_t alarms[3]);
VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSErrCnt(uint32_t chip, uint16_t *count);

/* CES timeslots under PRBS test. */
VQ6192_API uint32_t VQ6192_Framer_SetTsCesPrbsCfg(uint32_t chip, uint32_t pathType, uint32_t dir, uint32_t e1,
                                                  uint32_t tsMask, uint32_t cesChnl);
VQ6192_API uint32_t VQ6192_Framer_GetTsCesPrbsCfg(uint32_t chip, uint32_t pathType, uint32_t dir, uint32_t e1,
                                                  uint32_t *tsBitmap, uint16_t *cesChnl);

/* ---- Diagnostic commands ------------------------------------------------------------------------
 * Each writes a report into a 48128-byte text buffer (buf, last) and returns the status of the
 * operation it wraps, whole. */
VQ6192_API uint32_t getfrmtdmmode(uint32_t chip, char *buf);
VQ6192_API uint32_t getfrmmode(uint32_t chip, uint32_t e1, uint32_t dir, char *buf);
VQ6192_API uint32_t getfrmclksource(uint32_t chip, uint32_t e1, char *buf);
VQ6192_API uint32_t getfrme3txclksource(uint32_t chip, uint32_t e3, char *buf);
VQ6192_API uint32_t getfrmalms(uint32_t chip, uint32_t e1, char *buf);
VQ6192_API uint32_t getfrmet3alms(uint32_t chip, uint32_t e3, char *buf);
VQ6192_API uint32_t getfrmcnts(uint32_t chip, uint32_t e1, char *buf);
VQ6192_API uint32_t gett3errorstat(uint32_t chip, uint32_t e3, char *buf);
VQ6192_API uint32_t getsdhauptr(uint32_t chip, char *buf);
VQ6192_API uint32_t gettscfg(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t ts, char *buf);
VQ6192_API uint32_t gettspayload(uint32_t chip, uint32_t vc4, char *buf);
VQ6192_API uint32_t gettssource(uint32_t chip, uint32_t dir, uint32_t src, char *buf);
VQ6192_API uint32_t gettssmode(uint32_t chip, uint32_t e1, char *buf);
VQ6192_API uint32_t gethtbloop(uint32_t chip, uint32_t zero, uint32_t idx, uint32_t kind, char *buf);
VQ6192_API uint32_t gettsegdefaultbyte(uint32_t chip, uint32_t e1, char *buf);
VQ6192_API uint32_t gettsloop(uint32_t chip, uint32_t loopPoint, uint32_t chnl, char *buf);
VQ6192_API uint32_t getresetrfpstate(uint32_t chip, char *buf);
VQ6192_API uint32_t getrfpenableonoff(uint32_t chip, char *buf);
VQ6192_API uint32_t getrfpdelay(uint32_t chip, char *buf);
VQ6192_API uint32_t gettsprbsins(uint32_t chip, char *buf);
VQ6192_API uint32_t getprbserrinsert(uint32_t chip, char *buf);
VQ6192_API uint32_t getprbsts(uint32_t chip, uint32_t dir, char *buf);

VQ6192_EXTERN_C_END

#endif /* VQ6192_FRAMER_H */
