/* VQ6192 driver SDK: umbrella header. C-compatible. */
#ifndef VQ6192_VQ6192_H
#define VQ6192_VQ6192_H

#include "vq6192/atm.h"
#include "vq6192/ces.h"
#include "vq6192/chip.h"
#include "vq6192/core.h"
#include "vq6192/dump.h"
#include "vq6192/eth.h"
#include "vq6192/framer.h"
#include "vq6192/ima.h"
#include "vq6192/platform.h"
#include "vq6192/ppp.h"
#include "vq6192/sdh.h"
#include "vq6192/table.h"
#include "vq6192/types.h"

#endif /* VQ6192_VQ6192_H */
