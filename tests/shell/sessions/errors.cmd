nosuch 1
VQ6192_Rt 0 1
VQ6192_Rt 0 zz 1
initcdkmac
initcdkmac 1
VQ6192_Rt 0 1 32
VQ6192_Rt 0 "1 2
rr 3 0
tr 0 Reserved 0
help VQ6192_Show_Printf_Flag
