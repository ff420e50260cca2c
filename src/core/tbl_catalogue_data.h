// The chip's table catalogue: for every table id its name, a one-line description and the layout
// of its entries, member by member from the most significant field down (name, start bit, width, in
// entry bits: entry bit n is bit n mod 32 of entry word n / 32). Ids 0..216 are the chip tables with
// an access record; 217..257 are further words of multi-word IMA tables and 258..333 the registers
// of the two Ethernet MACs.
//
// Member descriptions are not documented for the chip and are left empty. The data are constexpr so
// that modules can name entry fields at compile time (core/entry_field.h); the arrays are also the
// library's exported C symbols.
#pragma once

#include <iterator>

#include "vq6192/table.h"

#define VQ6192_TBL(name, members, desc)                                                                      \
    {                                                                                                        \
        name, members, static_cast<uint16_t>(std::size(members)), static_cast<uint16_t>(std::size(members)), \
            desc                                                                                             \
    }

extern "C" {

// clang-format off

// Shared by the four reserved tables.
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberNULL[] = {
    {"Reserved", 0, 32, ""},
};


// 0
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3pktbuf[] = {
    {"Pwe3capturepkt",   3, 32, ""},
    {"Pwe3capturesel",   1,  2, ""},
    {"Pwe3captureeof",   0,  1, ""},
};

// 1
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3pritab[] = {
    {"Cbrpri",     12,  3, ""},
    {"Rtvbrpri",    9,  3, ""},
    {"Nrtvbrpri",   6,  3, ""},
    {"Ubrppri",     3,  3, ""},
    {"Ubrpri",      0,  3, ""},
};

// 2
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3pwcfgtab[] = {
    {"Atmpwe3pwtype",   2,  2, ""},
    {"Atmpwe3cwen",     1,  1, ""},
    {"Atmpwe3pwen",     0,  1, ""},
};

// 3
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3rxmanagetab[] = {
    {"Atmpwe3vpi",        26, 12, ""},
    {"Atmpwe3vci",        10, 16, ""},
    {"Expectsnrstrange",   2,  8, ""},
    {"Pwe3snchken",        1,  1, ""},
    {"Pwe3pktdropen",      0,  1, ""},
};

// 4
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3rxsttab[] = {
    {"Atmpwe3expectsn",    105, 16, ""},
    {"Atmpwe3lastsn",       89, 16, ""},
    {"Expectsnrstcnt",      81,  8, ""},
    {"Pwe3snchkerr",        80,  1, ""},
    {"Atmpwe3rxpktcnt",     48, 32, ""},
    {"Atmpwe3losspkt",      32, 16, ""},
    {"Atmpwe3disorderpkt",  16, 16, ""},
    {"Atmpwe3fractcell",     0, 16, ""},
};

// 5
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3txmanagetab[] = {
    {"Pwpriindex",      25,  5, ""},
    {"Maxrelaynum",     20,  5, ""},
    {"Reserved",         7, 13, ""},
    {"Maxrelayperiod",   1,  6, ""},
    {"Pwe3snadden",      0,  1, ""},
};

// 6
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmpwe3txsttab[] = {
    {"Atmpwe3sn",        70, 16, ""},
    {"Atmpwe3length",    53, 17, ""},
    {"Currentrelaynum",  48,  5, ""},
    {"Atmpwe3delaypkt",  32, 16, ""},
    {"Atmpwe3txpktcnt",   0, 32, ""},
};

// 7
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswlcapfifo[] = {
    {"Eoc",       33,  1, ""},
    {"Soc",       32,  1, ""},
    {"Lcapdata",   0, 32, ""},
};

// 8
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswlpcc[] = {
    {"Lprcc",  32, 32, ""},
    {"Lptcc",   0, 32, ""},
};

// 9
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswlpct[] = {
    {"Pwindex",   4, 11, ""},
    {"Porten",    3,  1, ""},
    {"Netattr",   2,  1, ""},
    {"Loopout",   1,  1, ""},
    {"Portmap",   0,  1, ""},
};

// 10
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswoamst[] = {
    {"Ccloc",      26,  1, ""},
    {"Sinktimer",  20,  6, ""},
    {"Srctimer",   16,  4, ""},
    {"Ccttcc",      8,  8, ""},
    {"Oamttcc",     0,  8, ""},
};

// 11
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswpolcfg[] = {
    {"Incrb",   37, 15, ""},
    {"Pbmode",  34,  3, ""},
    {"Limitb",  26,  8, ""},
    {"Incra",   11, 15, ""},
    {"Pamode",   8,  3, ""},
    {"Limita",   0,  8, ""},
};

// 12
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswpolst[] = {
    {"Tatb",         36, 30, ""},
    {"Overflowstb",  34,  2, ""},
    {"Updatestb",    33,  1, ""},
    {"Tata",          3, 30, ""},
    {"Overflowsta",   1,  2, ""},
    {"Updatasta",     0,  1, ""},
};

// 13
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswrfifo[] = {
    {"Eoc",         33,  1, ""},
    {"Soc",         32,  1, ""},
    {"Oamcapdata",   0, 32, ""},
};

// 14
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswscapfifo[] = {
    {"Eoc",       33,  1, ""},
    {"Soc",       32,  1, ""},
    {"Scapdata",   0, 32, ""},
};

// 15
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswspcc[] = {
    {"Sprcc",  32, 32, ""},
    {"Sptcc",   0, 32, ""},
};

// 16
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswspct[] = {
    {"Outport",   3,  9, ""},
    {"Porten",    2,  1, ""},
    {"Netattr",   1,  1, ""},
    {"Portmap",   0,  1, ""},
};

// 17
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswtcam[] = {
    {"Vld",    80,  1, ""},
    {"Maskh",  72,  8, ""},
    {"Maskl",  40, 32, ""},
    {"Port",   28, 12, ""},
    {"Vpi",    16, 12, ""},
};

// 18
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswtrcc[] = {
    {"Trcc",   0, 32, ""},
};

// 19
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswttcc[] = {
    {"Ttcc",   0, 32, ""},
};

// 20
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswvct[] = {
    {"Traffictype",  66,  3, ""},
    {"Policingid",   53, 13, ""},
    {"Upcnpc",       52,  1, ""},
    {"Seg",          51,  1, ""},
    {"E2e",          50,  1, ""},
    {"Ccsource",     49,  1, ""},
    {"Ccsink",       48,  1, ""},
    {"Ccsrctype",    47,  1, ""},
    {"Ccsinktype",   46,  1, ""},
    {"Segaisen",     45,  1, ""},
    {"Endaisen",     44,  1, ""},
    {"Segrdien",     43,  1, ""},
    {"Endrdien",     42,  1, ""},
    {"Chntype",      41,  1, ""},
    {"Dir",          40,  1, ""},
    {"Outport",      29, 11, ""},
    {"Gfcnewvpi",    25,  4, ""},
    {"Newvpi",       17,  8, ""},
    {"Newvci",        1, 16, ""},
    {"Valid",         0,  1, ""},
};

// 21
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswvcxfifo[] = {
    {"Vcx",   0, 13, ""},
};

// 22
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmswwfifo[] = {
    {"Eoc",         33,  1, ""},
    {"Soc",         32,  1, ""},
    {"Oamcapdata",   0, 32, ""},
};

// 23
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmbmfifocfg[] = {
    {"Atmbmpauseth",     38, 19, ""},
    {"Atmbmcancelth",    19, 19, ""},
    {"Atmbmfifodropth",   0, 19, ""},
};

// 24
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmbmfifosta[] = {
    {"Atmbmfifodropcnt",   0, 16, ""},
};

// 25
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmbmpvccfg[] = {
    {"Atmbmclpt",      9,  1, ""},
    {"Atmbmfden",      8,  1, ""},
    {"Atmbmpfden",     7,  1, ""},
    {"Atmbmreden",     6,  1, ""},
    {"Atmbmthindex",   0,  6, ""},
};

// 26
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmbmpvcsta[] = {
    {"Atmbmavg",      32, 32, ""},
    {"Atmbmredcnt",   19, 13, ""},
    {"Atmbmnewfrm",   18,  1, ""},
    {"Atmbmfdst",     17,  1, ""},
    {"Atmbmpfdst",    16,  1, ""},
    {"Atmbmdropcnt",   0, 16, ""},
};

// 27
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmbmthcfg[] = {
    {"Atmbmclp0s0", 135, 16, ""},
    {"Atmbmclp1s0", 119, 16, ""},
    {"Atmbmweight", 114,  5, ""},
    {"Atmbmredmin",  95, 19, ""},
    {"Atmbmredmax",  76, 19, ""},
    {"Atmbmfdth0",   57, 19, ""},
    {"Atmbmfdth1",   38, 19, ""},
    {"Atmbmclpth0",  19, 19, ""},
    {"Atmbmclpth1",   0, 19, ""},
};

// 28
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmebscfg[] = {
    {"Vbren",       65,  1, ""},
    {"Nvbren",      64,  1, ""},
    {"Vbrweight",   48, 16, ""},
    {"Nvbrweight",  32, 16, ""},
    {"Ubr1weight",  16, 16, ""},
    {"Ubrweight",    0, 16, ""},
};

// 29
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmlinkqmcfg[] = {
    {"Qmlen",   27, 19, ""},
    {"Qmbc",    26,  1, ""},
    {"Qmsta",   25,  1, ""},
    {"Qmport",  16,  9, ""},
    {"Qmtype",  13,  3, ""},
    {"Qmqid",    0, 13, ""},
};

// 30
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmlinkshvccfg[] = {
    {"Shvchead",    74, 13, ""},
    {"Shvctail",    61, 13, ""},
    {"Shvclen",     48, 13, ""},
    {"Shvcts",      24, 24, ""},
    {"Shvcbq",      23,  1, ""},
    {"Shvcstatus",  22,  1, ""},
    {"Shvcperiod",   0, 22, ""},
};

// 31
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmportqmcfg[] = {
    {"Portqmlen",     28, 10, ""},
    {"Portqmsate",    26,  2, ""},
    {"Portqmth",      18,  8, ""},
    {"Portqmperiod",   0, 18, ""},
};

// 33
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmtmnrtvbrshapcfg[] = {
    {"Nrtvbrinc",     9, 15, ""},
    {"Nrtvbrmode",    8,  1, ""},
    {"Nrtvbrlimit",   0,  8, ""},
};

// 35
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmtmrtvbrshapcfg[] = {
    {"Rtvbrinc",     9, 15, ""},
    {"Rtvbrmode",    8,  1, ""},
    {"Rtvbrlimit",   0,  8, ""},
};

// 37
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmtmubrplsshapcfg[] = {
    {"Ubrplsinc",     9, 15, ""},
    {"Ubrplsmode",    8,  1, ""},
    {"Ubrplslimit",   0,  8, ""},
};

// 39
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAfidcfg[] = {
    {"Rxafi",   11,  1, ""},
    {"Mpv",      3,  8, ""},
    {"Crcmod",   1,  2, ""},
    {"Bytefe",   0,  1, ""},
};

// 40
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRppucfg[] = {
    {"Crcfe",    28,  1, ""},
    {"Chcen",    27,  1, ""},
    {"Fillmod",  26,  1, ""},
    {"Crcmod",   24,  2, ""},
    {"Die",      23,  1, ""},
    {"Rxpldet",  22,  1, ""},
    {"Rxmtu",    11, 11, ""},
    {"Rxmintu",   0, 11, ""},
};

// 41
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRppupstat[] = {
    {"Len",           69, 11, ""},
    {"State",         67,  2, ""},
    {"Rbufferwidth",  65,  2, ""},
    {"Ind7d",         64,  1, ""},
    {"Rbuffer",       48, 16, ""},
    {"Lastdata",      40,  8, ""},
    {"Lastvldbits",   37,  3, ""},
    {"Lowcnt1",       33,  4, ""},
    {"Sop",           32,  1, ""},
    {"Crc",            0, 32, ""},
};

// 42
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRppustat[] = {
    {"Rxbytes", 144, 32, ""},
    {"Ravail",  112, 32, ""},
    {"Rabort",   96, 16, ""},
    {"Rcrc",     80, 16, ""},
    {"Rbyte",    64, 16, ""},
    {"Rlong",    48, 16, ""},
    {"Rshort",   32, 16, ""},
    {"Rright",    0, 32, ""},
};

// 43
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTppucfg[] = {
    {"Crcfe",    13,  1, ""},
    {"Chcen",    12,  1, ""},
    {"Txaifs",   11,  1, ""},
    {"Txifs",    10,  1, ""},
    {"Txcfcs",    9,  1, ""},
    {"Txfmod",    5,  4, ""},
    {"Fillmod",   4,  1, ""},
    {"Crcmod",    2,  2, ""},
    {"Die",       1,  1, ""},
    {"Bytefe",    0,  1, ""},
};

// 44
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTppupstat[] = {
    {"Eptst",             145,  3, ""},
    {"Tbufferh",          140,  5, ""},
    {"Tbufferl",          108, 32, ""},
    {"State",             105,  3, ""},
    {"Abortoccured",      104,  1, ""},
    {"Erroccured",        103,  1, ""},
    {"Err",               102,  1, ""},
    {"Empty",             101,  1, ""},
    {"End",               100,  1, ""},
    {"Eof",                99,  1, ""},
    {"Crcsentcnt",         96,  3, ""},
    {"Interfillcnt",       92,  4, ""},
    {"Lastcnt1low",        89,  3, ""},
    {"Lastrestdatavld",    88,  1, ""},
    {"Lastrestdatavbits",  84,  4, ""},
    {"Lastrestdata",       75,  9, ""},
    {"Lastpredata",        67,  8, ""},
    {"Tsavadatavbytes",    64,  3, ""},
    {"Tsavadata",          32, 32, ""},
};

// 45
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTppustat[] = {
    {"Txbytes",  64, 32, ""},
    {"Tright",   32, 32, ""},
    {"Tabort",   16, 16, ""},
    {"Terr",      0, 16, ""},
};

// 46
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMplooppktcnt[] = {
    {"Looppktcnt",   0,  8, ""},
};

// 47
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMplooptimestp[] = {
    {"T4h", 112, 16, ""},
    {"T4l",  96, 16, ""},
    {"T3h",  80, 16, ""},
    {"T3l",  64, 16, ""},
    {"T2h",  48, 16, ""},
    {"T2l",  32, 16, ""},
    {"T1h",  16, 16, ""},
    {"T1l",   0, 16, ""},
};

// 48
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprgrpcfg[] = {
    {"Mprgrpsnlmt",     9, 14, ""},
    {"Mprgrptmrthld",   0,  9, ""},
};

// 49
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprgrpmcstat[] = {
    {"Otptrvld",    91,  1, ""},
    {"Sntype",      90,  1, ""},
    {"Tmrstp",      81,  9, ""},
    {"Pdcnt",       67, 14, ""},
    {"Cp",          52, 15, ""},
    {"Hp",          37, 15, ""},
    {"Op",          22, 15, ""},
    {"Abnorcnt",    14,  8, ""},
    {"Seqcnt",       7,  7, ""},
    {"Initstate",    4,  3, ""},
    {"Reseqstate",   2,  2, ""},
    {"Packstate",    0,  2, ""},
};

// 50
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprgrppktcnt[] = {
    {"Mprgrpsnerrcnt", 144, 16, ""},
    {"Mprgrprepcnt",   128, 16, ""},
    {"Mprgrpotcnt",     96, 32, ""},
    {"Mprgrpabrcnt",    64, 32, ""},
    {"Mprgrppackcnt",   32, 32, ""},
    {"Mprgrpfragcnt",    0, 32, ""},
};

// 51
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprpbytecnt[] = {
    {"Mprpbytecnt",   0, 32, ""},
};

// 52
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprpcsptcfg1[] = {
    {"Csptpppen",   0,  1, ""},
};

// 53
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprpcsptcfg2[] = {
    {"Csptmpen",     8,  1, ""},
    {"Mprpprefix",   0,  8, ""},
};

// 54
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmbdcnt[] = {
    {"Mprxmmpbdcnt",   0, 18, ""},
};

// 55
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmbecnt[] = {
    {"Mprxmmpb",  16, 16, ""},
    {"Mprxmmpe",   0, 16, ""},
};

// 56
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmhdlccfg1[] = {
    {"Mploopen",         2,  1, ""},
    {"Mprxmlinken",      1,  1, ""},
    {"Mprxmlinktype0",   0,  1, ""},
};

// 57
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmhdlccfg2[] = {
    {"Mprxmlinktype1",   8,  1, ""},
    {"Mprxmlinkmpsn",    0,  8, ""},
};

// 58
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmhdlcpktcnt[] = {
    {"Mprxmlinkcnt",   0, 32, ""},
};

// 59
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmmccnt[] = {
    {"Rxmmccnt",   0, 16, ""},
};

// 60
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmmpcfg1[] = {
    {"Mprxmmphth",  18, 18, ""},
    {"Mprxmmplth",   0, 18, ""},
};

// 61
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprxmmpcfg2[] = {
    {"Mprxmmcset",   0,  4, ""},
};

// 62
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpskyeyecfg[] = {
    {"Gpen",     5,  1, ""},
    {"Gplink",   0,  5, ""},
};

// 63
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMptesttxen[] = {
    {"Mptesttxen",   0,  1, ""},
};

// 64
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberChfifost[] = {
    {"Fillfifocnt",     4,  7, ""},
    {"Fillfifoful",     3,  1, ""},
    {"Fillfifoaful1",   2,  1, ""},
    {"Fillfifoaful0",   1,  1, ""},
    {"Fillfifoept",     0,  1, ""},
};

// 65
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFillst[] = {
    {"Quenum",  21, 12, ""},
    {"Nxtadr",   1, 20, ""},
    {"O",        0,  1, ""},
};

// 66
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFragcfg[] = {
    {"Mpacfc",      15,  1, ""},
    {"Mpmcprefix",   7,  8, ""},
    {"Mppfc",        6,  1, ""},
    {"Mpsntype",     5,  1, ""},
    {"Mpgran",       0,  5, ""},
};

// 67
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberHddisst[] = {
    {"Epts",   0,  8, ""},
};

// 68
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberHdeptst[] = {
    {"Epts",   0,  8, ""},
};

// 69
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberHdfccfg[] = {
    {"Disth",    40, 20, ""},
    {"Cgtth",    20, 20, ""},
    {"Uncgtth",   0, 20, ""},
};

// 70
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberHdqst[] = {
    {"Rptr",  41, 20, ""},
    {"Aptr",  21, 20, ""},
    {"Cnt",    1, 20, ""},
    {"V",      0,  1, ""},
};

// 71
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberLinkcfg[] = {
    {"Loopen",     13,  1, ""},
    {"Testtxen",   12,  1, ""},
    {"Linkacfc",   11,  1, ""},
    {"Linkpfc",    10,  1, ""},
    {"Linkmp",      2,  8, ""},
    {"Linkmpen",    1,  1, ""},
    {"Linkpppen",   0,  1, ""},
};

// 72
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMcfccfg[] = {
    {"Disth",    40, 20, ""},
    {"Cgtth",    20, 20, ""},
    {"Uncgtth",   0, 20, ""},
};

// 73
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMcqst[] = {
    {"Prptr",  41, 20, ""},
    {"Paptr",  21, 20, ""},
    {"Cnt",     1, 20, ""},
    {"V",       0,  1, ""},
};

// 74
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMcsn[] = {
    {"Cntsn7", 168, 24, ""},
    {"Cntsn6", 144, 24, ""},
    {"Cntsn5", 120, 24, ""},
    {"Cntsn4",  96, 24, ""},
    {"Cntsn3",  72, 24, ""},
    {"Cntsn2",  48, 24, ""},
    {"Cntsn1",  24, 24, ""},
    {"Cntsn0",   0, 24, ""},
};

// 75
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpdisst[] = {
    {"Epts",   0,  8, ""},
};

// 76
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpeptst[] = {
    {"Epts",   0,  8, ""},
};

// 77
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpschst[] = {
    {"V",        3,  1, ""},
    {"Quenum",   0,  3, ""},
};

// 78
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpwgtcfg[] = {
    {"Mpwgt7",  49,  7, ""},
    {"Mpwgt6",  42,  7, ""},
    {"Mpwgt5",  35,  7, ""},
    {"Mpwgt4",  28,  7, ""},
    {"Mpwgt3",  21,  7, ""},
    {"Mpwgt2",  14,  7, ""},
    {"Mpwgt1",   7,  7, ""},
    {"Mpwgt0",   0,  7, ""},
};

// 79
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpwgtst[] = {
    {"Mpwgt7", 140, 18, ""},
    {"Mpwgt6", 122, 18, ""},
    {"Mpwgt5", 104, 18, ""},
    {"Mpwgt4",  86, 18, ""},
    {"Mpwgt3",  68, 18, ""},
    {"Mpwgt2",  50, 18, ""},
    {"Mpwgt1",  32, 18, ""},
    {"Mpwgt0",  14, 18, ""},
    {"Schnum",  11,  3, ""},
    {"Schlen",   0, 11, ""},
};

// 80
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPppencfg[] = {
    {"Pppcfgen",   0,  8, ""},
};

// 81
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPppwgtcfg[] = {
    {"Pppwgt7",  49,  7, ""},
    {"Pppwgt6",  42,  7, ""},
    {"Pppwgt5",  35,  7, ""},
    {"Pppwgt4",  28,  7, ""},
    {"Pppwgt3",  21,  7, ""},
    {"Pppwgt2",  14,  7, ""},
    {"Pppwgt1",   7,  7, ""},
    {"Pppwgt0",   0,  7, ""},
};

// 82
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPppwgtst[] = {
    {"Pppwgt7", 140, 18, ""},
    {"Pppwgt6", 122, 18, ""},
    {"Pppwgt5", 104, 18, ""},
    {"Pppwgt4",  86, 18, ""},
    {"Pppwgt3",  68, 18, ""},
    {"Pppwgt2",  50, 18, ""},
    {"Pppwgt1",  32, 18, ""},
    {"Pppwgt0",  14, 18, ""},
    {"Schnum",   11,  3, ""},
    {"Schlen",    0, 11, ""},
};

// 83
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberQmencfg[] = {
    {"Qmen",   0,  8, ""},
};

// 84
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSnctrlbase[] = {
    {"Mc7",  84, 12, ""},
    {"Mc6",  72, 12, ""},
    {"Mc5",  60, 12, ""},
    {"Mc4",  48, 12, ""},
    {"Mc3",  36, 12, ""},
    {"Mc2",  24, 12, ""},
    {"Mc1",  12, 12, ""},
    {"Mc0",   0, 12, ""},
};

// 85
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSnctrlcfg[] = {
    {"Snctrlen7",   63,  1, ""},
    {"Snctrlnum7",  56,  7, ""},
    {"Snctrlen6",   55,  1, ""},
    {"Snctrlnum6",  48,  7, ""},
    {"Snctrlen5",   47,  1, ""},
    {"Snctrlnum5",  40,  7, ""},
    {"Snctrlen4",   39,  1, ""},
    {"Snctrlnum4",  32,  7, ""},
    {"Snctrlen3",   31,  1, ""},
    {"Snctrlnum3",  24,  7, ""},
    {"Snctrlen2",   23,  1, ""},
    {"Snctrlnum2",  16,  7, ""},
    {"Snctrlen1",   15,  1, ""},
    {"Snctrlnum1",   8,  7, ""},
    {"Snctrlen0",    7,  1, ""},
    {"Snctrlnum0",   0,  7, ""},
};

// 86
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSnctrlwind[] = {
    {"Snwind3",  96, 32, ""},
};

// 87
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesidlecode[] = {
    {"Cesidlecode",   0,  8, ""},
};

// 88
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesjbempcnt[] = {
    {"Cesjbemptycnt",   0, 16, ""},
};

// 89
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesjbfullcnt[] = {
    {"Cesjbfullcnt",   0, 16, ""},
};

// 90
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesjbfulldropcnt[] = {
    {"Cesjbfulldropcnt",   0, 32, ""},
};

// 91
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesrxjbrdcnt[] = {
    {"Cesrxjbrdcnt",   0, 32, ""},
};

// 92
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesrxjbwrcnt[] = {
    {"Cesrxjbwrcnt",   0, 32, ""},
};

// 93
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesrxcnt[] = {
    {"Sndroppktcnt",  128, 16, ""},
    {"Rxlrpktcnt",    112, 16, ""},
    {"Rxetherrcnt",    96, 16, ""},
    {"Rxdropcnt",      80, 16, ""},
    {"Rxsnerrcnt",     64, 16, ""},
    {"Rxptlenerrcnt",  48, 16, ""},
    {"Rxssrcerrcnt",   32, 16, ""},
    {"Rxpkgcnt",        0, 32, ""},
};

// 94
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesrxcwrtp[] = {
    {"Rxsngenmode",    50,  2, ""},
    {"Snerrdropen",    49,  1, ""},
    {"Pterrdropen",    48,  1, ""},
    {"Ssrcerrdropen",  47,  1, ""},
    {"Lenerrdropen",   46,  1, ""},
    {"Rxerrdropen",    45,  1, ""},
    {"Lctrl",          44,  1, ""},
    {"Rctrl",          43,  1, ""},
    {"Revrctrl",       42,  1, ""},
    {"Lmctrl",         41,  1, ""},
    {"Rxssrc",          9, 32, ""},
    {"Rxrtppt",         2,  7, ""},
    {"Rxrtpcw",         1,  1, ""},
    {"Rxrtpen",         0,  1, ""},
};

// 95
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCesrxtsmask[] = {
    {"Cesrxtsmask",   0, 32, ""},
};

// 96
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestsrxcnt[] = {
    {"Cestxrxcnt",   0, 32, ""},
};

// 97
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCeststxcnt[] = {
    {"Ceststxcnt",   0, 32, ""},
};

// 98
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestxtbrdcnt[] = {
    {"Cestxtbrdcnt",   0, 32, ""},
};

// 99
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestxtbwrcnt[] = {
    {"Cestxtbwrcnt",   0, 32, ""},
};

// 100
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestxcnt[] = {
    {"Cestxcnt",   0, 32, ""},
};

// 101
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestxcwrtp[] = {
    {"Txltssel",     49,  4, ""},
    {"Txrevren",     48,  1, ""},
    {"Txdiffclken",  47,  1, ""},
    {"Txsngenmode",  45,  2, ""},
    {"Txssrc",       13, 32, ""},
    {"Txrtppt",       6,  7, ""},
    {"Txcwlrm",       2,  4, ""},
    {"Txrtpcw",       1,  1, ""},
    {"Txrtpen",       0,  1, ""},
};

// 102
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestxtsmask[] = {
    {"Cestxtsmask",   0, 32, ""},
};

// 103
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberDds12key[] = {
    {"Dds1keyh",  72,  8, ""},
    {"Dds1keym",  56, 16, ""},
    {"Dds1keyl",  40, 16, ""},
    {"Dds2keyh",  32,  8, ""},
    {"Dds2keym",  16, 16, ""},
    {"Dds2keyl",   0, 16, ""},
};

// 104
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTsfifo[] = {
    {"Oppositesn",   64, 16, ""},
    {"Oppositets0",  48, 16, ""},
    {"Oppositets1",  32, 16, ""},
    {"Localts0",     16, 16, ""},
    {"Localts1",      0, 16, ""},
};

// 105
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamcfiforxcit[] = {
    {"Depth",      8,  6, ""},
    {"Pktcnt",     2,  6, ""},
    {"Overrun",    1,  1, ""},
    {"Underrun",   0,  1, ""},
};

// 106
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamcfiforxfbt[] = {
    {"Sop",    9,  1, ""},
    {"Eop",    8,  1, ""},
    {"Data",   0,  8, ""},
};

// 107
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamcfifotxcit[] = {
    {"Depth",      8,  6, ""},
    {"Pktcnt",     2,  6, ""},
    {"Overrun",    1,  1, ""},
    {"Underrun",   0,  1, ""},
};

// 108
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamcfifotxfbt[] = {
    {"Sop",    9,  1, ""},
    {"Eop",    8,  1, ""},
    {"Data",   0,  8, ""},
};

// 109
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamfthsbt[] = {
    {"Rxsabit3",  15,  5, ""},
    {"Rxsabit2",  10,  5, ""},
    {"Rxsabit1",   5,  5, ""},
    {"Rxsabit0",   0,  5, ""},
};

// 110
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSaminssbt[] = {
    {"Sabit3",  15,  5, ""},
    {"Sabit2",  10,  5, ""},
    {"Sabit1",   5,  5, ""},
    {"Sabit0",   0,  5, ""},
};

// 111
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamrppucfg[] = {
    {"Chcen",      5,  1, ""},
    {"Fillmod",    4,  1, ""},
    {"Crcmod",     2,  2, ""},
    {"Die",        1,  1, ""},
    {"Reserved",   0,  1, ""},
};

// 112
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamrppucnt[] = {
    {"Rxbytes", 112, 32, ""},
    {"Ravail",   80, 32, ""},
    {"Rabort",   64, 16, ""},
    {"Rcrc",     48, 16, ""},
    {"Rbyte",    32, 16, ""},
    {"Rright",    0, 32, ""},
};

// 113
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamrppusta[] = {
    {"Len",           69, 11, ""},
    {"State",         67,  2, ""},
    {"Rbufferwidth",  65,  2, ""},
    {"Ind7d",         64,  1, ""},
    {"Rbuffer",       48, 16, ""},
    {"Lastdata",      40,  8, ""},
    {"Lastvldbits",   37,  3, ""},
    {"Lowcnt1",       33,  4, ""},
    {"Sop",           32,  1, ""},
    {"Crc",            0, 32, ""},
};

// 114
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamtppucfg[] = {
    {"Chcen",    11,  1, ""},
    {"Txaifs",   10,  1, ""},
    {"Txifs",     9,  1, ""},
    {"Txcfcs",    8,  1, ""},
    {"Txfmod",    4,  4, ""},
    {"Fillmod",   3,  1, ""},
    {"Crcmod",    1,  2, ""},
    {"Die",       0,  1, ""},
};

// 115
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamtppucnt[] = {
    {"Txbytes",  64, 32, ""},
    {"Tright",   32, 32, ""},
    {"Tabort",   16, 16, ""},
    {"Terr",      0, 16, ""},
};

// 116
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSamtppusta[] = {
    {"Tbufferh",          140,  5, ""},
    {"Tbufferl",          108, 32, ""},
    {"State",             105,  3, ""},
    {"Abortoccured",      104,  1, ""},
    {"Erroccured",        103,  1, ""},
    {"Err",               102,  1, ""},
    {"Empty",             101,  1, ""},
    {"End",               100,  1, ""},
    {"Eof",                99,  1, ""},
    {"Crcsentcnt",         96,  3, ""},
    {"Interfillcnt",       92,  4, ""},
    {"Lastcnt1low",        89,  3, ""},
    {"Lastrestdatavld",    88,  1, ""},
    {"Lastrestdatavbits",  84,  4, ""},
    {"Lastrestdata",       75,  9, ""},
    {"Lastpredata",        67,  8, ""},
    {"Tsavadatavbytes",    64,  3, ""},
    {"Tsavadata",          32, 32, ""},
};

// 117
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTsdlet1tab[] = {
    {"En",         15,  1, ""},
    {"Moduleind",  13,  2, ""},
    {"Tsspeed",    11,  2, ""},
    {"Chnum",       0, 11, ""},
};

// 118
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTsdlet3vc4tab[] = {
    {"En",         15,  1, ""},
    {"Moduleind",  13,  2, ""},
    {"Tsspeed",    11,  2, ""},
    {"Chnum",       0, 11, ""},
};

// 119
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTsulet1tab[] = {
    {"En",         15,  1, ""},
    {"Moduleind",  13,  2, ""},
    {"Tsspeed",    11,  2, ""},
    {"Chnum",       0, 11, ""},
};

// 120
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTsulet3vc4tab[] = {
    {"En",         15,  1, ""},
    {"Moduleind",  13,  2, ""},
    {"Tsspeed",    11,  2, ""},
    {"Chnum",       0, 11, ""},
};

// 121
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberDownppppro[] = {
    {"Downppppro",   0, 16, ""},
};

// 122
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMpls2key[] = {
    {"E1no",   0, 12, ""},
};

// 123
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberNo2pid[] = {
    {"Ppppiden",  12,  1, ""},
    {"Cpupid",     0, 12, ""},
};

// 124
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPid2no[] = {
    {"Channo",   0, 10, ""},
};

// 125
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPsnheader[] = {
    {"Reserved",      206,  2, ""},
    {"Lb1ethtype",    204,  2, ""},
    {"Lb1vlanid",     192, 12, ""},
    {"Lb1ethdah",     176, 16, ""},
    {"Lb1ethdal",     144, 32, ""},
    {"Lb1greprotype", 128, 16, ""},
    {"Lb1ipda",        96, 32, ""},
    {"Lb1ipsa",        64, 32, ""},
    {"Lb1ipprotcl",    56,  8, ""},
    {"Lb1ipttl",       48,  8, ""},
    {"Lb1iptos",       40,  8, ""},
    {"Reserved",       36,  4, ""},
    {"Lb1pwlable",     16, 20, ""},
    {"Lb1pwttl",        8,  8, ""},
    {"Reserved",        7,  1, ""},
    {"Lb1pwcos",        4,  3, ""},
    {"Reserved",        3,  1, ""},
};

// 126
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxheadfield[] = {
    {"Rxheadfield15", 480, 32, ""},
};

// 127
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxheadfield[] = {
    {"Txheadfield15", 480, 32, ""},
};

// 128
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberUpppptype[] = {
    {"Upppptype",   0, 16, ""},
};

// 129
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberVlan2lable[] = {
    {"Labletype",   9,  3, ""},
    {"Mplable",     0,  9, ""},
};

// 130
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMac1Cnt[] = {
    {"Mac32Bits",   0, 32, ""},
};

// 131
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMac2Cnt[] = {
    {"Mac32Bits",   0, 32, ""},
};

// 132
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTcrxlnkcfg[] = {
    {"Rxlinken",        95,  1, ""},
    {"Rxscrambleren",   94,  1, ""},
    {"Rxployadden",     93,  1, ""},
    {"Rxbitreverseen",  92,  1, ""},
    {"Reserved",        91,  1, ""},
    {"Rxheccorrecten",  90,  1, ""},
    {"Rxidlefilteren",  89,  1, ""},
    {"Rxhecfilteren",   88,  1, ""},
    {"Rxocdfilteren",   87,  1, ""},
    {"Rxcdfsmalpha",    83,  4, ""},
    {"Rxcdfsmdelta",    79,  4, ""},
    {"Rxheccorrectm",   77,  2, ""},
    {"Rxlcdtimer",      71,  6, ""},
    {"Reserved",        64,  7, ""},
    {"Rxheader",        32, 32, ""},
    {"Rxheadermask",     0, 32, ""},
};

// 133
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTcrxlnksta0[] = {
    {"Rxscramblebyte0",  80, 16, ""},
    {"Rxbytecnt",        74,  6, ""},
    {"Rxcorrectcnt",     70,  4, ""},
    {"Rxhecalphacnt",    66,  4, ""},
    {"Rxhecdeltacnt",    62,  4, ""},
    {"Rxcdfsmst",        60,  2, ""},
    {"Rxcorrectst",      59,  1, ""},
    {"Rxhecfindbit",     56,  3, ""},
    {"Rxdindff7",        48,  8, ""},
    {"Rxdindff6",        40,  8, ""},
    {"Rxdindff5",        32,  8, ""},
    {"Rxdindff4",        24,  8, ""},
    {"Rxdindff3",        16,  8, ""},
    {"Rxdindff2",         8,  8, ""},
    {"Rxdindff1",         0,  8, ""},
};

// 134
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTcrxlnksta1[] = {
    {"Rxscramblebyte1",  80, 16, ""},
    {"Rxidlereccnt",     64, 16, ""},
    {"Rxheadmatchcnt",   48, 16, ""},
    {"Rxheccorrcnt",     32, 16, ""},
    {"Rxhecuncorrcnt",   16, 16, ""},
    {"Rxocdcellcnt",      0, 16, ""},
};

// 135
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTcrxlnksta2[] = {
    {"Rxlastpayloadh",   80, 16, ""},
    {"Rxlastpayloadl",   48, 32, ""},
    {"Rxscramblebyte2",  40,  8, ""},
    {"Rxuhcswarn",       39,  1, ""},
    {"Rxchcswarn",       38,  1, ""},
    {"Rxlcdwarn",        37,  1, ""},
    {"Rxocdwarn",        36,  1, ""},
    {"Reserved",         32,  4, ""},
};

// 136
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTcrximaiflnksta[] = {
    {"Reserved",   18, 14, ""},
    {"Wrbytecnt",  12,  6, ""},
    {"Depth",       2, 10, ""},
    {"Overrun",     1,  1, ""},
    {"Underun",     0,  1, ""},
};

// 137
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTcrxtsiflnksta[] = {
    {"Reserved",   6, 10, ""},
    {"Depth",      2,  4, ""},
    {"Overrun",    1,  1, ""},
    {"Underun",    0,  1, ""},
};

// 138
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTctxlnkcfg[] = {
    {"Reserved",         79, 17, ""},
    {"Reserved",         47, 32, ""},
    {"Txlinken",         46,  1, ""},
    {"Txscrambleren",    45,  1, ""},
    {"Txployadden",      44,  1, ""},
    {"Txbitreverseen",   43,  1, ""},
    {"Txidleinserten",   42,  1, ""},
    {"Txhecinserttype",  40,  2, ""},
    {"Txhecinsertdata",  32,  8, ""},
    {"Txidlecellhead4",  24,  8, ""},
    {"Txidlecellhead3",  16,  8, ""},
    {"Txidlecellhead2",   8,  8, ""},
};

// 139
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTctxlnksta[] = {
    {"Heccrcout",       88,  8, ""},
    {"Reserved",        87,  1, ""},
    {"Txcelltype",      86,  1, ""},
    {"Txcellsentcnt",   54, 32, ""},
    {"Txbytecnt",       48,  6, ""},
    {"Txscrambledff5",  40,  8, ""},
    {"Txscrambledff4",  32,  8, ""},
    {"Txscrambledff3",  24,  8, ""},
    {"Txscrambledff2",  16,  8, ""},
    {"Txscrambledff1",   8,  8, ""},
    {"Txscrambleout",    0,  8, ""},
};

// 140
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTctximaiflnksta[] = {
    {"Reserved",   18, 14, ""},
    {"Rdbytecnt",  12,  6, ""},
    {"Depth",       2, 10, ""},
    {"Overrun",     1,  1, ""},
    {"Underun",     0,  1, ""},
};

// 141
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTctxtsiflnksta[] = {
    {"Reserved",   6, 10, ""},
    {"Depth",      2,  4, ""},
    {"Overrun",    1,  1, ""},
    {"Underun",    0,  1, ""},
};

// 142
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImapptxc[] = {
    {"Txconfigen",         30,  2, ""},
    {"Reserved",           25,  5, ""},
    {"Txlinkgrouptag",     16,  9, ""},
    {"Txlid",              11,  5, ""},
    {"Reserved",            4,  7, ""},
    {"Netxactiveinten",     3,  1, ""},
    {"Ferxunusableinten",   2,  1, ""},
    {"Ferxdefectinten",     1,  1, ""},
    {"Netxtimeoutinten",    0,  1, ""},
};

// 143
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImapprxc[] = {
    {"Rxconfigen",         30,  2, ""},
    {"Reserved",           25,  5, ""},
    {"Rxlinkgrouptag",     16,  9, ""},
    {"Reserved",           12,  4, ""},
    {"Lasrrechecken",      11,  1, ""},
    {"Reserved",           10,  1, ""},
    {"Nerxactiveinten",     9,  1, ""},
    {"Fetxunusableinten",   8,  1, ""},
    {"Nediffdelayinten",    7,  1, ""},
    {"Neoverruninten",      6,  1, ""},
    {"Neunderruninten",     5,  1, ""},
    {"Neautolasrinten",     4,  1, ""},
    {"Neautouusinten",      3,  1, ""},
    {"Nelifinten",          2,  1, ""},
    {"Neinvalidicpinten",   1,  1, ""},
    {"Nerxtimeoutinten",    0,  1, ""},
};

// 144
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc0[] = {
    {"Gpimaoamlabel",     24,  8, ""},
    {"Gpsymmode",         22,  2, ""},
    {"Gpicpfwden",        21,  1, ""},
    {"Gpicpfwdfilter",    20,  1, ""},
    {"Gpautorsten",       19,  1, ""},
    {"Reserved",          10,  9, ""},
    {"Ferestartinten",     9,  1, ""},
    {"Fetrlinten",         8,  1, ""},
    {"Grtiminginten",      7,  1, ""},
    {"Fegptimeoutinten",   6,  1, ""},
    {"Negptimeoutinten",   5,  1, ""},
    {"Feabortinten",       4,  1, ""},
    {"Neabortinten",       3,  1, ""},
    {"Negtsminten",        2,  1, ""},
    {"Fegsminten",         1,  1, ""},
    {"Negsminten",         0,  1, ""},
};

// 145
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc1[] = {
    {"Tximaid",         24,  8, ""},
    {"Tximam",          22,  2, ""},
    {"Txminnum",        16,  6, ""},
    {"Txendchannel",     8,  8, ""},
    {"Txendchannelen",   7,  1, ""},
    {"Txclkmode",        6,  1, ""},
    {"Reserved",         0,  6, ""},
};

// 146
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc2[] = {
    {"Rximaidcfgen",   31,  1, ""},
    {"Rximaidcfg",     23,  8, ""},
    {"Rxminmum",       17,  6, ""},
    {"Rximamen",       13,  4, ""},
    {"Rxdefectrpt",    12,  1, ""},
    {"Reserved",        9,  3, ""},
    {"Txchgtrlen",      8,  1, ""},
    {"Trltimeoutmax",   0,  8, ""},
};

// 147
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc3[] = {
    {"Reserved",        25,  7, ""},
    {"Autouusen",       24,  1, ""},
    {"Reserved",        23,  1, ""},
    {"Uustimeoutmax",   16,  7, ""},
    {"Reserved",        13,  3, ""},
    {"Autolasren",      12,  1, ""},
    {"Lificprecmax",     8,  4, ""},
    {"Reserved",         7,  1, ""},
    {"Lasrtimeoutmax",   0,  7, ""},
};

// 148
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc4[] = {
    {"Reserved",           19, 13, ""},
    {"Linkvalidatemax",    16,  3, ""},
    {"Reserved",            6, 10, ""},
    {"Negsmrestartwait",    5,  1, ""},
    {"Fegsmrestartwait",    4,  1, ""},
    {"Gsmrestarttimeout",   0,  4, ""},
};

// 149
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc5[] = {
    {"Reserved",    27,  5, ""},
    {"Rxphylink2",  18,  9, ""},
    {"Rxphylink1",   9,  9, ""},
    {"Rxphylink0",   0,  9, ""},
};

// 150
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImapptxs0[] = {
    {"Txlinken",          31,  1, ""},
    {"Netxlsm",           27,  4, ""},
    {"Ferxlsm",           24,  3, ""},
    {"Txlinkpmuus",       23,  1, ""},
    {"Txlinkpmuuscause",  20,  3, ""},
    {"Txautouuscnten",    19,  1, ""},
    {"Txautolasrcnten",   18,  1, ""},
    {"Txautolasring",     17,  1, ""},
    {"Defecttimercnt",    10,  7, ""},
    {"Reserved",           0, 10, ""},
};

// 151
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImapptxs1[] = {
    {"Txdeltimeren",     31,  1, ""},
    {"Txdeltimer",       27,  4, ""},
    {"Reserved",          6, 21, ""},
    {"Ferxdefect",        4,  2, ""},
    {"Netxactiveint",     3,  1, ""},
    {"Ferxunusableint",   2,  1, ""},
    {"Ferxdefectint",     1,  1, ""},
    {"Netxtimeoutint",    0,  1, ""},
};

// 152
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImapprxs0[] = {
    {"Rxlinken",          31,  1, ""},
    {"Nerxlsm",           25,  6, ""},
    {"Rxlidvalid",        24,  1, ""},
    {"Linkfirsticp",      23,  1, ""},
    {"Icpvldcnt",         19,  4, ""},
    {"Imarxactiveinh",    18,  1, ""},
    {"Rxlid",             13,  5, ""},
    {"Ferstenctrl",       12,  1, ""},
    {"Rxautolasring",     11,  1, ""},
    {"Rxdeletewait",      10,  1, ""},
    {"Nerxdefect",         8,  2, ""},
    {"Rxlinkdefect",       7,  1, ""},
    {"Fetxlsm",            4,  3, ""},
    {"Rxlinkpmuus",        3,  1, ""},
    {"Rxlinkpmuuscause",   0,  3, ""},
};

// 153
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImapprxs1[] = {
    {"Rxtimeren",        31,  1, ""},
    {"Rxtimer",          27,  4, ""},
    {"Rxautouuscnten",   26,  1, ""},
    {"Rxautolasrcnten",  25,  1, ""},
    {"Liftimercnt",      18,  7, ""},
    {"Lifrecicpcnt",     14,  4, ""},
    {"Neautolasrint",    13,  1, ""},
    {"Neautouusint",     12,  1, ""},
    {"Nelinkdelaygood",  11,  1, ""},
    {"Nelodsoverrun",    10,  1, ""},
    {"Nelodsunderrun",    9,  1, ""},
    {"Nelif",             8,  1, ""},
    {"Nerxactiveint",     7,  1, ""},
    {"Fetxunusableint",   6,  1, ""},
    {"Nediffdelayint",    5,  1, ""},
    {"Neoverrunint",      4,  1, ""},
    {"Neunderrunint",     3,  1, ""},
    {"Nelifint",          2,  1, ""},
    {"Neinvalidicpint",   1,  1, ""},
    {"Nerxtimeoutint",    0,  1, ""},
};

// 154
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps0[] = {
    {"Groupen",             62,  2, ""},
    {"Negsmst",             58,  4, ""},
    {"Autolasrprocess",     57,  1, ""},
    {"Reserved",            56,  1, ""},
    {"Negtsmst",            55,  1, ""},
    {"Gwpactive",           53,  2, ""},
    {"Feclkmode",           52,  1, ""},
    {"Lsmsynctrans",        51,  1, ""},
    {"Lsmsync",             48,  3, ""},
    {"Fegsm",               44,  4, ""},
    {"Numtxlinkactive",     38,  6, ""},
    {"Numrxlinkactive",     32,  6, ""},
    {"Grouptimer1en",       31,  1, ""},
    {"Grouptimer1",         27,  4, ""},
    {"Grouptimer2en",       26,  1, ""},
    {"Grouptimer2",         22,  4, ""},
    {"Tximam",              20,  2, ""},
    {"Gpoamlable",          18,  2, ""},
    {"Reserved",            16,  2, ""},
    {"Groupintactive",      15,  1, ""},
    {"Groupinhibitstatus",  14,  1, ""},
    {"Reserved",            13,  1, ""},
    {"Fetrlstatus",         12,  1, ""},
    {"Grouptimingerror",    11,  1, ""},
    {"Reserved",            10,  1, ""},
    {"Ferestartint",         9,  1, ""},
    {"Fetrlint",             8,  1, ""},
    {"Grtimingint",          7,  1, ""},
    {"Fegptimeoutint",       6,  1, ""},
    {"Negptimeoutint",       5,  1, ""},
    {"Feconfigabortint",     4,  1, ""},
    {"Neconfigabortint",     3,  1, ""},
    {"Negtsmint",            2,  1, ""},
    {"Fegsmint",             1,  1, ""},
    {"Negsmint",             0,  1, ""},
};

// 155
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps1[] = {
    {"Txscci",         56,  8, ""},
    {"Rxtestpattern",  48,  8, ""},
    {"Rxtesten",       47,  1, ""},
    {"Txtrlchange",    46,  1, ""},
    {"Txtrllid",       41,  5, ""},
    {"Txtrlphyid",     32,  9, ""},
    {"Txscciincen",    31,  1, ""},
    {"Txscciincenw1",  30,  1, ""},
    {"Txscciincenw2",  29,  1, ""},
    {"Reserved",       27,  2, ""},
    {"Trltimer",       16, 11, ""},
    {"Txtesten",       15,  1, ""},
    {"Reserved",       13,  2, ""},
    {"Txtestlid",       8,  5, ""},
    {"Txtestpattern",   0,  8, ""},
};

// 156
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps2[] = {
    {"Txphyvalid",  32, 32, ""},
    {"Txlasract",    0, 32, ""},
};

// 157
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps3[] = {
    {"Reserved",     61,  3, ""},
    {"Feinfovalid",  60,  1, ""},
    {"Feframem",     58,  2, ""},
    {"Fesynmode",    56,  2, ""},
    {"Feoamlabel",   48,  8, ""},
    {"Fescci",       40,  8, ""},
    {"Ferximaid",    32,  8, ""},
    {"Rxphyvalid",    0, 32, ""},
};

// 158
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps4[] = {
    {"Rxlasract",           32, 32, ""},
    {"Rxtestpatternmatch",   0, 32, ""},
};

// 159
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps5[] = {
    {"Rxlidalloc",   32, 32, ""},
    {"Rxtestcmd",    31,  1, ""},
    {"Reserved",     29,  2, ""},
    {"Rxtestlid",    24,  5, ""},
    {"Noicpproces",  23,  1, ""},
    {"Lastscciphy",  14,  9, ""},
    {"Rxtrlphyid",    5,  9, ""},
    {"Rxtrllid",      0,  5, ""},
};

// 160
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps6[] = {
    {"Nerxusable",  32, 32, ""},
    {"Ferxusable",   0, 32, ""},
};

// 161
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgps7[] = {
    {"Nerxactive",  32, 32, ""},
    {"Netxactive",   0, 32, ""},
};

// 162
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberReadevent031[] = {
    {"Reserved",           57,  7, ""},
    {"Autolasrint",        56,  1, ""},
    {"Autouusint",         55,  1, ""},
    {"Nerxactiveint",      54,  1, ""},
    {"Fetxunusableint",    53,  1, ""},
    {"Nediffdelayint",     52,  1, ""},
    {"Neoverrunint",       51,  1, ""},
    {"Neunderrunint",      50,  1, ""},
    {"Nelifint",           49,  1, ""},
    {"Neinvalidicpint",    48,  1, ""},
    {"Nerxtimeoutint",     47,  1, ""},
    {"Neoverrun",          46,  1, ""},
    {"Neunderrun",         45,  1, ""},
    {"Reserved",           44,  1, ""},
    {"Nelif",              43,  1, ""},
    {"Fetxlsm",            40,  3, ""},
    {"Icprxst",            37,  3, ""},
    {"Rxlid",              32,  5, ""},
    {"Reserved",           12, 20, ""},
    {"Netxactiveinten",    11,  1, ""},
    {"Ferxunusableinten",  10,  1, ""},
    {"Ferxdefectinten",     9,  1, ""},
    {"Netxtimeoutinten",    8,  1, ""},
    {"Ferxdefect",          6,  2, ""},
    {"Ferxlsm",             3,  3, ""},
    {"Icptxst",             0,  3, ""},
};

// 163
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberReadevent32[] = {
    {"Reserved",    32, 32, ""},
    {"Txphyvalid",   0, 32, ""},
};

// 164
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberReadevent33[] = {
    {"Reserved",    32, 32, ""},
    {"Rxphyvalid",   0, 32, ""},
};

// 165
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberReadevent34[] = {
    {"Reserved",          58,  6, ""},
    {"Reserved",          26, 32, ""},
    {"Ferestartint",      25,  1, ""},
    {"Fetrlint",          24,  1, ""},
    {"Grtimingint",       23,  1, ""},
    {"Fegptimeoutint",    22,  1, ""},
    {"Negptimeoutint",    21,  1, ""},
    {"Feconfigabortint",  20,  1, ""},
    {"Neconfigabortint",  19,  1, ""},
    {"Negtsmint",         18,  1, ""},
    {"Fegsmint",          17,  1, ""},
    {"Negsmint",          16,  1, ""},
    {"Reserved",          11,  5, ""},
    {"Fetrlstatus",       10,  1, ""},
    {"Grouptimingerror",   9,  1, ""},
    {"Negtsmst",           8,  1, ""},
    {"Fegsmst",            4,  4, ""},
    {"Negsmst",            0,  4, ""},
};

// 166
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd0[] = {
    {"Icpoctet9",  24,  8, ""},
    {"Icpoctet8",  16,  8, ""},
    {"Icpoctet7",   8,  8, ""},
    {"Icpoctet6",   0,  8, ""},
};

// 167
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlkcnt0[] = {
    {"Stuffevents",   16, 16, ""},
    {"Oifanomalies",   0, 16, ""},
};

// 168
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlkcnt1[] = {
    {"Icpviolatins",  16, 16, ""},
    {"Icpcells",       0, 16, ""},
};

// 169
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlkcnt2[] = {
    {"Usercells",   0, 32, ""},
};

// 170
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlkcnt3[] = {
    {"Filteredcells",  16, 16, ""},
    {"Fillercells",     0, 16, ""},
};

// 171
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxuniwcnt0[] = {
    {"Reserved",   0, 32, ""},
};

// 172
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxuniwcnt1[] = {
    {"Reserved",   0, 32, ""},
};

// 173
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxuniwcnt2[] = {
    {"Usercells",   0, 32, ""},
};

// 174
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxuniwcnt3[] = {
    {"Droppedcells",   0, 32, ""},
};

// 175
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlkc[] = {
    {"Reserved",       29,  3, ""},
    {"Timeoutcntmax",  12, 17, ""},
    {"Reserved",        0, 12, ""},
};

// 176
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpc[] = {
    {"Reserved",    28,  4, ""},
    {"Scvcthresh",  20,  8, ""},
    {"Dcbthresh",   10, 10, ""},
    {"Rxdelaytol",   0, 10, ""},
};

// 177
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpvld[] = {
    {"Tcmode",        31,  1, ""},
    {"Linkstate",     29,  2, ""},
    {"Reserved",      28,  1, ""},
    {"Symmode",       26,  2, ""},
    {"M",             24,  2, ""},
    {"Imaid",         16,  8, ""},
    {"Icpoffset",      8,  8, ""},
    {"Reserved",       7,  1, ""},
    {"Imaversion",     6,  1, ""},
    {"Labeldisable",   5,  1, ""},
    {"Lid",            0,  5, ""},
};

// 178
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlks0[] = {
    {"Reserved",        31,  1, ""},
    {"Imarxdcbempty",   30,  1, ""},
    {"Imarxicpvld",     29,  1, ""},
    {"Imarxlif",        28,  1, ""},
    {"Imarxdelaygood",  27,  1, ""},
    {"Imarxoverrun",    26,  1, ""},
    {"Imarxunderrun",   25,  1, ""},
    {"Imarxactiveinh",  24,  1, ""},
    {"Imarxifsmsyn",    23,  1, ""},
    {"Rxcellcnt",       15,  8, ""},
    {"Iesmstate",       13,  2, ""},
    {"Oifcnt",          10,  3, ""},
    {"Lastcellstuff",    9,  1, ""},
    {"Fetxact",          8,  1, ""},
    {"Rxifsnbasis",      0,  8, ""},
};

// 179
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxlks1[] = {
    {"Reserved",    30,  2, ""},
    {"Stuffstate",  27,  3, ""},
    {"Currlsi",     24,  3, ""},
    {"Ifsmstate",   22,  2, ""},
    {"Statecnt",    19,  3, ""},
    {"Invalidcnt",  17,  2, ""},
    {"Timeoutcnt",   0, 17, ""},
};

// 180
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf0[] = {
    {"Icpoctet9",  24,  8, ""},
    {"Icpoctet8",  16,  8, ""},
    {"Icpoctet7",   8,  8, ""},
    {"Icpoctet6",   0,  8, ""},
};

// 181
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf12[] = {
    {"Reserved",       12, 20, ""},
    {"Hecerr",         11,  1, ""},
    {"Crcerr",         10,  1, ""},
    {"Positionerror",   9,  1, ""},
    {"Headerinvalid",   8,  1, ""},
    {"Cidinvalid",      7,  1, ""},
    {"Labelinvalid",    6,  1, ""},
    {"Lidmm",           5,  1, ""},
    {"Imaidmm",         4,  1, ""},
    {"Mmm",             3,  1, ""},
    {"Seqerror",        2,  1, ""},
    {"Icpoffsetmm",     1,  1, ""},
    {"Reserved",        0,  1, ""},
};

// 182
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarximarptr[] = {
    {"Reserved",       22, 10, ""},
    {"Negsmst",        21,  1, ""},
    {"Gwpactive",      19,  2, ""},
    {"Dcbreadendly2",  18,  1, ""},
    {"Dcbreadendly1",  17,  1, ""},
    {"Dcbreaden",      16,  1, ""},
    {"Readptr",         0, 16, ""},
};

// 183
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxunirptr[] = {
    {"Reserved",  16, 16, ""},
    {"Readptr",    0, 16, ""},
};

// 184
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarximawptr[] = {
    {"Reserved",  16, 16, ""},
    {"Writeptr",   0, 16, ""},
};

// 185
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxuniwptr[] = {
    {"Reserved",  16, 16, ""},
    {"Writeptr",   0, 16, ""},
};

// 186
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpwptr0[] = {
    {"Reserved",    25,  7, ""},
    {"Minwptr",      9, 16, ""},
    {"Minlinktag",   0,  9, ""},
};

// 187
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpwptr1[] = {
    {"Reserved",    25,  7, ""},
    {"Maxwptr",      9, 16, ""},
    {"Maxlinktag",   0,  9, ""},
};

// 188
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpwptr2[] = {
    {"Reserved",       25,  7, ""},
    {"Backupwptr",      9, 16, ""},
    {"Backuplinktag",   0,  9, ""},
};

// 189
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxrddly031[] = {
    {"Reserved",      29,  3, ""},
    {"Imarxoverrun",  28,  1, ""},
    {"Lcd",           27,  1, ""},
    {"Lif",           26,  1, ""},
    {"Reserved",      23,  3, ""},
    {"Ifsmstate",     21,  2, ""},
    {"Reserved",      16,  5, ""},
    {"Writeptr",       0, 16, ""},
};

// 190
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxrddly32[] = {
    {"Reserved",  16, 16, ""},
    {"Readptr",    0, 16, ""},
};

// 191
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxrddly33[] = {
    {"Readptractive",   0, 32, ""},
};

// 192
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpcnt0[] = {
    {"Usercells",   0, 32, ""},
};

// 193
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpcnt1[] = {
    {"Fillercells",   0, 32, ""},
};

// 194
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxunircnt0[] = {
    {"Usercells",   0, 32, ""},
};

// 195
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxscvcrr[] = {
    {"Scvcen",         9,  1, ""},
    {"Scvcgrouptag",   0,  9, ""},
};

// 196
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxscvcctrl[] = {
    {"Reserved",  26,  6, ""},
    {"Headptr",   16, 10, ""},
    {"Tailptr",    6, 10, ""},
    {"Usednum",    0,  6, ""},
};

// 197
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgps0[] = {
    {"Reserved",   24,  8, ""},
    {"Txcellcnt",  16,  8, ""},
    {"Txifsncnt",   8,  8, ""},
    {"Reserved",    1,  7, ""},
    {"Icpfetch",    0,  1, ""},
};

// 198
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgps1[] = {
    {"Discardcellcnt",  16, 16, ""},
    {"Reserved",         7,  9, ""},
    {"Trlcellcnt",       0,  7, ""},
};

// 199
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgps2[] = {
    {"Atmcellcnt",   0, 32, ""},
};

// 200
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgps3[] = {
    {"Fillercellcnt",   0, 32, ""},
};

// 201
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgps4[] = {
    {"Txphyvld",   0, 32, ""},
};

// 202
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf0[] = {
    {"Reserved",    24,  8, ""},
    {"Icpoctet11",  16,  8, ""},
    {"Icpoctet12",   8,  8, ""},
    {"Icpoctet13",   0,  8, ""},
};

// 203
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgpc[] = {
    {"Reserved",      28,  4, ""},
    {"Tren",          27,  1, ""},
    {"Trgp",          18,  9, ""},
    {"Txreflid",      13,  5, ""},
    {"Txm",           11,  2, ""},
    {"Reserved",      10,  1, ""},
    {"Stuffadvmode",   9,  1, ""},
    {"Stuffen",        8,  1, ""},
    {"Txoamlabel",     0,  8, ""},
};

// 204
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxmaptbl0[] = {
    {"Txch",   0,  9, ""},
};

// 205
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxlks0[] = {
    {"Reserved",     13, 19, ""},
    {"Ctccellcnt",    6,  7, ""},
    {"Txsenden",      5,  1, ""},
    {"Atmcellsend",   4,  1, ""},
    {"Stuffind",      3,  1, ""},
    {"Lsicnt",        0,  3, ""},
};

// 206
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxlks1[] = {
    {"Stuffeventcnt",   16, 16, ""},
    {"Imausercellcnt",   0, 16, ""},
};

// 207
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxlkc[] = {
    {"Icpoffset",   0,  8, ""},
};

// 208
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxlinkingp[] = {
    {"Linkingp10", 320, 16, ""},
};

// 209
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxgpdepth[] = {
    {"Depth",   0, 11, ""},
};

// 210
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAtmportperiodcfg[] = {
    {"Portperiod",   0, 18, ""},
};

// 211
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprpmrrucfg[] = {
    {"Mprpmrru",   0, 12, ""},
};

// 212
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMptestrefstat[] = {
    {"Mptestrefstat",   0,  1, ""},
};

// 213
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprpkt[] = {
    {"Mprpkt",   0, 32, ""},
};

// 214
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMprbyte[] = {
    {"Mprbyte",   0, 32, ""},
};

// 215
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCpuprotocol[] = {
    {"Mpcpuprtl",   0,  8, ""},
};

// 216
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCestxpkgchnmap[] = {
    {"Chnen",   11,  1, ""},
    {"Aisen",   10,  1, ""},
    {"Rdien",    9,  1, ""},
    {"Chnmap",   0,  9, ""},
};

// 217
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc6[] = {
    {"Reserved",    27,  5, ""},
    {"Rxphylink5",  18,  9, ""},
    {"Rxphylink4",   9,  9, ""},
    {"Rxphylink3",   0,  9, ""},
};

// 218
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc7[] = {
    {"Reserved",    27,  5, ""},
    {"Rxphylink8",  18,  9, ""},
    {"Rxphylink7",   9,  9, ""},
    {"Rxphylink6",   0,  9, ""},
};

// 219
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc8[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink11",  18,  9, ""},
    {"Rxphylink10",   9,  9, ""},
    {"Rxphylink9",    0,  9, ""},
};

// 220
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc9[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink14",  18,  9, ""},
    {"Rxphylink13",   9,  9, ""},
    {"Rxphylink12",   0,  9, ""},
};

// 221
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc10[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink17",  18,  9, ""},
    {"Rxphylink16",   9,  9, ""},
    {"Rxphylink15",   0,  9, ""},
};

// 222
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc11[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink20",  18,  9, ""},
    {"Rxphylink19",   9,  9, ""},
    {"Rxphylink18",   0,  9, ""},
};

// 223
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc12[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink23",  18,  9, ""},
    {"Rxphylink22",   9,  9, ""},
    {"Rxphylink21",   0,  9, ""},
};

// 224
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc13[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink26",  18,  9, ""},
    {"Rxphylink25",   9,  9, ""},
    {"Rxphylink24",   0,  9, ""},
};

// 225
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc14[] = {
    {"Reserved",     27,  5, ""},
    {"Rxphylink29",  18,  9, ""},
    {"Rxphylink28",   9,  9, ""},
    {"Rxphylink27",   0,  9, ""},
};

// 226
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImappgpc15[] = {
    {"Reserved",     27,  5, ""},
    {"Reserved",     18,  9, ""},
    {"Rxphylink31",   9,  9, ""},
    {"Rxphylink30",   0,  9, ""},
};

// 227
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd1[] = {
    {"Icpoctet13",  24,  8, ""},
    {"Icpoctet12",  16,  8, ""},
    {"Icpoctet11",   8,  8, ""},
    {"Icpoctet10",   0,  8, ""},
};

// 228
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd2[] = {
    {"Icpoctet17",  24,  8, ""},
    {"Icpoctet16",  16,  8, ""},
    {"Icpoctet15",   8,  8, ""},
    {"Icpoctet14",   0,  8, ""},
};

// 229
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd3[] = {
    {"Icpoctet21",  24,  8, ""},
    {"Icpoctet20",  16,  8, ""},
    {"Icpoctet19",   8,  8, ""},
    {"Icpoctet18",   0,  8, ""},
};

// 230
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd4[] = {
    {"Icpoctet25",  24,  8, ""},
    {"Icpoctet24",  16,  8, ""},
    {"Icpoctet23",   8,  8, ""},
    {"Icpoctet22",   0,  8, ""},
};

// 231
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd5[] = {
    {"Icpoctet29",  24,  8, ""},
    {"Icpoctet28",  16,  8, ""},
    {"Icpoctet27",   8,  8, ""},
    {"Icpoctet26",   0,  8, ""},
};

// 232
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd6[] = {
    {"Icpoctet33",  24,  8, ""},
    {"Icpoctet32",  16,  8, ""},
    {"Icpoctet31",   8,  8, ""},
    {"Icpoctet30",   0,  8, ""},
};

// 233
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd7[] = {
    {"Icpoctet37",  24,  8, ""},
    {"Icpoctet36",  16,  8, ""},
    {"Icpoctet35",   8,  8, ""},
    {"Icpoctet34",   0,  8, ""},
};

// 234
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd8[] = {
    {"Icpoctet41",  24,  8, ""},
    {"Icpoctet40",  16,  8, ""},
    {"Icpoctet39",   8,  8, ""},
    {"Icpoctet38",   0,  8, ""},
};

// 235
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd9[] = {
    {"Icpoctet45",  24,  8, ""},
    {"Icpoctet44",  16,  8, ""},
    {"Icpoctet43",   8,  8, ""},
    {"Icpoctet42",   0,  8, ""},
};

// 236
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd10[] = {
    {"Icpoctet49",  24,  8, ""},
    {"Icpoctet48",  16,  8, ""},
    {"Icpoctet47",   8,  8, ""},
    {"Icpoctet46",   0,  8, ""},
};

// 237
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIcpfwd11[] = {
    {"Icpoctet53",  24,  8, ""},
    {"Icpoctet52",  16,  8, ""},
    {"Icpoctet51",   8,  8, ""},
    {"Icpoctet50",   0,  8, ""},
};

// 238
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf1[] = {
    {"Icpoctet14",  24,  8, ""},
    {"Icpoctet15",  16,  8, ""},
    {"Icpoctet16",   8,  8, ""},
    {"Icpoctet17",   0,  8, ""},
};

// 239
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf2[] = {
    {"Icpoctet18",  24,  8, ""},
    {"Icpoctet19",  16,  8, ""},
    {"Icpoctet20",   8,  8, ""},
    {"Icpoctet21",   0,  8, ""},
};

// 240
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf3[] = {
    {"Icpoctet22",  24,  8, ""},
    {"Icpoctet23",  16,  8, ""},
    {"Icpoctet24",   8,  8, ""},
    {"Icpoctet25",   0,  8, ""},
};

// 241
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf4[] = {
    {"Icpoctet26",  24,  8, ""},
    {"Icpoctet27",  16,  8, ""},
    {"Icpoctet28",   8,  8, ""},
    {"Icpoctet29",   0,  8, ""},
};

// 242
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf5[] = {
    {"Icpoctet30",  24,  8, ""},
    {"Icpoctet31",  16,  8, ""},
    {"Icpoctet32",   8,  8, ""},
    {"Icpoctet33",   0,  8, ""},
};

// 243
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf6[] = {
    {"Icpoctet34",  24,  8, ""},
    {"Icpoctet35",  16,  8, ""},
    {"Icpoctet36",   8,  8, ""},
    {"Icpoctet37",   0,  8, ""},
};

// 244
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf7[] = {
    {"Icpoctet38",  24,  8, ""},
    {"Icpoctet39",  16,  8, ""},
    {"Icpoctet40",   8,  8, ""},
    {"Icpoctet41",   0,  8, ""},
};

// 245
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImatxicpbuf8[] = {
    {"Icpoctet42",  24,  8, ""},
    {"Icpoctet43",  16,  8, ""},
    {"Icpoctet44",   8,  8, ""},
    {"Icpoctet45",   0,  8, ""},
};

// 246
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf1[] = {
    {"Icpoctet13",  24,  8, ""},
    {"Icpoctet12",  16,  8, ""},
    {"Icpoctet11",   8,  8, ""},
    {"Icpoctet10",   0,  8, ""},
};

// 247
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf2[] = {
    {"Icpoctet17",  24,  8, ""},
    {"Icpoctet16",  16,  8, ""},
    {"Icpoctet15",   8,  8, ""},
    {"Icpoctet14",   0,  8, ""},
};

// 248
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf3[] = {
    {"Icpoctet21",  24,  8, ""},
    {"Icpoctet20",  16,  8, ""},
    {"Icpoctet19",   8,  8, ""},
    {"Icpoctet18",   0,  8, ""},
};

// 249
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf4[] = {
    {"Icpoctet25",  24,  8, ""},
    {"Icpoctet24",  16,  8, ""},
    {"Icpoctet23",   8,  8, ""},
    {"Icpoctet22",   0,  8, ""},
};

// 250
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf5[] = {
    {"Icpoctet29",  24,  8, ""},
    {"Icpoctet28",  16,  8, ""},
    {"Icpoctet27",   8,  8, ""},
    {"Icpoctet26",   0,  8, ""},
};

// 251
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf6[] = {
    {"Icpoctet33",  24,  8, ""},
    {"Icpoctet32",  16,  8, ""},
    {"Icpoctet31",   8,  8, ""},
    {"Icpoctet30",   0,  8, ""},
};

// 252
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf7[] = {
    {"Icpoctet37",  24,  8, ""},
    {"Icpoctet36",  16,  8, ""},
    {"Icpoctet35",   8,  8, ""},
    {"Icpoctet34",   0,  8, ""},
};

// 253
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf8[] = {
    {"Icpoctet41",  24,  8, ""},
    {"Icpoctet40",  16,  8, ""},
    {"Icpoctet39",   8,  8, ""},
    {"Icpoctet38",   0,  8, ""},
};

// 254
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf9[] = {
    {"Icpoctet45",  24,  8, ""},
    {"Icpoctet44",  16,  8, ""},
    {"Icpoctet43",   8,  8, ""},
    {"Icpoctet42",   0,  8, ""},
};

// 255
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf10[] = {
    {"Icpoctet49",  24,  8, ""},
    {"Icpoctet48",  16,  8, ""},
    {"Icpoctet47",   8,  8, ""},
    {"Icpoctet46",   0,  8, ""},
};

// 256
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxicpbuf11[] = {
    {"Icpoctet53",  24,  8, ""},
    {"Icpoctet52",  16,  8, ""},
    {"Icpoctet51",   8,  8, ""},
    {"Icpoctet50",   0,  8, ""},
};

// 257
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberImarxgpwptr3[] = {
    {"Gplinksyn",   0, 32, ""},
};

// 258
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberStationaddrlow[] = {
    {"Stationaddrlow",   0, 32, ""},
};

// 259
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberStationaddrhigh[] = {
    {"Reserved",         16, 16, ""},
    {"Stationaddrhigh",   0, 16, ""},
};

// 260
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberDuplexsel[] = {
    {"Reserved",    1, 31, ""},
    {"Duplexsel",   0,  1, ""},
};

// 261
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFdfctype[] = {
    {"Reserved",  16, 16, ""},
    {"Fdfctype",   0, 16, ""},
};

// 262
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberAppfifothrsld[] = {
    {"Thrsldinterclock",  24,  8, ""},
    {"Thrsldforpempty",   16,  8, ""},
    {"Thrsldforpfull",     8,  8, ""},
    {"Buffszfortsmt",      0,  8, ""},
};

// 263
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFctxtimer[] = {
    {"Reserved",   16, 16, ""},
    {"Fctxtimer",   0, 16, ""},
};

// 264
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFdfcaddrlow[] = {
    {"Fdfcaddrlow",   0, 32, ""},
};

// 265
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFdfcaddrhigh[] = {
    {"Reserved",      16, 16, ""},
    {"Fdfcaddrhigh",   0, 16, ""},
};

// 266
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberIpgtxtimer[] = {
    {"Reserved",     8, 24, ""},
    {"Ipgtxtimer",   0,  8, ""},
};

// 267
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPreamblecfg[] = {
    {"Reserved",       21, 11, ""},
    {"Normiipreable",  16,  5, ""},
    {"Reserved",       13,  3, ""},
    {"Nomiipreable",    8,  5, ""},
    {"Reserved",        5,  3, ""},
    {"Nogmiipreable",   0,  5, ""},
};

// 268
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPausethr[] = {
    {"Reserved",  16, 16, ""},
    {"Pausethr",   0, 16, ""},
};

// 269
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMaxfrmsize[] = {
    {"Reserved",    14, 18, ""},
    {"Maxfrmsize",   0, 14, ""},
};

// 270
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPortmode[] = {
    {"Reserved",   1, 31, ""},
    {"Portmode",   0,  1, ""},
};

// 271
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPorten[] = {
    {"Reserved",   3, 29, ""},
    {"Txen",       2,  1, ""},
    {"Rxen",       1,  1, ""},
    {"Reserved",   0,  1, ""},
};

// 272
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberFdfcen[] = {
    {"Reserved",   2, 30, ""},
    {"Txfdfc",     1,  1, ""},
    {"Rxfdfc",     0,  1, ""},
};

// 273
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberShortruntsthr[] = {
    {"Reserved",        5, 27, ""},
    {"Shortruntsthr",   0,  5, ""},
};

// 274
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberDropunkctlfrm[] = {
    {"Reserved",        1, 31, ""},
    {"Dropunkctlfrm",   0,  1, ""},
};

// 275
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberSynok[] = {
    {"Reserved",  21, 11, ""},
    {"Synok",     20,  1, ""},
    {"Reserved",   0, 20, ""},
};

// 276
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMactxfen[] = {
    {"Reserved",    8, 24, ""},
    {"Padenable",   7,  1, ""},
    {"Crcadd",      6,  1, ""},
    {"Anenable",    5,  1, ""},
    {"Reserved",    0,  5, ""},
};

// 277
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMacrxpsen[] = {
    {"Reserved",      6, 26, ""},
    {"Crcerrpass",    5,  1, ""},
    {"Pausefrpass",   4,  1, ""},
    {"Vlandropen",    3,  1, ""},
    {"Bcdropen",      2,  1, ""},
    {"Mcmatchen",     1,  1, ""},
    {"Ucmatchen",     0,  1, ""},
};

// 278
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPortmcaddrlow[] = {
    {"Portmcaddrlow",   0, 32, ""},
};

// 279
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPortmcaddrhigh[] = {
    {"Reserved",        16, 16, ""},
    {"Portmcaddrhigh",   0, 16, ""},
};

// 280
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMacsoftrst[] = {
    {"Reserved",     3, 29, ""},
    {"Softrstmii",   2,  1, ""},
    {"Softrstrx",    1,  1, ""},
    {"Softrsttx",    0,  1, ""},
};

// 281
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMacfifoerr[] = {
    {"Reserved",     1, 31, ""},
    {"Macfifoerr",   0,  1, ""},
};

// 282
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberPortlinkstat[] = {
    {"Reserved",       1, 31, ""},
    {"Portlinkstat",   0,  1, ""},
};

// 283
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMacporten[] = {
    {"Reserved",   1, 31, ""},
    {"Porten",     0,  1, ""},
};

// 284
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberLineloopback[] = {
    {"Reserved",       1, 31, ""},
    {"Lineloopback",   0,  1, ""},
};

// 285
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCfcrcstrip[] = {
    {"Reserved",     1, 31, ""},
    {"Cfcrcstrip",   0,  1, ""},
};

// 286
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCfdflsinglerx[] = {
    {"Reserved",        8, 24, ""},
    {"Cfdflsinglerx",   0,  8, ""},
};

// 287
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberLpctrl[] = {
    {"Reserved",       3, 29, ""},
    {"Cf2milpen",      2,  1, ""},
    {"Cfextdrivelp",   1,  1, ""},
    {"Reserved",       0,  1, ""},
};

// 288
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberMacrxctrl[] = {
    {"Reserved",          1, 31, ""},
    {"Runtpkten",         4,  1, ""},
    {"Strippaden",        3,  1, ""},
    {"Cf2dftwopartdfl",   2,  1, ""},
    {"Reserved",          1,  1, ""},
    {"Cfsilentmode",      0,  1, ""},
};

// 289
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCfserdesorder[] = {
    {"Reserved",        1, 31, ""},
    {"Cfserdesorder",   0,  1, ""},
};

// 290
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxfailcommacnt[] = {
    {"Rxfailcommacnt",   0, 32, ""},
};

// 291
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberInvalidcharcnt[] = {
    {"Invalidcharcnt",   0, 32, ""},
};

// 292
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberCfvlancode[] = {
    {"Reserved",    16, 16, ""},
    {"Cfvlancode",   0, 16, ""},
};

// 293
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxoverruncnt[] = {
    {"Rxoverruncnt",   0, 32, ""},
};

// 294
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxlengthfielderrcnt[] = {
    {"Rxlengthfielderrcnt",   0, 32, ""},
};

// 295
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxoctetsokcnt[] = {
    {"Rxoctetsokcnt",   0, 32, ""},
};

// 296
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxoctetsbadcnt[] = {
    {"Rxoctetsbadcnt",   0, 32, ""},
};

// 297
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxucpktcnt[] = {
    {"Rxucpktcnt",   0, 32, ""},
};

// 298
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxmcpktcnt[] = {
    {"Rxmcpktcnt",   0, 32, ""},
};

// 299
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxbcpktcnt[] = {
    {"Rxbcpktcnt",   0, 32, ""},
};

// 300
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts64octcnt[] = {
    {"Rxpkts64octcnt",   0, 32, ""},
};

// 301
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts65to127octcnt[] = {
    {"Rxpkts65to127octcnt",   0, 32, ""},
};

// 302
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts128to255octcnt[] = {
    {"Rxpkts128to255octcnt",   0, 32, ""},
};

// 303
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts256to511octcnt[] = {
    {"Rxpkts256to511octcnt",   0, 32, ""},
};

// 304
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts512to1023octcnt[] = {
    {"Rxpkts512to1023octcnt",   0, 32, ""},
};

// 305
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts1024to1518octcnt[] = {
    {"Rxpkts1024to1518octcnt",   0, 32, ""},
};

// 306
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpkts1519tomaxoctcnt[] = {
    {"Rxpkts1519tomaxoctcnt",   0, 32, ""},
};

// 307
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxfcserrcnt[] = {
    {"Rxfcserrcnt",   0, 32, ""},
};

// 308
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxtaggedcnt[] = {
    {"Rxtaggedcnt",   0, 32, ""},
};

// 309
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxdataerrcnt[] = {
    {"Rxdataerrcnt",   0, 32, ""},
};

// 310
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxlongerrcnt[] = {
    {"Rxlongerrcnt",   0, 32, ""},
};

// 311
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxjabbererrcnt[] = {
    {"Rxjabbererrcnt",   0, 32, ""},
};

// 312
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxpausecnt[] = {
    {"Rxpausecnt",   0, 32, ""},
};

// 313
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxunkctlcnt[] = {
    {"Rxunkctlcnt",   0, 32, ""},
};

// 314
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxverylongerrcnt[] = {
    {"Rxverylongerrcnt",   0, 32, ""},
};

// 315
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxrunterrcnt[] = {
    {"Rxrunterrcnt",   0, 32, ""},
};

// 316
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberRxshorterrcnt[] = {
    {"Rxshorterrcnt",   0, 32, ""},
};

// 317
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxoctetsokcnt[] = {
    {"Txoctetsokcnt",   0, 32, ""},
};

// 318
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxoctetsbadcnt[] = {
    {"Txoctetsbadcnt",   0, 32, ""},
};

// 319
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxucpktcnt[] = {
    {"Txucpktcnt",   0, 32, ""},
};

// 320
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxmcpktcnt[] = {
    {"Txmcpktcnt",   0, 32, ""},
};

// 321
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxbcpktcnt[] = {
    {"Txbcpktcnt",   0, 32, ""},
};

// 322
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts64octcnt[] = {
    {"Txpkts64octcnt",   0, 32, ""},
};

// 323
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts65to127octcnt[] = {
    {"Txpkts65to127octcnt",   0, 32, ""},
};

// 324
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts128to255octcnt[] = {
    {"Txpkts128to255octcnt",   0, 32, ""},
};

// 325
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts256to511octcnt[] = {
    {"Txpkts256to511octcnt",   0, 32, ""},
};

// 326
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts512to1023octcnt[] = {
    {"Txpkts512to1023octcnt",   0, 32, ""},
};

// 327
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts1024to1518octcnt[] = {
    {"Txpkts1024to1518octcnt",   0, 32, ""},
};

// 328
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpkts1519tomaxoctcnt[] = {
    {"Txpkts1519tomaxoctcnt",   0, 32, ""},
};

// 329
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxexclendropcnt[] = {
    {"Txexclendropcnt",   0, 32, ""},
};

// 330
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxunderruncnt[] = {
    {"Txunderruncnt",   0, 32, ""},
};

// 331
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxtaggedcnt[] = {
    {"Txtaggedcnt",   0, 32, ""},
};

// 332
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxcrcerrcnt[] = {
    {"Txcrcerrcnt",   0, 32, ""},
};

// 333
VQ6192_API inline constexpr VQ6192_TBL_MEMBER_S g_astVQ6192TblMemberTxpausecnt[] = {
    {"Txpausecnt",   0, 32, ""},
};

VQ6192_API inline constexpr VQ6192_TBL_ENTRY_S g_astVQ6192TblEntryList[VQ6192_TBL_ENTRY_NUM] = {
    /*   0 */ VQ6192_TBL("Atmpwe3pktbuf",           g_astVQ6192TblMemberAtmpwe3pktbuf,                   "PWE3 packet-header capture buffer"),
    /*   1 */ VQ6192_TBL("Atmpwe3pritab",           g_astVQ6192TblMemberAtmpwe3pritab,                   "PWE3 priority mapping template"),
    /*   2 */ VQ6192_TBL("Atmpwe3pwcfgtab",         g_astVQ6192TblMemberAtmpwe3pwcfgtab,                 "PW configuration"),
    /*   3 */ VQ6192_TBL("Atmpwe3rxmanagetab",      g_astVQ6192TblMemberAtmpwe3rxmanagetab,              "downstream (receive) management"),
    /*   4 */ VQ6192_TBL("Atmpwe3rxsttab",          g_astVQ6192TblMemberAtmpwe3rxsttab,                  "downstream status"),
    /*   5 */ VQ6192_TBL("Atmpwe3txmanagetab",      g_astVQ6192TblMemberAtmpwe3txmanagetab,              "upstream (transmit) management"),
    /*   6 */ VQ6192_TBL("Atmpwe3txsttab",          g_astVQ6192TblMemberAtmpwe3txsttab,                  "upstream status"),
    /*   7 */ VQ6192_TBL("Atmswlcapfifo",           g_astVQ6192TblMemberAtmswlcapfifo,                   "line-side cell capture FIFO"),
    /*   8 */ VQ6192_TBL("Atmswlpcc",               g_astVQ6192TblMemberAtmswlpcc,                       "line-side port receive/transmit counters"),
    /*   9 */ VQ6192_TBL("Atmswlpct",               g_astVQ6192TblMemberAtmswlpct,                       "line-side port configuration"),
    /*  10 */ VQ6192_TBL("Atmswoamst",              g_astVQ6192TblMemberAtmswoamst,                      "OAM insertion status"),
    /*  11 */ VQ6192_TBL("Atmswpolcfg",             g_astVQ6192TblMemberAtmswpolcfg,                     "policing management"),
    /*  12 */ VQ6192_TBL("Atmswpolst",              g_astVQ6192TblMemberAtmswpolst,                      "policing status"),
    /*  13 */ VQ6192_TBL("Atmswrfifo",              g_astVQ6192TblMemberAtmswrfifo,                      "OAM cell report FIFO"),
    /*  14 */ VQ6192_TBL("Atmswscapfifo",           g_astVQ6192TblMemberAtmswscapfifo,                   "cell capture FIFO (second direction)"),
    /*  15 */ VQ6192_TBL("Atmswspcc",               g_astVQ6192TblMemberAtmswspcc,                       "system-side port receive/transmit counters"),
    /*  16 */ VQ6192_TBL("Atmswspct",               g_astVQ6192TblMemberAtmswspct,                       "system-side port configuration"),
    /*  17 */ VQ6192_TBL("Atmswtcam",               g_astVQ6192TblMemberAtmswtcam,                       "TCAM configuration"),
    /*  18 */ VQ6192_TBL("Atmswtrcc",               g_astVQ6192TblMemberAtmswtrcc,                       "per-connection receive counter"),
    /*  19 */ VQ6192_TBL("Atmswttcc",               g_astVQ6192TblMemberAtmswttcc,                       "per-connection transmit counter"),
    /*  20 */ VQ6192_TBL("Atmswvct",                g_astVQ6192TblMemberAtmswvct,                        "connection information"),
    /*  21 */ VQ6192_TBL("Atmswvcxfifo",            g_astVQ6192TblMemberAtmswvcxfifo,                    "VCX report FIFO"),
    /*  22 */ VQ6192_TBL("Atmswwfifo",              g_astVQ6192TblMemberAtmswwfifo,                      "OAM cell insertion FIFO"),
    /*  23 */ VQ6192_TBL("Atmbmfifocfg",            g_astVQ6192TblMemberAtmbmfifocfg,                    "transparent queue management"),
    /*  24 */ VQ6192_TBL("Atmbmfifosta",            g_astVQ6192TblMemberAtmbmfifosta,                    "transparent queue status"),
    /*  25 */ VQ6192_TBL("Atmbmpvccfg",             g_astVQ6192TblMemberAtmbmpvccfg,                     "buffer-management PVC configuration"),
    /*  26 */ VQ6192_TBL("Atmbmpvcsta",             g_astVQ6192TblMemberAtmbmpvcsta,                     "buffer-management PVC status"),
    /*  27 */ VQ6192_TBL("Atmbmthcfg",              g_astVQ6192TblMemberAtmbmthcfg,                      "discard threshold configuration"),
    /*  28 */ VQ6192_TBL("Atmebscfg",               g_astVQ6192TblMemberAtmebscfg,                       "excess bandwidth management"),
    /*  29 */ VQ6192_TBL("Atmlinkqmcfg",            g_astVQ6192TblMemberAtmlinkqmcfg,                    "connection queue configuration"),
    /*  30 */ VQ6192_TBL("Atmlinkshvccfg",          g_astVQ6192TblMemberAtmlinkshvccfg,                  "connection SHVC management"),
    /*  31 */ VQ6192_TBL("Atmportqmcfg",            g_astVQ6192TblMemberAtmportqmcfg,                    "port queue management"),
    /*  32 */ VQ6192_TBL("Reserved",                g_astVQ6192TblMemberNULL,                            "reserved"),
    /*  33 */ VQ6192_TBL("Atmtmnrtvbrshapcfg",      g_astVQ6192TblMemberAtmtmnrtvbrshapcfg,              "nrt-VBR shaper management"),
    /*  34 */ VQ6192_TBL("Reserved",                g_astVQ6192TblMemberNULL,                            "reserved"),
    /*  35 */ VQ6192_TBL("Atmtmrtvbrshapcfg",       g_astVQ6192TblMemberAtmtmrtvbrshapcfg,               "rt-VBR shaper management"),
    /*  36 */ VQ6192_TBL("Reserved",                g_astVQ6192TblMemberNULL,                            "reserved"),
    /*  37 */ VQ6192_TBL("Atmtmubrplsshapcfg",      g_astVQ6192TblMemberAtmtmubrplsshapcfg,              "UBR+ shaper management"),
    /*  38 */ VQ6192_TBL("Reserved",                g_astVQ6192TblMemberNULL,                            "reserved"),
    /*  39 */ VQ6192_TBL("Afidcfg",                 g_astVQ6192TblMemberAfidcfg,                         "PPU self-fill link configuration"),
    /*  40 */ VQ6192_TBL("Rppucfg",                 g_astVQ6192TblMemberRppucfg,                         "PPU upstream link configuration"),
    /*  41 */ VQ6192_TBL("Rppupstat",               g_astVQ6192TblMemberRppupstat,                       "PPU upstream intermediate state (debug)"),
    /*  42 */ VQ6192_TBL("Rppustat",                g_astVQ6192TblMemberRppustat,                        "PPU upstream packet counters"),
    /*  43 */ VQ6192_TBL("Tppucfg",                 g_astVQ6192TblMemberTppucfg,                         "PPU downstream link configuration"),
    /*  44 */ VQ6192_TBL("Tppupstat",               g_astVQ6192TblMemberTppupstat,                       "PPU downstream intermediate state (debug)"),
    /*  45 */ VQ6192_TBL("Tppustat",                g_astVQ6192TblMemberTppustat,                        "PPU downstream packet counters"),
    /*  46 */ VQ6192_TBL("Mplooppktcnt",            g_astVQ6192TblMemberMplooppktcnt,                    "HDLC line-side loopback packet count"),
    /*  47 */ VQ6192_TBL("Mplooptimestp",           g_astVQ6192TblMemberMplooptimestp,                   "link test packet timestamps"),
    /*  48 */ VQ6192_TBL("Mprgrpcfg",               g_astVQ6192TblMemberMprgrpcfg,                       "upstream RGRP configuration"),
    /*  49 */ VQ6192_TBL("Mprgrpmcstat",            g_astVQ6192TblMemberMprgrpmcstat,                    "upstream MC state store"),
    /*  50 */ VQ6192_TBL("Mprgrppktcnt",            g_astVQ6192TblMemberMprgrppktcnt,                    "upstream RGRP counters"),
    /*  51 */ VQ6192_TBL("Mprpbytecnt",             g_astVQ6192TblMemberMprpbytecnt,                     "upstream MP group receive byte counter"),
    /*  52 */ VQ6192_TBL("Mprpcsptcfg1",            g_astVQ6192TblMemberMprpcsptcfg1,                    "upstream RP configuration 1"),
    /*  53 */ VQ6192_TBL("Mprpcsptcfg2",            g_astVQ6192TblMemberMprpcsptcfg2,                    "upstream RP configuration 2"),
    /*  54 */ VQ6192_TBL("Mprxmbdcnt",              g_astVQ6192TblMemberMprxmbdcnt,                      "RXM buffer-descriptor use per MP group"),
    /*  55 */ VQ6192_TBL("Mprxmbecnt",              g_astVQ6192TblMemberMprxmbecnt,                      "RXM received BE fragment counter"),
    /*  56 */ VQ6192_TBL("Mprxmhdlccfg1",           g_astVQ6192TblMemberMprxmhdlccfg1,                   "RXM channel configuration 1"),
    /*  57 */ VQ6192_TBL("Mprxmhdlccfg2",           g_astVQ6192TblMemberMprxmhdlccfg2,                   "RXM channel configuration 2"),
    /*  58 */ VQ6192_TBL("Mprxmhdlcpktcnt",         g_astVQ6192TblMemberMprxmhdlcpktcnt,                 "RXM received HDLC packet counter"),
    /*  59 */ VQ6192_TBL("Mprxmmccnt",              g_astVQ6192TblMemberMprxmmccnt,                      "RXM MC fragment receive counter"),
    /*  60 */ VQ6192_TBL("Mprxmmpcfg1",             g_astVQ6192TblMemberMprxmmpcfg1,                     "RXM MP group configuration 1"),
    /*  61 */ VQ6192_TBL("Mprxmmpcfg2",             g_astVQ6192TblMemberMprxmmpcfg2,                     "RXM MP group configuration 2"),
    /*  62 */ VQ6192_TBL("Mpskyeyecfg",             g_astVQ6192TblMemberMpskyeyecfg,                     "upstream DDR packet-header capture configuration"),
    /*  63 */ VQ6192_TBL("Mptesttxen",              g_astVQ6192TblMemberMptesttxen,                      "test packet transmit enable"),
    /*  64 */ VQ6192_TBL("Chfifost",                g_astVQ6192TblMemberChfifost,                        "downstream fill FIFO status (debug)"),
    /*  65 */ VQ6192_TBL("Fillst",                  g_astVQ6192TblMemberFillst,                          "downstream channel fill status"),
    /*  66 */ VQ6192_TBL("Fragcfg",                 g_astVQ6192TblMemberFragcfg,                         "downstream MP fragmentation attributes"),
    /*  67 */ VQ6192_TBL("Hddisst",                 g_astVQ6192TblMemberHddisst,                         "TXM HDLC/PPP queue discard status"),
    /*  68 */ VQ6192_TBL("Hdeptst",                 g_astVQ6192TblMemberHdeptst,                         "TXM HDLC/PPP queue empty status"),
    /*  69 */ VQ6192_TBL("Hdfccfg",                 g_astVQ6192TblMemberHdfccfg,                         "TXM HDLC/PPP queue watermarks"),
    /*  70 */ VQ6192_TBL("Hdqst",                   g_astVQ6192TblMemberHdqst,                           "TXM HDLC/PPP queue status"),
    /*  71 */ VQ6192_TBL("Linkcfg",                 g_astVQ6192TblMemberLinkcfg,                         "downstream egress link attributes"),
    /*  72 */ VQ6192_TBL("Mcfccfg",                 g_astVQ6192TblMemberMcfccfg,                         "TXM MC queue watermarks"),
    /*  73 */ VQ6192_TBL("Mcqst",                   g_astVQ6192TblMemberMcqst,                           "TXM MC queue status"),
    /*  74 */ VQ6192_TBL("Mcsn",                    g_astVQ6192TblMemberMcsn,                            "downstream MC sequence number state (debug)"),
    /*  75 */ VQ6192_TBL("Mpdisst",                 g_astVQ6192TblMemberMpdisst,                         "TXM MC queue discard status"),
    /*  76 */ VQ6192_TBL("Mpeptst",                 g_astVQ6192TblMemberMpeptst,                         "TXM MC queue empty status"),
    /*  77 */ VQ6192_TBL("Mpschst",                 g_astVQ6192TblMemberMpschst,                         "TXM MP scheduling mode state (debug)"),
    /*  78 */ VQ6192_TBL("Mpwgtcfg",                g_astVQ6192TblMemberMpwgtcfg,                        "TXM MP queue scheduling weights"),
    /*  79 */ VQ6192_TBL("Mpwgtst",                 g_astVQ6192TblMemberMpwgtst,                         "TXM MP queue scheduling state"),
    /*  80 */ VQ6192_TBL("Pppencfg",                g_astVQ6192TblMemberPppencfg,                        "egress link PPP enable"),
    /*  81 */ VQ6192_TBL("Pppwgtcfg",               g_astVQ6192TblMemberPppwgtcfg,                       "TXM PPP queue scheduling weights"),
    /*  82 */ VQ6192_TBL("Pppwgtst",                g_astVQ6192TblMemberPppwgtst,                        "TXM PPP queue scheduling state"),
    /*  83 */ VQ6192_TBL("Qmencfg",                 g_astVQ6192TblMemberQmencfg,                         "queue enable"),
    /*  84 */ VQ6192_TBL("Snctrlbase",              g_astVQ6192TblMemberSnctrlbase,                      "reordering control base addresses"),
    /*  85 */ VQ6192_TBL("Snctrlcfg",               g_astVQ6192TblMemberSnctrlcfg,                       "reordering control configuration"),
    /*  86 */ VQ6192_TBL("Snctrlwind",              g_astVQ6192TblMemberSnctrlwind,                      "reordering window state"),
    /*  87 */ VQ6192_TBL("Cesidlecode",             g_astVQ6192TblMemberCesidlecode,                     "CES idle timeslot code"),
    /*  88 */ VQ6192_TBL("Cesjbempcnt",             g_astVQ6192TblMemberCesjbempcnt,                     "CES jitter-buffer empty count"),
    /*  89 */ VQ6192_TBL("Cesjbfullcnt",            g_astVQ6192TblMemberCesjbfullcnt,                    "CES jitter-buffer full count"),
    /*  90 */ VQ6192_TBL("Cesjbfulldropcnt",        g_astVQ6192TblMemberCesjbfulldropcnt,                "CES jitter-buffer full drop count"),
    /*  91 */ VQ6192_TBL("Cesrxjbrdcnt",            g_astVQ6192TblMemberCesrxjbrdcnt,                    "CES jitter-buffer read count"),
    /*  92 */ VQ6192_TBL("Cesrxjbwrcnt",            g_astVQ6192TblMemberCesrxjbwrcnt,                    "CES jitter-buffer write count"),
    /*  93 */ VQ6192_TBL("Cesrxcnt",                g_astVQ6192TblMemberCesrxcnt,                        "CES received Ethernet packet counters"),
    /*  94 */ VQ6192_TBL("Cesrxcwrtp",              g_astVQ6192TblMemberCesrxcwrtp,                      "CES downstream control word"),
    /*  95 */ VQ6192_TBL("Cesrxtsmask",             g_astVQ6192TblMemberCesrxtsmask,                     "CES downstream timeslot mask"),
    /*  96 */ VQ6192_TBL("Cestsrxcnt",              g_astVQ6192TblMemberCestsrxcnt,                      "CES frames sent to TS count"),
    /*  97 */ VQ6192_TBL("Ceststxcnt",              g_astVQ6192TblMemberCeststxcnt,                      "CES frames received from TS count"),
    /*  98 */ VQ6192_TBL("Cestxtbrdcnt",            g_astVQ6192TblMemberCestxtbrdcnt,                    "CES TB read count"),
    /*  99 */ VQ6192_TBL("Cestxtbwrcnt",            g_astVQ6192TblMemberCestxtbwrcnt,                    "CES TB write count"),
    /* 100 */ VQ6192_TBL("Cestxcnt",                g_astVQ6192TblMemberCestxcnt,                        "CES packets sent to Ethernet count"),
    /* 101 */ VQ6192_TBL("Cestxcwrtp",              g_astVQ6192TblMemberCestxcwrtp,                      "CES upstream control word"),
    /* 102 */ VQ6192_TBL("Cestxtsmask",             g_astVQ6192TblMemberCestxtsmask,                     "CES upstream timeslot mask"),
    /* 103 */ VQ6192_TBL("Dds12key",                g_astVQ6192TblMemberDds12key,                        "CES clock recovery DDS control key"),
    /* 104 */ VQ6192_TBL("Tsfifo",                  g_astVQ6192TblMemberTsfifo,                          "CES clock recovery timestamp and sequence FIFO"),
    /* 105 */ VQ6192_TBL("Samcfiforxcit",           g_astVQ6192TblMemberSamcfiforxcit,                   "upstream CFIFO_RX channel information (336 channels)"),
    /* 106 */ VQ6192_TBL("Samcfiforxfbt",           g_astVQ6192TblMemberSamcfiforxfbt,                   "upstream CFIFO_RX frame buffer"),
    /* 107 */ VQ6192_TBL("Samcfifotxcit",           g_astVQ6192TblMemberSamcfifotxcit,                   "downstream CFIFO channel information"),
    /* 108 */ VQ6192_TBL("Samcfifotxfbt",           g_astVQ6192TblMemberSamcfifotxfbt,                   "CFIFO_TX frame buffer (address bits 8:0 channel, 13:9 read select)"),
    /* 109 */ VQ6192_TBL("Samfthsbt",               g_astVQ6192TblMemberSamfthsbt,                       "upstream SA-bit buffer"),
    /* 110 */ VQ6192_TBL("Saminssbt",               g_astVQ6192TblMemberSaminssbt,                       "downstream SA-bit buffer"),
    /* 111 */ VQ6192_TBL("Samrppucfg",              g_astVQ6192TblMemberSamrppucfg,                      "upstream RPPU configuration"),
    /* 112 */ VQ6192_TBL("Samrppucnt",              g_astVQ6192TblMemberSamrppucnt,                      "upstream SAM_RPPU counters"),
    /* 113 */ VQ6192_TBL("Samrppusta",              g_astVQ6192TblMemberSamrppusta,                      "upstream SAM_RPPU internal state"),
    /* 114 */ VQ6192_TBL("Samtppucfg",              g_astVQ6192TblMemberSamtppucfg,                      "downstream TPPU configuration"),
    /* 115 */ VQ6192_TBL("Samtppucnt",              g_astVQ6192TblMemberSamtppucnt,                      "downstream SAM_TPPU counters"),
    /* 116 */ VQ6192_TBL("Samtppusta",              g_astVQ6192TblMemberSamtppusta,                      "downstream TPPU state"),
    /* 117 */ VQ6192_TBL("Tsdlet1tab",              g_astVQ6192TblMemberTsdlet1tab,                      "E1/T1 downstream timeslot allocation"),
    /* 118 */ VQ6192_TBL("Tsdlet3vc4tab",           g_astVQ6192TblMemberTsdlet3vc4tab,                   "E3/T3 and VC-4 downstream"),
    /* 119 */ VQ6192_TBL("Tsulet1tab",              g_astVQ6192TblMemberTsulet1tab,                      "E1/T1 upstream timeslot allocation"),
    /* 120 */ VQ6192_TBL("Tsulet3vc4tab",           g_astVQ6192TblMemberTsulet3vc4tab,                   "E3/T3 and VC-4 upstream"),
    /* 121 */ VQ6192_TBL("Downppppro",              g_astVQ6192TblMemberDownppppro,                      "downstream Ethernet type to MP protocol lookup"),
    /* 122 */ VQ6192_TBL("Mpls2key",                g_astVQ6192TblMemberMpls2key,                        "PW label to channel lookup (MPLS low 4K, UDP high 4K)"),
    /* 123 */ VQ6192_TBL("No2pid",                  g_astVQ6192TblMemberNo2pid,                          "upstream channel to CPU-header PID lookup"),
    /* 124 */ VQ6192_TBL("Pid2no",                  g_astVQ6192TblMemberPid2no,                          "downstream CPU-header PID to channel lookup"),
    /* 125 */ VQ6192_TBL("Psnheader",               g_astVQ6192TblMemberPsnheader,                       "upstream PSN header by channel (ATM 0-2047, PPP 2048-2559, MP 2560-2815, CES 2816-3167)"),
    /* 126 */ VQ6192_TBL("Rxheadfield",             g_astVQ6192TblMemberRxheadfield,                     "receive header field (up to 512 bits, 64 entries)"),
    /* 127 */ VQ6192_TBL("Txheadfield",             g_astVQ6192TblMemberTxheadfield,                     "transmit header field (up to 512 bits, 64 entries)"),
    /* 128 */ VQ6192_TBL("Upppptype",               g_astVQ6192TblMemberUpppptype,                       "upstream MP protocol to Ethernet type lookup"),
    /* 129 */ VQ6192_TBL("Vlan2lable",              g_astVQ6192TblMemberVlan2lable,                      "downstream VLAN id to channel lookup"),
    /* 130 */ VQ6192_TBL("Mac1Cnt",                 g_astVQ6192TblMemberMac1Cnt,                         "MAC1 32-bit counter"),
    /* 131 */ VQ6192_TBL("Mac2Cnt",                 g_astVQ6192TblMemberMac2Cnt,                         "MAC2 32-bit counter"),
    /* 132 */ VQ6192_TBL("Tcrxlnkcfg",              g_astVQ6192TblMemberTcrxlnkcfg,                      "ATM-TC receive link configuration"),
    /* 133 */ VQ6192_TBL("Tcrxlnksta0",             g_astVQ6192TblMemberTcrxlnksta0,                     "ATM-TC receive link status 0"),
    /* 134 */ VQ6192_TBL("Tcrxlnksta1",             g_astVQ6192TblMemberTcrxlnksta1,                     "ATM-TC receive link status 1"),
    /* 135 */ VQ6192_TBL("Tcrxlnksta2",             g_astVQ6192TblMemberTcrxlnksta2,                     "ATM-TC receive link status 2"),
    /* 136 */ VQ6192_TBL("Tcrximaiflnksta",         g_astVQ6192TblMemberTcrximaiflnksta,                 "ATM-TC receive link IMA interface status"),
    /* 137 */ VQ6192_TBL("Tcrxtsiflnksta",          g_astVQ6192TblMemberTcrxtsiflnksta,                  "ATM-TC receive link TS interface status"),
    /* 138 */ VQ6192_TBL("Tctxlnkcfg",              g_astVQ6192TblMemberTctxlnkcfg,                      "ATM-TC transmit link configuration"),
    /* 139 */ VQ6192_TBL("Tctxlnksta",              g_astVQ6192TblMemberTctxlnksta,                      "ATM-TC transmit link status"),
    /* 140 */ VQ6192_TBL("Tctximaiflnksta",         g_astVQ6192TblMemberTctximaiflnksta,                 "ATM-TC transmit link IMA interface status"),
    /* 141 */ VQ6192_TBL("Tctxtsiflnksta",          g_astVQ6192TblMemberTctxtsiflnksta,                  "ATM-TC transmit link TS interface status"),
    /* 142 */ VQ6192_TBL("Imapptxc",                g_astVQ6192TblMemberImapptxc,                        "IMAPP transmit link configuration"),
    /* 143 */ VQ6192_TBL("Imapprxc",                g_astVQ6192TblMemberImapprxc,                        "IMAPP receive link configuration"),
    /* 144 */ VQ6192_TBL("Imappgpc0",               g_astVQ6192TblMemberImappgpc0,                       "IMAPP group configuration word 0"),
    /* 145 */ VQ6192_TBL("Imappgpc1",               g_astVQ6192TblMemberImappgpc1,                       "IMAPP group configuration word 1"),
    /* 146 */ VQ6192_TBL("Imappgpc2",               g_astVQ6192TblMemberImappgpc2,                       "IMAPP group configuration word 2"),
    /* 147 */ VQ6192_TBL("Imappgpc3",               g_astVQ6192TblMemberImappgpc3,                       "IMAPP group configuration word 3"),
    /* 148 */ VQ6192_TBL("Imappgpc4",               g_astVQ6192TblMemberImappgpc4,                       "IMAPP group configuration word 4"),
    /* 149 */ VQ6192_TBL("Imappgpc5",               g_astVQ6192TblMemberImappgpc5,                       "IMAPP group configuration word 5"),
    /* 150 */ VQ6192_TBL("Imapptxs0",               g_astVQ6192TblMemberImapptxs0,                       "IMAPP transmit link status word 0"),
    /* 151 */ VQ6192_TBL("Imapptxs1",               g_astVQ6192TblMemberImapptxs1,                       "IMAPP transmit link status word 1"),
    /* 152 */ VQ6192_TBL("Imapprxs0",               g_astVQ6192TblMemberImapprxs0,                       "IMAPP receive link status word 0"),
    /* 153 */ VQ6192_TBL("Imapprxs1",               g_astVQ6192TblMemberImapprxs1,                       "IMAPP receive link status word 1"),
    /* 154 */ VQ6192_TBL("Imappgps0",               g_astVQ6192TblMemberImappgps0,                       "IMAPP group status word 0"),
    /* 155 */ VQ6192_TBL("Imappgps1",               g_astVQ6192TblMemberImappgps1,                       "IMAPP group status word 1"),
    /* 156 */ VQ6192_TBL("Imappgps2",               g_astVQ6192TblMemberImappgps2,                       "IMAPP group status word 2"),
    /* 157 */ VQ6192_TBL("Imappgps3",               g_astVQ6192TblMemberImappgps3,                       "IMAPP group status word 3"),
    /* 158 */ VQ6192_TBL("Imappgps4",               g_astVQ6192TblMemberImappgps4,                       "IMAPP group status word 4"),
    /* 159 */ VQ6192_TBL("Imappgps5",               g_astVQ6192TblMemberImappgps5,                       "IMAPP group status word 5"),
    /* 160 */ VQ6192_TBL("Imappgps6",               g_astVQ6192TblMemberImappgps6,                       "IMAPP group status word 6"),
    /* 161 */ VQ6192_TBL("Imappgps7",               g_astVQ6192TblMemberImappgps7,                       "IMAPP group status word 7"),
    /* 162 */ VQ6192_TBL("Readevent031",            g_astVQ6192TblMemberReadevent031,                    "READ_EVENT words 0-31"),
    /* 163 */ VQ6192_TBL("Readevent32",             g_astVQ6192TblMemberReadevent32,                     "READ_EVENT word 32"),
    /* 164 */ VQ6192_TBL("Readevent33",             g_astVQ6192TblMemberReadevent33,                     "READ_EVENT word 33"),
    /* 165 */ VQ6192_TBL("Readevent34",             g_astVQ6192TblMemberReadevent34,                     "READ_EVENT word 34"),
    /* 166 */ VQ6192_TBL("Icpfwd0",                 g_astVQ6192TblMemberIcpfwd0,                         "ICP forwarding word 0"),
    /* 167 */ VQ6192_TBL("Imarxlkcnt0",             g_astVQ6192TblMemberImarxlkcnt0,                     "IMARX link counters word 0"),
    /* 168 */ VQ6192_TBL("Imarxlkcnt1",             g_astVQ6192TblMemberImarxlkcnt1,                     "IMARX link counters word 1"),
    /* 169 */ VQ6192_TBL("Imarxlkcnt2",             g_astVQ6192TblMemberImarxlkcnt2,                     "IMARX link counters word 2"),
    /* 170 */ VQ6192_TBL("Imarxlkcnt3",             g_astVQ6192TblMemberImarxlkcnt3,                     "IMARX link counters word 3"),
    /* 171 */ VQ6192_TBL("Imarxuniwcnt0",           g_astVQ6192TblMemberImarxuniwcnt0,                   "IMARX UNI link counters word 0"),
    /* 172 */ VQ6192_TBL("Imarxuniwcnt1",           g_astVQ6192TblMemberImarxuniwcnt1,                   "IMARX UNI link counters word 1"),
    /* 173 */ VQ6192_TBL("Imarxuniwcnt2",           g_astVQ6192TblMemberImarxuniwcnt2,                   "IMARX UNI link counters word 2"),
    /* 174 */ VQ6192_TBL("Imarxuniwcnt3",           g_astVQ6192TblMemberImarxuniwcnt3,                   "IMARX UNI link counters word 3"),
    /* 175 */ VQ6192_TBL("Imarxlkc",                g_astVQ6192TblMemberImarxlkc,                        "IMARX link configuration"),
    /* 176 */ VQ6192_TBL("Imarxgpc",                g_astVQ6192TblMemberImarxgpc,                        "IMARX group configuration"),
    /* 177 */ VQ6192_TBL("Imarxicpvld",             g_astVQ6192TblMemberImarxicpvld,                     "IMARX ICP cell valid"),
    /* 178 */ VQ6192_TBL("Imarxlks0",               g_astVQ6192TblMemberImarxlks0,                       "IMARX link status word 0"),
    /* 179 */ VQ6192_TBL("Imarxlks1",               g_astVQ6192TblMemberImarxlks1,                       "IMARX link status word 1"),
    /* 180 */ VQ6192_TBL("Imarxicpbuf0",            g_astVQ6192TblMemberImarxicpbuf0,                    "IMARX ICP cell buffer word 0"),
    /* 181 */ VQ6192_TBL("Imarxicpbuf12",           g_astVQ6192TblMemberImarxicpbuf12,                   "IMARX ICP cell buffer word 12"),
    /* 182 */ VQ6192_TBL("Imarximarptr",            g_astVQ6192TblMemberImarximarptr,                    "IMARX read pointer"),
    /* 183 */ VQ6192_TBL("Imarxunirptr",            g_astVQ6192TblMemberImarxunirptr,                    "IMARX UNI read pointer"),
    /* 184 */ VQ6192_TBL("Imarximawptr",            g_astVQ6192TblMemberImarximawptr,                    "IMARX write pointer"),
    /* 185 */ VQ6192_TBL("Imarxuniwptr",            g_astVQ6192TblMemberImarxuniwptr,                    "IMARX UNI write pointer"),
    /* 186 */ VQ6192_TBL("Imarxgpwptr0",            g_astVQ6192TblMemberImarxgpwptr0,                    "IMARX group write pointer word 0"),
    /* 187 */ VQ6192_TBL("Imarxgpwptr1",            g_astVQ6192TblMemberImarxgpwptr1,                    "IMARX group write pointer word 1"),
    /* 188 */ VQ6192_TBL("Imarxgpwptr2",            g_astVQ6192TblMemberImarxgpwptr2,                    "IMARX group write pointer word 2"),
    /* 189 */ VQ6192_TBL("Imarxrddly031",           g_astVQ6192TblMemberImarxrddly031,                   "READ_DELAY words 0-31"),
    /* 190 */ VQ6192_TBL("Imarxrddly32",            g_astVQ6192TblMemberImarxrddly32,                    "READ_DELAY word 32"),
    /* 191 */ VQ6192_TBL("Imarxrddly33",            g_astVQ6192TblMemberImarxrddly33,                    "READ_DELAY word 33"),
    /* 192 */ VQ6192_TBL("Imarxgpcnt0",             g_astVQ6192TblMemberImarxgpcnt0,                     "IMARX group counters word 0"),
    /* 193 */ VQ6192_TBL("Imarxgpcnt1",             g_astVQ6192TblMemberImarxgpcnt1,                     "IMARX group counters word 1"),
    /* 194 */ VQ6192_TBL("Imarxunircnt0",           g_astVQ6192TblMemberImarxunircnt0,                   "IMARX UNI group counters"),
    /* 195 */ VQ6192_TBL("Imarxscvcrr",             g_astVQ6192TblMemberImarxscvcrr,                     "IMARX SCVE polling configuration"),
    /* 196 */ VQ6192_TBL("Imarxscvcctrl",           g_astVQ6192TblMemberImarxscvcctrl,                   "IMARX SCVE list control"),
    /* 197 */ VQ6192_TBL("Imatxgps0",               g_astVQ6192TblMemberImatxgps0,                       "IMATX group status word 0"),
    /* 198 */ VQ6192_TBL("Imatxgps1",               g_astVQ6192TblMemberImatxgps1,                       "IMATX group status word 1"),
    /* 199 */ VQ6192_TBL("Imatxgps2",               g_astVQ6192TblMemberImatxgps2,                       "IMATX group status word 2"),
    /* 200 */ VQ6192_TBL("Imatxgps3",               g_astVQ6192TblMemberImatxgps3,                       "IMATX group status word 3"),
    /* 201 */ VQ6192_TBL("Imatxgps4",               g_astVQ6192TblMemberImatxgps4,                       "IMATX group status word 4"),
    /* 202 */ VQ6192_TBL("Imatxicpbuf0",            g_astVQ6192TblMemberImatxicpbuf0,                    "IMATX ICP buffer word 0"),
    /* 203 */ VQ6192_TBL("Imatxgpc",                g_astVQ6192TblMemberImatxgpc,                        "IMATX group configuration"),
    /* 204 */ VQ6192_TBL("Imatxmaptbl0",            g_astVQ6192TblMemberImatxmaptbl0,                    "IMATX LID to ATM-TC link map word 0"),
    /* 205 */ VQ6192_TBL("Imatxlks0",               g_astVQ6192TblMemberImatxlks0,                       "IMATX link status word 0"),
    /* 206 */ VQ6192_TBL("Imatxlks1",               g_astVQ6192TblMemberImatxlks1,                       "IMATX link status word 1"),
    /* 207 */ VQ6192_TBL("Imatxlkc",                g_astVQ6192TblMemberImatxlkc,                        "IMATX link configuration"),
    /* 208 */ VQ6192_TBL("Imatxlinkingp",           g_astVQ6192TblMemberImatxlinkingp,                   "IMATX link in group"),
    /* 209 */ VQ6192_TBL("Imatxgpdepth",            g_astVQ6192TblMemberImatxgpdepth,                    "IMATX GFIFO depth"),
    /* 210 */ VQ6192_TBL("Atmportperiodcfg",        g_astVQ6192TblMemberAtmportperiodcfg,                "port bandwidth configuration"),
    /* 211 */ VQ6192_TBL("Mprpmrrucfg",             g_astVQ6192TblMemberMprpmrrucfg,                     "upstream MP group MRRU configuration"),
    /* 212 */ VQ6192_TBL("Mptestrefstat",           g_astVQ6192TblMemberMptestrefstat,                   "test packet refresh indication"),
    /* 213 */ VQ6192_TBL("Mprpkt",                  g_astVQ6192TblMemberMprpkt,                          "downstream MP group received packets before fragmentation"),
    /* 214 */ VQ6192_TBL("Mprbyte",                 g_astVQ6192TblMemberMprbyte,                         "downstream MP group received bytes before fragmentation"),
    /* 215 */ VQ6192_TBL("Cpuprotocol",             g_astVQ6192TblMemberCpuprotocol,                     "upstream MP protocol PID to CPU protocol field lookup"),
    /* 216 */ VQ6192_TBL("Cestxpkgchnmap",          g_astVQ6192TblMemberCestxpkgchnmap,                  "FRM to CES channel map"),
    /* 217 */ VQ6192_TBL("Imappgpc6",               g_astVQ6192TblMemberImappgpc6,                       "IMAPP group configuration word 6"),
    /* 218 */ VQ6192_TBL("Imappgpc7",               g_astVQ6192TblMemberImappgpc7,                       "IMAPP group configuration word 7"),
    /* 219 */ VQ6192_TBL("Imappgpc8",               g_astVQ6192TblMemberImappgpc8,                       "IMAPP group configuration word 8"),
    /* 220 */ VQ6192_TBL("Imappgpc9",               g_astVQ6192TblMemberImappgpc9,                       "IMAPP group configuration word 9"),
    /* 221 */ VQ6192_TBL("Imappgpc10",              g_astVQ6192TblMemberImappgpc10,                      "IMAPP group configuration word 10"),
    /* 222 */ VQ6192_TBL("Imappgpc11",              g_astVQ6192TblMemberImappgpc11,                      "IMAPP group configuration word 11"),
    /* 223 */ VQ6192_TBL("Imappgpc12",              g_astVQ6192TblMemberImappgpc12,                      "IMAPP group configuration word 12"),
    /* 224 */ VQ6192_TBL("Imappgpc13",              g_astVQ6192TblMemberImappgpc13,                      "IMAPP group configuration word 13"),
    /* 225 */ VQ6192_TBL("Imappgpc14",              g_astVQ6192TblMemberImappgpc14,                      "IMAPP group configuration word 14"),
    /* 226 */ VQ6192_TBL("Imappgpc15",              g_astVQ6192TblMemberImappgpc15,                      "IMAPP group configuration word 15"),
    /* 227 */ VQ6192_TBL("Icpfwd1",                 g_astVQ6192TblMemberIcpfwd1,                         "ICP forwarding word 1"),
    /* 228 */ VQ6192_TBL("Icpfwd2",                 g_astVQ6192TblMemberIcpfwd2,                         "ICP forwarding word 2"),
    /* 229 */ VQ6192_TBL("Icpfwd3",                 g_astVQ6192TblMemberIcpfwd3,                         "ICP forwarding word 3"),
    /* 230 */ VQ6192_TBL("Icpfwd4",                 g_astVQ6192TblMemberIcpfwd4,                         "ICP forwarding word 4"),
    /* 231 */ VQ6192_TBL("Icpfwd5",                 g_astVQ6192TblMemberIcpfwd5,                         "ICP forwarding word 5"),
    /* 232 */ VQ6192_TBL("Icpfwd6",                 g_astVQ6192TblMemberIcpfwd6,                         "ICP forwarding word 6"),
    /* 233 */ VQ6192_TBL("Icpfwd7",                 g_astVQ6192TblMemberIcpfwd7,                         "ICP forwarding word 7"),
    /* 234 */ VQ6192_TBL("Icpfwd8",                 g_astVQ6192TblMemberIcpfwd8,                         "ICP forwarding word 8"),
    /* 235 */ VQ6192_TBL("Icpfwd9",                 g_astVQ6192TblMemberIcpfwd9,                         "ICP forwarding word 9"),
    /* 236 */ VQ6192_TBL("Icpfwd10",                g_astVQ6192TblMemberIcpfwd10,                        "ICP forwarding word 10"),
    /* 237 */ VQ6192_TBL("Icpfwd11",                g_astVQ6192TblMemberIcpfwd11,                        "ICP forwarding word 11"),
    /* 238 */ VQ6192_TBL("Imatxicpbuf1",            g_astVQ6192TblMemberImatxicpbuf1,                    "IMATX ICP buffer word 1"),
    /* 239 */ VQ6192_TBL("Imatxicpbuf2",            g_astVQ6192TblMemberImatxicpbuf2,                    "IMATX ICP buffer word 2"),
    /* 240 */ VQ6192_TBL("Imatxicpbuf3",            g_astVQ6192TblMemberImatxicpbuf3,                    "IMATX ICP buffer word 3"),
    /* 241 */ VQ6192_TBL("Imatxicpbuf4",            g_astVQ6192TblMemberImatxicpbuf4,                    "IMATX ICP buffer word 4"),
    /* 242 */ VQ6192_TBL("Imatxicpbuf5",            g_astVQ6192TblMemberImatxicpbuf5,                    "IMATX ICP buffer word 5"),
    /* 243 */ VQ6192_TBL("Imatxicpbuf6",            g_astVQ6192TblMemberImatxicpbuf6,                    "IMATX ICP buffer word 6"),
    /* 244 */ VQ6192_TBL("Imatxicpbuf7",            g_astVQ6192TblMemberImatxicpbuf7,                    "IMATX ICP buffer word 7"),
    /* 245 */ VQ6192_TBL("Imatxicpbuf8",            g_astVQ6192TblMemberImatxicpbuf8,                    "IMATX ICP buffer word 8"),
    /* 246 */ VQ6192_TBL("Imarxicpbuf1",            g_astVQ6192TblMemberImarxicpbuf1,                    "IMARX ICP cell buffer word 1"),
    /* 247 */ VQ6192_TBL("Imarxicpbuf2",            g_astVQ6192TblMemberImarxicpbuf2,                    "IMARX ICP cell buffer word 2"),
    /* 248 */ VQ6192_TBL("Imarxicpbuf3",            g_astVQ6192TblMemberImarxicpbuf3,                    "IMARX ICP cell buffer word 3"),
    /* 249 */ VQ6192_TBL("Imarxicpbuf4",            g_astVQ6192TblMemberImarxicpbuf4,                    "IMARX ICP cell buffer word 4"),
    /* 250 */ VQ6192_TBL("Imarxicpbuf5",            g_astVQ6192TblMemberImarxicpbuf5,                    "IMARX ICP cell buffer word 5"),
    /* 251 */ VQ6192_TBL("Imarxicpbuf6",            g_astVQ6192TblMemberImarxicpbuf6,                    "IMARX ICP cell buffer word 6"),
    /* 252 */ VQ6192_TBL("Imarxicpbuf7",            g_astVQ6192TblMemberImarxicpbuf7,                    "IMARX ICP cell buffer word 7"),
    /* 253 */ VQ6192_TBL("Imarxicpbuf8",            g_astVQ6192TblMemberImarxicpbuf8,                    "IMARX ICP cell buffer word 8"),
    /* 254 */ VQ6192_TBL("Imarxicpbuf9",            g_astVQ6192TblMemberImarxicpbuf9,                    "IMARX ICP cell buffer word 9"),
    /* 255 */ VQ6192_TBL("Imarxicpbuf10",           g_astVQ6192TblMemberImarxicpbuf10,                   "IMARX ICP cell buffer word 10"),
    /* 256 */ VQ6192_TBL("Imarxicpbuf11",           g_astVQ6192TblMemberImarxicpbuf11,                   "IMARX ICP cell buffer word 11"),
    /* 257 */ VQ6192_TBL("Imarxgpwptr3",            g_astVQ6192TblMemberImarxgpwptr3,                    "IMARX group write pointer word 3"),
    /* 258 */ VQ6192_TBL("Stationaddrlow",          g_astVQ6192TblMemberStationaddrlow,                  "Ethernet MAC register"),
    /* 259 */ VQ6192_TBL("Stationaddrhigh",         g_astVQ6192TblMemberStationaddrhigh,                 "Ethernet MAC register"),
    /* 260 */ VQ6192_TBL("Duplexsel",               g_astVQ6192TblMemberDuplexsel,                       "Ethernet MAC register"),
    /* 261 */ VQ6192_TBL("Fdfctype",                g_astVQ6192TblMemberFdfctype,                        "Ethernet MAC register"),
    /* 262 */ VQ6192_TBL("Appfifothrsld",           g_astVQ6192TblMemberAppfifothrsld,                   "Ethernet MAC register"),
    /* 263 */ VQ6192_TBL("Fctxtimer",               g_astVQ6192TblMemberFctxtimer,                       "Ethernet MAC register"),
    /* 264 */ VQ6192_TBL("Fdfcaddrlow",             g_astVQ6192TblMemberFdfcaddrlow,                     "Ethernet MAC register"),
    /* 265 */ VQ6192_TBL("Fdfcaddrhigh",            g_astVQ6192TblMemberFdfcaddrhigh,                    "Ethernet MAC register"),
    /* 266 */ VQ6192_TBL("Ipgtxtimer",              g_astVQ6192TblMemberIpgtxtimer,                      "Ethernet MAC register"),
    /* 267 */ VQ6192_TBL("Preamblecfg",             g_astVQ6192TblMemberPreamblecfg,                     "Ethernet MAC register"),
    /* 268 */ VQ6192_TBL("Pausethr",                g_astVQ6192TblMemberPausethr,                        "Ethernet MAC register"),
    /* 269 */ VQ6192_TBL("Maxfrmsize",              g_astVQ6192TblMemberMaxfrmsize,                      "Ethernet MAC register"),
    /* 270 */ VQ6192_TBL("Portmode",                g_astVQ6192TblMemberPortmode,                        "Ethernet MAC register"),
    /* 271 */ VQ6192_TBL("Porten",                  g_astVQ6192TblMemberPorten,                          "Ethernet MAC register"),
    /* 272 */ VQ6192_TBL("Fdfcen",                  g_astVQ6192TblMemberFdfcen,                          "Ethernet MAC register"),
    /* 273 */ VQ6192_TBL("Shortruntsthr",           g_astVQ6192TblMemberShortruntsthr,                   "Ethernet MAC register"),
    /* 274 */ VQ6192_TBL("Dropunkctlfrm",           g_astVQ6192TblMemberDropunkctlfrm,                   "Ethernet MAC register"),
    /* 275 */ VQ6192_TBL("Synok",                   g_astVQ6192TblMemberSynok,                           "Ethernet MAC register"),
    /* 276 */ VQ6192_TBL("Mactxfen",                g_astVQ6192TblMemberMactxfen,                        "Ethernet MAC register"),
    /* 277 */ VQ6192_TBL("Macrxpsen",               g_astVQ6192TblMemberMacrxpsen,                       "Ethernet MAC register"),
    /* 278 */ VQ6192_TBL("Portmcaddrlow",           g_astVQ6192TblMemberPortmcaddrlow,                   "Ethernet MAC register"),
    /* 279 */ VQ6192_TBL("Portmcaddrhigh",          g_astVQ6192TblMemberPortmcaddrhigh,                  "Ethernet MAC register"),
    /* 280 */ VQ6192_TBL("Macsoftrst",              g_astVQ6192TblMemberMacsoftrst,                      "Ethernet MAC register"),
    /* 281 */ VQ6192_TBL("Macfifoerr",              g_astVQ6192TblMemberMacfifoerr,                      "Ethernet MAC register"),
    /* 282 */ VQ6192_TBL("Portlinkstat",            g_astVQ6192TblMemberPortlinkstat,                    "Ethernet MAC register"),
    /* 283 */ VQ6192_TBL("Macporten",               g_astVQ6192TblMemberMacporten,                       "Ethernet MAC register"),
    /* 284 */ VQ6192_TBL("Lineloopback",            g_astVQ6192TblMemberLineloopback,                    "Ethernet MAC register"),
    /* 285 */ VQ6192_TBL("Cfcrcstrip",              g_astVQ6192TblMemberCfcrcstrip,                      "Ethernet MAC register"),
    /* 286 */ VQ6192_TBL("Cfdflsinglerx",           g_astVQ6192TblMemberCfdflsinglerx,                   "Ethernet MAC register"),
    /* 287 */ VQ6192_TBL("Lpctrl",                  g_astVQ6192TblMemberLpctrl,                          "Ethernet MAC register"),
    /* 288 */ VQ6192_TBL("Macrxctrl",               g_astVQ6192TblMemberMacrxctrl,                       "Ethernet MAC register"),
    /* 289 */ VQ6192_TBL("Cfserdesorder",           g_astVQ6192TblMemberCfserdesorder,                   "Ethernet MAC register"),
    /* 290 */ VQ6192_TBL("Rxfailcommacnt",          g_astVQ6192TblMemberRxfailcommacnt,                  "Ethernet MAC register"),
    /* 291 */ VQ6192_TBL("Invalidcharcnt",          g_astVQ6192TblMemberInvalidcharcnt,                  "Ethernet MAC register"),
    /* 292 */ VQ6192_TBL("Cfvlancode",              g_astVQ6192TblMemberCfvlancode,                      "Ethernet MAC register"),
    /* 293 */ VQ6192_TBL("Rxoverruncnt",            g_astVQ6192TblMemberRxoverruncnt,                    "Ethernet MAC register"),
    /* 294 */ VQ6192_TBL("Rxlengthfielderrcnt",     g_astVQ6192TblMemberRxlengthfielderrcnt,             "Ethernet MAC register"),
    /* 295 */ VQ6192_TBL("Rxoctetsokcnt",           g_astVQ6192TblMemberRxoctetsokcnt,                   "Ethernet MAC register"),
    /* 296 */ VQ6192_TBL("Rxoctetsbadcnt",          g_astVQ6192TblMemberRxoctetsbadcnt,                  "Ethernet MAC register"),
    /* 297 */ VQ6192_TBL("Rxucpktcnt",              g_astVQ6192TblMemberRxucpktcnt,                      "Ethernet MAC register"),
    /* 298 */ VQ6192_TBL("Rxmcpktcnt",              g_astVQ6192TblMemberRxmcpktcnt,                      "Ethernet MAC register"),
    /* 299 */ VQ6192_TBL("Rxbcpktcnt",              g_astVQ6192TblMemberRxbcpktcnt,                      "Ethernet MAC register"),
    /* 300 */ VQ6192_TBL("Rxpkts64octcnt",          g_astVQ6192TblMemberRxpkts64octcnt,                  "Ethernet MAC register"),
    /* 301 */ VQ6192_TBL("Rxpkts65to127octcnt",     g_astVQ6192TblMemberRxpkts65to127octcnt,             "Ethernet MAC register"),
    /* 302 */ VQ6192_TBL("Rxpkts128to255octcnt",    g_astVQ6192TblMemberRxpkts128to255octcnt,            "Ethernet MAC register"),
    /* 303 */ VQ6192_TBL("Rxpkts256to511octcnt",    g_astVQ6192TblMemberRxpkts256to511octcnt,            "Ethernet MAC register"),
    /* 304 */ VQ6192_TBL("Rxpkts512to1023octcnt",   g_astVQ6192TblMemberRxpkts512to1023octcnt,           "Ethernet MAC register"),
    /* 305 */ VQ6192_TBL("Rxpkts1024to1518octcnt",  g_astVQ6192TblMemberRxpkts1024to1518octcnt,          "Ethernet MAC register"),
    /* 306 */ VQ6192_TBL("Rxpkts1519tomaxoctcnt",   g_astVQ6192TblMemberRxpkts1519tomaxoctcnt,           "Ethernet MAC register"),
    /* 307 */ VQ6192_TBL("Rxfcserrcnt",             g_astVQ6192TblMemberRxfcserrcnt,                     "Ethernet MAC register"),
    /* 308 */ VQ6192_TBL("Rxtaggedcnt",             g_astVQ6192TblMemberRxtaggedcnt,                     "Ethernet MAC register"),
    /* 309 */ VQ6192_TBL("Rxdataerrcnt",            g_astVQ6192TblMemberRxdataerrcnt,                    "Ethernet MAC register"),
    /* 310 */ VQ6192_TBL("Rxlongerrcnt",            g_astVQ6192TblMemberRxlongerrcnt,                    "Ethernet MAC register"),
    /* 311 */ VQ6192_TBL("Rxjabbererrcnt",          g_astVQ6192TblMemberRxjabbererrcnt,                  "Ethernet MAC register"),
    /* 312 */ VQ6192_TBL("Rxpausecnt",              g_astVQ6192TblMemberRxpausecnt,                      "Ethernet MAC register"),
    /* 313 */ VQ6192_TBL("Rxunkctlcnt",             g_astVQ6192TblMemberRxunkctlcnt,                     "Ethernet MAC register"),
    /* 314 */ VQ6192_TBL("Rxverylongerrcnt",        g_astVQ6192TblMemberRxverylongerrcnt,                "Ethernet MAC register"),
    /* 315 */ VQ6192_TBL("Rxrunterrcnt",            g_astVQ6192TblMemberRxrunterrcnt,                    "Ethernet MAC register"),
    /* 316 */ VQ6192_TBL("Rxshorterrcnt",           g_astVQ6192TblMemberRxshorterrcnt,                   "Ethernet MAC register"),
    /* 317 */ VQ6192_TBL("Txoctetsokcnt",           g_astVQ6192TblMemberTxoctetsokcnt,                   "Ethernet MAC register"),
    /* 318 */ VQ6192_TBL("Txoctetsbadcnt",          g_astVQ6192TblMemberTxoctetsbadcnt,                  "Ethernet MAC register"),
    /* 319 */ VQ6192_TBL("Txucpktcnt",              g_astVQ6192TblMemberTxucpktcnt,                      "Ethernet MAC register"),
    /* 320 */ VQ6192_TBL("Txmcpktcnt",              g_astVQ6192TblMemberTxmcpktcnt,                      "Ethernet MAC register"),
    /* 321 */ VQ6192_TBL("Txbcpktcnt",              g_astVQ6192TblMemberTxbcpktcnt,                      "Ethernet MAC register"),
    /* 322 */ VQ6192_TBL("Txpkts64octcnt",          g_astVQ6192TblMemberTxpkts64octcnt,                  "Ethernet MAC register"),
    /* 323 */ VQ6192_TBL("Txpkts65to127octcnt",     g_astVQ6192TblMemberTxpkts65to127octcnt,             "Ethernet MAC register"),
    /* 324 */ VQ6192_TBL("Txpkts128to255octcnt",    g_astVQ6192TblMemberTxpkts128to255octcnt,            "Ethernet MAC register"),
    /* 325 */ VQ6192_TBL("Txpkts256to511octcnt",    g_astVQ6192TblMemberTxpkts256to511octcnt,            "Ethernet MAC register"),
    /* 326 */ VQ6192_TBL("Txpkts512to1023octcnt",   g_astVQ6192TblMemberTxpkts512to1023octcnt,           "Ethernet MAC register"),
    /* 327 */ VQ6192_TBL("Txpkts1024to1518octcnt",  g_astVQ6192TblMemberTxpkts1024to1518octcnt,          "Ethernet MAC register"),
    /* 328 */ VQ6192_TBL("Txpkts1519tomaxoctcnt",   g_astVQ6192TblMemberTxpkts1519tomaxoctcnt,           "Ethernet MAC register"),
    /* 329 */ VQ6192_TBL("Txexclendropcnt",         g_astVQ6192TblMemberTxexclendropcnt,                 "Ethernet MAC register"),
    /* 330 */ VQ6192_TBL("Txunderruncnt",           g_astVQ6192TblMemberTxunderruncnt,                   "Ethernet MAC register"),
    /* 331 */ VQ6192_TBL("Txtaggedcnt",             g_astVQ6192TblMemberTxtaggedcnt,                     "Ethernet MAC register"),
    /* 332 */ VQ6192_TBL("Txcrcerrcnt",             g_astVQ6192TblMemberTxcrcerrcnt,                     "Ethernet MAC register"),
    /* 333 */ VQ6192_TBL("Txpausecnt",              g_astVQ6192TblMemberTxpausecnt,                      "Ethernet MAC register"),
};

// clang-format on

}  // extern "C"

#undef VQ6192_TBL
