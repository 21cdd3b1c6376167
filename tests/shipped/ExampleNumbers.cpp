#include "ExampleNumbers.h"

#include <fstream>
#include <sstream>

namespace shipped {

namespace {

const char* const HEADER =
    "iso2\tcalling_code\tnational_prefix\tinternational_prefix\tfixed_example\tmobile_example";

std::vector<std::string> fields(const std::string& line) {
    std::vector<std::string> result;
    std::string field;
    std::istringstream in(line);
    while (std::getline(in, field, '\t'))
        result.push_back(field);
    if (!line.empty() && line.back() == '\t')
        result.emplace_back(); // getline drops a trailing empty field (a country without mobile)
    return result;
}

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
    if (!in || !std::getline(in, line)) {
        file.error = "cannot read " NUMBERING_EXAMPLE_NUMBERS;
        return file;
    }
    if (line != HEADER) {
        file.error = "unexpected header in " NUMBERING_EXAMPLE_NUMBERS ": " + line;
        return file;
    }
    for (int number = 2; std::getline(in, line); ++number) {
        std::vector<std::string> f = fields(line);
        if (f.size() != 6 || f[0].size() != 2 || f[1].empty() || f[4].empty()) {
            file.error = "malformed line " + std::to_string(number) + ": " + line;
            file.rows.clear();
            return file;
        }
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
