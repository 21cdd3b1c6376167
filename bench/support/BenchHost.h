#ifndef NUMBERING_BENCH_BENCHHOST_H
#define NUMBERING_BENCH_BENCHHOST_H

// What every benchmark program shares: it is the library's host (debug tracing off, error lines to
// standard error), it chooses the configuration directory the library reads, it counts heap
// allocations, and it reads the committed input set (bench/inputs.tsv).
//
// The library builds its file names when it is loaded, from NUMBERING_CONFIG_DIR: a program that
// wants a given directory sets the variable and runs itself again with execv("/proc/self/exe").

#include "numbering/KesDialRulesItem.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace benchhost {

/// Runs the program again with the library reading `directory`, unless it already does. Returns
/// only when it does (or when it cannot run itself again: then it exits with a message).
void readConfigurationFrom(const std::string& directory, char** argv);

/// The project's shipped default configuration (data/): every country, every area code file.
void useShippedWorld(char** argv);

/// One configuration file written for a benchmark of its own.
struct ConfigurationFile {
    std::string name;
    std::string content;
};

/// Writes `files` into a new temporary directory and runs the program again reading it. The
/// directory is removed again by removeWrittenConfiguration(), called at the end of main.
void useWrittenConfiguration(const std::vector<ConfigurationFile>& files, char** argv);
void removeWrittenConfiguration();

/// Heap allocations made by the calling thread so far (every operator new).
std::uint64_t allocations();
/// Bytes of heap in use in the whole process (malloc's own count: C and C++ allocations).
std::size_t heapInUse();

/// One row of bench/inputs.tsv: an installation and a number its users type.
struct Input {
    std::string country;
    std::string outsideLinePrefix;
    int localLength;
    std::string areaCode;
    std::string kind; // national, international, local, service, coldstart
    std::string number;
};

/// The committed input set.
const std::vector<Input>& inputs();

/// The installation of an input row (the library must be loaded: the country is validated).
std::unique_ptr<numbering::KesDialRulesItem> installationOf(const Input& input);

/// A number and the installation that converts it.
struct Conversion {
    numbering::KesDialRulesItem* rules;
    std::string number;
    std::string country;
};

/// Installations made once, one per country, for the life of the program (after the library is
/// loaded and before it is reset).
class Installations {
public:
    numbering::KesDialRulesItem* of(const Input& input);
    /// Every row whose kind is in `kinds` (comma-separated), with its installation.
    std::vector<Conversion> conversions(const std::string& kinds);

private:
    std::map<std::string, std::unique_ptr<numbering::KesDialRulesItem>> made;
};

} // namespace benchhost

#endif
