#include "search/run_search.h"

#include <gtest/gtest.h>

#include "tests/search/fake_folders.h"
#include "tests/search/recorded_search.h"
#include "tests/support/answered_source.h"

namespace {

using Texts = std::vector<std::wstring>;

// One search of the source's conditions, in an order of calls that is noted.
class RunSearchTest : public testing::Test {
  protected:
    const Texts& Search() {
        RunSearch(conditions, source, sink, progress);
        return sink.paths;
    }

    FakeFolders folders;
    AnsweredSource source;
    SearchConditions conditions;
    RecordingSink sink;
    RecordingProgress progress;
};

}  // namespace

TEST_F(RunSearchTest, searches_from_the_root_when_no_location_is_given) {
    folders.AddFile(L"\\", L"a.txt");
    EXPECT_EQ(Search(), Texts{L"\\a.txt"});
    EXPECT_EQ(progress.folders, Texts{L"\\"});
}

TEST_F(RunSearchTest, searches_the_location_and_what_is_below_it) {
    folders.AddFolder(L"\\docs", L"more");
    folders.AddFile(L"\\docs\\more", L"a.txt");
    source.location = L"\\docs";
    EXPECT_EQ(Search(), Texts{L"\\docs\\more"});
    source.subFolders = true;
    EXPECT_EQ(Search(), (Texts{L"\\docs\\more", L"\\docs\\more\\a.txt"}));
}

TEST_F(RunSearchTest, clears_what_an_earlier_search_found) {
    folders.AddFile(L"\\", L"a.txt");
    Search();
    source.location = L"\\missing";
    EXPECT_EQ(Search(), Texts{});
    EXPECT_EQ(sink.clears, 2);
}

TEST_F(RunSearchTest, finds_a_plain_name_anywhere_in_a_name_and_with_its_case) {
    for (const wchar_t* name : {L"xabcx.txt", L"abc", L"ABC.TXT"})
        folders.AddFile(L"\\", name);
    source.name = L"abc";
    EXPECT_EQ(Search(), (Texts{L"\\xabcx.txt", L"\\abc"}));
}

TEST_F(RunSearchTest, finds_a_name_with_wildcards_without_regard_to_case) {
    for (const wchar_t* name : {L"xabcx.txt", L"abc", L"ABC.TXT"})
        folders.AddFile(L"\\", name);
    source.name = L"abc*";
    EXPECT_EQ(Search(), (Texts{L"\\abc", L"\\ABC.TXT"}));
}

TEST_F(RunSearchTest, finds_everything_without_a_name_and_a_type) {
    folders.AddFile(L"\\", L"readme");
    folders.AddFile(L"\\", L"a.txt");
    folders.AddFolder(L"\\", L"docs");
    EXPECT_EQ(Search(), (Texts{L"\\readme", L"\\a.txt", L"\\docs"}));
}

TEST_F(RunSearchTest, finds_by_type_the_last_extension_first_and_ignores_the_name) {
    for (const wchar_t* name : {L"a.htm", L"b.html", L"c.txt", L"d.HTM"})
        folders.AddFile(L"\\", name);
    source.name = L"*.txt";
    source.typeIndex = 1;
    source.extensions = L".htm.html";
    EXPECT_EQ(Search(), (Texts{L"\\b.html", L"\\a.htm", L"\\d.HTM"}));
}

TEST_F(RunSearchTest, finds_nothing_by_a_type_without_an_extension) {
    folders.AddFile(L"\\", L"a.txt");
    source.typeIndex = 2;
    source.extensions = L"txt";
    EXPECT_EQ(Search(), Texts{});
}

TEST_F(RunSearchTest, finds_by_size) {
    folders.AddFile(L"\\", L"exact", 10240);
    folders.AddFile(L"\\", L"larger", 10241);
    folders.AddFile(L"\\", L"smaller", 10239);
    folders.AddFolder(L"\\", L"folder");
    source.sizeBound = 10240;
    source.sizeAnswer = SizeAnswer::Min;
    EXPECT_EQ(Search(), Texts{L"\\larger"});
    source.sizeAnswer = SizeAnswer::Max;
    EXPECT_EQ(Search(), (Texts{L"\\smaller", L"\\folder"}));
}

TEST_F(RunSearchTest, finds_by_content_and_never_a_folder) {
    folders.AddFile(L"\\", L"with.txt");
    folders.AddFile(L"\\", L"without.txt");
    folders.AddFile(L"\\", L"unreadable.txt");
    folders.AddFolder(L"\\", L"folder");
    folders.SetContent(L"\\with.txt", "one\nthe text\n");
    folders.SetContent(L"\\without.txt", "one\nThe Text\n");
    source.content = L"the text";
    EXPECT_EQ(Search(), Texts{L"\\with.txt"});
    source.caseOptionState = 0;
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
    folders.AddFile(L"\\", L"at noon");
    folders.AddFile(L"\\", L"a moment before");
    folders.SetWritten(L"\\", L"at noon", written);
    folders.SetWritten(L"\\", L"a moment before", before);
    source.dateRangeChosen = true;
    source.dateRange.first = noon;
    source.dateRange.second = noon;
    EXPECT_EQ(Search(), Texts{L"\\at noon"});
}

TEST_F(RunSearchTest, keeps_what_was_found_when_it_is_aborted) {
    for (const wchar_t* name : {L"a", L"b", L"c"})
        folders.AddFile(L"\\", name);
    progress.stopAtQuestion = 5;
    EXPECT_EQ(Search(), (Texts{L"\\a", L"\\b"}));
}

TEST_F(RunSearchTest, looks_at_the_message_queue_before_the_first_entry) {
    folders.AddFile(L"\\", L"a");
    Search();
    sink.refreshes = 0;
    Search();
    EXPECT_GE(sink.refreshes, 1);
}

TEST_F(RunSearchTest, takes_a_location_of_the_greatest_length_without_an_overrun) {
    source.location = L"\\" + std::wstring(258, L'l');
    source.subFolders = true;
    EXPECT_EQ(Search(), Texts{});
    ASSERT_EQ(progress.folders.size(), 1U);
    EXPECT_EQ(progress.folders[0].size(), 259U);
    // No pattern fits behind it.
    EXPECT_EQ(folders.listed, Texts{});
}
