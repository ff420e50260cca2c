/* VQ6192 driver SDK: Ethernet side: packet-network headers and label maps, SerDes, Ethernet and MAC ports.
 * C-compatible. */
#ifndef VQ6192_ETH_H
#define VQ6192_ETH_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* ==== Packet-network headers and label maps (module ETH) ======================================== */

/* Service kinds of the packet side; each has its slice of the one header table. */
typedef enum {
    VQ6192_ETH_SRV_MP = 0,  /* multilink bundle 0..255: header entries 2560.. */
    VQ6192_ETH_SRV_PPP = 1, /* PPP channel 0..511: 2048.. */
    VQ6192_ETH_SRV_ATM = 2, /* ATM pseudowire 0..2047: 0.. */
    VQ6192_ETH_SRV_CES = 3, /* CES channel 0..351: 2816.. */
    VQ6192_ETH_SRV_MAX = 4
} VQ6192_ETH_SRV_TYPE_E;

/* One header entry, a field per u32 (the selection mask of the modify operation has the same shape,
 * 1 = write this field). */
typedef struct {
    uint32_t dwreserved3;     /* bit 3 */
    uint32_t dwLblEthType;    /* 0 MPLS unicast, 1 MPLS multicast, 2 IPv4, 3 MEF */
    uint32_t dwLblVlanId;     /* 12 bits */
    uint32_t dwLblEthDah;     /* destination MAC, high 16 bits */
    uint32_t dwLblEthDal;     /* destination MAC, low 32 bits */
    uint32_t dwLblGreProType; /* GRE payload protocol */
    uint32_t dwLblIpDa;
    uint32_t dwLblIpSa;
    uint32_t dwLblIpProtcl;
    uint32_t dwLblIpTtl;
    uint32_t dwLblIpTos;
    uint32_t dwreserved2;  /* bit 7 */
    uint32_t dwLblPwLable; /* 20-bit PW label, or the UDP destination port */
    uint32_t dwLblPwTtl;
    uint32_t dwreserved1; /* bits 36..39 */
    uint32_t dwLblPwCos;
    uint32_t dwreserved0; /* bits 206..207 */
    uint32_t dwLblHdType; /* encapsulation built for the service */
} VQ6192_ETH_PSN_INFO_S;
#define VQ6192_ETH_PSN_INFO_NUM 18u

/* Packet-engine pattern control, register 0x8100 bit 14 (first field) down to bit 0 (last). */
typedef struct {
    uint8_t byPtnLenLocSel;
    uint8_t byPppTypeUnmtchDrop;
    uint8_t byCpuBidChkEn;
    uint8_t byPppBmSel;
    uint8_t byPauseDaSel;
    uint8_t byMpPauseSel;
    uint8_t byPtnPauseEn;
    uint8_t byGreCheckEn;
    uint8_t byIpDaChkEn;
    uint8_t byIpPtcChkEn;
    uint8_t byIpHeadChkEn;
    uint8_t byIdtProtlMode;
    uint8_t byVlanDisable;
    uint8_t byCpuInsertEn;
    uint8_t byToCpuEn;
} VQ6192_ETH_PMU_PTN_S;
#define VQ6192_ETH_PMU_PTN_NUM 15u

typedef struct {
    uint8_t byVer; /* below 16 */
    uint8_t byIHL; /* below 16 */
    uint16_t wIdentification;
    uint8_t byFlags;          /* below 8 */
    uint16_t wFrmOffset;      /* below 8192 */
    uint32_t dwEgIpDaChkAddr; /* egress IP destination check address */
} VQ6192_ETH_PMU_IP_GLB_ATTR_S;

typedef struct {
    uint8_t byVer; /* below 8 */
    uint16_t wProtType0;
    uint16_t wProtType1;
} VQ6192_ETH_PMU_GRE_GLB_ATTR_S;

VQ6192_API uint32_t VQ6192_ETH_ConvertSrvChnl2EthChnl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                      uint32_t *ethChnl);
VQ6192_API uint32_t VQ6192_ETH_ConvertPPPChnlPktType(uint32_t chip, uint32_t ch, uint32_t pktType,
                                                     uint32_t *index);

VQ6192_API uint32_t VQ6192_ETH_SetPSNEthInfo(uint32_t chip, uint32_t ch, uint32_t srvType,
                                             const VQ6192_ETH_PSN_INFO_S *info);
VQ6192_API uint32_t VQ6192_ETH_GetPSNEthInfo(uint32_t chip, uint32_t ch, uint32_t srvType,
                                             VQ6192_ETH_PSN_INFO_S *info);
VQ6192_API uint32_t VQ6192_ETH_ModifyPSNEthInfo(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                const VQ6192_ETH_PSN_INFO_S *mask,
                                                const VQ6192_ETH_PSN_INFO_S *info);
VQ6192_API uint32_t VQ6192_ETH_SetPSNEthIPAddr(uint32_t chip, uint32_t ch, uint32_t srvType, uint32_t ipSa,
                                               uint32_t ipDa);
VQ6192_API uint32_t VQ6192_ETH_SetIngVlanID(uint32_t chip, uint32_t srvType, uint32_t ch, uint32_t vlanId);
VQ6192_API uint32_t VQ6192_ETH_GetIngVlanID(uint32_t chip, uint32_t srvType, uint32_t ch, uint32_t *vlanId);
VQ6192_API uint32_t VQ6192_ETH_SetSrvPktIngDA(uint32_t chip, uint32_t srvType, uint32_t ch, uint16_t macL,
                                              uint16_t macM, uint16_t macH);
VQ6192_API uint32_t VQ6192_ETH_SetAtmCesPMUEncpLbl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                   uint32_t encpType, uint32_t pwLabel, uint32_t inLabel);
VQ6192_API uint32_t VQ6192_ETH_SetPppPMUEncpLbl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                uint32_t encpType, uint32_t pwLabel, uint32_t greProType);

/* In-label maps: select 0 MPLS label, 1 UDP port. */
VQ6192_API uint32_t VQ6192_ETH_SetEgMplsBase(uint32_t chip, uint32_t sel, uint32_t base);
VQ6192_API uint32_t VQ6192_ETH_GetEgMplsBase(uint32_t chip, uint32_t sel, uint32_t *base);
VQ6192_API uint32_t VQ6192_ETH_SetAtmCesEgMpls2Chnl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                    uint32_t inLabel, uint32_t sel, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetAtmCesEgChnl2Mpls(uint32_t chip, uint32_t sel, uint32_t inLabel,
                                                    uint32_t *srvType, uint32_t *ch, uint32_t *valid);
VQ6192_API uint32_t VQ6192_ETH_GetAtmCesEgMpls2Chnl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                    uint32_t *inLabel, uint32_t *sel, uint32_t *found);

VQ6192_API uint32_t VQ6192_ETH_SetEgVlanID2Chnl(uint32_t chip, uint32_t vlanId, uint32_t lblType,
                                                uint32_t ch);
VQ6192_API uint32_t VQ6192_ETH_GetEgVlanID2Chnl(uint32_t chip, uint32_t vlanId, uint32_t *lblType,
                                                uint32_t *ch);
/* Packet kinds of the CPU PID map: 0 PPP protocol, 1 PPP DCN, 2 bundle protocol, 3 bundle DCN. */
VQ6192_API uint32_t VQ6192_ETH_SetIngPPPMP2PID(uint32_t chip, uint32_t ch, uint32_t pktType, uint32_t pid,
                                               uint32_t valid);
VQ6192_API uint32_t VQ6192_ETH_GetIngPPPMP2PID(uint32_t chip, uint32_t ch, uint32_t pktType, uint32_t *pid,
                                               uint32_t *valid);
/* Kinds of the PID to channel map: 0 PPP channel, 1 bundle (the getter reports 2 for neither). */
VQ6192_API uint32_t VQ6192_ETH_SetEgPID2PPPMP(uint32_t chip, uint32_t pid, uint32_t ch, uint32_t kind,
                                              uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetEgPID2PPPMP(uint32_t chip, uint32_t pid, uint32_t *ch, uint32_t *kind,
                                              uint32_t *enable);
/* Protocol pairs; direction 0 up, 1 down, 2 both (the getter takes 0 or 1). */
VQ6192_API uint32_t VQ6192_ETH_SetSrvPPPPro2EthType(uint32_t chip, uint32_t index, uint32_t dir,
                                                    uint32_t pppPro, uint32_t ethType, uint32_t active);
VQ6192_API uint32_t VQ6192_ETH_GetSrvPPPPro2EthType(uint32_t chip, uint32_t index, uint32_t dir,
                                                    uint32_t *pppPro, uint32_t *ethType, uint32_t *active);
VQ6192_API uint32_t VQ6192_ETH_SetPPPPro2EthPro(uint32_t chip, uint32_t index, uint32_t pppPro,
                                                uint32_t cpuPro, uint32_t active);
VQ6192_API uint32_t VQ6192_ETH_GetPPPPro2EthPro(uint32_t chip, uint32_t index, uint32_t *pppPro,
                                                uint32_t *cpuPro, uint32_t *active);

/* Global header attributes and packet-engine controls. */
VQ6192_API uint32_t VQ6192_ETH_SetPMUIpGlbAttr(uint32_t chip, const VQ6192_ETH_PMU_IP_GLB_ATTR_S *attr);
VQ6192_API uint32_t VQ6192_ETH_GetPMUIpGlbAttr(uint32_t chip, VQ6192_ETH_PMU_IP_GLB_ATTR_S *attr);
VQ6192_API uint32_t VQ6192_ETH_SetPMUGreGlbAttr(uint32_t chip, const VQ6192_ETH_PMU_GRE_GLB_ATTR_S *attr);
VQ6192_API uint32_t VQ6192_ETH_GetPMUGreGlbAttr(uint32_t chip, VQ6192_ETH_PMU_GRE_GLB_ATTR_S *attr);
VQ6192_API uint32_t VQ6192_ETH_SetPMUUdpSPort(uint32_t chip, uint32_t port);
VQ6192_API uint32_t VQ6192_ETH_GetPMUUdpSPort(uint32_t chip, uint32_t *port);
VQ6192_API uint32_t VQ6192_ETH_SetPmuPtnCtrl(uint32_t chip, const VQ6192_ETH_PMU_PTN_S *sel,
                                             const VQ6192_ETH_PMU_PTN_S *val);
VQ6192_API uint32_t VQ6192_ETH_GetPmuPtnCtrl(uint32_t chip, VQ6192_ETH_PMU_PTN_S *val);
VQ6192_API uint32_t VQ6192_ETH_SetVLANDisable(uint32_t chip, uint32_t disable);
VQ6192_API uint32_t VQ6192_ETH_GetVLANDisable(uint32_t chip, uint32_t *disable);
VQ6192_API uint32_t VQ6192_ETH_SetPppCpuInsertEnable(uint32_t chip, uint32_t insertEn, uint32_t toCpuEn);
VQ6192_API uint32_t VQ6192_ETH_SetMpPppPauseEn(uint32_t chip, uint32_t srvType, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetMpPppPauseEn(uint32_t chip, uint32_t *mpSel, uint32_t *enable);
VQ6192_API uint32_t VQ6192_ETH_SetEthPausePara(uint32_t chip, uint32_t daSel, uint32_t para1, uint32_t para2,
                                               uint32_t para3, uint32_t para4);
VQ6192_API uint32_t VQ6192_ETH_SetPppProtocolType(uint32_t chip, uint32_t mode, uint32_t value1,
                                                  uint32_t value2);
VQ6192_API uint32_t VQ6192_ETH_SetPppCpuHead(uint32_t chip, uint32_t enable, uint32_t len, uint32_t value1,
                                             uint32_t value2);
VQ6192_API uint32_t VQ6192_ETH_SetIngPMUPWS(uint32_t chip, uint32_t value);
VQ6192_API uint32_t VQ6192_ETH_GetIngPMUPWS(uint32_t chip, uint32_t *value);

/* Module initialisation: mode 1 initialises, mode 2 (module restore) does nothing. */
VQ6192_API uint32_t VQ6192_ETH_ETHInit(uint32_t chip, uint32_t mode);

/* ==== SerDes, Ethernet ports, self-test and capture (module ETH) ================================= */

typedef enum { VQ6192_ETH_MAC_1 = 1, VQ6192_ETH_MAC_2 = 2 } VQ6192_ETH_MAC_NO_E;

typedef enum {
    VQ6192_ETH_SERDES_LOOP_POINT_SER_LPB = 0,
    VQ6192_ETH_SERDES_LOOP_POINT_LINE_LPB = 1,
    VQ6192_ETH_SERDES_LOOP_POINT_PAR_LPB = 2,
    VQ6192_ETH_SERDES_LOOP_POINT_RCK_LPB = 3
} VQ6192_ETH_SERDES_LOOP_POINT_E;

/* MAC attributes as the packet side sets them; the selection record has the same shape. */
typedef struct {
    uint8_t byPortEn;
    uint8_t byTxEn;
    uint8_t byRxEn;
    uint8_t byCfSlientEn;
    uint8_t bySoftRstMII;
    uint8_t bySoftRstRx;
    uint8_t bySoftRstTx;
    uint16_t wMaxFrmSize;
    uint16_t sFdFcAddrL;
    uint16_t sFdFcAddrM;
    uint16_t sFdFcAddrH;
    uint16_t wAddrL;
    uint16_t wAddrM;
    uint16_t wAddrH;
    uint8_t byPadEnable;
    uint8_t byStripPadEn;
    uint8_t byRxRuntPktEn;
    uint8_t byShortRuntsThr;
    uint8_t byCrcAdd;
    uint8_t byStripCRCEn;
    uint8_t byCRCErrPass;
    uint8_t byIpgTxTimer;
    uint8_t byRxDflSgl;
    uint8_t byCf2DfTwoPartDf1;
    uint8_t bySerDesOrd;
    uint16_t wVLanType;
    uint8_t byVlanDropEn;
    uint8_t byBcDropEn;
    uint8_t byMcMatchEn;
    uint8_t byUcMatchEn;
    uint8_t byTxFdFc;
    uint8_t byRxFdFc;
    uint8_t byAutoEegEnable;
    uint16_t wFdFcType;
    uint16_t wFcTxTimer;
    uint16_t wPauseThr;
    uint8_t byDropUnkCtlFrm;
    uint8_t byPauseFrmPass;
    uint8_t byNoRmiiPreamble;
    uint8_t byNoMiiPreamble;
    uint8_t byNoGmiiPreamble;
} VQ6192_ETH_MAC_ATTR_S;

/* Ethernet port counters of the packet engine, 58 words. */
typedef struct {
    uint32_t dwRx1FcsErrCnt, dwRxAtmPktCnt, dwRxCesPktCnt, dwRxMpPktCnt, dwCpuInstPktCnt, dwRptCpuPktCnt;
    uint32_t dwRx1OverLenCnt, dwIpDaErrCnt, dwIpChkErrCnt, dwIpPtcErrCnt, dwGrePtcErrCnt, dwRxUnkownPktCnt;
    uint32_t dwCpuProErrCnt, dwRxBidErrCnt, dwMpTypeUnmtchCnt, dwMplsUnmtchCnt, dwRxPidErrCnt, dwRxTypeErrCnt;
    uint32_t dwTxAtmPktCnt, dwTxCesPktCnt, dwTxMpPktCnt, dwMpProUnmtchCnt, wTxMpPauseCnt, wTxPppPauseCnt;
    uint32_t dwTxPidErrCnt, dwTxPsnUnmatchCnt, dwRx0PktErrCnt, dwRx0FcsErrCnt, dwAtmE1PsCnt, dwMPE1PSCnt;
    uint32_t dwHDE1PSCnt, dwRX1LpPKTCnt, dwRX1PktERRCnt, dwRX1FrmTypeErrCnt, dwLP1FfROutPktCnt, dwTX1LpPKTCnt;
    uint32_t dwTXAutoPKTCnt, dwRXAutoPKTCnt, dwRXHeadERRCnt, dwRXPrbsERRCnt, dwAPPEnTXCnt, dwAPPEnRXCnt;
    uint32_t dwAPPInTXCnt, dwAPPInRXCnt, dwAPPERxERRCnt, dwAPPERxOLENCNT, dwAPPIRxERRCnt, dwAPPIRxOLENCnt;
    uint32_t dwRx0OverLenCnt, dwMplsErrCnt, dwReserved50, dwReserved51, dwPausePsnErrCnt, dwTxShortErrCnt;
    uint32_t dwRx0LpPktCnt, dwRx0FrmTypeErrCnt, dwLp0FfRoutPktCnt, dwTx0LpPktCnt;
} VQ6192_ETH_ETH1_PER_S;
#define VQ6192_ETH_ETH1_PER_NUM 58u

/* MAC counters, 48 words, each one MAC register. */
typedef struct {
    uint32_t dwrxOverrunCnt, dwrxLengthfieldErrCnt;
    uint32_t dwRxOctetsOkCnt, dwRxOctets_badCnt, dwRxUcPktCnt, dwRxMcPktCnt, dwRxBcPktCnt, dwRxPkts64octCnt;
    uint32_t dwRxPkts65to127OctCnt, dwRxPkts128to255OctCnt, dwRxPkts256to511OctCnt, dwRxPkts512to1023OctCnt;
    uint32_t dwRxPkts1024to1518OctCnt, dwRxPkts1519tomaxOctCnt, dwRxFcsErrCnt, dwRxTaggedCnt, dwRxDataErrCnt;
    uint32_t dwRxLongErrCnt, dwRxJabberErrCnt, dwRxPauseCnt, dwRxUnkCtlCnt, dwRxVeryLongErrCnt,
        dwRxRuntErrCnt;
    uint32_t dwRxShortErrCnt;
    uint32_t dwtxOctetsOkCnt, dwtxOctetsBadCnt, dwtxUcPktCnt, dwtxMcPktCnt, dwtx_bcPktCnt, dwtxPkts64octCnt;
    uint32_t dwtxPkts65to127OctCnt, dwtxPkts128to255OctCnt, dwtxPkts256to511OctCnt, dwtxPkts512to1023OctCnt;
    uint32_t dwtxPkts1024to1518OctCnt, dwtxPkts1519tomaxOctCnt;
    uint32_t dwTxTotalColCnt, dwTxSingleColCnt, dwTxMultiColCnt, dwTxLateColCnt, dwTxExcColErrCnt;
    uint32_t dwtxExcLenDropCnt, dwtxUnderrunCnt, dwtxTaggedCnt, dwtxCrcErrCnt, dwtxPauseCnt;
    uint32_t dwReg126, dwReg127;
} VQ6192_ETH_MAC_PER_S;
#define VQ6192_ETH_MAC_PER_NUM 48u

VQ6192_API uint32_t VQ6192_ETH_GetMACNo(uint32_t chip, uint32_t *mac);
VQ6192_API uint32_t VQ6192_ETH_SetSerDesMACAddr(uint32_t chip, uint32_t mac, const uint16_t addr[3]);
VQ6192_API uint32_t VQ6192_ETH_GetSerDesMACAddr(uint32_t chip, uint32_t mac, uint16_t addr[3]);
VQ6192_API uint32_t VQ6192_ETH_SetMACAttr(uint32_t chip, uint32_t mac, const VQ6192_ETH_MAC_ATTR_S *attr,
                                          const VQ6192_ETH_MAC_ATTR_S *sel);
VQ6192_API uint32_t VQ6192_ETH_GetMACAttr(uint32_t chip, uint32_t mac, VQ6192_ETH_MAC_ATTR_S *attr);
VQ6192_API uint32_t VQ6192_ETH_GetMACLinkStat(uint32_t chip, uint32_t mac, uint32_t *up);
VQ6192_API uint32_t VQ6192_ETH_SetMACLoop(uint32_t chip, uint32_t mac, uint32_t mode);
VQ6192_API uint32_t VQ6192_ETH_GetMACLoop(uint32_t chip, uint32_t mac, uint32_t *mode);
VQ6192_API uint32_t VQ6192_ETH_SetSerdesLoop(uint32_t chip, uint32_t lane, uint32_t point, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetSerdesLoop(uint32_t chip, uint32_t lane, uint32_t *point, uint32_t *enable);
VQ6192_API uint32_t VQ6192_ETH_SetSerDesAllChnlReset(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetSerDesAllChnlReset(uint32_t chip, uint32_t *enable);
VQ6192_API uint32_t VQ6192_ETH_SetSerDesChnlReset(uint32_t chip, uint32_t lane, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetSerDesChnlReset(uint32_t chip, uint32_t lane, uint32_t *enable);
VQ6192_API uint32_t VQ6192_ETH_SetSerDesChnlCfg(uint32_t chip, uint32_t lane, uint32_t value);
VQ6192_API uint32_t VQ6192_ETH_GetSerDesChnlCfg(uint32_t chip, uint32_t lane, uint32_t *value);
VQ6192_API uint32_t VQ6192_ETH_SetSerDesAllChnlPowerDown(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetSerDesAllChnlPowerDown(uint32_t chip, uint32_t *enable);
VQ6192_API uint32_t VQ6192_ETH_GetSesDesAlmErr(uint32_t chip, uint32_t lane, uint16_t alarm[9]);
VQ6192_API uint32_t VQ6192_ETH_GetMACPer(uint32_t chip, uint32_t mac, VQ6192_ETH_MAC_PER_S *stat);
VQ6192_API uint32_t VQ6192_ETH_GetMACPer_for_fmea(uint32_t chip, uint32_t mac, VQ6192_ETH_MAC_PER_S *stat);
VQ6192_API uint32_t VQ6192_ETH_FMEA_CheckMACErrorCnt(uint32_t chip, uint32_t *count);
VQ6192_API uint32_t VQ6192_ETH_GetETH1Per(uint32_t chip, VQ6192_ETH_ETH1_PER_S *stat);
VQ6192_API uint32_t VQ6192_ETH_SetETH1WRRWeight(uint32_t chip, uint32_t cls, uint32_t weight);
VQ6192_API uint32_t VQ6192_ETH_GetETH1WRRWeight(uint32_t chip, uint32_t cls, uint32_t *weight);
VQ6192_API uint32_t VQ6192_ETH_SetEthGlbPauseEnable(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_SetEthPppLengthEnable(uint32_t chip, uint32_t enable1, uint32_t enable0);
VQ6192_API uint32_t VQ6192_ETH_SetEth1Maxlen(uint32_t chip, uint32_t len);
VQ6192_API uint32_t VQ6192_ETH_SetEth1PortSendMode(uint32_t chip, uint32_t mode);
VQ6192_API uint32_t VQ6192_ETH_SetEthAppInterface(uint32_t chip, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetEthAppInterface(uint32_t chip, uint32_t *enable);

/* Traffic self-test. */
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestGlbCtl(uint32_t chip, uint32_t dir, uint32_t mac, uint32_t pattern,
                                                 uint32_t payloadLen);
VQ6192_API uint32_t VQ6192_ETH_GetSelfTestGlbCtl(uint32_t chip, uint32_t *dir, uint32_t *mac,
                                                 uint32_t *pattern, uint32_t *payloadLen);
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestChnlEn(uint32_t chip, const uint16_t chnlEn[4]);
VQ6192_API uint32_t VQ6192_ETH_GetSelfTestChnlEn(uint32_t chip, uint16_t chnlEn[4]);
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestPRBS(uint32_t chip, uint32_t ch, uint32_t enable);
VQ6192_API uint32_t VQ6192_ETH_GetSelfTestPRBS(uint32_t chip, uint32_t *ch, uint32_t *enable);
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestRate(uint32_t chip, uint32_t rate);
VQ6192_API uint32_t VQ6192_ETH_GtSelfTestRate(uint32_t chip, uint32_t *rate);
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestEn(uint32_t chip, uint32_t enable5, uint32_t enable7);
VQ6192_API uint32_t VQ6192_ETH_GetSelfTestEn(uint32_t chip, uint32_t *enable5, uint32_t *enable7);
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestTxHeadData(uint32_t chip, uint32_t index, const uint8_t data[64],
                                                     uint32_t len);
VQ6192_API uint32_t VQ6192_ETH_GetSelfTestTxHeadData(uint32_t chip, uint32_t index, uint8_t data[64],
                                                     uint32_t *len);
VQ6192_API uint32_t VQ6192_ETH_SetSelfTestShouldRxHeadData(uint32_t chip, uint32_t index,
                                                           const uint8_t data[64], uint32_t mask);
VQ6192_API uint32_t VQ6192_ETH_GetSelfTestShouldRxHeadData(uint32_t chip, uint32_t index, uint8_t data[64]);

/* Ethernet capture and PPP protocol packets through the packet engine. */
VQ6192_API uint32_t VQ6192_ETH_StartCapEthPkt(uint32_t chip, uint32_t dir, uint32_t len,
                                              const uint8_t match[32], const uint8_t option[4]);
VQ6192_API uint32_t VQ6192_ETH_StopCapEthPkt(uint32_t chip);
VQ6192_API uint32_t VQ6192_ETH_GetCapEthPkt(uint32_t chip, uint8_t *buf, uint16_t *len);
VQ6192_API uint32_t VQ6192_ETH_InsertPppProtocolPkt(uint32_t chip, const uint8_t *data, uint32_t len);
VQ6192_API uint32_t VQ6192_ETH_ReadPppProtocolPkt(uint32_t chip, uint8_t *buf, uint32_t *len);

/* ==== MAC ports (module MAC) ==================================================================== */

/* MIB record: 66 counters of 64 bits, each two words, high word first. */
#define VQ6192_MAC_MIB_SLOTS 66u
#define VQ6192_MAC_MIB_WORDS 132u

VQ6192_API uint32_t VQ6192_MAC_SetPortWorkMode(uint32_t chip, uint32_t port, uint32_t mode);
VQ6192_API uint32_t VQ6192_MAC_GetPortWorkMode(uint32_t chip, uint32_t port, uint32_t *mode);
VQ6192_API uint32_t VQ6192_MAC_GetPortLinkStatus(uint32_t chip, uint32_t port, uint32_t unused,
                                                 uint32_t *link);
VQ6192_API uint32_t VQ6192_MAC_SetPortTxEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortRxEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortRxFcsEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortTxFcsEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortTxPadEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortRxUnderSizePktEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortRxPadStripEn(uint32_t chip, uint32_t port, uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortMaxPktLenCfg(uint32_t chip, uint32_t port, uint32_t len);
VQ6192_API uint32_t VQ6192_MAC_SetPortLoopbackEn(uint32_t chip, uint32_t port, uint32_t kind,
                                                 uint32_t enable);
VQ6192_API uint32_t VQ6192_MAC_SetPortPauseMode(uint32_t chip, uint32_t port, uint32_t mode);
VQ6192_API uint32_t VQ6192_MAC_GetPortPauseMode(uint32_t chip, uint32_t port, uint32_t *mode);
VQ6192_API uint32_t VQ6192_MAC_SetPortPauseAddr(uint32_t chip, uint32_t port, const uint8_t mac[6]);
VQ6192_API uint32_t VQ6192_MAC_GetPortPauseAddr(uint32_t chip, uint32_t port, uint8_t mac[6]);
VQ6192_API uint32_t VQ6192_MAC_GetPortMibCnt(uint32_t chip, uint32_t port, uint32_t rec[132]);
VQ6192_API uint32_t VQ6192_MAC_GetPortMibCntDfx(uint32_t chip, uint32_t tableId, uint32_t rec[132]);

/* ==== Diagnostic commands ======================================================================= */

/* Each writes its report into a 48128-byte text buffer (buf, last; null: no text) and returns the
 * status of the operation it wraps. Header records are 72 bytes (18 big-endian u32 fields), MAC
 * attributes one 16-bit value per field of VQ6192_ETH_MAC_ATTR_S. */
VQ6192_API uint32_t getpsnethinfo(uint32_t chip, uint32_t ch, uint32_t type, char *buf);
VQ6192_API uint32_t setpsnethinfo(uint32_t chip, uint32_t ch, uint32_t type, const uint8_t *info, char *buf);
VQ6192_API uint32_t modifypsnethinfo(uint32_t chip, uint32_t ch, uint32_t type, const uint8_t *mask,
                                     const uint8_t *info, char *buf);
VQ6192_API uint32_t setpsnethipaddr(uint32_t chip, uint32_t ch, uint32_t type, uint32_t sa, uint32_t da,
                                    char *buf);
VQ6192_API uint32_t setingvlanid(uint32_t chip, uint32_t type, uint32_t ch, uint32_t vlan, char *buf);
VQ6192_API uint32_t getingvlanid(uint32_t chip, uint32_t type, uint32_t ch, char *buf);
VQ6192_API uint32_t setsrvpktingda(uint32_t chip, uint32_t type, uint32_t ch, uint32_t low, uint32_t mid,
                                   uint32_t high, char *buf);
VQ6192_API uint32_t setatmcespmuencplbl(uint32_t chip, uint32_t ch, uint32_t type, uint32_t encp,
                                        uint32_t label, uint32_t inLabel, char *buf);
VQ6192_API uint32_t setppppmuencplbl(uint32_t chip, uint32_t ch, uint32_t type, uint32_t encp, uint32_t label,
                                     uint32_t gre, char *buf);
VQ6192_API uint32_t setegmplsbase(uint32_t chip, uint32_t sel, uint32_t base, char *buf);
VQ6192_API uint32_t getegmplsbase(uint32_t chip, uint32_t sel, char *buf);
VQ6192_API uint32_t setatmcesegmpls2chnl(uint32_t chip, uint32_t ch, uint32_t type, uint32_t inLabel,
                                         uint32_t sel, uint32_t en, char *buf);
VQ6192_API uint32_t getatmcesegmpls2chnl(uint32_t chip, uint32_t ch, uint32_t type, char *buf);
VQ6192_API uint32_t setegvlanid2chnl(uint32_t chip, uint32_t vlan, uint32_t type, uint32_t ch, char *buf);
VQ6192_API uint32_t getegvlanid2chnl(uint32_t chip, uint32_t vlan, char *buf);
VQ6192_API uint32_t setingpppmp2pid(uint32_t chip, uint32_t ch, uint32_t kind, uint32_t pid, uint32_t valid,
                                    char *buf);
VQ6192_API uint32_t getingpppmp2pid(uint32_t chip, uint32_t ch, uint32_t kind, char *buf);
VQ6192_API uint32_t setegpid2pppmp(uint32_t chip, uint32_t pid, uint32_t ch, uint32_t kind, uint32_t en,
                                   char *buf);
VQ6192_API uint32_t getegpid2pppmp(uint32_t chip, uint32_t pid, char *buf);
VQ6192_API uint32_t setsrvppppro2ethtypebyidx(uint32_t chip, uint32_t idx, uint32_t dir, uint32_t ppp,
                                              uint32_t type, uint32_t active, char *buf);
VQ6192_API uint32_t getsrvppppro2ethtype(uint32_t chip, uint32_t idx, uint32_t dir, char *buf);
VQ6192_API uint32_t setppppro2ethpro(uint32_t chip, uint32_t idx, uint32_t ppp, uint32_t cpu, uint32_t active,
                                     char *buf);
VQ6192_API uint32_t getppppro2ethpro(uint32_t chip, uint32_t idx, char *buf);
VQ6192_API uint32_t ppppro2type(uint32_t chip, char *buf);
VQ6192_API uint32_t setpmuipglbattr(uint32_t chip, uint32_t ver, uint32_t ihl, uint32_t ident, uint32_t flags,
                                    uint32_t offset, uint32_t daChk, char *buf);
VQ6192_API uint32_t getpmuipglbattr(uint32_t chip, char *buf);
VQ6192_API uint32_t setpmugreglbattr(uint32_t chip, uint32_t ver, uint32_t type0, uint32_t type1, char *buf);
VQ6192_API uint32_t getpmugreglbattr(uint32_t chip, char *buf);
VQ6192_API uint32_t setpmuudpsport(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t getpmuudpsport(uint32_t chip, char *buf);
VQ6192_API uint32_t setpmuptnctrl(uint32_t chip, const uint8_t *sel, const uint8_t *val, char *buf);
VQ6192_API uint32_t getpmuptnctrl(uint32_t chip, char *buf);
VQ6192_API uint32_t setvlandisable(uint32_t chip, uint32_t disable, char *buf);
VQ6192_API uint32_t getvlandisable(uint32_t chip, char *buf);
VQ6192_API uint32_t setpppcpuinsertenable(uint32_t chip, uint32_t insert, uint32_t toCpu, char *buf);
VQ6192_API uint32_t setmpppppauseen(uint32_t chip, uint32_t srvType, uint32_t en, char *buf);
VQ6192_API uint32_t getmpppppauseen(uint32_t chip, char *buf);
VQ6192_API uint32_t setethpausepara(uint32_t chip, uint32_t daSel, uint32_t p1, uint32_t p2, uint32_t p3,
                                    uint32_t p4, char *buf);
VQ6192_API uint32_t setpppprotocoltype(uint32_t chip, uint32_t mode, uint32_t v1, uint32_t v2, char *buf);
VQ6192_API uint32_t setpppcpuhead(uint32_t chip, uint32_t en, uint32_t len, uint32_t v1, uint32_t v2,
                                  char *buf);
VQ6192_API uint32_t setingpmupws(uint32_t chip, uint32_t value, char *buf);
VQ6192_API uint32_t getingpmupws(uint32_t chip, char *buf);
VQ6192_API uint32_t ethinit(uint32_t chip, uint32_t mode, char *buf);
VQ6192_API uint32_t getmacno(uint32_t chip, char *buf);
VQ6192_API uint32_t setserdesmacaddr(uint32_t chip, uint32_t mac, const uint16_t *addr, char *buf);
VQ6192_API uint32_t getserdesmacaddr(uint32_t chip, uint32_t mac, char *buf);
VQ6192_API uint32_t setmacattr(uint32_t chip, uint32_t mac, const uint16_t *attr, const uint16_t *sel,
                               char *buf);
VQ6192_API uint32_t getmacattr(uint32_t chip, uint32_t mac, char *buf);
VQ6192_API uint32_t getmaclinkstat(uint32_t chip, uint32_t mac, char *buf);
VQ6192_API uint32_t setmacloop(uint32_t chip, uint32_t mac, uint32_t mode, char *buf);
VQ6192_API uint32_t getmacloop(uint32_t chip, uint32_t mac, char *buf);
VQ6192_API uint32_t setserdesloop(uint32_t chip, uint32_t lane, uint32_t point, uint32_t en, char *buf);
VQ6192_API uint32_t getserdesloop(uint32_t chip, uint32_t lane, char *buf);
VQ6192_API uint32_t setserdesallchnlreset(uint32_t chip, uint32_t en, char *buf);
VQ6192_API uint32_t getserdesallchnlreset(uint32_t chip, char *buf);
VQ6192_API uint32_t setserdeschnlreset(uint32_t chip, uint32_t lane, uint32_t en, char *buf);
VQ6192_API uint32_t getserdeschnlreset(uint32_t chip, uint32_t lane, char *buf);
VQ6192_API uint32_t setserdesallchnlpowerdown(uint32_t chip, uint32_t en, char *buf);
VQ6192_API uint32_t getserdesallchnlpowerdown(uint32_t chip, char *buf);
VQ6192_API uint32_t getsesdesalmerr(uint32_t chip, uint32_t lane, char *buf);
VQ6192_API uint32_t getmacper(uint32_t chip, uint32_t mac, char *buf);
VQ6192_API uint32_t getmaccnt(uint32_t chip, uint32_t unused, uint32_t mac, char *buf);
VQ6192_API uint32_t geteth1per(uint32_t chip, char *buf);
VQ6192_API uint32_t seteth1wrrweight(uint32_t chip, uint32_t cls, uint32_t weight, char *buf);
VQ6192_API uint32_t geteth1wrrweight(uint32_t chip, uint32_t cls, char *buf);
VQ6192_API uint32_t setethglbpauseenable(uint32_t chip, uint32_t en, char *buf);
VQ6192_API uint32_t setethppplengthenable(uint32_t chip, uint32_t en1, uint32_t en0, char *buf);
VQ6192_API uint32_t seteth1maxlen(uint32_t chip, uint32_t len, char *buf);
VQ6192_API uint32_t seteth1portsendmode(uint32_t chip, uint32_t mode, char *buf);
VQ6192_API uint32_t setethappinterface(uint32_t chip, uint32_t en, char *buf);
VQ6192_API uint32_t getethappinterface(uint32_t chip, char *buf);
VQ6192_API uint32_t setselftestglbctl(uint32_t chip, uint32_t dir, uint32_t mac, uint32_t pattern,
                                      uint32_t len, char *buf);
VQ6192_API uint32_t getselftestglbctl(uint32_t chip, char *buf);
VQ6192_API uint32_t setselftestchnlen(uint32_t chip, const uint16_t *en, char *buf);
VQ6192_API uint32_t getselftestchnlen(uint32_t chip, char *buf);
VQ6192_API uint32_t setselftestprbs(uint32_t chip, uint32_t ch, uint32_t en, char *buf);
VQ6192_API uint32_t getselftestprbs(uint32_t chip, char *buf);
VQ6192_API uint32_t setselftestrate(uint32_t chip, uint32_t rate, char *buf);
VQ6192_API uint32_t getselftestrate(uint32_t chip, char *buf);
VQ6192_API uint32_t setselftesten(uint32_t chip, uint32_t en5, uint32_t en7, char *buf);
VQ6192_API uint32_t getselftesten(uint32_t chip, char *buf);
VQ6192_API uint32_t setselftesttxheaddata(uint32_t chip, uint32_t idx, const uint8_t *data, uint32_t len,
                                          char *buf);
VQ6192_API uint32_t getselftesttxheaddata(uint32_t chip, uint32_t idx, char *buf);
VQ6192_API uint32_t setselftestshouldrxheaddata(uint32_t chip, uint32_t idx, const uint8_t *data, char *buf);
VQ6192_API uint32_t setselftestshouldrxheaddatamsk(uint32_t chip, uint32_t idx, const uint8_t *data,
                                                   char *buf);
VQ6192_API uint32_t getselftestshouldrxheaddata(uint32_t chip, uint32_t idx, char *buf);
VQ6192_API uint32_t startcapethpkt(uint32_t chip, uint32_t dir, uint32_t len, const uint8_t *match,
                                   const uint8_t *option, char *buf);
VQ6192_API uint32_t stopcapethpkt(uint32_t chip, char *buf);
VQ6192_API uint32_t getcapethpkt(uint32_t chip, char *buf);
VQ6192_API uint32_t Vq6192CapEthPkt(uint32_t chip, uint32_t dir, char *buf);
VQ6192_API uint32_t insertpppprotocolpkt(uint32_t chip, const uint8_t *data, uint32_t len, char *buf);
VQ6192_API uint32_t readpppprotocolpkt(uint32_t chip, char *buf);
VQ6192_API uint32_t COUNT_ZERO_NUM(uint32_t x);
VQ6192_API uint32_t cdk_setportworkmode(uint32_t chip, uint32_t port, uint32_t mode, char *buf);
VQ6192_API uint32_t cdk_getportworkmode(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t cdk_getportlinkstatus(uint32_t chip, uint32_t port, uint32_t x, char *buf);
VQ6192_API uint32_t cdk_setporttxen(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setportrxen(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setportrxfcsen(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setporttxfcsen(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setporttxpaden(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setportrxundersizepkten(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setportrxpadstripen(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setportmaxpktlencfg(uint32_t chip, uint32_t port, uint32_t v, char *buf);
VQ6192_API uint32_t cdk_setportloopbacken(uint32_t chip, uint32_t port, uint32_t kind, uint32_t en,
                                          char *buf);
VQ6192_API uint32_t cdk_setportpausemode(uint32_t chip, uint32_t port, uint32_t mode, char *buf);
VQ6192_API uint32_t cdk_getportpausemode(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t cdk_setportpauseaddr(uint32_t chip, uint32_t port, const uint8_t *mac, char *buf);
VQ6192_API uint32_t cdk_getportpauseaddr(uint32_t chip, uint32_t port, char *buf);
VQ6192_API uint32_t initcdkmac(void);

VQ6192_EXTERN_C_END

#endif /* VQ6192_ETH_H */
