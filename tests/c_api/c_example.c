/* A C11 host: installs a chip over a plain array standing for its memory-mapped registers, writes and
 * reads registers through the driver, and uninstalls. Proves that the public headers are C. */
#include <stdio.h>
#include <string.h>

#include "vq6192/vq6192.h"

static uint16_t g_regs[0x1000];

int main(void) {
    VQ6192_INSTALL_PARA para;
    memset(&para, 0, sizeof para);
    para.ulChipId = 0;
    para.ulBaseAddr = (uintptr_t)g_regs;

    uint32_t rc = VQ6192_Install_SDK(&para);
    if (rc != 0) {
        fprintf(stderr, "install failed: 0x%08x\n", (unsigned)rc);
        return 1;
    }
    VQ6192_WriteReg(0, 0x10, 0xBEEF);
    uint32_t value = VQ6192_ReadReg(0, 0x10);
    uint16_t field = 0;
    rc = VQ6192_Base_ReadReg(0, 0x8, 4, 8, &field);
    printf("register 0x10 = 0x%04x, field 4..11 = 0x%02x\n", (unsigned)value, (unsigned)field);
    int ok = value == 0xBEEF && g_regs[8] == 0xBEEF && rc == 0 && field == 0xEE;
    if (VQ6192_UnInstall_SDK(0) != 0) {
        ok = 0;
    }
    return ok ? 0 : 1;
}
