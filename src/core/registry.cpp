// The chip registry: one record per chip id, installation and removal, and the host register
// function tables.
#include "core/status.h"
#include "platform/osal.h"

extern "C" {
VQ6192_API VQ6192_CHIP_RECORD g_vq6192[VQ6192_CHIP_RECORD_NUM];

VQ6192_API VQ6192_WRITE_REG_FN g_p6192WriteRegPtr[VQ6192_CHIP_RECORD_NUM];
VQ6192_API VQ6192_READ_REG_FN g_p6192ReadRegPtr[VQ6192_CHIP_RECORD_NUM];
VQ6192_API VQ6192_WRITE_REG_FIELD_FN g_p6192WriteRegFieldBDirecr[VQ6192_CHIP_RECORD_NUM];
VQ6192_API VQ6192_READ_REG_FIELD_FN g_p6192ReadRegFieldBDirect[VQ6192_CHIP_RECORD_NUM];
}

namespace {

constexpr const char *kPubTag = "vq6192_pub";
constexpr uint32_t kInitialPrintFlag =
    VQ6192_PRINT_PARA_WRONG | VQ6192_PRINT_EXCEPTION1_INFO | VQ6192_PRINT_EXCEPTION2_INFO;

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Install_SDK(const VQ6192_INSTALL_PARA *para) {
    using namespace vq;
    if (para == nullptr) {
        return 0x00010002u;
    }
    const uint32_t chip = para->ulChipId;
    if (!validChip(chip)) {
        return makeStatus(chip, VQ6192_MODULE_BASE, VQ6192_ERR_PARA);
    }
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    // Installing over an installed chip starts from a cleared record: callers uninstall first.
    memset_s(&rec, sizeof rec, 0, sizeof rec);
    rec.ulBaseAddr = para->ulBaseAddr;
    rec.ulIndirectBaseAddr = para->ulIndirectBaseAddr;
    rec.pfnGetArbitrate = para->pfnGetArbitrate;
    rec.pfnGiveArbitrate = para->pfnGiveArbitrate;
    rec.pfnIndirectWrite16 = para->pfnIndirectWrite16;
    rec.pfnIndirectRead16 = para->pfnIndirectRead16;
    rec.ulIndirectHandle = para->ulIndirectHandle;
    rec.pfnCardPresent = para->pfnCardPresent;
    rec.ulAddrMultiple = para->ulAddrMultiple;
    rec.ulRegIndirectFlag = para->ulRegIndirectFlag;
    rec.ulDelayMode = para->ulDelayMode;
    rec.ulSupportProductFlag = para->ulSupportProductFlag;
    for (uint32_t &flag : rec.aulPrintFlag) {
        flag = kInitialPrintFlag;
    }

    if (rec.pSem == nullptr) {
        void *block = _drv_malloc(VQ6192_SEM_BLOCK_SIZE, kPubTag, __LINE__);
        if (block == nullptr) {
            return makeStatus(chip, VQ6192_MODULE_BASE, VQ6192_ERR_NULL);
        }
        memset_s(block, VQ6192_SEM_BLOCK_SIZE, 0, VQ6192_SEM_BLOCK_SIZE);
        if (DrvSemBCreate(block, 1) != 0) {
            _drv_free(block);
            return makeStatus(chip, VQ6192_MODULE_BASE, VQ6192_ERR_NULL);
        }
        rec.pSem = block;
    }
    if (rec.pstDumpCtx == nullptr) {
        // The context holds host pointers, so it is sized for this host rather than as 13 u32 words.
        auto *ctx = static_cast<VQ6192_DUMP_CTX *>(_drv_malloc(sizeof(VQ6192_DUMP_CTX), kPubTag, __LINE__));
        if (ctx == nullptr) {
            DrvSemDelete(rec.pSem);
            _drv_free(rec.pSem);
            rec.pSem = nullptr;
            return makeStatus(chip, VQ6192_MODULE_BASE, VQ6192_ERR_NULL);
        }
        rec.pstDumpCtx = ctx;
    }
    VQ6192_Sdk_Install_Dump(chip, para);
    return 0;
}

VQ6192_API uint32_t VQ6192_UnInstall_SDK(uint32_t chipId) {
    using namespace vq;
    if (!validChip(chipId)) {
        return makeStatus(chipId, VQ6192_MODULE_BASE, VQ6192_ERR_PARA);
    }
    VQ6192_CHIP_RECORD &rec = g_vq6192[chipId];
    rec.pfnGetArbitrate = nullptr;
    rec.pfnGiveArbitrate = nullptr;
    rec.pfnCardPresent = nullptr;
    if (rec.pstDumpCtx != nullptr) {
        if (rec.pstDumpCtx->pucBuf != nullptr) {
            _drv_free(rec.pstDumpCtx->pucBuf);
            rec.pstDumpCtx->pucBuf = nullptr;
        }
        _drv_free(rec.pstDumpCtx);
        rec.pstDumpCtx = nullptr;
    }
    if (rec.pSem != nullptr) {
        DrvSemDelete(rec.pSem);
        _drv_free(rec.pSem);
        rec.pSem = nullptr;
    }
    return 0;
}

// Ids 0..264 reach a slot (264 is the spare record); larger ids are ignored rather than written
// past the tables.
VQ6192_API void VQ6192_Init_ReadWriFun(uint32_t chipId, VQ6192_WRITE_REG_FN writeReg,
                                       VQ6192_READ_REG_FN readReg, VQ6192_WRITE_REG_FIELD_FN writeRegFieldB,
                                       VQ6192_READ_REG_FIELD_FN readRegFieldB) {
    if (!vq::recordIndex(chipId)) {
        return;
    }
    g_p6192WriteRegPtr[chipId] = writeReg;
    g_p6192ReadRegPtr[chipId] = readReg;
    g_p6192WriteRegFieldBDirecr[chipId] = writeRegFieldB;
    g_p6192ReadRegFieldBDirect[chipId] = readRegFieldB;
}

VQ6192_API void VQ6192_Sdk_Install_Dump(uint32_t chipId, const VQ6192_INSTALL_PARA *para) {
    if (!vq::recordIndex(chipId) || para == nullptr) {
        return;
    }
    VQ6192_DUMP_CTX *ctx = g_vq6192[chipId].pstDumpCtx;
    if (ctx == nullptr) {
        return;
    }
    *ctx = VQ6192_DUMP_CTX{};
    ctx->ulRegBase = para->ulBaseAddr;
}

// The flag getters answer 0 for ids past the spare record instead of reading beyond the registry.
VQ6192_API uint32_t VQ6192_GetSupportProductFlag(uint32_t chipId) {
    return vq::recordIndex(chipId) ? g_vq6192[chipId].ulSupportProductFlag : 0;
}

VQ6192_API uint32_t VQ6192_GetRegIndirectFlag(uint32_t chipId) {
    return vq::recordIndex(chipId) ? g_vq6192[chipId].ulRegIndirectFlag : 0;
}

VQ6192_API uint32_t VQ6192_Base_GetChipBaseAddr(uint32_t chipId, uintptr_t *out) {
    if (out == nullptr || !vq::validChip(chipId)) {
        return vq::paraErr(chipId, VQ6192_MODULE_BASE);
    }
    *out = g_vq6192[chipId].ulBaseAddr;
    return 0;
}

}  // extern "C"
