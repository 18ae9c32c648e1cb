// Reading the desktop's shortcut files, here put together byte by byte.

#include "platform/desktop/shell_link_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

namespace {

std::string Word(std::size_t number) {
    return {static_cast<char>(number), static_cast<char>(number >> 8)};
}
std::string DoubleWord(std::size_t number) {
    return Word(number) + Word(number >> 16);
}
std::string Wide(const std::wstring& text) {
    std::string bytes;
    for (const wchar_t unit : text)
        bytes += Word(static_cast<std::size_t>(unit));
    return bytes;
}
std::string Counted(const std::wstring& text) {
    return Word(text.size()) + Wide(text);
}
std::string CountedBytes(const std::string& text) {
    return Word(text.size()) + text;
}
std::string Sized(const std::string& item) {
    return Word(item.size() + 2) + item;
}

constexpr std::size_t Items = 0x01, Info = 0x02, Name = 0x04, Relative = 0x08, Folder = 0x10,
                      Arguments = 0x20, Icon = 0x40, Unicode = 0x80;

std::string Header(std::size_t flags) {
    std::string header = DoubleWord(76) + std::string("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);
    header += DoubleWord(flags);
    header.resize(76, '\0');
    return header;
}

// A local path in the code page, with what follows it kept apart.
std::string LocalInfo(const std::string& path, const std::string& suffix = "") {
    const std::size_t pathAt = 28;
    const std::size_t suffixAt = pathAt + path.size() + 1;
    const std::size_t size = suffixAt + suffix.size() + 1;
    return DoubleWord(size) + DoubleWord(28) + DoubleWord(1) + DoubleWord(0) + DoubleWord(pathAt) +
           DoubleWord(0) + DoubleWord(suffixAt) + path + '\0' + suffix + '\0';
}

// The same with the letters of the path beside the code page's.
std::string WideLocalInfo(const std::string& narrow, const std::wstring& path, const std::wstring& suffix) {
    const std::size_t narrowAt = 36;
    const std::size_t noneAt = narrowAt + narrow.size();
    const std::size_t pathAt = noneAt + 1;
    const std::size_t suffixAt = pathAt + 2 * path.size() + 2;
    const std::size_t size = suffixAt + 2 * suffix.size() + 2;
    return DoubleWord(size) + DoubleWord(36) + DoubleWord(1) + DoubleWord(0) + DoubleWord(narrowAt) +
           DoubleWord(0) + DoubleWord(noneAt) + DoubleWord(pathAt) + DoubleWord(suffixAt) + narrow + '\0' +
           Wide(path) + Word(0) + Wide(suffix) + Word(0);
}

std::string NetworkInfo(const std::string& share, const std::string& suffix) {
    const std::string link = DoubleWord(20 + share.size() + 1) + DoubleWord(0) + DoubleWord(20) +
                             DoubleWord(0) + DoubleWord(0) + share + '\0';
    const std::size_t suffixAt = 28 + link.size();
    return DoubleWord(suffixAt + suffix.size() + 1) + DoubleWord(28) + DoubleWord(2) + DoubleWord(0) +
           DoubleWord(0) + DoubleWord(28) + DoubleWord(suffixAt) + link + suffix + '\0';
}

std::string DriveItem() {
    return Sized(
        "\x2F"
        "C:\\" +
        std::string(19, '\0'));
}
std::string ComputerItem() {
    return Sized(std::string("\x1F\x50", 2) + std::string(16, '\x11'));
}
std::string FileItem(const std::string& shortName, const std::wstring& longName, std::size_t version = 3) {
    std::string item = std::string("\x32\0", 2) + DoubleWord(0) + DoubleWord(0) + Word(0x20) + shortName;
    item += std::string(item.size() % 2 == 0 ? 2 : 1, '\0');
    const std::size_t extensionAt = item.size() + 2;
    const std::string extension = Word(version) + DoubleWord(0xBEEF0004) + std::string(12, '\0') +
                                  Wide(longName) + Word(0) + Word(extensionAt);
    return Sized(item + Sized(extension));
}
std::string ItemList(const std::string& items) {
    return Word(items.size() + 2) + items + Word(0);
}

// Each byte as the letter of that number.
std::wstring ByteByByte(std::string_view bytes) {
    std::wstring text;
    for (const char byte : bytes)
        text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    return text;
}

// "program|arguments", or "(none)".
std::wstring Read(const std::string& bytes) {
    // A copy of just the right size, so that a look beyond its end is noticed.
    const std::vector<char> exact(bytes.begin(), bytes.end());
    ShellLinkTarget target{L"before", L"before"};
    const bool read = ReadShellLinkFile({exact.data(), exact.size()}, &ByteByByte, target);
    EXPECT_EQ(read, !target.program.empty());
    EXPECT_TRUE(read || target.arguments.empty());
    return read ? target.program + L'|' + target.arguments : L"(none)";
}

}  // namespace

TEST(ShellLinkFile, tells_the_local_path) {
    EXPECT_EQ(Read(Header(Info) + LocalInfo("C:\\a.txt")), L"C:\\a.txt|");
    EXPECT_EQ(Read(Header(Info) + LocalInfo("C:\\docs\\", "a.txt")), L"C:\\docs\\a.txt|");
}

TEST(ShellLinkFile, prefers_the_letters_of_the_path_to_the_code_pages) {
    EXPECT_EQ(Read(Header(Info) + WideLocalInfo("C:\\??.txt", L"C:\\日報.txt", L"")), L"C:\\日報.txt|");
    EXPECT_EQ(Read(Header(Info) + WideLocalInfo("C:\\", L"C:\\日\\", L"報.txt")), L"C:\\日\\報.txt|");
}

TEST(ShellLinkFile, tells_a_path_on_another_machine) {
    EXPECT_EQ(Read(Header(Info) + NetworkInfo("\\\\server\\share", "docs\\a.txt")),
              L"\\\\server\\share\\docs\\a.txt|");
}

TEST(ShellLinkFile, tells_the_arguments_behind_the_texts_before_them) {
    EXPECT_EQ(Read(Header(Info | Arguments | Unicode) + LocalInfo("C:\\p.exe") + Counted(L"/o \"日 本\"")),
              L"C:\\p.exe|/o \"日 本\"");
    EXPECT_EQ(Read(Header(Info | Name | Relative | Folder | Arguments | Icon | Unicode) +
                   LocalInfo("C:\\p.exe") + Counted(L"a name") + Counted(L".\\p.exe") + Counted(L"C:\\") +
                   Counted(L"one two") + Counted(L"i.ico")),
              L"C:\\p.exe|one two");
    EXPECT_EQ(Read(Header(Info | Name | Arguments) + LocalInfo("C:\\p.exe") + CountedBytes("name") +
                   CountedBytes("one two")),
              L"C:\\p.exe|one two");
}

TEST(ShellLinkFile, takes_the_items_where_the_path_is_missing_or_has_lost_letters) {
    const std::string items = ItemList(ComputerItem() + DriveItem() + FileItem("DOCSFO~1", L"docs folder") +
                                       FileItem("__.TXT", L"日報.txt"));
    EXPECT_EQ(Read(Header(Items) + items), L"C:\\docs folder\\日報.txt|");
    EXPECT_EQ(Read(Header(Items | Info) + items + LocalInfo("C:\\docs folder\\??.txt")),
              L"C:\\docs folder\\日報.txt|");
    EXPECT_EQ(Read(Header(Items | Info) + items + LocalInfo("C:\\other.txt")), L"C:\\other.txt|");
}

TEST(ShellLinkFile, takes_an_items_short_name_where_the_long_one_stands_elsewhere) {
    EXPECT_EQ(Read(Header(Items) + ItemList(DriveItem() + FileItem("A.TXT", L"not here", 9))), L"C:\\A.TXT|");
}

TEST(ShellLinkFile, that_leads_to_no_file_is_none) {
    EXPECT_EQ(Read(Header(0)), L"(none)");
    EXPECT_EQ(Read(Header(Items) + ItemList(ComputerItem() + ComputerItem())), L"(none)");
    EXPECT_EQ(Read(Header(Items) + ItemList(DriveItem() + ComputerItem())), L"(none)");
    EXPECT_EQ(Read(Header(Items) + ItemList("")), L"(none)");
    EXPECT_EQ(Read(Header(Info) + LocalInfo("C:\\??.txt")), L"(none)");
    EXPECT_EQ(Read(Header(Info) + LocalInfo("")), L"(none)");
}

TEST(ShellLinkFile, without_its_header_is_none) {
    const std::string whole = Header(Info) + LocalInfo("C:\\a.txt");
    EXPECT_EQ(Read(""), L"(none)");
    for (const std::size_t place : {0u, 3u, 4u, 19u}) {
        std::string bytes = whole;
        bytes[place] ^= 1;
        EXPECT_EQ(Read(bytes), L"(none)") << place;
    }
    EXPECT_EQ(Read(whole.substr(1)), L"(none)");
}

TEST(ShellLinkFile, cut_off_or_with_places_far_away_is_never_read_past_its_end) {
    const std::string whole = Header(Items | Info | Arguments | Unicode) +
                              ItemList(DriveItem() + FileItem("A.TXT", L"a.txt")) +
                              WideLocalInfo("C:\\a.txt", L"C:\\a.txt", L"") + Counted(L"one two");
    EXPECT_EQ(Read(whole), L"C:\\a.txt|one two");
    for (std::size_t length = 0; length < 76; ++length)
        EXPECT_EQ(Read(whole.substr(0, length)), L"(none)");
    for (std::size_t length = 76; length < whole.size(); ++length)
        EXPECT_NE(Read(whole.substr(0, length)), L"C:\\a.txt|one two");
    for (std::size_t place = 76; place < whole.size(); ++place) {
        std::string bytes = whole;
        bytes[place] = '\xFF';
        Read(bytes);
        if (place + 3 < bytes.size()) bytes.replace(place, 4, "\xFF\xFF\xFF\x7F");
        Read(bytes);
    }
}

TEST(ShellLinkFile, of_random_bytes_is_never_read_past_its_end) {
    std::mt19937 random(20020715);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = Header(random() & 0xFF);
        for (std::size_t i = random() % 300; i > 0; --i)
            bytes += static_cast<char>(random() % 3 == 0 ? random() : random() % 40);
        Read(bytes);
    }
}
