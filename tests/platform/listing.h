#pragma once

// A whole listing of the seam's in one answer.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/windows_ce.h"

using Names = std::vector<std::wstring>;

// The names in the order of the listing, which is the system's own, and how it ended.
struct ListingAnswer {
    Names names;
    DWORD ending = 0;
};

inline ListingAnswer List(const std::wstring& pattern) {
    ListingAnswer answer;
    WIN32_FIND_DATAW data;
    const HANDLE search = ce::FindFirstFileW(pattern.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) {
        answer.ending = GetLastError();
        return answer;
    }
    do {
        answer.names.emplace_back(data.cFileName);
    } while (ce::FindNextFileW(search, &data));
    answer.ending = GetLastError();
    EXPECT_TRUE(ce::FindClose(search));
    return answer;
}

[[nodiscard]] inline Names Sorted(Names names) {
    std::sort(names.begin(), names.end());
    return names;
}
