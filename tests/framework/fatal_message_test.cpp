#include "framework/message_boxes.h"

#include "framework/control.h"
#include "tests/framework/framework_test.h"
#include "tests/support/answered_boxes.h"

namespace {

// Notes the icon and the owner of each message box that is opened.
class BoxIcons {
  public:
    BoxIcons() {
        seenIcon = nullptr;
        seenOwner = nullptr;
        hook_ = SetWindowsHookExW(WH_CBT, Look, nullptr, GetCurrentThreadId());
    }
    ~BoxIcons() { UnhookWindowsHookEx(hook_); }
    BoxIcons(const BoxIcons&) = delete;
    BoxIcons& operator=(const BoxIcons&) = delete;

    [[nodiscard]] static HANDLE Icon() { return seenIcon; }
    [[nodiscard]] static HWND Owner() { return seenOwner; }

  private:
    static LRESULT CALLBACK Look(int code, WPARAM wParam, LPARAM lParam) {
        const auto box = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && IsDialogWindow(box)) {
            seenOwner = GetWindow(box, GW_OWNER);
            for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
                 child = GetWindow(child, GW_HWNDNEXT)) {
                const auto icon = reinterpret_cast<HANDLE>(SendMessageW(child, STM_GETICON, 0, 0));
                if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON && icon != nullptr)
                    seenIcon = icon;
            }
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static HANDLE seenIcon;
    static HWND seenOwner;
    HHOOK hook_ = nullptr;
};
HANDLE BoxIcons::seenIcon = nullptr;
HWND BoxIcons::seenOwner = nullptr;

class FatalMessage : public FrameworkTest {
  protected:
    // A window of a class that nobody has registered.
    static std::unique_ptr<WindowObject> MakeImpossibleWindow(WindowObject* parent, const wchar_t* title) {
        PropertySet properties;
        properties.SetText(property::ClassName, L"NoSuchClass");
        properties.Set(property::ClassIsRegistered, 1);
        return std::make_unique<WindowObject>(parent, title, properties);
    }
};

TEST_F(FatalMessage, names_class_and_title_of_a_window_that_cannot_be_created) {
    const AnsweredBoxes boxes{IDOK};
    const auto object = MakeImpossibleWindow(nullptr, L"Some title");
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_EQ(boxes.Seen()[0].caption, L"Fatal");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"CreateWindow(NoSuchClass:Some title)"));
}

TEST_F(FatalMessage, has_a_japanese_title) {
    ContextForStartUp().uiLanguage = UiLanguage::Japanese;
    const AnsweredBoxes boxes{IDOK};
    const auto object = MakeImpossibleWindow(nullptr, L"タイトル");
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_EQ(boxes.Seen()[0].caption, L"致命的なｴﾗｰ");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"CreateWindow(NoSuchClass:タイトル)"));
}

TEST_F(FatalMessage, of_a_window_without_a_title_ends_behind_the_colon) {
    const AnsweredBoxes boxes{IDOK};
    const auto object = MakeImpossibleWindow(nullptr, nullptr);
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"CreateWindow(NoSuchClass:)"));
}

TEST_F(FatalMessage, leaves_the_program_going_on_with_an_object_without_a_window) {
    const AnsweredBoxes boxes{IDOK};
    const auto object = MakeImpossibleWindow(nullptr, L"");
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_EQ(object->Handle(), nullptr);
    EXPECT_FALSE(object->OwnsHandle());
    object->Enable();
    object->Move(0, 0, 10, 10);
    TestWindow next;
    EXPECT_NE(next.Handle(), nullptr);
    EXPECT_EQ(boxes.Seen().size(), 1U);
}

TEST_F(FatalMessage, belongs_to_the_parent_and_bears_the_stop_icon) {
    TestWindow parent;
    const AnsweredBoxes boxes{IDOK};
    const BoxIcons icons;
    const auto object = MakeImpossibleWindow(&parent, L"");
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_EQ(BoxIcons::Owner(), parent.Handle());
    EXPECT_EQ(BoxIcons::Icon(), LoadIconW(nullptr, IDI_ERROR));
}

TEST_F(FatalMessage, of_a_class_that_cannot_be_registered_is_that_of_the_creation) {
    PropertySet properties;
    properties.SetText(property::ClassName, L"FatalClassOfNegativeSize");
    properties.Set(property::WindowExtraBytes, static_cast<PropertyValue>(-1));
    const AnsweredBoxes boxes{IDOK};
    const WindowObject object(nullptr, L"T", properties);
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"CreateWindow(FatalClassOfNegativeSize:T)"));
}

TEST_F(FatalMessage, shows_519_units_of_a_longer_text) {
    const std::wstring title(600, L'x');
    const AnsweredBoxes boxes{IDOK};
    EXPECT_EQ(ShowFatal(nullptr, L"%s", title.c_str()), IDOK);
    EXPECT_EQ(ShowFatal(nullptr, L"%s", title.substr(0, 519).c_str()), IDOK);
    EXPECT_EQ(ShowFatal(nullptr, L"%s", title.substr(0, 520).c_str()), IDOK);
    ASSERT_EQ(boxes.Seen().size(), 3U);
    for (const SeenBox& box : boxes.Seen()) {
        EXPECT_TRUE(AnsweredBoxes::Shows(box, std::wstring(519, L'x')));
    }
}

TEST_F(FatalMessage, formats_numbers_and_texts) {
    const AnsweredBoxes boxes{IDOK};
    ShowFatal(nullptr, L"%s failed: %d", L"読み込み", 42);
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"読み込み failed: 42"));
}

}  // namespace
