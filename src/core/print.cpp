// The trace point and the per-module print flags.
#include <cstdarg>

#include "core/status.h"
#include "platform/osal.h"
#include "platform/text_builder.h"

extern "C" VQ6192_API const char *const g_pszModule[VQ6192_MODULE_NUM] = {
    "OFF",     "BASE",      "ATM",      "CES",     "PPP",     "ETH",     "MAC", "TS",
    "SDH",     "SAM",       "INT",      "DUMP",    "TABLE",   "REG",     "IMA", "FRM",
    "QOS_ASI", "MLPPP_ASI", "CPOS_ASI", "CES_ASI", "ATM_ASI", "IMA_ASI", "END",
};

namespace vq {

uint32_t paraErr(uint32_t chip, uint32_t module) {
    VQ6192_Printf(chip, module, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
    return makeStatus(chip, module, VQ6192_ERR_PARA);
}

}  // namespace vq

extern "C" {

// Without a host trace sink the trace point has no effect. With one, a line passes when the chip's
// print flag for the module has the level's bit.
VQ6192_API void VQ6192_Printf(uint32_t chipId, uint32_t moduleId, uint32_t level, const char *format, ...) {
    if (!vq::traceSinkInstalled() || !vq::recordIndex(chipId) || moduleId >= VQ6192_MODULE_NUM ||
        format == nullptr) {
        return;
    }
    if ((g_vq6192[chipId].aulPrintFlag[moduleId] & level) == 0) {
        return;
    }
    char line[512];
    va_list ap;
    va_start(ap, format);
    int n = vq::vsnprintf_truncated_s(line, sizeof line, format, ap);
    va_end(ap);
    if (n >= 0) {
        vq::traceLine(chipId, moduleId, level, line);
    }
}

// Ids up to the spare record (264) are shown; larger ids are refused with the parameter error.
VQ6192_API uint32_t VQ6192_Show_Printf_Flag(uint32_t chipId, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    if (!vq::recordIndex(chipId)) {
        return vq::paraErr(chipId, VQ6192_MODULE_BASE);
    }
    vq::TextBuilder text(buf);
    text.add("---------------ModuleID------------------------------\n");
    for (uint32_t i = 0; i < VQ6192_MODULE_NUM; ++i) {
        text.add("%lu :   %s   FLAG is  %lu\n", static_cast<unsigned long>(i), g_pszModule[i],
                 static_cast<unsigned long>(g_vq6192[chipId].aulPrintFlag[i]));
    }
    text.add("---------------FLAG MASK------------------------------\n")
        .add("0 : PRINT OFF\n")
        .add("1 : PRINT_NORMAL\n")
        .add("2 : PRINT_PARA_WRONG\n")
        .add("4 : PRINT_EXCEPTION1_INFO\n")
        .add("8 : PRINT_EXCEPTION2_INFO\n")
        .add("15 : ALL_PRINT\n");
    return 0;
}

VQ6192_API void VQ6192_Set_Printf_Flag(uint32_t chipId, uint32_t moduleId, uint32_t flag) {
    if (moduleId > VQ6192_MODULE_END) {
        vq::PIC_DbgLog(256, "\r\nVQ6192_Set_Printf_Flag ModuleID is wrong! %d\r\n",
                       static_cast<int>(moduleId));
        return;
    }
    if (!vq::validChip(chipId)) {
        vq::PIC_DbgLog(256, "\r\nVQ6192_Set_Printf_Flag VQ6192_CHIP_NUM is wrong! %d\r\n",
                       static_cast<int>(chipId));
        return;
    }
    uint32_t *flags = g_vq6192[chipId].aulPrintFlag;
    if (moduleId == VQ6192_MODULE_END) {
        for (uint32_t i = 0; i < VQ6192_MODULE_NUM; ++i) {
            flags[i] = flag;
        }
    } else {
        flags[moduleId] = flag;
    }
}

// The success line does not look at the setter's outcome; a module id past the name table is shown
// as "UNKNOWN".
VQ6192_API uint32_t VQ6192_Set_Diag_Printf_Flag(uint32_t chipId, uint32_t moduleId, uint32_t flag,
                                                char *buf) {
    VQ6192_Set_Printf_Flag(chipId, moduleId, flag);
    if (buf == nullptr) {
        return 1;
    }
    const char *name = moduleId < VQ6192_MODULE_NUM ? g_pszModule[moduleId] : "UNKNOWN";
    vq::TextBuilder text(buf);
    text.add("Diag set module %s flag %lu success\n", name, static_cast<unsigned long>(flag));
    return text.failed() ? 7 : 0;
}

}  // extern "C"
