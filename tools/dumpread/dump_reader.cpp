#include "dump_reader.h"

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "chip/dump_lists.h"
#include "core/entry_field.h"
#include "vq6192/dump.h"
#include "vq6192/table.h"

namespace vqdump {
namespace {

constexpr size_t kHead = VQ6192_DUMP_HEAD_SIZE;
constexpr size_t kRecord = VQ6192_DUMP_REC_HEAD_SIZE;
constexpr size_t kRange = VQ6192_DUMP_RANGE_HEAD_SIZE;
constexpr size_t kTableName = 18;
constexpr size_t kBlockName = 17;

uint16_t get16(const uint8_t *p) {
    return static_cast<uint16_t>((p[0] << 8) | p[1]);
}

uint32_t get32(const uint8_t *p) {
    return (uint32_t{p[0]} << 24) | (uint32_t{p[1]} << 16) | (uint32_t{p[2]} << 8) | p[3];
}

std::string hex(size_t v) {
    char text[24];
    std::snprintf(text, sizeof text, "0x%zx", v);
    return text;
}

// A zero-padded name field: printable characters, then only zeros. False for anything else.
bool nameField(const uint8_t *p, size_t size, std::string *name) {
    size_t n = 0;
    while (n < size && p[n] != 0) {
        if (p[n] < 0x20 || p[n] > 0x7E) {
            return false;
        }
        ++n;
    }
    for (size_t i = n; i < size; ++i) {
        if (p[i] != 0) {
            return false;
        }
    }
    name->assign(reinterpret_cast<const char *>(p), n);
    return true;
}

std::string upper(std::string_view s) {
    std::string out(s);
    for (char &c : out) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return out;
}

// Names compare as the file holds them: case-blind and cut to the 18 characters of a table header.
bool sameName(std::string_view a, std::string_view b) {
    return upper(a.substr(0, kTableName)) == upper(b.substr(0, kTableName));
}

// The catalogue layout of a dumped table: the default record at the same place of a default group
// with the same id, else any default record of the same name, else the catalogue table of that name.
int32_t catalogueIdFor(uint32_t groupId, size_t position, const std::string &name) {
    for (uint32_t g = 0; g < g_VQ6192_ChipDump_InDirectReg_Cnt; ++g) {
        const VQ6192_DUMP_TBL_GROUP_S &grp = g_VQ6192_ChipDump_InDirectReg[g];
        if (grp.ulGroupId == groupId && position < grp.ucTblNum &&
            sameName(grp.astTbl[position].pszName, name)) {
            return vq::dump::defaultTableCatalogueId(g, static_cast<uint32_t>(position));
        }
    }
    for (uint32_t g = 0; g < g_VQ6192_ChipDump_InDirectReg_Cnt; ++g) {
        const VQ6192_DUMP_TBL_GROUP_S &grp = g_VQ6192_ChipDump_InDirectReg[g];
        for (uint32_t t = 0; t < grp.ucTblNum; ++t) {
            if (sameName(grp.astTbl[t].pszName, name)) {
                return vq::dump::defaultTableCatalogueId(g, t);
            }
        }
    }
    for (uint32_t id = 0; id < VQ6192_TBL_ENTRY_NUM; ++id) {
        if (sameName(g_astVQ6192TblEntryList[id].pszName, name)) {
            return static_cast<int32_t>(id);
        }
    }
    return -1;
}

class Parser {
  public:
    explicit Parser(std::span<const uint8_t> file) : file_(file) {}

    DumpImage run() {
        if (file_.size() < kHead) {
            return fail("truncated: the file header needs " + std::to_string(kHead) +
                        " bytes, the file has " + std::to_string(file_.size()));
        }
        if (file_[0] != VQ6192_DUMP_MARK_HEAD || std::memcmp(file_.data() + 1, "DUMP", 4) != 0) {
            return fail("not a chip dump: the file does not start with 0x7E \"DUMP\"");
        }
        const auto *text = reinterpret_cast<const char *>(file_.data() + 1);
        image_.headText.assign(text, strnlen(text, kHead - 1));
        at_ = kHead;
        while (at_ < file_.size()) {
            if (left() < kRecord) {
                return fail("truncated: " + std::to_string(left()) + " bytes at offset " + hex(at_) +
                            " where a record header needs " + std::to_string(kRecord));
            }
            const uint8_t mark = file_[at_];
            if (mark == VQ6192_DUMP_MARK_BLOCK) {
                if (!block()) {
                    return std::move(image_);
                }
            } else if (mark == VQ6192_DUMP_MARK_GROUP) {
                if (!group()) {
                    return std::move(image_);
                }
            } else {
                return fail("corrupt: unknown record mark " + hex(mark) + " at offset " + hex(at_));
            }
        }
        return std::move(image_);
    }

  private:
    size_t left() const { return file_.size() - at_; }

    DumpImage fail(const std::string &why) {
        image_.error = why;
        return std::move(image_);
    }

    bool stop(const std::string &why) {
        image_.error = why;
        return false;
    }

    bool need(size_t bytes, const char *what) {
        if (left() >= bytes) {
            return true;
        }
        return stop("truncated: " + std::string(what) + " at offset " + hex(at_) + " needs " +
                    std::to_string(bytes) + " bytes, " + std::to_string(left()) + " left");
    }

    bool block() {
        const uint8_t *p = file_.data() + at_;
        RegBlock b;
        if (!nameField(p + 1, kBlockName, &b.name) || b.name.empty()) {
            return stop("corrupt: bad register block name at offset " + hex(at_));
        }
        b.groupId = get32(p + 18);
        const uint8_t ranges = p[22];
        b.kind = p[23];
        if (ranges > VQ6192_DUMP_RANGE_MAX) {
            return stop("corrupt: register block " + b.name + " at offset " + hex(at_) + " claims " +
                        std::to_string(ranges) + " ranges (at most 8)");
        }
        at_ += kRecord;
        image_.blocks.push_back(b);
        if (b.kind != VQ6192_DUMP_KIND_RANGES) {
            return true;
        }
        for (uint8_t r = 0; r < ranges; ++r) {
            if (!need(kRange, "a register range header")) {
                return false;
            }
            RegRange range;
            range.base = get16(file_.data() + at_);
            range.first = get16(file_.data() + at_ + 2);
            range.last = get16(file_.data() + at_ + 4);
            at_ += kRange;
            const size_t count = range.last >= range.first ? range.last - range.first + 1 : 0;
            if (!need(count * 2, "the register values of a range")) {
                return false;
            }
            range.values.resize(count);
            for (size_t i = 0; i < count; ++i) {
                range.values[i] = get16(file_.data() + at_ + 2 * i);
            }
            at_ += count * 2;
            image_.blocks.back().ranges.push_back(std::move(range));
        }
        return true;
    }

    bool group() {
        const uint8_t *p = file_.data() + at_;
        TableGroup g;
        if (!nameField(p + 1, kBlockName, &g.name) || g.name.empty()) {
            return stop("corrupt: bad table group name at offset " + hex(at_));
        }
        g.groupId = get32(p + 18);
        const uint8_t tables = p[22];
        g.kind = p[23];
        if (tables > VQ6192_DUMP_GROUP_TBL_MAX) {
            return stop("corrupt: table group " + g.name + " at offset " + hex(at_) + " claims " +
                        std::to_string(tables) + " tables (at most 60)");
        }
        at_ += kRecord;
        image_.groups.push_back(g);
        if (g.kind != VQ6192_DUMP_KIND_RANGES) {
            return true;
        }
        for (uint8_t i = 0; i < tables; ++i) {
            if (!need(kRecord, "a table header")) {
                return false;
            }
            const uint8_t *h = file_.data() + at_;
            Table t;
            if (!nameField(h, kTableName, &t.name) || t.name.empty()) {
                return stop("corrupt: bad table name at offset " + hex(at_) + " (table " + std::to_string(i) +
                            " of group " + g.name + ")");
            }
            t.depth = get32(h + 18);
            t.entrySize = get16(h + 22);
            if (t.entrySize % 4 != 0) {
                return stop("corrupt: table " + t.name + " at offset " + hex(at_) + " has entries of " +
                            std::to_string(t.entrySize) + " bytes (not whole words)");
            }
            at_ += kRecord;
            const uint64_t bytes = uint64_t{t.depth} * t.entrySize;
            if (bytes > left()) {
                return stop("truncated: table " + t.name + " at offset " + hex(at_ - kRecord) + " needs " +
                            std::to_string(bytes) + " bytes of entries, " + std::to_string(left()) + " left");
            }
            t.entries = file_.subspan(at_, static_cast<size_t>(bytes));
            t.catalogueId = catalogueIdFor(g.groupId, i, t.name);
            at_ += static_cast<size_t>(bytes);
            image_.groups.back().tables.push_back(std::move(t));
        }
        return true;
    }

    std::span<const uint8_t> file_;
    size_t at_ = 0;
    DumpImage image_;
};

bool wantTable(const Table &t, const PrintOptions &o) {
    for (const std::string &name : o.tables) {
        if (sameName(name, t.name) ||
            (t.catalogueId >= 0 && sameName(name, g_astVQ6192TblEntryList[t.catalogueId].pszName))) {
            return true;
        }
    }
    return false;
}

bool wantReg(uint32_t addr, const PrintOptions &o) {
    for (const auto &[lo, hi] : o.regAddrs) {
        if (addr >= lo && addr <= hi) {
            return true;
        }
    }
    return false;
}

void printEntry(const Table &t, uint32_t index, std::ostream &out) {
    std::vector<uint32_t> words = t.entry(index);
    const size_t bits = words.size() * 32;
    words.push_back(0);  // a member ending in the last word may read one word on
    char text[128];
    std::snprintf(text, sizeof text, "    [%u]", index);
    out << text;
    if (t.catalogueId < 0) {
        for (size_t w = 0; w + 1 < words.size(); ++w) {
            std::snprintf(text, sizeof text, " 0x%08x", words[w]);
            out << text;
        }
        out << "\n";
        return;
    }
    const VQ6192_TBL_ENTRY_S &e = g_astVQ6192TblEntryList[t.catalogueId];
    for (uint16_t m = 0; m < e.usMemberNum; ++m) {
        const VQ6192_TBL_MEMBER_S &mem = e.pstMember[m];
        // Members beyond the bytes the chip dumped are not shown.
        if (mem.usStartBit >= bits) {
            continue;
        }
        const uint32_t v = vq::entryBits(words.data(), mem.usStartBit, mem.usWidth);
        std::snprintf(text, sizeof text, " %s=0x%x", mem.pszName, v);
        out << text;
    }
    out << "\n";
}

}  // namespace

std::vector<uint32_t> Table::entry(uint32_t index) const {
    std::vector<uint32_t> words(entrySize / 4);
    const uint8_t *p = entries.data() + size_t{index} * entrySize;
    for (size_t w = 0; w < words.size(); ++w) {
        words[w] = get32(p + 4 * w);
    }
    return words;
}

DumpImage parseDump(std::span<const uint8_t> file) {
    return Parser(file).run();
}

void printDump(const DumpImage &image, const PrintOptions &o, std::ostream &out) {
    const bool filtered = !o.tables.empty() || !o.regAddrs.empty();
    const bool regs = !filtered || !o.regAddrs.empty();
    const bool tables = !filtered || !o.tables.empty();
    char text[160];
    out << "chip dump " << image.headText << "\n";
    if (regs) {
        for (const RegBlock &b : image.blocks) {
            bool shownHead = false;
            for (const RegRange &r : b.ranges) {
                bool shownRange = false;
                for (size_t i = 0; i < r.values.size(); ++i) {
                    const uint32_t addr = 2 * (r.base + r.first + static_cast<uint32_t>(i));
                    if (filtered && !wantReg(addr, o)) {
                        continue;
                    }
                    if (!shownHead) {
                        std::snprintf(text, sizeof text, "register block %s, group %u, %zu range%s\n",
                                      b.name.c_str(), b.groupId, b.ranges.size(),
                                      b.ranges.size() == 1 ? "" : "s");
                        out << text;
                        shownHead = true;
                    }
                    if (!shownRange) {
                        std::snprintf(text, sizeof text, "  registers 0x%x..0x%x\n", r.base + r.first,
                                      r.base + r.last);
                        out << text;
                        shownRange = true;
                    }
                    std::snprintf(text, sizeof text, "    0x%05x = 0x%04x\n", addr, r.values[i]);
                    out << text;
                }
            }
            if (!filtered && !shownHead) {
                std::snprintf(text, sizeof text, "register block %s, group %u, no registers\n",
                              b.name.c_str(), b.groupId);
                out << text;
            }
        }
    }
    if (tables) {
        for (const TableGroup &g : image.groups) {
            bool shownHead = false;
            for (const Table &t : g.tables) {
                if (filtered && !wantTable(t, o)) {
                    continue;
                }
                if (!shownHead) {
                    std::snprintf(text, sizeof text, "table group %s, group %u, %zu table%s\n",
                                  g.name.c_str(), g.groupId, g.tables.size(),
                                  g.tables.size() == 1 ? "" : "s");
                    out << text;
                    shownHead = true;
                }
                std::snprintf(
                    text, sizeof text, "  table %s (%s), %u entries of %u bytes\n", t.name.c_str(),
                    t.catalogueId >= 0 ? g_astVQ6192TblEntryList[t.catalogueId].pszName : "no layout",
                    t.depth, t.entrySize);
                out << text;
                // Entries of no bytes (a table of width 0) hold nothing to show, however many there are.
                for (uint32_t i = 0; t.entrySize != 0 && i < t.depth; ++i) {
                    printEntry(t, i, out);
                }
            }
        }
    }
}

bool parseRegFilter(const std::string &text, std::pair<uint32_t, uint32_t> *range) {
    auto number = [](const std::string &s, uint32_t *v) {
        if (s.empty() || s[0] == '-' || s[0] == '+') {
            return false;
        }
        char *end = nullptr;
        errno = 0;
        const unsigned long long n = std::strtoull(s.c_str(), &end, 0);
        if (errno != 0 || end == s.c_str() || *end != '\0' || n > UINT32_MAX) {
            return false;
        }
        *v = static_cast<uint32_t>(n);
        return true;
    };
    const size_t dash = text.find('-');
    uint32_t lo = 0;
    uint32_t hi = 0;
    if (dash == std::string::npos) {
        if (!number(text, &lo)) {
            return false;
        }
        hi = lo;
    } else if (!number(text.substr(0, dash), &lo) || !number(text.substr(dash + 1), &hi) || hi < lo) {
        return false;
    }
    *range = {lo, hi};
    return true;
}

}  // namespace vqdump
