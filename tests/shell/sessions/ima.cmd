# IMA link parameters and time tick set through registers and read by the IMA commands; a hardware
# diagnostic print of a group's transmit depth.
rw 0 0x4c10 0x00ae
getimalinkparam 0
rw 0 0x4418 0x00fa
getimatimetick 0
tw 0 Imatxgpdepth 3 0x7ff
MCARD_IMA_Dbg_ImaHardWareInfo 0 4 8 3
getimagrpstatus 0 336
