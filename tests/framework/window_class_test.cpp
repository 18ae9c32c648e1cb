#include "framework/window_class.h"

#include "framework/window_object.h"

#include "tests/framework/framework_test.h"

namespace {

LRESULT CALLBACK OwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window, message, wParam, lParam);
}

class WindowClass : public FrameworkTest {
  protected:
    // What the system knows of a class of this program; the style is ~0 when it knows none.
    static WNDCLASSW Registered(const wchar_t* name) {
        WNDCLASSW known{};
        if (!GetClassInfoW(Context().instance, name, &known)) known.style = ~0U;
        return known;
    }
};

TEST_F(WindowClass, without_properties_gets_the_defaults) {
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassOfDefaults");
    RegisterWindowClass(properties, &FrameworkWindowProcedure);
    const WNDCLASSW known = Registered(L"ClassOfDefaults");
    EXPECT_EQ(known.style, 3U);
    EXPECT_EQ(known.lpfnWndProc, &FrameworkWindowProcedure);
    EXPECT_EQ(known.cbClsExtra, 0);
    EXPECT_EQ(known.cbWndExtra, 0);
    EXPECT_EQ(known.hIcon, nullptr);
    EXPECT_EQ(known.hbrBackground, GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(known.lpszMenuName, nullptr);
    EXPECT_EQ(known.hInstance, Context().instance);
}

TEST_F(WindowClass, takes_each_property_that_is_set) {
    const HICON icon = LoadIconW(nullptr, IDI_APPLICATION);
    const HCURSOR cursor = LoadCursorW(nullptr, IDC_CROSS);
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassOfProperties");
    properties.Set(property::ClassStyle, CS_DBLCLKS);
    properties.Set(property::WindowProcedure, reinterpret_cast<PropertyValue>(&OwnProcedure));
    properties.Set(property::ClassExtraBytes, 8);
    properties.Set(property::WindowExtraBytes, 16);
    properties.Set(property::ClassIcon, reinterpret_cast<PropertyValue>(icon));
    properties.Set(property::ClassCursor, reinterpret_cast<PropertyValue>(cursor));
    properties.Set(property::ClassBackground, reinterpret_cast<PropertyValue>(GetStockObject(GRAY_BRUSH)));
    properties.SetText(property::ClassMenuName, L"SomeMenu");
    RegisterWindowClass(properties, &FrameworkWindowProcedure);
    const WNDCLASSW known = Registered(L"ClassOfProperties");
    EXPECT_EQ(known.style, static_cast<UINT>(CS_DBLCLKS));
    EXPECT_EQ(known.lpfnWndProc, &OwnProcedure);
    EXPECT_EQ(known.cbClsExtra, 8);
    EXPECT_EQ(known.cbWndExtra, 16);
    EXPECT_EQ(known.hIcon, icon);
    EXPECT_EQ(known.hCursor, cursor);
    EXPECT_EQ(known.hbrBackground, GetStockObject(GRAY_BRUSH));
    ASSERT_NE(known.lpszMenuName, nullptr);
    EXPECT_EQ(std::wstring(known.lpszMenuName), L"SomeMenu");
}

TEST_F(WindowClass, given_a_style_of_0_has_none_of_the_default) {
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassOfNoStyle");
    properties.Set(property::ClassStyle, 0);
    RegisterWindowClass(properties, &FrameworkWindowProcedure);
    EXPECT_EQ(Registered(L"ClassOfNoStyle").style, 0U);
}

TEST_F(WindowClass, stays_as_it_was_first_registered) {
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassRegisteredTwice");
    properties.Set(property::ClassStyle, CS_DBLCLKS);
    RegisterWindowClass(properties, &FrameworkWindowProcedure);
    properties.Set(property::ClassStyle, CS_NOCLOSE);
    RegisterWindowClass(properties, &FrameworkWindowProcedure);
    EXPECT_EQ(Registered(L"ClassRegisteredTwice").style, static_cast<UINT>(CS_DBLCLKS));
}

TEST_F(WindowClass, that_cannot_be_registered_is_passed_over) {
    PropertySet properties;
    properties.SetText(property::ClassName, L"ClassOfNegativeSize");
    properties.Set(property::ClassExtraBytes, static_cast<PropertyValue>(-1));
    RegisterWindowClass(properties, &FrameworkWindowProcedure);
    EXPECT_EQ(Registered(L"ClassOfNegativeSize").style, ~0U);
}

}  // namespace
