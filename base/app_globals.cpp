#include "base/app_globals.h"

namespace {
AppGlobals startUpRecord;
}

const AppGlobals& Globals() {
    return startUpRecord;
}

AppGlobals& GlobalsForStartUp() {
    return startUpRecord;
}
