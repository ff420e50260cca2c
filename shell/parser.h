// The shell's line parser: commands separated by ';', '#' comments, blank-separated words with
// double-quoted text, and the argument forms (integers, hex byte strings, 16-bit lists).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vqshell {

// Splits a line into commands at ';' and drops a '#' comment; both are ordinary characters inside
// double quotes. Blank commands are dropped.
std::vector<std::string> splitCommands(std::string_view line);

// Splits one command into words at blanks and tabs; "..." makes one word (quotes removed; a backslash
// escapes the next character). Returns false (with a reason) for an unterminated quote.
bool splitWords(std::string_view command, std::vector<std::string> *words, std::string *error);

// Decimal or 0x hex, 0 .. 0xFFFFFFFF.
bool parseU32(std::string_view text, uint32_t *value);

// Hex digits, two per byte, optionally separated by ':' or '-' between bytes ("001a2b", "00:1a:2b").
bool parseBytes(std::string_view text, std::vector<uint8_t> *bytes);

// Comma-separated integers, each 0 .. 0xFFFF.
bool parseU16List(std::string_view text, std::vector<uint16_t> *values);

}  // namespace vqshell
