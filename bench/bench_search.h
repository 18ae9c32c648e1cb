#pragma once

// A search without a dialog around it.

#include "search/run_search.h"
#include "tests/support/asked_query.h"

class CountingSink : public MatchSink {
  public:
    void Clear() override { matches = 0; }
    void AddMatch(const wchar_t*, const WIN32_FIND_DATAW&) override { ++matches; }
    void Refresh() override {}

    std::size_t matches = 0;
};

class SilentProgress : public SearchProgress {
  public:
    void EnterFolder(const wchar_t*) override { ++folders; }
    [[nodiscard]] bool StopRequested() override { return false; }

    std::size_t folders = 0;
};

// Of everything below the folder, case and all.
inline AskedQuery SearchBelow(const std::wstring& folder) {
    AskedQuery query;
    query.location = folder;
    query.subFolders = true;
    return query;
}
