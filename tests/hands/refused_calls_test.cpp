// A system that refuses calls: each call that can fail is refused once in each place where a life of the
// program makes it, and from then on, with each of its codes. The program neither crashes nor hangs, loses no
// file, says what is true, and ends when it is told to. Here a few of these lives; tools/refusals runs them
// all.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <tuple>

#include "tests/hands/refusal_outcomes.h"
#include "tests/hands/refusal_plans.h"
#include "tests/hands/refusal_words.h"
#include "tests/program/program_test.h"
#include "tests/support/deadline.h"
#include "tests/support/probe/refusable_calls.h"
#include "tests/support/utf8.h"

namespace {

constexpr wchar_t ProductKey[] = L"Software\\QuorinSoft\\QuorinSearch";

constexpr wchar_t PathToChange[] = L"gamma\\delta.txt";

constexpr DWORD ExitWithoutWindow = 2;
constexpr DWORD ExitOutOfMemory = 3;

// Of the lives of a world one in so many is lived by ./test.
constexpr std::size_t LivesOmitted = 24;

// The system breaks the texts of narrow boxes anywhere.
std::wstring WithoutBlanks(std::wstring text) {
    std::erase_if(text, [](wchar_t unit) { return unit <= L' '; });
    return text;
}

DWORD SavedSubFolders(bool& isSaved) {
    DWORD number = 0;
    DWORD size = sizeof number;
    isSaved = RegGetValueW(HKEY_CURRENT_USER, ProductKey, L"Sub Folder", RRF_RT_REG_DWORD, nullptr, &number,
                           &size) == ERROR_SUCCESS;
    return number;
}

}  // namespace

class RefusedCalls : public testing::Test {
  protected:
    // What is true of every life, whatever is refused.
    void ExpectSound(const LifePlan& plan, const LifeReport& report) {
        ExpectFilesKept(report);
        ExpectTruth(plan, report);
        ExpectEnd(plan, report);
    }

    void Live(const LifePlan& plan) {
        SCOPED_TRACE("refused:" + Described(plan));
        try {
            const LifeReport report = RunTwiceAtMost(plan);
            ExpectSound(plan, report);
            if (RunsAll()) WriteOutcomes(plan, report);
        } catch (const DriverError& error) {
            ADD_FAILURE() << error.what();
            if (RunsAll()) WriteHang(plan);
        }
    }

    // A program that only this machine has kept waiting is not kept waiting twice.
    LifeReport RunTwiceAtMost(const LifePlan& plan) {
        try {
            return life.Run(plan);
        } catch (const DriverError& error) {
            std::printf("once more: %s\n", error.what());
        }
        return life.Run(plan);
    }

    // "all" or the name of a call for all lives in which that is refused; not set for a few lives.
    static std::string Wanted() {
        const char* const wanted = std::getenv("QUORIN_TEST_REFUSALS_OF");
        return wanted != nullptr ? wanted : "";
    }
    static bool RunsAll() { return !Wanted().empty(); }
    static bool IsWanted(const LifePlan& plan) {
        const std::string wanted = Wanted();
        return wanted.empty() || wanted == "all" || IsRefused(plan, {wanted.c_str()});
    }

    // This world's part.
    void LiveAll(const std::vector<LifePlan>& plans) {
        const std::size_t stride = RunsAll() ? 1 : LivesOmitted;
        std::size_t number = 0;
        for (const LifePlan& plan : plans)
            if (IsWanted(plan) && number++ % stride == 0) Live(plan);
        EXPECT_TRUE(number > 0 || RunsAll());
    }

    [[nodiscard]] std::vector<probe::CallPlace> Places() {
        Live({WholeLife, {}});
        Live({LifeWithUninstall, {}});
        std::vector<probe::CallPlace> places = life.CallsNoted();
        // In an order that no address decides.
        std::ranges::sort(places, [](const probe::CallPlace& one, const probe::CallPlace& other) {
            return std::tie(one.step, one.call, one.place) < std::tie(other.step, other.call, other.place);
        });
        return places;
    }

    // A whole life in which the call fails in this step, once or from then on, with its first code.
    LifeReport LiveRefusing(const char* name, LifeStep step, bool fromThenOn,
                            const LifeSteps& steps = WholeLife) {
        const LONG call = probe::RefusableCallNamed(name);
        const LifePlan plan = {steps, {{step, {call, 0, probe::RefusableCalls[call].codes[0], fromThenOn}}}};
        SCOPED_TRACE("refused:" + Described(plan));
        const LifeReport report = life.Run(plan);
        EXPECT_GT(report.At(step).timesRefused, 0);
        ExpectSound(plan, report);
        return report;
    }

    RefusedLife life;

  private:
    // Each file stands where it stood, with what it held, but for what was asked and agreed to.
    void ExpectFilesKept(const LifeReport& report) {
        KeptFiles files = life.Files();
        KeptFiles expected = life.FilesAtStart();
        TakeRename(report, files, expected);
        TakeDeletion(report, files, expected);
        TakeProperties(report, files, expected);
        TakeShortcuts(report, files, expected);
        for (const auto& [path, file] : expected) {
            const auto found = files.find(path);
            ASSERT_NE(files.end(), found) << "lost: " << Utf8(path);
            EXPECT_EQ(found->second.content, file.content) << Utf8(path);
            EXPECT_EQ(found->second.attributes, file.attributes) << Utf8(path);
            files.erase(found);
        }
        for (const auto& [path, file] : files)
            ADD_FAILURE() << "nobody asked for " << Utf8(path);
    }

    static void TakeRename(const LifeReport& report, const KeptFiles& files, KeptFiles& expected) {
        if (!report.At(LifeStep::Rename).isRenamed || !files.contains(RefusedLife::NewName)) return;
        expected[RefusedLife::NewName] = expected[RefusedLife::ToRename];
        expected.erase(RefusedLife::ToRename);
    }

    static void TakeDeletion(const LifeReport& report, const KeptFiles& files, KeptFiles& expected) {
        if (report.At(LifeStep::Delete).askedToDelete && !files.contains(RefusedLife::ToDelete))
            expected.erase(RefusedLife::ToDelete);
    }

    static void TakeProperties(const LifeReport& report, const KeptFiles& files, KeptFiles& expected) {
        const auto file = files.find(PathToChange);
        if (!report.At(LifeStep::Properties).isSheetTaken || file == files.end()) return;
        if (file->second.attributes == FILE_ATTRIBUTE_READONLY)
            expected[PathToChange].attributes = FILE_ATTRIBUTE_READONLY;
    }

    // A shortcut whose sheet was taken is written anew, or gone where that failed; a new one may stand in the
    // Start menu.
    static void TakeShortcuts(const LifeReport& report, KeptFiles& files, KeptFiles& expected) {
        if (report.At(LifeStep::Shortcut).isSheetTaken) {
            expected.erase(RefusedLife::Shortcut);
            files.erase(RefusedLife::Shortcut);
        }
        const auto isNew = [](const auto& file) {
            return file.first.starts_with(L"Windows\\") && file.first.ends_with(L".lnk");
        };
        if (report.At(LifeStep::StartMenu).isReached) {
            const auto found = std::ranges::find_if(files, isNew);
            if (found != files.end()) files.erase(found);
        }
    }

    // Rows and boxes say what has become of the files.
    void ExpectTruth(const LifePlan& plan, const LifeReport& report) {
        const KeptFiles files = life.Files();
        const bool renamed = files.contains(RefusedLife::NewName);
        const bool deleted = !files.contains(RefusedLife::ToDelete);
        EXPECT_TRUE(!renamed || report.At(LifeStep::Rename).errors.empty());
        EXPECT_TRUE(!deleted || report.At(LifeStep::Delete).errors.empty());
        for (const std::wstring& row : report.rows) {
            EXPECT_FALSE(row == RefusedLife::ToRename && renamed);
            EXPECT_FALSE(row == RefusedLife::NewName && !renamed);
            EXPECT_FALSE(row == RefusedLife::ToDelete && deleted);
        }
        for (const auto& [step, refusal] : plan.refusals)
            ExpectRightWords(step, refusal, report.At(step));
    }

    static void ExpectRightWords(LifeStep step, const StepRefusal& refusal, const StepReport& now) {
        if (!IsTold(step, refusal) || now.timesRefused == 0) return;
        const std::vector<std::wstring> texts = TextsOf(step, refusal);
        ASSERT_EQ(now.errors.size(), texts.size());
        for (std::size_t i = 0; i < texts.size(); ++i)
            EXPECT_EQ(WithoutBlanks(now.errors[i]), WithoutBlanks(texts[i]));
    }

    void ExpectEnd(const LifePlan& plan, const LifeReport& report) {
        const bool mayRunOut = IsRefused(plan, {"malloc"});
        if (mayRunOut && report.exitCode == ExitOutOfMemory) return;
        const bool goesOn = report.hadWindow || IsRefused(plan, {"GetMessageW"});
        EXPECT_EQ(report.exitCode, goesOn ? 0u : ExitWithoutWindow);
        for (const auto& [step, now] : report.steps)
            EXPECT_TRUE(!now.isAborted || IsRefused(plan, {"PostMessageW"})) << NameOf(step);
        if (report.steps.contains(LifeStep::Close) && report.exitCode == 0) ExpectSettingsSaved(plan, report);
    }

    void ExpectSettingsSaved(const LifePlan& plan, const LifeReport& report) {
        if (IsRefused(plan, {"RegCreateKeyExW", "RegSetValueExW"}) || !report.hadNamePage) return;
        bool isSaved = false;
        EXPECT_EQ(SavedSubFolders(isSaved), static_cast<DWORD>(report.subFolders));
        EXPECT_TRUE(isSaved);
    }
};

// Otherwise the others would prove nothing.
TEST_F(RefusedCalls, are_all_made_where_nothing_is_refused) {
    const LifeReport report = life.Run({WholeLife, {}});
    const KeptFiles files = life.Files();
    for (const LifeStep step : WholeLife)
        EXPECT_TRUE(report.At(step).isReached) << NameOf(step);
    EXPECT_TRUE(files.contains(RefusedLife::NewName));
    EXPECT_FALSE(files.contains(RefusedLife::ToRename));
    EXPECT_FALSE(files.contains(RefusedLife::ToDelete));
    EXPECT_EQ(files.at(PathToChange).attributes, static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    EXPECT_NE(life.FilesAtStart().at(RefusedLife::Shortcut), files.at(RefusedLife::Shortcut));
    EXPECT_EQ(files.size(), life.FilesAtStart().size());  // one is deleted, one is in the Start menu
    EXPECT_EQ(report.rows.size(), 3u);
    EXPECT_EQ(report.At(LifeStep::FailedRename).errors.size(), 2u);
    EXPECT_EQ(report.exitCode, 0u);
}

TEST_F(RefusedCalls, are_made_in_an_uninstall_where_nothing_is_refused) {
    const LifeReport report = life.Run({LifeWithUninstall, {}});
    EXPECT_TRUE(report.At(LifeStep::Uninstall).errors.empty());
    EXPECT_FALSE(report.steps.contains(LifeStep::Close));
    EXPECT_EQ(report.exitCode, 0u);
    bool isSaved = true;
    SavedSubFolders(isSaved);
    EXPECT_FALSE(isSaved);
}

TEST_F(RefusedCalls, that_load_the_shell_cost_its_icons_and_no_row) {
    const LifeReport report = LiveRefusing("LoadLibraryExW", LifeStep::Search, true);
    EXPECT_EQ(report.rows.size(), 3u);
}

TEST_F(RefusedCalls, that_take_a_message_are_made_again) {
    const LifeReport report = LiveRefusing("GetMessageW", LifeStep::Sort, false);
    EXPECT_TRUE(report.steps.contains(LifeStep::Close));
}

TEST_F(RefusedCalls, that_take_a_message_end_the_program_with_its_settings_saved_when_none_comes_any_more) {
    const LifeReport report = LiveRefusing("GetMessageW", LifeStep::Sort, true);
    EXPECT_FALSE(report.steps.contains(LifeStep::Close));
    bool isSaved = false;
    EXPECT_EQ(SavedSubFolders(isSaved), static_cast<DWORD>(BST_CHECKED));
    EXPECT_TRUE(isSaved);
}

TEST_F(RefusedCalls, that_give_a_bar_its_object_cost_the_bar) {
    const LifeReport report = LiveRefusing("SetWindowLongPtrW", LifeStep::Start, true);
    EXPECT_TRUE(report.hadWindow);
}

TEST_F(RefusedCalls, that_post_a_message_keep_no_program_open_that_was_uninstalled) {
    const LifeReport report = LiveRefusing("PostMessageW", LifeStep::Uninstall, true, LifeWithUninstall);
    EXPECT_FALSE(report.steps.contains(LifeStep::Close));
}

TEST_F(RefusedCalls, that_begin_to_paint_leave_windows_that_take_input) {
    const LifeReport report = LiveRefusing("BeginPaint", LifeStep::Start, true);
    EXPECT_TRUE(report.At(LifeStep::Delete).askedToDelete);
}

TEST_F(RefusedCalls, that_fail_once_cost_what_they_were_for) {
    const std::vector<LifePlan> plans = LivesWithRefusalsOnce(Places());
    EXPECT_GT(plans.size(), 25u);
    LiveAll(plans);
}

TEST_F(RefusedCalls, that_fail_from_then_on_leave_a_program_that_ends) {
    const std::vector<LifePlan> plans = LivesWithRefusalsFromThenOn(Places());
    EXPECT_GT(plans.size(), 25u);
    LiveAll(plans);
}
