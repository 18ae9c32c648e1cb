#include "app/run.h"

#include <memory>

#include "app/command_line_words.h"
#include "app/main_window.h"
#include "app/product.h"
#include "app/start_up.h"
#include "framework/application.h"
#include "framework/property_set.h"
#include "platform/ce_system.h"
#include "resources/resource_ids.h"

namespace {

constexpr int ExitRunningAlready = 1;
constexpr int ExitWithoutWindow = 2;

// The button-face colour plus one, as the handheld numbers it: colour index 16 with the system-colour flag.
constexpr PropertyValue ButtonFaceBrush = 0x40000010;

}  // namespace

void DescribeMainWindow(PropertySet& properties) {
    properties.SetText(property::ClassName, MainWindowClass);
    properties.Set(property::SmallIcon, ICON_PROGRAM);
    properties.Set(property::MenuBar,
                   Context().menuLanguage == UiLanguage::Japanese ? MENU_JAPANESE : MENU_ENGLISH);
    properties.Set(property::Accelerators, ACCELERATORS_MAIN);
    properties.Set(property::ClassBackground, ButtonFaceBrush);
    // For the date pickers of the date page.
    properties.Set(property::ExtraControlClasses, ICC_DATE_CLASSES);
}

int RunQuorinSearch(HINSTANCE instance, const wchar_t* commandLine, int showCommand) {
    ProgramContext& context = ContextForStartUp();
    context.instance = instance;
    context.commandLine = commandLine;
    context.showCommand = showCommand;
    ce::SuppressDiskPrompts();
    ProbePlatform(context);
    DecideLanguage(context);
    const CommandLineWords words(commandLine);
    if (BringRunningCopyForward()) {
        ReleaseConversionLibrary(context);
        return ExitRunningAlready;
    }

    int exitCode = 0;
    {
        Application application(ProductName, words.Count(), words.List());
        PropertySet properties;
        DescribeMainWindow(properties);
        const auto mainWindow = std::make_unique<MainWindow>(ProductName, properties, application);
        // Without a window nothing could ever end the program; the user has already been told.
        if (mainWindow->Handle() == nullptr) {
            exitCode = ExitWithoutWindow;
        } else {
            mainWindow->Show();
            exitCode = application.Run();
        }
    }
    ReleaseConversionLibrary(context);
    return exitCode;
}
