#pragma once

// The journal that the program writes while it lives, seen from the test's side.

#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/probe/journal.h"

using JournalEntry = std::vector<std::wstring>;

class SharedJournal {
  public:
    // Programs that are started from now on write into it. Throws DriverError.
    SharedJournal();
    ~SharedJournal();
    SharedJournal(const SharedJournal&) = delete;
    SharedJournal& operator=(const SharedJournal&) = delete;

    void Empty();
    void Note(std::initializer_list<std::wstring_view> fields);
    // The change of a file and its entry, with nothing of the program in between.
    template <typename Change>
    void Note(std::initializer_list<std::wstring_view> fields, Change change) {
        Lock();
        if (change()) probe::AppendTo(*journal_, fields);
        Unlock();
    }
    [[nodiscard]] std::vector<JournalEntry> Entries();
    [[nodiscard]] bool Has(std::wstring_view kind);

  private:
    void Lock() { WaitForSingleObject(mutex_, INFINITE); }
    void Unlock() { ReleaseMutex(mutex_); }

    HANDLE section_ = nullptr;
    HANDLE mutex_ = nullptr;
    probe::Journal* journal_ = nullptr;
};
