#pragma once

// A query in texts that a test can assign.

#include <string>

#include "search/search_query.h"

struct AskedQuery {
    std::wstring location;
    bool subFolders = false;
    std::wstring name;
    bool typeFilter = false;
    std::wstring extensions;
    std::wstring content;
    bool ignoreCase = false;
    std::optional<DateRange> dateRange;
    SizeBound sizeBound;

    // Each text is cut where the query's ends, as a page's control cuts it.
    operator SearchQuery() const {
        SearchQuery query;
        Copy(location, query.location);
        query.subFolders = subFolders;
        Copy(name, query.name);
        query.typeFilter = typeFilter;
        Copy(extensions, query.extensions);
        Copy(content, query.content);
        query.ignoreCase = ignoreCase;
        query.dateRange = dateRange;
        query.sizeBound = sizeBound;
        return query;
    }

  private:
    template <std::size_t size>
    static void Copy(const std::wstring& from, wchar_t (&to)[size]) {
        to[from.copy(to, size - 1)] = L'\0';
    }
};
