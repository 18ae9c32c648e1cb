#pragma once

// A search as a test sees it: what was found, where the walk came by, and when it is to stop.

#include <string>
#include <vector>

#include "search/search_receivers.h"
#include "search/search_walk.h"

class RecordingSink : public MatchSink {
  public:
    void Clear() override {
        ++clears;
        paths.clear();
        entries.clear();
    }
    void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override {
        paths.emplace_back(fullPath);
        entries.push_back(entry);
    }
    void Refresh() override { ++refreshes; }

    std::vector<std::wstring> paths;
    std::vector<WIN32_FIND_DATAW> entries;
    int clears = 0;
    int refreshes = 0;
};

class RecordingProgress : public SearchProgress {
  public:
    void EnterFolder(const wchar_t* folder) override { folders.emplace_back(folder); }
    [[nodiscard]] bool StopRequested() override {
        ++asked;
        return stopAtQuestion > 0 && asked >= stopAtQuestion;
    }

    void BeforeLongFile() override { ++longFiles; }

    std::vector<std::wstring> folders;
    int asked = 0;
    int longFiles = 0;
    // The question, counted from 1, at which it is first answered with yes; 0 for never.
    int stopAtQuestion = 0;
};

// Everything that a walk needs, and what came of it.
struct RecordedWalk {
    RecordedWalk(std::uint16_t flags, const std::vector<const wchar_t*>& patternTexts,
                 const wchar_t* nameSubstring = L"")
        : walk{conditions, patterns, nameSubstring, sink, progress} {
        conditions.flags = flags;
        for (const wchar_t* text : patternTexts) {
            // A null text is a pattern for which there was no memory.
            if (!patterns.Append(text != nullptr ? new StringObject(text) : nullptr)) std::abort();
        }
        ExpectMessages();
    }
    RecordedWalk(const RecordedWalk&) = delete;
    RecordedWalk& operator=(const RecordedWalk&) = delete;

    SearchConditions conditions;
    ObjectList patterns;
    RecordingSink sink;
    RecordingProgress progress;
    SearchWalk walk;
};
