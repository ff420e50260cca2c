// A shell session: the chips it installed (on chip models or on a mapped register window), and the
// execution of command lines against the diagnostic command registry and the shell's own commands.
#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "vq6192/sim.h"
#include "vq6192/vq6192.h"

namespace vqshell {

// A real chip's register window, mapped from a file or device node.
struct MappedWindow {
    std::string path;
    uint64_t offset = 0;
    uint64_t size = 0x200000;  // bytes
    uint32_t addrMultiple = 0;
    uint32_t productFlag = 0;
};

struct SessionOptions {
    uint32_t chips = 1;                // chips 0..chips-1 on chip models
    bool bringUp = true;               // bring each chip on the model up after installing it
    bool progress = false;             // a line per bring-up step (when output is a terminal)
    bool echo = false;                 // print each command before its output
    std::vector<MappedWindow> mapped;  // further chips, numbered after the modelled ones
};

class Session {
  public:
    Session(std::ostream &out, std::ostream &err);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    // Installs the chips; false (with a message on err) when one cannot be installed.
    bool start(const SessionOptions &options);

    // Runs every command of a line; false when any of them failed (parse error, unknown command or a
    // nonzero status).
    bool runLine(std::string_view line);

    // Names of all commands, for completion.
    std::vector<std::string> commandNames() const;

    // The argument names of a command, as its row writes them ("chip", "tableId", "word..."); false
    // for an unknown command.
    bool argumentNames(std::string_view command, std::vector<std::string> *names) const;

    // Chips installed by this shell: ids 0..chipCount()-1.
    uint32_t chipCount() const;

    // The one line a terminal user sees first: the chips, where they are, whether they are brought
    // up, and how to list the commands; it says so when the shell has no line editing.
    std::string banner(bool lineEditing) const;

    bool quitRequested() const { return quit_; }

    vq6192::sim::ChipModel *model(uint32_t chip) const;

    // True when this session brought the chip up (it answers for the banner).
    bool broughtUp(uint32_t chip) const;

  private:
    struct Builtin;
    struct Chip;

    bool runCommand(const std::string &command);
    bool runRegistered(const std::vector<std::string> &words);
    bool runBuiltin(const Builtin &b, const std::vector<std::string> &words);
    void printStatus(uint32_t status);
    void help(const std::vector<std::string> &words);

    // Shell commands; each gets the words after its name.
    bool cmdRegRead(const std::vector<std::string> &args);
    bool cmdRegWrite(const std::vector<std::string> &args);
    bool cmdRegDump(const std::vector<std::string> &args);
    bool cmdTableRead(const std::vector<std::string> &args);
    bool cmdTableWrite(const std::vector<std::string> &args);
    bool cmdTableField(const std::vector<std::string> &args);
    bool cmdTables(const std::vector<std::string> &args);
    bool cmdDump(const std::vector<std::string> &args);  // dump_command.cpp

    // Argument helpers: each reports its own error.
    bool integer(const std::string &word, const char *what, uint32_t *value);
    bool chipArg(const std::string &word, uint32_t *chip);
    bool tableArg(const std::string &word, uint32_t *id);
    // "chip table index": the first three words of the table commands.
    bool entryArgs(const std::vector<std::string> &args, uint32_t *chip, uint32_t *table, uint32_t *index);
    bool readEntry(uint32_t chip, uint32_t table, uint32_t index, uint32_t *entry);
    void printEntry(uint32_t table, const uint32_t *entry);

    static const Builtin kBuiltins[];

    std::ostream &out_;
    std::ostream &err_;
    bool echo_ = false;
    bool quit_ = false;
    std::vector<std::unique_ptr<Chip>> chips_;
};

// Decodes a status code: "status 0x030c0001: chip 3, TABLE, error 1 (parameter error)".
std::string describeStatus(uint32_t status);

}  // namespace vqshell
