#pragma once

#include "framework/property_set.h"
#include "platform/system_types.h"

// What the main window is made from, in the language of the program context.
void DescribeMainWindow(PropertySet& properties);

// A whole run of the program, from the entry's arguments to the exit code: that of the message loop, 1
// when another copy runs already, or 2 when the main window cannot be created.
int RunQuorinSearch(HINSTANCE instance, const wchar_t* commandLine, int showCommand);
