// Memory: every block carries a small header naming its source tag, so that allocations can be
// accounted per tag whatever allocator the host installed.
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "platform/osal.h"
#include "platform/settings.h"

namespace vq::platform {
namespace {

constexpr size_t kMaxTags = 64;
constexpr uint32_t kMagic = 0x56513631u;  // "VQ61"

struct TagStats {
    char tag[32] = {};
    VQ6192_MEM_STATS stats{};
};

struct alignas(16) BlockHeader {
    size_t size;
    uint32_t tagIndex;
    uint32_t magic;
};

std::mutex g_memLock;
TagStats g_tags[kMaxTags];
size_t g_tagCount = 0;
TagStats g_untagged{};  // when all kMaxTags slots are taken

// Caller holds g_memLock. Tags are compared by text (the same literal may live at several addresses)
// and copied, cut to 31 characters.
TagStats &statsFor(const char *tag, uint32_t *index) {
    const char *name = tag != nullptr ? tag : "?";
    for (size_t i = 0; i < g_tagCount; ++i) {
        if (std::strncmp(g_tags[i].tag, name, sizeof g_tags[i].tag - 1) == 0) {
            *index = static_cast<uint32_t>(i);
            return g_tags[i];
        }
    }
    if (g_tagCount < kMaxTags) {
        std::strncpy(g_tags[g_tagCount].tag, name, sizeof g_tags[g_tagCount].tag - 1);
        *index = static_cast<uint32_t>(g_tagCount);
        return g_tags[g_tagCount++];
    }
    *index = UINT32_MAX;
    return g_untagged;
}

TagStats &statsAt(uint32_t index) {
    return index < g_tagCount ? g_tags[index] : g_untagged;
}

}  // namespace
}  // namespace vq::platform

namespace vq {

void *_drv_malloc(size_t size, const char *sourceTag, uint32_t /*line*/) {
    using namespace platform;
    std::lock_guard<std::mutex> guard(g_memLock);
    uint32_t index = 0;
    TagStats &ts = statsFor(sourceTag, &index);
    void *raw = nullptr;
    if (!g_failAllocs.fire() && size <= SIZE_MAX - sizeof(BlockHeader)) {
        const auto &h = hooks();
        size_t total = size + sizeof(BlockHeader);
        raw = h.pfnMalloc != nullptr ? h.pfnMalloc(h.ctx, total) : std::malloc(total);
    }
    if (raw == nullptr) {
        ts.stats.ullFailed++;
        return nullptr;
    }
    auto *hdr = static_cast<BlockHeader *>(raw);
    hdr->size = size;
    hdr->tagIndex = index;
    hdr->magic = kMagic;
    ts.stats.ullAllocs++;
    ts.stats.ullOutstanding++;
    ts.stats.ullBytesInUse += size;
    return hdr + 1;
}

void _drv_free(void *p) {
    using namespace platform;
    if (p == nullptr) {
        return;
    }
    std::lock_guard<std::mutex> guard(g_memLock);
    auto *hdr = static_cast<BlockHeader *>(p) - 1;
    if (hdr->magic != kMagic) {
        PIC_DbgLog(2, "drv_free: block %p was not allocated by _drv_malloc", p);
        return;
    }
    hdr->magic = 0;
    TagStats &ts = statsAt(hdr->tagIndex);
    ts.stats.ullFrees++;
    ts.stats.ullOutstanding--;
    ts.stats.ullBytesInUse -= hdr->size;
    const auto &h = hooks();
    if (h.pfnFree != nullptr) {
        h.pfnFree(h.ctx, hdr);
    } else {
        std::free(hdr);
    }
}

}  // namespace vq

extern "C" VQ6192_API void VQ6192_Platform_GetMemStats(const char *tag, VQ6192_MEM_STATS *out) {
    using namespace vq::platform;
    if (out == nullptr) {
        return;
    }
    std::lock_guard<std::mutex> guard(g_memLock);
    *out = VQ6192_MEM_STATS{};
    auto add = [out](const VQ6192_MEM_STATS &s) {
        out->ullAllocs += s.ullAllocs;
        out->ullFrees += s.ullFrees;
        out->ullFailed += s.ullFailed;
        out->ullOutstanding += s.ullOutstanding;
        out->ullBytesInUse += s.ullBytesInUse;
    };
    for (size_t i = 0; i < g_tagCount; ++i) {
        if (tag == nullptr || std::strncmp(g_tags[i].tag, tag, sizeof g_tags[i].tag - 1) == 0) {
            add(g_tags[i].stats);
        }
    }
    if (tag == nullptr) {
        add(g_untagged.stats);
    }
}
