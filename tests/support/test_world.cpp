#include "tests/support/test_world.h"

#include "framework/property_set.h"
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

TestWorld::TestWorld(UiLanguage language) : before_(Context()), application_(L"QuorinSearch", 0, nullptr) {
    ProgramContext& context = ContextForStartUp();
    context.instance = GetModuleHandleW(nullptr);
    context.showCommand = SW_SHOWNORMAL;
    context.uiLanguage = language;
    context.menuLanguage = language;
    context.toMultiByte = &DefaultToMultiByte;
    context.toWide = &DefaultToWide;
}

TestWorld::~TestWorld() {
    ContextForStartUp() = before_;
}

HostWindow::HostWindow() : window_(nullptr, L"", DescribeHost(properties_)) {}
