#pragma once

// What the walk over the folders carries along.

#include "base/message_pump.h"
#include "base/object_list.h"
#include "platform/system_types.h"
#include "search/match_sink.h"
#include "search/search_conditions.h"
#include "search/search_progress.h"

struct SearchWalk {
    const SearchConditions& conditions;
    // StringObjects, each a pattern relative to the folder that is walked. A null item ends the list.
    ObjectList& patterns;
    // What a name must contain; empty when there is no such test.
    const wchar_t* nameSubstring;
    MatchSink& sink;
    SearchProgress& progress;

    // Set by a quit that arrives during the walk.
    bool programEnds = false;

    // Pumps one message and says whether the walk has to stop.
    [[nodiscard]] bool PumpAndPollStop() {
        const PumpOutcome outcome = PumpOneMessage();
        if (outcome == PumpOutcome::Quit) programEnds = true;
        if (outcome == PumpOutcome::Empty || outcome == PumpOutcome::Dispatched) sink.Refresh();
        return programEnds || progress.StopRequested();
    }
};
