#pragma once

// The two line readers, a byte at a time as their rules are written: what ReadLineExact and ReadLineUpper are
// compared with.

#include <cstddef>
#include <string>

// A file in memory with its place.
struct PlainFile {
    int Get() { return place < bytes.size() ? static_cast<unsigned char>(bytes[place++]) : -1; }

    std::string bytes;
    std::size_t place = 0;
};

// The bytes stored in front of the NUL; empty stands for "none".
std::string PlainReadLineExact(int size, PlainFile& file);
std::string PlainReadLineUpper(int size, PlainFile& file, bool doubleByteAware);
