#pragma once

#include "framework/property_set.h"
#include "platform/system_types.h"

// What the main window is made from, in the language of the program context.
void DescribeMainWindow(PropertySet& properties);

// A whole run of the program, from the entry point's arguments to the exit code: the message loop's, 1 if
// another copy is already running, 2 if the main window cannot be created.
int RunQuorinSearch(HINSTANCE instance, const wchar_t* commandLine, int showCommand);
