/* VQ6192 driver SDK: ATM connections, traffic, OAM cells, pseudowires, statistics and capture. C-compatible.
 */
#ifndef VQ6192_ATM_H
#define VQ6192_ATM_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* ---- Connections and switching tables ------------------------------------------------------------ */

#define VQ6192_ATM_VCX_NUM 8192u        /* connections 0..8191 */
#define VQ6192_ATM_LINE_PORT_NUM 336u   /* line ports 0..335 */
#define VQ6192_ATM_SYS_PORT_NUM 2048u   /* system ports (pseudowires) 0..2047 */
#define VQ6192_ATM_LINK_NUM 4096u       /* bidirectional links 0..4095 */
#define VQ6192_ATM_BM_TEMPLATE_NUM 320u /* 5 service types x 64 templates */

/* Direction of a connection (field Tag). */
typedef enum {
    DRV_VQ6192_ATM_DIR_INGRESS = 0, /* line port to system port */
    DRV_VQ6192_ATM_DIR_EGRESS = 1,  /* system port to line port */
    DRV_VQ6192_ATM_DIR_LOCAL = 2    /* line port to line port */
} DRV_VQ6192_ATM_DIR_E;

#pragma pack(push, 1)
/* One connection: 31 bytes. */
typedef struct {
    uint16_t Vcx;
    uint16_t Tag;
    uint16_t cType; /* 0 VPC, 1 VCC */
    uint16_t SrcPort;
    uint16_t SrcVpi;
    uint16_t SrcVci;
    uint16_t DstPort;
    uint16_t DstVpi;
    uint16_t DstVci;
    uint16_t Stype; /* 1 CBR, 2 rt-VBR, 3 nrt-VBR, 4 UBR+, 5 UBR */
    uint16_t UpcNpc;
    uint16_t PolicingId;
    uint16_t Qid;
    uint8_t Clpt;
    uint8_t Fd;
    uint8_t Pfd;
    uint8_t Red;
    uint8_t idx;
} ATM_SRV_CONN;

/* A pair of connections (kind 1: ingress + egress of link wLink) or one local connection (kind 2:
 * VCX wLink); the system-port words name the second line port of a local connection. */
typedef struct {
    uint16_t wLink;
    uint16_t wKind;
    uint16_t cType;
    uint16_t wLinePort;
    uint16_t wLineVpi;
    uint16_t wLineVci;
    uint16_t wSysPort;
    uint16_t wSysVpi;
    uint16_t wSysVci;
    uint16_t wInStype;
    uint16_t wEgStype;
    uint16_t wInUpcNpc;
    uint16_t wEgUpcNpc;
    uint16_t wInPolicingId;
    uint16_t wEgPolicingId;
    uint16_t Qid;
    uint8_t Clpt;
    uint8_t Fd;
    uint8_t Pfd;
    uint8_t Red;
    uint8_t idx;
} ATM_SRV_CONN_BOTH;

/* A pair whose two legs are given independently. */
typedef struct {
    uint16_t wLink;
    uint16_t wKind;
    uint16_t cType;
    uint16_t wInSrcPort;
    uint16_t wInSrcVpi;
    uint16_t wInSrcVci;
    uint16_t wInDstPort;
    uint16_t wInDstVpi;
    uint16_t wInDstVci;
    uint16_t wEgSrcPort;
    uint16_t wEgSrcVpi;
    uint16_t wEgSrcVci;
    uint16_t wEgDstPort;
    uint16_t wEgDstVpi;
    uint16_t wEgDstVci;
    uint16_t wInStype;
    uint16_t wEgStype;
    uint16_t wInUpcNpc;
    uint16_t wEgUpcNpc;
    uint16_t wInPolicingId;
    uint16_t wEgPolicingId;
    uint16_t Qid;
    uint8_t Clpt;
    uint8_t Fd;
    uint8_t Pfd;
    uint8_t Red;
    uint8_t idx;
} ATM_SRV_CONN_BOTH_SINGLE;
#pragma pack(pop)

/* Rows of the connection shadow: the connection padded to 32 bytes, then the in-use flag. */
typedef struct {
    ATM_SRV_CONN stConn;
    uint8_t ucPad;
    uint32_t ulUsed;
} ATM_CONN_DATA;

typedef struct {
    uint16_t wUsed;
    uint16_t LcptPort;
    uint16_t ScptPort;
    uint32_t BmPause;
    uint32_t BmCancel;
    uint32_t BmFifoDrop;
} ATM_PORT_DATA;

/* Drop-threshold template. */
typedef struct {
    uint16_t wBmClp0S0;
    uint16_t wBmClp1S1;
    uint8_t bBmWeight;
    uint32_t dwBmRedMin;
    uint32_t dwBmRedMax;
    uint32_t dwBmFdTh0;
    uint32_t dwBmFdTh1;
    uint32_t dwBmClpTh0;
    uint32_t dwBmClpTh1;
} ATM_BM_TH;

typedef struct {
    uint16_t wIdx;
    uint16_t wServiceType; /* 0: row unused */
    ATM_BM_TH stTh;
} ATM_BM_TEMPLATE_DATA;

/* Storage filled by the layer above; the diagnostic listings read it. */
VQ6192_API extern ATM_CONN_DATA g_conndata[VQ6192_ATM_VCX_NUM];
VQ6192_API extern ATM_PORT_DATA g_atmportdata[VQ6192_ATM_LINE_PORT_NUM];
VQ6192_API extern ATM_BM_TEMPLATE_DATA g_bmtemplatedata[VQ6192_ATM_BM_TEMPLATE_NUM];

VQ6192_API uint32_t VQ6192_ATM_GetAtmVcx(uint32_t chip, uint32_t wLink, uint32_t dir, uint16_t *wVCX);
VQ6192_API uint32_t VQ6192_ATM_IsConnParasLegal(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_AddAtmSrvConn(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_AddAtmFwdConn(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_AddAtmBwdConn(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_AddAtmLocalConn(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_AddAtmSrvConnBoth(uint32_t chip, const ATM_SRV_CONN_BOTH *conn);
VQ6192_API uint32_t VQ6192_ATM_AddAtmSrvConnBothAndSingle(uint32_t chip,
                                                          const ATM_SRV_CONN_BOTH_SINGLE *conn);
VQ6192_API uint32_t VQ6192_ATM_DelAtmSrvConn(uint32_t chip, const uint16_t rec[2]);
VQ6192_API uint32_t VQ6192_ATM_DelAtmSrvConnBoth(uint32_t chip, const uint16_t rec[2]);
VQ6192_API uint32_t VQ6192_ATM_GetAtmSrvConn(uint32_t chip, uint32_t vcx, ATM_SRV_CONN *conn);

VQ6192_API uint32_t VQ6192_ATM_SetAtmTcam(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_SetAtmVcs(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_SetAtmVct(uint32_t chip, const ATM_SRV_CONN *conn);
VQ6192_API uint32_t VQ6192_ATM_SetAtmSpct(uint32_t chip, uint32_t systemPort);
VQ6192_API uint32_t VQ6192_ATM_SetAtmLpct(uint32_t chip, uint32_t linePort);
VQ6192_API uint32_t VQ6192_ATM_SetAtmVcxEn(uint32_t chip, uint32_t vcx, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetAtmVcxEnStat(uint32_t chip, uint32_t vcx, uint8_t *byEnable);

VQ6192_API uint32_t VQ6192_ATM_SetAtmUpcNpcEn(uint32_t chip, uint32_t vcx, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetAtmUpcNpcEnStat(uint32_t chip, uint32_t vcx, uint8_t *byEnable);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPolicingID(uint32_t chip, uint32_t vcx, uint32_t upcNpc,
                                                uint32_t wPolicingID);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPolicingID(uint32_t chip, uint32_t vcx, uint16_t *wPolicingID);
VQ6192_API uint32_t VQ6192_ATM_GetLinkType(uint32_t chip, uint32_t vcx, uint16_t *wType);

/* ---- Ports ------------------------------------------------------------------------------------------ */

VQ6192_API uint32_t VQ6192_ATM_SetAtmPortEn(uint32_t chip, uint32_t port, uint32_t side, uint32_t byEnable);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPortEnStat(uint32_t chip, uint32_t port, uint32_t side,
                                                uint8_t *byEnable);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPortType(uint32_t chip, uint32_t port, uint32_t side,
                                              uint32_t byUniFlag);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPortType(uint32_t chip, uint32_t port, uint32_t side,
                                              uint8_t *byUniFlag);

VQ6192_API uint32_t VQ6192_ATM_AddAtmTransConn(uint32_t chip, uint32_t linePort, uint32_t systemPort,
                                               const uint32_t th[3]);
VQ6192_API uint32_t VQ6192_ATM_AddAtmTransConnSingle(uint32_t chip, uint32_t port, uint32_t peerPort,
                                                     uint32_t side, const uint32_t th[3]);
VQ6192_API uint32_t VQ6192_ATM_DelAtmTransConn(uint32_t chip, uint32_t linePort, uint32_t systemPort);
VQ6192_API uint32_t VQ6192_ATM_DelAtmTransConnSingle(uint32_t chip, uint32_t port, uint32_t side);
VQ6192_API uint32_t VQ6192_ATM_GetAtmTransConnSingle(uint32_t chip, uint32_t port, uint32_t side,
                                                     uint8_t *byPortMap, uint16_t *wDstPort);
VQ6192_API uint32_t VQ6192_ATM_GetAtmTransFiFo(uint32_t chip, uint32_t linePort, uint32_t th[3]);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPortLoopMode(uint32_t chip, uint32_t linePort, const uint32_t th[3]);
VQ6192_API uint32_t VQ6192_ATM_DelAtmPortLoopMode(uint32_t chip, uint32_t linePort);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPortLoopMode(uint32_t chip, uint32_t linePort, uint8_t *byLoop);

/* ---- Queues and buffers ----------------------------------------------------------------------------- */

VQ6192_API uint32_t VQ6192_ATM_DelAtmBwdQm(uint32_t chip, uint32_t index, uint32_t kind);
VQ6192_API uint32_t VQ6192_ATM_SetAtmQm(uint32_t chip, uint32_t queueIndex, uint32_t port,
                                        uint32_t serviceType, uint32_t qid);
VQ6192_API uint32_t VQ6192_ATM_GetAtmQm(uint32_t chip, uint32_t queueIndex, uint16_t *wPort,
                                        uint32_t *renServiceType, uint16_t *wQid);
VQ6192_API uint32_t VQ6192_ATM_SetAtmBmPvc(uint32_t chip, uint32_t vcx, const uint8_t bm[5]);
VQ6192_API uint32_t VQ6192_ATM_GetAtmBmPvc(uint32_t chip, uint32_t vcx, uint8_t bm[5]);
VQ6192_API uint32_t VQ6192_ATM_SetAtmImaQmTm(uint32_t chip, uint32_t linePort, uint32_t links,
                                             uint32_t tsBitmap, uint32_t frameLenCode, uint32_t mode);
VQ6192_API uint32_t VQ6192_ATM_SetAtmImaQm(uint32_t chip, uint32_t linePort, uint32_t threshold,
                                           uint32_t period);
VQ6192_API uint32_t VQ6192_ATM_GetAtmImaQm(uint32_t chip, uint32_t linePort, uint16_t *threshold,
                                           uint32_t *period);
VQ6192_API uint32_t VQ6192_ATM_SetAtmBmTh(uint32_t chip, uint32_t idx, uint32_t serviceType,
                                          const ATM_BM_TH *th);
VQ6192_API uint32_t VQ6192_ATM_GetAtmBmTh(uint32_t chip, uint32_t idx, uint32_t serviceType, ATM_BM_TH *th);
VQ6192_API uint32_t VQ6192_ATM_SetAtmBmReg(uint32_t chip, const uint16_t v[14]);
VQ6192_API uint32_t VQ6192_ATM_GetAtmBmReg(uint32_t chip, uint32_t v[7]);

/* ---- Module start and clears ------------------------------------------------------------------------ */

VQ6192_API uint32_t VQ6192_ATM_InitAtm(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_ATM_SetAtmTabClr(uint32_t chip, uint32_t sel, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_SetAtmFifoClear(uint32_t chip);
VQ6192_API uint32_t VQ6192_ATM_SetOamFifoClear(uint32_t chip, uint32_t which);

/* ---- Traffic parameters ----------------------------------------------------------------------------- */

typedef struct {
    uint32_t PCR;  /* cells/s */
    uint32_t SCR;  /* cells/s; the CLP=0 peak rate for types 3 and 4 */
    uint32_t CDVT; /* units of 100 ns */
    uint32_t MBS;  /* cells */
    uint8_t type;  /* traffic descriptor type 1..15 */
} ATM_TRAFFIC_DESC;

/* Two leaky buckets: mode, rate (cells/s), tolerance (ns). All zero is "off". */
typedef struct {
    uint16_t wModeA;
    double dRateA;
    double dTolA;
    uint16_t wModeB;
    double dRateB;
    double dTolB;
} ATM_BUCKET_PAIR;

/* Raw policer codes; shapers use the A half. */
typedef struct {
    uint16_t wIncrB;
    uint16_t wPBMode;
    uint16_t wLimitB;
    uint16_t wIncrA;
    uint16_t wPAMode;
    uint16_t wLimitA;
} ATM_POLICING_CFG;

typedef struct {
    uint8_t byVbrEn;
    uint8_t byNvbrEn;
    uint16_t wRtvbrWeight;
    uint16_t wNrtvbrWeight;
    uint16_t wUbrPlusWeight;
    uint16_t wUbrWeight;
} ATM_EBS_CFG;

VQ6192_API uint32_t VQ6192_ATM_SetAtmPolcfgQos(uint32_t chip, uint32_t policingId,
                                               const ATM_TRAFFIC_DESC *desc);
VQ6192_API uint32_t VQ6192_ATM_SetAtmShapcfgQos(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                                const ATM_TRAFFIC_DESC *desc);

VQ6192_API void VQ6192_ATM_ConvertPolicingPara(uint32_t chip, uint32_t type, uint32_t PCR, uint32_t SCR,
                                               uint32_t CDVT, uint32_t MBS, ATM_BUCKET_PAIR *pair);
#define VQ6192_ATM_CONVERT_DECL(name)                                                            \
    VQ6192_API void name(uint32_t chip, uint32_t PCR, uint32_t SCR, uint32_t CDVT, uint32_t MBS, \
                         ATM_BUCKET_PAIR *pair)
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing2);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing3);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing4);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing5);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing6);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing7);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing9);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing10);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing11);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing12);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing13);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing14);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertPolicing15);
VQ6192_API void VQ6192_ATM_ConvertShappingPara(uint32_t chip, uint32_t type, uint32_t PCR, uint32_t SCR,
                                               uint32_t CDVT, uint32_t MBS, ATM_BUCKET_PAIR *pair);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertShapping2);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertShapping5);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertShapping9);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertShapping10);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertShapping12);
VQ6192_ATM_CONVERT_DECL(VQ6192_ATM_ConvertShapping13);
#undef VQ6192_ATM_CONVERT_DECL

VQ6192_API uint32_t VQ6192_ATM_CalcPolicingPara(uint32_t chip, const ATM_BUCKET_PAIR *pair, uint16_t out[6]);
VQ6192_API uint32_t VQ6192_ATM_CalcShappingPara(uint32_t chip, const ATM_BUCKET_PAIR *pair, uint16_t out[6]);
VQ6192_API uint32_t VQ6192_ATM_VQ6192PoliceSet(uint32_t chip, uint32_t policingId,
                                               const ATM_BUCKET_PAIR *pair);
VQ6192_API uint32_t VQ6192_ATM_VQ6192ShapingSet(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                                const ATM_BUCKET_PAIR *pair);
VQ6192_API uint32_t VQ6192_ATM_GetExponent(uint32_t chip, uint16_t *mantissa, uint16_t *exponent,
                                           uint32_t base, double value);
VQ6192_API void VQ6192_ATM_Calibrate_CDVT_BT(uint32_t chip, double *tolerance);
VQ6192_API uint32_t VQ6192_ATM_CheckDoubleNotZero(double value);
VQ6192_API double VQ6192_ATM_ComputeAtmPolCdvt(uint32_t chip, uint32_t rate);
VQ6192_API double VQ6192_ATM_ComputeAtmPolMbs(uint32_t chip, uint32_t rate, double tolerance);

VQ6192_API uint32_t VQ6192_ATM_SetAtmPolcfg(uint32_t chip, uint32_t policingId, const ATM_POLICING_CFG *rec);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPolcfg(uint32_t chip, uint32_t policingId, ATM_POLICING_CFG *rec);
VQ6192_API uint32_t VQ6192_ATM_SetAtmShapcfg(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                             const ATM_POLICING_CFG *rec);
VQ6192_API uint32_t VQ6192_ATM_GetAtmShapcfg(uint32_t chip, uint32_t linePort, uint32_t shaperClass,
                                             ATM_POLICING_CFG *rec);
VQ6192_API uint32_t VQ6192_ATM_SetAtmEbs(uint32_t chip, uint32_t linePort, const ATM_EBS_CFG *rec);
VQ6192_API uint32_t VQ6192_ATM_GetAtmEbs(uint32_t chip, uint32_t linePort, ATM_EBS_CFG *rec);
VQ6192_API uint32_t VQ6192_ATM_SetAtmShVc(uint32_t chip, uint32_t linePort, uint32_t cls, uint32_t rate);
VQ6192_API uint32_t VQ6192_ATM_GetAtmShVc(uint32_t chip, uint32_t linePort, uint32_t cls,
                                          uint32_t *dwShvcCell);
VQ6192_API uint32_t VQ6192_ATM_SetAtmShVcByPeriod(uint32_t chip, uint32_t linePort, uint32_t cls,
                                                  uint32_t period);
VQ6192_API uint32_t VQ6192_ATM_GetAtmShVcPeriod(uint32_t chip, uint32_t linePort, uint32_t cls,
                                                uint32_t *period);

/* ---- OAM cells and CRC-10 --------------------------------------------------------------------------- */

#define VQ6192_ATM_CELL_BYTES 53u

VQ6192_API extern uint16_t g_VQ6192_byte_crc10_table[VQ6192_CHIP_RECORD_NUM][256];

VQ6192_API uint32_t VQ6192_ATM_gen_byte_crc10_table(uint32_t chip);
VQ6192_API uint16_t VQ6192_ATM_update_crc10_by_bytes(uint32_t chip, uint16_t crc, const uint8_t *data,
                                                     int32_t len);
VQ6192_API uint32_t VQ6192_ATM_crc10(uint32_t chip, uint8_t payload[48], uint32_t insert);

VQ6192_API uint32_t VQ6192_ATM_FillInsertCellHead(uint32_t chip, uint32_t flow, uint32_t level,
                                                  uint8_t *byte3);
VQ6192_API uint32_t VQ6192_ATM_FillInsOamCell(uint32_t chip, uint32_t flow, uint32_t level, uint32_t func,
                                              uint8_t cell[53]);
VQ6192_API uint32_t VQ6192_ATM_InsertLBCell(uint32_t chip, uint32_t vcx, const uint8_t llid[16],
                                            const uint8_t srcId[16], uint32_t correlationTag, uint32_t flow,
                                            uint32_t level, uint32_t lbIndication);
VQ6192_API uint32_t VQ6192_ATM_InsertAISCell(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level);
VQ6192_API uint32_t VQ6192_ATM_InsertRDICell(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level);
VQ6192_API uint32_t VQ6192_ATM_InsertCCCell(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level);
VQ6192_API uint32_t VQ6192_ATM_InsertOamCell(uint32_t chip, uint32_t vcx, const uint8_t cell[53]);
VQ6192_API uint32_t VQ6192_ATM_GetOamCell(uint32_t chip, uint16_t *vcx, uint8_t cell[53]);
VQ6192_API uint32_t VQ6192_ATM_GetOamCellTest(uint32_t chip, uint16_t *vcx, uint8_t cell[53]);
VQ6192_API uint32_t VQ6192_ATM_SetOamLLID(uint32_t chip, const uint8_t llid[16]);
VQ6192_API uint32_t VQ6192_ATM_GetOamLLID(uint32_t chip, uint8_t llid[16]);
VQ6192_API uint32_t VQ6192_ATM_SetOamCrcEn(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetOamCrcEnStat(uint32_t chip, uint8_t *byEnable);
VQ6192_API uint32_t VQ6192_ATM_SetOamLinkCC(uint32_t chip, uint32_t vcx, uint32_t flowType, uint32_t action);
VQ6192_API uint32_t VQ6192_ATM_GetOamLinkCC(uint32_t chip, uint32_t vcx, uint8_t *srcType, uint8_t *sinkType,
                                            uint32_t *state);
VQ6192_API uint32_t VQ6192_ATM_SetOamSegEnd(uint32_t chip, uint32_t vcx, uint32_t renSegEndType);
VQ6192_API uint32_t VQ6192_ATM_GetOamSegEnd(uint32_t chip, uint32_t vcx, uint32_t *renSegEndType);
VQ6192_API uint32_t VQ6192_ATM_SetOamAutoInsertEn(uint32_t chip, uint32_t vcx, uint32_t kind,
                                                  uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetOamAutoInsertEnStat(uint32_t chip, uint32_t vcx, uint32_t kind,
                                                      uint8_t *byEnable);
VQ6192_API uint32_t VQ6192_ATM_GetOamVcxFifo(uint32_t chip, uint16_t *vcx);
VQ6192_API uint32_t VQ6192_ATM_GetOamCcloc(uint32_t chip, uint32_t vcx, uint8_t *bCcloc);
VQ6192_API uint32_t VQ6192_ATM_SetOamCapFifoClear(uint32_t chip);

/* ---- Diagnostic commands ---------------------------------------------------------------------------- */

/* ---- ATM pseudowires: the system ports of the switch as PWE3 channels 0..2047 ---- */

/* Encapsulation modes: 0 and 3 N:1 cells, 1 VPC one-to-one, 2 VCC one-to-one (control word
 * mandatory in the one-to-one modes). */
typedef struct {
    uint32_t dwEgVpi;   /* VPI put into the cells of a one-to-one PW */
    uint32_t dwEgVci;   /* VCI put into the cells of a one-to-one PW */
    uint32_t dwPwLabel; /* 20-bit label put into the PSN header */
    uint32_t dwInLabel; /* 20-bit label that identifies the PW on receive */
    uint8_t byCwEn;
    uint8_t bySnChkEn;
    uint8_t bySnAddEn;
    uint8_t byEncpMode;
    uint8_t byPsnEncpType; /* the PSN encapsulation type of the Ethernet side; 0 removes */
} ATM_PW_CFG;

#define VQ6192_ATM_PWE3_PER_NUM 14u      /* values of one PW's statistics record */
#define VQ6192_ATM_PW3_FIFO_STAT_NUM 22u /* flags of the PWE3 FIFO status read-out */
#define VQ6192_ATM_PWE3_CAP_BYTES 2048u  /* bytes the packet buffer holds (512 entries of 4) */
#define VQ6192_ATM_PWE3_CAP_ENTRIES 512u

/* The largest number of polls any PW delete handshake has needed so far, over all chips. */
VQ6192_API extern uint32_t g_ulVq6192AtmPwe3EnableCnt;

VQ6192_API uint32_t VQ6192_ATM_AtmPwe3Init(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_ATM_CreateAtmPw(uint32_t chip, uint32_t pw, const ATM_PW_CFG *cfg);
VQ6192_API uint32_t VQ6192_ATM_RemoveAtmPw(uint32_t chip, uint32_t pw, uint32_t inLabel);
VQ6192_API uint32_t VQ6192_ATM_SetPwEnable(uint32_t chip, uint32_t pw, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetPwEnable(uint32_t chip, uint32_t pw, uint8_t *byPwEnable);
VQ6192_API uint32_t VQ6192_ATM_GetPwEnable_Pro(uint32_t chip, uint32_t pw, uint8_t *byPwEnable);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPwEncpMode(uint32_t chip, uint32_t pw, uint32_t mode);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPwEncpMode(uint32_t chip, uint32_t pw, uint32_t *renPwEnMode);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPwCWEn(uint32_t chip, uint32_t pw, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPwCWEn(uint32_t chip, uint32_t pw, uint8_t *rbyEnable);
VQ6192_API uint32_t VQ6192_ATM_SetPwEgVPIVCI(uint32_t chip, uint32_t pw, uint32_t vpi, uint32_t vci);
VQ6192_API uint32_t VQ6192_ATM_GetPwEgVPIVCI(uint32_t chip, uint32_t pw, uint32_t *rdwVpi, uint32_t *rdwVci);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPwCellConcAttr(uint32_t chip, uint32_t pw, uint32_t cells,
                                                    uint32_t maxTime);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPwCellConcAttr(uint32_t chip, uint32_t pw, uint32_t *rdwCellNum,
                                                    uint32_t *rdwMaxEncpTime);
VQ6192_API uint32_t VQ6192_ATM_SetPwSnChkAdd(uint32_t chip, uint32_t pw, uint32_t check, uint32_t add);
VQ6192_API uint32_t VQ6192_ATM_GetPwSnChkAdd(uint32_t chip, uint32_t pw, uint16_t *rwSnChkEn,
                                             uint16_t *rwSnAddEn);
VQ6192_API uint32_t VQ6192_ATM_SetPwPktDropEn(uint32_t chip, uint32_t pw, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetPwPktDropEn(uint32_t chip, uint32_t pw, uint16_t *rwDropEn);
VQ6192_API uint32_t VQ6192_ATM_SetPwExpectRange(uint32_t chip, uint32_t pw, uint32_t range);
VQ6192_API uint32_t VQ6192_ATM_GetPwExpectRange(uint32_t chip, uint32_t pw, uint16_t *rwRange);
VQ6192_API uint32_t VQ6192_ATM_SetPwPriIndex(uint32_t chip, uint32_t pw, uint32_t index);
VQ6192_API uint32_t VQ6192_ATM_GetPwPriIndex(uint32_t chip, uint32_t pw, uint16_t *wPwPriIndex);
VQ6192_API uint32_t VQ6192_ATM_SetPwPriTemplate(uint32_t chip, uint32_t tmpl, uint32_t serviceType,
                                                uint32_t priority);
VQ6192_API uint32_t VQ6192_ATM_GetPwPriTemplate(uint32_t chip, uint32_t tmpl, uint32_t serviceType,
                                                uint16_t *rwPriority);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPwLabelCos(uint32_t chip, uint32_t pw, uint32_t label, uint32_t cos);
VQ6192_API uint32_t VQ6192_ATM_SetPWE3Loop(uint32_t chip, uint32_t which, uint32_t enable);
VQ6192_API uint32_t VQ6192_ATM_GetPWE3Loop(uint32_t chip, uint32_t which, uint16_t *wEnable);
VQ6192_API uint32_t VQ6192_ATM_SetSendPwe3Time(uint32_t chip, uint32_t value);
VQ6192_API uint32_t VQ6192_ATM_GetSendPwe3Time(uint32_t chip, uint16_t *wTime);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPwe3Per(uint32_t chip, uint32_t pw, uint32_t out[14]);
VQ6192_API uint32_t VQ6192_ATM_GetPwChkErrAlm(uint32_t chip, uint32_t pw, uint8_t *byAlmStat);
VQ6192_API uint32_t VQ6192_ATM_SetPw3FIFOStats(uint32_t chip, uint32_t which, uint32_t value);
VQ6192_API uint32_t VQ6192_ATM_GetPw3FIFOStats(uint32_t chip, uint8_t out[22]);
VQ6192_API uint32_t VQ6192_ATM_SetAtmPWE3Capture(uint32_t chip, uint32_t pw, uint32_t direction);
/* data: 2048 bytes; cellEnds: 512 running byte totals, one per end of cell; count: cell ends found. */
VQ6192_API uint32_t VQ6192_ATM_GetAtmPWE3CapData(uint32_t chip, uint8_t *data, uint16_t *cellEnds,
                                                 uint16_t *count);
/* pbyCell: 2048 bytes; gets the first captured packet, its byte count in *length. */
VQ6192_API uint32_t VQ6192_ATM_GetAtmPWE3CapCell(uint32_t chip, uint32_t pw, uint32_t direction,
                                                 uint8_t *pbyCell, uint32_t *length);

/* ---- ATM statistics, alarms and cell capture ---- */

typedef struct {
    uint16_t wRedDrop, wFdDrop, wPfdDrop, wClpDrop, wFdAll5Drop, wPfdAll5Drop, wCbrDrop, wRtvbrDrop,
        wNrtvbrDrop, wUbrplusDrop, wUbrDrop, wGlobalDrop, wErrDrop, wTcamDropRx, wTcamDropTx, wLcptDropRx,
        wLcptDropTx, wScptDropRx, wScptDropTx, wNoVldRx, wNoVldTx;
} ATM_DROP_STAT;

typedef struct {
    uint32_t dwCbrData, dwRtVbrData, dwNrtVbrData, dwUbrPlusData, dwUbrData, dwGlobalData;
} ATM_QM_DATA_STAT;

typedef struct {
    uint16_t wPolDropRx, wPolDropTx, wPolTagRx, wPolTagTx;
} ATM_POLICING_STAT;

typedef struct {
    uint16_t wOamMin, wOamCapRx, wOamCapTx, wOamCapNum, wOamInNum, wOamDropRx, wOamDropTx, wOamDrop,
        wOamCrcErrRx, wOamCrcErrTx, wCapFifoNum, wInFifoNum, wCapltInc;
} ATM_OAM_STAT;

#define VQ6192_ATM_CAP_CELL_BYTES 64u

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortStat(uint32_t chip, uint32_t port, uint32_t side, uint32_t *dwRcc,
                                              uint32_t *dwTcc);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPortStat_Pro(uint32_t chip, uint32_t port, uint32_t side,
                                                  uint32_t *dwRcc, uint32_t *dwTcc);
VQ6192_API uint32_t VQ6192_ATM_GetAtmVcsStat(uint32_t chip, uint32_t vcx, uint32_t *dwTTcc, uint32_t *dwTRcc);
VQ6192_API uint32_t VQ6192_ATM_GetAtmVcxDropStat(uint32_t chip, uint32_t vcx, uint16_t *wDropCell);
VQ6192_API uint32_t VQ6192_ATM_GetVcxDropInfo(uint32_t chip, uint32_t vcx, uint8_t *byBmAll5, uint8_t *byBmFD,
                                              uint8_t *byBmPFD);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPortDropStat(uint32_t chip, uint32_t linePort, uint16_t *wDropCell);
VQ6192_API uint32_t VQ6192_ATM_GetAtmCcSrcStat(uint32_t chip, uint32_t vcx, uint16_t *wSrcTimer,
                                               uint16_t *wTtcc);
VQ6192_API uint32_t VQ6192_ATM_GetAtmDropStat(uint32_t chip, ATM_DROP_STAT *stat);
VQ6192_API uint32_t VQ6192_ATM_GetAtmQmDataStat(uint32_t chip, ATM_QM_DATA_STAT *stat);
VQ6192_API uint32_t VQ6192_ATM_GetAtmPolicingStat(uint32_t chip, ATM_POLICING_STAT *stat);
VQ6192_API uint32_t VQ6192_ATM_GetAtmOamStat(uint32_t chip, ATM_OAM_STAT *stat);
VQ6192_API uint32_t VQ6192_ATM_GetAtmCcStat(uint32_t chip, uint16_t *wCcFifoNum, uint16_t *wCcCnt);
VQ6192_API uint32_t VQ6192_ATM_GetAtmFifoOverflow(uint32_t chip, uint16_t out[3]);
VQ6192_API uint32_t VQ6192_ATM_GetAtmTabRamBusy(uint32_t chip, uint16_t *byRam);
VQ6192_API uint32_t VQ6192_ATM_GetAtmSwAlarm(uint32_t chip, uint16_t out[3]);
VQ6192_API uint32_t VQ6192_ATM_GetVpcDelAck(uint32_t chip, uint8_t *byDelStat, uint8_t *byType,
                                            uint16_t *wLinkPort);
VQ6192_API uint32_t VQ6192_Read_QMLEN(uint32_t chip, uint32_t queue, uint32_t n, uint32_t *len);
VQ6192_API uint32_t VQ6192_ATM_CaptureAtmCell(uint32_t chip, uint8_t cell[64], uint32_t mode, uint32_t index,
                                              uint32_t matchVci, uint32_t vpi, uint32_t vci);
VQ6192_API uint32_t VQ6192_ATM_CaptureAtmLcapCell(uint32_t chip, uint8_t cell[64]);
VQ6192_API uint32_t VQ6192_ATM_CaptureAtmScapCell(uint32_t chip, uint8_t cell[64]);

VQ6192_API uint32_t getatmvcx(uint32_t chip, uint32_t link, uint32_t dir, char *buf);
VQ6192_API uint32_t getatmsrvconn(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmvcxenstat(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmupcnpcenstat(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmpolicingid(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getlinktype(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmportenstat(uint32_t chip, uint32_t port, uint32_t side, char *buf);
VQ6192_API uint32_t getatmporttype(uint32_t chip, uint32_t port, uint32_t side, char *buf);
VQ6192_API uint32_t getatmtransconnsingle(uint32_t chip, uint32_t port, uint32_t side, char *buf);
VQ6192_API uint32_t getatmtransfifo(uint32_t chip, uint32_t linePort, char *buf);
VQ6192_API uint32_t getatmportloopmode(uint32_t chip, uint32_t linePort, char *buf);
VQ6192_API uint32_t getatmqm(uint32_t chip, uint32_t queueIndex, char *buf);
VQ6192_API uint32_t getatmbmpvc(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmbmth(uint32_t chip, uint32_t idx, uint32_t serviceType, char *buf);
VQ6192_API uint32_t getatmbmreg(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmpolcfg(uint32_t chip, uint32_t policingId, char *buf);
VQ6192_API uint32_t getatmebs(uint32_t chip, uint32_t linePort, char *buf);
VQ6192_API uint32_t getatmshvc(uint32_t chip, uint32_t linePort, uint32_t cls, char *buf);
VQ6192_API uint32_t getoamcrcenstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getoamllid(uint32_t chip, char *buf);
VQ6192_API uint32_t getoamcell(uint32_t chip, char *buf);
VQ6192_API uint32_t getoamlinkcc(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getoamsegend(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getoamvcxfifo(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmccloc(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getcclocall(uint32_t chip, char *buf);
VQ6192_API uint32_t getlinkdata(uint32_t chip, char *buf);
VQ6192_API uint32_t getbmtemplate(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmportstat(uint32_t chip, uint32_t port, uint32_t side, char *buf);
VQ6192_API uint32_t getatmvcsstat(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmccsrcstat(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmvcxdropstat(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmportdropstat(uint32_t chip, uint32_t linePort, char *buf);
VQ6192_API uint32_t getvcxdropinfo(uint32_t chip, uint32_t vcx, char *buf);
VQ6192_API uint32_t getatmdropstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmqmdatastat(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmpolicingstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmoamstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmccstat(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmfifooverflow(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmtabrambusy(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmswalarm(uint32_t chip, char *buf);
VQ6192_API uint32_t getvpcdelack(uint32_t chip, char *buf);
VQ6192_API uint32_t captureatmcell(uint32_t chip, uint32_t mode, uint32_t index, uint32_t matchVci,
                                   uint32_t vpi, uint32_t vci, char *buf);
VQ6192_API uint32_t getatmvcxstatall(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmportstatall(uint32_t chip, char *buf);
VQ6192_API uint32_t getvcxdropall(uint32_t chip, char *buf);
VQ6192_API uint32_t getportdropall(uint32_t chip, char *buf);
VQ6192_API uint32_t getdropall(uint32_t chip, char *buf);
VQ6192_API uint32_t getsendpwe3time(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmpwe3statall(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmpwe3perall(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmpwe3per(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getatmpwcwen(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getatmpwencpmode(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getatmpwcellconcattr(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwpriIndex(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwpktdropen(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwexpectrange(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwe3loop(uint32_t chip, uint32_t which, char *buf);
VQ6192_API uint32_t getpwenable(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwchkerralm(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwsnchkadd(uint32_t chip, uint32_t pw, char *buf);
VQ6192_API uint32_t getpwpritemplate(uint32_t chip, uint32_t tmpl, uint32_t serviceType, char *buf);
VQ6192_API uint32_t getpw3fifostats(uint32_t chip, char *buf);
VQ6192_API uint32_t getatmpwe3capcell(uint32_t chip, uint32_t pw, uint32_t direction, char *buf);

VQ6192_EXTERN_C_END

#endif /* VQ6192_ATM_H */
