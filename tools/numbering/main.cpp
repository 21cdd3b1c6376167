// numbering: runs the library's conversions from the command line.
#include "Check.h"
#include "ConfigurationDirectory.h"
#include "Conversions.h"
#include "Diff.h"
#include "Explain.h"
#include "Init.h"
#include "Options.h"

#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"
#include "numbering/Version.h"

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

using namespace numbering;

bool Logger::m_Traces = false;

// Errors reach standard error, information and debug lines only with --trace. The tool reports a
// number it cannot convert in its own words: the library's error line about it only with --trace.
void FlogWrite(const char* text, short) {
    if (Logger::m_Traces || (!convertingNumbers && std::strncmp(text, "ERROR ", 6) == 0))
        std::fprintf(stderr, "%s\n", text);
}

namespace {

// Without dialing rules every country would be reported as unsupported: name the real cause.
bool hasDialingRules(const std::string& directory) {
    if (holdsDialingRules(directory))
        return true;
    std::cerr << "numbering: no dialing rules in " << directory << "\n";
    return false;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    try {
        options = parseOptions(argc, argv);
    } catch (const std::invalid_argument& e) {
        std::cerr << "numbering: " << e.what() << "\n\n" << USAGE;
        return 2;
    }
    if (options.help) {
        std::cout << USAGE;
        return 0;
    }
    if (options.version) {
        std::cout << "numbering " NUMBERING_VERSION_STRING " (libNumbering " << libraryVersion() << ")\n";
        return 0;
    }
    Logger::m_Traces = options.trace;
    if (options.command == "init")
        return runInit(options);
    // diff names both its directories: neither the library's directory nor a note about it.
    if (options.command == "diff") {
        const std::string oldDirectory = withSlash(options.oldDir), newDirectory = withSlash(options.newDir);
        if (!hasDialingRules(oldDirectory) || !hasDialingRules(newDirectory))
            return 2;
        return runDiff(options, oldDirectory, newDirectory, shippedConfiguration() + "sample_numbers.txt");
    }
    const std::string directory = configurationDirectory(options);
    if (options.command == "check")
        return runCheck(directory, options);
    if (!hasDialingRules(directory))
        return 2;
    KesNumberingRules::reload(directory);
    if (options.command == "explain")
        return runExplain(options);

    return convertNumbers(options);
}
