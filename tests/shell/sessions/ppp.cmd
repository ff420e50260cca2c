# PPP from the shell: a channel's options set and read back, a bundle's timeout, and a refusal.
setpppppucfg 0 5 0x201 1500 64
getpppppucfg 0 5
calcmptimeoutvalue 0 3 31
setmpqueweight 0 3 4 0x15; getmpqueweight 0 3 4
getpppmru 0 512
