#include "line_input.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>

#if VQ6192_SHELL_LINE_EDITING
#include <editline/readline.h>
#endif

namespace vqshell {
namespace {

LineInput::Completer g_completer;

#if VQ6192_SHELL_LINE_EDITING
// libedit's completion hook: the array it wants holds the text that replaces the word (the
// candidates' common start), then the candidates, then a null.
char **completeLine(const char * /*text*/, int /*start*/, int end) {
    rl_attempted_completion_over = 1;  // never fall back to file names
    if (!g_completer) {
        return nullptr;
    }
    const Completion c = g_completer(std::string_view(rl_line_buffer, static_cast<size_t>(end)));
    if (c.candidates.empty()) {
        return nullptr;
    }
    auto **matches = static_cast<char **>(std::calloc(c.candidates.size() + 2, sizeof(char *)));
    if (matches == nullptr) {
        return nullptr;
    }
    matches[0] = strdup(commonStart(c.candidates).c_str());
    for (size_t i = 0; i < c.candidates.size(); ++i) {
        matches[i + 1] = strdup(c.candidates[i].c_str());
    }
    return matches;
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

bool LineInput::lineEditing() {
    return VQ6192_SHELL_LINE_EDITING != 0;
}

LineInput::LineInput(FILE *file, Completer completer) : file_(file), interactive_(isatty(fileno(file)) != 0) {
    g_completer = std::move(completer);
#if VQ6192_SHELL_LINE_EDITING
    if (interactive_) {
        // Words end at blanks and at the ';' between commands, as the parser splits them.
        static char breaks[] = " \t;";
        rl_basic_word_break_characters = breaks;
        rl_completer_word_break_characters = breaks;
        rl_attempted_completion_function = completeLine;
        using_history();
    }
#endif
}

LineInput::~LineInput() {
    g_completer = nullptr;
}

bool LineInput::read(std::string *line) {
#if VQ6192_SHELL_LINE_EDITING
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
