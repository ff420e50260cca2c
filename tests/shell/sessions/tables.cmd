# A table entry written from the shell and read back.
tf 0 Atmpwe3pritab 5 Cbrpri 3
VQ6192_Rt 0 1 5   # through the diagnostic command
tw 0 Tsdlet1tab 0x21 0xa17f; tr 0 117 0x21
rw 0 0x20090 0x00f1; rd 0 0x20088 6
VQ6192_Set_Diag_Printf_Flag 0 4 15
tables imappgpc1
