#pragma once

// A content search as its rule words it: line by line, byte by byte, over the whole file.

#include <string>

#include "search/content_prefilter.h"
#include "tests/search/plain_find.h"

struct PlainContentAnswer {
    bool found;
    // Lines that were searched.
    int lines;
};

PlainContentAnswer PlainContentSearch(PlainFind& find, const std::string& bytes,
                                      const ContentPattern& pattern);
