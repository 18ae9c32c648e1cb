#pragma once

// The walk over one folder and, with SubFolders set, over everything below it.

#include "base/message_pump.h"
#include "base/object_list.h"
#include "platform/system_types.h"
#include "search/search_conditions.h"
#include "search/search_receivers.h"

// What a step of the walk answers: Stop once the user or a quit has asked for it.
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

// First the folder's entries, pattern by pattern in the order in which the system lists them, then each
// sub-folder's whole subtree. A folder that cannot be listed and a path that does not fit are skipped
// silently. Stops at the next entry once the user or a quit asks for it; what was found so far stays.
void WalkFolder(SearchWalk& walk, const wchar_t* folder);
