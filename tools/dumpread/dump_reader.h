// Reading a chip dump file: the parser, which checks every record against the bytes that are left,
// and the printer, which shows registers by address and table entries member by member under the
// table catalogue's names.
#pragma once

#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace vqdump {

struct RegRange {
    uint32_t base = 0, first = 0, last = 0;  // register numbers base + first .. base + last
    std::vector<uint16_t> values;
};

struct RegBlock {
    std::string name;
    uint32_t groupId = 0;
    uint8_t kind = 0;
    std::vector<RegRange> ranges;
};

struct Table {
    std::string name;
    uint32_t depth = 0;
    uint32_t entrySize = 0;            // bytes per entry, a multiple of 4
    int32_t catalogueId = -1;          // layout of the entries; -1: unknown table
    std::span<const uint8_t> entries;  // depth * entrySize bytes of the file
    // Entry `index` as 32-bit words (entrySize / 4 of them).
    std::vector<uint32_t> entry(uint32_t index) const;
};

struct TableGroup {
    std::string name;
    uint32_t groupId = 0;
    uint8_t kind = 0;
    std::vector<Table> tables;
};

// A parsed dump. The tables point into the file's bytes, which must outlive it.
struct DumpImage {
    std::string headText;  // "DUMP", the output file name and the chip name, as the chip wrote them
    std::vector<RegBlock> blocks;
    std::vector<TableGroup> groups;
    std::string error;  // empty: the whole file was read; else what stopped the parser and where
    bool ok() const { return error.empty(); }
};

DumpImage parseDump(std::span<const uint8_t> file);

struct PrintOptions {
    std::vector<std::string> tables;                      // --table: dump or catalogue names
    std::vector<std::pair<uint32_t, uint32_t>> regAddrs;  // --reg: byte address ranges, inclusive
};

// Prints what was parsed (for a damaged file: everything before the damage). With table names only
// those tables are shown, with address ranges only those registers; with neither, everything.
void printDump(const DumpImage &image, const PrintOptions &options, std::ostream &out);

// "ADDR" or "ADDR-ADDR", decimal or 0x hex.
bool parseRegFilter(const std::string &text, std::pair<uint32_t, uint32_t> *range);

}  // namespace vqdump
