/* VQ6192 driver SDK: E1/T1 and E3/T3 framers, timeslot switching and PRBS. C-compatible. */
#ifndef VQ6192_FRAMER_H
#define VQ6192_FRAMER_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

VQ6192_EXTERN_C_END

#endif /* VQ6192_FRAMER_H */
