#include "platform/desktop/shell_link_file.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr std::uint32_t HeaderSize = 76;
constexpr std::string_view ClassId("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);
constexpr std::size_t FlagsAt = 20;

enum LinkFlag : std::uint32_t {
    HasItemList = 0x01,
    HasLinkInfo = 0x02,
    HasName = 0x04,
    HasRelativePath = 0x08,
    HasWorkingFolder = 0x10,
    HasArguments = 0x20,
    IsUnicode = 0x80,
};

// A part of the file. What lies beyond its end reads as nothing.
class Part {
  public:
    explicit Part(std::string_view content) : bytes_(content) {}

    [[nodiscard]] std::size_t Size() const { return bytes_.size(); }
    [[nodiscard]] std::uint32_t Byte(std::size_t at) const {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0u;
    }
    [[nodiscard]] std::uint32_t Word(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
    [[nodiscard]] std::uint32_t DoubleWord(std::size_t at) const { return Word(at) | Word(at + 2) << 16; }
    [[nodiscard]] Part From(std::size_t at) const {
        return Part(at < bytes_.size() ? bytes_.substr(at) : std::string_view());
    }
    [[nodiscard]] Part First(std::size_t size) const { return Part(bytes_.substr(0, size)); }

    // Up to the first zero or the end.
    [[nodiscard]] std::string_view Text() const { return bytes_.substr(0, bytes_.find('\0')); }
    [[nodiscard]] std::wstring WideText() const {
        std::wstring text;
        for (std::size_t at = 0; Word(at) != 0 && at + 1 < bytes_.size(); at += 2)
            text += static_cast<wchar_t>(Word(at));
        return text;
    }

  private:
    std::string_view bytes_;
};

// Two separators never meet, and none is left out.
std::wstring Joined(const std::wstring& folder, const std::wstring& name) {
    if (folder.empty() || name.empty()) return folder + name;
    return folder.back() == L'\\' ? folder + name : folder + L'\\' + name;
}

// The path by its letters: what the code page has no letter for stands in it as "?".
std::wstring LocalPath(const Part& info, CodePageReader read) {
    constexpr std::uint32_t HasLocalPath = 1;
    constexpr std::uint32_t SizeWithUnicode = 36;
    if ((info.DoubleWord(8) & HasLocalPath) == 0) return {};
    if (info.DoubleWord(4) >= SizeWithUnicode) {
        const std::wstring wide = info.From(info.DoubleWord(28)).WideText();
        if (!wide.empty()) return wide + info.From(info.DoubleWord(32)).WideText();
    }
    return read(info.From(info.DoubleWord(16)).Text()) + read(info.From(info.DoubleWord(24)).Text());
}

std::wstring NetworkPath(const Part& info, CodePageReader read) {
    constexpr std::uint32_t HasNetworkPath = 2;
    if ((info.DoubleWord(8) & HasNetworkPath) == 0) return {};
    const Part share = info.From(info.DoubleWord(20));
    return Joined(read(share.From(share.DoubleWord(8)).Text()), read(info.From(info.DoubleWord(24)).Text()));
}

// The name of a file or folder in the list of items, with its long form at the end.
std::wstring ItemName(const Part& item, CodePageReader read) {
    constexpr std::size_t NameAt = 14;
    constexpr std::size_t LongNameAt = 20;  // in the item's extension
    constexpr std::uint32_t LaterVersion = 7;
    const std::size_t extension = item.Word(item.Size() - 2);
    if (extension > NameAt && extension < item.Size() && item.Word(extension + 2) < LaterVersion) {
        std::wstring name = item.From(extension + LongNameAt).WideText();
        if (!name.empty()) return name;
    }
    return read(item.From(NameAt).Text());
}

// The path by the items of the shell, from the drive down.
std::wstring ItemPath(const Part& items, CodePageReader read) {
    constexpr std::uint32_t KindMask = 0x70;
    constexpr std::uint32_t Drive = 0x20;
    constexpr std::uint32_t File = 0x30;
    constexpr std::size_t SmallestItem = 6;
    std::wstring path;
    for (std::size_t at = 0; items.Word(at) >= SmallestItem; at += items.Word(at)) {
        const Part item = items.From(at).First(items.Word(at));
        const std::uint32_t kind = item.Byte(2) & KindMask;
        if (kind == Drive) path = read(item.From(3).Text());
        if (kind == File && !path.empty()) path = Joined(path, ItemName(item, read));
        if (kind != Drive && kind != File && !path.empty()) return {};
    }
    return path;
}

// Takes the parts of the file one after another.
class Reader {
  public:
    Reader(const Part& linkFile, CodePageReader reader)
        : rest_(linkFile.From(HeaderSize)), flags_(linkFile.DoubleWord(FlagsAt)), read_(reader) {}

    std::wstring Program() {
        const Part items = TakeItems();
        const Part info = TakeInfo();
        std::wstring path = LocalPath(info, read_);
        if (path.empty()) path = NetworkPath(info, read_);
        const bool lostLetters = path.empty() || path.find(L'?') != std::wstring::npos;
        return lostLetters ? ItemPath(items, read_) : path;
    }
    std::wstring Arguments() {
        for (const std::uint32_t before : {HasName, HasRelativePath, HasWorkingFolder}) {
            if ((flags_ & before) != 0) TakeString();
        }
        return (flags_ & HasArguments) != 0 ? TakeString() : std::wstring();
    }

  private:
    Part Take(std::size_t size) {
        const Part taken = rest_.First(size);
        rest_ = rest_.From(size);
        return taken;
    }
    Part TakeItems() {
        if ((flags_ & HasItemList) == 0) return Part({});
        const std::size_t size = rest_.Word(0);
        Take(2);
        return Take(size);
    }
    Part TakeInfo() { return (flags_ & HasLinkInfo) != 0 ? Take(rest_.DoubleWord(0)) : Part({}); }
    std::wstring TakeString() {
        const std::size_t units = rest_.Word(0);
        Take(2);
        if ((flags_ & IsUnicode) == 0) return read_(Take(units).Text());
        return Take(2 * units).WideText();
    }

    Part rest_;
    std::uint32_t flags_;
    CodePageReader read_;
};

}  // namespace

bool ReadShellLinkFile(std::string_view bytes, CodePageReader read, ShellLinkTarget& target) {
    target = {};
    const Part file(bytes);
    if (bytes.size() < HeaderSize || file.DoubleWord(0) != HeaderSize) return false;
    if (bytes.substr(4, ClassId.size()) != ClassId) return false;
    Reader reader(file, read);
    target.program = reader.Program();
    if (target.program.empty()) return false;
    target.arguments = reader.Arguments();
    return true;
}
