// A run is stopped, and ends itself, at each of its places.

#include "resources/resource_ids.h"
#include "tests/fileops/failing_calls.h"
#include "tests/fileops/operation_test.h"

namespace {

constexpr const char* Before = "s/a=1 s/m/c=3 s/m/e=4 d/x/f=5 d/x/g=6";

// What stands in the way of some of the files, and is asked about.
constexpr const char* InTheWay = "d/s/a=old d/s/m/e=old d/a=old d/m/e=old";

bool ActsOnOneFile(const Change& change) {
    return change.kind == Change::Kind::Copy || change.kind == Change::Kind::Move ||
           change.kind == Change::Kind::Delete;
}

struct StopCase {
    const char* name;
    FileOperationKind kind;
};

const StopCase StopCases[] = {
    {"copy", FileOperationKind::Copy},       {"update", FileOperationKind::Update},
    {"exclude", FileOperationKind::Exclude}, {"move", FileOperationKind::Move},
    {"delete_", FileOperationKind::Delete},
};

void PrintTo(const StopCase& row, std::ostream* out) {
    *out << row.name;
}

}  // namespace

class OperationStop : public OperationTest, public testing::WithParamInterface<StopCase> {
  protected:
    // Runs the operation over a fresh tree and lets `act` happen at that call. With questions, all are
    // answered by Yes. Answers whether there was such a call.
    template <typename Act>
    bool StopAt(int call, Act act, bool withQuestions = false) {
        TempTree fresh;
        AddContents(fresh, Before);
        if (withQuestions && IsBringing()) AddOldFiles(fresh);
        operation_.operation = GetParam().kind;
        operation_.confirm = withQuestions;
        operation_.ClearSources();
        EXPECT_TRUE(operation_.AddSource(fresh.Path(L"s").c_str()));
        EXPECT_TRUE(operation_.SetDestination(fresh.Path(L"d").c_str()));
        FailingCalls calls;
        std::wstring inProgress, goesTo;
        std::size_t changesBefore = 0;
        calls.atCall = [&](int number) {
            if (number != call) return;
            inProgress = Shown(STATIC_SOURCE);
            goesTo = Shown(STATIC_DESTINATION);
            changesBefore = calls.Changes().size();
            act();
        };
        const std::string boxes = Run({IDYES});
        SCOPED_TRACE("stopped at call " + std::to_string(call) + ": " + ContentsOf(fresh));
        EXPECT_EQ(boxes.find("Error"), std::string::npos) << boxes;
        if (calls.Calls() < call) {
            EXPECT_EQ(!boxes.empty(), withQuestions);
            return false;
        }
        for (std::size_t i = changesBefore; i < calls.Changes().size(); ++i) {
            const Change& change = calls.Changes()[i];
            // A move deletes what is in its file's way.
            const std::wstring& file = change.path == goesTo ? goesTo : inProgress;
            if (ActsOnOneFile(change)) {
                EXPECT_EQ(change.path, file);
            }
        }
        EXPECT_EQ(calls.OpenSearches(), 0);
        ExpectNothingLost(ContentsOf(fresh));
        return true;
    }

    [[nodiscard]] static bool IsBringing() {
        return GetParam().kind != FileOperationKind::Exclude && GetParam().kind != FileOperationKind::Delete;
    }

    // Older than what takes their places, so that an update asks about them as well.
    static void AddOldFiles(TempTree& fresh) {
        AddContents(fresh, InTheWay);
        for (const char* const path : {"d/a", "d/m/e"})
            SetLastWriteTime(PathIn(fresh, path), {2003, 1, 0, 1, 12, 0, 0, 0});
    }

    static void ExpectNothingLost(const std::string& contents) {
        const FileOperationKind kind = GetParam().kind;
        // What an exclusion is there to delete.
        if (kind != FileOperationKind::Exclude) {
            EXPECT_TRUE(Has(contents, "d/x/f=5"));
        }
        if (kind == FileOperationKind::Delete) return;
        for (const std::string file : {"a=1", "m/c=3", "m/e=4"}) {
            const bool moved = kind == FileOperationKind::Move && Has(contents, "d/s/" + file);
            EXPECT_TRUE(moved || Has(contents, "s/" + file)) << file;
        }
    }
};

TEST_P(OperationStop, ends_the_run_before_the_next_file_wherever_it_is_pressed) {
    int call = 1;
    while (StopAt(call,
                  [this] { PostMessageW(GetDlgItem(operation_.Handle(), BUTTON_STOP), BM_CLICK, 0, 0); })) {
        ++call;
    }
    EXPECT_GT(call, 10);
}

TEST_P(OperationStop, ends_a_run_with_questions_likewise) {
    int call = 1;
    while (StopAt(
        call, [this] { PostMessageW(GetDlgItem(operation_.Handle(), BUTTON_STOP), BM_CLICK, 0, 0); }, true)) {
        ++call;
    }
    EXPECT_GT(call, 10);
}

TEST_P(OperationStop, is_what_closing_the_dialog_does) {
    for (int call = 1; call <= 16; call += 5)
        EXPECT_TRUE(StopAt(call, [this] { PostMessageW(operation_.Handle(), WM_CLOSE, 0, 0); }));
}

TEST_P(OperationStop, comes_with_the_end_of_the_program_which_still_ends) {
    for (int call = 1; call <= 16; call += 5) {
        EXPECT_TRUE(StopAt(call, [] { PostQuitMessage(7); }));
        MSG message = {};
        EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
        EXPECT_EQ(message.wParam, WPARAM{7});
    }
}

INSTANTIATE_TEST_SUITE_P(Operations, OperationStop, testing::ValuesIn(StopCases),
                         testing::PrintToStringParamName());
