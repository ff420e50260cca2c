# Framer alarms and counters, a timeslot entry and a CES channel under PRBS test, through the
# diagnostic commands of the framer family.
rw 0 0x24062 0xfff5
getfrmalms 0 5
rw 0 0x24344 0x1234; rw 0 0x24346 0xbeef
getfrmcnts 0 40
rw 0 0x2b66a 0x0009; rw 0 0x2b66c 0x0040
getfrmet3alms 0 3
tw 0 Tsulet1tab 0xe1 0x9a15; tw 0 Tsdlet1tab 0xe1 0x9a15
gettscfg 0 2 7 1
getprbsts 0 2
getprbsts 0 3
