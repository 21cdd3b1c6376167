// What every plan of the registry must do, run over each of its rows.

#include "PlanWorld.h"

#include <fstream>
#include <sstream>

using namespace planworld;

namespace numbering {
void PrintTo(const KesCNPRegistry::Plan& plan, std::ostream* out) {
    *out << "plan of +" << plan.callingCode;
}
} // namespace numbering

namespace {

using Reads = KesCNPRegistry::Reads;

std::string nameOf(const ::testing::TestParamInfo<KesCNPRegistry::Plan>& info) {
    return std::string("cc") + info.param.callingCode;
}

std::vector<KesCNPRegistry::Plan> areaCodePlans() {
    std::vector<KesCNPRegistry::Plan> plans;
    for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans())
        if (plan.readsAreaCodes())
            plans.push_back(plan);
    return plans;
}

class EveryPlan : public PlanTest, public ::testing::WithParamInterface<KesCNPRegistry::Plan> {};
class EveryAreaCodePlan : public NoPlanFiles, public ::testing::WithParamInterface<KesCNPRegistry::Plan> {};

} // namespace

// The factory makes the class named after the calling code; it writes its lines only while tracing.
TEST_P(EveryPlan, IsTheClassOfItsCountryAndTracesOnlyWhileTracing) {
    const KesCNPRegistry::Plan& row = GetParam();
    const Site site{row.country, "0", 0, "1"};
    ASSERT_EQ(site.callingCode(), row.callingCode)
        << "the dialing rules give " << row.country << " another code";
    const std::string className = std::string("KesCNP_") + row.callingCode;
    const std::string prefix = "DEBUG " + loggerOf(className) + " - ";
    const std::string number = "0201234567";
    // The Colombian plan names Argentina; the rules' text ends in a NUL, which ends the line.
    const std::string operation =
        (className == "KesCNP_54" || className == "KesCNP_57" ? "DlrArgentinaMakeCanonicalNumber('"
                                                              : "dlr_Country_MakeCanonicalNumber('") +
        number + "', 'CountryCode : '" + row.country + "'";
    for (bool tracing : {false, true}) {
        testhost::Tracing scope(tracing);
        site.convert(number);
        EXPECT_EQ(testhost::lines().empty(), !tracing);
        EXPECT_EQ(testhost::logged(prefix + className + "()"), tracing);
        EXPECT_EQ(testhost::logged(prefix + operation), tracing);
    }
}

// Whatever arrives, a plan answers with the canonical form or the number unchanged.
TEST_P(EveryPlan, NoInputBreaksIt) {
    std::vector<std::string> inputs = {std::string(200, '0'), std::string(200, '9'),
                                       std::string("03") + '\0' + "0123"};
    for (const char* input : {"", "0", "00", "000", "9", "01", "+49 (30) 1", "abc", "\xff\xfe\x80",
                              "0301234567", "4155551234", "84951234567", "091234567", "43215678"})
        inputs.push_back(input);
    KesDialRulesItem withPrefix("DE", "0", 5, "30", 0, "");
    KesDialRulesItem withoutAnything("DE", "", 0, "", 0, "");
    Poco::AutoPtr<KesCNP> converter = plan(GetParam().callingCode);
    for (const std::string& input : inputs) {
        for (KesDialRulesItem* rules : {&withPrefix, &withoutAnything}) {
            std::string result = converter->dlr_Country_MakeCanonicalNumber(input, rules);
            EXPECT_TRUE(result == input || result.rfind("+", 0) == 0) << "'" << input << "'";
        }
        EXPECT_EQ(converter->dlr_Country_MakeCanonicalNumber(input, nullptr), input);
    }
}

// Only the plans that take their national prefix from their country's row convert otherwise without it.
TEST_P(EveryPlan, ReadsItsCountrysRowOnlyWhenItLooksItUp) {
    const KesCNPRegistry::Plan& row = GetParam();
    KesDialRulesItem rules(row.country, "9", 0, "1", 0, "");
    auto convertAll = [&] {
        Poco::AutoPtr<KesCNP> converter = plan(row.callingCode);
        std::string results;
        for (const char* number : {"123456789", "0123456789", "4951234567", "84951234567", "01143215678",
                                   "901143215678", "0201234567"})
            results += converter->dlr_Country_MakeCanonicalNumber(number, &rules) + "\n";
        return results;
    };
    const std::string withRow = convertAll();
    std::istringstream standard(testconfig::STANDARD_DIALING_RULES);
    std::string withoutRow;
    for (std::string line; std::getline(standard, line);)
        if (line.compare(0, 3, std::string(row.country) + " ") != 0)
            withoutRow += line + "\n";
    testconfig::write("dialingrules.properties", withoutRow);
    testconfig::reload();
    EXPECT_EQ(convertAll() != withRow, row.looksUpCountry) << withRow;
}

// Local numbers get the own area code only while "Translate" is 1; Argentina reads it but ignores it.
TEST_P(EveryAreaCodePlan, CompletesLocalNumbersOnlyWhileTranslateIsOne) {
    const KesCNPRegistry::Plan& row = GetParam();
    if (row.reads != Reads::TranslateAndAreaCodes)
        GTEST_SKIP() << "reads no Translate";
    const Site site{row.country, "9", 0, "20"};
    const std::string local = "22345678"; // eight digits: also a local number in Australia and Mexico
    const std::string completed = "+" + std::string(row.callingCode) + " (20) " + local;
    writePlanFile(row.callingCode, "1", {"20"});
    EXPECT_EQ(site.convert(local), completed);
    writePlanFile(row.callingCode, "0", {"20"});
    EXPECT_EQ(site.convert(local), std::string(row.callingCode) == "54" ? completed : local);
}

// A reload reads the plan's files at once: a plan made afterwards loads them as they were.
TEST_P(EveryAreaCodePlan, ItsFilesAreReadAtTheReload) {
    const KesCNPRegistry::Plan& row = GetParam();
    for (const std::string& name : {row.installationFile(), row.defaultFile()}) {
        testconfig::write(name, "Translate=1\n" + areaCodeLines({"7"}));
        KesNumberingRules::reload();
        testconfig::remove(name);
        EXPECT_EQ(filePlan(row.callingCode)->areaCodeCount, 1) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Registry, EveryPlan, ::testing::ValuesIn(KesCNPRegistry::plans()), nameOf);
INSTANTIATE_TEST_SUITE_P(Registry, EveryAreaCodePlan, ::testing::ValuesIn(areaCodePlans()), nameOf);

// The configuration generator reads the registry as tools/plans.tsv; this keeps the two equal.
TEST(PlanRegistry, IsListedForTheConfigurationGenerator) {
    std::ifstream file(NUMBERING_PLAN_LISTING);
    std::string listed;
    for (std::string line; std::getline(file, line);)
        if (line.rfind("#", 0) != 0)
            listed += line + "\n";
    const char* const reads[] = {"nothing", "area_codes", "translate_and_area_codes", "operators"};
    std::string expected = "calling_code\tcountry\treads\tunknown_area_code\tlooks_up_country\n";
    for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans())
        expected += std::string(plan.callingCode) + "\t" + plan.country + "\t" +
                    reads[static_cast<int>(plan.reads)] + "\t" +
                    (!plan.readsAreaCodes()                                             ? "-"
                     : plan.unknownAreaCode == KesCNPRegistry::UnknownAreaCode::Guessed ? "guessed"
                                                                                        : "neutral") +
                    "\t" + (plan.looksUpCountry ? "yes" : "no") + "\n";
    EXPECT_EQ(listed, expected) << "tools/plans.tsv should list, below its comment:\n" << expected;
}
