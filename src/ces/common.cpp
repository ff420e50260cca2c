// Table access and step tracing shared by the CES operations.
#include <cstdarg>
#include <cstdio>

#include "ces/ces_internal.h"
#include "vq6192/table.h"

namespace vq::ces {

uint32_t readEntry(uint32_t chip, uint32_t table, uint32_t index, Entry &e) {
    e = {};
    return VQ6192_Read_Table(chip, table, index, e.w);
}

uint32_t writeEntry(uint32_t chip, uint32_t table, uint32_t index, const Entry &e) {
    return VQ6192_Write_Table(chip, table, index, e.w);
}

uint32_t stepFailed(uint32_t chip, const char *op, uint32_t err, uint32_t rc, const char *calleeFormat, ...) {
    char callee[160];
    va_list ap;
    va_start(ap, calleeFormat);
    vsnprintf(callee, sizeof callee, calleeFormat, ap);
    va_end(ap);
    VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO, "Err. %s.%s       ErrCode[%#x]\r\n",
                  op, callee, rc);
    return status(chip, err);
}

uint32_t clearLrm(uint32_t chip, uint32_t ch) {
    const uint16_t none[3] = {0, 0, 0};
    return VQ6192_CES_SetCesTxLRMAlm(chip, ch, none);
}

void setFlag(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t value) {
    VQ6192_WriteRegField(chip, reg, value, bit, 1);
}

}  // namespace vq::ces
