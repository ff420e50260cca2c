// vq6192-shell: the debug shell. Starts with chip 0 installed on the chip model and runs diagnostic
// commands by name, interactively, from -c, from a script file or from a pipe.
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "completion.h"
#include "line_input.h"
#include "parser.h"
#include "session.h"

namespace {

void usage(FILE *to) {
    std::fputs(
        "usage: vq6192-shell [options] [script]\n"
        "  -c 'cmd; cmd'        run these commands and exit\n"
        "  --chips N            install chips 0..N-1 on chip models (default 1)\n"
        "  --map PATH[@OFFSET]  also drive a real chip: its register window mapped from a file or device\n"
        "                       node at OFFSET (memory-mapped path); the chip takes the next id\n"
        "  --map-size BYTES     size of the window to map (default 0x200000)\n"
        "  --addr-multiple N    register address multiplier of the mapped window (default 1)\n"
        "  --product            each register takes 4 bytes of the mapped window\n"
        "  --no-bringup         install chips without bringing them up\n"
        "  --echo               print each command before its output\n"
        "  -h, --help           this text\n"
        "Without -c or a script, commands are read from the terminal (or a pipe). Type 'help'.\n",
        to);
}

bool number(const char *text, uint64_t *value) {
    uint32_t v = 0;
    if (!vqshell::parseU32(text, &v)) {
        return false;
    }
    *value = v;
    return true;
}

}  // namespace

int main(int argc, char **argv) {
    vqshell::SessionOptions options;
    std::string commands;
    bool haveCommands = false;
    const char *script = nullptr;
    vqshell::MappedWindow window;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        auto value = [&](const char *what) -> const char * {
            if (i + 1 >= argc) {
                std::fprintf(stderr, "vq6192-shell: %s needs %s\n", arg.c_str(), what);
                std::exit(2);
            }
            return argv[++i];
        };
        auto numeric = [&](const char *what) -> uint64_t {
            const char *text = value(what);
            uint64_t v = 0;
            if (!number(text, &v)) {
                std::fprintf(stderr, "vq6192-shell: %s: '%s' is not a number\n", arg.c_str(), text);
                std::exit(2);
            }
            return v;
        };
        if (arg == "-c") {
            commands = value("commands");
            haveCommands = true;
        } else if (arg == "--chips") {
            options.chips = static_cast<uint32_t>(numeric("a count"));
        } else if (arg == "--map") {
            std::string target = value("a path");
            const size_t at = target.rfind('@');
            uint64_t offset = 0;
            if (at != std::string::npos) {
                if (!number(target.c_str() + at + 1, &offset)) {
                    std::fprintf(stderr, "vq6192-shell: --map: bad offset in '%s'\n", target.c_str());
                    return 2;
                }
                target.resize(at);
            }
            vqshell::MappedWindow w = window;
            w.path = target;
            w.offset = offset;
            options.mapped.push_back(w);
        } else if (arg == "--map-size" || arg == "--addr-multiple" || arg == "--product") {
            const uint64_t v = arg == "--product" ? 1 : numeric("a number");
            for (auto *w : {&window}) {
                if (arg == "--map-size") {
                    w->size = v;
                } else if (arg == "--addr-multiple") {
                    w->addrMultiple = static_cast<uint32_t>(v);
                } else {
                    w->productFlag = 1;
                }
            }
            for (auto &w : options.mapped) {  // settings apply to windows given before them too
                w.size = window.size;
                w.addrMultiple = window.addrMultiple;
                w.productFlag = window.productFlag;
            }
        } else if (arg == "--no-bringup") {
            options.bringUp = false;
        } else if (arg == "--echo") {
            options.echo = true;
        } else if (arg == "-h" || arg == "--help") {
            usage(stdout);
            return 0;
        } else if (!arg.empty() && arg[0] == '-') {
            std::fprintf(stderr, "vq6192-shell: unknown option %s\n", arg.c_str());
            usage(stderr);
            return 2;
        } else if (script == nullptr) {
            script = argv[i];
        } else {
            usage(stderr);
            return 2;
        }
    }

    options.progress = isatty(STDOUT_FILENO) != 0;
    vqshell::Session session(std::cout, std::cerr);
    if (!session.start(options)) {
        return 2;
    }
    if (haveCommands) {
        return session.runLine(commands) ? 0 : 1;
    }
    FILE *input = stdin;
    if (script != nullptr) {
        input = std::fopen(script, "r");
        if (input == nullptr) {
            std::fprintf(stderr, "vq6192-shell: cannot open %s: %s\n", script, std::strerror(errno));
            return 2;
        }
    }
    bool ok = true;
    {
        vqshell::LineInput in(input,
                              [&session](std::string_view line) { return vqshell::complete(session, line); });
        if (in.interactive()) {
            std::cout << session.banner(vqshell::LineInput::lineEditing()) << std::endl;
        }
        std::string line;
        while (!session.quitRequested() && in.read(&line)) {
            const bool lineOk = session.runLine(line);
            // Interactive mistakes do not end the session; scripts report them in the exit status.
            ok = (lineOk || in.interactive()) && ok;
        }
    }
    if (input != stdin) {
        std::fclose(input);
    }
    return ok ? 0 : 1;
}
