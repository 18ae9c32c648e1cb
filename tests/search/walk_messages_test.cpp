// Messages that come while a walk goes on, at random moments and over folders of random slowness: each is
// answered, and in time.

#include <gtest/gtest.h>

#include <algorithm>

#include "search/search_walk.h"
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
    explicit Visitor(bool abortsTheWalk) : aborts_(abortsTheWalk) {
        current = this;
        window_ = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
    Visitor(const Visitor&) = delete;
    Visitor& operator=(const Visitor&) = delete;
    ~Visitor() {
        DestroyWindow(window_);
        current = nullptr;
    }

    void Come() {
        if (waiting_ || (aborts_ && posted > 0)) return;
        waiting_ = PostMessageW(window_, Asked, 0, 0) != FALSE;
        since_ = GetTickCount64();
        ++posted;
    }

    [[nodiscard]] bool WaitsTooLong() const { return waiting_ && GetTickCount64() - since_ >= LongestWait; }
    [[nodiscard]] bool HasAborted() const { return aborts_ && answered > 0; }

    int posted = 0;
    int answered = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != Asked) return DefWindowProcW(handle, message, wParam, lParam);
        current->waiting_ = false;
        ++current->answered;
        return 0;
    }

    static inline Visitor* current = nullptr;
    HWND window_ = nullptr;
    const bool aborts_;
    bool waiting_ = false;
    ULONGLONG since_ = 0;  // in milliseconds of GetTickCount64
};

// Folders that take their time, and between whose entries the visitor comes.
class SlowFolders {
  public:
    SlowFolders(RandomFolders& folderRandom, Visitor& folderVisitor)
        : random_(folderRandom), visitor_(folderVisitor) {
        current = this;
    }
    SlowFolders(const SlowFolders&) = delete;
    SlowFolders& operator=(const SlowFolders&) = delete;
    ~SlowFolders() { current = nullptr; }

    int listedAfterAbort = 0;

  private:
    static HANDLE Start(const wchar_t* pattern, WIN32_FIND_DATAW* data) {
        if (current->visitor_.HasAborted()) ++current->listedAfterAbort;
        current->Delay(SlowestFolder);
        return current->start_.Original()(pattern, data);
    }
    static BOOL Next(HANDLE search, WIN32_FIND_DATAW* data) {
        current->Delay(SlowestEntry);
        return current->next_.Original()(search, data);
    }
    void Delay(int most) {
        if (random_.UpTo(3) == 0) visitor_.Come();
        Sleep(static_cast<DWORD>(random_.UpTo(most)));
    }

    static inline SlowFolders* current = nullptr;
    RandomFolders& random_;
    Visitor& visitor_;
    Replaced<decltype(ce::FileCalls::findFirstFile)> start_{ce::fileCalls.findFirstFile, Start};
    Replaced<decltype(ce::FileCalls::findNextFile)> next_{ce::fileCalls.findNextFile, Next};
};

// Asked by the walk after every look at the queue.
class WatchingProgress final : public RecordingProgress {
  public:
    explicit WatchingProgress(const Visitor& watched) : visitor_(watched) {}
    bool StopRequested() override {
        static_cast<void>(RecordingProgress::StopRequested());
        if (visitor_.WaitsTooLong()) ++tooLong;
        return visitor_.HasAborted();
    }

    int tooLong = 0;

  private:
    const Visitor& visitor_;
};

// Folders of a seed, and what a walk finds in them.
class Walks {
  public:
    explicit Walks(unsigned seed) : random_(seed) {
        random_.Fill(folders_, L"\\", 3);
        patterns_ = random_.SomePatterns();
        RecordedWalk plain(SearchConditions::SubFolders, patterns_);
        PlainWalkFolder(plain.walk, L"\\");
        plainPaths_ = plain.sink.paths;
    }

    [[nodiscard]] const std::vector<std::wstring>& PlainPaths() const { return plainPaths_; }

    std::vector<std::wstring> PathsWith(Visitor& visitor) {
        SlowFolders slow(random_, visitor);
        WatchingProgress progress(visitor);
        RecordedWalk recorded(SearchConditions::SubFolders, patterns_);
        SearchWalk walk{recorded.conditions, recorded.patterns, L"", recorded.sink, progress};
        WalkFolder(walk, L"\\");
        EXPECT_EQ(progress.tooLong, 0);
        EXPECT_EQ(slow.listedAfterAbort, 0);
        return recorded.sink.paths;
    }

  private:
    RandomFolders random_;
    FakeFolders folders_;
    std::vector<const wchar_t*> patterns_;
    std::vector<std::wstring> plainPaths_;
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
