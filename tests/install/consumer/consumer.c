#include <vq6192/vq6192.h>

int main(void) {
    VQ6192_INSTALL_PARA para = {0};
    static uint16_t regs[64];
    para.ulBaseAddr = (uintptr_t)regs;
    if (VQ6192_Install_SDK(&para) != 0)
        return 1;
    VQ6192_WriteReg(0, 4, 0x1234);
    int ok = regs[2] == 0x1234;
    return VQ6192_UnInstall_SDK(0) == 0 && ok ? 0 : 1;
}
