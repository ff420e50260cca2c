#include "parser.h"

#include <cctype>

namespace vqshell {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool allBlank(std::string_view s) {
    for (char c : s) {
        if (!isBlank(c)) {
            return false;
        }
    }
    return true;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

std::string trimmed(const std::string &s) {
    size_t b = 0;
    size_t e = s.size();
    while (b < e && isBlank(s[b])) {
        ++b;
    }
    while (e > b && isBlank(s[e - 1])) {
        --e;
    }
    return s.substr(b, e - b);
}

}  // namespace

std::vector<std::string> splitCommands(std::string_view line) {
    std::vector<std::string> out;
    std::string current;
    bool quoted = false;
    for (size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted) {
            current += c;
            if (c == '\\' && i + 1 < line.size()) {
                current += line[++i];
            } else if (c == '"') {
                quoted = false;
            }
            continue;
        }
        if (c == '#') {
            break;
        }
        if (c == ';') {
            if (!allBlank(current)) {
                out.push_back(trimmed(current));
            }
            current.clear();
            continue;
        }
        if (c == '"') {
            quoted = true;
        }
        current += c;
    }
    if (!allBlank(current)) {
        out.push_back(trimmed(current));
    }
    return out;
}

bool splitWords(std::string_view command, std::vector<std::string> *words, std::string *error) {
    words->clear();
    size_t i = 0;
    while (i < command.size()) {
        while (i < command.size() && isBlank(command[i])) {
            ++i;
        }
        if (i == command.size()) {
            break;
        }
        std::string word;
        bool any = false;
        while (i < command.size() && !isBlank(command[i])) {
            if (command[i] != '"') {
                word += command[i++];
                any = true;
                continue;
            }
            ++i;  // opening quote
            bool closed = false;
            while (i < command.size()) {
                const char c = command[i++];
                if (c == '"') {
                    closed = true;
                    break;
                }
                if (c == '\\' && i < command.size()) {
                    word += command[i++];
                } else {
                    word += c;
                }
            }
            if (!closed) {
                *error = "unterminated quote";
                return false;
            }
            any = true;
        }
        if (any) {
            words->push_back(word);
        }
    }
    return true;
}

bool parseU32(std::string_view text, uint32_t *value) {
    if (text.empty()) {
        return false;
    }
    uint64_t v = 0;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        if (text.size() > 10) {
            return false;
        }
        for (size_t i = 2; i < text.size(); ++i) {
            const int d = hexDigit(text[i]);
            if (d < 0) {
                return false;
            }
            v = v * 16 + static_cast<uint64_t>(d);
        }
    } else {
        if (text.size() > 10) {
            return false;
        }
        for (char c : text) {
            if (c < '0' || c > '9') {
                return false;
            }
            v = v * 10 + static_cast<uint64_t>(c - '0');
        }
    }
    if (v > 0xFFFFFFFFu) {
        return false;
    }
    *value = static_cast<uint32_t>(v);
    return true;
}

bool parseBytes(std::string_view text, std::vector<uint8_t> *bytes) {
    bytes->clear();
    size_t i = 0;
    while (i < text.size()) {
        if (i + 1 >= text.size()) {
            return false;
        }
        const int hi = hexDigit(text[i]);
        const int lo = hexDigit(text[i + 1]);
        if (hi < 0 || lo < 0) {
            return false;
        }
        bytes->push_back(static_cast<uint8_t>(hi * 16 + lo));
        i += 2;
        if (i < text.size() && (text[i] == ':' || text[i] == '-')) {
            if (++i == text.size()) {
                return false;
            }
        }
    }
    return !bytes->empty();
}

bool parseU16List(std::string_view text, std::vector<uint16_t> *values) {
    values->clear();
    size_t start = 0;
    while (start <= text.size()) {
        size_t comma = text.find(',', start);
        if (comma == std::string_view::npos) {
            comma = text.size();
        }
        uint32_t v = 0;
        if (!parseU32(text.substr(start, comma - start), &v) || v > 0xFFFF) {
            return false;
        }
        values->push_back(static_cast<uint16_t>(v));
        start = comma + 1;
    }
    return !values->empty();
}

}  // namespace vqshell
