#include "tests/program/sample_device.h"

#include <string>

namespace {

void FillNames(const DeviceTree& tree) {
    tree.AddFile(L"names\\abc");
    tree.AddFile(L"names\\xabcx.txt");
    tree.AddFile(L"names\\ABC.TXT");
    tree.AddFile(L"names\\other.log");
    tree.AddFile(L"names\\日報.txt");
    tree.AddFile(L"names\\two words.htm");
    tree.AddFile(L"names\\page.html");
    tree.AddFile(L"names\\locked", "x");
    tree.SetAttributes(L"names\\locked",
                       FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
}

// One file and one folder a level, so that the order of the results is the same on every file system.
void FillWalk(const DeviceTree& tree) {
    tree.AddFile(L"walk\\one.txt");
    tree.AddFile(L"walk\\a deeper\\two.txt");
    tree.AddFile(L"walk\\a deeper\\a match folder\\three.txt");
    tree.AddFolder(L"empty");
    tree.AddFile(L"top.txt");
}

void FillSizes(const DeviceTree& tree) {
    for (const long long size : {0, 1023, 1024, 2047, 1048575, 1048576, 5767168}) {
        tree.AddFileOfSize(L"sizes\\" + std::to_wstring(size) + L".bin", size);
    }
    tree.AddFolder(L"sizes\\folder");
    for (const long long size : {10239, 10240, 10241}) {
        tree.AddFileOfSize(L"bounds\\" + std::to_wstring(size) + L".bin", size);
    }
    tree.AddFolder(L"bounds\\folder");
}

void FillDates(const DeviceTree& tree) {
    const auto add = [&](const wchar_t* name, const SYSTEMTIME& local) {
        tree.AddFile(std::wstring(L"dates\\") + name);
        tree.SetLocalTime(std::wstring(L"dates\\") + name, local);
    };
    add(L"day before.txt", TimeOf(2002, 1, 9, 23, 59, 59));
    add(L"midnight.txt", TimeOf(2002, 1, 10));
    add(L"noon.txt", TimeOf(2002, 1, 10, 12));
    add(L"next midnight.txt", TimeOf(2002, 1, 11));
    add(L"next noon.txt", TimeOf(2002, 1, 11, 12));
    add(L"shown.txt", TimeOf(2002, 7, 15, 9, 5, 30));
    tree.AddFile(L"ages\\two days.txt");
    tree.SetAge(L"ages\\two days.txt", 2, 0);
    tree.AddFile(L"ages\\ten days.txt");
    tree.SetAge(L"ages\\ten days.txt", 10, 0);
    tree.AddFile(L"ages\\century.txt");
    tree.SetUtcTime(L"ages\\century.txt", TimeOf(1995, 6, 1, 12));
    tree.AddFile(L"zone\\evening.txt");
    tree.SetUtcTime(L"zone\\evening.txt", TimeOf(2002, 7, 15, 23, 59, 59));
}

void FillContents(const DeviceTree& tree) {
    tree.AddFile(L"contents\\third line.txt", "first\r\nsecond\r\nxxabc\r\n");
    tree.AddFile(L"contents\\upper.txt", "xxABC");
    tree.AddFile(L"contents\\mixed.txt", "aBc");
    tree.AddFile(L"contents\\after empty line.txt", "text\n\nxxABC\n");
    tree.AddFile(L"contents\\after nul.txt", std::string("x\0abc", 5));
    tree.AddFile(L"contents\\after nul and line.txt", std::string("x\0y\nabc", 7));
    tree.AddFile(L"contents\\over line end.txt", "ab\nc");
    tree.AddFile(L"contents\\spaces.txt", "a  b");
    tree.AddFile(L"contents\\abc folder\\nothing.bin", "nothing");
}

// The bytes are Shift-JIS unless said otherwise.
void FillJapanese(const DeviceTree& tree) {
    tree.AddFile(L"japanese\\shift-jis.txt", "\x93\xFA\x96\x7B\r\n");      // 日本
    tree.AddFile(L"japanese\\low bytes.txt", "\xE5\x2C\r\n");              // of U+65E5 U+672C
    tree.AddFile(L"japanese\\utf-8.txt", "\xE6\x97\xA5\xE6\x9C\xAC\r\n");  // 日本
    tree.AddFile(L"japanese\\half-width.txt", "\xB1\xB2\r\n");             // ｱｲ
    // Two characters whose trail bytes differ in the case of an ASCII letter: 83 41 and 83 61.
    tree.AddFile(L"folding\\upper trail.txt", "\x83\x41\r\n");  // ア
    tree.AddFile(L"folding\\lower trail.txt", "\x83\x61\r\n");  // ヂ
}

}  // namespace

void FillSampleDevice(const DeviceTree& tree) {
    FillNames(tree);
    FillWalk(tree);
    FillSizes(tree);
    FillDates(tree);
    FillContents(tree);
    FillJapanese(tree);
}
