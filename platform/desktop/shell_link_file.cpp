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
    explicit Part(std::string_view content) : bytes(content) {}

    [[nodiscard]] std::size_t Size() const { return bytes.size(); }
    [[nodiscard]] std::uint32_t Byte(std::size_t at) const {
        return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0u;
    }
    [[nodiscard]] std::uint32_t Word(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
    [[nodiscard]] std::uint32_t DoubleWord(std::size_t at) const { return Word(at) | Word(at + 2) << 16; }
    [[nodiscard]] Part From(std::size_t at) const {
        return Part(at < bytes.size() ? bytes.substr(at) : std::string_view());
    }
    [[nodiscard]] Part First(std::size_t size) const { return Part(bytes.substr(0, size)); }

    // Up to the first zero or the end.
    [[nodiscard]] std::string_view Text() const { return bytes.substr(0, bytes.find('\0')); }
    [[nodiscard]] std::wstring WideText() const {
        std::wstring text;
        for (std::size_t at = 0; Word(at) != 0 && at + 1 < bytes.size(); at += 2)
            text += static_cast<wchar_t>(Word(at));
        return text;
    }

  private:
    std::string_view bytes;
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
        const std::wstring name = item.From(extension + LongNameAt).WideText();
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
        : rest(linkFile.From(HeaderSize)), flags(linkFile.DoubleWord(FlagsAt)), read(reader) {}

    std::wstring Program() {
        const Part items = TakeItems();
        const Part info = TakeInfo();
        std::wstring path = LocalPath(info, read);
        if (path.empty()) path = NetworkPath(info, read);
        const bool lostLetters = path.empty() || path.find(L'?') != std::wstring::npos;
        return lostLetters ? ItemPath(items, read) : path;
    }
    std::wstring Arguments() {
        for (const std::uint32_t before : {HasName, HasRelativePath, HasWorkingFolder}) {
            if ((flags & before) != 0) TakeString();
        }
        return (flags & HasArguments) != 0 ? TakeString() : std::wstring();
    }

  private:
    Part Take(std::size_t size) {
        const Part taken = rest.First(size);
        rest = rest.From(size);
        return taken;
    }
    Part TakeItems() {
        if ((flags & HasItemList) == 0) return Part({});
        const std::size_t size = rest.Word(0);
        Take(2);
        return Take(size);
    }
    Part TakeInfo() { return (flags & HasLinkInfo) != 0 ? Take(rest.DoubleWord(0)) : Part({}); }
    std::wstring TakeString() {
        const std::size_t units = rest.Word(0);
        Take(2);
        if ((flags & IsUnicode) == 0) return read(Take(units).Text());
        return Take(2 * units).WideText();
    }

    Part rest;
    std::uint32_t flags;
    CodePageReader read;
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
