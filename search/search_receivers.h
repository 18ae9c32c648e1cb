#pragma once

// The two receivers of a search: who takes its matches, and who watches it and may stop it.

#include "platform/system_types.h"

// The result list, or a test.
class MatchSink {
  public:
    virtual ~MatchSink() = default;

    // Before the walk: removes what an earlier search found.
    virtual void Clear() = 0;

    // The same in steps of a few milliseconds; returns false once nothing is left. A receiver that clears at
    // once does not need it.
    [[nodiscard]] virtual bool ClearSome() {
        Clear();
        return false;
    }

    // One match. The full path and the directory record, as the enumeration filled it, live only during this
    // call.
    virtual void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) = 0;

    // Called each time the walk has looked at the message queue: about every 10 ms while it tests entries,
    // more often while messages arrive. A receiver that holds matches back to show them in batches may do so
    // now.
    virtual void Refresh() = 0;
};

// The "Finding..." dialog, or a test.
class SearchProgress {
  public:
    virtual ~SearchProgress() = default;

    // The walk is about to list this folder, which may turn out not to exist.
    virtual void EnterFolder(const wchar_t* folder) = 0;

    // A file is about to be read that may take a while; StopRequested is not called meanwhile.
    virtual void BeforeLongFile() {}

    // True once the user wants no more. Called for every entry and more than once, so it has to be cheap; it
    // may not become false again before the search has ended.
    [[nodiscard]] virtual bool StopRequested() = 0;
};
