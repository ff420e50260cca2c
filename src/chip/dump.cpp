// The chip dump: register blocks and table groups read without the chip lock, collected in a
// 4096-byte buffer and written big-endian through the host's three file hooks.
#include <cstring>
#include <initializer_list>

#include "chip/dump_lists.h"
#include "core/reg_field.h"
#include "core/status.h"
#include "platform/osal.h"
#include "vq6192/dump.h"

namespace vq::dump {
namespace {

constexpr uint32_t kModule = VQ6192_MODULE_DUMP;
constexpr const char *kDumpTag = "vq6192_dump";
constexpr uint32_t kBufLine = 636;
constexpr uint32_t kBusyReads = 100;
constexpr uint32_t kErrFile = 7;  // a name too long, or a file hook that failed
constexpr uint32_t kNone = VQ6192_TBL_NO_VALUE;
constexpr size_t kBlockNameBytes = 17;  // block and group names in their headers
constexpr size_t kTableNameBytes = 18;  // table names in their headers
constexpr const char *kDefaultChipName = "VQ6192";
constexpr const char *kDefaultOutFile = "ofs1/fpga/DrvDump.bd";

// Words of the dump's entry buffer: the widest default entry needs 16. Entries of a host's own list
// that are wider are read up to this size and padded with zero bytes in the file.
constexpr uint32_t kEntryWords = 64;

uint32_t status(uint32_t chip, uint32_t err) {
    return makeStatus(chip, kModule, err);
}

VQ6192_DUMP_CTX *context(uint32_t chip) {
    return validChip(chip) ? g_vq6192[chip].pstDumpCtx : nullptr;
}

// Length of a name, looking no further than one character past its limit.
size_t boundedLen(const char *s, size_t limit) {
    return s == nullptr ? 0 : strnlen(s, limit + 1);
}

const char *shown(const char *s) {
    return s != nullptr ? s : "(null)";
}

bool fieldArgsOk(uint32_t startBit, uint32_t width) {
    return startBit <= 15 && width >= 1 && width <= 16 && startBit + width <= 16;
}

uint16_t fieldOf(uint16_t reg, uint32_t startBit, uint32_t width) {
    return static_cast<uint16_t>((reg >> startBit) & (0xFFFFu >> (16 - width)));
}

void put16(uint8_t *p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v >> 8);
    p[1] = static_cast<uint8_t>(v);
}

void put32(uint8_t *p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v >> 24);
    p[1] = static_cast<uint8_t>(v >> 16);
    p[2] = static_cast<uint8_t>(v >> 8);
    p[3] = static_cast<uint8_t>(v);
}

// A name copied into a zero-padded header field of `size` bytes.
void putName(uint8_t *p, const char *name, size_t size) {
    const size_t n = boundedLen(name, size);
    std::memcpy(p, name == nullptr ? "" : name, n < size ? n : size);
}

// Header of a register block (marker 0xF0) or a table group (0xF1).
void recordHead(uint8_t (&head)[VQ6192_DUMP_REC_HEAD_SIZE], uint8_t mark, const char *name, uint32_t id,
                uint8_t count, uint8_t kind) {
    std::memset(head, 0, sizeof head);
    head[0] = mark;
    putName(head + 1, name, kBlockNameBytes);
    put32(head + 18, id);
    head[22] = count;
    head[23] = kind;
}

bool selected(uint32_t groupId, int32_t filter) {
    return filter == VQ6192_DUMP_ALL_GROUPS || groupId == static_cast<uint32_t>(filter);
}

// Entry size in the file: (width >> 3) + (width AND 7) bytes, rounded up to whole words. The odd
// bits count as bytes, so a 69-bit entry takes 16 bytes.
uint32_t entrySize(uint32_t width) {
    const uint32_t m = (width >> 3) + (width & 7);
    return (m + 3) & ~3u;
}

uint32_t busyWait(uint32_t chip, const VQ6192_TBL_FIELD_S &busy) {
    for (uint32_t i = 0; i < kBusyReads; ++i) {
        uint16_t v = 0;
        const uint32_t rc = VQ6192_DUMP_ReadReg(chip, busy.ulRegNo, busy.usStartBit, busy.usWidth, &v);
        if (rc != 0) {
            return rc;
        }
        if (v == 0) {
            return 0;
        }
    }
    return status(chip, VQ6192_ERR_TIMEOUT);
}

uint32_t writeValue(uint32_t chip, const VQ6192_TBL_FIELD_S &f, uint32_t value) {
    return VQ6192_DUMP_WriteReg(chip, f.ulRegNo, f.usStartBit, f.usWidth, value);
}

uint32_t writeCommand(uint32_t chip, const VQ6192_TBL_FIELD_S &cmd) {
    uint32_t rc = 0;
    if (cmd.usValue1 < kNone) {
        rc |= writeValue(chip, cmd, cmd.usValue1);
    }
    if (cmd.usValue2 < kNone) {
        rc |= writeValue(chip, cmd, cmd.usValue2);
    }
    return rc;
}

const VQ6192_DUMP_TBL_GROUP_S *groups(const VQ6192_DUMP_CTX &ctx) {
    return static_cast<const VQ6192_DUMP_TBL_GROUP_S *>(ctx.pstTblList);
}

const VQ6192_DUMP_REG_BLOCK_S *blocks(const VQ6192_DUMP_CTX &ctx) {
    return static_cast<const VQ6192_DUMP_REG_BLOCK_S *>(ctx.pstRegList);
}

uint32_t tableCount(const VQ6192_DUMP_TBL_GROUP_S &g) {
    return g.ucTblNum < VQ6192_DUMP_GROUP_TBL_MAX ? g.ucTblNum : VQ6192_DUMP_GROUP_TBL_MAX;
}

uint32_t rangeCount(const VQ6192_DUMP_REG_BLOCK_S &b) {
    return b.ucRangeNum < VQ6192_DUMP_RANGE_MAX ? b.ucRangeNum : VQ6192_DUMP_RANGE_MAX;
}

uint32_t dumpBlock(uint32_t chip, const VQ6192_DUMP_REG_BLOCK_S &b) {
    const uint32_t ranges = rangeCount(b);
    uint8_t head[VQ6192_DUMP_REC_HEAD_SIZE];
    // A list with more than eight ranges is dumped with the eight the record holds, and says so.
    recordHead(head, VQ6192_DUMP_MARK_BLOCK, b.pszName, b.ulGroupId, static_cast<uint8_t>(ranges), b.ucKind);
    uint32_t rc = VQ6192_DUMP_WriteBuffer(chip, head, sizeof head);
    if (b.ucKind != VQ6192_DUMP_KIND_RANGES) {
        return rc;
    }
    for (uint32_t r = 0; r < ranges; ++r) {
        const VQ6192_DUMP_REG_RANGE_S &range = b.astRange[r];
        uint8_t rangeHead[VQ6192_DUMP_RANGE_HEAD_SIZE];
        put16(rangeHead, range.usBase);
        put16(rangeHead + 2, range.usFirst);
        put16(rangeHead + 4, range.usLast);
        rc |= VQ6192_DUMP_WriteBuffer(chip, rangeHead, sizeof rangeHead);
        for (uint32_t off = range.usFirst; off <= range.usLast; ++off) {
            uint8_t value[2];
            put16(value, VQ6192_DUMP_ReadDumpReg(chip, uint32_t{range.usBase} + off));
            rc |= VQ6192_DUMP_WriteBuffer(chip, value, sizeof value);
        }
    }
    return rc;
}

uint32_t dumpTable(uint32_t chip, uint32_t group, uint32_t table, const VQ6192_DUMP_TBL_S &t) {
    const uint32_t size = entrySize(t.stTbl.usWidth);
    uint8_t head[VQ6192_DUMP_REC_HEAD_SIZE] = {};
    putName(head, t.pszName, kTableNameBytes);
    put32(head + 18, t.stTbl.ulDepth);
    put16(head + 22, size);
    uint32_t rc = VQ6192_DUMP_WriteBuffer(chip, head, sizeof head);

    // An entry whose read fails is written as the buffer stands: the previous entry of the same table,
    // or zeros for the first.
    uint32_t entry[kEntryWords] = {};
    uint8_t bytes[kEntryWords * 4];
    // A host's table with more data registers than the buffer holds is not read: its entries are
    // written as zeros and the dump reports the parameter error.
    const bool fits = t.stTbl.usData16 <= 2 * kEntryWords;
    if (!fits) {
        rc |= paraErr(chip, kModule);
    }
    for (uint32_t e = 0; e < t.stTbl.ulDepth; ++e) {
        if (fits) {
            rc |= VQ6192_DUMP_ReadDumpTbl(chip, group, table, e, entry);
        }
        uint32_t left = size;
        uint32_t n = 0;
        for (uint32_t w = 0; w < kEntryWords && left > 0; ++w, left -= 4) {
            put32(bytes + 4 * w, entry[w]);
            n += 4;
        }
        rc |= VQ6192_DUMP_WriteBuffer(chip, bytes, n);
        static constexpr uint8_t kZeros[kEntryWords * 4] = {};
        while (left > 0) {
            const uint32_t chunk = left < sizeof kZeros ? left : sizeof kZeros;
            rc |= VQ6192_DUMP_WriteBuffer(chip, kZeros, chunk);
            left -= chunk;
        }
    }
    return rc;
}

uint32_t dumpGroup(uint32_t chip, uint32_t index, const VQ6192_DUMP_TBL_GROUP_S &g) {
    const uint32_t tables = tableCount(g);
    uint8_t head[VQ6192_DUMP_REC_HEAD_SIZE];
    recordHead(head, VQ6192_DUMP_MARK_GROUP, g.pszName, g.ulGroupId, static_cast<uint8_t>(tables), g.ucKind);
    uint32_t rc = VQ6192_DUMP_WriteBuffer(chip, head, sizeof head);
    if (g.ucKind != VQ6192_DUMP_KIND_RANGES) {
        return rc;
    }
    for (uint32_t t = 0; t < tables; ++t) {
        rc |= dumpTable(chip, index, t, g.astTbl[t]);
    }
    return rc;
}

uint16_t rawRead(uintptr_t addr) {
    return *reinterpret_cast<const volatile uint16_t *>(addr);
}

void rawWrite(uintptr_t addr, uint16_t value) {
    *reinterpret_cast<volatile uint16_t *>(addr) = value;
}

}  // namespace
}  // namespace vq::dump

using vq::dump::context;
using vq::dump::kErrFile;
using vq::dump::status;

extern "C" {

// ---- Set-up -----------------------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_DUMP_RegFileFunc(uint32_t chip, VQ6192_DUMP_OPEN_FN pfnOpen,
                                            VQ6192_DUMP_WRITE_FN pfnWrite, VQ6192_DUMP_CLOSE_FN pfnClose) {
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (pfnOpen == nullptr || pfnWrite == nullptr || pfnClose == nullptr || ctx == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    ctx->pfnOpen = pfnOpen;
    ctx->pfnWrite = pfnWrite;
    ctx->pfnClose = pfnClose;
    return 0;
}

VQ6192_API uint32_t VQ6192_DUMP_InitializeDump(uint32_t chip, const char *chipName, uintptr_t baseAddr,
                                               const VQ6192_DUMP_REG_BLOCK_S *regList, uint32_t regCount,
                                               const VQ6192_DUMP_TBL_GROUP_S *tblList, uint32_t tblCount,
                                               const char *outFile) {
    using namespace vq::dump;
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (regList == nullptr || tblList == nullptr || chipName == nullptr || outFile == nullptr ||
        ctx == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    ctx->ulRegBase = baseAddr;
    ctx->pstRegList = regList;
    ctx->ulRegListNum = regCount;
    ctx->pstTblList = tblList;
    ctx->ulTblListNum = tblCount;

    const size_t chipLen = boundedLen(chipName, VQ6192_DUMP_CHIP_NAME_MAX);
    if (chipLen == 0 || chipLen > VQ6192_DUMP_CHIP_NAME_MAX) {
        VQ6192_Printf(chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_DUMP_InitializeDump.  Dump Chip Name len of Name[%s] too long or NULL\r\n",
                      chipName);
        return status(chip, kErrFile);
    }
    const size_t fileLen = boundedLen(outFile, VQ6192_DUMP_FILE_NAME_MAX);
    if (fileLen == 0 || fileLen > VQ6192_DUMP_FILE_NAME_MAX) {
        VQ6192_Printf(
            chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_DUMP_InitializeDump.  Dump OutFile Name len of Name[%s] too long or NULL\r\n",
            outFile);
        return status(chip, kErrFile);
    }
    for (uint32_t i = 0; i < regCount; ++i) {
        const size_t len = boundedLen(regList[i].pszName, VQ6192_DUMP_BLOCK_NAME_MAX);
        if (len == 0 || len > VQ6192_DUMP_BLOCK_NAME_MAX) {
            VQ6192_Printf(
                chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                "Err. VQ6192_DUMP_InitializeDump.  Reg MDL[%#x] len of Name[%s] too long or NULL.\r\n",
                regList[i].ulGroupId, shown(regList[i].pszName));
            return status(chip, kErrFile);
        }
    }
    return VQ6192_DUMP_Initialize(chip, chipName, outFile);
}

VQ6192_API uint32_t VQ6192_DUMP_Initialize(uint32_t chip, const char *chipName, const char *outFile) {
    using namespace vq::dump;
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || chipName == nullptr || outFile == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    if (ctx->pfnOpen == nullptr || ctx->pfnWrite == nullptr || ctx->pfnClose == nullptr) {
        VQ6192_Printf(chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_DUMP_Initialize(%u)     FileFuncPtr is NULL!  \r\n", chip);
        return status(chip, VQ6192_ERR_NULL);
    }
    ctx->pszFileName = outFile;
    ctx->pszChipName = chipName;
    if (ctx->pucBuf == nullptr) {
        // The buffer lives until the chip is uninstalled.
        ctx->pucBuf = static_cast<uint8_t *>(vq::_drv_malloc(VQ6192_DUMP_BUF_SIZE, kDumpTag, kBufLine));
        if (ctx->pucBuf == nullptr) {
            return status(chip, VQ6192_ERR_NULL);
        }
    }
    vq::memset_s(ctx->pucBuf, VQ6192_DUMP_BUF_SIZE, 0, VQ6192_DUMP_BUF_SIZE);
    ctx->ulBufLen = 0;
    ctx->ulHeadWritten = 0;
    return 0;
}

VQ6192_API void VQ6192_DUMP_ChipDumpEnd(uint32_t chip) {
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr) {
        vq::paraErr(chip, VQ6192_MODULE_DUMP);
        return;
    }
    ctx->ulHeadWritten = 0;
}

// ---- Buffering and file output ---------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_DUMP_WriteBuffer(uint32_t chip, const void *data, uint32_t length) {
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (data == nullptr || length == 0 || ctx == nullptr || ctx->pucBuf == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    const auto *src = static_cast<const uint8_t *>(data);
    uint32_t rc = 0;
    while (length > 0) {
        const uint32_t room = VQ6192_DUMP_BUF_SIZE - ctx->ulBufLen;
        const uint32_t n = length < room ? length : room;
        if (vq::memcpy_s(ctx->pucBuf + ctx->ulBufLen, room, src, n) != 0) {
            return 0x0B0007u;
        }
        ctx->ulBufLen += n;
        src += n;
        length -= n;
        if (ctx->ulBufLen == VQ6192_DUMP_BUF_SIZE) {
            rc = VQ6192_DUMP_WriteFile(chip);
            // A flush that failed drops the full buffer, so that the dump goes on with what follows.
            ctx->ulBufLen = 0;
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_DUMP_WriteFileHead(uint32_t chip) {
    using namespace vq::dump;
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || ctx->pszFileName == nullptr || ctx->pfnOpen == nullptr ||
        ctx->pfnWrite == nullptr || ctx->pfnClose == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    if (ctx->ulHeadWritten != 0) {
        return 0;
    }
    uintptr_t handle = 0;
    if (ctx->pfnOpen(ctx->pszFileName, "wb", &handle) != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_DUMP_WriteFileHead.     Open File[%s] Err.\r\n", ctx->pszFileName);
        return status(chip, kErrFile);
    }
    if (handle == 0) {
        return 0;
    }
    uint8_t head[VQ6192_DUMP_HEAD_SIZE] = {};
    head[0] = VQ6192_DUMP_MARK_HEAD;
    // "DUMP", the file name and the chip name run together; the names fit (4 + 20 + 21 < 47 bytes).
    size_t at = 1;
    for (const char *part : {"DUMP", ctx->pszFileName, ctx->pszChipName}) {
        const size_t room = sizeof head - at;
        size_t n = boundedLen(part, room);
        n = n < room ? n : room;
        if (n > 0) {
            std::memcpy(head + at, part, n);
        }
        at += n;
    }
    // A header that cannot be written leaves the flag clear, so the next flush tries again.
    if (ctx->pfnWrite(head, 1, sizeof head, handle) != 0) {
        ctx->pfnClose(&handle);
        return status(chip, kErrFile);
    }
    // The header is out once written; a close that complains changes nothing for the flushes.
    ctx->pfnClose(&handle);
    ctx->ulHeadWritten = 1;
    return 0;
}

VQ6192_API uint32_t VQ6192_DUMP_WriteFile(uint32_t chip) {
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || ctx->pszFileName == nullptr || ctx->pucBuf == nullptr || ctx->pfnOpen == nullptr ||
        ctx->pfnWrite == nullptr || ctx->pfnClose == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    const uint32_t head = VQ6192_DUMP_WriteFileHead(chip);
    if (head != 0) {
        return head;
    }
    uintptr_t handle = 0;
    if (ctx->pfnOpen(ctx->pszFileName, "ab+", &handle) != 0 || handle == 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_DUMP_WriteFile.     open file Fail!! m_pcSaveFile is \"%s\" \r\n",
                      ctx->pszFileName);
        return status(chip, VQ6192_ERR_NULL);
    }
    if (ctx->pfnWrite(ctx->pucBuf, 1, ctx->ulBufLen, handle) != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_DUMP_WriteFile.     Write file[%s] Err \r\n", ctx->pszFileName);
        ctx->pfnClose(&handle);
        return status(chip, kErrFile);
    }
    vq::memset_s(ctx->pucBuf, VQ6192_DUMP_BUF_SIZE, 0, ctx->ulBufLen);
    ctx->ulBufLen = 0;
    if (ctx->pfnClose(&handle) != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_DUMP, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_DUMP_WriteFile.     Close file[%s] Err \r\n", ctx->pszFileName);
        return status(chip, VQ6192_ERR_NULL);
    }
    return 0;
}

// ---- The dump ---------------------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_DUMP_DumpReg(uint32_t chip, int32_t groupFilter) {
    using namespace vq::dump;
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || ctx->pstRegList == nullptr || ctx->ulRegListNum == 0) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    uint32_t rc = 0;
    for (uint32_t i = 0; i < ctx->ulRegListNum; ++i) {
        const VQ6192_DUMP_REG_BLOCK_S &b = blocks(*ctx)[i];
        if (selected(b.ulGroupId, groupFilter)) {
            rc |= dumpBlock(chip, b);
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_DUMP_DumpTbl(uint32_t chip, int32_t groupFilter) {
    using namespace vq::dump;
    VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || ctx->pstTblList == nullptr || ctx->ulTblListNum == 0) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    uint32_t rc = 0;
    for (uint32_t i = 0; i < ctx->ulTblListNum; ++i) {
        const VQ6192_DUMP_TBL_GROUP_S &g = groups(*ctx)[i];
        if (selected(g.ulGroupId, groupFilter)) {
            rc |= dumpGroup(chip, i, g);
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_DUMP_Dump(uint32_t chip, int32_t groupFilter) {
    const uint32_t rc = VQ6192_DUMP_DumpReg(chip, groupFilter);
    if (rc != 0) {
        return rc;
    }
    // The tables, then the final flush: two statements, as `|` leaves the order of its calls open.
    const uint32_t tables = VQ6192_DUMP_DumpTbl(chip, groupFilter);
    return tables | VQ6192_DUMP_WriteFile(chip);
}

VQ6192_API uint32_t VQ6192_DUMP_F(uint32_t chip, int32_t groupFilter) {
    using namespace vq::dump;
    uint32_t rc =
        VQ6192_DUMP_RegFileFunc(chip, vq6192_fileopen_func, vq6192_filewrite_func, vq6192_fileclose_func);
    if (rc != 0) {
        return rc;
    }
    rc = VQ6192_DUMP_InitializeDump(chip, kDefaultChipName, g_vq6192[chip].ulBaseAddr,
                                    g_VQ6192_ChipDump_DirectReg, g_VQ6192_ChipDump_DirectReg_Cnt,
                                    g_VQ6192_ChipDump_InDirectReg, g_VQ6192_ChipDump_InDirectReg_Cnt,
                                    kDefaultOutFile);
    if (rc != 0) {
        return rc;
    }
    rc = VQ6192_DUMP_Dump(chip, groupFilter);
    VQ6192_DUMP_ChipDumpEnd(chip);
    return rc;
}

// ---- The dump's register access --------------------------------------------------------------------

VQ6192_API uint16_t VQ6192_DUMP_ReadDumpRegDirect(uint32_t chip, uint32_t regNo) {
    const VQ6192_DUMP_CTX *ctx = context(chip);
    // Without a register window (base 0) there is nothing to read: 0, rather than the host's address 0.
    if (ctx == nullptr || ctx->ulRegBase == 0) {
        return 0;
    }
    return vq::dump::rawRead(ctx->ulRegBase + uintptr_t{2} * regNo);
}

VQ6192_API uint16_t VQ6192_DUMP_ReadDumpRegIndirect(uint32_t chip, uint32_t regNo) {
    const VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr) {
        return 0;
    }
    uint16_t value = 0;
    VQ6192_Indirect_ReadReg16(chip, ctx->ulRegBase + uintptr_t{2} * regNo, &value);
    return value;
}

VQ6192_API uint16_t VQ6192_DUMP_ReadDumpReg(uint32_t chip, uint32_t regNo) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    return g_vq6192[chip].ulRegIndirectFlag != 0 ? VQ6192_DUMP_ReadDumpRegIndirect(chip, regNo)
                                                 : VQ6192_DUMP_ReadDumpRegDirect(chip, regNo);
}

VQ6192_API uint32_t VQ6192_DUMP_ReadRegDirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                              uint32_t width, uint16_t *out) {
    if (out == nullptr || context(chip) == nullptr || !vq::dump::fieldArgsOk(startBit, width)) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    *out = vq::dump::fieldOf(VQ6192_DUMP_ReadDumpRegDirect(chip, regNo), startBit, width);
    return 0;
}

VQ6192_API uint32_t VQ6192_DUMP_ReadRegIndirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                                uint32_t width, uint16_t *out) {
    if (out == nullptr || context(chip) == nullptr || !vq::dump::fieldArgsOk(startBit, width)) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    *out = vq::dump::fieldOf(VQ6192_DUMP_ReadDumpRegIndirect(chip, regNo), startBit, width);
    return 0;
}

VQ6192_API uint32_t VQ6192_DUMP_ReadReg(uint32_t chip, uint32_t regNo, uint32_t startBit, uint32_t width,
                                        uint16_t *out) {
    if (!vq::validChip(chip)) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    return g_vq6192[chip].ulRegIndirectFlag != 0
               ? VQ6192_DUMP_ReadRegIndirect(chip, regNo, startBit, width, out)
               : VQ6192_DUMP_ReadRegDirect(chip, regNo, startBit, width, out);
}

VQ6192_API uint32_t VQ6192_DUMP_WriteRegDirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                               uint32_t width, uint32_t value) {
    const VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || !vq::dump::fieldArgsOk(startBit, width)) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    if (ctx->ulRegBase == 0) {
        return 0;
    }
    const uintptr_t addr = ctx->ulRegBase + uintptr_t{2} * regNo;
    vq::dump::rawWrite(
        addr, static_cast<uint16_t>(vq::fieldMerge(vq::dump::rawRead(addr), value, startBit, width)));
    return 0;
}

VQ6192_API uint32_t VQ6192_DUMP_WriteRegIndirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                                 uint32_t width, uint32_t value) {
    const VQ6192_DUMP_CTX *ctx = context(chip);
    if (ctx == nullptr || !vq::dump::fieldArgsOk(startBit, width)) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    const uintptr_t addr = ctx->ulRegBase + uintptr_t{2} * regNo;
    uint16_t old = 0;
    VQ6192_Indirect_ReadReg16(chip, addr, &old);
    VQ6192_Indirect_WriteReg16(chip, addr,
                               static_cast<uint16_t>(vq::fieldMerge(old, value, startBit, width)));
    return 0;
}

VQ6192_API uint32_t VQ6192_DUMP_WriteReg(uint32_t chip, uint32_t regNo, uint32_t startBit, uint32_t width,
                                         uint32_t value) {
    if (!vq::validChip(chip)) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    return g_vq6192[chip].ulRegIndirectFlag != 0
               ? VQ6192_DUMP_WriteRegIndirect(chip, regNo, startBit, width, value)
               : VQ6192_DUMP_WriteRegDirect(chip, regNo, startBit, width, value);
}

// ---- The dump's table reader ----------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_DUMP_ReadDumpTbl(uint32_t chip, uint32_t groupIndex, uint32_t tableIndex,
                                            uint32_t entryIndex, uint32_t *entry) {
    using namespace vq::dump;
    const VQ6192_DUMP_CTX *ctx = context(chip);
    if (entry == nullptr || ctx == nullptr || ctx->pstTblList == nullptr || groupIndex >= ctx->ulTblListNum ||
        tableIndex >= tableCount(groups(*ctx)[groupIndex])) {
        return vq::paraErr(chip, VQ6192_MODULE_DUMP);
    }
    const VQ6192_CHIP_TABLE_INFO_S &t = groups(*ctx)[groupIndex].astTbl[tableIndex].stTbl;
    uint32_t rc = busyWait(chip, t.stBusy);
    if (rc != 0) {
        return rc;
    }
    if (t.stSelect.usValue1 < kNone) {
        rc |= writeValue(chip, t.stSelect, t.stSelect.usValue1);
    }
    rc |= writeValue(chip, t.stAddress,
                     t.stAddress.usValue1 == kNone ? (entryIndex & 0xFFFFu) : t.stAddress.usValue1);
    rc |= writeCommand(chip, t.stReadCmd);
    const uint32_t done = busyWait(chip, t.stBusy);
    if (done != 0) {
        return rc | done;
    }
    // The caller's buffer holds ceil(data16 / 2) words; the dump's own holds kEntryWords.
    for (uint32_t k = 0; k < t.usData16; ++k) {
        uint16_t half = 0;
        rc |= VQ6192_DUMP_ReadReg(chip, t.stReadData.ulRegNo + k, t.stReadData.usStartBit,
                                  t.stReadData.usWidth, &half);
        uint32_t &word = entry[k / 2];
        word = (k % 2 == 0) ? ((word & 0xFFFF0000u) | half) : ((word & 0x0000FFFFu) | (uint32_t{half} << 16));
    }
    if (t.stReadCmd.usValue1 < kNone) {
        rc |= writeValue(chip, t.stReadCmd, t.stReadCmd.usValue1);
    }
    return rc;
}

}  // extern "C"
