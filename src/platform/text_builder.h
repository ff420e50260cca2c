// A bounded text builder over a caller's diagnostic buffer: every piece is appended with
// snprintf_truncated_s into the room that is left, so output that does not fit is cut off and the
// buffer is never overrun. A null buffer swallows everything.
#pragma once

#include <cstddef>

#include "vq6192/types.h"

namespace vq {

class TextBuilder {
  public:
    explicit TextBuilder(char *buf, size_t capacity = VQ6192_DIAG_BUF_SIZE);

    TextBuilder &add(const char *format, ...) __attribute__((format(printf, 2, 3)));

    size_t length() const { return len_; }
    bool hasBuffer() const { return buf_ != nullptr; }
    // True once any piece failed to format (not for plain truncation).
    bool failed() const { return failed_; }

  private:
    char *buf_;
    size_t cap_;
    size_t len_ = 0;
    bool failed_ = false;
};

}  // namespace vq
