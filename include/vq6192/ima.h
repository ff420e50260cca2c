/* VQ6192 driver SDK: IMA groups and links, group control, ICP cells and hardware diagnostics. C-compatible.
 *
 * IMA status codes carry 13 in their module field: parameter error 0xD0001, time-out 0xD0003, a wait that
 * never ended 0xD0004, group already in use 0xD0006, command refused by the IMA processor 0xD0009, each
 * with the chip bits in front. Two codes carry no chip bits: 0xD0004 from VQ6192_IMA_ResetTc and 0xD000B
 * from the transmit FIFO state read of a link that is not enabled. */
#ifndef VQ6192_IMA_H
#define VQ6192_IMA_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

#define VQ6192_IMA_GRP_NUM 336u
#define VQ6192_IMA_LINK_NUM 336u
#define VQ6192_IMA_MAX_LID 32u

/* IMA processor mailbox command codes. */
typedef enum {
    VQ6192_IMA_CMD_ADD_GROUP = 0,
    VQ6192_IMA_CMD_DELETE_GROUP = 1,
    VQ6192_IMA_CMD_RESTART_GROUP = 2,
    VQ6192_IMA_CMD_INHIBIT_GROUP = 4,
    VQ6192_IMA_CMD_NOT_INHIBIT_GROUP = 5,
    VQ6192_IMA_CMD_START_LASR = 8,
    VQ6192_IMA_CMD_DELETE_LINK = 9,
    VQ6192_IMA_CMD_SET_RX_PHY_DEFECT = 10,
    VQ6192_IMA_CMD_UNUSABLE_LINK = 12,
    VQ6192_IMA_CMD_DELETE_UNI = 13,
    VQ6192_IMA_CMD_UPDATE_TEST_PTN = 16,
    VQ6192_IMA_CMD_UPDATE_TX_TRL = 17,
    VQ6192_IMA_CMD_READ_EVENT = 24,
    VQ6192_IMA_CMD_READ_DELAY = 25
} VQ6192_IMA_CMD_E;

/* One transmit link of a group. */
typedef struct {
    uint8_t ucLid;       /* 0..31 */
    uint8_t ucIcpOffset; /* 0..frame length - 1 */
    uint16_t usPhyLink;  /* 0..335 */
} IMA_TX_LINK;

#pragma pack(push, 1)
/* Group configuration, packed, filled by the caller. */
typedef struct {
    uint8_t byClockMd;      /* 0 ITC, 1 CTC */
    uint8_t bySymmetryMd;   /* 0 symmetric, 1 symmetric configuration / asymmetric operation, 2 asymmetric */
    uint8_t byImaVersion;   /* 0..1 */
    uint8_t byImaOamLabel;  /* 1 (IMA 1.0) or 3 (IMA 1.1) */
    uint8_t byRxImaIdCfgEn; /* 1: receive IMA ID configured, 0: learnt */
    uint8_t byRxImaId;
    uint8_t byTxImaId;
    uint16_t wTxVphy;   /* 0..335 */
    uint16_t wRxVphy;   /* 0..335 */
    uint8_t byRxM;      /* 1..15: accepted receive frame lengths (bit 0 32 .. bit 3 256) */
    uint8_t byPRx;      /* 1..32 */
    uint8_t byTxM;      /* 0..3: frame length 32, 64, 128, 256 */
    uint8_t byPTx;      /* 1..32 */
    uint16_t wMaxDelay; /* 0..1023 */
    uint8_t byStuffMd;
    uint8_t byStuffAdvMd; /* 1 or 4 */
    uint16_t wTxTrlPhy;   /* the transmit timing reference link: one of the transmit links */
    uint16_t wNumRxLinks;
    uint16_t wNumTxLinks;
    uint16_t pusRxLinks[32];
    IMA_TX_LINK pstTxLinks[32];
} IMA_GRP_CFG;
#pragma pack(pop)

/* Group state (VQ6192_IMA_GetImaGrpStatus). */
typedef struct {
    uint8_t byNeGsmState;
    uint8_t byFeGsmState;
    uint8_t byGtsmState;
    uint8_t byInhibitStatus;
    uint8_t byRxImaId;
    uint8_t byRxM;
    uint8_t byRxTrlLid;
    uint8_t byGwpActive;
    uint8_t byTimingError;
    uint16_t wRxTrlPhyLink;
    uint16_t wNumTxLinks;
    uint16_t wNumTxLinksActv;
    uint16_t wNumRxLinks;
    uint16_t wNumRxLinksActv;
} IMA_GRP_STATUS;

/* Link state (VQ6192_IMA_GetImaLinkStatus), 17 bytes. */
typedef struct {
    uint8_t byNeTxState;
    uint8_t byFeRxState;
    uint8_t byFeRxDefect;
    uint8_t byNeRxState;
    uint8_t byFeTxState;
    uint8_t byRxLid;
    uint8_t byRxIcpOffset;
    uint8_t byRxLcd;
    uint8_t byRxOcd;
    uint8_t byRxLif;
    uint8_t byRxLodsOvr;
    uint8_t byRxLodsUdr;
    uint8_t byDelayGood;
    uint8_t byRxUuse;
    uint8_t byRxCause;
    uint8_t byTxUuse;
    uint8_t byTxCause;
} IMA_LINK_STATUS;

/* Group counters (read-clear in the chip). */
typedef struct {
    uint32_t dwTxDiscardCells;
    uint32_t dwTxUserCells;
    uint32_t dwTxFillerCells;
    uint32_t dwRxUserCells;
    uint32_t dwRxFillerCells;
} IMA_GRP_STAT;

/* Link counters (read-clear in the chip). */
typedef struct {
    uint32_t dwTxUserCells;
    uint32_t dwTxStuffCells;
    uint32_t dwRxUserCells;
    uint32_t dwRxStuffCells;
    uint32_t dwRxDroppedCells;
    uint32_t dwRxOifAnomalies;
    uint32_t dwRxIcpViolations;
    uint32_t dwRxIcpCells;
    uint32_t dwRxFillerCells;
} IMA_LINK_STAT;

/* Mask or value record of a running-group parameter change. */
typedef struct {
    uint8_t byClockMd;
    uint8_t bySymmetryMd;
    uint8_t byImaVersion; /* selects nothing of its own */
    uint8_t byImaOamLabel;
    uint8_t byRxImaIdCfgEn;
    uint8_t byRxImaId;
    uint8_t byTxImaId;
    uint8_t byRxM;
    uint8_t byPRx;
    uint8_t byTxM;
    uint8_t byPTx;
    uint16_t wMaxDelay;
} IMA_GRP_PARAM;

/* Group event fetched from the IMA processor. */
typedef struct {
    uint16_t wFeRestartInt;
    uint16_t wFeTrlInt;
    uint16_t wGrTimingInt;
    uint16_t wFeGpTimeoutInt;
    uint16_t wNeGpTimeoutInt;
    uint16_t wFeConfigAbortInt;
    uint16_t wNeConfigAbortInt;
    uint16_t wNeGtsmInt;
    uint16_t wFeGsmInt;
    uint16_t wNeGsmInt;
    uint16_t wFeTrlStatus;
    uint16_t wGroupTimingError;
    uint16_t wNeGtsmSt;
    uint16_t wFeGsmSt;
    uint16_t wNeGsmSt;
    uint32_t dwTxPhyValid;
    uint32_t dwRxPhyValid;
} IMA_GRP_EVENT;

#define VQ6192_IMA_EVENT_LINK_FLAGS 23u

/* Differential delay of one LID. */
typedef struct {
    uint16_t wWritePtr;
    uint8_t byOverRun;
    uint8_t byLif;
    uint8_t byIfsm;
    uint8_t byLcd;
} IMA_LINK_DELAY;

typedef struct {
    uint32_t dwReadPtr;
    uint32_t dwLinkActive;
    IMA_LINK_DELAY astLink[32];
} IMA_DELAY_INFO;

/* ATM TC link configuration, transmit side. */
typedef struct {
    uint8_t byTxLinkEn;
    uint8_t byTxScramblerEn;
    uint8_t byTxPloyAddEn;
    uint8_t byTxBitReverseEn;
    uint8_t byTxIdleInsertEn;
    uint8_t byTxHecInsertType; /* 0 none, 1 computed, 3 fixed */
    uint8_t byTxHecInsertData;
    uint8_t byTxIdleCellHead4;
    uint8_t byTxIdleCellHead3;
    uint8_t byTxIdleCellHead2;
    uint8_t byTxIdleCellHead1;
} TC_TX_CFG;

/* ATM TC link configuration, receive side. */
typedef struct {
    uint32_t dwRxHeader;
    uint32_t dwRxHeaderMask;
    uint8_t byRxLinkEn;
    uint8_t byRxScramblerEn;
    uint8_t byRxPloyAddEn;
    uint8_t byRxBitReverseEn;
    uint8_t byRxHecCcheckEn; /* no hardware field */
    uint8_t byRxHecCorrectEn;
    uint8_t byRxIdleFilterEn;
    uint8_t byRxHecFilterEn;
    uint8_t byRxOcdFilterEn;
    uint8_t byRxCdfsmAlpha;
    uint8_t byRxCdfsmBeta; /* not written; read back as the DELTA value */
    uint8_t byRxCdfsmDelta;
    uint8_t byRxHecCorrectM;
    uint8_t byRxLcdTimer;
} TC_RX_CFG;

/* Cell capture filters. */
typedef struct {
    uint16_t wFlag;
    uint16_t wCapMode;
    uint16_t wSelect;
    uint16_t wSubMode;
    uint16_t wValueA;
    uint16_t wValueB;
    uint16_t wFilterNum; /* 0..32 */
    uint16_t awLink[32];
    uint16_t awValueC[32];
} IMA_CAP_FILTER;

/* Cell capture readout: dwCapLen 0 asks for the size the data buffer needs. */
typedef struct {
    IMA_CAP_FILTER stFilter;
    uint32_t dwCapLen;
    uint32_t adwBlockStart[32];
    uint8_t *pbyData;
} IMA_CAP_DATA;

/* ---- Groups and links -------------------------------------------------------------------------- */

VQ6192_API uint32_t VQ6192_IMA_InitIma(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_IMA_ResetIma(uint32_t chip);
VQ6192_API uint32_t VQ6192_IMA_checkGrpParams(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_IMA_AddImaGrp(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_IMA_DelImaGrp(uint32_t chip, uint32_t grp);
VQ6192_API uint32_t VQ6192_IMA_AddImaLink(uint32_t chip, uint32_t startLasr, uint32_t grp, uint32_t numRx,
                                          uint32_t numTx, const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                          const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_IMA_DelImaLink(uint32_t chip, uint32_t grp, uint32_t numRx, uint32_t numTx,
                                          const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                          uint32_t symmetryMode);
VQ6192_API uint32_t VQ6192_IMA_AddTcLink(uint32_t chip, uint32_t link, uint32_t grp, uint32_t grp2);
VQ6192_API uint32_t VQ6192_IMA_DelTcLink(uint32_t chip, uint32_t link);
VQ6192_API uint32_t VQ6192_IMA_AddVc4(uint32_t chip, uint32_t vc4, uint32_t grp);
VQ6192_API uint32_t VQ6192_IMA_DelVc4(uint32_t chip, uint32_t vc4, uint32_t grp);
VQ6192_API uint32_t VQ6192_IMA_GetImaVC4Cfg(uint32_t chip, uint32_t vc4, uint16_t *enabled,
                                            uint16_t *portEnable, uint16_t *grp);
VQ6192_API uint32_t VQ6192_IMA_ResetTc(uint32_t chip, uint32_t which, uint32_t n, const uint16_t *links);
VQ6192_API uint32_t VQ6192_IMA_ResetVc(uint32_t chip);
VQ6192_API uint32_t VQ6192_IMA_RunCmd(uint32_t chip, uint32_t code, const uint32_t para[4]);
VQ6192_API uint32_t VQ6192_IMA_SetImaLinkParam(uint32_t chip, uint32_t alpha, uint32_t beta, uint32_t gamma);
VQ6192_API uint32_t VQ6192_IMA_GetImaLinkParam(uint32_t chip, uint16_t *alpha, uint16_t *beta,
                                               uint16_t *gamma);
VQ6192_API uint32_t VQ6192_IMA_SetAutoProcEn(uint32_t chip, uint32_t mask, uint32_t enable);
VQ6192_API uint32_t VQ6192_IMA_GetImaGrpCfg(uint32_t chip, uint32_t grp, IMA_GRP_CFG *cfg, uint16_t *groupEn);

/* Steps of the group and link operations. */
VQ6192_API uint32_t VQ6192_utlRippCmd(uint32_t chip, uint32_t code, const uint32_t para[4]);
VQ6192_API uint32_t VQ6192_utlTransIdxID(uint32_t chip, uint32_t tableId, uint32_t number, uint32_t word,
                                         uint32_t *index);
VQ6192_API uint32_t VQ6192_setupTxLinksVec(uint32_t chip, uint32_t numTx, const IMA_TX_LINK *txLinks,
                                           uint32_t *vec);
VQ6192_API uint32_t VQ6192_setupRxLinksVec(uint32_t chip, uint32_t numRx, const uint16_t *rxLinks,
                                           const IMA_TX_LINK *txLinks, uint32_t symmetryMode, uint32_t *vec);
VQ6192_API uint32_t VQ6192_imaAddGrp(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_imaAddLinks(uint32_t chip, uint32_t startLasr, uint32_t grp, uint32_t numRx,
                                       uint32_t numTx, const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                       const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_clrTimaGrpParams(uint32_t chip, uint32_t grp);
VQ6192_API uint32_t VQ6192_setTimaGrpParams(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_setTimaLinkParams(uint32_t chip, uint32_t numTx, const IMA_TX_LINK *txLinks);
VQ6192_API uint32_t VQ6192_setTimaLid2PhyMap(uint32_t chip, uint32_t grp, uint32_t numTx,
                                             const IMA_TX_LINK *txLinks);
VQ6192_API uint32_t VQ6192_setTimaCommParams(uint32_t chip, uint32_t grp, uint32_t n, uint32_t add,
                                             const uint16_t *links);
VQ6192_API uint32_t VQ6192_setRippGrpParams(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg);
VQ6192_API uint32_t VQ6192_setRippTxLinkParams(uint32_t chip, uint32_t grp, uint32_t numTx,
                                               const IMA_TX_LINK *txLinks);
VQ6192_API uint32_t VQ6192_setRippRxLinkParams(uint32_t chip, uint32_t grp, uint32_t numRx,
                                               const uint16_t *rxLinks);
VQ6192_API uint32_t VQ6192_setRippRxPhyTbl(uint32_t chip, uint32_t grp, uint32_t numRx,
                                           const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                           uint32_t symmetryMode);
VQ6192_API uint32_t VQ6192_getRippRxPhyTbl(uint32_t chip, uint32_t grp, uint16_t table[32]);
VQ6192_API uint32_t VQ6192_clrRdatGrpParams(uint32_t chip, uint32_t grp);
VQ6192_API uint32_t VQ6192_setRdatGrpParams(uint32_t chip, uint32_t grp, uint32_t maxDelay);
VQ6192_API uint32_t VQ6192_setRdatScvcParams(uint32_t chip, uint32_t grp, uint32_t n, const uint16_t *links,
                                             uint32_t enable);
VQ6192_API uint32_t VQ6192_getLidFromPhy(uint32_t chip, uint32_t phy, uint32_t numTx,
                                         const IMA_TX_LINK *txLinks, uint32_t *lid);
VQ6192_API uint32_t VQ6192_getTimaLinkParams(uint32_t chip, uint32_t grp, uint16_t lidMap[32],
                                             uint8_t icpOffset[32]);
VQ6192_API uint32_t VQ6192_checkRxLinkParams(uint32_t chip, uint32_t n, const uint16_t *rxLinks);
VQ6192_API uint32_t VQ6192_checkTxLinkParams(uint32_t chip, uint32_t n, const IMA_TX_LINK *txLinks,
                                             uint32_t txM);
VQ6192_API uint32_t VQ6192_tcAddTxLink(uint32_t chip, uint32_t link, uint32_t grp);
VQ6192_API uint32_t VQ6192_tcAddRxLink(uint32_t chip, uint32_t link, uint32_t grp);

/* ---- Group control, state and counters ----------------------------------------------------------- */

VQ6192_API uint32_t VQ6192_IMA_SetImaGrpStatus(uint32_t chip, uint32_t grp, uint32_t inhibit);
VQ6192_API uint32_t VQ6192_IMA_Lasr(uint32_t chip, uint32_t grp, uint32_t numRx, uint32_t numTx,
                                    const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                    uint32_t symmetryMode);
VQ6192_API uint32_t VQ6192_IMA_SetImaLinkStatus(uint32_t chip, uint32_t grp, uint32_t numRx, uint32_t numTx,
                                                const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                                uint32_t rxReason, uint32_t txReason, uint32_t symmetryMode);
VQ6192_API uint32_t VQ6192_IMA_SetImaLinkDefect(uint32_t chip, uint32_t grp, uint32_t n,
                                                const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                                uint32_t defect, uint32_t symmetryMode);
VQ6192_API uint32_t VQ6192_IMA_UpdateTestPtn(uint32_t chip, uint32_t grp, uint32_t rxTestEn,
                                             uint32_t rxPattern, uint32_t txTestLid, uint32_t txTestEn,
                                             uint32_t txPattern);
VQ6192_API uint32_t VQ6192_IMA_UpdateTxTrl(uint32_t chip, uint32_t grp, uint32_t lid);
VQ6192_API uint32_t VQ6192_IMA_Restart(uint32_t chip, uint32_t grp);
VQ6192_API uint32_t VQ6192_IMA_ForceLinkDeleted(uint32_t chip, uint32_t link, uint32_t grp, uint32_t lid);
VQ6192_API uint32_t VQ6192_ImaLinkLinkDeleted(uint32_t chip, uint32_t link, uint32_t *deleted);
VQ6192_API uint32_t VQ6192_IMA_SetImaGrpParam(uint32_t chip, uint32_t grp, uint32_t reserved,
                                              const IMA_GRP_PARAM *mask, const IMA_GRP_PARAM *value);
VQ6192_API uint32_t VQ6192_IMA_GetImaGrpStatus(uint32_t chip, uint32_t grp, IMA_GRP_STATUS *status);
VQ6192_API uint32_t VQ6192_IMA_GetImaLinkStatus(uint32_t chip, uint32_t link, IMA_LINK_STATUS *status,
                                                uint32_t which);
VQ6192_API uint32_t VQ6192_IMA_GetImaGrpStat(uint32_t chip, uint32_t grp, IMA_GRP_STAT *stat);
VQ6192_API uint32_t VQ6192_IMA_GetUniGrpStat(uint32_t chip, uint32_t grp, IMA_GRP_STAT *stat);
VQ6192_API uint32_t VQ6192_IMA_GetImaLinkStat(uint32_t chip, uint32_t link, IMA_LINK_STAT *stat,
                                              uint32_t which);
VQ6192_API uint32_t VQ6192_IMA_GetUniLinkStat(uint32_t chip, uint32_t link, IMA_LINK_STAT *stat);
VQ6192_API uint32_t VQ6192_IMA_GetImaLinkCfg(uint32_t chip, uint32_t link, uint16_t out[5]);
VQ6192_API uint32_t VQ6192_IMA_GetImaTxLinkCfg(uint32_t chip, uint32_t link, IMA_TX_LINK *txLink);
VQ6192_API uint32_t VQ6192_IMA_SetImaGrpInt(uint32_t chip, uint32_t grp, uint32_t mask, uint32_t enable);
VQ6192_API uint32_t VQ6192_IMA_SetImaLinkInt(uint32_t chip, uint32_t link, uint32_t side, uint32_t mask,
                                             uint32_t enable);
VQ6192_API uint32_t VQ6192_IMA_SetImaIntEnable(uint32_t chip, uint32_t level, uint32_t mask, uint32_t enable);
VQ6192_API uint32_t VQ6192_IMA_GetImaIntInfo(uint32_t chip, uint16_t *grp, IMA_GRP_EVENT *event,
                                             uint8_t linkFlags[23][32], uint16_t *valid);
VQ6192_API uint32_t VQ6192_IMA_GetImaIntFeRestart(uint32_t chip, uint16_t *grp, uint16_t *feRestart,
                                                  uint16_t *valid);
VQ6192_API uint32_t VQ6192_IMA_GetImaIcpCell(uint32_t chip, uint32_t index, uint8_t *cell, uint32_t send);
VQ6192_API uint32_t VQ6192_imaGetSendIcpCell(uint32_t chip, uint32_t grp, uint8_t cell[41]);
VQ6192_API uint32_t VQ6192_imaGetLinkIcpCell(uint32_t chip, uint32_t link, uint8_t cell[48]);
VQ6192_API uint32_t VQ6192_IMA_GetTestPtn(uint32_t chip, uint32_t grp, uint16_t *rxEn, uint16_t *rxPtn,
                                          uint16_t *txLid, uint16_t *txEn, uint16_t *txPtn);
VQ6192_API uint32_t VQ6192_IMA_GetTestMatch(uint32_t chip, uint32_t grp, uint32_t *match);
VQ6192_API uint32_t VQ6192_IMA_GetRxTestPtn(uint32_t chip, uint32_t grp, uint32_t n, const uint16_t *links,
                                            uint8_t *out);
VQ6192_API uint32_t VQ6192_IMA_GetDelayInfo(uint32_t chip, uint32_t grp, IMA_DELAY_INFO *info);
VQ6192_API uint32_t VQ6192_IMA_SetImaTimeTick(uint32_t chip, uint32_t value);
VQ6192_API uint32_t VQ6192_IMA_GetImaTimeTick(uint32_t chip, uint16_t *value);
VQ6192_API uint32_t VQ6192_IMA_SetImaLoop(uint32_t chip, uint32_t mask, uint32_t enable);
VQ6192_API uint32_t VQ6192_IMA_GetImaLoop(uint32_t chip, uint32_t *mask);

/* ATM TC links. */
VQ6192_API uint32_t VQ6192_IMA_SetTcLinkParam(uint32_t chip, uint32_t n, const uint16_t *links,
                                              const TC_TX_CFG *tx, const TC_RX_CFG *rx);
VQ6192_API uint32_t VQ6192_IMA_GetTcLinkParam(uint32_t chip, uint32_t n, const uint16_t *links, TC_TX_CFG *tx,
                                              TC_RX_CFG *rx);
VQ6192_API uint32_t VQ6192_IMA_GetTcLinkStatus(uint32_t chip, uint32_t link, uint16_t rx0[15],
                                               uint16_t rx1[6], uint32_t rx2[9], uint32_t tx[11]);
VQ6192_API uint32_t VQ6192_tcGetRxLinkState(uint32_t chip, uint32_t link, uint16_t rx0[15], uint16_t rx1[6],
                                            uint32_t rx2[9]);
VQ6192_API uint32_t VQ6192_tcGetTxLinkState(uint32_t chip, uint32_t link, uint32_t tx[11]);
VQ6192_API uint32_t VQ6192_IMA_GetTcLinkFifoStatus(uint32_t chip, uint32_t link, uint16_t rxTsif[4],
                                                   uint16_t rxImaif[5], uint16_t txTsif[4],
                                                   uint16_t txImaif[5]);
VQ6192_API uint32_t VQ6192_tcGetRxLinkFifoState(uint32_t chip, uint32_t link, uint16_t tsif[4],
                                                uint16_t imaif[5]);
VQ6192_API uint32_t VQ6192_tcGetTxLinkFifoState(uint32_t chip, uint32_t link, uint16_t tsif[4],
                                                uint16_t imaif[5]);

/* Cell capture. */
VQ6192_API uint32_t VQ6192_IMA_SetImaCapture(uint32_t chip, const IMA_CAP_FILTER *filter);
VQ6192_API uint32_t VQ6192_IMA_StartImaCapture(uint32_t chip, uint32_t count);
VQ6192_API uint32_t VQ6192_IMA_StopImaCapture(uint32_t chip);
VQ6192_API uint32_t VQ6192_IMA_GetImaCapture(uint32_t chip, IMA_CAP_DATA *capture);

/* ---- Hardware diagnostics ------------------------------------------------------------------------ */

#define MCARD_IMA_DIAG_CHIP_MAX 33u
VQ6192_API extern uint32_t g_uiKx9rDiagExtraPara[10];
VQ6192_API extern const uint32_t g_MCARD_IMA_DIAG_EXTRA_PARA_MAX_INDEX;

VQ6192_API int32_t MCARD_IMA_Dbg_ImaHardWareInfo(uint32_t chip, uint32_t type, uint32_t arg1, uint32_t arg2,
                                                 char *buf);
VQ6192_API int32_t MCARD_IMA_Dbg_ImaHardWareInfoHelp(uint32_t chip, char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetTable(uint32_t chip, uint32_t tableId, uint32_t index, char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetImapp(uint32_t chip, uint32_t tableSel, uint32_t object,
                                                  char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetImatx(uint32_t chip, uint32_t tableSel, uint32_t object,
                                                  char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetImarx(uint32_t chip, uint32_t tableSel, uint32_t object,
                                                  char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareSetExtraPara(uint32_t chip, uint32_t index, uint32_t value,
                                                      char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareSetImaIss(uint32_t chip, uint32_t command, uint32_t group,
                                                   char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGet6192Dump(uint32_t chip, uint32_t module, uint32_t object,
                                                     char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetAtmConnCfg(uint32_t chip, uint32_t connId, uint32_t dir,
                                                       char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetAtmPwe3Cfg(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetAtmDrop(uint32_t chip, char *buf);
VQ6192_API int32_t MCARD_IMA_DiagHardwarePrint6192Table(uint32_t chip, uint32_t tableId, uint32_t object,
                                                        uint32_t word, char *buf);

/* ---- Diagnostic commands ------------------------------------------------------------------------- */

VQ6192_API uint32_t strcc(uintptr_t arg, uint32_t *value, uint32_t *isNumber);
VQ6192_API uint32_t getimagrpstatus(uint32_t chip, uint32_t grp, char *buf);
VQ6192_API uint32_t gettclinkparam(uint32_t chip, uint32_t link, char *buf);
VQ6192_API uint32_t getimalinkparam(uint32_t chip, char *buf);
VQ6192_API uint32_t gettclinkstatus(uint32_t chip, uint32_t link, char *buf);
VQ6192_API uint32_t getimalinkstatus(uint32_t chip, uint32_t link, uint32_t which, char *buf);
VQ6192_API uint32_t getimagrpstat(uint32_t chip, uint32_t grp, char *buf);
VQ6192_API uint32_t getunigrpstat(uint32_t chip, uint32_t grp, char *buf);
VQ6192_API uint32_t getimalinkstat(uint32_t chip, uint32_t link, uint32_t which, char *buf);
VQ6192_API uint32_t getunilinkstat(uint32_t chip, uint32_t link, char *buf);
VQ6192_API uint32_t getimaloop(uint32_t chip, char *buf);
VQ6192_API uint32_t getimaicpcell(uint32_t chip, uint32_t index, uint32_t send, char *buf);
VQ6192_API uint32_t gettestptn(uint32_t chip, uint32_t grp, char *buf);
VQ6192_API uint32_t gettestmatch(uint32_t chip, uint32_t grp, char *buf);
VQ6192_API uint32_t getrxtestptn(uint32_t chip, uint32_t grp, uint32_t n, const uint16_t *links, char *buf);
VQ6192_API uint32_t getdelayinfo(uint32_t chip, uint32_t grp, char *buf);
VQ6192_API uint32_t getimatimetick(uint32_t chip, char *buf);

VQ6192_EXTERN_C_END

#endif /* VQ6192_IMA_H */
