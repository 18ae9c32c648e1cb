#include "search/run_search.h"

#include "search/fill_conditions.h"
#include "search/name_patterns.h"
#include "search/walk_folder.h"

void RunSearch(SearchConditions& conditions, const ConditionSource& source, MatchSink& sink,
               SearchProgress& progress) {
    SearchTexts texts;
    FillConditions(source, conditions, texts);
    sink.Clear();
    ObjectList patterns;
    const wchar_t* const nameSubstring =
        BuildNamePatterns(conditions, texts.name, texts.extensions, patterns);
    ExpectMessages();
    SearchWalk walk{conditions, patterns, nameSubstring, sink, progress};
    WalkFolder(walk, texts.location);
}
