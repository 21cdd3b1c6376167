// numbering: runs the library's conversions from the command line.
#include "Check.h"
#include "Conversions.h"
#include "Diff.h"
#include "Options.h"

#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"
#include "numbering/Version.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <limits.h>
#include <string>
#include <unistd.h>

using namespace numbering;

bool Logger::m_Traces = false;

// Errors reach standard error, information and debug lines only with --trace. The tool reports a
// number it cannot convert in its own words: the library's error line about it only with --trace.
void FlogWrite(const char* text, short) {
    if (Logger::m_Traces || (!convertingNumbers && std::strncmp(text, "ERROR ", 6) == 0))
        std::fprintf(stderr, "%s\n", text);
}

namespace {

bool isFile(const std::string& path) {
    return access(path.c_str(), R_OK) == 0;
}

// The shipped configuration: beside an installed tool, else in the source tree it was built from.
std::string shippedConfiguration() {
    char self[PATH_MAX];
    ssize_t length = readlink("/proc/self/exe", self, sizeof self - 1);
    if (length > 0) {
        std::string directory(self, static_cast<std::size_t>(length));
        directory.erase(directory.rfind('/') + 1);
        std::string installed = directory + "../" NUMBERING_INSTALLED_DATA_SUBDIR;
        if (isFile(installed + "dialingrules_default.properties"))
            return installed;
    }
    return NUMBERING_SOURCE_DATA_DIR;
}

std::string withSlash(std::string directory) {
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    return directory;
}

// The directory named on the command line, else NUMBERING_CONFIG_DIR, else the shipped configuration.
std::string configurationDirectory(const Options& options) {
    const char* current = std::getenv("NUMBERING_CONFIG_DIR");
    if (current != nullptr && *current == '\0')
        current = nullptr; // the library ignores an empty value: so does the tool
    std::string wanted = options.configDir;
    if (wanted.empty())
        wanted = current != nullptr ? current : shippedConfiguration();
    return withSlash(wanted);
}

// Without dialing rules every country would be reported as unsupported: name the real cause.
bool hasDialingRules(const std::string& directory) {
    if (isFile(directory + "dialingrules.properties") ||
        isFile(directory + "dialingrules_default.properties"))
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
    if (options.command == "diff") {
        const std::string oldDirectory = withSlash(options.oldDir), newDirectory = withSlash(options.newDir);
        if (!hasDialingRules(oldDirectory) || !hasDialingRules(newDirectory))
            return 2;
        return runDiff(options, oldDirectory, newDirectory, shippedConfiguration() + "sample_numbers.txt");
    }
    const std::string directory = configurationDirectory(options);
    if (options.command == "check")
        return runCheck(directory);
    if (!hasDialingRules(directory))
        return 2;
    KesNumberingRules::reload(directory);

    return convertNumbers(options);
}
