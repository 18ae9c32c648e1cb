// When the dialog paints itself: at once at each step, since a run takes one message a file and none in a
// long one.

#include "resources/resource_ids.h"
#include "tests/fileops/failing_calls.h"
#include "tests/fileops/operation_test.h"

namespace {

// Says when it ends whether something was left to paint.
class WatchedOperation : public FileOperation {
  public:
    using FileOperation::FileOperation;
    bool paintedAtEnd = false;

    void End(INT_PTR result) override {
        paintedAtEnd = GetUpdateRect(Handle(), nullptr, FALSE) == FALSE;
        FileOperation::End(result);
    }
};

}  // namespace

class OperationPainting : public OperationTest {
  protected:
    void Spoil() const { InvalidateRect(operation_.Handle(), nullptr, FALSE); }
    // The one message of the next file, so that it is not the painting itself.
    void PostOther() const { PostMessageW(host_.Handle(), WM_APP + 1, 0, 0); }
    [[nodiscard]] bool IsPainted() const { return !GetUpdateRect(operation_.Handle(), nullptr, FALSE); }
    // Three files of a folder, each of which finds the dialog spoiled and a message waiting.
    void ExpectPaintedForEachOfThree(FileOperationKind kind) {
        AddContents(tree_, "s/a=1 s/b=2 s/c=3 d/");
        operation_.confirm = false;
        Prepare(kind, {"s"}, "d");
        FailingCalls calls;
        std::wstring shown;
        std::vector<bool> painted;
        calls.atCall = [&](int) {
            const std::wstring now = Shown(STATIC_SOURCE);
            if (now != shown) painted.push_back(IsPainted());
            shown = now;
            Spoil();
            PostOther();
        };
        EXPECT_EQ(Run(), "");
        EXPECT_EQ(painted, (std::vector<bool>{true, true, true}));
    }
};

TEST_F(OperationPainting, is_done_before_the_run_begins) {
    WatchedOperation watched(&host_.Object());
    EXPECT_EQ(watched.RunModal(), 1);
    EXPECT_TRUE(watched.paintedAtEnd);
}

TEST_F(OperationPainting, is_done_before_each_item_of_the_list) {
    AddContents(tree_, "s/a=1 s/b=2 d/");
    operation_.confirm = false;
    Prepare(FileOperationKind::Copy, {"s/a", "s/b"}, "d");
    FailingCalls calls;
    std::size_t copies = 0;
    std::vector<bool> painted;
    calls.atCall = [&](int) {
        if (calls.Changes().size() > copies) painted.push_back(IsPainted());
        copies = calls.Changes().size();
        Spoil();
    };
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(painted, std::vector<bool>{true});
}

TEST_F(OperationPainting, is_done_for_each_file_of_a_folder_before_the_file_is_copied) {
    ExpectPaintedForEachOfThree(FileOperationKind::Copy);
}

TEST_F(OperationPainting, is_done_for_each_file_before_it_is_deleted) {
    ExpectPaintedForEachOfThree(FileOperationKind::Delete);
}
