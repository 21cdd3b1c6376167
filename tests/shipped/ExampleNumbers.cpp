#include "ExampleNumbers.h"

#include <fstream>
#include <sstream>

namespace shipped {

namespace {

struct File {
    std::vector<CountryExamples> rows;
    std::string error;
};

// Parameterised tests are built from these rows before any test runs, so a bad file is reported
// through readError() rather than thrown.
File read() {
    File file;
    std::ifstream in(NUMBERING_EXAMPLE_NUMBERS);
    std::string line;
    std::getline(in, line);
    if (line != "iso2\tcalling_code\tnational_prefix\tinternational_prefix\tfixed_example\tmobile_example")
        return {{}, "cannot read " NUMBERING_EXAMPLE_NUMBERS " or unexpected header: " + line};
    for (int number = 2; std::getline(in, line); ++number) {
        std::vector<std::string> f;
        std::istringstream fields(line + "\t"); // every field ends in a tab: a missing mobile is one too
        for (std::string field; std::getline(fields, field, '\t');)
            f.push_back(field);
        if (f.size() != 6 || f[0].size() != 2 || f[1].empty() || f[4].empty())
            return {{}, "malformed line " + std::to_string(number) + ": " + line};
        file.rows.push_back({f[0], f[1], f[2], f[3], f[4], f[5]});
    }
    return file;
}

const File& file() {
    static const File loaded = read();
    return loaded;
}

} // namespace

const std::vector<CountryExamples>& exampleNumbers() {
    return file().rows;
}

const std::string& readError() {
    return file().error;
}

const CountryExamples* examplesOf(const std::string& iso2) {
    for (const CountryExamples& row : exampleNumbers())
        if (row.iso2 == iso2)
            return &row;
    return nullptr;
}

} // namespace shipped
