#ifndef NUMBERING_FUZZ_FUZZHOST_H
#define NUMBERING_FUZZ_FUZZHOST_H

// What both fuzz targets need of a host: a silent log sink, and the configuration directory in place
// before the library is loaded (it reads NUMBERING_CONFIG_DIR at load time, so the fuzzer restarts
// itself once with the variable set).

#include "numbering/Logger.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

bool Logger::m_Traces = false;

void FlogWrite(const char*, short) {}

namespace fuzzhost {

/// Restarts the program with NUMBERING_CONFIG_DIR = `directory` unless it is already set so.
inline void useConfigurationDirectory(const std::string& directory, char** argv) {
    const char* current = std::getenv("NUMBERING_CONFIG_DIR");
    if (current != nullptr && directory == current)
        return;
    setenv("NUMBERING_CONFIG_DIR", directory.c_str(), 1);
    execv("/proc/self/exe", argv);
    std::perror("cannot restart the fuzzer");
    std::abort();
}

} // namespace fuzzhost

#endif
