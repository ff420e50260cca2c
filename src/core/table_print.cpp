// Entry printing, and the shell-level table commands built on it.
#include "core/table_print.h"

#include <cstring>

#include "core/entry_field.h"
#include "core/status.h"
#include "platform/osal.h"

namespace vq {
namespace {

constexpr uint32_t kValueColumn = 17;
constexpr uint32_t kFieldColumns = 27;
constexpr uint32_t kLineColumns = 80;
// A member start bit that stands for a variant part chosen by another field; no layout has one.
constexpr uint16_t kVariantMember = 0xFFFF;

}  // namespace

uint32_t tblSprintf(TextBuilder &text, uint32_t value, const char *name, uint32_t startBit, uint32_t width,
                    const char *tail, uint32_t *column) {
    char field[160];
    int n = snprintf_truncated_s(field, sizeof field, "%s(%lu:%lu)", name != nullptr ? name : "",
                                 static_cast<unsigned long>(startBit), static_cast<unsigned long>(width));
    size_t len = n > 0 ? static_cast<size_t>(n) : 0;
    while (len < kValueColumn && len + 1 < sizeof field) {
        field[len++] = ' ';
    }
    n = snprintf_truncated_s(field + len, sizeof field - len, "= 0x%x", value);
    len += n > 0 ? static_cast<size_t>(n) : 0;

    const size_t before = text.length();
    uint32_t col = column != nullptr ? *column : 0;
    if (tail != nullptr) {
        text.add("%s %s\r\n", field, tail);
        col = 0;
    } else {
        if (col > 0 && col + len > kLineColumns) {
            text.add("\r\n");
            col = 0;
        }
        text.add("%s", field);
        col += static_cast<uint32_t>(len);
        const uint32_t pad = (kFieldColumns - col % kFieldColumns) % kFieldColumns;
        text.add("%*s", static_cast<int>(pad), "");
        col += pad;
    }
    if (column != nullptr) {
        *column = col;
    }
    return static_cast<uint32_t>(text.length() - before);
}

uint32_t tblMemberPrintf(TextBuilder &text, const VQ6192_TBL_MEMBER_S *members, uint32_t count,
                         const uint32_t *entry, uint32_t /*depth*/, uint32_t *column) {
    if (members == nullptr || entry == nullptr) {
        return 0;
    }
    const size_t before = text.length();
    for (uint32_t i = 0; i < count; ++i) {
        const VQ6192_TBL_MEMBER_S &m = members[i];
        if (m.usStartBit == kVariantMember) {
            continue;
        }
        tblSprintf(text, entryBits(entry, m.usStartBit, m.usWidth), m.pszName, m.usStartBit, m.usWidth, " ",
                   column);
    }
    return static_cast<uint32_t>(text.length() - before);
}

uint32_t tblEntryPrintf(TextBuilder &text, uint32_t tableId, const uint32_t *entry) {
    if (tableId >= VQ6192_TBL_ENTRY_NUM || entry == nullptr) {
        return 0;
    }
    const VQ6192_TBL_ENTRY_S &e = g_astVQ6192TblEntryList[tableId];
    const size_t before = text.length();
    text.add("\r\nTable name: %s", e.pszName).add("\r\nTable value: \r\n");
    uint32_t column = 0;
    tblMemberPrintf(text, e.pstMember, e.usMemberNum, entry, 0, &column);
    return static_cast<uint32_t>(text.length() - before);
}

}  // namespace vq

extern "C" {

VQ6192_API extern const uint32_t g_VQ192_MAX_Tbl = VQ6192_TBL_ENTRY_NUM;

VQ6192_API uint32_t VQ6192_TBL_Sprintf(uint32_t value, const char *name, uint32_t startBit, uint32_t width,
                                       const char *tail, char *out, uint32_t *column) {
    vq::TextBuilder text(out);
    return vq::tblSprintf(text, value, name, startBit, width, tail, column);
}

VQ6192_API uint32_t VQ6192_TBL_MemberPrintf(const VQ6192_TBL_MEMBER_S *members, uint32_t count,
                                            const uint32_t *entry, uint32_t depth, char *out,
                                            uint32_t *column) {
    vq::TextBuilder text(out);
    return vq::tblMemberPrintf(text, members, count, entry, depth, column);
}

VQ6192_API uint32_t VQ6192_TBL_EntryPrintf(uint32_t tableId, const uint32_t *entry, char *buf) {
    vq::TextBuilder text(buf);
    return vq::tblEntryPrintf(text, tableId, entry);
}

VQ6192_API uint32_t VQ6192_Rt(uint32_t chip, uint32_t tableId, uint32_t index, char *buf) {
    uint32_t entry[2 * VQ6192_TBL_MAX_WORDS] = {};
    const uint32_t status = VQ6192_Read_Table(chip, tableId, index, entry);
    if (status == 0) {
        VQ6192_TBL_EntryPrintf(tableId, entry, buf);
    }
    return status;
}

VQ6192_API uint32_t VQ6192_Wt_Test(uint32_t chip, uint32_t index) {
    constexpr uint32_t kPriTable = vq::tableId("Atmpwe3pritab");
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    uint32_t status = VQ6192_Read_Table(chip, kPriTable, index, entry);
    if (status != 0) {
        return status;
    }
    // Nrtvbrpri 1, Rtvbrpri 2, Cbrpri 3: bits 6..14 of word 0.
    vq::setEntryBits(entry, 6, 9, 0xD1);
    return VQ6192_Write_Table(chip, kPriTable, index, entry);
}

}  // extern "C"
