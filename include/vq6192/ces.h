/* VQ6192 driver SDK: circuit emulation: CES channels and services, clock recovery. C-compatible. */
#ifndef VQ6192_CES_H
#define VQ6192_CES_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* CES channels: 0..335 E1/T1 (timeslots of the E1/T1 of the same number or any other), 336..347 E3/T3
 * (E3 = channel - 336), 348..351 VC-4 (VC-4 = channel - 348). */
#define VQ6192_CES_CHAN_NUM 352u
#define VQ6192_CES_E1_CHAN_NUM 336u
#define VQ6192_CES_E3_CHAN_BASE 336u
#define VQ6192_CES_VC4_CHAN_BASE 348u
#define VQ6192_CES_CR_DOMAIN_NUM 16u

/* CES error numbers (status = chip bits + 0x30000 + number). */
#define VQ6192_CES_ERR_STEP 4u       /* a called step or table access failed */
#define VQ6192_CES_ERR_NOIDLE_TS 5u  /* compression read failed (parameters without idle code) */
#define VQ6192_CES_ERR_RTP_DIFF 6u   /* ingress and egress RTP settings differ */
#define VQ6192_CES_ERR_ING_TSMASK 7u /* ingress compression mask write failed */
#define VQ6192_CES_ERR_EG_TSMASK 8u  /* egress compression mask write failed */
#define VQ6192_CES_ERR_PARA_IDLE 9u  /* idle-code read failed (channel parameters) */
#define VQ6192_CES_ERR_PARA_TS 10u   /* compression read failed (channel parameters) */

/* Channel descriptor: E1/T1 channels; E3 and VC-4 channels put the E3/VC-4 number in ulPhyPort. */
typedef struct {
    uint32_t ulPhyPort;   /* E1/T1 number 0..335 (E3 0..11, VC-4 0..3) */
    uint32_t ulCesChanNo; /* 0..351 */
    uint32_t ulTsMap;     /* bit k: timeslot k */
    uint8_t ucMode;       /* 0 structured, 1 unstructured */
} VQ6192_CES_CHAN_S;

/* Channel descriptor without a line: the timeslot tables are not touched. */
typedef struct {
    uint32_t ulCesChanNo;
    uint32_t ulTsMap;
    uint32_t ulChanEn; /* not read by channel creation */
    uint8_t ucMode;
} VQ6192_CES_CHAN_NOTS_S;

typedef struct {
    uint32_t dwRtpEnable;   /* RTP header present 0/1 */
    uint32_t dwRtpCwSeq;    /* 0 control word before RTP, 1 RTP before control word */
    uint32_t dwPayloadType; /* PT 0..127 */
    uint32_t dwSSRCTx;      /* transmitted SSRC */
    uint32_t dwSSRCRx;      /* expected received SSRC */
    uint32_t dwTxSnGenmode; /* 0 or 2: all 0; 1 0..65535 wrapping; 3 1..65535 */
} VQ6192_CES_RTP_CFG_S;

/* Pseudowire service. */
typedef struct {
    uint32_t ulPhyPort;
    uint32_t ulCesChanNo;
    uint32_t ulTsMap;
    uint8_t ucMode;
    uint32_t ulTsCompress; /* bit set: timeslot removed from the packets */
    uint16_t usJbDepth;
    uint16_t usJbDelay;
    uint8_t ucIdleCode;
    uint8_t ucFramNum;
    uint8_t ucEmptyCode;
    VQ6192_CES_RTP_CFG_S stRtpCfg;
    uint32_t ulVlanId;
    uint32_t ulPwLabel;
    uint32_t ulInLabel;
    uint8_t ucPwCos;
    uint8_t ucPwTtl;
} VQ6192_CES_PW_S;

typedef struct {
    uint32_t ulCesChanNo;
    uint32_t ulTsMap;
    uint32_t ulChanEn; /* enable value applied at the end */
    uint8_t ucMode;
    uint32_t ulTsCompress;
    uint16_t usJbDepth;
    uint16_t usJbDelay;
    uint8_t ucIdleCode;
    uint8_t ucFramNum;
    uint8_t ucEmptyCode;
    VQ6192_CES_RTP_CFG_S stRtpCfg;
    uint32_t ulVlanId;
    uint32_t ulPwLabel;
    uint32_t ulInLabel;
    uint32_t ulEthDah; /* destination MAC, high 16 bits */
    uint32_t ulEthDal; /* destination MAC, low 32 bits */
    uint8_t ucPwCos;
    uint8_t ucPwTtl;
} VQ6192_CES_PW_NOTS_S;

typedef struct {
    uint32_t ulTsMask; /* compression mask, ingress and egress alike */
    uint16_t usJbDepth;
    uint16_t usJbDelay;
    uint8_t ucIdleCode;
    uint8_t ucFramNum;
    uint8_t ucEmptyCode;
} VQ6192_CES_CHAN_PARA_S;

/* Received packets dropped for: sequence number, payload type, SSRC, length, Ethernet receive error. */
typedef struct {
    uint32_t dwSnErrDropEn;
    uint32_t dwPtErrDropEn;
    uint32_t dwSsrcErrDropEn;
    uint32_t dwLenErrDropEn;
    uint32_t dwRxErrDropEn;
} VQ6192_CES_PKT_DROP_S;

/* Control-word alarm handling. */
typedef struct {
    uint32_t dwLctrl;    /* received L: play out the L insert code */
    uint32_t dwLmctrl;   /* discard packets with a reserved L/M combination */
    uint32_t dwRctrl;    /* received R (or L 0, M 10): play out the R insert code */
    uint32_t dwRevrctrl; /* while R is sent back: play out the reverse-R idle pattern */
    uint32_t dwTxrevren; /* far end's packets stop: set R by ourselves */
} VQ6192_CES_ALM_CTRL_S;

typedef struct {
    uint16_t wRevRTime;
    uint16_t wET1RevRRecNum;
    uint16_t wET1RevRDropNum;
    uint16_t wET1DisRSlrNum;
    uint16_t wET3RevRRecNum;
    uint16_t wET3RevRDropNum;
    uint16_t wET3DisRSlrNum;
    uint16_t wVC4RevRRecNum;
    uint16_t wVC4RevRDropNum;
    uint16_t wVC4DisRSlrNum;
} VQ6192_CES_REVR_THLD_S;

typedef struct {
    uint16_t wDropCnt;
    uint16_t wSnErrCnt;
    uint16_t wPtlenErrCnt;
    uint16_t wSSRCErrCnt;
    uint32_t dwCorrectCnt;
    uint16_t wEgLRPktCnt;
    uint16_t wEgEthErrCnt;
    uint16_t wSnDropPktCnt;
} VQ6192_CES_PKT_REC_STAT_S;

typedef struct {
    uint32_t dwTsTxCnt;
    uint32_t dwTsRxCnt;
    uint32_t dwDdrRdCnt;
    uint32_t dwDdrWrCnt;
    uint32_t dwJtrBufRdCnt;
    uint32_t dwJtrBufWrCnt;
    uint16_t wOppositeSn;
    uint16_t wOppositeTs0;
    uint16_t wOppositeTs1;
    uint16_t wLocalTs0;
    uint16_t wLocalTs1;
} VQ6192_CES_DBG_STAT_S;

/* Channels. */
VQ6192_API uint32_t VQ6192_CES_CreateCesChan(uint32_t chip, const VQ6192_CES_CHAN_S *chan);
VQ6192_API uint32_t VQ6192_CES_CreateCesChanNoTS(uint32_t chip, const VQ6192_CES_CHAN_NOTS_S *chan);
VQ6192_API uint32_t VQ6192_CES_DelCesChan(uint32_t chip, uint32_t ch, uint32_t e1, uint32_t tsMap);
VQ6192_API uint32_t VQ6192_CES_DelCesChanNoTS(uint32_t chip, uint32_t ch);
VQ6192_API uint32_t VQ6192_CES_CreateE3CesChan(uint32_t chip, const VQ6192_CES_CHAN_S *chan);
VQ6192_API uint32_t VQ6192_CES_DelE3CesChan(uint32_t chip, uint32_t ch, uint32_t e3);
VQ6192_API uint32_t VQ6192_CES_CreateVC4CesChan(uint32_t chip, const VQ6192_CES_CHAN_S *chan,
                                                uint32_t ulSohEn);
VQ6192_API uint32_t VQ6192_CES_CreateVC4CesChanDisIngTs(uint32_t chip, const VQ6192_CES_CHAN_S *chan,
                                                        uint32_t ulSohEn);
VQ6192_API uint32_t VQ6192_CES_DelVC4CesChan(uint32_t chip, uint32_t ch, uint32_t vc4, uint32_t sohTsMap);
VQ6192_API uint32_t VQ6192_CES_DelVC4CesChanDisIngTs(uint32_t chip, uint32_t ch, uint32_t vc4,
                                                     uint32_t sohTsMap);
VQ6192_API uint32_t VQ6192_CES_CreateVC4Soh(uint32_t chip, const VQ6192_CES_CHAN_S *chan);
VQ6192_API uint32_t VQ6192_CES_DelVC4Soh(uint32_t chip, uint32_t ch, uint32_t vc4);
VQ6192_API uint32_t VQ6192_CES_SetCesChanEnable(uint32_t chip, uint32_t ch, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetCesChanEnable(uint32_t chip, uint32_t ch, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_ResetCesChan(uint32_t chip, uint32_t ch);

/* Channel settings. */
VQ6192_API uint32_t VQ6192_CES_SetCesTSCompress(uint32_t chip, uint32_t ch, uint32_t mask, uint32_t dir);
VQ6192_API uint32_t VQ6192_CES_GetCesTSCompress(uint32_t chip, uint32_t ch, uint32_t *mask, uint32_t dir);
VQ6192_API uint32_t VQ6192_CES_SetCesIdleCode(uint32_t chip, uint32_t ch, uint32_t code);
VQ6192_API uint32_t VQ6192_CES_SetCesEmptyCode(uint32_t chip, uint32_t code);
VQ6192_API uint32_t VQ6192_CES_SetCesFramNum(uint32_t chip, uint32_t ch, uint32_t frames);
VQ6192_API uint32_t VQ6192_CES_SetCesJtrBuf(uint32_t chip, uint32_t ch, uint32_t depth, uint32_t delay);
VQ6192_API uint32_t VQ6192_CES_SetCesVc4JstThld(uint32_t chip, uint32_t value);
VQ6192_API uint32_t VQ6192_CES_GetCesVc4JstThld(uint32_t chip, uint32_t *value);
VQ6192_API uint32_t VQ6192_CES_SetCesRTPConfig(uint32_t chip, uint32_t ch, const VQ6192_CES_RTP_CFG_S *cfg,
                                               uint32_t dir);
VQ6192_API uint32_t VQ6192_CES_GetCesRtpConfig(uint32_t chip, uint32_t ch, VQ6192_CES_RTP_CFG_S *cfg,
                                               uint32_t dir);
VQ6192_API uint32_t VQ6192_CES_SetCesPktDropEnable(uint32_t chip, uint32_t ch,
                                                   const VQ6192_CES_PKT_DROP_S *drop);
VQ6192_API uint32_t VQ6192_CES_GetCesPktDropEnable(uint32_t chip, uint32_t ch, VQ6192_CES_PKT_DROP_S *drop);
VQ6192_API uint32_t VQ6192_CES_SetCesAlmCtrl(uint32_t chip, uint32_t ch, const VQ6192_CES_ALM_CTRL_S *ctrl);
VQ6192_API uint32_t VQ6192_CES_GetCesAlmCtrl(uint32_t chip, uint32_t ch, VQ6192_CES_ALM_CTRL_S *ctrl);
/* lrm: L (0/1), R (0/1), M (0..3). */
VQ6192_API uint32_t VQ6192_CES_SetCesTxLRMAlm(uint32_t chip, uint32_t ch, const uint16_t lrm[3]);
VQ6192_API uint32_t VQ6192_CES_GetCesTxLRMAlm(uint32_t chip, uint32_t ch, uint16_t lrm[3]);
VQ6192_API uint32_t VQ6192_CES_SetCesTxLRMAlmBySel(uint32_t chip, uint32_t ch, const uint16_t lrm[3],
                                                   const uint16_t sel[3]);
VQ6192_API uint32_t VQ6192_CES_SetIngFrmToCesAlmMap(uint32_t chip, uint32_t frmCh, uint32_t cesCh,
                                                    uint32_t aisEn, uint32_t rdiEn);
VQ6192_API uint32_t VQ6192_CES_GetIngFrmToCesAlmMap(uint32_t chip, uint32_t frmCh, uint32_t *cesCh,
                                                    uint32_t *aisEn, uint32_t *rdiEn);
VQ6192_API uint32_t VQ6192_CES_SetCesSnType(uint32_t chip, uint32_t ch, uint32_t dir, uint32_t type);
VQ6192_API uint32_t VQ6192_CES_GetCesSnType(uint32_t chip, uint32_t ch, uint32_t dir, uint32_t *type);
VQ6192_API uint32_t VQ6192_CES_GetCesFeSnType(uint32_t chip, uint32_t ch, uint32_t *type);
VQ6192_API uint32_t VQ6192_CES_SetCesInsertCode(uint32_t chip, uint32_t lCode, uint32_t rCode,
                                                uint32_t lVc4Code, uint32_t rVc4Code);
VQ6192_API uint32_t VQ6192_CES_GetCesInsertCode(uint32_t chip, uint8_t *lCode, uint8_t *rCode,
                                                uint8_t *lVc4Code, uint8_t *rVc4Code);
VQ6192_API uint32_t VQ6192_CES_SetCesVc4UnLoadMod(uint32_t chip, uint32_t vc4, uint32_t mode);
VQ6192_API uint32_t VQ6192_CES_GetCesVc4UnLoadMod(uint32_t chip, uint32_t vc4, uint32_t *mode);
VQ6192_API uint32_t VQ6192_CES_SetCesClkSel(uint32_t chip, uint32_t ch, uint32_t sel);
VQ6192_API uint32_t VQ6192_CES_GetCesClkSel(uint32_t chip, uint32_t ch, uint32_t *sel);
VQ6192_API uint32_t VQ6192_CES_SetCesCtrlFcEn(uint32_t chip, uint32_t ch, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetCesCtrlFcEn(uint32_t chip, uint32_t ch, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetTxRevRThld(uint32_t chip, const VQ6192_CES_REVR_THLD_S *thld);
VQ6192_API uint32_t VQ6192_CES_GetTxRevRThld(uint32_t chip, VQ6192_CES_REVR_THLD_S *thld);
VQ6192_API uint32_t VQ6192_CES_GetCesChanPara(uint32_t chip, uint32_t ch, VQ6192_CES_CHAN_PARA_S *para);
VQ6192_API uint32_t Vq6192CesGetChanParaWithoutIdleCode(uint32_t chip, uint32_t ch,
                                                        VQ6192_CES_CHAN_PARA_S *para);
VQ6192_API uint32_t VQ6192_CES_GetCesChanFramNum(uint32_t chip, uint32_t ch, VQ6192_CES_CHAN_PARA_S *para);

/* Chip-wide settings. */
VQ6192_API uint32_t VQ6192_CES_SetCesAlmThld(uint32_t chip, uint32_t thld1, uint32_t thld2);
VQ6192_API uint32_t VQ6192_CES_GetCesAlmThld(uint32_t chip, uint32_t *thld1, uint32_t *thld2);
VQ6192_API uint32_t VQ6192_CES_SetCesFifoThld(uint32_t chip, uint32_t thld);
VQ6192_API uint32_t VQ6192_CES_GetCesFifoThld(uint32_t chip, uint32_t *thld);
VQ6192_API uint32_t VQ6192_CES_SetCesObligateRec(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetCesObligateRec(uint32_t chip, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetCesLoopBack(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetCesLoopBack(uint32_t chip, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetVC4CesLoopBack(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetVC4CesLoopBack(uint32_t chip, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetPlcCode(uint32_t chip, uint32_t high, uint32_t low);
VQ6192_API uint32_t VQ6192_CES_SetTuais(uint32_t chip, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_SetTuaisCfgTime(uint32_t chip, uint32_t time);

/* Alarms and counters. */
VQ6192_API uint32_t VQ6192_CES_GetCesChanAlm(uint32_t chip, uint32_t ch, uint8_t alm[6]);
VQ6192_API uint32_t VQ6192_CES_GetCesChanHistoryAlm(uint32_t chip, uint32_t ch, uint8_t alm[6]);
VQ6192_API uint32_t VQ6192_CES_GetCesRxTxFifoAlm(uint32_t chip, uint8_t alm[12]);
VQ6192_API uint32_t VQ6192_CES_GetCesRxTxFifoHistoryAlm(uint32_t chip, uint8_t alm[12]);
VQ6192_API uint32_t VQ6192_CES_GetCesFifoHisAlm(uint32_t chip, uint32_t ch, uint8_t alm[14]);
VQ6192_API uint32_t VQ6192_CES_GetCesPktSendStat(uint32_t chip, uint32_t ch, uint32_t *cnt);
VQ6192_API uint32_t VQ6192_CES_GetCesPktRecStat(uint32_t chip, uint32_t ch, VQ6192_CES_PKT_REC_STAT_S *stat);
VQ6192_API uint32_t VQ6192_CES_GetCesJtrBufDataStat(uint32_t chip, uint32_t ch, uint16_t *over,
                                                    uint16_t *under, uint32_t *fullDrop);
VQ6192_API uint32_t VQ6192_CES_GetCesDbgStat(uint32_t chip, uint32_t ch, VQ6192_CES_DBG_STAT_S *stat);

/* Pseudowire services: a channel with its packet settings bound to its packet-network header and labels. */
VQ6192_API uint32_t VQ6192_CES_CreateCesPwSrv(uint32_t chip, const VQ6192_CES_PW_S *pw);
VQ6192_API uint32_t VQ6192_CES_CreateCesPwSrvNoTS(uint32_t chip, const VQ6192_CES_PW_NOTS_S *pw);
VQ6192_API uint32_t VQ6192_CES_DelCesPwSrv(uint32_t chip, uint32_t ch, uint32_t e1, uint32_t tsMap);
VQ6192_API uint32_t VQ6192_CES_DelCesPwSrvNoTS(uint32_t chip, uint32_t ch);

/* Module initialisation: mode 1 initialises, 2 leaves the chip as it is. */
VQ6192_API uint32_t VQ6192_CES_InitCesModule(uint32_t chip, uint32_t mode);

/* ---- Clock recovery -------------------------------------------------------------------------------- */

/* Recovery modes; 1 and 3 do not exist. */
#define VQ6192_CES_CR_DIFF 0u
#define VQ6192_CES_CR_STAMP 2u
#define VQ6192_CES_CR_NONE 4u

typedef struct {
    uint32_t eTrMode;      /* VQ6192_CES_CR_DIFF, _STAMP or _NONE */
    uint16_t wCesChanNo;   /* channel that drives the domain */
    uint16_t wClkRateMode; /* 0 E1/T1, 1 E3/T3, 2 VC-4 */
    uint16_t wTrPLCEn;     /* packet-loss compensation 0/1 */
} VQ6192_CES_CR_MODE_S;

/* Level-2 clock of a domain. */
typedef struct {
    uint32_t ulSrcKind;  /* 0..3 */
    uint32_t ulTsInit;   /* timestamp initialisation flag 0/1 */
    uint32_t ulRateType; /* 0 E1/T1, 1 E3/T3, 2, 3 VC-4 */
    uint32_t ulIndex;
} VQ6192_CES_CR_LV2_CLK_S;

VQ6192_API uint32_t VQ6192_CES_SetCesCRMode(uint32_t chip, uint32_t domain, const VQ6192_CES_CR_MODE_S *mode);
VQ6192_API uint32_t VQ6192_CES_GetCesCRMode(uint32_t chip, uint32_t domain, VQ6192_CES_CR_MODE_S *mode);
VQ6192_API uint32_t VQ6192_CES_AddDomain_SetCesCRMode(uint32_t chip, uint32_t domain,
                                                      const VQ6192_CES_CR_MODE_S *mode);
VQ6192_API uint32_t VQ6192_CES_SetCesCRCompensationEnable(uint32_t chip, uint32_t domain, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetCesCRCompensationEnable(uint32_t chip, uint32_t domain, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetCesCompensationEnable(uint32_t chip, uint32_t ch, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetCesCompensationEnable(uint32_t chip, uint32_t ch, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetCesCRIntMode(uint32_t chip, uint32_t enable, uint32_t activeMode,
                                               uint32_t trigMode);
VQ6192_API uint32_t VQ6192_CES_GetCesCRIntMode(uint32_t chip, uint16_t *enable, uint16_t *activeMode,
                                               uint16_t *trigMode);
VQ6192_API uint32_t VQ6192_CES_SelectCesCRProcess(uint32_t chip, uint32_t sel);
VQ6192_API uint32_t VQ6192_CES_GetCesCRProcess(uint32_t chip, uint32_t *sel);
VQ6192_API uint32_t VQ6192_CES_SetCesCRMaxCompensationThld(uint32_t chip, uint32_t num, uint32_t sn);
VQ6192_API uint32_t VQ6192_CES_GetCesCRMaxCompensationThld(uint32_t chip, uint16_t *num, uint16_t *sn);
VQ6192_API uint32_t VQ6192_CES_SetCesCRTimeStampInitMode(uint32_t chip, uint32_t domain, uint32_t num,
                                                         uint32_t mode);
VQ6192_API uint32_t VQ6192_CES_GetCesCRTimeStampInitMode(uint32_t chip, uint32_t domain, uint32_t *num,
                                                         uint32_t *mode);
VQ6192_API uint32_t VQ6192_CES_SetCesTrLinkDownAlmThld(uint32_t chip, uint32_t domain, uint32_t thld);
VQ6192_API uint32_t VQ6192_CES_GetCesTrLinkDownAlmThld(uint32_t chip, uint32_t domain, uint32_t *thld);
VQ6192_API uint32_t VQ6192_CES_SetIngCRLv2Clk(uint32_t chip, uint32_t domain,
                                              const VQ6192_CES_CR_LV2_CLK_S *cfg);
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2Clk(uint32_t chip, uint32_t domain, VQ6192_CES_CR_LV2_CLK_S *cfg);
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2E1Clk(uint32_t chip, uint32_t domain, uint32_t *kind,
                                                uint32_t *index, uint32_t *flag);
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2E3Clk(uint32_t chip, uint32_t domain, uint32_t *kind,
                                                uint32_t *index, uint32_t *flag);
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2VC4Clk(uint32_t chip, uint32_t domain, uint32_t *kind,
                                                 uint32_t *index, uint32_t *flag);
VQ6192_API uint32_t VQ6192_CES_SetIngCRLv1E1Clk(uint32_t chip, uint32_t domain, uint32_t en, uint32_t kind,
                                                uint32_t index, uint32_t flag);
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv1E1Clk(uint32_t chip, uint32_t domain, uint32_t *en, uint32_t *kind,
                                                uint32_t *index, uint32_t *flag);
VQ6192_API uint32_t VQ6192_CES_SetIngCRLv1E3Clk(uint32_t chip, uint32_t e3, uint32_t en);
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv1E3Clk(uint32_t chip, uint32_t e3, uint32_t *en);
VQ6192_API uint32_t VQ6192_CES_SetHtb2BdPllChannel(uint32_t chip, uint32_t domain);
VQ6192_API uint32_t VQ6192_CES_SetBdPllClkSrc(uint32_t chip, uint32_t domain, uint32_t sel);
VQ6192_API uint32_t VQ6192_CES_SetXcrPro(uint32_t chip, uint32_t clk, uint32_t domain, uint32_t ch,
                                         uint32_t en);

/* ---- Diagnostic commands: the result as text in a 48128-byte buffer (null: nothing printed) ---- */
VQ6192_API uint32_t getceschanenable(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcestscompress(uint32_t chip, uint32_t ch, uint32_t dir, char *buf);
VQ6192_API uint32_t getcesvc4jstthld(uint32_t chip, char *buf);
VQ6192_API uint32_t getceschanpara(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcesrtpconfig(uint32_t chip, uint32_t ch, uint32_t dir, char *buf);
VQ6192_API uint32_t getceserrpktdropenable(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcesalmctrl(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcestxlrmalm(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t gettxrevrthld(uint32_t chip, char *buf);
VQ6192_API uint32_t getcesinsertcode(uint32_t chip, char *buf);
VQ6192_API uint32_t getingfrmtocesalmmap(uint32_t chip, uint32_t frmCh, char *buf);
VQ6192_API uint32_t getcesobligaterec(uint32_t chip, char *buf);
VQ6192_API uint32_t getcesloopback(uint32_t chip, char *buf);
VQ6192_API uint32_t getvc4cesloopback(uint32_t chip, char *buf);
VQ6192_API uint32_t getcescompensationenable(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcescrcompensationenable(uint32_t chip, uint32_t domain, char *buf);
VQ6192_API uint32_t getcescrmode(uint32_t chip, char *buf);
VQ6192_API uint32_t getcescrintmode(uint32_t chip, char *buf);
VQ6192_API uint32_t getcescrprocess(uint32_t chip, char *buf);
VQ6192_API uint32_t getcescrmaxcompensationthld(uint32_t chip, char *buf);
VQ6192_API uint32_t getcescrtimestampinitmode(uint32_t chip, uint32_t domain, char *buf);
VQ6192_API uint32_t getcesalmthld(uint32_t chip, char *buf);
VQ6192_API uint32_t getcesfifothld(uint32_t chip, char *buf);
VQ6192_API uint32_t getcespktsendstat(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcespktrecstat(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcesjtrbufdatastat(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcesdbgstat(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getcesrxtxfifoalm(uint32_t chip, char *buf);
VQ6192_API uint32_t getcesrxtxfifohistoryalm(uint32_t chip, char *buf);
VQ6192_API uint32_t getceschanalm(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getceschanhistoryalm(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t getsohbypassmode(uint32_t chip, char *buf);
VQ6192_API uint32_t DbgGetCesConfig(uint32_t chip, uint32_t first, uint32_t last, char *buf);
VQ6192_API uint32_t DbgGetCesPara(uint32_t chip, uint32_t first, uint32_t last, char *buf);
VQ6192_API uint32_t DbgGetCesChannelInfo(uint32_t chip, uint32_t ch, char *buf);
VQ6192_API uint32_t DbgGetCesRtpParam(uint32_t chip, uint32_t ch, char *buf);

VQ6192_EXTERN_C_END

#endif /* VQ6192_CES_H */
