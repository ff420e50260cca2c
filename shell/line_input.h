// Reading command lines: from a terminal with history and completion (libedit, when the shell was
// built with it), or plain lines from a file or a pipe.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "completion.h"

namespace vqshell {

class LineInput {
  public:
    // Completes the text before the cursor.
    using Completer = std::function<Completion(std::string_view line)>;

    // Interactive when `file` is a terminal; `completer` serves Tab.
    LineInput(FILE *file, Completer completer);
    ~LineInput();
    LineInput(const LineInput &) = delete;
    LineInput &operator=(const LineInput &) = delete;

    // False at end of input.
    bool read(std::string *line);
    bool interactive() const { return interactive_; }

    // Whether this shell was built with line editing (history and completion).
    static bool lineEditing();

  private:
    FILE *file_;
    bool interactive_;
};

}  // namespace vqshell
