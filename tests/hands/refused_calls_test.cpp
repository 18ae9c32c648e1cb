// A system that refuses calls: each call that can fail is refused once in each place where a life of the
// program makes it, and from then on, with each of its codes. The program neither crashes nor hangs, loses no
// file, says what is true, and ends when it is told to. Here a few of these lives; tools/refusals runs them
// all.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <tuple>

#include "tests/hands/refused_life.h"
#include "tests/program/program_test.h"
#include "tests/support/deadline.h"
#include "tests/support/probe/refusable_calls.h"
#include "tests/support/utf8.h"

namespace {

constexpr wchar_t ProductKey[] = L"Software\\QuorinSoft\\QuorinSearch";

constexpr wchar_t PathToChange[] = L"gamma\\delta.txt";

constexpr DWORD ExitWithoutWindow = 2;
constexpr DWORD ExitOutOfMemory = 3;

constexpr LONG WorldCount = 4;
// Of the lives of a world one in so many is lived by ./test.
constexpr std::size_t LivesOmitted = 24;

LONG NumberOfWorld() {
    const LONG language = World().japaneseSystem ? 2 : 0;
    return language + (World().screenWidth > World().screenHeight ? 1 : 0);
}

const LifeSteps ShortLife = {LifeStep::Start, LifeStep::Search, LifeStep::Rename, LifeStep::Close};
const LifeSteps WholeLife = {
    LifeStep::Start,  LifeStep::Search, LifeStep::Sort,       LifeStep::View,     LifeStep::FailedRename,
    LifeStep::Rename, LifeStep::Delete, LifeStep::Properties, LifeStep::Shortcut, LifeStep::StartMenu,
    LifeStep::Browse, LifeStep::About,  LifeStep::Close};
// The uninstall ends a life, and where it fails the close box does.
const LifeSteps LifeWithUninstall = {LifeStep::Start, LifeStep::Search, LifeStep::Uninstall, LifeStep::Close};

const probe::RefusableCall& CallOf(const StepRefusal& refusal) {
    return probe::RefusableCalls[refusal.call];
}

bool IsCall(const StepRefusal& refusal, std::initializer_list<const char*> names) {
    return std::ranges::any_of(
        names, [&](const char* name) { return refusal.call == probe::RefusableCallNamed(name); });
}

// The system breaks the texts of narrow boxes anywhere.
std::wstring WithoutBlanks(std::wstring text) {
    std::erase_if(text, [](wchar_t unit) { return unit <= L' '; });
    return text;
}

std::wstring Numbered(const wchar_t* text, DWORD code) {
    return text + std::to_wstring(code);
}

// The texts of the file actions and of the uninstall, as they are to be.
std::wstring MoveText(DWORD code) {
    if (code == ERROR_SHARING_VIOLATION) return Shown(L"\\alpha.txt is in use", L"\\alpha.txt は使用中です");
    if (code == ERROR_DISK_FULL)
        return Shown(L"There is not enough space on the disk", L"ﾃﾞｨｽｸがいっぱいです");
    return Numbered(L"Error Move file ", code);
}

std::wstring DeleteText(DWORD code) {
    if (code == ERROR_ACCESS_DENIED) return Shown(L"Access denied", L"ﾌｧｲﾙにｱｸｾｽできません");
    return Numbered(L"Error DeleteFile ", code);
}

struct ToldCall {
    const char* name;
    LifeStep step;
};
// The calls whose failure the user is told of in these steps.
constexpr ToldCall ToldCalls[] = {{"MoveFileW", LifeStep::Rename},
                                  {"MoveFileW", LifeStep::FailedRename},
                                  {"DeleteFileW", LifeStep::Delete},
                                  {"SetFileAttributesW", LifeStep::Properties},
                                  {"RegDeleteTreeW", LifeStep::Uninstall}};

bool IsTold(LifeStep step, const StepRefusal& refusal) {
    return std::ranges::any_of(
        ToldCalls, [&](const ToldCall& told) { return told.step == step && IsCall(refusal, {told.name}); });
}

std::vector<std::wstring> TextsOf(LifeStep step, const StepRefusal& refusal) {
    switch (step) {
        case LifeStep::FailedRename:
        case LifeStep::Rename:
            return {MoveText(refusal.code), Shown(L"Can't rename the file", L"名前の変更に失敗しました")};
        case LifeStep::Delete:
            return {DeleteText(refusal.code)};
        case LifeStep::Properties:
            return {Numbered(L"Error SetFileAttribute ", refusal.code)};
        case LifeStep::Uninstall:
            return {Shown(L"Uninstall fail!", L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!")};
        default:
            return {};
    }
}

std::string Described(LifeStep step, const StepRefusal& refusal) {
    std::string text = std::string(CallOf(refusal).name) + ", code " + std::to_string(refusal.code) +
                       (refusal.fromThenOn ? ", from then on" : ", once");
    if (refusal.place != 0) text += ", at " + std::to_string(refusal.place);
    return text + ", in the step: " + NameOf(step);
}

std::string Described(const LifePlan& plan) {
    std::string text;
    for (const auto& [step, refusal] : plan.refusals)
        text += "\n  " + Described(step, refusal);
    return text;
}

// The texts that are not the same in both languages, for the table.
std::wstring InEnglish(const std::wstring& text) {
    constexpr const wchar_t* Pairs[][2] = {{L"Can't rename the file", L"名前の変更に失敗しました"},
                                           {L"There is not enough space on the disk", L"ﾃﾞｨｽｸがいっぱいです"},
                                           {L"Access denied", L"ﾌｧｲﾙにｱｸｾｽできません"},
                                           {L"Uninstall fail!", L"ｱﾝｲﾝｽﾄｰﾙに失敗しました!"},
                                           {L"\\alpha.txt is in use", L"\\alpha.txt は使用中です"}};
    for (const auto& [english, japanese] : Pairs)
        if (text == japanese) return english;
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
        ExpectFilesKept(plan, report);
        ExpectTruth(plan, report);
        ExpectEnd(plan, report);
    }

    void Live(const LifePlan& plan) {
        SCOPED_TRACE("refused:" + Described(plan));
        try {
            const LifeReport report = RunTwiceAtMost(plan);
            ExpectSound(plan, report);
            WriteOutcomes(plan, report);
        } catch (const DriverError& error) {
            ADD_FAILURE() << error.what();
            WriteLine(plan, "hangs");
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
    static bool IsRefused(const LifePlan& plan, std::initializer_list<const char*> names) {
        return std::ranges::any_of(plan.refusals,
                                   [&](const auto& part) { return IsCall(part.second, names); });
    }

    // Each file stands where it stood, with what it held, but for what was asked and agreed to.
    void ExpectFilesKept(const LifePlan&, const LifeReport& report) {
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

    // A line for each refusal that has taken place, for the matrix: call, code, how often, step, outcome.
    void WriteOutcomes(const LifePlan& plan, const LifeReport& report) {
        if (!RunsAll()) return;
        for (const auto& [step, refusal] : plan.refusals) {
            const StepReport& now = report.At(step);
            if (now.timesRefused == 0) {
                WriteLine(step, refusal, "not reached");
            } else {
                WriteLine(step, refusal, refusal.fromThenOn ? OutcomeOfAll(report) : OutcomeOf(step, report));
            }
        }
    }

    static void AddOutcome(std::set<std::string>& outcomes, const StepReport& now) {
        for (const std::wstring& text : now.errors)
            outcomes.insert("told: " + Utf8(InEnglish(text)));
        if (!now.fatals.empty()) outcomes.insert("told of the window");
        if (now.isAborted) outcomes.insert("Abort ends the search");
    }

    static std::string Joined(const std::set<std::string>& outcomes) {
        std::string text;
        for (const std::string& outcome : outcomes)
            text += (text.empty() ? "" : "; ") + outcome;
        return text.empty() ? "goes on" : text;
    }

    static void AddEnd(std::set<std::string>& outcomes, const LifeReport& report) {
        if (report.exitCode != 0) outcomes.insert("ends with " + std::to_string(report.exitCode));
    }

    static std::string OutcomeOf(LifeStep step, const LifeReport& report) {
        std::set<std::string> outcomes;
        AddOutcome(outcomes, report.At(step));
        if (step == report.steps.rbegin()->first) AddEnd(outcomes, report);
        return Joined(outcomes);
    }

    static std::string OutcomeOfAll(const LifeReport& report) {
        std::set<std::string> outcomes;
        for (const auto& [step, now] : report.steps)
            AddOutcome(outcomes, now);
        AddEnd(outcomes, report);
        return Joined(outcomes);
    }

    static void WriteLine(const LifePlan& plan, const std::string& outcome) {
        for (const auto& [step, refusal] : plan.refusals)
            WriteLine(step, refusal, outcome);
    }

    static void WriteLine(LifeStep step, const StepRefusal& refusal, const std::string& outcome) {
        if (!RunsAll()) return;
        std::printf("REFUSAL|%s|%lu|%s|%s|%s\n", CallOf(refusal).name, refusal.code,
                    refusal.fromThenOn ? "from then on" : "once", NameOf(step), outcome.c_str());
        std::fflush(stdout);
    }
};

namespace {

// Whichever places a world has noted, each refusal is one world's.
bool IsOfThisWorld(LifeStep step, const StepRefusal& refusal) {
    const auto sum =
        static_cast<DWORD>(refusal.call + refusal.place) + refusal.code + static_cast<DWORD>(step);
    return sum % WorldCount == static_cast<DWORD>(NumberOfWorld());
}

// Every place, with each code of its call where the user is told of it, and with another one each time
// elsewhere; by step.
std::map<LifeStep, std::vector<StepRefusal>> OnceByStep(const std::vector<probe::CallPlace>& places) {
    std::map<LifeStep, std::vector<StepRefusal>> refusals;
    for (const probe::CallPlace& place : places) {
        const auto step = static_cast<LifeStep>(place.step);
        const probe::RefusableCall& call = probe::RefusableCalls[place.call];
        StepRefusal refusal = {place.call, place.place, 0, false};
        const std::size_t number = IsTold(step, refusal) ? call.CodeCount() : 1;
        for (std::size_t i = 0; i < number; ++i) {
            // By the place, so that all worlds choose the same one.
            refusal.code = call.codes[(static_cast<std::size_t>(place.place) + i) % call.CodeCount()];
            if (IsOfThisWorld(step, refusal)) refusals[step].push_back(refusal);
        }
    }
    return refusals;
}

// What fails at the start, in the search or in the uninstall may cost everything that follows. All others
// share lives, one a step.
std::vector<LifePlan> LivesWithRefusalsOnce(const std::vector<probe::CallPlace>& places) {
    std::map<LifeStep, std::vector<StepRefusal>> refusals = OnceByStep(places);
    std::vector<LifePlan> plans;
    for (const LifeStep step : {LifeStep::Start, LifeStep::Search, LifeStep::Uninstall}) {
        const LifeSteps& steps = step == LifeStep::Uninstall ? LifeWithUninstall : ShortLife;
        for (const StepRefusal& refusal : refusals[step])
            plans.push_back({steps, {{step, refusal}}});
        refusals.erase(step);
    }
    for (std::size_t number = 0;; ++number) {
        LifePlan plan = {WholeLife, {}};
        for (const auto& [step, all] : refusals)
            if (number < all.size()) plan.refusals[step] = all[number];
        if (plan.refusals.empty()) return plans;
        plans.push_back(plan);
    }
}

// Each call from each step on in which it is made.
std::vector<LifePlan> LivesWithRefusalsFromThenOn(const std::vector<probe::CallPlace>& places) {
    std::set<std::pair<LONG, LONG>> known;
    std::vector<LifePlan> plans;
    for (const probe::CallPlace& place : places) {
        if (!known.emplace(place.call, place.step).second) continue;
        const auto step = static_cast<LifeStep>(place.step);
        const StepRefusal refusal = {place.call, 0, probe::RefusableCalls[place.call].codes[0], true};
        if (!IsOfThisWorld(step, refusal)) continue;
        plans.push_back({step == LifeStep::Uninstall ? LifeWithUninstall : WholeLife, {{step, refusal}}});
    }
    return plans;
}

}  // namespace

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
