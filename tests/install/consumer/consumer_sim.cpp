#include <vq6192/sim.h>
#include <vq6192/vq6192.h>

int main() {
    vq6192::sim::ChipModel model;
    model.attach(1);
    VQ6192_INSTALL_PARA para = model.installPara(1);
    if (VQ6192_Install_SDK(&para) != 0)
        return 1;
    VQ6192_WriteReg(1, 0x20, 0x55);
    bool ok = model.peek(0x20) == 0x55;
    return VQ6192_UnInstall_SDK(1) == 0 && ok ? 0 : 1;
}
