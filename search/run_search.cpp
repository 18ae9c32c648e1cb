#include "search/run_search.h"

#include "base/message_pump.h"
#include "search/name_patterns.h"
#include "search/search_walk.h"

namespace {

// Between two steps of the clearing. Bounded, since a window that always has messages must not hold it up.
constexpr int MessagesPerStep = 16;

// The clearing is finished even if the user wants no more: what is left of an earlier search is no result of
// this one.
WalkStep ClearSink(MatchSink& sink, SearchProgress& progress) {
    WalkStep step = WalkStep::GoOn;
    while (sink.ClearSome()) {
        PumpOutcome outcome = PumpOutcome::Dispatched;
        for (int taken = 0; taken < MessagesPerStep && outcome == PumpOutcome::Dispatched; ++taken)
            outcome = PumpOneMessage();
        if (outcome == PumpOutcome::Quit) return WalkStep::Stop;
        if (progress.StopRequested()) step = WalkStep::Stop;
    }
    return step;
}

// QUIRK: location-is-not-checked
const wchar_t* StartFolder(const SearchQuery& query) {
    return query.location[0] != L'\0' ? query.location : L"\\";
}

}  // namespace

void RunSearch(SearchConditions& conditions, const SearchQuery& query, MatchSink& sink,
               SearchProgress& progress) {
    FillConditions(query, conditions);
    ExpectMessages();
    if (ClearSink(sink, progress) == WalkStep::Stop) return;
    ObjectList patterns;
    const wchar_t* const nameSubstring = BuildNamePatterns(query, patterns);
    SearchWalk walk{conditions, patterns, nameSubstring, sink, progress};
    WalkFolder(walk, StartFolder(query));
}
