#include "tests/search/random_folders.h"

namespace {

constexpr const wchar_t* Names[] = {L"a",      L"b.txt", L"B.TXT", L"c.htm",    L"d.html", L"e.txt.htm",
                                    L"README", L".txt",  L"x y.c", L"日本.txt", L"f.",     L"g.tx"};
constexpr const wchar_t* Patterns[] = {L"*.*", L"*.txt", L"*.htm", L"*.html",  L"?.*",        L"*t*",
                                       L"a",   L"*",     L"none*", L"日?.txt", L"sub\\*.txt", L"*.TXT"};

}  // namespace

void RandomFolders::Fill(FakeFolders& folders, const std::wstring& folder, int depth) {
    const int entries = UpTo(8);
    for (int i = 0; i < entries; ++i) {
        const std::wstring name = Names[UpTo(static_cast<int>(std::size(Names)) - 1)];
        if (UpTo(2) != 0) {
            folders.AddFile(folder, name);
            continue;
        }
        const std::wstring path = (folder == L"\\" ? L"\\" : folder + L"\\") + name + std::to_wstring(i);
        const bool marked = UpTo(5) == 0;
        folders.AddFolder(folder, name + std::to_wstring(i), marked ? FILE_ATTRIBUTE_REPARSE_POINT : 0U);
        if (marked && UpTo(1) == 0) folders.SetFolderLink(path);
        if (UpTo(9) == 0) folders.FailListing(path, ERROR_ACCESS_DENIED);
        if (depth > 0) Fill(folders, path, depth - 1);
    }
    if (UpTo(3) == 0) folders.AddFolder(folder, L"sub");
    if (UpTo(3) == 0) folders.AddFile((folder == L"\\" ? L"\\" : folder + L"\\") + L"sub", L"s.txt");
}

std::vector<const wchar_t*> RandomFolders::SomePatterns() {
    std::vector<const wchar_t*> patterns;
    const int count = UpTo(3);
    for (int i = 0; i < count; ++i) {
        const wchar_t* const pattern = Patterns[UpTo(static_cast<int>(std::size(Patterns)) - 1)];
        patterns.push_back(UpTo(9) == 0 ? nullptr : pattern);
    }
    return patterns;
}
