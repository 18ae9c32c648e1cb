#include "tests/resources/dialog_template.h"

#include <cstddef>
#include <cstring>

#include "tests/resources/program_module.h"

namespace {

// Reads little-endian words one after the other; reading past the end only marks the reader as failed.
class WordReader {
  public:
    explicit WordReader(const std::vector<unsigned char>& source) : bytes_(source) {}

    WORD Word() {
        if (place_ + 2 > bytes_.size()) {
            failed_ = true;
            return 0;
        }
        const unsigned int value = bytes_[place_] | static_cast<unsigned int>(bytes_[place_ + 1]) << 8;
        place_ += 2;
        return static_cast<WORD>(value);
    }
    DWORD DoubleWord() {
        const DWORD low = Word();
        return low | static_cast<DWORD>(Word()) << 16;
    }
    int Number() { return static_cast<short>(Word()); }
    std::wstring Text() {
        std::wstring text;
        while (const WORD unit = Word())
            text += static_cast<wchar_t>(unit);
        return text;
    }
    // A text, or 0xFFFF and a number: the name of a standard class or "#number".
    std::wstring TextOrOrdinal(bool isClass) {
        const WORD first = Word();
        if (first == 0) return {};
        if (first != 0xFFFF) return static_cast<wchar_t>(first) + Text();
        const WORD ordinal = Word();
        static const wchar_t* const classes[] = {L"Button",  L"Edit",      L"Static",
                                                 L"ListBox", L"ScrollBar", L"ComboBox"};
        if (isClass && ordinal >= 0x80 && ordinal <= 0x85) return classes[ordinal - 0x80];
        return L"#" + std::to_wstring(ordinal);
    }
    void AlignToDoubleWord() { place_ = (place_ + 3) / 4 * 4; }
    void Skip(std::size_t count) { place_ += count; }
    bool Failed() const { return failed_; }

  private:
    const std::vector<unsigned char>& bytes_;
    std::size_t place_ = 0;
    bool failed_ = false;
};

TemplateControl ReadControl(WordReader& reader) {
    TemplateControl control;
    reader.AlignToDoubleWord();
    control.style = reader.DoubleWord();
    control.extendedStyle = reader.DoubleWord();
    control.x = reader.Number();
    control.y = reader.Number();
    control.width = reader.Number();
    control.height = reader.Number();
    control.id = reader.Number();
    control.className = reader.TextOrOrdinal(true);
    control.text = reader.TextOrOrdinal(false);
    reader.Skip(reader.Word());
    return control;
}

}  // namespace

bool ReadDialogTemplate(const wchar_t* name, DialogTemplate& dialog) {
    const std::vector<unsigned char> bytes = ResourceBytes(name, RT_DIALOG);
    if (bytes.empty()) return false;
    WordReader reader(bytes);
    dialog = {};
    dialog.style = reader.DoubleWord();
    // The extended layout begins with 1 and 0xFFFF; the handheld does not know it.
    if (dialog.style == 0xFFFF0001) return false;
    dialog.extendedStyle = reader.DoubleWord();
    const int count = reader.Word();
    dialog.x = reader.Number();
    dialog.y = reader.Number();
    dialog.width = reader.Number();
    dialog.height = reader.Number();
    if (!reader.TextOrOrdinal(false).empty()) return false;  // a menu
    if (!reader.TextOrOrdinal(true).empty()) return false;   // a class of its own
    dialog.title = reader.Text();
    if (dialog.style & DS_SETFONT) {
        dialog.fontSize = reader.Word();
        dialog.fontName = reader.Text();
    }
    for (int index = 0; index < count; ++index)
        dialog.controls.push_back(ReadControl(reader));
    return !reader.Failed();
}

const TemplateControl* FindControl(const DialogTemplate& dialog, int id) {
    for (const TemplateControl& control : dialog.controls)
        if (control.id == id) return &control;
    return nullptr;
}
