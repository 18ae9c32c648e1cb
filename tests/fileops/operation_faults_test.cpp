// Every call to the file system fails once, and from then on, at each place of a run: what is told, and what
// is left.

#include <algorithm>

#include "tests/fileops/failing_calls.h"
#include "tests/fileops/operation_test.h"

namespace {

constexpr DWORD Codes[] = {ERROR_ACCESS_DENIED, ERROR_DISK_FULL, ERROR_SHARING_VIOLATION,
                           ERROR_PATH_NOT_FOUND, ERROR_DIR_NOT_EMPTY};

// Of the source's files s/a and s/m/b, the first has d/s/a in its way.
constexpr const char* Before = "s/a=new s/m/b=2 d/s/a=old d/x/y=3 keep/k=4";

std::string Numbered(const char* text, DWORD code) {
    return text + std::to_string(code);
}

std::string MoveText(DWORD code, const std::string& path) {
    if (code == ERROR_SHARING_VIOLATION) return path + " is in use";
    if (code == ERROR_DISK_FULL) return "There is not enough space on the disk";
    return Numbered("Error Move file ", code);
}

std::string CopyText(DWORD code, const std::string& path) {
    if (code == ERROR_SHARING_VIOLATION) return path + " is in use";
    if (code == ERROR_DISK_FULL) return "The disk is full";
    return Numbered("Error CopyFile ", code);
}

std::string CreateFolderText(DWORD code, const std::string& path) {
    if (code == ERROR_PATH_NOT_FOUND) return "Can't find the path specified. '" + path + "'";
    if (code == ERROR_DISK_FULL) return "There is not enough space on the disk.";
    return Numbered("Error CreateDirectory ", code);
}

// What the user is to be told of a change that failed.
std::string TextFor(const Change& change) {
    const std::string path(change.path.begin(), change.path.end());
    const DWORD code = change.code;
    switch (change.kind) {
        case Change::Kind::Copy:
            return CopyText(code, path);
        case Change::Kind::Move:
            return MoveText(code, path);
        case Change::Kind::Delete:
            return code == ERROR_ACCESS_DENIED ? "Access denied" : Numbered("Error DeleteFile ", code);
        case Change::Kind::CreateFolder:
            return CreateFolderText(code, path);
        case Change::Kind::RemoveFolder:
            return code == ERROR_DIR_NOT_EMPTY ? "Folder not empty"
                                               : Numbered("Error RemoveDirectory ", code);
        case Change::Kind::SetAttributes:
            return Numbered("Error SetFileAttribute ", code);
    }
    return "";
}

struct FaultCase {
    const char* name;
    FileOperationKind kind;
    const char* source;
    const char* destination;
    // What the user answers to every question; 0 for a run that asks about no file.
    int answer;
};

constexpr int YesToAll = 20;

const FaultCase FaultCases[] = {
    {"copy", FileOperationKind::Copy, "s", "d", IDYES},
    {"copy_unasked", FileOperationKind::Copy, "s", "d", 0},
    {"copy_to_a_new_folder", FileOperationKind::Copy, "s", "d\\new", 0},
    {"update", FileOperationKind::Update, "s", "d\\s", IDYES},
    {"update_unasked", FileOperationKind::Update, "s", "d\\s", 0},
    {"update_to_a_new_folder", FileOperationKind::Update, "s", "d\\new", 0},
    {"exclude", FileOperationKind::Exclude, "s", "d", IDYES},
    {"exclude_unasked", FileOperationKind::Exclude, "s", "d", 0},
    {"exclude_declined", FileOperationKind::Exclude, "s", "d", IDNO},
    {"move", FileOperationKind::Move, "s", "d", IDYES},
    {"move_with_yes_to_all", FileOperationKind::Move, "s", "d", YesToAll},
    {"move_unasked", FileOperationKind::Move, "s", "d", 0},
    {"move_to_a_new_folder", FileOperationKind::Move, "s", "d\\new", 0},
    {"delete_asked", FileOperationKind::Delete, "d", "", IDYES},
    {"delete_unasked", FileOperationKind::Delete, "d", "", 0},
    {"delete_declined", FileOperationKind::Delete, "d", "", IDNO},
};

void PrintTo(const FaultCase& row, std::ostream* out) {
    *out << row.name;
}

}  // namespace

class OperationFaults : public OperationTest, public testing::WithParamInterface<FaultCase> {
  protected:
    OperationFaults() {
        GetCurrentDirectoryW(MAX_PATH, folderBefore_);
        operation_.operation = GetParam().kind;
        EXPECT_TRUE(operation_.AddSource(Wide(GetParam().source).c_str()));
        EXPECT_TRUE(operation_.SetDestination(Wide(GetParam().destination).c_str()));
    }
    ~OperationFaults() override { SetCurrentDirectoryW(folderBefore_); }

    static std::wstring Wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

    // The first call fails, then the second, and so on until a run has no such call.
    void FailEachCall(Failing mode) {
        int calls = 0;
        for (Reached reached = RunWith(mode, 1, Codes[0]); reached != Reached::Nothing;
             reached = RunWith(mode, calls + 1, Codes[static_cast<std::size_t>(calls) % std::size(Codes)])) {
            ++calls;
            // Of a call that changes nothing, no code is ever looked at. Where all after it fail as well, and
            // in the runs with questions, which take long, one code for each place has to do.
            if (reached != Reached::Change || mode != Failing::Once || GetParam().answer != 0) continue;
            for (const DWORD code : Codes)
                RunWith(mode, calls, code);
        }
        // The shortest run is the exclusion that the user declines.
        EXPECT_GE(calls, 6);
    }

  private:
    // What the call was that had to fail.
    enum class Reached { Nothing, Look, Change };

    // One run over a fresh tree.
    Reached RunWith(Failing mode, int first, DWORD code) {
        TempTree fresh;
        AddContents(fresh, Before);
        // So that an update replaces it.
        SetLastWriteTime(PathIn(fresh, "d/s/a"), {2003, 1, 0, 1, 12, 0, 0, 0});
        // Short paths have no long way of folders that each have to be looked at.
        SetCurrentDirectoryW(fresh.Root().c_str());
        operation_.confirm = GetParam().answer != 0;
        const FailingCalls calls(mode, first, code);
        const std::string boxes = Run({operation_.confirm ? GetParam().answer : IDYES});
        SetCurrentDirectoryW(folderBefore_);
        SCOPED_TRACE("call " + std::to_string(first) +
                     (mode == Failing::Once ? " once" : " and all after it") + ", code " +
                     std::to_string(code));
        ExpectTold(calls.Changes(), boxes);
        EXPECT_EQ(calls.OpenSearches(), 0);
        ExpectNothingLost(ContentsOf(fresh));
        if (calls.Calls() < first) return Reached::Nothing;
        const bool isChange =
            std::ranges::any_of(calls.Changes(), [&](const Change& change) { return change.call == first; });
        return isChange ? Reached::Change : Reached::Look;
    }

    [[nodiscard]] static bool IsDeletion() {
        return GetParam().kind == FileOperationKind::Delete || GetParam().kind == FileOperationKind::Exclude;
    }
    // The resetting of attributes never ends a run, nor does the deletion of what a move replaces.
    [[nodiscard]] static bool EndsTheRun(const Change& change) {
        return change.kind != Change::Kind::SetAttributes &&
               !(change.kind == Change::Kind::Delete && GetParam().kind == FileOperationKind::Move);
    }

    // One box for each change that failed, in their order, and no change after one that ends the run.
    static void ExpectTold(const std::vector<Change>& changes, const std::string& boxes) {
        std::string expected;
        for (const Change& change : changes) {
            if (change.code == 0) continue;
            if (EndsTheRun(change)) {
                EXPECT_EQ(&change, &changes.back());
            }
            // Before a deletion the attributes are reset without a word.
            if (change.kind == Change::Kind::SetAttributes && IsDeletion()) continue;
            expected += (expected.empty() ? "" : "; ") + ("Error: " + TextFor(change));
        }
        EXPECT_EQ(ErrorsAmong(boxes), expected);
    }

    static std::string ErrorsAmong(const std::string& boxes) {
        std::string errors;
        for (std::size_t start = 0; start < boxes.size();) {
            const std::size_t end = std::min(boxes.find("; ", start), boxes.size());
            const std::string box = boxes.substr(start, end - start);
            if (box.starts_with("Error: ")) errors += (errors.empty() ? "" : "; ") + box;
            start = end + 2;
        }
        return errors;
    }

    static void ExpectNothingLost(const std::string& contents) {
        SCOPED_TRACE(contents);
        EXPECT_TRUE(Has(contents, "keep/k=4"));
        if (GetParam().kind == FileOperationKind::Move) {
            const std::string to = GetParam().destination == std::string("d") ? "d/s/" : "d/new/s/";
            // A folder that is not seen to be one goes, as a file would, to a path of its own.
            for (const std::string file : {"a=new", "m/b=2"}) {
                EXPECT_TRUE(Has(contents, "s/" + file) || Has(contents, to + file) ||
                            Has(contents, "d/new/" + file));
            }
        } else {
            EXPECT_TRUE(Has(contents, "s/a=new"));
            EXPECT_TRUE(Has(contents, "s/m/b=2"));
        }
        if (GetParam().kind == FileOperationKind::Copy || GetParam().kind == FileOperationKind::Update) {
            EXPECT_TRUE(Has(contents, "d/s/a=old") || Has(contents, "d/s/a=new"));
        }
        // What nobody wants deleted stays, and so does what the user says No about.
        if (!IsDeletion() || GetParam().answer == IDNO) {
            EXPECT_TRUE(Has(contents, "d/x/y=3"));
        }
        if (IsDeletion() && GetParam().answer == IDNO) {
            EXPECT_TRUE(Has(contents, "d/s/a=old"));
        }
    }

    wchar_t folderBefore_[MAX_PATH] = L"";
};

TEST_P(OperationFaults, a_call_that_fails_once_is_told_once_and_nothing_is_lost) {
    FailEachCall(Failing::Once);
}

TEST_P(OperationFaults, calls_that_fail_from_one_on_are_told_and_nothing_is_lost) {
    FailEachCall(Failing::FromThenOn);
}

INSTANTIATE_TEST_SUITE_P(Operations, OperationFaults, testing::ValuesIn(FaultCases),
                         testing::PrintToStringParamName());
