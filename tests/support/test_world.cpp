#include "tests/support/test_world.h"

#include "framework/property_keys.h"
#include "search/text_conversion.h"

namespace {

PropertySet& DescribeHost(PropertySet& properties) {
    properties.SetText(property::ClassName, L"QuorinTestHost");
    properties.Set(property::Style, WS_POPUP | WS_VISIBLE);
    properties.Set(property::Width, 230);
    properties.Set(property::Height, 280);
    return properties;
}

}  // namespace

TestWorld::TestWorld(UiLanguage language) : before_(Globals()), application_(L"QuorinSearch", 0, nullptr) {
    AppGlobals& globals = GlobalsForStartUp();
    globals.instance = GetModuleHandleW(nullptr);
    globals.showCommand = SW_SHOWNORMAL;
    globals.uiLanguage = language;
    globals.menuLanguage = language;
    globals.toMultiByte = &DefaultToMultiByte;
    globals.toWide = &DefaultToWide;
}

TestWorld::~TestWorld() {
    GlobalsForStartUp() = before_;
}

HostWindow::HostWindow() : window_(nullptr, L"", DescribeHost(properties_)) {}
