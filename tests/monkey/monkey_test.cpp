// Random hands on the program: a few lives of fixed seeds among the tests, as many as there is time for where
// tools/monkey says so. The environment then gives the time, the seed and the first life.

#include <gtest/gtest.h>

#include <cstdio>

#include "tests/monkey/life.h"
#include "tests/program/results_test.h"
#include "tests/support/utf8.h"

namespace {

constexpr std::uint64_t SeedOfTests = 1;
constexpr int LivesOfTests = 2;

unsigned long long Number(const wchar_t* name, unsigned long long otherwise) {
    wchar_t value[32] = L"";
    if (GetEnvironmentVariableW(name, value, 32) == 0) return otherwise;
    return std::wcstoull(value, nullptr, 10);
}

std::string WorldName() {
    return std::string(World().japaneseSystem ? "ja-" : "en-") + std::to_string(World().screenWidth) + "x" +
           std::to_string(World().screenHeight);
}

// A program that crashed would otherwise stay behind a dialog of the system's.
void EndCrashedPrograms() {
    const DWORD no = 0;
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Wine\\WineDbg", L"ShowCrashDialog", REG_DWORD, &no,
                    sizeof no);
}

void Print(const Figures& figures) {
    std::printf(
        "%s: %d lives, %d starts, %d steps: %d of the pointer, %d keys, %d commands, %d messages, %d windows "
        "destroyed, %d work areas, %d changes of files; %d searches, %d compared; %d files deleted, %d "
        "renamed; "
        "%d ended by the hands; at most %d handles more; %d faults; %d findings\n",
        WorldName().c_str(), figures.lives, figures.starts, figures.steps, figures.pointer, figures.keys,
        figures.commands, figures.messages, figures.destroyed, figures.screens, figures.fileChanges,
        figures.searches, figures.comparedSearches, figures.deleted, figures.renamed, figures.ends,
        figures.mostHandlesMore, figures.faults, static_cast<int>(figures.findings.size()));
    std::fflush(stdout);
}

class RandomHandsTest : public testing::Test {
  protected:
    void SetUp() override {
        RegisterKinds();
        EndCrashedPrograms();
    }
    void TearDown() override {
        ForgetKinds();
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuorinSoft");
    }

    void RunLife(std::uint64_t seed, int number) {
        Life life(seed, number, device_, journal_, figures_);
        const std::vector<std::string> complaints = life.Run();
        if (complaints.empty()) return;
        std::string text = "tools/monkey --world " + WorldName() + " --seed " + std::to_string(seed) +
                           " --life " + std::to_string(number) + "\n";
        for (const std::string& complaint : complaints)
            text += "  " + complaint + "\n";
        text += "  after:\n";
        for (const std::string& step : life.Trace())
            text += "    " + step + "\n";
        figures_.findings.push_back(text);
        ADD_FAILURE() << text;
    }

    SharedJournal journal_;
    Device device_{journal_};
    Figures figures_;
};

}  // namespace

TEST_F(RandomHandsTest, the_program_bears_all_that_random_hands_do) {
    const std::uint64_t seed = Number(L"QUORIN_MONKEY_SEED", SeedOfTests);
    const int first = static_cast<int>(Number(L"QUORIN_MONKEY_LIFE", 1));
    const ULONGLONG seconds = Number(L"QUORIN_MONKEY_SECONDS", 0);
    const ULONGLONG end = GetTickCount64() + seconds * 1000;
    for (int life = first; seconds > 0 ? GetTickCount64() < end : life < first + LivesOfTests; ++life)
        RunLife(seed, life);
    Print(figures_);
}
