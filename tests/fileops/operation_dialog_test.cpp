// What the dialog shows during a run.

#include "resources/resource_ids.h"
#include "tests/fileops/failing_calls.h"
#include "tests/fileops/operation_test.h"

namespace {

// What stood in the dialog at some moment.
struct Look {
    std::wstring title, sourceLabel, source, destinationLabel, destination;
};

struct TextsCase {
    const char* name;
    FileOperationKind kind;
    UiLanguage language;
    const wchar_t* title;
    const wchar_t* sourceLabel;
    const wchar_t* destinationLabel;
};

constexpr UiLanguage English = UiLanguage::English;
constexpr UiLanguage Japanese = UiLanguage::Japanese;

const TextsCase TextsCases[] = {
    {"copy", FileOperationKind::Copy, English, L"File Copy Progress", L"Source file:", L"Destination file:"},
    {"update", FileOperationKind::Update, English, L"File Update Progress", L"Source file:",
     L"Destination file:"},
    {"exclude", FileOperationKind::Exclude, English, L"File Exclude Progress", L"Source file:",
     L"Destination file"},
    {"move", FileOperationKind::Move, English, L"File Move Progress", L"Source file:", L"Destination file:"},
    {"delete_", FileOperationKind::Delete, English, L"File Delete Progress", L"Delete file:", L""},
    {"copy_in_japanese", FileOperationKind::Copy, Japanese, L"ﾌｧｲﾙのｺﾋﾟｰ中", L"ｺﾋﾟｰ元", L"ｺﾋﾟｰ先"},
    {"update_in_japanese", FileOperationKind::Update, Japanese, L"ﾌｧｲﾙのｱｯﾌﾟﾃﾞｰﾄ中", L"ｱｯﾌﾟﾃﾞｰﾄ元",
     L"ｱｯﾌﾟﾃﾞｰﾄ先"},
    {"exclude_in_japanese", FileOperationKind::Exclude, Japanese, L"ﾌｧｲﾙの排除中", L"排除元", L"排除先"},
    {"move_in_japanese", FileOperationKind::Move, Japanese, L"ﾌｧｲﾙの移動中", L"移動元", L"移動先"},
    {"delete_in_japanese", FileOperationKind::Delete, Japanese, L"ﾌｧｲﾙの削除中", L"削除するﾌｧｲﾙ", L""},
};

void PrintTo(const TextsCase& row, std::ostream* out) {
    *out << row.name;
}

// Remembers its title when it is created and when it ends.
class TitledOperation : public FileOperation {
  public:
    using FileOperation::FileOperation;

    std::wstring titleAtStart, titleAtEnd;
    bool visibleAtEnd = false;

    void End(INT_PTR result) override {
        titleAtEnd = Title();
        visibleAtEnd = IsWindowVisible(Handle()) != FALSE;
        FileOperation::End(result);
    }

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override {
        titleAtStart = Title();
        return FileOperation::OnInitDialog(record);
    }

  private:
    [[nodiscard]] std::wstring Title() const {
        wchar_t title[64] = L"";
        GetWindowTextW(Handle(), title, 64);
        return title;
    }
};

class MessageCounter : public WindowObject {
  public:
    MessageCounter() : WindowObject(nullptr, nullptr) {}
    LRESULT Count(MessageRecord&) {
        ++count;
        return 0;
    }
    int count = 0;
};

}  // namespace

class OperationDialog : public OperationTest {
  protected:
    using OperationTest::OperationTest;

    [[nodiscard]] Look LookNow() const {
        wchar_t title[64] = L"";
        GetWindowTextW(operation_.Handle(), title, 64);
        return {title, Shown(LABEL_SOURCE), Shown(STATIC_SOURCE), Shown(LABEL_DESTINATION),
                Shown(STATIC_DESTINATION)};
    }
};

class OperationTexts : public OperationDialog, public testing::WithParamInterface<TextsCase> {
  protected:
    OperationTexts() : OperationDialog(GetParam().language) {}
};

TEST_P(OperationTexts, name_the_operation_before_the_first_file) {
    AddContents(tree_, "s/a=1 d/");
    operation_.confirm = false;
    Prepare(GetParam().kind, {"s"}, "d");
    FailingCalls calls;
    Look look;
    calls.atCall = [&](int number) {
        if (number == 1) look = LookNow();
    };
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(look.title, GetParam().title);
    EXPECT_EQ(look.sourceLabel, GetParam().sourceLabel);
    EXPECT_EQ(look.destinationLabel, GetParam().destinationLabel);
    EXPECT_EQ(look.source, L"");
    EXPECT_EQ(look.destination, L"");
}

TEST_P(OperationTexts, without_a_source_are_the_title_alone_of_a_dialog_that_closes_at_once) {
    TitledOperation titled(&host_.Object());
    titled.operation = GetParam().kind;
    EXPECT_EQ(titled.RunModal(), 1);
    EXPECT_EQ(titled.titleAtStart, GetParam().language == English ? L"File Operation..." : L"ﾌｧｲﾙ操作中...");
    EXPECT_EQ(titled.titleAtEnd, GetParam().title);
    EXPECT_TRUE(titled.visibleAtEnd);
    EXPECT_EQ(titled.Handle(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Operations, OperationTexts, testing::ValuesIn(TextsCases),
                         testing::PrintToStringParamName());

TEST_F(OperationDialog, shows_each_file_with_where_it_goes) {
    AddContents(tree_, "s/a=1 s/m/b=2 d/");
    operation_.confirm = false;
    Prepare(FileOperationKind::Copy, {"s"}, "d");
    FailingCalls calls;
    std::vector<Look> looks;
    calls.atCall = [&](int) {
        const Look now = LookNow();
        if (looks.empty() || looks.back().source != now.source) looks.push_back(now);
    };
    EXPECT_EQ(Run(), "");
    ASSERT_EQ(looks.size(), 3u);
    EXPECT_EQ(looks[1].source, PathIn(tree_, "s/a"));
    EXPECT_EQ(looks[1].destination, PathIn(tree_, "d/s/a"));
    EXPECT_EQ(looks[2].source, PathIn(tree_, "s/m/b"));
    EXPECT_EQ(looks[2].destination, PathIn(tree_, "d/s/m/b"));
}

TEST_F(OperationDialog, shows_no_destination_while_it_deletes) {
    AddContents(tree_, "s/a=1 d/");
    operation_.confirm = false;
    Prepare(FileOperationKind::Delete, {"s"}, "d");
    FailingCalls calls;
    Look last;
    calls.atCall = [&](int) { last = LookNow(); };
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(last.source, PathIn(tree_, "s/a"));
    EXPECT_EQ(last.destination, L"");
}

TEST_F(OperationDialog, is_visible_over_its_owner_which_takes_no_input) {
    AddContents(tree_, "s/a=1 d/");
    Prepare(FileOperationKind::Copy, {"s"}, "d");
    FailingCalls calls;
    calls.atCall = [&](int number) {
        if (number != 1) return;
        EXPECT_TRUE(IsWindowVisible(operation_.Handle()));
        EXPECT_EQ(GetWindow(operation_.Handle(), GW_OWNER), host_.Handle());
        EXPECT_FALSE(IsWindowEnabled(host_.Handle()));
        EXPECT_TRUE(operation_.IsRunning());
    };
    EXPECT_EQ(Run(), "");
    EXPECT_GT(calls.Calls(), 1);
}

TEST_F(OperationDialog, does_nothing_for_an_unknown_operation) {
    AddContents(tree_, "s/a=1 d/");
    for (const std::uint32_t kind : {5u, 0xFFFFFFFFu}) {
        TitledOperation titled(&host_.Object());
        titled.operation = static_cast<FileOperationKind>(kind);
        ASSERT_TRUE(titled.AddSource(PathIn(tree_, "s").c_str()));
        ASSERT_TRUE(titled.SetDestination(PathIn(tree_, "d").c_str()));
        EXPECT_EQ(titled.RunModal(), 1);
        EXPECT_EQ(titled.titleAtEnd, L"File Operation...");
        EXPECT_EQ(Contents(), InOrder("s/a=1 d/"));
    }
}

TEST_F(OperationDialog, takes_one_message_for_each_file) {
    AddContents(tree_, "s/a=1 s/b=2 s/c=3 d/");
    Prepare(FileOperationKind::Copy, {"s/a", "s/b", "s/c"}, "d");
    MessageCounter counter;
    host_.Object().OnMessage(WM_APP + 1, &counter, &MessageCounter::Count);
    FailingCalls calls;
    std::vector<int> countsAtCopies;
    std::wstring lastSource;
    calls.atCall = [&](int number) {
        for (int i = 0; number == 1 && i < 9; ++i)
            PostMessageW(host_.Handle(), WM_APP + 1, 0, 0);
        if (Shown(STATIC_SOURCE) == lastSource) return;
        lastSource = Shown(STATIC_SOURCE);
        countsAtCopies.push_back(counter.count);
    };
    EXPECT_EQ(Run(), "");
    EXPECT_EQ(countsAtCopies, (std::vector<int>{1, 2, 3}));
}

TEST_F(OperationDialog, and_the_main_window_are_painted_at_once_after_a_yes) {
    AddContents(tree_, "s/a=new d/a=old");
    for (const int answer : {IDYES, 20}) {
        operation_.confirm = true;
        Prepare(FileOperationKind::Copy, {"s/a"}, "d");
        FailingCalls calls;
        bool asked = false;
        bool painted = false;
        calls.atCall = [&](int) {
            painted = asked && !GetUpdateRect(host_.Handle(), nullptr, FALSE) &&
                      !GetUpdateRect(operation_.Handle(), nullptr, FALSE);
        };
        const auto atBox = [&](HWND) {
            asked = true;
            InvalidateRect(host_.Handle(), nullptr, FALSE);
            InvalidateRect(operation_.Handle(), nullptr, FALSE);
        };
        EXPECT_EQ(Run({answer}, atBox), "Confirm File Replace/4");
        EXPECT_TRUE(painted) << answer;
    }
}
