#pragma once

// Where a search hands its matches: the result list, or a test.

#include "platform/system_types.h"

class MatchSink {
  public:
    virtual ~MatchSink() = default;

    // Before the walk: what an earlier search found goes.
    virtual void Clear() = 0;

    // The same in steps of a few milliseconds: false once nothing is left. A receiver that is cleared at once
    // needs none.
    [[nodiscard]] virtual bool ClearSome() {
        Clear();
        return false;
    }

    // One match. The full path and the directory record, as the enumeration filled it, live for this call
    // only.
    virtual void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) = 0;

    // Called each time the walk has looked at the message queue, about every 10 ms while entries pass and
    // more often while messages come. A receiver that holds matches back to show them in batches may do so
    // now.
    virtual void Refresh() = 0;
};
