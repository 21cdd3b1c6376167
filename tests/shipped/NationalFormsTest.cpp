// The shipped example numbers, typed in national form at an installation of their own country, come
// out as the right international numbers.

#include "ExampleNumbers.h"
#include "NationalCase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace shipped;

namespace {

struct Row {
    const char* country;
    Kind kind;
    const char* extPrefix;
    const char* ownArea;
    const char* typedPrefix; // null: the country's trunk prefix
};

constexpr Kind F = Kind::Fixed;
constexpr Kind M = Kind::Mobile;

// Every country with a plan (with some that share a plan's calling code) and a spread of others,
// each at an installation with a realistic outside-line prefix and own area, away from the area of
// the example so that it dials back in long-distance form.
const Row ROWS[] = {
    // Countries with a plan.
    {"US", F, "9", "212", nullptr},
    {"US", M, "9", "212", nullptr},
    {"CA", F, "9", "416", nullptr},
    {"CA", M, "9", "416", nullptr},
    {"RU", F, "9", "495", nullptr},
    {"RU", M, "9", "495", nullptr},
    {"KZ", F, "0", "7172", nullptr},
    {"KZ", M, "0", "7172", nullptr},
    {"NL", F, "0", "20", nullptr},
    {"NL", M, "0", "20", nullptr},
    {"BE", F, "0", "2", nullptr},
    {"BE", M, "0", "2", nullptr},
    {"FR", F, "0", "", nullptr},
    {"FR", M, "0", "", nullptr},
    {"CH", F, "0", "44", nullptr},
    {"CH", M, "0", "44", nullptr},
    {"AT", F, "0", "316", nullptr},
    {"AT", M, "0", "316", nullptr},
    {"GB", F, "9", "20", nullptr},
    {"GB", M, "9", "20", nullptr},
    {"JE", F, "9", "", nullptr},
    {"JE", M, "9", "", nullptr},
    {"DE", F, "0", "89", nullptr},
    {"DE", M, "0", "89", nullptr},
    {"MX", F, "0", "55", nullptr},
    {"MX", M, "0", "55", nullptr},
    {"AR", F, "0", "351", nullptr},
    // AR mobile: the plan writes "+54 9 (11) ...", and the canonical layout, looking for the mask of
    // "54 9", drops everything before the subscriber number (PlanFormsTest checks the plan alone).
    // CO fixed: the plan writes fixed numbers in the zone-digit form used before 2021,
    // "+57 (1) 2345678", so no national input gives today's "+57 601 2345678" (see PlanFormsTest).
    // CO mobile: typed in the fixed-to-mobile form "03" + number that the plan reads; "0" + number
    // is taken for that form and loses the 3.
    {"CO", M, "0", "1", "03"},
    {"AU", F, "0", "3", nullptr},
    {"AU", M, "0", "3", nullptr},
    {"CX", F, "0", "", nullptr},
    {"CX", M, "0", "", nullptr},
    {"NZ", F, "1", "9", nullptr},
    {"NZ", M, "1", "9", nullptr},
    {"IE", F, "9", "1", nullptr},
    {"IE", M, "9", "1", nullptr},
    // Countries without a plan, with a trunk prefix: "+cc (trunk prefix) number".
    {"SE", F, "0", "", nullptr},
    {"SE", M, "0", "", nullptr},
    {"FI", F, "0", "9", nullptr},
    {"FI", M, "0", "9", nullptr},
    {"HU", F, "9", "1", nullptr}, // trunk prefix 06
    {"HU", M, "9", "1", nullptr},
    {"BY", F, "0", "17", nullptr}, // trunk prefix 8, international prefix 810
    {"BY", M, "0", "17", nullptr},
    {"UA", F, "0", "44", nullptr},
    {"UA", M, "0", "44", nullptr},
    {"TR", F, "0", "312", nullptr},
    {"TR", M, "0", "312", nullptr},
    {"IL", F, "0", "3", nullptr},
    {"IL", M, "0", "3", nullptr},
    {"EG", F, "0", "", nullptr},
    {"EG", M, "0", "", nullptr},
    {"NG", F, "0", "", nullptr},
    {"NG", M, "0", "", nullptr},
    {"ZA", F, "0", "21", nullptr},
    {"ZA", M, "0", "21", nullptr},
    {"KE", F, "0", "", nullptr},
    {"KE", M, "0", "", nullptr},
    {"JP", F, "0", "6", nullptr},
    {"JP", M, "0", "6", nullptr},
    {"CN", F, "0", "21", nullptr},
    {"CN", M, "0", "21", nullptr},
    {"KR", F, "0", "", nullptr},
    {"KR", M, "0", "", nullptr},
    {"IN", F, "0", "22", nullptr},
    {"IN", M, "0", "22", nullptr},
    {"ID", F, "0", "", nullptr},
    {"ID", M, "0", "", nullptr},
    {"BR", F, "0", "21", nullptr}, // international prefix 0012 (carrier 12)
    {"BR", M, "0", "21", nullptr},
    {"PE", F, "0", "", nullptr},
    {"PE", M, "0", "", nullptr},
    // Countries without a plan and without a trunk prefix: "+cc number".
    {"IT", F, "0", "", nullptr},
    {"IT", M, "0", "", nullptr},
    {"VA", F, "0", "", nullptr},
    {"VA", M, "0", "", nullptr},
    {"ES", F, "0", "", nullptr},
    {"ES", M, "0", "", nullptr},
    {"PT", F, "0", "", nullptr},
    {"PT", M, "0", "", nullptr},
    {"GR", F, "0", "", nullptr},
    {"GR", M, "0", "", nullptr},
    {"NO", F, "0", "", nullptr},
    {"NO", M, "0", "", nullptr},
    {"DK", F, "0", "", nullptr},
    {"DK", M, "0", "", nullptr},
    {"PL", F, "0", "", nullptr},
    {"PL", M, "0", "", nullptr},
    {"CZ", F, "9", "", nullptr},
    {"CZ", M, "9", "", nullptr},
    {"SG", F, "0", "", nullptr},
    {"SG", M, "0", "", nullptr},
};

bool inTable(const std::string& country) {
    return std::any_of(std::begin(ROWS), std::end(ROWS),
                       [&](const Row& row) { return country == row.country; });
}

std::vector<NationalCase> tableCases() {
    std::vector<NationalCase> cases;
    for (const Row& row : ROWS)
        if (const CountryExamples* examples = examplesOf(row.country))
            cases.push_back(nationalCase(*examples, row.kind, row.extPrefix, row.ownArea, row.typedPrefix));
    return cases;
}

// Every other country of the file, at an installation with the outside-line prefix "0" and no own
// area code.
std::vector<NationalCase> otherCases() {
    std::vector<NationalCase> cases;
    for (const CountryExamples& examples : exampleNumbers()) {
        if (inTable(examples.iso2))
            continue;
        cases.push_back(nationalCase(examples, Kind::Fixed, "0", ""));
        if (!examples.mobile.empty())
            cases.push_back(nationalCase(examples, Kind::Mobile, "0", ""));
    }
    return cases;
}

std::string caseName(const ::testing::TestParamInfo<NationalCase>& info) {
    return name(info.param);
}

class ChosenCountries : public ::testing::TestWithParam<NationalCase> {};
class EveryOtherCountry : public ::testing::TestWithParam<NationalCase> {};

} // namespace

TEST(ExampleNumbersFile, HoldsEveryCountryOfTheTable) {
    ASSERT_EQ(readError(), "");
    EXPECT_GT(exampleNumbers().size(), 200u);
    for (const Row& row : ROWS) {
        const CountryExamples* examples = examplesOf(row.country);
        ASSERT_NE(examples, nullptr) << row.country << " has no example numbers";
        if (row.kind == Kind::Mobile) {
            EXPECT_FALSE(examples->mobile.empty()) << row.country << " has no mobile example";
        }
    }
}

TEST_P(ChosenCountries, TypedNationallyGiveTheInternationalNumber) {
    expectInternationalNumber(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Shipped, ChosenCountries, ::testing::ValuesIn(tableCases()), caseName);

TEST_P(EveryOtherCountry, TypedNationallyGiveTheInternationalNumber) {
    expectInternationalNumber(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Shipped, EveryOtherCountry, ::testing::ValuesIn(otherCases()), caseName);
