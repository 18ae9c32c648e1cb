// Copies a file as the program does: with its main window, its progress dialog and its questions. The program
// offers file operations to whoever wants one, and has no command of its own that starts one; the tour wants
// one.
//     quorin_operation SOURCE DESTINATION

#include <windows.h>

#include <shellapi.h>

#include "app/main_window.h"
#include "app/product.h"
#include "app/run.h"
#include "app/start_up.h"

namespace {

constexpr int ExitNotUnderstood = 2;

void Copy(FileOperation& operation, const wchar_t* source, const wchar_t* destination) {
    operation.operation = FileOperationKind::Copy;
    if (operation.AddSource(source) && operation.SetDestination(destination)) operation.RunModal();
}

int CopyInMainWindow(const wchar_t* source, const wchar_t* destination) {
    Application application(ProductName, 0, nullptr);
    PropertySet properties;
    DescribeMainWindow(properties);
    MainWindow window(ProductName, properties, application);
    window.Show();
    window.CompleteParts();
    Copy(window.Operation(), source, destination);
    return application.Run();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int showCommand) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr || count != 3) return ExitNotUnderstood;
    ProgramContext& context = ContextForStartUp();
    context.instance = instance;
    context.showCommand = showCommand;
    ProbePlatform(context);
    DecideLanguage(context);
    const int exitCode = CopyInMainWindow(words[1], words[2]);
    ReleaseConversionLibrary(context);
    LocalFree(words);
    return exitCode;
}
