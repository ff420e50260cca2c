// vq6192-dumpread: prints a chip dump file, registers by address and table entries member by member,
// so that a dump from the field can be read without the chip.
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "dump_reader.h"

namespace {

constexpr int kUsage = 1;
constexpr int kDamaged = 2;

void usage(std::ostream &out) {
    out << "usage: vq6192-dumpread [--table NAME]... [--reg ADDR[-ADDR]]... FILE\n"
           "  prints a VQ6192 chip dump: register values by byte address, table entries member by member\n"
           "  --table NAME      only this table (dump name or catalogue name, any case); repeatable\n"
           "  --reg ADDR[-ADDR] only registers at these byte addresses (decimal or 0x hex); repeatable\n"
           "exit status: 0 the file was read whole, 1 usage or file error, 2 truncated or corrupt file\n";
}

}  // namespace

int main(int argc, char **argv) {
    vqdump::PrintOptions options;
    std::string path;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "-h" || arg == "--help") {
            usage(std::cout);
            return 0;
        }
        if (arg == "--table" || arg == "--reg") {
            if (i + 1 >= argc) {
                std::cerr << "vq6192-dumpread: " << arg << " needs a value\n";
                usage(std::cerr);
                return kUsage;
            }
            const std::string value = argv[++i];
            if (arg == "--table") {
                options.tables.push_back(value);
            } else {
                std::pair<uint32_t, uint32_t> range;
                if (!vqdump::parseRegFilter(value, &range)) {
                    std::cerr << "vq6192-dumpread: '" << value << "' is not an address or an address range\n";
                    return kUsage;
                }
                options.regAddrs.push_back(range);
            }
            continue;
        }
        if (!arg.empty() && arg[0] == '-') {
            std::cerr << "vq6192-dumpread: unknown option " << arg << "\n";
            usage(std::cerr);
            return kUsage;
        }
        if (!path.empty()) {
            std::cerr << "vq6192-dumpread: one dump file at a time\n";
            return kUsage;
        }
        path = arg;
    }
    if (path.empty()) {
        usage(std::cerr);
        return kUsage;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cerr << "vq6192-dumpread: cannot open " << path << ": " << std::strerror(errno) << "\n";
        return kUsage;
    }
    const std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const vqdump::DumpImage image = vqdump::parseDump(bytes);
    vqdump::printDump(image, options, std::cout);
    std::cout.flush();
    if (!image.ok()) {
        std::cerr << "vq6192-dumpread: " << path << ": " << image.error << "\n";
        return kDamaged;
    }
    return 0;
}
