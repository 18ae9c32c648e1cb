#include "search/run_search.h"

#include <gtest/gtest.h>

#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"
#include "tests/support/asked_query.h"

namespace {

using Texts = std::vector<std::wstring>;

// One search of the query's conditions, in an order of calls that is noted.
class RunSearchTest : public testing::Test {
  protected:
    const Texts& Search() {
        RunSearch(conditions_, query_, sink_, progress_);
        return sink_.paths;
    }

    FakeFolders folders_;
    AskedQuery query_;
    SearchConditions conditions_;
    RecordingSink sink_;
    RecordingProgress progress_;
};

}  // namespace

TEST_F(RunSearchTest, searches_from_the_root_when_no_location_is_given) {
    folders_.AddFile(L"\\", L"a.txt");
    EXPECT_EQ(Search(), Texts{L"\\a.txt"});
    EXPECT_EQ(progress_.folders, Texts{L"\\"});
}

TEST_F(RunSearchTest, searches_the_location_and_what_is_below_it) {
    folders_.AddFolder(L"\\docs", L"more");
    folders_.AddFile(L"\\docs\\more", L"a.txt");
    query_.location = L"\\docs";
    EXPECT_EQ(Search(), Texts{L"\\docs\\more"});
    query_.subFolders = true;
    EXPECT_EQ(Search(), (Texts{L"\\docs\\more", L"\\docs\\more\\a.txt"}));
}

TEST_F(RunSearchTest, clears_what_an_earlier_search_found) {
    folders_.AddFile(L"\\", L"a.txt");
    Search();
    query_.location = L"\\missing";
    EXPECT_EQ(Search(), Texts{});
    EXPECT_EQ(sink_.clears, 2);
}

TEST_F(RunSearchTest, finds_a_plain_name_anywhere_in_a_name_and_with_its_case) {
    for (const wchar_t* name : {L"xabcx.txt", L"abc", L"ABC.TXT"})
        folders_.AddFile(L"\\", name);
    query_.name = L"abc";
    EXPECT_EQ(Search(), (Texts{L"\\xabcx.txt", L"\\abc"}));
}

TEST_F(RunSearchTest, finds_a_name_with_wildcards_without_regard_to_case) {
    for (const wchar_t* name : {L"xabcx.txt", L"abc", L"ABC.TXT"})
        folders_.AddFile(L"\\", name);
    query_.name = L"abc*";
    EXPECT_EQ(Search(), (Texts{L"\\abc", L"\\ABC.TXT"}));
}

TEST_F(RunSearchTest, finds_everything_without_a_name_and_a_type) {
    folders_.AddFile(L"\\", L"readme");
    folders_.AddFile(L"\\", L"a.txt");
    folders_.AddFolder(L"\\", L"docs");
    EXPECT_EQ(Search(), (Texts{L"\\readme", L"\\a.txt", L"\\docs"}));
}

TEST_F(RunSearchTest, finds_by_type_the_last_extension_first_and_ignores_the_name) {
    for (const wchar_t* name : {L"a.htm", L"b.html", L"c.txt", L"d.HTM"})
        folders_.AddFile(L"\\", name);
    query_.name = L"*.txt";
    query_.typeFilter = true;
    query_.extensions = L".htm.html";
    EXPECT_EQ(Search(), (Texts{L"\\b.html", L"\\a.htm", L"\\d.HTM"}));
}

TEST_F(RunSearchTest, finds_nothing_by_a_type_without_an_extension) {
    folders_.AddFile(L"\\", L"a.txt");
    query_.typeFilter = true;
    query_.extensions = L"txt";
    EXPECT_EQ(Search(), Texts{});
}

TEST_F(RunSearchTest, finds_by_size) {
    folders_.AddFile(L"\\", L"exact", 10240);
    folders_.AddFile(L"\\", L"larger", 10241);
    folders_.AddFile(L"\\", L"smaller", 10239);
    folders_.AddFolder(L"\\", L"folder");
    query_.sizeBound = {SizeLimit::Above, 10240};
    EXPECT_EQ(Search(), Texts{L"\\larger"});
    query_.sizeBound = {SizeLimit::Below, 10240};
    EXPECT_EQ(Search(), (Texts{L"\\smaller", L"\\folder"}));
}

TEST_F(RunSearchTest, finds_by_content_and_never_a_folder) {
    folders_.AddFile(L"\\", L"with.txt");
    folders_.AddFile(L"\\", L"without.txt");
    folders_.AddFile(L"\\", L"unreadable.txt");
    folders_.AddFolder(L"\\", L"folder");
    folders_.SetContent(L"\\with.txt", "one\nthe text\n");
    folders_.SetContent(L"\\without.txt", "one\nThe Text\n");
    query_.content = L"the text";
    EXPECT_EQ(Search(), Texts{L"\\with.txt"});
    query_.ignoreCase = true;
    EXPECT_EQ(Search(), (Texts{L"\\with.txt", L"\\without.txt"}));
}

TEST_F(RunSearchTest, finds_by_the_time_of_the_last_write) {
    // 2002-04-07 12:00 in UTC and a day later; the pages' dates are local times.
    SYSTEMTIME noon = {2002, 4, 0, 7, 12, 0, 0, 0};
    FILETIME written = {};
    SystemTimeToFileTime(&noon, &written);
    const FILETIME before = {written.dwLowDateTime - 1, written.dwHighDateTime};
    Replaced sameTime(ce::systemCalls.localFileTimeToFileTime,
                      [](const FILETIME* local, FILETIME* utc) -> BOOL {
                          *utc = *local;
                          return TRUE;
                      });
    folders_.AddFile(L"\\", L"at noon");
    folders_.AddFile(L"\\", L"a moment before");
    folders_.SetWritten(L"\\", L"at noon", written);
    folders_.SetWritten(L"\\", L"a moment before", before);
    query_.dateRange = DateRange{noon, noon};
    EXPECT_EQ(Search(), Texts{L"\\at noon"});
}

TEST_F(RunSearchTest, keeps_what_was_found_when_it_is_aborted) {
    for (const wchar_t* name : {L"a", L"b", L"c"})
        folders_.AddFile(L"\\", name);
    progress_.stopAtQuestion = 5;
    EXPECT_EQ(Search(), (Texts{L"\\a", L"\\b"}));
}

TEST_F(RunSearchTest, looks_at_the_message_queue_before_the_first_entry) {
    folders_.AddFile(L"\\", L"a");
    Search();
    sink_.refreshes = 0;
    Search();
    EXPECT_GE(sink_.refreshes, 1);
}

TEST_F(RunSearchTest, takes_a_location_of_the_greatest_length_without_an_overrun) {
    query_.location = L"\\" + std::wstring(258, L'l');
    query_.subFolders = true;
    EXPECT_EQ(Search(), Texts{});
    ASSERT_EQ(progress_.folders.size(), 1U);
    EXPECT_EQ(progress_.folders[0].size(), 259U);
    // No pattern fits behind it.
    EXPECT_EQ(folders_.listed, Texts{});
}
