// The numbering plans: the area code tree they read into, the factory and the manager's cache, how
// they read their files, what they write, their conversions, and what every plan of the registry must
// do, run over each of its rows. The world: the standard dialing rules and a file for each plan that
// reads area codes.
#include "Suite.h"

#include "numbering/KesCNP_49.h"

#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <map>
#include <ostream>
#include <random>
#include <sstream>

using testhost::printed;

namespace numbering {
void PrintTo(const KesCNPRegistry::Plan& plan, std::ostream* out) {
    *out << "plan of +" << plan.callingCode;
}
} // namespace numbering

namespace {

/// The area codes the shared world gives each plan that reads them (KesCNPRegistry says which).
std::vector<const char*> worldAreaCodes(const std::string& code) {
    static const std::map<std::string, std::vector<const char*>> codes = {
        {"49", {"30", "89", "221", "711"}},
        {"43", {"1", "316", "662"}},
        {"31", {"20", "10"}},
        {"32", {"2", "9"}},
        {"44", {"20", "161"}},
        {"353", {"1"}},
        {"54", {"11", "351"}},
        {"61", {"2", "3"}},
        {"52", {"2222"}},
    };
    auto found = codes.find(code);
    return found != codes.end() ? found->second : std::vector<const char*>{"20"};
}

std::string areaCodeLines(const std::vector<const char*>& codes) {
    std::string lines;
    int index = 0;
    for (const char* code : codes) {
        char key[16];
        std::snprintf(key, sizeof key, "AC_%04d=", index++);
        lines += key + std::string(code) + "\n";
    }
    return lines;
}

/// The installation plan file of `code`: "Translate" (unless null) and the area codes.
void writePlanFile(const std::string& code, const char* translate, const std::vector<const char*>& codes) {
    std::string head = translate != nullptr ? std::string("Translate=") + translate + "\n" : std::string();
    testconfig::write(KesCNPRegistry::installationFile(code), head + areaCodeLines(codes));
}

Poco::AutoPtr<KesCNP> plan(const std::string& code) {
    return Poco::AutoPtr<KesCNP>(KesCNPFactory::CreateInstance(code));
}
Poco::AutoPtr<KesAreaCodePlan> filePlan(const std::string& code) {
    return Poco::AutoPtr<KesAreaCodePlan>(
        dynamic_cast<KesAreaCodePlan*>(KesCNPFactory::CreateInstance(code)));
}

struct Site {
    const char* country;
    const char* extPrefix;
    int localLength;
    const char* ownArea;
    const char* exception = "";

    std::string callingCode() const { return KesNumberingConfig::getInstance()->getCountryNumber(country); }
    std::string convert(const std::string& typed) const {
        KesDialRulesItem rules(country, extPrefix, localLength, ownArea, 0, exception);
        return plan(callingCode())->dlr_Country_MakeCanonicalNumber(typed, &rules);
    }
    friend std::ostream& operator<<(std::ostream& out, const Site& site) {
        return out << site.country << " at outside-line prefix '" << site.extPrefix << "', own area '"
                   << site.ownArea << "'";
    }
};

/// Standard dialing rules and, unless `writesFiles` is cleared before SetUp, the shared plan files.
class PlanTest : public testconfig::WorldTest {
protected:
    void SetUp() override {
        testconfig::useWorld();
        if (writesFiles)
            for (const KesCNPRegistry::Plan& p : KesCNPRegistry::plans())
                if (p.readsAreaCodes())
                    writePlanFile(p.callingCode, "1", worldAreaCodes(p.callingCode));
        KesNumberingConfig::getInstance();
    }
    bool writesFiles = true;
};

/// A plan test without any plan file unless the test writes one.
class NoPlanFiles : public PlanTest {
protected:
    NoPlanFiles() { writesFiles = false; }
};

std::string randomDigits(std::mt19937& random, std::size_t longest) {
    std::string digits(1 + random() % longest, '0');
    for (char& c : digits)
        c = static_cast<char>('0' + random() % 4); // few digits, so that codes share their paths
    return digits;
}

template <class Exception, class Tree> std::string thrownBy(Tree& tree, const std::string& code) {
    return testhost::thrownText<Exception>([&] { tree.insert(code); });
}

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

TEST(KesCharsTree, OnlyCodesInsertedShortestFirstAreFlagged) {
    KesCharsTree shortFirst;
    for (const char* code : {"89", "891", "89"})
        shortFirst.insert(code);
    EXPECT_FALSE(shortFirst.isAreaCode("8912")) << "not a path";
    EXPECT_EQ(shortFirst.root.numberOfStoredCodes(), 2);

    KesCharsTree longFirst;
    for (const char* code : {"891", "89", "8"})
        longFirst.insert(code);
    EXPECT_FALSE(longFirst.isAreaCode("89") || longFirst.isAreaCode("8"));
    EXPECT_EQ(longFirst.root.numberOfStoredCodes(), 1);

    // Copies are trees of their own.
    KesCharsTree copy(shortFirst), assigned;
    assigned.insert("99");
    assigned = shortFirst;
    copy.insert("14");
    EXPECT_FALSE(shortFirst.isAreaCode("14"));
    EXPECT_TRUE(assigned.isAreaCode("891") && !assigned.isAreaCode("99"));
}

TEST(KesCharsTree, EmptyAndAbsurdlyLongCodesAreRejected) {
    KesCharsTree tree;
    EXPECT_EQ(thrownBy<std::invalid_argument>(tree, ""), " Unexpected value:");
    // The tree's walks recurse once per level: a corrupt file's megabyte "code" must not make it deep.
    tree.insert(std::string(64, '1'));
    EXPECT_THROW(tree.insert(std::string(65, '2')), std::length_error);
    EXPECT_THROW(tree.insert(std::string(1 << 20, '3')), std::length_error);
    EXPECT_EQ(tree.root.numberOfStoredCodes(), 1);
    EXPECT_EQ(tree.isPresent(std::string(100, '1')), std::string(64, '1'));
}

// The flat tables of the area code tree answer and print as the character tree they stand for,
// whatever the order of the codes.
TEST(KesAreaCodeTree, AnswersAndPrintsAsTheCharacterTree) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        KesAreaCodeTree tree;
        KesCharsTree reference;
        for (int code = 0; code < 30; ++code) {
            const std::string digits = randomDigits(random, 5);
            const bool isPath = reference.isPresent(digits) == digits;
            EXPECT_EQ(tree.insert(digits), !isPath) << digits;
            if (!isPath)
                reference.insert(digits);
        }
        EXPECT_EQ(tree.ToString(), reference.ToString());
        for (int number = 0; number < 30; ++number) {
            const std::string digits = randomDigits(random, 8) + (number % 5 == 0 ? "x1" : "");
            std::string expected = reference.isPresent(digits);
            while (!expected.empty() && !reference.isAreaCode(expected))
                expected.pop_back();
            EXPECT_EQ(tree.extractAreaCode(digits), expected) << digits;
            EXPECT_EQ(tree.areaCodeLength(digits), expected.size()) << digits;
        }
    }
}

TEST(KesAreaCodeTree, MalformedDigitStrings) {
    KesAreaCodeTree tree;
    EXPECT_EQ(thrownBy<std::invalid_argument>(tree, ""), "strDigits empty");
    // The character code and the position are offsets into the literals, not written out.
    struct Case {
        std::string digits;
        const char* message;
    } cases[] = {{"3a1", "at position:  in :3a1"},
                 {"a", " at position:  in :a"},
                 {std::string("1\x05", 2), "ected digit:at position:  in :1\x05"},
                 {"12345678901234567x", " in :12345678901234567x"},
                 {"1\xe9", "at position:  in :1\xe9"}};
    for (const Case& c : cases)
        EXPECT_EQ(thrownBy<number_format_exception>(tree, c.digits), c.message);
    EXPECT_EQ(tree.ToString().find('3'), std::string::npos) << "nothing of a refused code is stored";
}

// Every code of the registry gives its plan (EveryPlan below); nothing else does.
TEST(PlanFactory, MatchesCallingCodesExactly) {
    for (const char* code : {"35", "0049", "+49", "49 ", "", "39", "3530"})
        EXPECT_EQ(KesCNPFactory::CreateInstance(code), nullptr) << code;
}

TEST_F(PlanTest, CachesOnePlanPerCountryAndRemembersCountriesWithout) {
    KesCNPManager* manager = KesCNPManager::getInstance();
    KesCNP* german = manager->getCNP("DE");
    EXPECT_NE(dynamic_cast<KesCNP_49*>(german), nullptr);
    // A lower-case key misses the cache; the plan it builds is filed under the upper-case key.
    EXPECT_EQ(manager->getCNP("de"), german);
    EXPECT_EQ(manager->getCNP("X"), nullptr);
    EXPECT_TRUE(manager->isCountryNotFound("X"));
    EXPECT_EQ(manager->getCNP("it"), nullptr) << "Italy has no plan";
    EXPECT_TRUE(manager->isCountryNotFound("IT")) << "stored upper-cased";
    EXPECT_FALSE(manager->isCountryNotFound("I"));
    EXPECT_EQ(manager->getCNP("QQ"), nullptr) << "unknown to the dialing rules";
}

TEST_F(PlanTest, SwitchedOffCountryGetsNoPlan) {
    // Only a country number reading as 0 sees the file's switch.
    testconfig::write("dialingrules.properties",
                      std::string(testconfig::STANDARD_DIALING_RULES) + "XZ = 0:00:EF:0F::Zero:P\n");
    testconfig::reloadWith("specific_format_activation.properties", "cnp_0 = off\n");
    KesCNPManager* manager = KesCNPManager::getInstance();
    EXPECT_EQ(manager->getCNP("XZ"), nullptr);
    EXPECT_TRUE(manager->isCountryNotFound("XZ"));
    EXPECT_NE(manager->getCNP("DE"), nullptr) << "other countries keep their plans";
}

// Values as Poco reads them (the last of a key, references expanded); the list ends at the first gap
// or value without digits; only leading digits count.
TEST_F(NoPlanFiles, NumberedList) {
    testconfig::write(KesCNPRegistry::installationFile("49"),
                      "Translate=1\nbase=3\nAC_0000=${base}0 Berlin\nAC_0001=99\nAC_0001=0711\nAC_0002=30\n"
                      "AC_0004=221\nOther=5\n");
    testconfig::write(KesCNPRegistry::installationFile("31"),
                      "Translate=1\nAC_0000=20\nAC_0001=x10\nAC_0002=10\n");
    Poco::AutoPtr<KesAreaCodePlan> germany = filePlan("49");
    EXPECT_EQ(germany->areaCodeCount, 3) << "a repeated code is counted all the same";
    EXPECT_EQ(germany->maxAreaCodeLength, 4);
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("3012"), "30");
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("07119"), "0711") << "loaded as written";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("9912"), "") << "the last value of a key counts";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("2219"), "") << "behind the gap";
    EXPECT_EQ(filePlan("31")->areaCodeCount, 1);
}

TEST_F(NoPlanFiles, TranslateIsOnlyOneAndItsAbsenceEndsTheReadingExceptForBelgium) {
    struct Case {
        const char* plan;
        const char* translate;
        bool expected;
        int codes;
    } cases[] = {{"44", "1", true, 1},     {"44", "0", false, 1}, {"44", "yes", false, 1},
                 {"44", nullptr, true, 0}, {"32", "0", true, 1},  {"32", nullptr, true, 1}};
    for (const Case& c : cases) {
        writePlanFile(c.plan, c.translate, {"20"});
        Poco::AutoPtr<KesAreaCodePlan> plan = filePlan(c.plan);
        EXPECT_EQ(plan->translate, c.expected) << c.plan << " " << (c.translate ? c.translate : "none");
        EXPECT_EQ(plan->areaCodeCount, c.codes) << c.plan << " " << (c.translate ? c.translate : "none");
    }
}

TEST_F(NoPlanFiles, MissingFilesLeaveAnEmptyTree) {
    Poco::AutoPtr<KesAreaCodePlan> germany = filePlan("49");
    EXPECT_EQ(germany->areaCodeCount, 0);
    EXPECT_TRUE(germany->translate);
}

TEST_F(PlanTest, SelfTestOfTheAreaCodeTree) {
    std::string out = printed([] { KesAreaCodeTree::main(nullptr); });
    EXPECT_EQ(out.rfind("Extract area code from '123456789' : 123456\n"
                        "Extract area code from '123056789' : 123\n"
                        "Extract area code from '987654321' : \n"
                        "Root : ",
                        0),
              0u)
        << out;
    int flagged = 0;
    for (std::size_t at = out.find(" (true)"); at != std::string::npos; at = out.find(" (true)", at + 1))
        ++flagged;
    EXPECT_EQ(flagged, 11) << "every insert succeeds";
}

TEST_F(PlanTest, SelfTestOfAPlan) {
    // The shared world gives Germany 30, 89, 221 and 711.
    EXPECT_EQ(printed([] { KesCNP_49::main(nullptr); }),
              "Dialing rules : " + KesDialRulesItem("DE", "1", 5, "170", 0, "").ToString() +
                  "\nLocal 76985411 -> +49 (170) 76985411\n"
                  "Local + prefixe 176985411 -> +49 (170) 76985411\n"
                  "National 0771176985411 -> +49 (711) 76985411\n"
                  "National + prefixe 10771176985411 -> +49 (711) 76985411\n");
    // An unknown country is reported, not thrown.
    testconfig::reloadWith("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    EXPECT_EQ(printed([] { KesCNP_49::main(nullptr); }), "Country code 'DE' is not supported\n");
}

namespace {

/// "typed -> expected" at one installation, or the typed number alone when it comes back unchanged.
struct Group {
    Site site;
    std::initializer_list<const char*> rows;
};

const Group TABLE[] = {
    // Germany: pass 2 strips the outside-line prefix before at most 16 characters; what cannot be split
    // ends behind the own area code.
    {{"DE", "0", 5, "89"},
     {"0301234567 -> +49 (30) 1234567", "00301234567 -> +49 (30) 1234567", "1234567 -> +49 (89) 1234567",
      "030 -> +49 (89) 030", "0123 -> +49 (89) 123", "030123 -> +49 (30) 123", "03012 -> +49 (89) 3012", "12",
      "", "00301234567890123 -> +49 (30) 1234567890123",
      "003012345678901234 -> +49 (89) 003012345678901234"}},
    {{"DE", "9", 5, "89"}, {"90301234567 -> +49 (30) 1234567", "9001234"}},
    {{"DE", "0", 5, ""}, {"0451234567 -> +49 () 451234567", "1234567"}},
    // Austria takes four digits where the area code is unknown.
    {{"AT", "0", 4, "1"},
     {"0316123456 -> +43 (316) 123456", "0512345678 -> +43 (5123) 45678", "0512345 -> +43 (1) 512345"}},
    // Switzerland: nine or ten characters, directly or behind the outside-line prefix.
    {{"CH", "0", 0, ""},
     {"12345678", "011234567 -> +41 (1) 1234567", "021234567", "0441234567 -> +41 (44) 1234567",
      "0800123456 -> +41 800123456", "4412345678", "00441234567 -> +41 (44) 1234567", "10441234567",
      "000441234567"}},
    {{"CH", "99", 0, ""}, {"99011234567 -> +41 (1) 1234567"}},
    {{"CH", "999", 0, ""}, {"99901234567"}},
    {{"CH", "", 0, ""}, {"00441234567"}},
    // France around its national length of ten; what already carries the prefix is not completed.
    {{"FR", "0", 0, ""},
     {"12345678", "123456789 -> +33 (0) 123456789", "012345678", "0123456789 -> +33 (0) 123456789",
      "1234567890 -> +33 (1) 234567890", "00123456789 -> +33 (0) 123456789", "10123456789", "000123456789"}},
    {{"FR", "0", 10, ""}, {"123456789", "0123456789 -> +33 (0) 123456789"}},
    // Russia around eleven: length alone decides.
    {{"RU", "0", 0, ""}, {"4951234567 -> +7 (495) 1234567", "8495123456 -> +7 (849) 5123456"}},
    {{"RU", "0", 0, "", "49"}, {"4951234567", "3951234567 -> +7 (395) 1234567"}},
    // North America: no outside-line prefix; area and exchange codes never begin with 0 or 1.
    {{"US", "9", 0, "212"},
     {"555123", "5551234 -> +1 (212) 5551234", "1551234", "15551234 -> +1 (212) 5551234", "95551234"}},
    {{"US", "", 0, "212"},
     {"4155551234 -> +1 (415) 5551234", "4151551234", "1155551234", "14155551234 -> +1 (415) 5551234",
      "04155551234 -> +1 (415) 5551234", "24155551234"}},
    {{"US", "", 0, ""}, {"5551234 -> +1 (?) 5551234"}},
    // The single-pass plans: from six (NL, GB), nine (BE) or five (IE) characters.
    {{"NL", "0", 0, "20"},
     {"0201234567 -> +31 (20) 1234567", "0591234567 -> +31 (0) 591234567", "1234567 -> +31 (20) 1234567",
      "02012", "020123 -> +31 (20) 123"}},
    {{"BE", "0", 0, "2"},
     {"123456789", "02123456", "021234567 -> +32 (2) 1234567", "0501234567 -> +32 (0) 501234567"}},
    {{"GB", "9", 0, "20"},
     {"71234567 -> +44 (20) 71234567", "212345 -> +44 (20) 212345", "1234567",
      "01611234567 -> +44 (161) 1234567", "0123456 -> +44 (0) 123456"}},
    {{"IE", "0", 0, "1"},
     {"011234567 -> +353 (1) 1234567", "0911234567 -> +353 (91) 1234567", "0123", "01234 -> +353 (1) 234",
      "1234567 -> +353 (1) 1234567"}},
    {{"IE", "0", 0, ""}, {"1234567"}},
    // Australia decides by exact length.
    {{"AU", "0", 0, "2"},
     {"0212345678 -> +61 (2) 12345678", "0512345678 -> +61 (0) 512345678", "1300123456 -> +61 1300 123456",
      "131234 -> +61 13 1234", "141234", "1312345", "12345678 -> +61 (2) 12345678", "1900123456",
      "00212345678", "021234567"}},
    {{"AU", "0", 0, ""}, {"12345678"}},
    // Colombia by length; the carrier digits are dropped.
    {{"CO", "0", 0, "1"},
     {"123456", "1234567 -> +57 (1) 1234567", "012345678", "0511234567 -> +57 (1) 1234567", "5511234567",
      "0330012345 -> +57 (300) 12345", "045611234567 -> +57 (1) 1234567",
      "033001234567 -> +57 (300) 1234567"}},
    {{"CO", "0", 0, ""}, {"1234567 -> +57 () 1234567"}},
    // Mexico: ten national digits; the plan file's codes come before the two-digit rule.
    {{"MX", "0", 0, "55"},
     {"5512345678 -> +52 (55) 12345678", "2221234567 -> +52 (222) 1234567", "2222123456 -> +52 (2222) 123456",
      "015512345678 -> +52 (55) 12345678", "0445512345678 -> +52 (155) 12345678",
      "0115512345678 -> +52 (155) 12345678", "15512345678 -> +52 (155) 12345678",
      "05512345678 -> +52 (55) 12345678", "12345678", "22345678 -> +52 (55) 22345678"}},
    {{"MX", "9", 0, "55"},
     {"1512345678", "0123456789", "551234567", "55123456789", "044551234567", "0465512345678", "011234567",
      "55-1234-5678", "9"}},
    {{"MX", "0", 0, "222"}, {"2345678 -> +52 (222) 2345678", "22345678"}},
    // Argentina: the mobile markers 15 (behind the area code) and 9 (in front of it).
    {{"AR", "0", 0, "11"},
     {"43215678 -> +54 (11) 43215678", "01143215678 -> +54 (11) 43215678",
      "0111543215678 -> +54 9 (11) 43215678", "91143215678 -> +54 9 (11) 43215678",
      "1543215678 -> +54 9 (11) 43215678", "0221432156 -> +54 (11) 221432156", "9999999999",
      "011154321567890 -> +54 9 (11) 4321567890", "0123456789012345"}},
    // New Zealand: one-digit areas, mobiles of six to eight digits behind their prefix, services.
    {{"NZ", "", 0, ""},
     {"031234567 -> +64 (3) 1234567", "051234567", "03123456", "0312345678", "02112345",
      "021123456 -> +64 (21) 123456", "02112345678 -> +64 (21) 12345678", "021123456789", "0231234567",
      "024012345 -> +64 (240) 12345", "0800123456 -> +64 (800) 123456", "090012345 -> +64 (900) 12345"}},
    {{"NZ", "", 0, "9"},
     {"3456789 -> +64 (9) 3456789", "1234567", "0234567", "345678", "34567890", "09*234567"}},
    {{"NZ", "", 0, "09"}, {"3456789 -> +64 (9) 3456789"}},
    {{"NZ", "", 0, "5"}, {"3456789"}},
    {{"NZ", "", 0, "0"}, {"3456789"}},
    {{"NZ", "1", 0, "4"},
     {"1091234567 -> +64 (9) 1234567", "13456789 -> +64 (4) 3456789", "1051234567", "1", "2091234567"}},
    // With "0" as outside-line prefix the national number itself is tried first.
    {{"NZ", "0", 0, "4"}, {"090012345 -> +64 (900) 12345", "03456789 -> +64 (4) 3456789"}},
};

using Conversions = PlanTest;

} // namespace

TEST_F(Conversions, EveryPlanAroundItsLengthsAndPrefixes) {
    for (const Group& group : TABLE) {
        for (const std::string row : group.rows) {
            const std::size_t arrow = row.find(" -> ");
            const std::string typed = row.substr(0, arrow);
            EXPECT_EQ(group.site.convert(typed), arrow == std::string::npos ? row : row.substr(arrow + 4))
                << group.site << ": '" << typed << "'";
        }
    }
}

// Pass 2 takes a national number shorter than the longest area code, not one as long.
TEST_F(Conversions, NationalNumbersShorterThanTheLongestAreaCodeWaitForPass2) {
    const Site site{"DE", "9", 5, "89"};
    writePlanFile("49", "1", {"30"});
    EXPECT_EQ(site.convert("030123"), "+49 (30) 123");
    writePlanFile("49", "1", {"30", "332031"});
    EXPECT_EQ(site.convert("030123"), "+49 (89) 030123");
    EXPECT_EQ(site.convert("0301234"), "+49 (30) 1234") << "as long as the longest area code";
}

// Plans built before a reload read the store in use; a country missing from it has no national prefix.
TEST_F(Conversions, PlansReadTheStoreInUseAndMissingRowsMeanNoNationalPrefix) {
    KesDialRulesItem argentine("AR", "0", 0, "11", 0, "");
    KesDialRulesItem french; // not validated against the dialing rules
    french.setExtPrefix("0");
    Poco::AutoPtr<KesCNP> argentina = plan("54"), france = plan("33"), russia = plan("7");
    testconfig::reloadWith("dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\n");
    EXPECT_EQ(argentina->dlr_Country_MakeCanonicalNumber("1143215678", &argentine), "+54 (11) 43215678");
    EXPECT_EQ(argentina->dlr_Country_MakeCanonicalNumber("01143215678", &argentine), "+54 (11) 01143215678");
    EXPECT_EQ(france->dlr_Country_MakeCanonicalNumber("123456789", &french), "123456789");
    EXPECT_EQ(russia->dlr_Country_MakeCanonicalNumber("4951234567", &french), "4951234567");
}

// The factory makes the class named after the calling code; it writes its lines only while tracing.
TEST_P(EveryPlan, IsTheClassOfItsCountryAndTracesOnlyWhileTracing) {
    const KesCNPRegistry::Plan& row = GetParam();
    const Site site{row.country, "0", 0, "1"};
    ASSERT_EQ(site.callingCode(), row.callingCode)
        << "the dialing rules give " << row.country << " another code";
    const std::string className = std::string("KesCNP_") + row.callingCode;
    const std::string logger = "DEBUG N9numbering" + std::to_string(className.size()) + className + "E - ";
    for (bool tracing : {false, true}) {
        testhost::Tracing scope(tracing);
        site.convert("0201234567");
        EXPECT_EQ(testhost::lines().empty(), !tracing);
        EXPECT_EQ(testhost::logged(logger + className + "()"), tracing);
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
    testconfig::reloadWith("dialingrules.properties", withoutRow);
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
