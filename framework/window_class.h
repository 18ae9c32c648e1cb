#pragma once

// Registers the window class that a property set describes.

#include "framework/property_set.h"

// Nothing happens when the program's instance knows the class already; a failure is ignored, creation will
// tell.
void RegisterWindowClass(const PropertySet& properties);
