// The shipped example numbers typed nationally at home: canonical, GSM, and dialled back as typed.

#include "ExampleNumbers.h"
#include "Suite.h"

#include <algorithm>
#include <regex>
#include <sstream>

using namespace shipped;

namespace {

// "country outside-line-prefix own-area", away from the example's area so that it dials back in
// long-distance form; other countries at "0" with no own area.
const char* const INSTALLATIONS[] = {
    "US 9 212", "CA 9 416", "RU 9 495", "KZ 0 7172", "NL 0 20", "BE 0 2", "FR 0", "CH 0 44", "AT 0 316",
    "GB 9 20", "JE 9", "DE 0 89", "MX 0 55", "AR 0 351", "CO 0 1", "AU 0 3", "CX 0", "NZ 1 9", "IE 9 1",
    // Without a plan: trunk prefixes 06 (HU) and 8 (BY), international prefixes 810 (BY), 0012 (BR).
    "FI 0 9", "HU 9 1", "BY 0 17", "UA 0 44", "TR 0 312", "IL 0 3", "ZA 0 21", "JP 0 6", "CN 0 21", "IN 0 22",
    "BR 0 21", "CZ 9"};

// Examples typed otherwise than behind the trunk prefix (null: not typed; checked below instead):
// "+54 9 (11) ..." finds no mask of "54 9"; the Colombian plan writes the zone-digit form of before
// 2021; a Colombian mobile is read behind the fixed-to-mobile "03".
const struct {
    const char* country;
    bool mobile;
    const char* typedPrefix;
} TYPED_OTHERWISE[] = {{"AR", true, nullptr}, {"CO", false, nullptr}, {"CO", true, "03"}};

struct NationalCase {
    std::string name; // "FR_fixed"
    std::string country, extPrefix, ownArea;
    std::string typed; // a national prefix and the national significant number
    std::string callingCode, nsn;
    bool areaLayout; // "+cc (area or trunk prefix) subscriber" expected, else "+cc nsn"
};

std::vector<NationalCase> cases() {
    std::vector<NationalCase> cases;
    for (const CountryExamples& examples : exampleNumbers()) {
        std::string country = examples.iso2, extPrefix = "0", ownArea;
        for (const char* installation : INSTALLATIONS)
            if (std::string(installation).compare(0, 3, country + " ") == 0)
                std::istringstream(installation) >> country >> extPrefix >> ownArea;
        // Without a trunk prefix or a plan nothing goes in parentheses: "+cc number".
        bool areaLayout =
            !examples.nationalPrefix.empty() || KesCNPRegistry::find(examples.callingCode) != nullptr;
        for (bool mobile : {false, true}) {
            const std::string& nsn = mobile ? examples.mobile : examples.fixed;
            const char* prefix = examples.nationalPrefix.c_str();
            for (const auto& otherwise : TYPED_OTHERWISE)
                if (examples.iso2 == otherwise.country && mobile == otherwise.mobile)
                    prefix = otherwise.typedPrefix;
            if (!nsn.empty() && prefix != nullptr)
                cases.push_back({examples.iso2 + (mobile ? "_mobile" : "_fixed"), country, extPrefix, ownArea,
                                 prefix + nsn, examples.callingCode, nsn, areaLayout});
        }
    }
    return cases;
}

class ShippedExamples : public ::testing::TestWithParam<NationalCase> {};

} // namespace

TEST(ExampleNumbersFile, HoldsEveryCountryOfTheTables) {
    for (const std::string installation : INSTALLATIONS) {
        const CountryExamples* examples = examplesOf(installation.substr(0, 2));
        ASSERT_NE(examples, nullptr) << installation << ": no example numbers";
        EXPECT_FALSE(examples->mobile.empty()) << installation << ": no mobile example";
    }
    for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans())
        EXPECT_TRUE(std::any_of(
            std::begin(INSTALLATIONS), std::end(INSTALLATIONS),
            [&](const std::string& installation) { return installation.rfind(plan.country, 0) == 0; }))
            << "no installation in " << plan.country << ", the country of the plan of +" << plan.callingCode;
}

TEST_P(ShippedExamples, TypedNationallyGiveTheInternationalNumber) {
    const NationalCase& c = GetParam();
    SCOPED_TRACE("typed '" + c.typed + "' at outside-line prefix '" + c.extPrefix + "', own area '" +
                 c.ownArea + "'");
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem installation(c.country, c.extPrefix, 0, c.ownArea, 0, "");
    const int errors = testhost::countLogged("ERROR ");

    // The mask may group the subscriber digits behind "+cc (digits) ".
    std::string canonical = rules->makeCanonicalNumber(&installation, c.typed, "");
    if (c.areaLayout) {
        EXPECT_TRUE(std::regex_search(canonical, std::regex("^\\+" + c.callingCode + " \\(\\d+\\) \\d")))
            << canonical;
    } else {
        EXPECT_EQ(canonical, "+" + c.callingCode + " " + c.nsn);
    }

    std::string gsm = rules->makeGSMCanonicalNumber(&installation, c.typed, false);
    EXPECT_EQ(std::regex_replace(gsm, std::regex(" "), ""), "+" + c.callingCode + c.nsn) << gsm;

    // "+cc number" reads back as "+cc (number) ", nothing to dial: only "+cc (area) x" round-trips.
    if (c.areaLayout) {
        EXPECT_EQ(rules->makePhoneNumber(&installation, canonical), c.extPrefix + c.typed) << canonical;
    }
    EXPECT_EQ(testhost::countLogged("ERROR "), errors) << testhost::lines().back();
}

INSTANTIATE_TEST_SUITE_P(Shipped, ShippedExamples, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<NationalCase>& test) { return test.param.name; });

// The Argentine mobile example carries the international mobile marker 9 in front of the area code.
TEST(ArgentineMobile, ThePlanWritesItWithTheMobileMarkerAndTheShippedAreaCode) {
    const CountryExamples* argentina = examplesOf("AR");
    ASSERT_TRUE(argentina != nullptr && argentina->mobile[0] == '9');
    KesNumberingRules::getInstance();
    KesDialRulesItem installation("AR", "0", 0, "351", 0, "");
    KesCNP* plan = KesCNPManager::getInstance()->getCNP("AR");
    ASSERT_NE(plan, nullptr);

    // "+54 9 (area) subscriber", and dialled nationally the same mobile is 0 + area + 15 + subscriber.
    const std::string canonical =
        plan->dlr_Country_MakeCanonicalNumber(argentina->nationalPrefix + argentina->mobile, &installation);
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(canonical, parts, std::regex("\\+54 9 \\((\\d+)\\) (\\d+)"))) << canonical;
    EXPECT_EQ(parts.str(1) + parts.str(2), argentina->mobile.substr(1)) << canonical;
    EXPECT_EQ(plan->dlr_Country_MakeCanonicalNumber(
                  argentina->nationalPrefix + parts.str(1) + "15" + parts.str(2), &installation),
              canonical);
}

// Since 2021 a Colombian fixed number is 60 + zone digit + 7 digits; the local rule "60F" dials it.
TEST(ColombianFixedNumber, WrittenInternationallyIsDialledAsTodaysNumberInItsZone) {
    const CountryExamples* colombia = examplesOf("CO");
    ASSERT_TRUE(colombia != nullptr && colombia->fixed.size() == 10u &&
                colombia->fixed.compare(0, 2, "60") == 0);
    KesDialRulesItem installation("CO", "0", 0, colombia->fixed.substr(2, 1), 0, "");
    EXPECT_EQ(KesNumberingRules::getInstance()->makePhoneNumber(&installation, "+57 " + colombia->fixed),
              "0" + colombia->fixed);
}
