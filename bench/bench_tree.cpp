#include "bench/bench_tree.h"

#include "platform/system_types.h"

namespace {

constexpr int UpperFolders = 20;
constexpr int LowerFolders = 10;
constexpr int FilesPerFolder = 50;

// 20,000 together, three levels deep.
constexpr int TopFolders = 10;
constexpr int MiddleFolders = 39;
constexpr int BottomFolders = 50;
constexpr int LooseFolders = 100;

constexpr int LargeFiles = 24;
constexpr std::size_t LargeSize = 1024 * 1024;
constexpr int SmallFiles = 400;
constexpr std::size_t SmallSize = 8 * 1024;

// Lines as texts have them, none of which holds what is searched for.
std::string Text(std::size_t size) {
    std::string text;
    text.reserve(size);
    for (int line = 0; text.size() < size; ++line) {
        text += "Line " + std::to_string(line) + " of a text that goes on about nothing in particular.\r\n";
    }
    text.resize(size);
    return text;
}

void DeleteTree(const std::wstring& folder) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = data.cFileName;
            if (name == L"." || name == L"..") continue;
            if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
                DeleteTree(folder + L"\\" + name);
            } else {
                DeleteFileW((folder + L"\\" + name).c_str());
            }
        } while (FindNextFileW(search, &data));
        FindClose(search);
    }
    RemoveDirectoryW(folder.c_str());
}

}  // namespace

BenchTree::BenchTree(std::wstring folder) : root(std::move(folder)) {
    AddFolder(root);
    // What stands there already is not ours to fill, and not ours to delete.
    if (!valid) {
        root.clear();
        return;
    }
    MakeNames();
    MakeFolders();
    MakeTexts();
}

BenchTree::~BenchTree() {
    if (!root.empty()) DeleteTree(root);
}

void BenchTree::MakeNames() {
    AddFolder(NamesFolder());
    for (int upper = 0; upper < UpperFolders; ++upper) {
        const std::wstring upperFolder = NamesFolder() + L"\\folder " + std::to_wstring(upper);
        AddFolder(upperFolder);
        for (int lower = 0; lower < LowerFolders; ++lower) {
            const std::wstring lowerFolder = upperFolder + L"\\folder " + std::to_wstring(lower);
            AddFolder(lowerFolder);
            for (int file = 0; file < FilesPerFolder; ++file) {
                AddFile(lowerFolder + L"\\document " + std::to_wstring(file) + L".txt", "x");
            }
        }
    }
    namesEntries = UpperFolders + UpperFolders * LowerFolders * (1 + FilesPerFolder);
}

void BenchTree::MakeFolders() {
    AddFolder(FoldersFolder());
    for (int loose = 0; loose < LooseFolders; ++loose)
        AddFolder(FoldersFolder() + L"\\loose " + std::to_wstring(loose));
    for (int top = 0; top < TopFolders; ++top) {
        const std::wstring topFolder = FoldersFolder() + L"\\folder " + std::to_wstring(top);
        AddFolder(topFolder);
        for (int middle = 0; middle < MiddleFolders; ++middle) {
            const std::wstring middleFolder = topFolder + L"\\folder " + std::to_wstring(middle);
            AddFolder(middleFolder);
            for (int bottom = 0; bottom < BottomFolders; ++bottom)
                AddFolder(middleFolder + L"\\folder " + std::to_wstring(bottom));
        }
    }
    folderCount = LooseFolders + TopFolders * (1 + MiddleFolders * (1 + BottomFolders));
}

void BenchTree::MakeTexts() {
    AddFolder(TextsFolder());
    const std::string large = Text(LargeSize);
    const std::string small = Text(SmallSize);
    for (int i = 0; i < LargeFiles + SmallFiles; ++i) {
        const std::string& text = i < LargeFiles ? large : small;
        textFiles.push_back(TextsFolder() + L"\\text " + std::to_wstring(i) + L".txt");
        AddFile(textFiles.back(), text);
        textBytes += text.size();
    }
}

void BenchTree::AddFolder(const std::wstring& path) {
    valid = valid && CreateDirectoryW(path.c_str(), nullptr) != FALSE;
}

void BenchTree::AddFile(const std::wstring& path, const std::string& bytes) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        valid = false;
        return;
    }
    DWORD written = 0;
    valid = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && valid &&
            written == bytes.size();
    CloseHandle(file);
}
