/* VQ6192 driver SDK: PPP and multilink PPP. C-compatible. */
#ifndef VQ6192_PPP_H
#define VQ6192_PPP_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

#define VQ6192_NONE_SCH_PPP_MAX 512u /* PPP channels 0..511 */
#define VQ6192_SCH_C4_PPP_MAX 4u     /* VC-4 PPP channels 0..3 */
#define VQ6192_SCH_MP_MAX 256u       /* multilink bundles 0..255 */
#define VQ6192_TS_SPEED_MAX 5u
#define VQ6192_PPP_DISABLE 0u
#define VQ6192_PPP_ENABLE 1u
#define VQ6192_MAX_PPP_MRU 2036u
#define VQ6192_MAX_PPPQ_NUM 8u
#define VQ6192_MAX_PPP_QUE_WEIGHT 128u
#define VQ6192_MP_ABORT_THLD 255u
#define VQ6192_MAX_DFIFO_ALM_LC 4096u
#define VQ6192_MAX_MC_QUE_NUM 8u
#define VQ6192_MAX_MP_RGRP_TIMEOUT 512u
#define VQ6192_MAX_MP_MRRU 4096u
#define VQ6192_MAX_MP_CTRL_NUM 128u
#define VQ6192_MAX_MP_FRAG_NUM 128u
#define VQ6192_MAX_MP_QUE_WEIGHT 128u
#define VQ6192_MAX_RXM_MP_TH 0x3FFC0u
#define VQ6192_DDR_CAP_MAX 32u
#define VQ6192_MAX_SKY_EYE 8191u
#define VQ6192_HDLC_MAX 4096u
#define VQ6192_PPP_MAX_PKT_LEN 2000u

typedef enum {
    VQ6192_PPP_CRC_NONE = 0,
    VQ6192_PPP_CRC_16 = 1,
    VQ6192_PPP_CRC_32 = 2,
    VQ6192_PPP_CRC_BUTT = 3
} VQ6192_PPP_CRC_MODE_E;
typedef enum { VQ6192_PPP_MODE_0 = 0, VQ6192_PPP_MODE_1 = 1, VQ6192_PPP_MODE_BUTT = 2 } VQ6192_PPP_MODE_E;
typedef enum {
    VQ6192_PPP_UIDF_0 = 0,
    VQ6192_PPP_UIDF_1 = 1,
    VQ6192_PPP_UIDF_2 = 2,
    VQ6192_PPP_UIDF_BUTT = 3
} VQ6192_PPP_UIDF_MODE_E;
typedef enum {
    VQ6192_PPP_CHNTYPE_PPP = 0,
    VQ6192_PPP_CHNTYPE_MP = 1,
    VQ6192_PPP_CHNTYPE_BUTT = 2
} VQ6192_PPP_CHNTYPE_E;
typedef enum {
    VQ6192_PPPMP_SCH_PPP = 1,
    VQ6192_PPPMP_SCH_MC = 2,
    VQ6192_PPPMP_SCH_MODE_BUTT = 4
} VQ6192_PPPMP_SCH_MODE_E;
typedef enum { VQ6192_MP_SN_LONG = 0, VQ6192_MP_SN_SHORT = 1, VQ6192_MP_SN_BUTT = 2 } VQ6192_MP_SN_FORMAT_E;
typedef enum {
    VQ6192_MP_FRAG_NONE = 0,
    VQ6192_MP_FRAG_64 = 1,
    VQ6192_MP_FRAG_128 = 2,
    VQ6192_MP_FRAG_256 = 4,
    VQ6192_MP_FRAG_512 = 8,
    VQ6192_MP_FRAG_1024 = 16,
    VQ6192_MP_FRAG_SIZE_BUTT = 17
} VQ6192_MP_FRAG_SIZE_E;

/* ---- PPP channels ------------------------------------------------------------------------------ */

typedef struct {
    uint32_t ulPhyPort;   /* E1/T1 number, or the VC-4 number 0..3 of a VC-4 channel */
    uint32_t ulPppChanNo; /* PPP channel number */
    uint32_t ulTsMap;     /* timeslot bitmap, bit k = timeslot k; ignored for VC-4 */
    uint8_t ucSpeed;      /* timeslot speed code, below VQ6192_TS_SPEED_MAX */
} VQ6192_PPP_CHAN_S;

/* HDLC engine options. Word 0 is a bit-field word, bit 31 most significant (fields listed from bit 0
 * up); in a selection mask a one-bit field of 1, or a multi-bit field equal to exactly 1, selects it,
 * and dwRxMtu / dwRxMintu equal to 1 select those words. */
typedef struct {
    uint32_t bReserved : 2;
    uint32_t bRxByteFe : 1; /* receive byte reversal */
    uint32_t bRxPlDet : 1;
    uint32_t bByteFe : 1;
    uint32_t bRxDie : 1;
    uint32_t bTxDie : 1;
    uint32_t bRxCrcMod : 2;
    uint32_t bTxCrcMod : 2;
    uint32_t bRxFillMod : 1;
    uint32_t bTxFillMod : 1;
    uint32_t bTxfMod : 4;
    uint32_t bTxcfcs : 1;
    uint32_t bTxifs : 1;
    uint32_t bTxaifs : 1;
    uint32_t bCorrect : 2;
    uint32_t bChnEn : 1;
    uint32_t bMpv : 8;
    uint32_t bRxafi : 1;
    uint32_t dwRxMtu;
    uint32_t dwRxMintu;
} VQ6192_PPP_PPU_CFG_S;

typedef struct {
    uint32_t dwWaterMarkH;    /* back-pressure threshold */
    uint32_t dwWaterMarkL;    /* back-pressure release threshold */
    uint32_t dwWaterMarkDrop; /* discard threshold */
} VQ6192_PPP_WATERMARK_S;

VQ6192_API uint32_t VQ6192_PPP_CalcPppChnl(uint32_t chip, uint32_t ulPppChanNo, uint32_t direction);
VQ6192_API uint32_t VQ6192_PPP_ReCalcPppChnl(uint32_t chip, uint32_t inner, uint32_t direction);

VQ6192_API uint32_t VQ6192_PPP_CreatePppChan(uint32_t chip, const VQ6192_PPP_CHAN_S *rstPppChan);
VQ6192_API uint32_t VQ6192_PPP_CreatePppChanNoTS(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_CreateVC4PppChan(uint32_t chip, const VQ6192_PPP_CHAN_S *pstPppChan);
VQ6192_API uint32_t VQ6192_PPP_DelPppChan(uint32_t chip, uint32_t ulPppChanNo, uint16_t usE1,
                                          uint32_t ulTsMap);
VQ6192_API uint32_t VQ6192_PPP_DelPppChanNoTS(uint32_t chip, uint32_t ulPppChanNo);
VQ6192_API uint32_t VQ6192_PPP_DelVC4PppChan(uint32_t chip, uint32_t ulVc4PppChanNo, uint32_t ulVc4No);
VQ6192_API uint32_t VQ6192_PPP_ResetPppChan(uint32_t chip, uint32_t ulPppChanNo);
VQ6192_API uint32_t VQ6192_PPP_SetLinkToPpp(uint32_t chip, uint32_t ulLinkNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetLinkToPpp(uint32_t chip, uint32_t ulLinkNo, uint32_t *pulEnableRx,
                                            uint32_t *pulEnableTx);
VQ6192_API uint32_t VQ6192_PPP_SetPppChanEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable,
                                                uint8_t ucDirect);
VQ6192_API uint32_t VQ6192_PPP_GetPppChanEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnableRx,
                                                uint32_t *pulEnableTx);

VQ6192_API uint32_t VQ6192_PPP_SetPppCRCMode(uint32_t chip, uint32_t ulPppChanNo, uint32_t enCRCMode,
                                             uint8_t ucDirect);
VQ6192_API uint32_t VQ6192_PPP_GetPppCRCMode(uint32_t chip, uint32_t ulPppChanNo, uint8_t ucDirect,
                                             uint32_t *penCRCMode);
VQ6192_API uint32_t VQ6192_PPP_SetPppMRU(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMRU);
VQ6192_API uint32_t VQ6192_PPP_GetPppMRU(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulMRU);
VQ6192_API uint32_t VQ6192_PPP_SetPppACFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppACFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppPFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppPFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppPpuCfg(uint32_t chip, uint32_t ulPppChanNo,
                                            const VQ6192_PPP_PPU_CFG_S *rstPpuCfg,
                                            const VQ6192_PPP_PPU_CFG_S *rstSel);
VQ6192_API uint32_t VQ6192_PPP_GetPppPpuCfg(uint32_t chip, uint32_t ulPppChanNo,
                                            VQ6192_PPP_PPU_CFG_S *rstPpuCfg);
VQ6192_API uint32_t VQ6192_PPP_SetPppLoopEnable(uint32_t chip, uint32_t ulPppChanNo, uint8_t ucPppDirect,
                                                uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppLoopEnable(uint32_t chip, uint32_t ulPppChanNo, uint8_t ucPppDirect,
                                                uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppQueWeight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo,
                                               uint32_t ulQueWeight);
VQ6192_API uint32_t VQ6192_PPP_GetPppQueWeight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo,
                                               uint32_t *pulQueWeight);
VQ6192_API uint32_t VQ6192_PPP_SetPppTxLinkWaterMark(uint32_t chip, uint32_t ulPppChanNo,
                                                     const VQ6192_PPP_WATERMARK_S *pstWaterMark);
VQ6192_API uint32_t VQ6192_PPP_GetPppTxLinkWaterMark(uint32_t chip, uint32_t ulPppChanNo,
                                                     VQ6192_PPP_WATERMARK_S *pstWaterMark);
VQ6192_API uint32_t VQ6192_PPP_SetPPPQmEnable(uint32_t chip, uint32_t ulChanNo, uint32_t ulType,
                                              uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetMpVc4En(uint32_t chip, uint32_t ulVc4PppChanNo, uint16_t usEnable);
VQ6192_API uint32_t VQ6192_PPP_GetMpVc4En(uint32_t chip, uint32_t ulVc4PppChanNo, uint16_t *pusEnable);
VQ6192_API uint32_t VQ6192_PPP_SetMpVc4Scrambler(uint32_t chip, uint32_t ulVc4PppChanNo,
                                                 uint16_t usScramblerEn, uint16_t usUnScramblerEn);
VQ6192_API uint32_t VQ6192_PPP_GetMpVc4Scrambler(uint32_t chip, uint32_t ulVc4PppChanNo,
                                                 uint16_t *pusScramblerEn, uint16_t *pusUnScramblerEn);
VQ6192_API uint32_t VQ6192_PPP_SetPppCsptEnable(uint32_t chip, uint32_t ulChanNo, uint32_t enChanType,
                                                uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppCsptEnable(uint32_t chip, uint32_t ulChanNo, uint32_t enChanType,
                                                uint32_t *pulEnable);

/* Module-wide settings. */
VQ6192_API uint32_t VQ6192_PPP_SetMpMode(uint32_t chip, uint32_t enMpMode);
VQ6192_API uint32_t VQ6192_PPP_SetMpAbortThld(uint32_t chip, uint16_t usThld);
VQ6192_API uint32_t VQ6192_PPP_GetMpAbortThld(uint32_t chip, uint16_t *pusThld);
VQ6192_API uint32_t VQ6192_PPP_SetPppUnidentifyMode(uint32_t chip, uint32_t enMode);
VQ6192_API uint32_t VQ6192_PPP_GetPppUnidentifyMode(uint32_t chip, uint32_t *penMode);
VQ6192_API uint32_t VQ6192_PPP_SetPppESPTEnable(uint32_t chip, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppESPTEnable(uint32_t chip, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppCfgPrtcEn(uint32_t chip, uint16_t usValue, uint16_t usEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppCfgPrtcEn(uint32_t chip, uint16_t *pusValue, uint16_t *pusEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppRxCfgPrtcCnt(uint32_t chip, uint32_t *pulCnt);
VQ6192_API uint32_t VQ6192_PPP_SetPppDCNEnable(uint32_t chip, uint32_t ulDCNEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppDCNEnable(uint32_t chip, uint32_t *pulDCNEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppDCNConfig(uint32_t chip, uint32_t ulDCNLabel, uint32_t ulDCNMask);
VQ6192_API uint32_t VQ6192_PPP_GetPppDCNConfig(uint32_t chip, uint32_t *pulDCNLabel, uint32_t *pulDCNMask);
VQ6192_API uint32_t VQ6192_PPP_SetPppDFifoWaterMark(uint32_t chip, uint32_t ulWaterMarkH,
                                                    uint32_t ulWaterMarkL);
VQ6192_API uint32_t VQ6192_PPP_GetPppDFifoWaterMark(uint32_t chip, uint32_t *pulWaterMarkH,
                                                    uint32_t *pulWaterMarkL);
VQ6192_API uint32_t VQ6192_PPP_SetPppMpSchMode(uint32_t chip, uint32_t ePppSchMode, uint32_t eMpSchMode);
VQ6192_API uint32_t VQ6192_PPP_GetPppMpSchMode(uint32_t chip, uint32_t *pePppSchMode, uint32_t *peMpSchMode);
VQ6192_API uint32_t VQ6192_PPP_InitPppModule(uint32_t chip, uint32_t ulMode);

/* ---- Multilink bundles ------------------------------------------------------------------------- */

typedef struct {
    uint32_t dwQue7WaterMarkDrop, dwQue6WaterMarkDrop, dwQue5WaterMarkDrop, dwQue4WaterMarkDrop;
    uint32_t dwQue3WaterMarkDrop, dwQue2WaterMarkDrop, dwQue1WaterMarkDrop, dwQue0WaterMarkDrop;
    uint32_t dwWaterMarkL, dwWaterMarkH;
    uint32_t dwWaterMarkL1, dwWaterMarkH1, dwWaterMarkL2, dwWaterMarkH2, dwWaterMarkL3, dwWaterMarkH3;
    uint32_t dwWaterMarkL4, dwWaterMarkH4, dwWaterMarkL5, dwWaterMarkH5, dwWaterMarkL6, dwWaterMarkH6;
    uint32_t dwWaterMarkL7, dwWaterMarkH7;
} VQ6192_MP_TX_WATERMARK_S;

VQ6192_API uint32_t VQ6192_PPP_AddPppChanToMp(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                              uint8_t ucDirect);
VQ6192_API uint32_t VQ6192_PPP_AddPppChanToMp_Modify(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                                     uint8_t ucDirect);
VQ6192_API uint32_t VQ6192_PPP_RemovePppChanFromMp(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                                   uint8_t ucDirect);
VQ6192_API uint32_t VQ6192_PPP_RemovePppChanFromMp_Modify(uint32_t chip, uint32_t ulPppChanNo,
                                                          uint32_t ulMpChanNo, uint8_t ucDirect,
                                                          uint32_t ulReset);
VQ6192_API uint32_t VQ6192_PPP_GetPppChanToMp(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulMpChanRx,
                                              uint32_t *pulMpChanTx);
VQ6192_API uint32_t VQ6192_PPP_SetMpBundleEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable,
                                                 uint8_t ucDirect);
VQ6192_API uint32_t VQ6192_PPP_GetMpBundleEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulEnableRx,
                                                 uint32_t *pulEnableTx);
VQ6192_API uint32_t VQ6192_PPP_ResetMpBundle(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMode);
VQ6192_API uint32_t VQ6192_PPP_DelMpBundle(uint32_t chip, uint32_t ulMpChanNo);
VQ6192_API uint32_t VQ6192_PPP_MpClearEgressBuff(uint32_t chip, uint32_t ulMpChanNo);
VQ6192_API uint32_t VQ6192_PPP_SetMpFragSize(uint32_t chip, uint32_t ulMpChanNo, uint32_t enFragSize);
VQ6192_API uint32_t VQ6192_PPP_GetMpFragSize(uint32_t chip, uint32_t ulMpChanNo, uint32_t *penFragSize);
VQ6192_API uint32_t VQ6192_PPP_SetMpTimeout(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulTimeout);
VQ6192_API uint32_t VQ6192_PPP_GetMpTimeout(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulTimeout);
VQ6192_API uint32_t VQ6192_PPP_CalcMpTimeOutValue(uint32_t chip, uint32_t ulMpChanNo, uint16_t usTsNum,
                                                  uint32_t *pulTimeOutVal);
VQ6192_API uint32_t VQ6192_PPP_SetMpMrru(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMRRU);
VQ6192_API uint32_t VQ6192_PPP_GetMpMrru(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulMRRU);
VQ6192_API uint32_t VQ6192_PPP_SetMpSnFormat(uint32_t chip, uint32_t ulMpChanNo, uint32_t enSnFormatUp,
                                             uint32_t enSnFormatDown);
VQ6192_API uint32_t VQ6192_PPP_GetMpSnFormat(uint32_t chip, uint32_t ulMpChanNo, uint32_t *penSnFormatUp,
                                             uint32_t *penSnFormatDown);
VQ6192_API uint32_t VQ6192_PPP_SetMpPFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetMpPFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetMpACFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetMpACFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetMpSnCtrl(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable,
                                           uint32_t ulMpCtrlNum, uint32_t ulMcNum);
VQ6192_API uint32_t VQ6192_PPP_GetMpSnCtrl(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcNum,
                                           uint32_t *pulEnable, uint32_t *pulMpCtrlNum);
VQ6192_API uint32_t VQ6192_PPP_SetMpMaxFragNum(uint32_t chip, uint32_t ulMaxFragNum);
VQ6192_API uint32_t VQ6192_PPP_GetMpMaxFragNum(uint32_t chip, uint32_t *pulMaxFragNum);
VQ6192_API uint32_t VQ6192_PPP_SetMpQueWeight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo,
                                              uint32_t ulQueWeight);
VQ6192_API uint32_t VQ6192_PPP_GetMpQueWeight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo,
                                              uint32_t *pulQueWeight);
VQ6192_API uint32_t VQ6192_PPP_SetMpRxWaterMark(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulWaterMarkH,
                                                uint32_t ulWaterMarkL);
VQ6192_API uint32_t VQ6192_PPP_GetMpRxWaterMark(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulWaterMarkH,
                                                uint32_t *pulWaterMarkL);
VQ6192_API uint32_t VQ6192_PPP_SetMpTxWaterMark(uint32_t chip, uint32_t ulMpChanNo,
                                                const VQ6192_MP_TX_WATERMARK_S *pstWaterMark);
VQ6192_API uint32_t VQ6192_PPP_GetMpTxWaterMark(uint32_t chip, uint32_t ulMpChanNo,
                                                VQ6192_MP_TX_WATERMARK_S *pstWaterMark);
VQ6192_API uint32_t VQ6192_PPP_UpDateEgMpChanCnt(uint32_t ulChipID, uint32_t ulMpChanNo, uint32_t ulOp,
                                                 uint32_t ulMpEn, uint32_t ulPppEn, uint32_t ulOldMpChanNo);
VQ6192_API uint32_t VQ6192_PPP_ReCoverPppLinkCntInEgMp(uint32_t chip);

/* ---- Statistics, tests and packet capture ------------------------------------------------------ */

typedef struct {
    uint32_t dwRxBytesCnt, dwRxAvailCnt, dwRxRightCnt, dwRxmLinkCnt, dwRxAbortCnt, dwRxCrcErrCnt;
    uint32_t dwRx8bitErrCnt, dwRxLongErrCnt, dwRxShortErrCnt;
    uint32_t dwTxBytesCnt, dwTxRightCnt, dwTxAbortCnt, dwTxErrCnt;
} VQ6192_PPP_LINK_STAT_S;

typedef struct {
    uint32_t dwRgrpFragCnt, dwRgrpPktCnt, dwRgrpAbrCnt, dwRgrpRepCnt, dwRgrpOtCnt, dwRgrpSnErrCnt;
    uint32_t dwRxMpBytesCnt;
    uint16_t wRxmMpBCnt, wRxmMpECnt;
    uint16_t wMcRxCnt[8];
} VQ6192_MP_INGRESS_STAT_S;

typedef struct {
    uint32_t dwTxMpRpkt;
    uint32_t dwTxMpRbyte;
} VQ6192_MP_EGRESS_STAT_S;

typedef struct {
    uint16_t wRppuRsrCnt, wRppu7ECnt, wRppuAbortCnt, wRppuCobcCnt, wRppuAfidCnt, wTxmTppuCnt, wTppuTsrCnt;
    uint32_t dwRpHdlcCnt, dwRpBnCnt, dwRpPtCnt, dwRpEsptCnt, dwRpCsptCnt, dwRpDcnCnt, dwRpHdlcDropCnt,
        dwRpPppDropCnt;
    uint16_t wSFifoDropCnt, wPhpFifoDropCnt, wRpDdrErrDropCnt, wRpHeadErrDropCnt, wRpLenErrDropCnt,
        wRprgErrDropCnt, wRpVldErrDropCnt, wRpMrruErrDropCnt, wRpFragErrCnt;
    uint16_t wRxmDropCnt, wRxmPdFullDropCnt, wRxmPrlsCnt, wRxmMerrCnt, wRxmRerrCnt, wRxmTdisDropCnt;
} VQ6192_PPP_GLOBAL_IN_STAT_S;

typedef struct {
    uint16_t wTpPppCnt, wTpMpCnt, wTpPppPCnt, wTpMpPCnt, wTpPppDcnCnt, wTpMpDcnCnt, wTpT6Cnt, wFragBCnt;
    uint16_t wFragECnt, wTpTdisDropCnt, wTpFdisDropCnt, wTpPdisDropCnt, wTpNdisDropCnt, wTpSEDropCnt,
        wTpSSDropCnt, wTpEEDropCnt;
    uint16_t wTpBdFullDropCnt, wTpDfifoErrCnt, wTpErrPktCnt, wTpDfifoCnt, wTpFragCnt, wFragPppCnt, wTpLdisCnt,
        wTpMdisCnt;
} VQ6192_PPP_GLOBAL_EG_STAT_S;

typedef struct {
    uint16_t bCrcFifoFull;
    uint16_t bCrcFifoEmpty;
} VQ6192_PPP_CRC_FIFO_STATUS_S;

typedef struct {
    uint16_t bCrcFifoHisFull;
    uint16_t bCrcFifoHisEmpty;
} VQ6192_PPP_CRC_FIFO_HIS_STATUS_S;

/* FIFO flags, one bit each (listed from bit 5 up; bits 0..4 keep what the caller put there). */
typedef struct {
    uint32_t bReserved : 5;
    uint32_t bDqFifoEmpty : 1, bDqFifoFull : 1, bOdFifoEmpty : 1, bOdFifoFull : 1, bOtFifoEmpty : 1;
    uint32_t bOtFifoFull : 1, bEqFifoEmpty : 1, bEqFifoFull : 1, bGnFifoEmpty : 1, bGnFifoFull : 1;
    uint32_t bHdFifoEmpty : 1, bHdFifoFull : 1, bMcFifoEmpty : 1, bMcFifoFull : 1, bEmcFifoEmpty : 1;
    uint32_t bEmcFifoFull : 1, bCFifoEmpty : 1, bCFifoFull : 1, bSFifoEmpty : 1, bSFifoFull : 1;
    uint32_t bBFifoEmpty : 1, bBFifoFull : 1, bAFifoFull : 1, bPhpFifo1Empty : 1, bPhpFifo1Full : 1;
    uint32_t bPhpFifo2Empty : 1, bPhpFifo2Full : 1;
} VQ6192_PPP_FIFO_STATUS_S;

typedef struct {
    uint32_t bReserved : 5;
    uint32_t bDqFifoHisEmpty : 1, bDqFifoHisFull : 1, bOdFifoHisEmpty : 1, bOdFifoHisFull : 1;
    uint32_t bOtFifoHisEmpty : 1, bOtFifoHisFull : 1, bEqFifoHisEmpty : 1, bEqFifoHisFull : 1;
    uint32_t bGnFifoHisEmpty : 1, bGnFifoHisFull : 1, bHdFifoHisEmpty : 1, bHdFifoHisFull : 1;
    uint32_t bMcFifoHisEmpty : 1, bMcFifoHisFull : 1, bEmcFifoHisEmpty : 1, bEmcFifoHisFull : 1;
    uint32_t bCFifoHisEmpty : 1, bCFifoHisFull : 1, bSFifoHisEmpty : 1, bSFifoHisFull : 1;
    uint32_t bBFifoEmpty : 1, bBFifoFull : 1, bAFifoFull : 1, bPhpFifo1Empty : 1, bPhpFifo1Full : 1;
    uint32_t bPhpFifo2Empty : 1, bPhpFifo2Full : 1;
} VQ6192_PPP_FIFO_HIS_STATUS_S;

VQ6192_API uint32_t VQ6192_PPP_GetPppLinkStat(uint32_t chip, uint32_t ulPppChanNo,
                                              VQ6192_PPP_LINK_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetPppLinkStatForMp(uint32_t chip, uint32_t ulPppChanNo,
                                                   VQ6192_PPP_LINK_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetMpIngressStat(uint32_t chip, uint32_t ulMpChanNo,
                                                VQ6192_MP_INGRESS_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetMpIngressStatNew(uint32_t chip, uint32_t ulMpChanNo,
                                                   VQ6192_MP_INGRESS_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetMpEgressStat(uint32_t chip, uint32_t ulMpChanNo,
                                               VQ6192_MP_EGRESS_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetMpEgressStatNew(uint32_t chip, uint32_t ulMpChanNo,
                                                  VQ6192_MP_EGRESS_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetPppGlobalIngressStat(uint32_t chip, VQ6192_PPP_GLOBAL_IN_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetPppGlobalEgressStat(uint32_t chip, VQ6192_PPP_GLOBAL_EG_STAT_S *pstStat);
VQ6192_API uint32_t VQ6192_PPP_GetPppCrcCorrectStat(uint32_t chip, uint32_t ulChanNo, uint16_t pusStat[3]);
VQ6192_API uint32_t VQ6192_PPP_GetPppCrcFifoStatus(uint32_t chip, uint32_t ulChanNo,
                                                   VQ6192_PPP_CRC_FIFO_STATUS_S *pstCur,
                                                   VQ6192_PPP_CRC_FIFO_HIS_STATUS_S *pstHis);
VQ6192_API uint32_t VQ6192_PPP_GetPppFifoStatus(uint32_t chip, VQ6192_PPP_FIFO_STATUS_S *pstCur,
                                                VQ6192_PPP_FIFO_HIS_STATUS_S *pstHis);

VQ6192_API uint32_t VQ6192_PPP_SetPppDdrCapChan(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulSlot,
                                                uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_StartPppDdrCapPkt(uint32_t chip, uint32_t ulDirect, uint32_t usSkyEyeMax);
VQ6192_API uint32_t VQ6192_PPP_StopPppDdrCapPkt(uint32_t chip);
VQ6192_API uint32_t VQ6192_PPP_ComputeDdrCapAddr(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                                 uint32_t *pulAddr);
VQ6192_API uint32_t VQ6192_PPP_GetPppDdrCapPkt(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                               uint32_t ulDirect, uint8_t *pucBuf, uint16_t *pusLen,
                                               uint32_t *pulNextOffset);
VQ6192_API uint32_t VQ6192_PPP_GetPppDdrCapPktUp(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                                 uint8_t *pucBuf, uint16_t *pusLen, uint32_t *pulNextOffset);
VQ6192_API uint32_t VQ6192_PPP_GetPppDdrCapPktDown(uint32_t chip, uint32_t ulSlot, uint32_t ulOffset,
                                                   uint8_t *pucBuf, uint16_t *pusLen,
                                                   uint32_t *pulNextOffset);
VQ6192_API uint32_t VQ6192_PPP_SetCobcMode(uint32_t chip, uint32_t ulChanNo, uint32_t ulMode);
VQ6192_API uint32_t VQ6192_PPP_GetCobcMode(uint32_t chip, uint32_t ulChanNo, uint32_t *pulMode);
VQ6192_API uint32_t VQ6192_PPP_StartCobcCap(uint32_t chip, uint32_t usHdlcChnl);
VQ6192_API uint32_t VQ6192_PPP_StopCobcCap(uint32_t chip);
VQ6192_API uint32_t VQ6192_PPP_GetCobcCapPkt(uint32_t chip, uint8_t *pucBuf, uint16_t *pusLen);
VQ6192_API uint32_t VQ6192_PPP_CapturePppFifoPkt(uint32_t chip, uint32_t ulChanNo, uint32_t ulType,
                                                 uint8_t *pucBuf, uint32_t *pulLen);
VQ6192_API uint32_t VQ6192_PPP_GetPppFifoCapData(uint32_t chip, uint8_t *pucBuf, uint32_t *pulLen);
VQ6192_API uint32_t VQ6192_PPP_SetPppTestTxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppTestTxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppTestRxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable);
VQ6192_API uint32_t VQ6192_PPP_GetPppTestRxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable);
VQ6192_API uint32_t VQ6192_PPP_SetPppTestConfig(uint32_t chip, uint16_t usSendTimeSlot, uint16_t usTxProType,
                                                uint16_t usRxProType);
VQ6192_API uint32_t VQ6192_PPP_GetPppTestConfig(uint32_t chip, uint16_t *pusSendTimeSlot,
                                                uint16_t *pusTxProType, uint16_t *pusRxProType);
VQ6192_API uint32_t VQ6192_PPP_GetPppDelayTime(uint32_t chip, uint32_t ulPppChanNo, uint32_t pulTime[4]);
VQ6192_API uint32_t VQ6192_PPP_GetPppDelayTestStat(uint32_t chip, uint16_t pusStat[4]);

/* ---- Diagnostic commands (text into a 48128-byte buffer; a null buffer prints nothing) ---------- */

/* DDR capture state of the capture commands, one record per chip id. */
typedef struct {
    uint32_t ulStarted;
    uint32_t ulPppChanNo;
    uint32_t ulDirect;
} VQ6192_PPP_CAP_STATE_S;
VQ6192_API extern VQ6192_PPP_CAP_STATE_S g_st6192CapPpp[VQ6192_CHIP_RECORD_NUM];

VQ6192_API uint32_t getlinktoppp(uint32_t chip, uint32_t ulLinkNo, char *buf);
VQ6192_API uint32_t getmpvc4scrambler(uint32_t chip, uint32_t ulVc4PppChanNo, char *buf);
VQ6192_API uint32_t getpppchanenable(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getmpbundleenable(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getpppchantomp(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getpppcrcmode(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf);
VQ6192_API uint32_t getpppmru(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getpppacfcenable(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getppppfcenable(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getmpfragsize(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmptimeout(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t calcmptimeoutvalue(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulTsNum, char *buf);
VQ6192_API uint32_t getmpabortthld(uint32_t chip, char *buf);
VQ6192_API uint32_t getmpmrru(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmpsnformat(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmppfcenable(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmpacfcenable(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getpppcsptenable(uint32_t chip, uint32_t ulChanNo, uint32_t enChanType, char *buf);
VQ6192_API uint32_t getpppesptenable(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppcfgprtcen(uint32_t chip, char *buf);
VQ6192_API uint32_t getppprxcfgprtccnt(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppunidentifymode(uint32_t chip, char *buf);
VQ6192_API uint32_t getmpsnctrl(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcNum, char *buf);
VQ6192_API uint32_t getmpctrltimeout(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmpmaxfragnum(uint32_t chip, char *buf);
VQ6192_API uint32_t getmpmcmap(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmpqueweight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo, char *buf);
VQ6192_API uint32_t getpppqueweight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo, char *buf);
VQ6192_API uint32_t getppploopenable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf);
VQ6192_API uint32_t getppptesttxenable(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getppptestconfig(uint32_t chip, char *buf);
VQ6192_API uint32_t getppptestrxenable(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getpppdelaytime(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getpppdelayteststat(uint32_t chip, char *buf);
VQ6192_API uint32_t getppptxlinkwatermark(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getmptxwatermark(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmprxwatermark(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getpppdfifowatermark(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppfifocapdata(uint32_t chip, char *buf);
VQ6192_API uint32_t capturepppfifopkt(uint32_t chip, uint32_t ulChanNo, uint32_t ulType, char *buf);
VQ6192_API uint32_t getpppdcnenable(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppdcnconfig(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppglobalingressstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppglobalegressstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getppplinkstat(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t getmpingressstat(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getmpegressstat(uint32_t chip, uint32_t ulMpChanNo, char *buf);
VQ6192_API uint32_t getpppcrccorrectstat(uint32_t chip, uint32_t ulChanNo, char *buf);
VQ6192_API uint32_t getpppcrcfifostatus(uint32_t chip, uint32_t ulChanNo, char *buf);
VQ6192_API uint32_t getpppfifostatus(uint32_t chip, char *buf);
VQ6192_API uint32_t startcobccap(uint32_t chip, uint32_t ulHdlcChnl, char *buf);
VQ6192_API uint32_t stopcobccap(uint32_t chip, char *buf);
VQ6192_API uint32_t getcobccappkt(uint32_t chip, char *buf);
VQ6192_API uint32_t getpppmpschmode(uint32_t chip, char *buf);
VQ6192_API uint32_t getcobcmode(uint32_t chip, uint32_t ulChanNo, char *buf);
VQ6192_API uint32_t DbgPrintPppPkt(uint32_t chip, uint32_t ulSlot, uint32_t ulDirect, uint32_t ulFirst,
                                   uint32_t ulLast, uint32_t ulMaxLen, char *buf);
VQ6192_API uint32_t DbgReadPppAllCntAndStatus(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                              char *buf);
VQ6192_API uint32_t getmpvc4en(uint32_t chip, uint32_t ulVc4PppChanNo, char *buf);
VQ6192_API uint32_t setpppppucfg(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPacked, uint32_t ulRxMtu,
                                 uint32_t ulRxMintu, char *buf);
VQ6192_API uint32_t getpppppucfg(uint32_t chip, uint32_t ulPppChanNo, char *buf);
VQ6192_API uint32_t Vq6192PppSetChnlCappkt(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable, char *buf);
VQ6192_API uint32_t Vq6192PppStartDdrCappkt(uint32_t chip, uint32_t ulDirect, char *buf);
VQ6192_API uint32_t Vq6192PppStoptDdrCappkt(uint32_t chip, char *buf);
VQ6192_API uint32_t Vq6192PppgetDdrpkt(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf);
VQ6192_API uint32_t setpppqueweight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo,
                                    uint32_t ulQueWeight, char *buf);
VQ6192_API uint32_t setmpqueweight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo,
                                   uint32_t ulQueWeight, char *buf);
VQ6192_API uint32_t DbgSetCapPktAndStart(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf);
VQ6192_API uint32_t DbgGetCapPkt(uint32_t chip, char *buf);
VQ6192_API uint32_t DbgGetCapPktForMatch(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect,
                                         uint32_t ulStartByte, uint32_t ulMask, uint32_t ulTemp, char *buf);
VQ6192_API uint32_t DbgGetCapPktForMatchTemp(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect,
                                             uint32_t ulStartByte, uint32_t ulMask, uint32_t ulTemp,
                                             char *buf);
VQ6192_API uint32_t DbgGetPppconfig(uint32_t chip, char *buf);
VQ6192_API uint32_t DbgGetMpconfig(uint32_t chip, char *buf);
VQ6192_API uint32_t DbgGetCapPktMatchCapture(uint32_t chip, char *buf);

VQ6192_EXTERN_C_END

#endif /* VQ6192_PPP_H */
