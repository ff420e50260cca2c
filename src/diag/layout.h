// The output layouts that recur in the diagnostic commands. Every piece goes through the bounded text
// builder, so a report longer than the 48128-byte buffer is cut, never overrun, and a null buffer
// swallows everything.
//
//   framed value   separator, "        <title>\n", separator, one line per field, separator
//   field table    "        <title>\n", one line per field, "     PRINT_END\n"
//   set result     "        <name>() is OK|FAIL\n"
//
// A field line is printed with a printf format taking the label, then the value twice (hex and
// decimal), as the commands' own formats do (" %s    :    0x%x(%u)\n", "    | %-26s: 0x%-8x(%-10d)  \n").
#pragma once

#include <cstdint>
#include <initializer_list>

#include "platform/text_builder.h"

namespace vq::diag {

// Separator of the chip, SDH and framer commands (it begins with the letter n) and of the MAC commands.
inline constexpr char kSep[] = "n-------------------------------------------------\n";
inline constexpr char kMacSep[] = "\n-------------------------------------------------\n";
inline constexpr char kPrintEnd[] = "     PRINT_END\n";
// The usual value line of a framed report.
inline constexpr char kValueLine[] = " %s    :    0x%x(%u)\n";

struct Field {
    const char *label;
    uint32_t value;
};

// One field line: `format` gets the label, then the value twice.
void fieldLine(TextBuilder &text, const char *format, const Field &field);

// Separator, title line, separator: the head of a framed report. Value lines and a closing separator
// follow (or use framed() for the whole report).
void framedHead(TextBuilder &text, const char *sep, const char *title);
void framed(TextBuilder &text, const char *sep, const char *title, std::initializer_list<Field> fields,
            const char *format = kValueLine);

void fieldTable(TextBuilder &text, const char *title, std::initializer_list<Field> fields,
                const char *format);

void setResult(TextBuilder &text, const char *name, uint32_t status);

// The same reports written into a command's own buffer; without a buffer nothing is written.
void framed(char *buf, const char *sep, const char *title, std::initializer_list<Field> fields,
            const char *format = kValueLine);
void fieldTable(char *buf, const char *title, std::initializer_list<Field> fields, const char *format);

}  // namespace vq::diag
