// Printing table entries member by member into a bounded text builder.
#pragma once

#include <cstdint>

#include "platform/text_builder.h"
#include "vq6192/table.h"

namespace vq {

// Each returns the number of characters it appended.

// One field: "name(start:width)", blanks up to column 17, "= 0x<value>". With a tail the field ends its
// line (" <tail>\r\n"); without one fields are laid side by side at multiples of 27 columns, a new line
// starting before a field that would pass column 80. *column tracks the output column.
uint32_t tblSprintf(TextBuilder &text, uint32_t value, const char *name, uint32_t startBit, uint32_t width,
                    const char *tail, uint32_t *column);

// Every member of a layout, one line each.
uint32_t tblMemberPrintf(TextBuilder &text, const VQ6192_TBL_MEMBER_S *members, uint32_t count,
                         const uint32_t *entry, uint32_t depth, uint32_t *column);

// "\r\nTable name: <name>", "\r\nTable value: \r\n" and the members of catalogue entry tableId.
uint32_t tblEntryPrintf(TextBuilder &text, uint32_t tableId, const uint32_t *entry);

}  // namespace vq
