dump 0 7 dump-ddr2c.bd
dump 0 0x7 dump-ddr2c.bd
dump 0 7 /nonexistent-dir/x.bd
dump 9
