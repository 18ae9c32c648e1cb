// The bytes of a file as a content search reads them.

#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"
#include "search/line_readers.h"
#include "search/content_matches.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"

namespace {

class FileByteSourceTest : public testing::Test {
  protected:
    std::wstring FileOf(const std::string& bytes) { return tree_.AddFile(L"file.bin", bytes); }

    TempTree tree_;
    unsigned char block_[64] = {};
};

}  // namespace

TEST_F(FileByteSourceTest, it_reads_a_file_of_several_blocks_as_it_stands) {
    std::string content;
    for (int i = 0; i < 150000; ++i)
        content.push_back(static_cast<char>(i % 251));
    FileByteSource source(FileOf(content).c_str());
    ASSERT_TRUE(source.IsOpen());
    ByteReader reader(source);
    std::string read;
    for (int byte = reader.Next(); byte != -1; byte = reader.Next())
        read.push_back(static_cast<char>(byte));
    EXPECT_TRUE(read == content) << "read " << read.size() << " bytes";
}

TEST_F(FileByteSourceTest, a_file_of_whole_blocks_ends_behind_the_last_one) {
    FileByteSource source(FileOf(std::string(128, 'x')).c_str());
    EXPECT_EQ(source.Fill(block_, sizeof block_), 64U);
    EXPECT_EQ(source.Fill(block_, sizeof block_), 64U);
    EXPECT_EQ(source.Fill(block_, sizeof block_), 0U);
}

TEST_F(FileByteSourceTest, it_begins_again_behind_its_end) {
    FileByteSource source(FileOf("content").c_str());
    for (int time = 0; time < 2; ++time) {
        ASSERT_EQ(source.Fill(block_, sizeof block_), 7U);
        EXPECT_EQ(std::string(block_, block_ + 7), "content");
        EXPECT_EQ(source.Fill(block_, sizeof block_), 0U);
        source.Rewind();
    }
}

TEST_F(FileByteSourceTest, a_read_error_is_the_end) {
    // A file opened for writing alone cannot be read.
    Replaced forWriting(ce::fileCalls.openForReading,
                        [](const wchar_t* path) -> std::FILE* { return _wfopen(path, L"ab"); });
    FileByteSource source(FileOf("content").c_str());
    ASSERT_TRUE(source.IsOpen());
    ByteReader reader(source);
    EXPECT_EQ(reader.Next(), -1);
}

TEST_F(FileByteSourceTest, a_file_that_cannot_be_opened_has_no_bytes) {
    FileByteSource source((tree_.Root() + L"\\missing").c_str());
    EXPECT_FALSE(source.IsOpen());
    source.Rewind();
    EXPECT_EQ(source.Fill(block_, sizeof block_), 0U);
}

TEST_F(FileByteSourceTest, a_file_is_closed_with_its_source) {
    const std::wstring path = FileOf("content");
    {
        FileByteSource source(path.c_str());
        ASSERT_EQ(source.Fill(block_, sizeof block_), 7U);
    }
    const HANDLE alone = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE) << GetLastError();
    CloseHandle(alone);
}
