#include "results/file_type_table.h"

#include <cwchar>
#include <iterator>
#include <new>

#include "base/registry_key.h"
#include "framework/application.h"

struct FileTypeTable::Shared {
    std::vector<std::unique_ptr<FileTypeInfo>> records;
    StringHashTable byExtension;  // in lower case, with the dot
    StringHashTable byTypeKey;
};

FileTypeTable::Shared* FileTypeTable::shared = nullptr;
int FileTypeTable::liveObjects = 0;

namespace {

constexpr DWORD NameCapacity = 520;

}  // namespace

FileTypeTable::FileTypeTable() {
    if (liveObjects++ > 0) return;
    shared = new (std::nothrow) Shared;
    if (shared != nullptr) Build(*shared);
}

FileTypeTable::~FileTypeTable() {
    if (--liveObjects > 0) return;
    delete shared;
    shared = nullptr;
}

void FileTypeTable::Build(Shared& table) {
    RegistryKey classes(HKEY_CLASSES_ROOT);
    if (!classes.Open(L"")) return;
    const WaitCursor waiting;
    wchar_t name[NameCapacity];
    for (DWORD index = 0;; ++index) {
        DWORD length = NameCapacity;
        if (RegEnumKeyExW(classes.Handle(), index, name, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            break;
        }
        if (name[0] != L'.') continue;
        CharLowerW(name);
        // QUIRK: exe-is-no-type. Applications have icons of their own.
        if (std::wcscmp(name, L".exe") != 0) AddExtension(table, name);
    }
}

void FileTypeTable::AddExtension(Shared& table, const wchar_t* extension) {
    auto info = std::make_unique<FileTypeInfo>(ReadFileTypeInfo(extension));
    // QUIRK: untyped-extensions-are-one-type. They have the empty key.
    auto* known = reinterpret_cast<FileTypeInfo*>(table.byTypeKey.Lookup(info->typeKey.c_str()));
    if (known != nullptr) {
        known->extensions += extension;
        table.byExtension.Insert(extension, reinterpret_cast<std::uintptr_t>(known));
        return;
    }
    const auto value = reinterpret_cast<std::uintptr_t>(info.get());
    table.byTypeKey.Insert(info->typeKey.c_str(), value);
    table.byExtension.Insert(extension, value);
    table.records.push_back(std::move(info));
}

int FileTypeTable::Count() const {
    return shared != nullptr ? static_cast<int>(shared->records.size()) : 0;
}

const FileTypeInfo& FileTypeTable::At(int index) const {
    return *shared->records[static_cast<std::size_t>(index)];
}

const wchar_t* FileTypeTable::TypeKeyOf(const wchar_t* path) const {
    const wchar_t* dot = std::wcsrchr(path, L'.');
    if (dot == nullptr || shared == nullptr) return L"";
    wchar_t extension[MAX_PATH];
    // One too long to be a name's is not registered.
    if (std::wcslen(dot) >= std::size(extension)) return L"";
    std::wcscpy(extension, dot);
    CharLowerW(extension);
    const auto* info = reinterpret_cast<const FileTypeInfo*>(shared->byExtension.Lookup(extension));
    return info != nullptr ? info->typeKey.c_str() : L"";
}
