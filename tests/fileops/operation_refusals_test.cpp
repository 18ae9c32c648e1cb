// A dialog or a question that cannot be created: nothing is done that was not agreed to, and the next run
// finds everything in order.

#include "tests/fileops/operation_test.h"
#include "tests/fileops/operation_user.h"
#include "tests/support/refused_windows.h"

namespace {

// More than a run with one question makes.
constexpr int MostWindows = 100;

}  // namespace

class RefusedOperations : public OperationTest {
  protected:
    // Runs with each of its windows refused once, and a Yes for each question that is asked. The run is over
    // each time, its owner takes input again, and `done` tells whether it has done its work.
    template <typename Preparation, typename Done>
    void ExpectWorkOnlyAfterYes(Preparation prepare, Done done) {
        for (int number = 1; number < MostWindows; ++number) {
            SCOPED_TRACE(number);
            prepare();
            const bool refused = RunRefusing(number, done);
            EXPECT_FALSE(operation_.IsRunning());
            EXPECT_EQ(operation_.Handle(), nullptr);
            EXPECT_TRUE(IsWindowEnabled(host_.Handle()));
            prepare();
            Run({IDYES});
            EXPECT_TRUE(done());
            if (!refused) return;
        }
        FAIL() << "the run never stops making windows";
    }

  private:
    template <typename Done>
    bool RunRefusing(int number, Done done) {
        OperationUser user(operation_, {IDYES});
        const RefusedWindows refusal = RefusedWindows::Only(number);
        operation_.confirm = true;
        const INT_PTR result = operation_.RunModal();
        EXPECT_EQ(!user.Met().empty(), done());
        EXPECT_TRUE(result == 1 || (result == -1 && user.Met().empty()));
        return refusal.HasRefused();
    }
};

TEST_F(RefusedOperations, nothing_is_deleted_without_a_question) {
    ExpectWorkOnlyAfterYes(
        [this] {
            AddContents(tree_, "a.txt=a");
            Prepare(FileOperationKind::Delete, {"a.txt"}, "");
        },
        [this] { return !Has(Contents(), "a.txt=a"); });
}

TEST_F(RefusedOperations, nothing_is_replaced_without_a_question) {
    ExpectWorkOnlyAfterYes(
        [this] {
            AddContents(tree_, "a.txt=new to/a.txt=old");
            Prepare(FileOperationKind::Copy, {"a.txt"}, "to");
        },
        [this] { return Has(Contents(), "to/a.txt=new"); });
}
