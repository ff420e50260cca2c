// In-memory files behind the chip dump's three file hooks, with the failures a host's file system can
// produce. One MemFiles at a time is current; its hooks can be handed to VQ6192_DUMP_RegFileFunc or,
// through platformHooks(), behind the library's own hooks.
#pragma once

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "vq6192/platform.h"

namespace vqtest {

class MemFiles {
  public:
    MemFiles() { current() = this; }
    ~MemFiles() { current() = nullptr; }
    MemFiles(const MemFiles &) = delete;
    MemFiles &operator=(const MemFiles &) = delete;

    std::map<std::string, std::vector<uint8_t>> files;
    std::vector<std::string> calls;  // "open NAME MODE", "write SIZE COUNT", "close"

    // Failures: opens with this mode fail ("" none) or open nothing, leaving the handle as the caller set
    // it (0 from the library); write number n (0-based, -1 none) fails; closes fail (the file is closed
    // all the same).
    std::string failOpenMode;
    std::string zeroHandleMode;
    int failWriteAt = -1;
    bool failClose = false;

    // Back to no files, no calls and no failures.
    void reset() {
        files.clear();
        calls.clear();
        failOpenMode.clear();
        zeroHandleMode.clear();
        failWriteAt = -1;
        failClose = false;
        writes_ = 0;
    }

    size_t openHandles() const { return handles_.size(); }
    const std::vector<uint8_t> &file(const std::string &name) { return files[name]; }

    static uint32_t open(const char *name, const char *mode, uintptr_t *handle) {
        MemFiles &f = *current();
        f.calls.push_back("open " + std::string(name) + " " + mode);
        if (mode == f.failOpenMode) {
            return 1;
        }
        if (mode == f.zeroHandleMode) {
            return 0;  // opens nothing and leaves the caller's handle as it was
        }
        if (std::strcmp(mode, "wb") == 0) {
            f.files[name].clear();
        } else {
            f.files[name];
        }
        *handle = f.next_++;
        f.handles_[*handle] = name;
        return 0;
    }

    static uint32_t write(const void *data, uint32_t size, uint32_t count, uintptr_t handle) {
        MemFiles &f = *current();
        f.calls.push_back("write " + std::to_string(size) + " " + std::to_string(count));
        if (f.writes_++ == f.failWriteAt) {
            return 1;
        }
        auto it = f.handles_.find(handle);
        if (it == f.handles_.end()) {
            return 1;
        }
        const auto *p = static_cast<const uint8_t *>(data);
        std::vector<uint8_t> &file = f.files[it->second];
        file.insert(file.end(), p, p + size_t{size} * count);
        return 0;
    }

    static uint32_t close(uintptr_t *handle) {
        MemFiles &f = *current();
        f.calls.push_back("close");
        f.handles_.erase(*handle);
        return f.failClose ? 1 : 0;
    }

    static VQ6192_PLATFORM_FILE_HOOKS platformHooks() {
        VQ6192_PLATFORM_FILE_HOOKS h{};
        h.pfnOpen = [](void *, const char *name, const char *mode, uintptr_t *handle) {
            return open(name, mode, handle);
        };
        h.pfnWrite = [](void *, const void *data, uint32_t size, uint32_t count, uintptr_t handle) {
            return write(data, size, count, handle);
        };
        h.pfnClose = [](void *, uintptr_t *handle) { return close(handle); };
        return h;
    }

  private:
    static MemFiles *&current() {
        static MemFiles *c = nullptr;
        return c;
    }
    std::map<uintptr_t, std::string> handles_;
    uintptr_t next_ = 1;
    int writes_ = 0;
};

}  // namespace vqtest
