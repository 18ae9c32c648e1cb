#pragma once

// Holds what became of the files against what the program was asked for.

#include <string>
#include <vector>

#include "tests/monkey/device.h"

class FileAccount {
  public:
    FileAccount(const Device& device, DeviceEntries before) : device_(device), entries_(std::move(before)) {}

    // Each change of a file was asked for, on that very file; each end of the program too. The complaints.
    [[nodiscard]] std::vector<std::string> Settle(const std::vector<JournalEntry>& journal,
                                                  const DeviceEntries& after);

  private:
    void Take(const JournalEntry& entry);
    void TakeQuestion(const JournalEntry& entry);
    void TakeDelete(const JournalEntry& entry);
    void TakeMove(const JournalEntry& entry);
    void TakeAttributes(const JournalEntry& entry);
    void TakeOwnChange(const JournalEntry& entry);
    void TakeEnd(const JournalEntry& entry);
    void Remove(const std::wstring& path);
    void Move(const std::wstring& from, const std::wstring& to);
    void Compare(const DeviceEntries& after);
    [[nodiscard]] bool MayHaveCome(const std::wstring& path) const;
    [[nodiscard]] std::wstring Path(const std::wstring& path);
    void Complain(const std::string& text, const std::wstring& path);

    const Device& device_;
    DeviceEntries entries_;
    std::vector<std::string> complaints_;
    // What the program was asked for last, and has not done yet.
    std::wstring askedFile_, shownQuestion_;
    std::wstring generalFile_, shortcutFile_;
    std::wstring editedFile_, moveSource_, typedName_;
    bool saidYes_ = false, tookName_ = false, applied_ = false;
    bool madeShortcuts_ = false, mayEnd_ = false;
    std::vector<std::wstring> rewritten_;
};
