#include "ExampleNumbers.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace shipped {

// Parameterised tests are built from these rows before any test runs.
const std::vector<CountryExamples>& exampleNumbers() {
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

const CountryExamples* examplesOf(const std::string& iso2) {
    for (const CountryExamples& row : exampleNumbers())
        if (row.iso2 == iso2)
            return &row;
    return nullptr;
}

} // namespace shipped
