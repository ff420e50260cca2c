// The shell's dump command: a default chip dump into a file, with progress on the error stream while
// a long dump runs.
#include <cstdio>
#include <string>

#include "parser.h"
#include "session.h"

namespace vqshell {
namespace {

// Progress is shown from this size on, at every tenth of the expected file.
constexpr uint64_t kProgressFrom = 256 * 1024;

struct DumpProgress {
    std::ostream *err = nullptr;
    std::string path;  // the file written; the dump itself knows only its short name
    uint32_t chip = 0;
    uint64_t expected = 0;
    uint64_t written = 0;
    uint32_t shownTenths = 0;
};

DumpProgress *g_progress = nullptr;

uint32_t openFile(const char *, const char *mode, uintptr_t *handle) {
    std::FILE *f = std::fopen(g_progress->path.c_str(), mode);
    *handle = reinterpret_cast<uintptr_t>(f);
    return f != nullptr ? 0 : 1;
}

uint32_t writeFile(const void *data, uint32_t size, uint32_t count, uintptr_t handle) {
    auto *f = reinterpret_cast<std::FILE *>(handle);
    if (std::fwrite(data, size, count, f) != count) {
        return 1;
    }
    DumpProgress &p = *g_progress;
    p.written += uint64_t{size} * count;
    if (p.expected >= kProgressFrom) {
        const uint32_t tenths = static_cast<uint32_t>(p.written * 10 / p.expected);
        if (tenths > p.shownTenths && tenths < 10) {
            p.shownTenths = tenths;
            *p.err << "dump chip " << p.chip << ": " << tenths * 10 << "% (" << p.written << " of "
                   << p.expected << " bytes)\n";
            p.err->flush();
        }
    }
    return 0;
}

uint32_t closeFile(uintptr_t *handle) {
    return std::fclose(reinterpret_cast<std::FILE *>(*handle)) == 0 ? 0 : 1;
}

// Size of the file a default dump with this filter writes.
uint64_t expectedSize(int32_t filter) {
    auto selected = [filter](uint32_t id) {
        return filter == VQ6192_DUMP_ALL_GROUPS || id == static_cast<uint32_t>(filter);
    };
    uint64_t bytes = VQ6192_DUMP_HEAD_SIZE;
    for (uint32_t i = 0; i < g_VQ6192_ChipDump_DirectReg_Cnt; ++i) {
        const VQ6192_DUMP_REG_BLOCK_S &b = g_VQ6192_ChipDump_DirectReg[i];
        if (!selected(b.ulGroupId)) {
            continue;
        }
        bytes += VQ6192_DUMP_REC_HEAD_SIZE;
        for (uint32_t r = 0; r < b.ucRangeNum; ++r) {
            bytes += VQ6192_DUMP_RANGE_HEAD_SIZE + 2u * (b.astRange[r].usLast - b.astRange[r].usFirst + 1u);
        }
    }
    for (uint32_t i = 0; i < g_VQ6192_ChipDump_InDirectReg_Cnt; ++i) {
        const VQ6192_DUMP_TBL_GROUP_S &g = g_VQ6192_ChipDump_InDirectReg[i];
        if (!selected(g.ulGroupId)) {
            continue;
        }
        bytes += VQ6192_DUMP_REC_HEAD_SIZE;
        for (uint32_t t = 0; t < g.ucTblNum; ++t) {
            const uint32_t width = g.astTbl[t].stTbl.usWidth;
            const uint32_t size = ((width >> 3) + (width & 7) + 3) & ~3u;
            bytes += VQ6192_DUMP_REC_HEAD_SIZE + uint64_t{g.astTbl[t].stTbl.ulDepth} * size;
        }
    }
    return bytes;
}

}  // namespace

bool Session::cmdDump(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    if (!chipArg(args[0], &chip)) {
        return false;
    }
    int32_t filter = VQ6192_DUMP_ALL_GROUPS;
    if (args.size() > 1 && args[1] != "all") {
        uint32_t id = 0;
        if (!integer(args[1], "group", &id)) {
            return false;
        }
        filter = static_cast<int32_t>(id);
    }
    DumpProgress progress;
    progress.err = &err_;
    progress.chip = chip;
    progress.path = args.size() > 2 ? args[2] : "vq6192-chip" + std::to_string(chip) + ".bd";
    progress.expected = expectedSize(filter);
    // The file header holds at most 20 characters of the file name: the last part of the path.
    const size_t slash = progress.path.find_last_of('/');
    std::string shortName = slash == std::string::npos ? progress.path : progress.path.substr(slash + 1);
    shortName = shortName.substr(0, VQ6192_DUMP_FILE_NAME_MAX);
    if (shortName.empty()) {
        err_ << "error: dump: no file name in '" << progress.path << "'\n";
        return false;
    }
    // A chip on the model is read through its indirect path, where the model answers table commands;
    // a mapped register window is the chip itself.
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    const uint32_t indirectFlag = rec.ulRegIndirectFlag;
    if (model(chip) != nullptr) {
        rec.ulRegIndirectFlag = 1;
    }
    g_progress = &progress;
    uint32_t rc = VQ6192_DUMP_RegFileFunc(chip, openFile, writeFile, closeFile);
    if (rc == 0) {
        rc = VQ6192_DUMP_InitializeDump(chip, "VQ6192", rec.ulBaseAddr, g_VQ6192_ChipDump_DirectReg,
                                        g_VQ6192_ChipDump_DirectReg_Cnt, g_VQ6192_ChipDump_InDirectReg,
                                        g_VQ6192_ChipDump_InDirectReg_Cnt, shortName.c_str());
    }
    if (rc == 0) {
        rc = VQ6192_DUMP_Dump(chip, filter);
        VQ6192_DUMP_ChipDumpEnd(chip);
    }
    g_progress = nullptr;
    rec.ulRegIndirectFlag = indirectFlag;
    out_ << "chip " << chip << " dumped to " << progress.path << ": " << progress.written << " bytes\n";
    printStatus(rc);
    return rc == 0;
}

}  // namespace vqshell
