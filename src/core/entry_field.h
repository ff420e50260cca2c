// Fields of a table entry, named by the catalogue: modules write
//
//     constexpr auto kVctValid = vq::entryField("Atmswvct", "Valid");
//     vq::setField(entry, kVctValid, 1);
//
// and a misspelt table or member name fails to compile. Entry bit n is bit (n mod 32) of word n / 32;
// a field may cross a word boundary.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/tbl_catalogue_data.h"

namespace vq {

struct EntryField {
    uint32_t table;  // catalogue id
    uint16_t startBit;
    uint16_t width;  // 1..32
};

// Catalogue id of a table by name (the reserved tables cannot be named).
consteval uint32_t tableId(std::string_view name) {
    if (name == "Reserved") {
        throw "reserved tables have no name of their own";
    }
    for (uint32_t id = 0; id < VQ6192_TBL_ENTRY_NUM; ++id) {
        if (name == g_astVQ6192TblEntryList[id].pszName) {
            return id;
        }
    }
    throw "no table of this name in the catalogue";
}

consteval EntryField entryField(std::string_view table, std::string_view member) {
    const uint32_t id = tableId(table);
    const VQ6192_TBL_ENTRY_S &e = g_astVQ6192TblEntryList[id];
    for (uint16_t i = 0; i < e.usMemberNum; ++i) {
        if (member == e.pstMember[i].pszName) {
            return {id, e.pstMember[i].usStartBit, e.pstMember[i].usWidth};
        }
    }
    throw "no member of this name in the table";
}

// Bits startBit .. startBit+width-1 of an entry (width 1..32; other widths read 0).
constexpr uint32_t entryBits(const uint32_t *entry, uint32_t startBit, uint32_t width) {
    if (width == 0 || width > 32) {
        return 0;
    }
    const uint32_t word = startBit / 32;
    const uint32_t shift = startBit % 32;
    uint64_t bits = entry[word] >> shift;
    if (shift + width > 32) {
        bits |= static_cast<uint64_t>(entry[word + 1]) << (32 - shift);
    }
    return static_cast<uint32_t>(bits & ((uint64_t{1} << width) - 1));
}

// Sets bits startBit .. startBit+width-1 to value (bits of value beyond the width are dropped).
constexpr void setEntryBits(uint32_t *entry, uint32_t startBit, uint32_t width, uint32_t value) {
    if (width == 0 || width > 32) {
        return;
    }
    const uint32_t word = startBit / 32;
    const uint32_t shift = startBit % 32;
    const uint64_t mask = ((uint64_t{1} << width) - 1) << shift;
    const uint64_t bits = (static_cast<uint64_t>(value) << shift) & mask;
    entry[word] = static_cast<uint32_t>((entry[word] & ~mask) | bits);
    if (shift + width > 32) {
        entry[word + 1] = static_cast<uint32_t>(((entry[word + 1] & ~(mask >> 32)) | (bits >> 32)));
    }
}

constexpr uint32_t getField(const uint32_t *entry, EntryField f) {
    return entryBits(entry, f.startBit, f.width);
}

constexpr void setField(uint32_t *entry, EntryField f, uint32_t value) {
    setEntryBits(entry, f.startBit, f.width, value);
}

}  // namespace vq
