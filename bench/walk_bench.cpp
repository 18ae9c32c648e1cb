#include <cstdio>

#include "bench/bench_search.h"
#include "bench/benches.h"
#include "bench/comparison.h"

namespace {

AskedQuery OfTwoExtensions(const std::wstring& folder) {
    AskedQuery query = SearchBelow(folder);
    query.typeFilter = true;
    query.extensions = L".nosuch.neither";
    return query;
}

}  // namespace

bool CompareWalk(const char* what, const std::wstring& folder, int runs) {
    const std::string where = std::string("walk of ") + what;
    CountingSink sink;
    SilentProgress progress;
    SearchConditions conditions;
    RunSearch(conditions, SearchBelow(folder), sink, progress);
    const std::size_t entries = CountBarely(folder);
    if (sink.matches != entries || entries == 0) {
        std::printf("the %s found %zu of %zu entries\n", where.c_str(), sink.matches, entries);
        return false;
    }
    std::printf("%s: %zu entries in %zu folders\n", where.c_str(), entries, progress.folders);
    const auto compare = [&](const char* by, const AskedQuery& query) {
        MeasureAndPrint({where + ", " + by, [&] { RunSearch(conditions, query, sink, progress); },
                         [&] { static_cast<void>(CountBarely(folder)); }},
                        runs);
    };
    AskedQuery query = SearchBelow(folder);
    query.name = L"no such name";
    compare("by a name", query);
    query.name = L"no*such?name";
    compare("by a wildcard", query);
    compare("by two extensions", OfTwoExtensions(folder));
    return sink.matches == 0;
}
