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
};

const FaultCase FaultCases[] = {
    {"copy", FileOperationKind::Copy, "s", "d"},       {"update", FileOperationKind::Update, "s", "d\\s"},
    {"exclude", FileOperationKind::Exclude, "s", "d"}, {"move", FileOperationKind::Move, "s", "d"},
    {"delete_", FileOperationKind::Delete, "d", ""},
};

const FaultCase FaultCasesOfNewFolders[] = {
    {"copy_to_a_new_folder", FileOperationKind::Copy, "s", "d\\new"},
    {"move_to_a_new_folder", FileOperationKind::Move, "s", "d\\new"},
};

void PrintTo(const FaultCase& row, std::ostream* out) {
    *out << row.name;
}

bool Has(const std::string& contents, const std::string& entry) {
    return (" " + contents + " ").find(" " + entry + " ") != std::string::npos;
}

}  // namespace

class OperationFaults : public OperationTest, public testing::WithParamInterface<FaultCase> {
  protected:
    OperationFaults() {
        GetCurrentDirectoryW(MAX_PATH, folderBefore);
        operation.operation = GetParam().kind;
        EXPECT_TRUE(operation.AddSource(Wide(GetParam().source).c_str()));
        EXPECT_TRUE(operation.SetDestination(Wide(GetParam().destination).c_str()));
    }
    ~OperationFaults() override { SetCurrentDirectoryW(folderBefore); }

    static std::wstring Wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

    // One run over a fresh tree. Answers whether there was a call to fail.
    bool RunWith(Failing mode, int first, DWORD code) {
        TempTree fresh;
        AddContents(fresh, Before);
        // Short paths have no long way of folders that each have to be looked at.
        SetCurrentDirectoryW(fresh.Root().c_str());
        operation.confirm = !IsDeletion();
        const FailingCalls calls(mode, first, code);
        const std::string boxes = Run({IDYES});
        SetCurrentDirectoryW(folderBefore);
        SCOPED_TRACE("call " + std::to_string(first) +
                     (mode == Failing::Once ? " once" : " and all after it") + ", code " +
                     std::to_string(code));
        ExpectTold(calls.Changes(), boxes);
        EXPECT_EQ(calls.OpenSearches(), 0);
        ExpectNothingLost(ContentsOf(fresh));
        return calls.Calls() >= first;
    }

  private:
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
        if (!IsDeletion()) {
            EXPECT_TRUE(Has(contents, "d/x/y=3"));
        }
    }

    wchar_t folderBefore[MAX_PATH] = L"";
};

class NewFolderFaults : public OperationFaults {};

TEST_P(OperationFaults, a_call_that_fails_once_is_told_once_and_nothing_is_lost) {
    int first = 1;
    while (RunWith(Failing::Once, first, Codes[static_cast<std::size_t>(first) % std::size(Codes)]))
        ++first;
    EXPECT_GT(first, 10);
}

TEST_P(OperationFaults, calls_that_fail_from_one_on_are_told_and_nothing_is_lost) {
    int first = 1;
    while (RunWith(Failing::FromThenOn, first, Codes[static_cast<std::size_t>(first + 1) % std::size(Codes)]))
        ++first;
    EXPECT_GT(first, 10);
}

TEST_P(NewFolderFaults, are_told_once_and_nothing_is_lost) {
    int first = 1;
    while (RunWith(Failing::Once, first, Codes[static_cast<std::size_t>(first) % std::size(Codes)]))
        ++first;
    EXPECT_GT(first, 10);
}

INSTANTIATE_TEST_SUITE_P(Operations, OperationFaults, testing::ValuesIn(FaultCases),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Operations, NewFolderFaults, testing::ValuesIn(FaultCasesOfNewFolders),
                         testing::PrintToStringParamName());
