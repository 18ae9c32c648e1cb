#pragma once

// The one header through which the program sees the operating system. A plain call (SendMessageW) means the
// same on every target; a call in the namespace ce has Windows CE's behaviour, whatever the system below
// does differently, or can be replaced by a test.

#include "platform/system_types.h"

#include <commctrl.h>
#include <shellapi.h>

#include <cstdio>

#include "platform/ce_controls.h"
#include "platform/ce_files.h"
#include "platform/ce_input.h"
#include "platform/ce_registry.h"
#include "platform/ce_shell.h"
#include "platform/ce_shortcuts.h"
#include "platform/ce_system.h"
#include "platform/ce_windows.h"
#include "platform/dropped_calendar.h"
#include "platform/handles.h"
