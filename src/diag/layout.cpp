// The recurring output layouts of the diagnostic commands.
#include "diag/layout.h"

namespace vq::diag {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
void fieldLine(TextBuilder &text, const char *format, const Field &field) {
    text.add(format, field.label, field.value, field.value);
}
#pragma GCC diagnostic pop

void framedHead(TextBuilder &text, const char *sep, const char *title) {
    text.add("%s        %s\n%s", sep, title, sep);
}

void framed(TextBuilder &text, const char *sep, const char *title, std::initializer_list<Field> fields,
            const char *format) {
    framedHead(text, sep, title);
    for (const Field &f : fields) {
        fieldLine(text, format, f);
    }
    text.add("%s", sep);
}

void fieldTable(TextBuilder &text, const char *title, std::initializer_list<Field> fields,
                const char *format) {
    text.add("        %s\n", title);
    for (const Field &f : fields) {
        fieldLine(text, format, f);
    }
    text.add("%s", kPrintEnd);
}

void setResult(TextBuilder &text, const char *name, uint32_t status) {
    text.add("        %s() is %s\n", name, status == 0 ? "OK" : "FAIL");
}

void framed(char *buf, const char *sep, const char *title, std::initializer_list<Field> fields,
            const char *format) {
    TextBuilder text(buf);
    framed(text, sep, title, fields, format);
}

void fieldTable(char *buf, const char *title, std::initializer_list<Field> fields, const char *format) {
    TextBuilder text(buf);
    fieldTable(text, title, fields, format);
}

}  // namespace vq::diag
