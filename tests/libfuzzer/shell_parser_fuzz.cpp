// libFuzzer target: the debug shell's line parser on arbitrary lines. Every line splits into commands
// and words without reading outside the input; every word that parses as an integer, a byte string or
// a 16-bit list gives back the same values when printed and parsed again.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "parser.h"

namespace {

void check(bool ok, const char *what) {
    if (!ok) {
        std::fprintf(stderr, "shell parser: %s\n", what);
        std::abort();
    }
}

void words(const std::string &command) {
    std::vector<std::string> ws;
    std::string error;
    if (!vqshell::splitWords(command, &ws, &error)) {
        check(!error.empty(), "a refused command gives no reason");
        return;
    }
    for (const std::string &w : ws) {
        uint32_t v = 0;
        if (vqshell::parseU32(w, &v)) {
            uint32_t again = 0;
            check(vqshell::parseU32(std::to_string(v), &again) && again == v, "integer does not round-trip");
        }
        std::vector<uint8_t> bytes;
        if (vqshell::parseBytes(w, &bytes)) {
            check(bytes.size() <= w.size() / 2, "more bytes than hex digit pairs");
            std::string hex;
            char two[3];
            for (uint8_t b : bytes) {
                std::snprintf(two, sizeof two, "%02x", b);
                hex += two;
            }
            std::vector<uint8_t> again;
            check(hex.empty() || (vqshell::parseBytes(hex, &again) && again == bytes),
                  "bytes do not round-trip");
        }
        std::vector<uint16_t> list;
        if (vqshell::parseU16List(w, &list)) {
            std::string text;
            for (size_t i = 0; i < list.size(); ++i) {
                text += (i > 0 ? "," : "") + std::to_string(list[i]);
            }
            std::vector<uint16_t> again;
            check(text.empty() || (vqshell::parseU16List(text, &again) && again == list),
                  "16-bit list does not round-trip");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const std::string_view line(reinterpret_cast<const char *>(data), size);
    for (const std::string &command : vqshell::splitCommands(line)) {
        words(command);
    }
    return 0;
}
