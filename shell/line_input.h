// Reading command lines: from a terminal with history and command-name completion (libedit, when the
// shell was built with it), or plain lines from a file or a pipe.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace vqshell {

class LineInput {
  public:
    // Interactive when `file` is a terminal; `names` feeds completion.
    LineInput(FILE *file, std::vector<std::string> names);
    ~LineInput();
    LineInput(const LineInput &) = delete;
    LineInput &operator=(const LineInput &) = delete;

    // False at end of input.
    bool read(std::string *line);
    bool interactive() const { return interactive_; }

  private:
    FILE *file_;
    bool interactive_;
};

}  // namespace vqshell
