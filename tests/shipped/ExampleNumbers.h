#ifndef NUMBERING_TESTS_SHIPPED_EXAMPLENUMBERS_H
#define NUMBERING_TESTS_SHIPPED_EXAMPLENUMBERS_H

// The example numbers that ship with the configuration (data/example_numbers.tsv): per country its
// calling code, prefixes and one fixed-line and one mobile national significant number.

#include <fstream>
#include <sstream>
#include <stdexcept>
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

/// Every row of the file, in file order (read once: parameterised tests are built from these rows before
/// any test runs); a file that cannot be read or holds a malformed line stops the test program with the
/// reason.
inline const std::vector<CountryExamples>& exampleNumbers() {
    static const std::vector<CountryExamples> rows = [] {
        std::vector<CountryExamples> read;
        std::ifstream in(NUMBERING_EXAMPLE_NUMBERS);
        std::string line;
        std::getline(in, line);
        if (line !=
            "iso2\tcalling_code\tnational_prefix\tinternational_prefix\tfixed_example\tmobile_example")
            throw std::runtime_error("cannot read " NUMBERING_EXAMPLE_NUMBERS " or unexpected header: " +
                                     line);
        while (std::getline(in, line)) {
            std::vector<std::string> f;
            std::istringstream fields(line + "\t"); // every field ends in a tab: a missing mobile is one too
            for (std::string field; std::getline(fields, field, '\t');)
                f.push_back(field);
            if (f.size() != 6 || f[0].size() != 2 || f[1].empty() || f[4].empty())
                throw std::runtime_error("malformed line of " NUMBERING_EXAMPLE_NUMBERS ": " + line);
            read.push_back({f[0], f[1], f[2], f[3], f[4], f[5]});
        }
        return read;
    }();
    return rows;
}

/// The row of one country, or null.
inline const CountryExamples* examplesOf(const std::string& iso2) {
    for (const CountryExamples& row : exampleNumbers())
        if (row.iso2 == iso2)
            return &row;
    return nullptr;
}

} // namespace shipped

#endif
