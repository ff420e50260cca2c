/* VQ6192 driver SDK: IMA groups and links, group control, ICP cells and hardware diagnostics. C-compatible.
 */
#ifndef VQ6192_IMA_H
#define VQ6192_IMA_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_IMA_H */
