// The power goes in the middle of a file operation: before each of its changes, and at any time. Every file
// then stands in exactly one place, and of a copy the source is whole; done again, the operation comes to its
// end.

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <sstream>

#include "fileops/file_operation.h"
#include "tests/fileops/tree_contents.h"
#include "tests/program/program_world.h"

namespace {

constexpr DWORD EndedByForce = 77;
constexpr DWORD LongestRun = 30000;
constexpr int MostChanges = 100;
// Each of the four worlds has a quarter of the places.
constexpr int WorldCount = 4;

struct Operation {
    FileOperationKind kind;
    const char* name;
    const char* after;
    // The texts of files that somebody agreed to lose.
    std::vector<std::string> agreed;
    // Whether what is in s/ is to stay there.
    bool keepsSource;
};

constexpr const char* Before =
    "s/t/a=new s/t/b=B s/t/u/c=C s/t/w/x/e=E d/t/a=old d/t/k=K d/t/gone/y=Y d/t/gone/z=Z";

const Operation Operations[] = {
    {FileOperationKind::Copy,
     "copy",
     "s/t/a=new s/t/b=B s/t/u/c=C s/t/w/x/e=E d/t/a=new d/t/b=B d/t/u/c=C d/t/w/x/e=E d/t/k=K d/t/gone/y=Y "
     "d/t/gone/z=Z",
     {"old"},
     true},
    {FileOperationKind::Update,
     "update",
     "s/t/a=new s/t/b=B s/t/u/c=C s/t/w/x/e=E d/t/a=new d/t/b=B d/t/u/c=C d/t/w/x/e=E d/t/k=K d/t/gone/y=Y "
     "d/t/gone/z=Z",
     {"old"},
     true},
    {FileOperationKind::Exclude,
     "exclude",
     "s/t/a=new s/t/b=B s/t/u/c=C s/t/w/x/e=E d/t/a=old d/t/k=K",
     {"Y", "Z"},
     true},
    {FileOperationKind::Move,
     "move",
     "s/ d/t/a=new d/t/b=B d/t/u/c=C d/t/w/x/e=E d/t/k=K d/t/gone/y=Y d/t/gone/z=Z",
     {"old"},
     false},
    {FileOperationKind::Delete,
     "delete",
     "s/ d/t/a=old d/t/k=K d/t/gone/y=Y d/t/gone/z=Z",
     {"new", "B", "C", "E"},
     false},
};

using Files = std::map<std::string, std::string>;

// The files of a line of contents, by their paths. Folders hold nothing that could be lost.
Files FilesOf(const std::string& contents) {
    Files files;
    std::istringstream words(contents);
    for (std::string entry; words >> entry;) {
        const std::size_t equals = entry.find('=');
        if (equals != std::string::npos) files[entry.substr(0, equals)] = entry.substr(equals + 1);
    }
    return files;
}

std::ptrdiff_t TimesThere(const Files& files, const std::string& text) {
    return std::count_if(files.begin(), files.end(), [&](const auto& file) { return file.second == text; });
}

bool IsIn(const Files& files, const std::string& path, const std::string& text) {
    const auto found = files.find(path);
    return found != files.end() && found->second == text;
}

class PowerLoss : public testing::Test {
  protected:
    // A new tree, with the old file a day older than the new ones.
    void Prepare() {
        tree_ = std::make_unique<TempTree>();
        AddContents(*tree_, Before);
        for (const auto& [path, text] : FilesOf(Before))
            SetLastWriteTime(PathIn(*tree_, path),
                             {2003, 1, 0, static_cast<WORD>(text == "old" ? 1 : 2), 12, 0, 0, 0});
    }

    // The process that runs the operation until that change.
    [[nodiscard]] PROCESS_INFORMATION Start(const Operation& operation, int change) const {
        wchar_t path[MAX_PATH] = L"";
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        std::wstring program = path;
        program.resize(program.find_last_of(L'\\'));
        program += L"\\powerless_operation.exe";
        std::wstring line = L"\"" + program + L"\" " + std::to_wstring(static_cast<int>(operation.kind)) +
                            L" \"" + tree_->Root() + L"\" " + std::to_wstring(change);
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION process = {};
        EXPECT_TRUE(CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                   &startup, &process));
        return process;
    }
    // How it ended.
    [[nodiscard]] static DWORD CodeOf(const PROCESS_INFORMATION& process) {
        DWORD code = STILL_ACTIVE;
        EXPECT_EQ(WaitForSingleObject(process.hProcess, LongestRun), WAIT_OBJECT_0);
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
        return code;
    }
    DWORD Run(const Operation& operation, int change) const { return CodeOf(Start(operation, change)); }

    void ExpectNothingLost(const Operation& operation) const {
        const Files now = FilesOf(ContentsOf(*tree_));
        for (const auto& [path, text] : FilesOf(Before)) {
            const bool isAgreed = std::count(operation.agreed.begin(), operation.agreed.end(), text) > 0;
            const bool stays = operation.keepsSource && path[0] == 's';
            EXPECT_TRUE(!stays || IsIn(now, path, text)) << path << " is not what it was";
            EXPECT_TRUE(isAgreed || TimesThere(now, text) > 0) << text << " is lost";
            EXPECT_TRUE(stays || TimesThere(now, text) <= 1) << text << " is there twice";
        }
    }
    // Nothing but what stood there, or is to stand there in the end.
    void ExpectNothingElse(const Operation& operation) const {
        for (const auto& [path, text] : FilesOf(ContentsOf(*tree_)))
            EXPECT_TRUE(IsIn(FilesOf(Before), path, text) || IsIn(FilesOf(operation.after), path, text))
                << path << '=' << text;
    }
    void ExpectEndWhenDoneAgain(const Operation& operation) const {
        EXPECT_EQ(Run(operation, 0), 0u);
        EXPECT_EQ(InOrder(operation.after), ContentsOf(*tree_));
    }

    [[nodiscard]] static int FirstPlaceOfWorld() {
        return 1 + (World().japaneseSystem ? 2 : 0) + (World().screenWidth > World().screenHeight ? 1 : 0);
    }
    // How many ends at any time: more than usual where the environment says so.
    [[nodiscard]] static int Kills() {
        wchar_t text[16] = L"";
        return GetEnvironmentVariableW(L"QUORIN_POWER_KILLS", text, 16) > 0 ? _wtoi(text) : 1;
    }

    std::unique_ptr<TempTree> tree_;
};

}  // namespace

TEST_F(PowerLoss, before_any_change_of_a_file_operation_loses_no_file) {
    for (const Operation& operation : Operations) {
        for (int change = FirstPlaceOfWorld();; change += WorldCount) {
            SCOPED_TRACE(testing::Message() << operation.name << ", change " << change);
            ASSERT_LT(change, MostChanges);
            Prepare();
            const DWORD code = Run(operation, change);
            if (code == 0) {
                EXPECT_EQ(InOrder(operation.after), ContentsOf(*tree_));
                break;
            }
            ASSERT_EQ(code, EndedByForce);
            ExpectNothingLost(operation);
            ExpectNothingElse(operation);
            ExpectEndWhenDoneAgain(operation);
        }
    }
}

TEST_F(PowerLoss, at_any_time_of_a_file_operation_loses_no_file) {
    constexpr int LongestLife = 400;
    std::random_device seeds;
    for (int kill = 0; kill < Kills(); ++kill) {
        for (const Operation& operation : Operations) {
            const unsigned seed = seeds();
            const auto life = static_cast<DWORD>(seed % LongestLife);
            SCOPED_TRACE(testing::Message() << operation.name << ", after " << life << " ms");
            Prepare();
            const PROCESS_INFORMATION process = Start(operation, 0);
            Sleep(life);
            TerminateProcess(process.hProcess, EndedByForce);
            static_cast<void>(CodeOf(process));
            ExpectNothingLost(operation);
            ExpectEndWhenDoneAgain(operation);
        }
    }
}
