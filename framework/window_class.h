#pragma once

// Registers the window class that a property set describes.

#include "framework/property_set.h"
#include "platform/system_types.h"

// The procedure is the class's unless the properties name one. Nothing happens when the program's instance
// knows the class already; a failure is ignored, creation will tell.
void RegisterWindowClass(const PropertySet& properties, WNDPROC procedure);
