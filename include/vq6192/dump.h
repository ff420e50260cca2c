/* VQ6192 driver SDK: chip dump for fault analysis. C-compatible. */
#ifndef VQ6192_DUMP_H
#define VQ6192_DUMP_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_DUMP_H */
