# An egress VCC laid by hand into the switching tables (VCX 11: system port 2000 VPI 1 VCI 100 to
# line port 12 VPI 2 VCI 200, nrt-VBR, weight 8, frame discard, template 5), then shown.
tw 0 Atmswtcam 11 0x00010064 0xfffffffd 0x1ffff
tw 0 Atmswvct 11 0x80040191 0x05000301 0xc
tw 0 Atmlinkqmcfg 11 0x000c6008
tw 0 Atmbmpvccfg 11 0x105
tw 0 Atmswlpct 12 0x8
tw 0 Atmswspct 2000 0x4
getatmsrvconn 0 11
getatmvcxenstat 0 11
getlinktype 0 11
getatmqm 0 11
getatmbmpvc 0 11
getatmportenstat 0 12 0
getatmportenstat 0 2000 1
getatmvcx 0 5 1
getoamcell 0
getatmsrvconn 0 8193
