#include "platform/text_builder.h"

#include <cstdarg>

#include "platform/osal.h"

namespace vq {

TextBuilder::TextBuilder(char *buf, size_t capacity) : buf_(buf), cap_(buf != nullptr ? capacity : 0) {
    if (buf_ != nullptr && cap_ > 0) {
        buf_[0] = '\0';
    }
}

TextBuilder &TextBuilder::add(const char *format, ...) {
    if (buf_ == nullptr || len_ >= cap_) {
        return *this;
    }
    va_list ap;
    va_start(ap, format);
    int n = vsnprintf_truncated_s(buf_ + len_, cap_ - len_, format, ap);
    va_end(ap);
    if (n < 0) {
        failed_ = true;
    } else {
        len_ += static_cast<size_t>(n);
    }
    return *this;
}

}  // namespace vq
