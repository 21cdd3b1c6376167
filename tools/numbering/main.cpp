// numbering: runs the library's conversions from the command line.
#include "Check.h"
#include "Options.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/KesUnsupportedCountryException.h"
#include "numbering/Logger.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <limits.h>
#include <memory>
#include <string>
#include <unistd.h>

using namespace numbering;

bool Logger::m_Traces = false;

// Errors always reach standard error; information and debug lines only with --trace.
void FlogWrite(const char* text, short) {
    if (Logger::m_Traces || std::string(text).compare(0, 6, "ERROR ") == 0)
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

// The library takes its configuration directory from the environment when it is loaded, which
// happens before main: point the variable at the wanted directory and start again once.
void useConfigurationDirectory(const Options& options, char** argv) {
    const char* current = std::getenv("NUMBERING_CONFIG_DIR");
    if (current != nullptr && *current == '\0')
        current = nullptr; // the library ignores an empty value: so does the tool
    std::string wanted = options.configDir;
    if (wanted.empty())
        wanted = current != nullptr ? current : shippedConfiguration();
    if (current != nullptr && wanted == current)
        return;
    setenv("NUMBERING_CONFIG_DIR", wanted.c_str(), 1);
    execv("/proc/self/exe", argv);
    std::perror("numbering: cannot restart with the configuration directory");
    std::exit(2);
}

// One conversion; an empty answer means the library could not convert the number.
std::string convert(const Options& options, KesNumberingRules* rules, KesDialRulesItem* installation,
                    const std::string& number) {
    const std::string& command = options.command;
    if (command == "canonical")
        return rules->makeCanonicalNumber(installation, number, options.pattern);
    if (command == "dial")
        return rules->makePhoneNumber(installation, number);
    if (command == "gsm")
        return rules->makeGSMCanonicalNumber(installation, number, false);
    if (command == "format")
        return rules->formatCanonicalNumber(number, options.pattern);
    if (command == "decompose") {
        std::string country = rules->extractCountryNumberFromCanonicalNumber(number);
        if (country.empty())
            return std::string();
        return country + "\t" + rules->extractAreaCodeOrNatPrefixFromCanonicalNumber(number) + "\t" +
               rules->extractExtensionFromCanonicalNumber(number);
    }
    KesClid* clid = rules->makeClid(installation, number);
    if (clid == nullptr)
        return std::string();
    std::string presented = clid->getNumber() + "\t" + clid->getOrigin()->name;
    clid->release();
    return presented;
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
    useConfigurationDirectory(options, argv);
    Logger::m_Traces = options.trace;
    if (options.command == "check")
        return runCheck(KesNumberingConfig::configDirectory());
    // Without dialing rules every country would be reported as unsupported: name the real cause.
    if (!isFile(KesNumberingConfig::DIALING_RULES_FILE) &&
        !isFile(KesNumberingConfig::DIALING_RULES_DEFAULT_FILE)) {
        std::cerr << "numbering: no dialing rules in " << KesNumberingConfig::configDirectory() << "\n";
        return 2;
    }

    KesNumberingRules* rules = KesNumberingRules::getInstance();
    std::unique_ptr<KesDialRulesItem> installation;
    try {
        installation.reset(new KesDialRulesItem(options.country, options.extPrefix, options.localLength,
                                                options.areaCodes, options.exceptLength,
                                                options.exceptBegin));
    } catch (const KesUnsupportedCountryException& e) {
        std::cerr << "numbering: " << e.what() << " (configuration: " << KesNumberingConfig::configDirectory()
                  << ")\n";
        return 2;
    } catch (const std::invalid_argument& e) {
        std::cerr << "numbering: " << e.what() << "\n";
        return 2;
    }

    int failures = 0;
    auto run = [&](const std::string& number, bool batch) {
        std::string result;
        try {
            result = convert(options, rules, installation.get(), number);
        } catch (const std::exception& e) {
            std::cerr << "numbering: '" << number << "': " << e.what() << "\n";
        }
        if (result.empty())
            ++failures;
        if (batch)
            std::cout << number << '\t';
        std::cout << result << '\n';
    };
    if (options.numbers.empty()) {
        for (std::string line; std::getline(std::cin, line);)
            if (!line.empty())
                run(line, true);
    } else {
        for (const std::string& number : options.numbers)
            run(number, false);
    }
    installation.reset();
    KesNumberingRules::resetInstance();
    return failures == 0 ? 0 : 1;
}
