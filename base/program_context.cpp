#include "base/program_context.h"

namespace {
ProgramContext context;
}

const ProgramContext& Context() {
    return context;
}

ProgramContext& ContextForStartUp() {
    return context;
}
