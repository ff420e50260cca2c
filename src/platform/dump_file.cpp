// The library's own dump file hooks: they forward to the file functions a host installed, and do
// nothing without them.
#include "vq6192/platform.h"

namespace {

VQ6192_PLATFORM_FILE_HOOKS g_fileHooks{};

}  // namespace

extern "C" {

VQ6192_API void VQ6192_Platform_SetFileHooks(const VQ6192_PLATFORM_FILE_HOOKS *hooks) {
    g_fileHooks = hooks != nullptr ? *hooks : VQ6192_PLATFORM_FILE_HOOKS{};
}

VQ6192_API uint32_t vq6192_fileopen_func(const char *name, const char *mode, uintptr_t *handle) {
    return g_fileHooks.pfnOpen != nullptr ? g_fileHooks.pfnOpen(g_fileHooks.ctx, name, mode, handle) : 0;
}

VQ6192_API uint32_t vq6192_filewrite_func(const void *data, uint32_t size, uint32_t count, uintptr_t handle) {
    return g_fileHooks.pfnWrite != nullptr ? g_fileHooks.pfnWrite(g_fileHooks.ctx, data, size, count, handle)
                                           : 0;
}

VQ6192_API uint32_t vq6192_fileclose_func(uintptr_t *handle) {
    return g_fileHooks.pfnClose != nullptr ? g_fileHooks.pfnClose(g_fileHooks.ctx, handle) : 0;
}

}  // extern "C"
