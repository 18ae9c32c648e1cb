#pragma once

// One life of the program in random hands: a fresh device and registry, a start, some steps, an end, and
// whether all was well on the way.

#include <string>
#include <vector>

#include "tests/monkey/file_account.h"
#include "tests/monkey/plain_search.h"
#include "tests/monkey/random_hands.h"

class Life {
  public:
    Life(std::uint64_t seed, int number, Device& device, SharedJournal& journal, Figures& figures);

    // What went wrong, with the steps that led there; empty for nothing.
    [[nodiscard]] std::vector<std::string> Run();
    [[nodiscard]] const std::deque<std::string>& Trace() const { return hands_.Trace(); }

  private:
    using Texts = std::vector<std::wstring>;
    struct Settings {
        Texts names, locations;
        bool subFolders = false;
    };

    void PrepareSettings();
    void Start();
    void UseProgram();
    // False when the program has ended.
    bool TakeStep(int step);
    void RequireAnswer();
    void EndWithinLife();
    void FinishLife();
    void LookForLeftWindows();
    void LookForLeaks();
    void CompareSearch();
    void MakeConditionsPlain();
    [[nodiscard]] PlainConditions ShownConditions();
    [[nodiscard]] Settings ShownSettings();
    void CheckStoredSettings(const Settings& shown);
    void CheckNextStart();
    void CheckFiles();
    void CheckStoredTexts(const wchar_t* key);
    [[nodiscard]] std::wstring LastFault();
    void Complain(const std::string& text);

    std::uint64_t seed_;
    int number_;
    Random random_;
    bool wild_;
    Device& device_;
    SharedJournal& journal_;
    Figures& figures_;
    ProgramDriver program_;
    RandomHands hands_;
    DeviceEntries before_;
    DWORD processId_ = 0;
    int handlesAtStart_ = 0;
    std::vector<std::string> complaints_;
};
