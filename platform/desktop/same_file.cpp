#include "platform/same_file.h"

#include "platform/desktop/system_path.h"

namespace {

class IdentifiedFile {
  public:
    // No access at all is needed to be told which file it is.
    explicit IdentifiedFile(const wchar_t* literal)
        : handle_(CreateFileW(literal, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {}
    IdentifiedFile(const IdentifiedFile&) = delete;
    IdentifiedFile& operator=(const IdentifiedFile&) = delete;
    ~IdentifiedFile() {
        if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    }

    [[nodiscard]] bool Identify(BY_HANDLE_FILE_INFORMATION& identity) const {
        return handle_ != INVALID_HANDLE_VALUE && GetFileInformationByHandle(handle_, &identity);
    }

  private:
    HANDLE handle_;
};

}  // namespace

bool IsSameFile(const wchar_t* first, const wchar_t* second) {
    const SystemPath literal(first);
    const SystemPath otherLiteral(second);
    return literal.Fits() && otherLiteral.Fits() && OpensSameFile(literal.Text(), otherLiteral.Text());
}

bool OpensSameFile(const wchar_t* first, const wchar_t* second) {
    // Both are held open: an identity may be given to another file once its file is gone.
    const IdentifiedFile firstFile(first);
    const IdentifiedFile secondFile(second);
    BY_HANDLE_FILE_INFORMATION a{}, b{};
    return firstFile.Identify(a) && secondFile.Identify(b) &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh &&
           a.nFileIndexLow == b.nFileIndexLow;
}
