# An ATM pseudowire's MPLS encapsulation and in-label, found again by the reverse search.
setegmplsbase 0 0 1000
setatmcespmuencplbl 0 17 2 1 0x12345 1005
getpsnethinfo 0 17 2
getatmcesegmpls2chnl 0 17 2
# A MAC port's pause address, and a refused port.
cdk_setportpauseaddr 0 2 00:11:22:33:44:55
cdk_getportpauseaddr 0 2
cdk_setporttxen 0 3 1
