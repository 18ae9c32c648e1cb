#pragma once

// What the walk and the entry filter share: the conditions, the two receivers, and whether to go on.

#include "base/message_pump.h"
#include "base/object_list.h"
#include "search/search_conditions.h"
#include "search/search_receivers.h"

// What a step of the walk returns: Stop once the user or a quit has asked for it.
enum class WalkStep { GoOn, Stop };

// What the walk carries along.
struct SearchWalk {
    const SearchConditions& conditions;
    // StringObjects, each a pattern relative to the folder that is walked. A null item ends the list.
    ObjectList& patterns;
    // What a name must contain; empty if there is no such test.
    const wchar_t* nameSubstring;
    MatchSink& sink;
    SearchProgress& progress;

    // Set by a quit that arrives during the walk.
    bool programEnds = false;

    // The step between two entries or folders: pumps one message and polls the progress.
    [[nodiscard]] WalkStep PumpAndPoll() {
        const PumpOutcome outcome = PumpOneMessage();
        if (outcome == PumpOutcome::Quit) programEnds = true;
        if (outcome == PumpOutcome::Empty || outcome == PumpOutcome::Dispatched) sink.Refresh();
        return programEnds || progress.StopRequested() ? WalkStep::Stop : WalkStep::GoOn;
    }
};
