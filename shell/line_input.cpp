#include "line_input.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>

#ifdef VQ6192_HAVE_LIBEDIT
#include <editline/readline.h>
#endif

namespace vqshell {
namespace {

std::vector<std::string> g_names;

#ifdef VQ6192_HAVE_LIBEDIT
char *nextName(const char *text, int state) {
    static size_t next = 0;
    if (state == 0) {
        next = 0;
    }
    const size_t len = std::strlen(text);
    while (next < g_names.size()) {
        const std::string &name = g_names[next++];
        if (name.compare(0, len, text) == 0) {
            return strdup(name.c_str());
        }
    }
    return nullptr;
}

char **completeCommand(const char *text, int start, int /*end*/) {
    // Only the first word of a command is a command name.
    if (start != 0) {
        return nullptr;
    }
    return rl_completion_matches(text, nextName);
}
#endif

bool readPlain(FILE *file, std::string *line) {
    line->clear();
    int c;
    while ((c = std::fgetc(file)) != EOF) {
        if (c == '\n') {
            return true;
        }
        line->push_back(static_cast<char>(c));
    }
    return !line->empty();
}

}  // namespace

LineInput::LineInput(FILE *file, std::vector<std::string> names)
    : file_(file), interactive_(isatty(fileno(file)) != 0) {
    g_names = std::move(names);
#ifdef VQ6192_HAVE_LIBEDIT
    if (interactive_) {
        rl_attempted_completion_function = completeCommand;
        using_history();
    }
#endif
}

LineInput::~LineInput() = default;

bool LineInput::read(std::string *line) {
#ifdef VQ6192_HAVE_LIBEDIT
    if (interactive_) {
        char *text = readline("vq6192> ");
        if (text == nullptr) {
            return false;
        }
        *line = text;
        if (*text != '\0') {
            add_history(text);
        }
        std::free(text);
        return true;
    }
#endif
    if (interactive_) {
        std::fputs("vq6192> ", stdout);
        std::fflush(stdout);
    }
    return readPlain(file_, line);
}

}  // namespace vqshell
