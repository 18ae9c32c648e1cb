#pragma once

// Who watches a search and may stop it: the "Finding..." dialog, or a test.

class SearchProgress {
  public:
    virtual ~SearchProgress() = default;

    // The walk is about to look into this folder, also when it turns out that there is no such folder.
    virtual void EnterFolder(const wchar_t* folder) = 0;

    // A file is about to be read that may take its time; nothing is asked meanwhile.
    virtual void BeforeLongFile() {}

    // True once the user wants no more. Asked for every entry and more than once, so it has to be cheap; it
    // may not become false again before the search has ended.
    [[nodiscard]] virtual bool StopRequested() = 0;
};
