#include "tests/monkey/device.h"

#include <fstream>
#include <sstream>

#include "tests/program/results_test.h"

namespace {

constexpr const wchar_t* Stems[] = {L"a",
                                    L"b",
                                    L"note",
                                    L"Note",
                                    L"日報",
                                    L"two words",
                                    L"abc",
                                    L"abcdef",
                                    L"x.y",
                                    L"ﾃｽﾄ",
                                    L"read",
                                    L"zz top",
                                    L"it's",
                                    L"100%",
                                    L"-",
                                    L"aux1",
                                    L"long name that goes on and on past the column"};
constexpr const wchar_t* Endings[] = {L".txt", L".log", L".qsa", L".qsb", L".qsc",
                                      L"",     L".bin", L".TXT", L".htm", L".a b"};
constexpr const char* Contents[] = {"",           "abc",           "first line\r\nsecond abc line\r\n",
                                    "ABC\nabc\n", "nothing of it", "a line\r\n\r\nanother Note\r\n"};
constexpr const wchar_t* Words[] = {
    L"*.txt", L"*.log", L"*.qs?",   L"*",        L"?",      L"*.*",       L"a",    L"abc",     L"ABC",
    L"note",  L"日報",  L"\\",      L"\\notes",  L"\\many", L"\\a\\b",    L"日",   L"line",    L"second",
    L"..",    L".",     L" ",       L"x",        L"%s%d%n", L"\\nowhere", L"many", L"a\\b",    L"&x",
    L"10",    L"0",     L"-1",      L"99999999", L"1.5",    L"2002",      L"\"q",  L"a b.txt", L"\\日本",
    L"'",     L"#",     L"notes\\", L"//",       L"new",    L"moved.qsa"};

// Longer than any field takes.
constexpr std::size_t LongText = 400;

std::string ReadWhole(const std::wstring& path) {
    std::ifstream stream(path.c_str(), std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

bool IsDots(const wchar_t* name) {
    return lstrcmpW(name, L".") == 0 || lstrcmpW(name, L"..") == 0;
}

}  // namespace

std::wstring LowerCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

std::wstring RandomName(Random& random) {
    std::wstring name = random.Of(Stems);
    if (random.Chance(50)) name += std::to_wstring(random.Below(20));
    return name + random.Of(Endings);
}

std::wstring RandomWord(Random& random) {
    if (random.Chance(2)) return std::wstring(LongText, random.Chance(50) ? L'a' : L'日');
    if (random.Chance(35)) return RandomName(random);
    std::wstring word = random.Of(Words);
    return random.Chance(10) ? word + random.Of(Words) : word;
}

const std::vector<std::wstring>& Device::Folders() {
    static const std::vector<std::wstring> folders = {L"\\",
                                                      L"\\notes",
                                                      L"\\many",
                                                      L"\\a",
                                                      L"\\a\\b",
                                                      L"\\a\\b\\c",
                                                      L"\\日本",
                                                      L"\\Windows\\Start Menu\\Programs",
                                                      L"\\Windows\\ｽﾀｰﾄ ﾒﾆｭｰ\\ﾌﾟﾛｸﾞﾗﾑ"};
    return folders;
}

void Device::Fill(Random& random) {
    drive_.reset();
    tree_.reset();
    // Another name each time: what a program that was ended had open may stay for a moment.
    tree_ = std::make_unique<DeviceTree>(L"QuorinMonkey-" + std::to_wstring(++filled_));
    drive_ = std::make_unique<DeviceDrive>(tree_->Root());
    // A file may have the name that a folder has elsewhere.
    for (const std::wstring& folder : Folders())
        tree_->AddFolder(folder.substr(1));
    for (const std::wstring& folder : Folders()) {
        FillFolder(random, folder, folder == L"\\many" ? random.Between(50, 400) : random.Between(0, 9));
    }
    AddShortcuts(random);
    CopyFileW(RecorderPath().c_str(), (tree_->Root() + L"\\a\\prog.exe").c_str(), TRUE);
}

void Device::FillFolder(Random& random, const std::wstring& folder, int count) const {
    const std::wstring start = folder.size() > 1 ? folder.substr(1) + L"\\" : L"";
    for (int file = 0; file < count; ++file) {
        std::wstring name = RandomName(random);
        if (folder == L"\\many") name = std::to_wstring(file) + L" " + name;
        if (GetFileAttributesW((tree_->Root() + L"\\" + start + name).c_str()) != INVALID_FILE_ATTRIBUTES)
            continue;
        tree_->AddFile(start + name, random.Of(Contents));
        if (random.Chance(30)) tree_->SetAge(start + name, random.Below(2000), random.Below(24));
        if (random.Chance(6)) tree_->SetAttributes(start + name, FILE_ATTRIBUTE_READONLY);
        if (random.Chance(6)) tree_->SetAttributes(start + name, FILE_ATTRIBUTE_HIDDEN);
    }
}

void Device::AddShortcuts(Random& random) const {
    constexpr const char* Targets[] = {"\\a\\prog.exe",
                                       "\\a\\prog.exe one \"two three\"",
                                       "\\notes",
                                       "\\nowhere\\nothing.txt",
                                       "",
                                       "\"\\a\\prog.exe",
                                       "\\many\\0.qsa"};
    for (int number = 0; number < 6; ++number) {
        const std::string target = random.Of(Targets);
        tree_->AddFile(L"notes\\link " + std::to_wstring(number) + L".lnk",
                       std::to_string(target.size()) + "#" + target);
    }
}

DeviceEntries Device::Entries() const {
    DeviceEntries entries;
    Collect(L"", entries);
    return entries;
}

std::wstring Device::Real(const std::wstring& path) const {
    return L"\\\\?\\" + tree_->Root() + path;
}

void Device::Collect(const std::wstring& folder, DeviceEntries& entries) const {
    constexpr std::size_t LongestKept = 4096;
    WIN32_FIND_DATAW data;
    const std::wstring real = Real(folder) + L"\\";
    const HANDLE search = FindFirstFileW((real + L"*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        if (IsDots(data.cFileName)) continue;
        DeviceEntry entry;
        entry.path = folder + L"\\" + data.cFileName;
        entry.folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        entry.readOnly = !entry.folder && (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
        if (!entry.folder)
            entry.content = data.nFileSizeLow <= LongestKept ? ReadWhole(real + data.cFileName)
                                                             : std::to_string(data.nFileSizeLow);
        entries[LowerCase(entry.path)] = entry;
        if (entry.folder) Collect(entry.path, entries);
    } while (FindNextFileW(search, &data));
    FindClose(search);
}

std::optional<std::wstring> Device::Canonical(const std::wstring& path) const {
    std::wstring rest = path;
    if (rest.rfind(L"\\\\?\\", 0) == 0) rest.erase(0, 4);
    if (rest.size() > 1 && rest[1] == L':') {
        if (LowerCase(rest.substr(0, 2)) != LowerCase(drive_->Letter())) return std::nullopt;
        rest.erase(0, 2);
    }
    std::vector<std::wstring> parts;
    std::wstring part;
    for (const wchar_t unit : rest + L"\\") {
        if (unit != L'\\' && unit != L'/') {
            part += unit;
            continue;
        }
        if (part == L".." && !parts.empty()) parts.pop_back();
        if (!part.empty() && part != L"." && part != L"..") parts.push_back(part);
        part.clear();
    }
    std::wstring canonical;
    for (const std::wstring& name : parts)
        canonical += L"\\" + LowerCase(name);
    return canonical;
}

// By the folder's own name, which no start of the program changes.
void Device::ChangeSomething(Random& random) {
    const DeviceEntries entries = Entries();
    auto entry = entries.begin();
    std::advance(entry, random.Below(entries.size()));
    const std::wstring folder = random.Of(Folders());
    const std::wstring newPath = (folder.size() > 1 ? folder : L"") + L"\\" + RandomName(random);
    const std::wstring& path = entry->second.path;
    const std::wstring real = Real(path);
    const int kind = random.Below(10);
    if (entry->second.folder || kind < 3) {
        Write(random, newPath);
    } else if (kind < 6) {
        journal_.Note({L"own-delete", path}, [&] { return DeleteFileW(real.c_str()) != FALSE; });
    } else if (kind < 9) {
        journal_.Note({L"own-move", path, newPath},
                      [&] { return MoveFileW(real.c_str(), Real(newPath).c_str()) != FALSE; });
    } else {
        const DWORD attributes = random.Chance(50) ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
        journal_.Note({L"own-attributes", path, std::to_wstring(attributes)},
                      [&] { return SetFileAttributesW(real.c_str(), attributes) != FALSE; });
    }
}

// What stands there already stays.
void Device::Write(Random& random, const std::wstring& path) {
    const std::string content = random.Of(Contents);
    const std::wstring text(content.begin(), content.end());
    journal_.Note({L"own-write", path, text}, [&] {
        const std::wstring real = Real(path);
        const HANDLE file =
            CreateFileW(real.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) return false;
        DWORD written = 0;
        WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
        CloseHandle(file);
        return true;
    });
}
