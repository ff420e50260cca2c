// libFuzzer target: the dump file reader on arbitrary files. A damaged or hostile file is refused
// with a reason or parsed as far as it is sound, never read past its end; whatever was parsed prints,
// entry by entry, from inside the file's bytes.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "dump_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const vqdump::DumpImage image = vqdump::parseDump({data, size});
    for (const auto &group : image.groups) {
        for (const auto &table : group.tables) {
            if (table.entries.data() != nullptr &&
                (table.entries.data() < data || table.entries.data() + table.entries.size() > data + size)) {
                std::fprintf(stderr, "dump reader: table %s points outside the file\n", table.name.c_str());
                std::abort();
            }
        }
    }
    std::ostringstream out;
    vqdump::printDump(image, {}, out);
    return 0;
}
