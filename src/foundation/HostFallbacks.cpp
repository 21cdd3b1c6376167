// Stand-ins for the two symbols a host process provides. They are weak, so the host's own
// definitions (in the executable or in a library loaded before this one) take their place;
// a stand-alone program still links and logs to standard error with tracing off.
#include "numbering/Logger.h"

#include <cstdio>

__attribute__((weak)) bool Logger::m_Traces = false;

__attribute__((weak)) void FlogWrite(const char* text, short /*value*/) {
    std::fprintf(stderr, "%s\n", text);
}
