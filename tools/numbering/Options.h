#ifndef NUMBERING_TOOLS_OPTIONS_H
#define NUMBERING_TOOLS_OPTIONS_H

#include <set>
#include <string>
#include <vector>

/// What the command line asks for.
struct Options {
    std::string command;
    std::vector<std::string> numbers; // empty: read them from standard input, one per line
    // The installation: the defaults below, or the site file; options given replace either.
    std::string siteFile;
    std::set<std::string> given; // the site file keys set by options
    std::string country = "FR";
    std::string extPrefix = "0";
    std::string areaCodes;
    int localLength = 0;
    int exceptLength = 0;
    std::string exceptBegin;
    std::string pattern;
    std::string configDir; // empty: the library's directory if it exists, else the shipped configuration
    std::string oldDir;    // the two configurations that diff compares
    std::string newDir;
    int jobs = 0; // batch workers; 0: one for every core the tool may run on
    bool json = false;
    bool trace = false;
    bool help = false;
    bool version = false;
};

/// Parses argv; throws std::invalid_argument with a message for the user on a bad command line.
Options parseOptions(int argc, char** argv);

extern const char* const USAGE;

#endif
