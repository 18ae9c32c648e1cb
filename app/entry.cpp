#include "app/run.h"
#include "platform/windows_ce.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t* commandLine, int showCommand) {
    return RunQuorinSearch(instance, commandLine, showCommand);
}
