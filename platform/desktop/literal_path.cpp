#include "platform/desktop/literal_path.h"

#include <cstddef>
#include <cwchar>

namespace {

constexpr wchar_t Mark[] = L"\\\\?\\";
constexpr std::size_t MarkLength = 4;
constexpr std::size_t DriveLength = 2;

bool IsSeparator(wchar_t unit) {
    return unit == L'\\' || unit == L'/';
}

bool HasDrive(const wchar_t* path) {
    return path[0] != L'\0' && !IsSeparator(path[0]) && path[1] == L':';
}

bool IsOnAnotherMachine(const wchar_t* path) {
    return IsSeparator(path[0]) && IsSeparator(path[1]);
}

bool IsTooLong(const wchar_t* path) {
    return wcsnlen(path, MAX_PATH) >= MAX_PATH;
}

// Puts one path together, component by component, behind the mark and the drive.
class PathWriter {
  public:
    PathWriter(wchar_t (&destination)[LiteralPathSize], const wchar_t* drive) : text_(destination) {
        std::wmemcpy(text_, Mark, MarkLength);
        std::wmemcpy(text_ + MarkLength, drive, DriveLength);
        text_[RootLength] = L'\0';
    }

    void AddComponents(const wchar_t* path) {
        while (*path != L'\0') {
            std::size_t units = 0;
            while (path[units] != L'\0' && !IsSeparator(path[units]))
                ++units;
            AddComponent(path, units);
            path += units;
            if (*path != L'\0') ++path;
        }
    }

    // A drive's root ends in a separator, everything else does not.
    void Finish() {
        if (length_ == RootLength) text_[length_++] = L'\\';
        text_[length_] = L'\0';
    }

  private:
    static constexpr std::size_t RootLength = MarkLength + DriveLength;

    void AddComponent(const wchar_t* name, std::size_t units) {
        if (units == 0 || (units == 1 && name[0] == L'.')) return;
        if (units == 2 && name[0] == L'.' && name[1] == L'.') {
            while (length_ > RootLength && text_[--length_] != L'\\') {
            }
            return;
        }
        text_[length_++] = L'\\';
        std::wmemcpy(text_ + length_, name, units);
        length_ += units;
    }

    wchar_t* text_;
    std::size_t length_ = RootLength;
};

void CopyAsItIs(wchar_t (&destination)[LiteralPathSize], const wchar_t* path) {
    std::wmemcpy(destination, path, std::wcslen(path) + 1);
}

}  // namespace

bool IsAbsolutePath(const wchar_t* path) {
    return IsOnAnotherMachine(path) || (HasDrive(path) && IsSeparator(path[DriveLength]));
}

bool LiteralPath(wchar_t (&destination)[LiteralPathSize], const wchar_t* path, const wchar_t* base) {
    destination[0] = L'\0';
    if (IsTooLong(path)) return false;
    if (IsOnAnotherMachine(path)) {
        CopyAsItIs(destination, path);
        return true;
    }
    const bool hasDrive = HasDrive(path);
    const wchar_t* const rest = hasDrive ? path + DriveLength : path;
    if (!IsAbsolutePath(path)) {
        if (IsTooLong(base)) return false;
        if (IsOnAnotherMachine(base)) {
            CopyAsItIs(destination, path);
            return true;
        }
        if (!HasDrive(base)) return false;
    }
    PathWriter writer(destination, hasDrive ? path : base);
    if (!IsSeparator(rest[0])) writer.AddComponents(base + DriveLength);
    writer.AddComponents(rest);
    writer.Finish();
    return true;
}
