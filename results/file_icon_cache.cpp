#include "results/file_icon_cache.h"

#include <cwchar>
#include <memory>
#include <new>
#include <string>

#include "base/program_context.h"
#include "platform/handles.h"
#include "resources/resource_ids.h"
#include "results/file_type_table.h"

namespace {

constexpr int LargeSize = 32;
constexpr int SmallSize = 16;
constexpr int FixedIcons[] = {ICON_DOCUMENT, ICON_APPLICATION, ICON_FOLDER, ICON_SHORTCUT_MARK};
constexpr int ShortcutOverlay = 1;

// Owns an image list.
class ImageList {
  public:
    explicit ImageList(int imageSize) : size_(imageSize), images_(ce::CreateIconList(imageSize, 5, 10)) {}

    [[nodiscard]] HIMAGELIST Handle() const { return images_.Get(); }

    void LoadFixedIcons() {
        ImageList_Remove(images_.Get(), -1);
        int count = 0;
        for (const int id : FixedIcons) {
            Append(UniqueIcon(static_cast<HICON>(LoadImageW(Context().instance, MAKEINTRESOURCEW(id),
                                                            IMAGE_ICON, size_, size_, LR_DEFAULTCOLOR))));
            // An icon that cannot be loaded leaves an empty image, so that the others keep their indexes.
            GrowTo(++count);
        }
        ImageList_SetOverlayImage(images_.Get(), FileIconCache::ShortcutMarkImage, ShortcutOverlay);
    }

    // Appends the icon and returns its index.
    int Append(const UniqueIcon& icon) { return ImageList_ReplaceIcon(images_.Get(), -1, icon.Get()); }

    [[nodiscard]] int Count() const { return ImageList_GetImageCount(images_.Get()); }

    // Appends empty images up to this many.
    void GrowTo(int count) {
        if (Count() < count) ImageList_SetImageCount(images_.Get(), static_cast<UINT>(count));
    }

    // Appends the shell's icon of a file.
    int AppendShellIcon(const wchar_t* path, DWORD attributes, UINT flags) {
        SHFILEINFOW info{};
        ce::SHGetFileInfo(path, attributes, &info, sizeof info, SHGFI_ICON | SHGFI_USEFILEATTRIBUTES | flags);
        return Append(UniqueIcon(info.hIcon));
    }

  private:
    int size_;
    UniqueImageList images_;
};

bool EndsIn(const std::wstring& path, const wchar_t* suffix) {
    const std::size_t length = std::wcslen(suffix);
    // QUIRK: ending-alone-is-no-file-type
    return path.size() > length && path.compare(path.size() - length, length, suffix) == 0;
}

// The key of a file's icon, and its kind.
struct IconKey {
    std::wstring text;
    unsigned kind = 0;
    int fallback = FileIconCache::DocumentImage;
};

IconKey KeyOf(const wchar_t* path, const FileTypeTable* types) {
    IconKey key{path};
    CharLowerBuffW(key.text.data(), static_cast<DWORD>(key.text.size()));
    if (EndsIn(key.text, L".exe")) {
        key.kind = FileIconCache::Applications;
        key.fallback = FileIconCache::ApplicationImage;
    } else if (EndsIn(key.text, L".ic2") || EndsIn(key.text, L".ico")) {
        key.kind = FileIconCache::IconFiles;
    } else if (const wchar_t* typeKey = types != nullptr ? types->TypeKeyOf(path) : L"";
               typeKey[0] != L'\0') {
        key.text = typeKey;
        key.kind = FileIconCache::RegisteredTypes;
    }
    return key;
}

}  // namespace

struct FileIconCache::Shared {
    ImageList large{LargeSize};
    ImageList small{SmallSize};
    FileTypeTable types;
    std::unique_ptr<StringHashTable> icons;  // from key to image index
};

FileIconCache::Shared* FileIconCache::shared = nullptr;
int FileIconCache::liveObjects = 0;

FileIconCache::FileIconCache() {
    if (liveObjects++ > 0) return;
    shared = new (std::nothrow) Shared;
    Fill();
}

FileIconCache::~FileIconCache() {
    if (--liveObjects > 0) return;
    delete shared;
    shared = nullptr;
}

void FileIconCache::Fill() {
    if (shared == nullptr) return;
    shared->icons.reset(new (std::nothrow) StringHashTable);
    shared->large.LoadFixedIcons();
    shared->small.LoadFixedIcons();
}

int FileIconCache::ImageOf(const wchar_t* path, DWORD attributes, unsigned kinds) {
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return FolderImage;
    const IconKey key = KeyOf(path, Types());
    if (shared == nullptr || shared->icons == nullptr) return key.fallback;
    const std::uintptr_t known = shared->icons->Lookup(key.text.c_str());
    if (known != 0) return static_cast<int>(known);
    if ((kinds & key.kind) == 0) return key.fallback;
    const int index = shared->large.AppendShellIcon(path, attributes, 0);
    shared->small.AppendShellIcon(path, attributes, SHGFI_SMALLICON);
    // If the shell has only one of the two, the lists still stay in step.
    shared->large.GrowTo(shared->small.Count());
    shared->small.GrowTo(shared->large.Count());
    shared->icons->Insert(key.text.c_str(), static_cast<std::uintptr_t>(index));
    return index;
}

HIMAGELIST FileIconCache::LargeImages() const {
    return shared != nullptr ? shared->large.Handle() : nullptr;
}

HIMAGELIST FileIconCache::SmallImages() const {
    return shared != nullptr ? shared->small.Handle() : nullptr;
}

const FileTypeTable* FileIconCache::Types() const {
    return shared != nullptr ? &shared->types : nullptr;
}
