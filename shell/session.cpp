#include "session.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <map>

#include "arguments.h"
#include "chip/bringup.h"
#include "core/entry_field.h"
#include "core/table_print.h"
#include "diag/registry.h"
#include "parser.h"

namespace vqshell {
namespace {

constexpr size_t kGuard = 64;
constexpr char kGuardByte = '\x5A';
constexpr uint32_t kMaxDumpRegs = 4096;

struct BringUp {
    uint32_t status;  // nonzero: the chip did not come up
    bool broughtUp;   // what the banner reports
};

// Chip bring-up, the one place that decides it: a full bring-up (E1, no DDR test) step by step, with a
// progress line per step when asked. Only chips on the model are brought up: a mapped chip may be
// carrying traffic already. The model has no real time, so the waits run on the virtual clock.
BringUp bringUpChip(uint32_t chip, bool onModel, bool progress, std::ostream &out) {
    if (!onModel) {
        return {0, false};
    }
    const vq::chip::BringUpRun run{chip, VQ6192_BASE_INIT_FULL, VQ6192_BASE_TDM_E1, 0, 0, nullptr};
    const uint32_t virtualClock = VQ6192_Platform_GetVirtualClock();
    VQ6192_Platform_SetVirtualClock(1);
    uint32_t rc = 0;
    for (const auto &step : vq::chip::bringUpSteps()) {
        if (!vq::chip::stepRuns(step, run)) {
            continue;
        }
        rc = step.run(run);
        if (progress) {
            char line[80];
            std::snprintf(line, sizeof line, "chip %u bring-up: %-16s %s\n", chip, step.name,
                          rc == 0 ? "ok" : "FAILED");
            out << line << std::flush;
        }
        if (rc != 0) {
            break;
        }
    }
    VQ6192_Platform_SetVirtualClock(virtualClock);
    return {rc, rc == 0};
}

// "0", "0..3"
std::string idRange(uint32_t first, uint32_t count) {
    return count == 1 ? std::to_string(first)
                      : std::to_string(first) + ".." + std::to_string(first + count - 1);
}

const char *errorMeaning(uint32_t module, uint32_t error) {
    if (module == 0) {
        return error == VQ6192_ERR_LOCK ? "lock failure" : nullptr;
    }
    switch (error) {
        case VQ6192_ERR_PARA:
            return "parameter error";
        case VQ6192_ERR_NULL:
            return "null pointer or resource not obtained";
        case VQ6192_ERR_TIMEOUT:
            return "time-out";
        case VQ6192_ERR_LOCK:
            return "lock failure";
        default:
            return nullptr;
    }
}

// "tableId (table name or id)", "index (integer)": an argument's name and what to give for it.
std::string argumentHelp(const std::string &name, const char *plainKind,
                         vq::diag::ArgKind kind = vq::diag::ArgKind::U32) {
    const ArgRole role = argRole(name);
    // An integer argument with a role is described by it (chip id, table or module name or id).
    const char *kindText =
        role != ArgRole::Plain && kind == vq::diag::ArgKind::U32 ? argRoleKind(role) : plainKind;
    return name + " (" + kindText + ")";
}

std::vector<std::string> argNames(const char *args) {
    std::vector<std::string> names;
    std::string unused;
    splitWords(args, &names, &unused);
    return names;
}

const char *statusModuleName(uint32_t module) {
    if (module == VQ6192_ERR_MODULE_IMA) {
        return "IMA";
    }
    if (module == VQ6192_ERR_MODULE_FRAMER) {
        return "FRM";
    }
    return module < VQ6192_MODULE_NUM ? g_pszModule[module] : "?";
}

}  // namespace

std::string describeStatus(uint32_t status) {
    char text[160];
    const uint32_t module = VQ6192_STATUS_MODULE(status);
    const uint32_t error = VQ6192_STATUS_ERROR(status);
    const char *meaning = errorMeaning(module, error);
    if (status == 0x00010007u) {
        meaning = "arbitration refused";
    }
    std::snprintf(text, sizeof text, "status 0x%08x: chip %u, %s, error %u%s%s%s", status,
                  VQ6192_STATUS_CHIP(status), statusModuleName(module), error, meaning != nullptr ? " (" : "",
                  meaning != nullptr ? meaning : "", meaning != nullptr ? ")" : "");
    return text;
}

struct Session::Chip {
    uint32_t id = 0;
    std::unique_ptr<vq6192::sim::ChipModel> model;
    std::string windowPath;  // mapped window's file or device node; empty on the model
    bool broughtUp = false;
    void *window = nullptr;
    size_t windowSize = 0;
    int fd = -1;
};

struct Session::Builtin {
    const char *name;
    const char *args;
    const char *help;
    size_t minArgs;
    size_t maxArgs;
    bool (Session::*run)(const std::vector<std::string> &args);
    const char *plainKind = "integer";  // what help calls the arguments that have no role
};

const Session::Builtin Session::kBuiltins[] = {
    {"rr", "chip addr", "read a register (byte address)", 2, 2, &Session::cmdRegRead},
    {"rw", "chip addr value", "write a register", 3, 3, &Session::cmdRegWrite},
    {"rd", "chip addr count", "dump count registers from addr, eight a line", 3, 3, &Session::cmdRegDump},
    {"tr", "chip table index", "read a table entry (table by id or name) and print it", 3, 3,
     &Session::cmdTableRead},
    {"tw", "chip table index word...", "write a table entry from its 32-bit words, lowest first", 4,
     3 + VQ6192_TBL_MAX_WORDS, &Session::cmdTableWrite},
    {"tf", "chip table index member value", "set one member of a table entry", 5, 5, &Session::cmdTableField},
    {"tables", "[filter]", "list the table catalogue (names containing filter)", 0, 1, &Session::cmdTables,
     "text"},
    {"dump", "chip [group|all] [file]", "default chip dump into a file (vq6192-chipN.bd), with progress", 1,
     3, &Session::cmdDump},
};

Session::Session(std::ostream &out, std::ostream &err) : out_(out), err_(err) {}

Session::~Session() {
    for (auto &chip : chips_) {
        VQ6192_UnInstall_SDK(chip->id);
        if (chip->window != nullptr) {
            munmap(chip->window, chip->windowSize);
        }
        if (chip->fd >= 0) {
            close(chip->fd);
        }
    }
}

bool Session::start(const SessionOptions &options) {
    echo_ = options.echo;
    const uint32_t total = options.chips + static_cast<uint32_t>(options.mapped.size());
    if (total == 0 || total > VQ6192_CHIP_NUM) {
        err_ << "error: between 1 and " << VQ6192_CHIP_NUM << " chips\n";
        return false;
    }
    for (uint32_t id = 0; id < total; ++id) {
        auto chip = std::make_unique<Chip>();
        chip->id = id;
        VQ6192_INSTALL_PARA para{};
        if (id < options.chips) {
            chip->model = std::make_unique<vq6192::sim::ChipModel>();
            chip->model->attach(id);
            para = chip->model->installPara(id);
        } else {
            const MappedWindow &w = options.mapped[id - options.chips];
            chip->fd = open(w.path.c_str(), O_RDWR | O_SYNC);
            if (chip->fd < 0) {
                err_ << "error: cannot open " << w.path << ": " << std::strerror(errno) << "\n";
                return false;
            }
            chip->windowSize = w.size;
            chip->window = mmap(nullptr, w.size, PROT_READ | PROT_WRITE, MAP_SHARED, chip->fd,
                                static_cast<off_t>(w.offset));
            if (chip->window == MAP_FAILED) {
                chip->window = nullptr;
                err_ << "error: cannot map " << w.path << ": " << std::strerror(errno) << "\n";
                return false;
            }
            para.ulChipId = id;
            para.ulBaseAddr = reinterpret_cast<uintptr_t>(chip->window);
            para.ulAddrMultiple = w.addrMultiple;
            para.ulSupportProductFlag = w.productFlag;
            chip->windowPath = w.path;
        }
        const uint32_t rc = VQ6192_Install_SDK(&para);
        if (rc != 0) {
            err_ << "error: installing chip " << id << ": " << describeStatus(rc) << "\n";
            return false;
        }
        Chip &installed = *chips_.emplace_back(std::move(chip));
        if (options.bringUp) {
            const BringUp b = bringUpChip(id, installed.model != nullptr, options.progress, out_);
            if (b.status != 0) {
                err_ << "error: chip " << id << " did not come up: " << describeStatus(b.status) << "\n";
                return false;
            }
            installed.broughtUp = b.broughtUp;
        }
    }
    return true;
}

bool Session::broughtUp(uint32_t chip) const {
    return chip < chips_.size() && chips_[chip]->broughtUp;
}

vq6192::sim::ChipModel *Session::model(uint32_t chip) const {
    return chip < chips_.size() ? chips_[chip]->model.get() : nullptr;
}

uint32_t Session::chipCount() const {
    return static_cast<uint32_t>(chips_.size());
}

std::string Session::banner(bool lineEditing) const {
    std::string text = "vq6192-shell: ";
    uint32_t modelled = 0;
    while (modelled < chips_.size() && chips_[modelled]->model != nullptr) {
        ++modelled;
    }
    if (modelled > 0) {
        text += (modelled == 1 ? "chip " : "chips ") + idRange(0, modelled) + " on the chip model";
    }
    for (uint32_t id = modelled; id < chips_.size(); ++id) {
        text += (id > 0 ? ", chip " : "chip ") + std::to_string(id) + " on the mapped window " +
                chips_[id]->windowPath;
    }
    const auto up = static_cast<size_t>(
        std::count_if(chips_.begin(), chips_.end(), [](const auto &c) { return c->broughtUp; }));
    if (up == chips_.size()) {
        text += ", brought up";
    } else if (up == 0) {
        text += ", not brought up";
    } else {
        text += ", " + std::to_string(up) + " of " + std::to_string(chips_.size()) + " brought up";
    }
    text += "; help lists the commands";
    if (!lineEditing) {
        text += " (no line editing: built without libedit)";
    }
    return text;
}

bool Session::argumentNames(std::string_view command, std::vector<std::string> *names) const {
    names->clear();
    if (command == "quit" || command == "exit") {
        return true;
    }
    if (command == "help") {
        names->push_back("command...");
        return true;
    }
    for (const Builtin &b : kBuiltins) {
        if (command == b.name) {
            *names = argNames(b.args);
            return true;
        }
    }
    if (const vq::diag::Command *cmd = vq::diag::findCommand(command)) {
        *names = argNames(cmd->args);
        return true;
    }
    return false;
}

std::vector<std::string> Session::commandNames() const {
    std::vector<std::string> names = {"help", "quit", "exit"};
    for (const Builtin &b : kBuiltins) {
        names.push_back(b.name);
    }
    for (const auto &c : vq::diag::commands()) {
        names.push_back(c.name);
    }
    return names;
}

bool Session::runLine(std::string_view line) {
    bool ok = true;
    for (const std::string &command : splitCommands(line)) {
        if (quit_) {
            break;
        }
        if (echo_) {
            out_ << "vq6192> " << command << "\n";
        }
        ok = runCommand(command) && ok;
    }
    out_.flush();
    return ok;
}

bool Session::runCommand(const std::string &command) {
    std::vector<std::string> words;
    std::string error;
    if (!splitWords(command, &words, &error)) {
        err_ << "error: " << error << "\n";
        return false;
    }
    if (words.empty()) {
        return true;
    }
    const std::string &name = words[0];
    if (name == "quit" || name == "exit") {
        quit_ = true;
        return true;
    }
    if (name == "help") {
        help(words);
        return true;
    }
    for (const Builtin &b : kBuiltins) {
        if (name == b.name) {
            return runBuiltin(b, words);
        }
    }
    if (vq::diag::findCommand(name) != nullptr) {
        return runRegistered(words);
    }
    err_ << "error: unknown command '" << name << "' (help lists the commands)\n";
    return false;
}

bool Session::runRegistered(const std::vector<std::string> &words) {
    using vq::diag::ArgKind;
    const vq::diag::Command &cmd = *vq::diag::findCommand(words[0]);
    const size_t given = words.size() - 1;
    if (given != cmd.argc) {
        err_ << "error: " << cmd.name;
        if (cmd.argc == 0) {
            err_ << " takes no arguments\n";
        } else {
            err_ << " takes " << static_cast<unsigned>(cmd.argc) << " argument" << (cmd.argc == 1 ? "" : "s")
                 << ": " << cmd.args << "\n";
        }
        return false;
    }
    const std::vector<std::string> names = argNames(cmd.args);
    std::vector<vq::diag::ArgValue> values(cmd.argc);
    for (size_t i = 0; i < cmd.argc; ++i) {
        vq::diag::ArgValue &v = values[i];
        const std::string &word = words[i + 1];
        v.kind = cmd.kinds[i];
        bool ok = true;
        const ArgRole role = argRole(names[i]);
        switch (v.kind) {
            case ArgKind::U32:
                // Tables and modules may also be given by name.
                ok = parseU32(word, &v.u32) || (role == ArgRole::Table && tableByName(word, &v.u32)) ||
                     (role == ArgRole::Module && moduleByName(word, &v.u32));
                break;
            case ArgKind::Bytes:
                ok = parseBytes(word, &v.bytes);
                v.bytes.resize(std::max(v.bytes.size(), vq::diag::kMinArrayElems), 0);
                break;
            case ArgKind::U16Array:
                ok = parseU16List(word, &v.u16);
                v.u16.resize(std::max(v.u16.size(), vq::diag::kMinArrayElems), 0);
                break;
            case ArgKind::Text:
                v.text = word;
                break;
        }
        if (!ok) {
            err_ << "error: " << cmd.name << ": '" << word << "' is not "
                 << (v.kind != ArgKind::U32 ? vq::diag::argKindName(v.kind)
                     : role == ArgRole::Table || role == ArgRole::Module
                         ? std::string("a ") + argRoleKind(role)
                         : "an integer")
                 << " for " << names[i] << " (arguments: " << cmd.args << ")\n";
            return false;
        }
    }

    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE + kGuard, kGuardByte);
    std::fill_n(buf.begin(), VQ6192_DIAG_BUF_SIZE, '\0');
    const uint32_t status = cmd.invoke(values.data(), buf.data());
    if (std::any_of(buf.begin() + VQ6192_DIAG_BUF_SIZE, buf.end(), [](char c) { return c != kGuardByte; })) {
        err_ << "internal error: " << cmd.name << " wrote past its " << VQ6192_DIAG_BUF_SIZE
             << "-byte buffer\n";
        return false;
    }
    const size_t len = strnlen(buf.data(), VQ6192_DIAG_BUF_SIZE);
    out_.write(buf.data(), static_cast<std::streamsize>(len));
    if (len > 0 && buf[len - 1] != '\n') {
        out_ << "\n";
    }
    printStatus(status);
    return status == 0;
}

void Session::printStatus(uint32_t status) {
    if (status != 0) {
        out_ << describeStatus(status) << "\n";
    }
}

bool Session::runBuiltin(const Builtin &b, const std::vector<std::string> &words) {
    const size_t given = words.size() - 1;
    if (given < b.minArgs || given > b.maxArgs) {
        err_ << "error: " << b.name << " takes " << b.args << "\n";
        return false;
    }
    return (this->*b.run)(std::vector<std::string>(words.begin() + 1, words.end()));
}

void Session::help(const std::vector<std::string> &words) {
    if (words.size() > 1) {
        for (const std::string &name : std::vector<std::string>(words.begin() + 1, words.end())) {
            if (const auto *cmd = vq::diag::findCommand(name)) {
                const std::vector<std::string> names = argNames(cmd->args);
                out_ << cmd->name << " " << cmd->args << "\n  " << cmd->help << "\n  module " << cmd->module;
                for (size_t i = 0; i < cmd->argc; ++i) {
                    out_ << (i == 0 ? "; arguments: " : ", ")
                         << argumentHelp(names[i], vq::diag::argKindName(cmd->kinds[i]), cmd->kinds[i]);
                }
                out_ << "\n";
                continue;
            }
            const Builtin *b = nullptr;
            for (const Builtin &x : kBuiltins) {
                if (name == x.name) {
                    b = &x;
                }
            }
            if (b != nullptr) {
                out_ << b->name << " " << b->args << "\n  " << b->help << "\n  shell command";
                const std::vector<std::string> names = argNames(b->args);
                for (size_t i = 0; i < names.size(); ++i) {
                    out_ << (i == 0 ? "; arguments: " : ", ") << argumentHelp(names[i], b->plainKind);
                }
                out_ << "\n";
            } else {
                out_ << "no command '" << name << "'\n";
            }
        }
        return;
    }
    std::map<std::string, std::vector<const vq::diag::Command *>> byModule;
    for (const auto &c : vq::diag::commands()) {
        byModule[c.module].push_back(&c);
    }
    auto line = [this](const std::string &usage, const char *text) {
        out_ << "  " << usage;
        for (size_t n = usage.size(); n < 46; ++n) {
            out_ << ' ';
        }
        out_ << " " << text << "\n";
    };
    out_ << "Diagnostic commands by module (help NAME for one; arguments are decimal or 0x hex):\n";
    for (const auto &[module, list] : byModule) {
        out_ << module << "\n";
        for (const auto *c : list) {
            line(std::string(c->name) + " " + c->args, c->help);
        }
    }
    out_ << "shell\n";
    for (const Builtin &b : kBuiltins) {
        line(std::string(b.name) + " " + b.args, b.help);
    }
    line("help [NAME]", "list the commands, or explain one");
    line("quit", "leave the shell");
}

}  // namespace vqshell

namespace vqshell {

// ---- Shell commands --------------------------------------------------------------------------------

bool Session::integer(const std::string &word, const char *what, uint32_t *value) {
    if (parseU32(word, value)) {
        return true;
    }
    err_ << "error: '" << word << "' is not an integer for " << what << "\n";
    return false;
}

// The shell's own commands work on the chips this shell installed.
bool Session::chipArg(const std::string &word, uint32_t *chip) {
    if (!integer(word, "chip", chip)) {
        return false;
    }
    if (*chip >= chips_.size()) {
        err_ << "error: chip " << *chip << " is not installed in this shell (chips 0.." << chips_.size() - 1
             << ")\n";
        return false;
    }
    return true;
}

bool Session::tableArg(const std::string &word, uint32_t *id) {
    if (tableByNameOrId(word, id)) {
        return true;
    }
    err_ << "error: no chip table '" << word << "' (tables lists them; ids 0.." << VQ6192_CHIP_TABLE_NUM - 1
         << ")\n";
    return false;
}

bool Session::entryArgs(const std::vector<std::string> &args, uint32_t *chip, uint32_t *table,
                        uint32_t *index) {
    return chipArg(args[0], chip) && tableArg(args[1], table) && integer(args[2], "index", index);
}

bool Session::readEntry(uint32_t chip, uint32_t table, uint32_t index, uint32_t *entry) {
    const uint32_t status = VQ6192_Read_Table(chip, table, index, entry);
    printStatus(status);
    return status == 0;
}

void Session::printEntry(uint32_t table, const uint32_t *entry) {
    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE, '\0');
    vq::TextBuilder text(buf.data(), buf.size());
    vq::tblEntryPrintf(text, table, entry);
    out_.write(buf.data(), static_cast<std::streamsize>(text.length()));
}

bool Session::cmdRegRead(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    uint32_t addr = 0;
    if (!chipArg(args[0], &chip) || !integer(args[1], "addr", &addr)) {
        return false;
    }
    char line[64];
    std::snprintf(line, sizeof line, "0x%08x = 0x%04x\n", addr, VQ6192_ReadReg(chip, addr));
    out_ << line;
    return true;
}

bool Session::cmdRegWrite(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    uint32_t addr = 0;
    uint32_t value = 0;
    if (!chipArg(args[0], &chip) || !integer(args[1], "addr", &addr) || !integer(args[2], "value", &value)) {
        return false;
    }
    if (value > 0xFFFF) {
        err_ << "error: registers are 16 bits wide (value 0x" << std::hex << value << std::dec << ")\n";
        return false;
    }
    VQ6192_WriteReg(chip, addr, value);
    return true;
}

bool Session::cmdRegDump(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    uint32_t addr = 0;
    uint32_t count = 0;
    if (!chipArg(args[0], &chip) || !integer(args[1], "addr", &addr) || !integer(args[2], "count", &count)) {
        return false;
    }
    if (count == 0 || count > kMaxDumpRegs) {
        err_ << "error: count is 1.." << kMaxDumpRegs << " registers\n";
        return false;
    }
    char text[32];
    for (uint32_t i = 0; i < count; ++i) {
        const uint32_t a = addr + 2 * i;
        if (i % 8 == 0) {
            std::snprintf(text, sizeof text, "%s0x%08x:", i == 0 ? "" : "\n", a);
            out_ << text;
        }
        std::snprintf(text, sizeof text, " %04x", VQ6192_ReadReg(chip, a));
        out_ << text;
    }
    out_ << "\n";
    return true;
}

bool Session::cmdTableRead(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    uint32_t table = 0;
    uint32_t index = 0;
    if (!entryArgs(args, &chip, &table, &index)) {
        return false;
    }
    uint32_t entry[2 * VQ6192_TBL_MAX_WORDS] = {};
    if (!readEntry(chip, table, index, entry)) {
        return false;
    }
    printEntry(table, entry);
    return true;
}

bool Session::cmdTableWrite(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    uint32_t table = 0;
    uint32_t index = 0;
    if (!entryArgs(args, &chip, &table, &index)) {
        return false;
    }
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    for (size_t i = 3; i < args.size(); ++i) {
        if (!integer(args[i], "word", &entry[i - 3])) {
            return false;
        }
    }
    const uint32_t status = VQ6192_Write_Table(chip, table, index, entry);
    printStatus(status);
    return status == 0;
}

bool Session::cmdTableField(const std::vector<std::string> &args) {
    uint32_t chip = 0;
    uint32_t table = 0;
    uint32_t index = 0;
    uint32_t value = 0;
    if (!entryArgs(args, &chip, &table, &index) || !integer(args[4], "value", &value)) {
        return false;
    }
    const VQ6192_TBL_ENTRY_S &layout = g_astVQ6192TblEntryList[table];
    const VQ6192_TBL_MEMBER_S *member = nullptr;
    for (uint32_t i = 0; i < layout.usMemberNum; ++i) {
        if (lowerCase(layout.pstMember[i].pszName) == lowerCase(args[3])) {
            member = &layout.pstMember[i];
        }
    }
    if (member == nullptr) {
        err_ << "error: " << layout.pszName << " has no member '" << args[3] << "'\n";
        return false;
    }
    uint32_t entry[2 * VQ6192_TBL_MAX_WORDS] = {};
    if (!readEntry(chip, table, index, entry)) {
        return false;
    }
    vq::setEntryBits(entry, member->usStartBit, member->usWidth, value);
    const uint32_t status = VQ6192_Write_Table(chip, table, index, entry);
    printStatus(status);
    if (status == 0) {
        printEntry(table, entry);
    }
    return status == 0;
}

bool Session::cmdTables(const std::vector<std::string> &args) {
    const std::string filter = args.empty() ? "" : lowerCase(args[0]);
    char line[200];
    for (uint32_t t = 0; t < VQ6192_TBL_ENTRY_NUM; ++t) {
        const VQ6192_TBL_ENTRY_S &e = g_astVQ6192TblEntryList[t];
        if (lowerCase(e.pszName).find(filter) == std::string::npos) {
            continue;
        }
        if (t < VQ6192_CHIP_TABLE_NUM) {
            const VQ6192_CHIP_TABLE_INFO_S &info = g_VQ6192_CHIP_TABLE_INFO[t];
            std::snprintf(line, sizeof line, "%3u %-24s depth %5u  data16 %2u  %s\n", t, e.pszName,
                          info.ulDepth, info.usData16, e.pszDesc);
        } else {
            std::snprintf(line, sizeof line, "%3u %-24s (layout only)  %s\n", t, e.pszName, e.pszDesc);
        }
        out_ << line;
    }
    return true;
}

}  // namespace vqshell
