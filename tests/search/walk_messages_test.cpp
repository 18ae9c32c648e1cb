// Messages that come while a walk goes on, at random moments and over folders of random slowness: each is
// answered, and in time.

#include <gtest/gtest.h>

#include <algorithm>

#include "search/walk_folder.h"
#include "tests/search/plain_walk.h"
#include "tests/search/random_folders.h"
#include "tests/search/recorded_search.h"

namespace {

constexpr UINT Asked = WM_APP + 1;
constexpr ULONGLONG LongestWait = 100;
constexpr int SlowestEntry = 4;
constexpr int SlowestFolder = 25;

// One message at a time, and what became of it.
class Visitor {
  public:
    explicit Visitor(bool abortsTheWalk) : aborts(abortsTheWalk) {
        current = this;
        window = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
    Visitor(const Visitor&) = delete;
    Visitor& operator=(const Visitor&) = delete;
    ~Visitor() {
        DestroyWindow(window);
        current = nullptr;
    }

    void Come() {
        if (waiting || (aborts && posted > 0)) return;
        waiting = PostMessageW(window, Asked, 0, 0) != FALSE;
        since = GetTickCount64();
        ++posted;
    }

    [[nodiscard]] bool WaitsTooLong() const { return waiting && GetTickCount64() - since >= LongestWait; }
    [[nodiscard]] bool HasAborted() const { return aborts && answered > 0; }

    int posted = 0;
    int answered = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != Asked) return DefWindowProcW(handle, message, wParam, lParam);
        current->waiting = false;
        ++current->answered;
        return 0;
    }

    static inline Visitor* current = nullptr;
    HWND window = nullptr;
    const bool aborts;
    bool waiting = false;
    ULONGLONG since = 0;  // in milliseconds of GetTickCount64
};

// Folders that take their time, and between whose entries the visitor comes.
class SlowFolders {
  public:
    SlowFolders(RandomFolders& folderRandom, Visitor& folderVisitor)
        : random(folderRandom), visitor(folderVisitor) {
        current = this;
    }
    SlowFolders(const SlowFolders&) = delete;
    SlowFolders& operator=(const SlowFolders&) = delete;
    ~SlowFolders() { current = nullptr; }

    int listedAfterAbort = 0;

  private:
    static HANDLE Start(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
        if (current->visitor.HasAborted()) ++current->listedAfterAbort;
        current->Delay(SlowestFolder);
        return current->start.Original()(pattern, data);
    }
    static BOOL Next(HANDLE search, WIN32_FIND_DATAW* data) {
        current->Delay(SlowestEntry);
        return current->next.Original()(search, data);
    }
    void Delay(int most) {
        if (random.UpTo(3) == 0) visitor.Come();
        Sleep(static_cast<DWORD>(random.UpTo(most)));
    }

    static inline SlowFolders* current = nullptr;
    RandomFolders& random;
    Visitor& visitor;
    Replaced<decltype(ce::FileCalls::findFirstFile)> start{ce::fileCalls.findFirstFile, Start};
    Replaced<decltype(ce::FileCalls::findNextFile)> next{ce::fileCalls.findNextFile, Next};
};

// Asked by the walk after every look at the queue.
class WatchingProgress final : public RecordingProgress {
  public:
    explicit WatchingProgress(const Visitor& watched) : visitor(watched) {}
    bool StopRequested() override {
        static_cast<void>(RecordingProgress::StopRequested());
        if (visitor.WaitsTooLong()) ++tooLong;
        return visitor.HasAborted();
    }

    int tooLong = 0;

  private:
    const Visitor& visitor;
};

// Folders of a seed, and what a walk finds in them.
class Walks {
  public:
    explicit Walks(unsigned seed) : random(seed) {
        random.Fill(folders, L"\\", 3);
        patterns = random.SomePatterns();
        RecordedWalk plain(SearchConditions::SubFolders, patterns);
        PlainWalkFolder(plain.walk, L"\\");
        plainPaths = plain.sink.paths;
    }

    [[nodiscard]] const std::vector<std::wstring>& PlainPaths() const { return plainPaths; }

    std::vector<std::wstring> PathsWith(Visitor& visitor) {
        SlowFolders slow(random, visitor);
        WatchingProgress progress(visitor);
        RecordedWalk recorded(SearchConditions::SubFolders, patterns);
        SearchWalk walk{recorded.conditions, recorded.patterns, L"", recorded.sink, progress};
        WalkFolder(walk, L"\\");
        EXPECT_EQ(progress.tooLong, 0);
        EXPECT_EQ(slow.listedAfterAbort, 0);
        return recorded.sink.paths;
    }

  private:
    RandomFolders random;
    FakeFolders folders;
    std::vector<const wchar_t*> patterns;
    std::vector<std::wstring> plainPaths;
};

constexpr unsigned Seeds = 16;

}  // namespace

TEST(WalkMessages, each_is_answered_in_time_and_changes_nothing_of_what_is_found) {
    int answered = 0;
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        Walks walks(seed);
        Visitor visitor(false);
        EXPECT_EQ(walks.PathsWith(visitor), walks.PlainPaths());
        // The last may have come behind the last look.
        EXPECT_GE(visitor.answered, visitor.posted - 1);
        answered += visitor.answered;
    }
    EXPECT_GT(answered, 2 * static_cast<int>(Seeds));
}

TEST(WalkMessages, an_abort_is_seen_in_time_and_leaves_a_beginning_of_what_is_found) {
    int cutShort = 0;
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        Walks walks(seed);
        Visitor visitor(true);
        const std::vector<std::wstring> found = walks.PathsWith(visitor);
        const std::vector<std::wstring>& all = walks.PlainPaths();
        ASSERT_LE(found.size(), all.size());
        EXPECT_TRUE(std::equal(found.begin(), found.end(), all.begin()));
        EXPECT_TRUE(visitor.HasAborted() || found == all);
        if (found.size() < all.size()) ++cutShort;
    }
    EXPECT_GT(cutShort, 0);
}
