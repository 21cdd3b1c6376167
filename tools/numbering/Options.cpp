#include "Options.h"

#include "numbering/KesSiteFile.h"

#include <cctype>
#include <cstdlib>
#include <stdexcept>

using numbering::KesSiteFile;

const char* const USAGE =
    "usage: numbering [options] <command> [number ...]\n"
    "       numbering [options] diff OLD_DIR NEW_DIR [number ...]\n"
    "       numbering [--json] init [DIR]\n"
    "\n"
    "Converts telephone numbers for an installation of a private exchange. Numbers come from the\n"
    "arguments, or one per line from standard input (then each output line is the input, a tab and\n"
    "the result).\n"
    "\n"
    "commands:\n"
    "  canonical   typed number -> canonical international form, laid out with the country's mask\n"
    "  dial        number -> digits the exchange dials, with the outside-line prefix where needed\n"
    "  clid        calling number -> presented number and origin (tab-separated)\n"
    "  gsm         number -> compact international form (+ and digits)\n"
    "  format      canonical number -> laid out with --pattern or the country's mask\n"
    "  decompose   canonical number -> country number, area code, subscriber number (tab-separated)\n"
    "  explain     one number -> every conversion's result and the decisions behind them\n"
    "  diff OLD_DIR NEW_DIR\n"
    "              canonical, dial, clid and gsm under two configuration directories -> one line for\n"
    "              each result that differs: input, command, old result, new result (tab-separated);\n"
    "              without numbers, the shipped sample (exit status 0 same, 1 different, 2 error)\n"
    "  check       configuration files -> what the library would make of them, as file:line: severity:\n"
    "              message (exit status 0 clean or notes only, 1 warnings, 2 errors); takes no number;\n"
    "              with --site, the site file's settings too\n"
    "  init        copies the shipped configuration into DIR, else the library's directory, keeping\n"
    "              every file already there\n"
    "\n"
    "installation (defaults in brackets; options replace what the site file says):\n"
    "      --site FILE           the installation's settings from a site file (see numbering(1))\n"
    "  -c, --country CC          ISO 3166 alpha-2 country of the installation [FR]\n"
    "  -x, --ext-prefix DIGITS   prefix that seizes an outside line [0]\n"
    "  -a, --area-codes LIST     the installation's own area codes, comma-separated []\n"
    "  -l, --local-length N      numbers shorter than N are internal extensions [0]\n"
    "      --except-length N     length of exception numbers [0]\n"
    "      --except-begin DIGITS leading digits of numbers dialled without the outside-line prefix []\n"
    "\n"
    "other options:\n"
    "  -p, --pattern MASK        display mask for canonical and format (letters C, A, a, x)\n"
    "      --config-dir DIR      configuration directory [the library's, else the shipped one]\n"
    "      --json                one JSON object per line instead of text\n"
    "  -j, --jobs N              convert a batch on N threads [one for every core]\n"
    "      --trace               write the library's debug lines to standard error\n"
    "  -h, --help                this text\n"
    "      --version             the versions of the tool and of the library it runs on\n";

namespace {

int toWhole(const std::string& option, const std::string& value, long lowest = 0) {
    char* end = nullptr;
    long number = std::strtol(value.c_str(), &end, 10);
    if (value.empty() || *end != '\0' || number < lowest || number > 1000)
        throw std::invalid_argument("option " + option + " wants a whole number from " +
                                    std::to_string(lowest) + " to 1000, not '" + value + "'");
    return static_cast<int>(number);
}

} // namespace

Options parseOptions(int argc, char** argv) {
    Options options;
    std::vector<std::string> positional;
    for (int i = 1; i < argc; ++i) {
        std::string argument = argv[i];
        auto value = [&]() -> std::string {
            if (i + 1 >= argc)
                throw std::invalid_argument("option " + argument + " wants a value");
            return argv[++i];
        };
        auto given = [&](const char* key) { options.given.insert(key); };
        if (argument == "-h" || argument == "--help")
            options.help = true;
        else if (argument == "--version")
            options.version = true;
        else if (argument == "--trace")
            options.trace = true;
        else if (argument == "--json")
            options.json = true;
        else if (argument == "--site")
            options.siteFile = value();
        else if (argument == "-c" || argument == "--country")
            options.country = value(), given(KesSiteFile::COUNTRY);
        else if (argument == "-x" || argument == "--ext-prefix")
            options.extPrefix = value(), given(KesSiteFile::EXT_PREFIX);
        else if (argument == "-a" || argument == "--area-codes")
            options.areaCodes = value(), given(KesSiteFile::AREA_CODES);
        else if (argument == "-l" || argument == "--local-length")
            options.localLength = toWhole(argument, value()), given(KesSiteFile::LOCAL_LENGTH);
        else if (argument == "--except-length")
            options.exceptLength = toWhole(argument, value()), given(KesSiteFile::EXCEPT_LENGTH);
        else if (argument == "--except-begin")
            options.exceptBegin = value(), given(KesSiteFile::EXCEPT_BEGIN);
        else if (argument == "-p" || argument == "--pattern")
            options.pattern = value();
        else if (argument == "-j" || argument == "--jobs")
            options.jobs = toWhole(argument, value(), 1);
        else if (argument == "--config-dir")
            options.configDir = value();
        else if (argument == "--")
            positional.insert(positional.end(), argv + i + 1, argv + argc), i = argc;
        else if (argument.size() > 1 && argument[0] == '-' && argument[1] == '-')
            throw std::invalid_argument("unknown option " + argument);
        else if (argument.size() == 2 && argument[0] == '-' && argument[1] != '+' &&
                 !std::isdigit(argument[1]))
            throw std::invalid_argument("unknown option " + argument);
        else
            positional.push_back(argument);
    }
    if (options.help || options.version)
        return options;
    if (positional.empty())
        throw std::invalid_argument("no command given");
    options.command = positional.front();
    static const char* const commands[] = {"canonical", "dial",  "clid", "gsm",  "format",
                                           "decompose", "check", "init", "diff", "explain"};
    bool known = false;
    for (const char* command : commands)
        known = known || options.command == command;
    if (!known)
        throw std::invalid_argument("unknown command '" + options.command + "'");
    auto numbers = positional.begin() + 1;
    if (options.command == "diff") {
        if (positional.size() < 3)
            throw std::invalid_argument("diff wants two configuration directories: diff OLD_DIR NEW_DIR");
        options.oldDir = *numbers++;
        options.newDir = *numbers++;
    }
    options.numbers.assign(numbers, positional.end());
    if (options.command == "check" && !options.numbers.empty())
        throw std::invalid_argument("check takes no number");
    if (options.command == "explain" && options.numbers.size() != 1)
        throw std::invalid_argument("explain wants one number");
    if (options.command == "init" && options.numbers.size() > 1)
        throw std::invalid_argument("init takes one directory at most");
    return options;
}
