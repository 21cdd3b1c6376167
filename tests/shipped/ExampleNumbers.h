#ifndef NUMBERING_TESTS_SHIPPED_EXAMPLENUMBERS_H
#define NUMBERING_TESTS_SHIPPED_EXAMPLENUMBERS_H

// The example numbers that ship with the configuration (data/example_numbers.tsv): per country its
// calling code, prefixes and one fixed-line and one mobile national significant number.

#include <string>
#include <vector>

namespace shipped {

struct CountryExamples {
    std::string iso2, callingCode;
    std::string nationalPrefix; // empty where the country has no trunk prefix
    std::string internationalPrefix;
    std::string fixed;  // national significant number: no trunk prefix, no calling code
    std::string mobile; // may be empty
};

/// Every row of the file, in file order (read once); a file that cannot be read or holds a
/// malformed line stops the test program with the reason.
const std::vector<CountryExamples>& exampleNumbers();
/// The row of one country, or null.
const CountryExamples* examplesOf(const std::string& iso2);

} // namespace shipped

#endif
