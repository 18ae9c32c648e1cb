// What the bars are sent when a view is made that asks for them.

#include <functional>

#include "framework/application_view.h"
#include "tests/framework/framework_test.h"

namespace {

class RebarView : public ApplicationView {
  public:
    explicit RebarView(PropertySet properties) : ApplicationView(nullptr, L"Bars", properties, nullptr) {}
};

PropertySet WithRebar() {
    PropertySet properties = PopupProperties();
    properties.Set(1021, 1);
    return properties;
}

// Notes what is sent to the windows of one class.
class SentMessages {
  public:
    explicit SentMessages(const wchar_t* wantedClass) : className_(wantedClass) {
        current = this;
        hook_ = SetWindowsHookExW(WH_CALLWNDPROC, BeforeMessage, nullptr, GetCurrentThreadId());
    }
    ~SentMessages() {
        UnhookWindowsHookEx(hook_);
        current = nullptr;
    }
    SentMessages(const SentMessages&) = delete;
    SentMessages& operator=(const SentMessages&) = delete;

    // Called with each before it arrives.
    std::function<void(const CWPSTRUCT&)> note;

  private:
    static LRESULT CALLBACK BeforeMessage(int code, WPARAM wParam, LPARAM lParam) {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && current->note && current->IsWanted(sent.hwnd)) current->note(sent);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    [[nodiscard]] bool IsWanted(HWND window) const {
        wchar_t name[64] = L"";
        GetClassNameW(window, name, 64);
        return name == className_;
    }

    static inline SentMessages* current = nullptr;
    std::wstring className_;
    HHOOK hook_;
};

class BarMessages : public FrameworkTest {};

TEST_F(BarMessages, tell_a_command_bar_of_its_buttons_its_owner_and_its_pictures) {
    SentMessages sent(L"ToolbarWindow32");
    std::vector<UINT> messages;
    WPARAM structureSize = 0, owner = 0;
    LPARAM pictureSize = 0;
    sent.note = [&](const CWPSTRUCT& told) {
        if (told.message == 0x41E) structureSize = told.wParam;
        if (told.message == 0x425) owner = told.wParam;
        if (told.message == 0x420) pictureSize = told.lParam;
        if (told.message == 0x41E || told.message == 0x425 || told.message == 0x420)
            messages.push_back(told.message);
    };
    const RebarView view(WithRebar());
    EXPECT_EQ(messages, (std::vector<UINT>{0x41E, 0x425, 0x420}));
    // 20 bytes where a pointer has four.
    EXPECT_EQ(structureSize, sizeof(TBBUTTON));
    EXPECT_EQ(owner, reinterpret_cast<WPARAM>(view.Handle()));
    EXPECT_EQ(pictureSize, 0x100010);
}

TEST_F(BarMessages, insert_a_command_bar_as_one_band_behind_all_others) {
    SentMessages sent(L"ReBarWindow32");
    int bands = 0;
    sent.note = [&](const CWPSTRUCT& told) {
        if (told.message != 0x40A) return;
        ++bands;
        EXPECT_EQ(told.wParam, static_cast<WPARAM>(-1));
        const auto& band = *reinterpret_cast<const REBARBANDINFOW*>(told.lParam);
        EXPECT_EQ(band.cbSize, sizeof(REBARBANDINFOW));
        EXPECT_EQ(band.fMask, 313U);
        EXPECT_EQ(band.fStyle, 16U);
    };
    const RebarView view(WithRebar());
    EXPECT_EQ(bands, 1);
}

}  // namespace
