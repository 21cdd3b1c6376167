#include "FacadeWorld.h"

#include <new>

using CanonicalNumber = facadeworld::FacadeTest;

TEST_F(CanonicalNumber, TypedNumbers) {
    KesDialRulesItem stockholm = facadeworld::stockholm(), paris = facadeworld::paris();
    KesDialRulesItem local = facadeworld::stockholm(5), exception = facadeworld::stockholm(0, "18");
    KesDialRulesItem noPrefix("SE", "", 5, "8", 0, ""), spain("ES", "0", 0, "91", 0, "");
    KesDialRulesItem norway("NO", "0", 0, "", 0, ""), denmark("DK", "0", 0, "", 0, "");
    struct Case {
        KesDialRulesItem* rules;
        std::string typed;
        std::string expected;
        const char* traced = nullptr; // a line the conversion writes
        bool withExternalPrefix = false;
    } const cases[] = {
        // National by prefix: the national prefix stands in the parentheses.
        {&stockholm, "08-123 456 78", "+46 (0) 812345678", "No special format defined for country SE"},
        // International by prefix: a country without national prefix writes no area code ...
        {&stockholm, "00 39 06 1234 5678", "+39 0612345678"},
        // ... one with a national prefix has it put in front, the own country too.
        {&stockholm, "00 48 22 123 45 67", "+48 (0) 221234567"},
        {&stockholm, "00 46 8 123 456 78", "+46 (0) 812345678"},
        {&stockholm, "00 999 123", "00999123"},    // unknown calling code
        {&stockholm, "8 123 456 78", "812345678"}, // neither prefix: local or national cannot be told
        {&stockholm, "123|45", "123"},             // the scan ends at a bar
        {&stockholm, "+46 8 123 456 78", "+46 (8) 12345678"},
        {&stockholm, "  + 46 (8) 123 456 78 ", "+46 (8) 12345678"},
        {&stockholm, "+46812345678", "+46 (0) 812345678"}, // no separators: no area code told
        {&stockholm, "+39 06 1234 5678", "+39 (06) 12345678"},
        {&stockholm, "+48 (0) 22 123 45 67", "+48 (0) 221234567"},
        {&stockholm, "+999 12 345", "+999 (12) 345"}, // unknown calling code: the layout as typed
        {&stockholm, "+", "+"},
        {&stockholm, "*21#", "*21#"}, // service codes are cleaned, never canonical
        {&stockholm, "0A-1", "0A1"},
        {&stockholm, "08" + std::string(198, '1'), "+46 (0) 8" + std::string(198, '1')},
        // The outside-line prefix is removed once; a number that lacks it is read as it stands.
        {&stockholm, "008 123 456 78", "+46 (0) 812345678", nullptr, true},
        {&stockholm, "000 39 06 1234", "+39 061234", nullptr, true},
        {&stockholm, "8 123 456 78", "812345678", nullptr, true},
        {&noPrefix, "008 123 456 78", "", nullptr, true},
        // Local and exception numbers need nothing, unless there is no outside-line prefix.
        {&local, "1234", "1234", "Nothing to do for1234"},
        {&exception, "18123", "18123", "Nothing to do for18123"},
        {&noPrefix, "1234", "1234", "No special format defined for country SE"},
        {&spain, "91 123 45 67", "+34 911234567",
         "There is no difference between local and national phone number format'91 123 45 67'"},
        {&norway, "22 12 34 56", "+47 22123456"}, // no long-distance rule, local rule "G"
        // Denmark writes local and national numbers differently but has no national prefix.
        {&denmark, "33 12 34 56", "33123456",
         "Can't translate to a canonical phone number : we don't known if '33123456' is a local or "
         "national phone number"},
        // A plan decides where one exists: six French digits fit no French shape.
        {&paris, "01 23 45 67 89", "+33 (0) 123456789"},
        {&paris, "012345", "012345", "Source number to be altered : '012345'"},
        {&stockholm, "012345", "+46 (0) 12345"},
        // New Zealand without a national prefix: "+64" leaves nothing for its plan.
        {&stockholm, "+64", "", "Altered Source Number : ''"},
        {&stockholm, "0123x", "", "MakeCanonical : wrong character in number : 0123x"},
        {&stockholm, "   ", ""},
        {&stockholm, "08\t123", ""},
    };
    for (const Case& c : cases) {
        testhost::Tracing tracing;
        EXPECT_EQ(facade->makeCanonicalNumber(c.rules, c.typed, "", c.withExternalPrefix), c.expected)
            << "typed '" << c.typed << "'";
        EXPECT_TRUE(c.traced == nullptr || testhost::logged(c.traced)) << c.traced;
        // A failure writes one error line; an outside-line prefix that cannot be removed writes none.
        const int errors = c.expected.empty() && !c.withExternalPrefix ? 1 : 0;
        EXPECT_EQ(testhost::countLogged("makeCanonicalNumber exception: "), errors) << c.typed;
        std::string appended = "<";
        facade->appendCanonicalNumber(c.rules, c.typed, "", c.withExternalPrefix, appended);
        EXPECT_EQ(appended, "<" + c.expected);
    }
}

TEST_F(CanonicalNumber, ServiceCharactersAndTheErrorLine) {
    KesDialRulesItem rules = facadeworld::stockholm();
    EXPECT_EQ(facade->makeCanonicalNumber(&rules, " 12***34 ", "+C (A) x"), " 12***34 ");
    EXPECT_EQ(facade->makeCanonicalNumber(&rules, "0123x", "P"), "");
    EXPECT_EQ(
        testhost::lines().back(),
        facadeworld::withDialRules("KesNumberingRules::makeCanonicalNumber exception: 'strPhoneNumber' "
                                   "parameter is not a phone number - PhoneNumber: '0123x', Pattern: 'P'",
                                   rules));
}

TEST_F(CanonicalNumber, OperatorPrefixKeptOnlyForTheOwnCountry) {
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT = 9\nOP_0000 = 4\nOP_0001 = 7\n");
    testconfig::reload();
    facade = KesNumberingRules::getInstance();
    KesDialRulesItem bogota("CO", "0", 0, "1", 0, "");
    // Nine digits fit no Colombian shape: the plan returns the national form as it came.
    EXPECT_EQ(facade->makeCanonicalNumber(&bogota, "00 4 57 1 234567", ""), "041234567");
    EXPECT_EQ(facade->makeCanonicalNumber(&bogota, "00 4 46 8 1234567", ""), "+46 (0) 81234567");
}

TEST_F(CanonicalNumber, PatternLaysOutInternationalResultsOnly) {
    useMasks("Mask_46_1 = +C (a) xxx xxx xx\n");
    KesDialRulesItem rules = facadeworld::stockholm();
    EXPECT_EQ(facade->makeCanonicalNumber(&rules, "+46 8 12345678", ""), "+46 (8) 123 456 78");
    EXPECT_EQ(facade->makeCanonicalNumber(&rules, "+46 8 12345678", "+C A xxxxxxxx"), "+46 8 12345678");
    EXPECT_EQ(facade->makeCanonicalNumber(&rules, "8 123 456 78", "+C A x"), "812345678");
}

// A host may override the conversion: the other forms reach it through the virtual table.
TEST_F(CanonicalNumber, OtherFormsCallTheFourArgumentForm) {
    struct Fixed : KesNumberingRules {
        using KesNumberingRules::makeCanonicalNumber;
        std::string makeCanonicalNumber(KesDialRulesItem*, std::string, std::string strPattern,
                                        bool) override {
            return "+46 (8) 1234" + strPattern;
        }
    } fixed;
    KesDialRulesItem rules = facadeworld::stockholm();
    EXPECT_EQ(fixed.makeCanonicalNumber(&rules, "1", "5"), "+46 (8) 12345");
    EXPECT_EQ(fixed.makeGSMCanonicalNumber(&rules, "1", false), "+4681234");
    std::string appended;
    fixed.appendCanonicalNumber(&rules, "1", "5", false, appended);
    fixed.appendGSMCanonicalNumber(&rules, "1", false, appended);
    EXPECT_EQ(appended, "+46 (8) 12345+4681234");
}

/// Stockholm rules whose look-ups fail with `Error`, which no conversion expects.
template <class Error> struct FailingRules : KesDialRulesItem {
    FailingRules() : KesDialRulesItem("SE", "0", 0, "8", 0, "") {}
    int getLocalNbLength() override { throw Error(); }
    std::string getExtPrefix() override { throw Error(); }
};
struct NotAStandardError {};

// An error that is not the one a conversion expects gives an empty result and one error line.
TEST_F(CanonicalNumber, UnexpectedErrors) {
    FailingRules<std::bad_alloc> outOfMemory;
    FailingRules<NotAStandardError> unknown;
    for (KesDialRulesItem* rules : std::initializer_list<KesDialRulesItem*>{&outOfMemory, &unknown}) {
        const std::string error = rules == &outOfMemory ? "std::bad_alloc" : "...";
        testhost::clear();
        EXPECT_EQ(facade->makeCanonicalNumber(rules, " 0812345 ", "P"), "");
        EXPECT_EQ(facade->makePhoneNumber(rules, " 0812345 "), "");
        EXPECT_EQ(testhost::lines(),
                  (std::vector<std::string>{
                      facadeworld::withDialRules("KesNumberingRules::makeCanonicalNumber exception: " +
                                                     error + " - PhoneNumber: '0812345', Pattern: 'P'",
                                                 *rules),
                      facadeworld::withDialRules("KesNumberingRules::makePhoneNumber exception: " + error +
                                                     " - PhoneNumber: '0812345'",
                                                 *rules)}));
    }
}
