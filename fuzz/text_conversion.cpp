// Texts to the device's bytes and back, by the default routines and over a conversion library, into
// destinations of any size; and the conversion library itself over a made-up code page.

#include <cstring>
#include <cwchar>

#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "fuzz/world/made_up_code_page.h"
#include "search/double_byte_text.h"
#include "search/text_conversion.h"
#include "tkconv/tkconv.h"

namespace {

constexpr std::size_t Untouched = 0x5A;

// The routines are given a destination of just the size; what they leave alone keeps its mark.
template <class Unit, class Source>
std::vector<Unit> Converted(void (*routine)(const Source*, Unit*, int),
                            const std::basic_string<Source>& source, std::size_t size) {
    std::vector<Unit> destination(size, static_cast<Unit>(Untouched));
    routine(ExactText<Source>(source).Get(), destination.data(), static_cast<int>(size));
    return destination;
}

// The text as far as there is room for it, terminated, and nothing behind that.
template <class Unit>
void RequireText(const std::vector<Unit>& destination, const std::basic_string<Unit>& plain) {
    if (destination.empty()) return;
    const std::size_t length = std::min(plain.size(), destination.size() - 1);
    Require(
        std::equal(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(length), destination.begin()),
        "the text is the plain one");
    Require(destination[length] == Unit{}, "the text is terminated");
    for (std::size_t at = length + 1; at < destination.size(); ++at)
        Require(destination[at] == static_cast<Unit>(Untouched), "nothing is written behind the text");
}

std::wstring SomeWideText(FuzzInput& input) {
    return SomeText(input, 40);
}

std::string SomeByteText(FuzzInput& input) {
    const std::string bytes = input.Bytes(input.UpTo(60));
    return bytes.substr(0, bytes.find('\0'));
}

void ConvertByDefault(FuzzInput& input) {
    const std::size_t size = input.UpTo(45);
    const std::wstring text = SomeWideText(input);
    std::string low;
    for (const wchar_t unit : text)
        low += static_cast<char>(unit & 0xFF);
    RequireText(Converted<char, wchar_t>(DefaultToMultiByte, text, size), low.substr(0, low.find('\0')));
    const std::string bytes = SomeByteText(input);
    std::wstring wide;
    for (const char byte : bytes)
        wide += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    RequireText(Converted<wchar_t, char>(DefaultToWide, bytes, size), wide);
}

std::string BytesPlainly(const std::wstring& text) {
    std::string bytes;
    for (const wchar_t unit : text) {
        const unsigned short code = unicode2sjis(static_cast<unsigned short>(unit));
        if (code > 0xFF) bytes += static_cast<char>(code >> 8);
        bytes += code == 0 ? '?' : static_cast<char>(code & 0xFF);
    }
    return bytes;
}

std::wstring UnitsPlainly(const std::string& bytes) {
    std::wstring text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (!IsLeadByte(byte)) {
            const bool isKatakana = byte >= 0xA1 && byte <= 0xDF;
            text += static_cast<wchar_t>(isKatakana ? 0xFF61 + byte - 0xA1 : byte);
            continue;
        }
        if (++at == bytes.size()) return text + L'?';
        const unsigned short unit = sjis2unicode(byte, static_cast<unsigned char>(bytes[at]));
        text += unit == 0 ? L'?' : static_cast<wchar_t>(unit);
    }
    return text;
}

void ConvertByLibrary(FuzzInput& input) {
    UseConversionLibrary(unicode2sjis, sjis2unicode);
    const std::size_t size = input.UpTo(90);
    const std::wstring text = SomeWideText(input);
    RequireText(Converted<char, wchar_t>(LibraryToMultiByte, text, size), BytesPlainly(text));
    const std::string bytes = SomeByteText(input);
    RequireText(Converted<wchar_t, char>(LibraryToWide, bytes, size), UnitsPlainly(bytes));
    UseConversionLibrary(nullptr, nullptr);
}

void FoldBytes(FuzzInput& input) {
    const bool doubleByteAware = input.Flag();
    std::string bytes = SomeByteText(input);
    ExactText<char> folded(bytes);
    UpperCaseBytes(folded.Get(), doubleByteAware);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (doubleByteAware && IsLeadByte(byte))
            ++at;
        else if (byte >= 'a' && byte <= 'z')
            bytes[at] = static_cast<char>(byte - 32);
    }
    Require(folded.Get() == bytes, "bytes are folded as by the plain rule");
}

// Row by row in the order of the codes: the lead bytes hold two rows each, their trail bytes leave out 0x7F.
unsigned short JisPlainly(unsigned row, unsigned cell) {
    if (row < 0x21 || row > 0x7E || cell < 0x21 || cell > 0x7E) return 0;
    const unsigned place = (row - 0x21) * 94 + (cell - 0x21);
    unsigned lead = 0x81;
    for (unsigned passed = place / 188; passed > 0; --passed)
        lead = lead == 0x9F ? 0xE0 : lead + 1;
    unsigned trail = 0x40;
    for (unsigned passed = place % 188; passed > 0; --passed)
        trail = trail == 0x7E ? 0x80 : trail + 1;
    return MadeUpUnit(static_cast<unsigned char>(lead), static_cast<unsigned char>(trail));
}

void LookUpCodes(FuzzInput& input) {
    const std::uint8_t first = input.Byte();
    const std::uint8_t second = input.Byte();
    Require(sjis2unicode(first, second) == MadeUpUnit(first, second), "a code has its unit");
    Require(jis2unicode(first, second) == JisPlainly(first, second), "a row and a cell have their unit");
    const std::uint16_t unit = input.Word();
    const unsigned short code = unicode2sjis(unit);
    Require(code == MadeUpCode(unit), "a unit has its code");
    const bool isDouble = code > 0xFF;
    Require(!isDouble ||
                sjis2unicode(static_cast<unsigned char>(code >> 8), static_cast<unsigned char>(code)) == unit,
            "a code leads back to its unit");
}

}  // namespace

void FuzzTextConversion(FuzzInput& input) {
    static constexpr decltype(&FoldBytes) Kinds[] = {ConvertByDefault, ConvertByLibrary, FoldBytes,
                                                     LookUpCodes};
    input.OneOf(Kinds)(input);
}
