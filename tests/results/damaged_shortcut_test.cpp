// Shortcut files that were damaged at random: opened, added to the Start menu and looked at. What can still
// be read of one is used, the rest ends in silence, and the file stays as it is.

#include <memory>
#include <random>

#include "framework/property_set.h"
#include "resources/resource_ids.h"
#include "results/result_commands.h"
#include "tests/results/list_cells.h"
#include "tests/results/properties_test.h"

namespace {

constexpr int OpenRoom = 1040;
constexpr int OtherRoom = 260;

int started = 0;
int made = 0;

BOOL CountStart(SHELLEXECUTEINFOW*) {
    ++started;
    return TRUE;
}
BOOL CountMaking(const wchar_t*, const wchar_t*) {
    ++made;
    return TRUE;
}

// Up to the first blank, or between the quotes.
std::wstring ProgramPart(const std::wstring& target) {
    return target[0] == L'"' ? target.substr(1, target.find(L'"', 1) - 1)
                             : target.substr(0, target.find_first_of(L" \t"));
}
// What is left of a damaged target may be the folder that holds it.
bool IsFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string Damaged(const std::string& whole, std::mt19937& random) {
    std::string bytes = whole;
    switch (random() % 3) {
        case 0:
            bytes.resize(random() % whole.size());
            break;
        case 1:
            // The flags and what follows the header decide on how the rest is read.
            bytes[20 + random() % 4] = static_cast<char>(random());
            [[fallthrough]];
        default:
            for (int change = 0; change < 6; ++change)
                bytes[76 + random() % (bytes.size() - 76)] = static_cast<char>(random());
    }
    return bytes;
}

}  // namespace

class DamagedShortcut : public PropertiesTest {
  protected:
    DamagedShortcut() {
        started = 0;
        made = 0;
        PropertySet properties;
        properties.Set(property::Width, 220);
        properties.Set(property::Height, 150);
        list_ = std::make_unique<ResultList>(&host_.Object(), properties);
    }
    [[nodiscard]] std::wstring Target(int room) const {
        std::wstring text(static_cast<std::size_t>(room), L'\0');
        if (!ce::SHGetShortcutTarget(path_.c_str(), text.data(), room)) return L"";
        return text.substr(0, text.find(L'\0'));
    }
    void ExpectOpening() {
        const int before = started;
        ResultCommands(host_.Object(), *list_).Open();
        const std::wstring target = Target(OpenRoom);
        const bool opens = !target.empty() && !IsFolder(ProgramPart(target));
        EXPECT_EQ(started - before, opens ? 1 : 0) << testing::PrintToString(target);
    }
    void ExpectAdding() {
        const int before = made;
        ResultCommands(host_.Object(), *list_).AddToStartMenu();
        EXPECT_EQ(made - before, Target(OtherRoom).empty() ? 0 : 1);
    }
    void ExpectPage() {
        std::wstring shown = L"(no page)";
        ShowSheet(path_, IDCANCEL, [&](const OpenSheet& sheet) {
            sheet.TurnTo(1);
            shown = sheet.Text(EDIT_TARGET);
        });
        EXPECT_EQ(shown, Target(OtherRoom));
    }

    std::wstring path_ = tree_.Path(L"s.lnk");
    std::unique_ptr<ResultList> list_;
    Replaced<decltype(ce::ShortcutCalls::execute)> starting_{ce::shortcutCalls.execute, &CountStart};
};

TEST_F(DamagedShortcut, is_used_as_far_as_it_can_be_read_and_stays_as_it_is) {
    const std::wstring target = tree_.AddFile(L"a.txt", "text") + L" one two";
    ASSERT_TRUE(ce::SHCreateShortcut(path_.c_str(), target.c_str()));
    const std::string whole = BytesOf(path_);
    ASSERT_GT(whole.size(), 76u);
    const Replaced making(ce::shortcutCalls.create, &CountMaking);
    list_->AddMatch(path_.c_str(), FileEntry(L"s.lnk"));
    list_->SelectRow(0);
    std::mt19937 random(20021115);
    int readable = 0;
    for (int round = 0; round < 30; ++round) {
        SCOPED_TRACE(round);
        const std::string bytes = Damaged(whole, random);
        tree_.AddFile(L"s.lnk", bytes);
        readable += Target(OtherRoom).empty() ? 0 : 1;
        ExpectOpening();
        ExpectAdding();
        ExpectPage();
        EXPECT_EQ(BytesOf(path_), bytes);
    }
    // Both kinds were among them.
    EXPECT_GT(readable, 0);
    EXPECT_LT(readable, 30);
}
