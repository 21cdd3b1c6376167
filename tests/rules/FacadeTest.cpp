// The facade: country look-ups, caller identities, canonical numbers typed at an installation, the
// default canonical form, the masks, the decomposition, the compact GSM form, and canonical numbers
// into the digits an installation dials, with the outside-line prefix where needed. Only France,
// Germany, Colombia and New Zealand have a numbering plan.
#include "Suite.h"

#include "numbering/KesExplanation.h"

#include <functional>
#include <new>

namespace facadeworld {

const char* const DIALING_RULES = "BY = 375:810:EF:8F::Belarus:P\n"   // national prefix 8
                                  "CO = 57:00:EF:0F::Colombia:P\n"    // has a plan
                                  "DE = 49:00:EF:0F::Germany:P\n"     // has a plan
                                  "DK = 45:00:EF:I:F:Denmark:P\n"     // local and national differ, no prefix
                                  "ES = 34:00:EF:F:F:Spain:P\n"       // local and national alike
                                  "FR = 33:00:EF:0F::France:P\n"      // has a plan
                                  "IT = 39:00:EF:F:F:Italy:P\n"       // local and national alike
                                  "NO = 47:00:EF::G:Norway:P\n"       // no long-distance rule, local "G"
                                  "NZ = 64:00:EF:F:F:New Zealand:P\n" // has a plan, no national prefix
                                  "PL = 48:00:EF:0F::Poland:P\n"      // national prefix 0
                                  "SE = 46:00:EF:0F::Sweden:P\n";     // national prefix 0, area codes

class FacadeTest : public testconfig::WorldTest {
protected:
    FacadeTest() : WorldTest(DIALING_RULES) {}
    void SetUp() override {
        WorldTest::SetUp();
        facade = KesNumberingRules::getInstance();
        testhost::clear();
    }

    /// `file` rewritten with `content`, the configuration reloaded.
    void use(const std::string& file, const std::string& content) {
        testconfig::reloadWith(file, content);
        facade = KesNumberingRules::getInstance();
    }

    KesNumberingRules* facade = nullptr;
};

/// Installations in Stockholm (area code 8) and Paris (1) that seize an outside line with "0".
KesDialRulesItem stockholm(int localNbLength = 0, const std::string& exceptNbBegin = "") {
    return KesDialRulesItem("SE", "0", localNbLength, "8", 0, exceptNbBegin);
}

KesDialRulesItem paris(int localNbLength = 0, const std::string& exceptNbBegin = "") {
    return KesDialRulesItem("FR", "0", localNbLength, "1", 0, exceptNbBegin);
}

/// The error line a conversion logs for `rules` (the NUL that ends ToString() ends the line).
std::string withDialRules(const std::string& head, KesDialRulesItem& rules) {
    return "ERROR N9numbering17KesNumberingRulesE - " + head + "\n  DialRules: " + rules.ToString().c_str();
}

} // namespace facadeworld

using Facade = facadeworld::FacadeTest;
using CanonicalNumber = facadeworld::FacadeTest;
using CanonicalForms = facadeworld::FacadeTest;
using DialableNumber = facadeworld::FacadeTest;
using PhoneNumber = facadeworld::FacadeTest;

TEST_F(Facade, CountryLookUpsPassThroughTheStore) {
    std::vector<std::string> names = facade->getCountryList();
    ASSERT_EQ(names.size(), 11u);
    EXPECT_EQ(names.front() + "|" + names.back(), "Belarus|Sweden");
    EXPECT_EQ(facade->getCountryCode("Sweden") + facade->getCountryName("SE") +
                  facade->getCountryCodeFromNumber("46"),
              "SESwedenSE");
    EXPECT_EQ(facade->getCountryCode("Atlantis") + facade->getCountryCodeFromNumber("4"), "");
}

// A reset drops every cache with the facade, so that the next use reads the files again.
TEST_F(Facade, ResetRereadsTheFiles) {
    testconfig::write("dialingrules.properties", "SE = 46:00:EF:0F::Konungariket Sverige:P\n");
    KesNumberingRules::resetInstance();
    EXPECT_EQ(KesNumberingRules::instance, nullptr);
    EXPECT_EQ(KesNumberingConfig::instance, nullptr);
    facade = KesNumberingRules::getInstance();
    EXPECT_EQ(facade->getCountryName("SE"), "Konungariket Sverige");
}

// The shortest form that tells the caller apart, and where the call comes from.
TEST_F(Facade, CallerLineIdentities) {
    KesDialRulesItem stockholm = facadeworld::stockholm(5), minsk("BY", "0", 0, "17", 0, "");
    struct Case {
        KesDialRulesItem* rules;
        const char *calling, *number;
        const KesEnumOrigin* origin;
    } const cases[] = {
        {&stockholm, "+46 8 123 456 78", "12345678", &KesEnumOrigin::PUBLIC_1}, // the own area
        {&stockholm, "+46 31 123 456", "31123456", &KesEnumOrigin::NATIONAL},
        // The national prefix in the parentheses, in place of an area code.
        {&stockholm, "08 123 456 78", "812345678", &KesEnumOrigin::NATIONAL},
        // Abroad, with a national prefix equal to the installation's own: left out ...
        {&stockholm, "+48 (0) 22 123 45 67", "48221234567", &KesEnumOrigin::INTERNATIONAL},
        // ... the installation's, not the calling country's: Belarus writes "8".
        {&minsk, "+48 (0) 22 123 45 67", "480221234567", &KesEnumOrigin::INTERNATIONAL},
        // Not canonical: a local number.
        {&stockholm, "1234", "1234", &KesEnumOrigin::PRIVATE_1},
    };
    for (const Case& c : cases) {
        Poco::AutoPtr<KesClid> clid(facade->makeClid(c.rules, c.calling));
        ASSERT_FALSE(clid.isNull()) << c.calling;
        EXPECT_EQ(clid->getNumber(), c.number) << c.calling;
        EXPECT_EQ(clid->getOrigin(), c.origin) << c.calling << " is " << clid->getOrigin()->name;
    }
    const int before = KesClid::_count;
    EXPECT_EQ(facade->makeClid(&stockholm, "0123x"), nullptr);
    EXPECT_EQ(KesClid::_count, before);
}

// Every conversion, and its explanation, refuses null installation rules and an empty number with
// the same two messages.
TEST_F(Facade, MissingArgumentsOfEveryConversion) {
    KesDialRulesItem rules = facadeworld::stockholm();
    const std::function<void(KesDialRulesItem*, const std::string&)> conversions[] = {
        [&](KesDialRulesItem* r, const std::string& n) { facade->makeCanonicalNumber(r, n, "", true); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->makeGSMCanonicalNumber(r, n, false); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->makePhoneNumber(r, n); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->addExternalPrefix(r, n); },
        [&](KesDialRulesItem* r, const std::string& n) { Poco::AutoPtr<KesClid>(facade->makeClid(r, n)); },
        [&](KesDialRulesItem* r, const std::string& n) { KesExplanation::of(r, n); },
    };
    for (const auto& convert : conversions) {
        EXPECT_EQ(testhost::thrownText<std::invalid_argument>([&] { convert(nullptr, ""); }),
                  "'myKesDialRulesItem' parameter can not be null");
        EXPECT_EQ(testhost::thrownText<std::invalid_argument>([&] { convert(&rules, ""); }),
                  "'strPhoneNumber' parameter can not be null");
    }
}

// Whatever a number from outside holds, every line the sink receives stays one log line without
// terminal controls (but the library's own break before "DialRules:"), and none is debug text while
// tracing is off.
class OddInputs : public facadeworld::FacadeTest {
protected:
    void convertAll(const std::string& number) {
        for (KesDialRulesItem* rules : {&paris, &stockholm}) {
            testhost::everyConversion(rules, number);
            facade->makeDialableNumber(rules, number);
            facade->isPrefixNeeded(rules, number);
        }
        facade->getCountryCode(number);
        facade->getCountryName(number);
        facade->getCountryCodeFromNumber(number);
        facade->generateDefaultCanonicalNumber(number, "33", "1\n");
        facade->formatCanonicalNumber(number, "");
        facade->formatCanonicalNumber("+33 (1) 23456789", number);
        facade->extractCountryNumberFromCanonicalNumber(number);
        facade->extractAreaCodeOrNatPrefixFromCanonicalNumber(number);
        facade->extractExtensionFromCanonicalNumber(number);
        facade->formatToGSMCanonicalNumber(number);
    }

    void SetUp() override {
        FacadeTest::SetUp();
        paris = facadeworld::paris(5, "1\n2"); // checked against the rules just loaded
        stockholm = facadeworld::stockholm(4, "1");
    }

    KesDialRulesItem paris, stockholm;
};

namespace {

// Canonical, national and service-code shapes, so that the conversions go deep before failing.
const std::vector<std::string> FORGING_NUMBERS = {
    "12\nERROR N9numbering17KesNumberingRulesE - forged",
    "+33 (1) 2345\r\nINFO forged",
    "\x1b[2J\x1b[31m0123456789",
    "+49 (89) 123\x1b]0;title\x07"
    "456",
    "*12#\n",
};

} // namespace

TEST_F(OddInputs, EveryMessageIsOneLogLine) {
    testhost::Tracing tracing;
    for (const std::string& number : FORGING_NUMBERS)
        convertAll(number);
    ASSERT_FALSE(testhost::lines().empty());
    for (const std::string& line : testhost::lines()) {
        std::string::size_type lineBreak = line.find('\n');
        EXPECT_TRUE(lineBreak == std::string::npos ||
                    line.compare(lineBreak, 29, "\n  DialRules: CountryCode : '") == 0)
            << line;
        for (std::string::size_type i = 0; i < line.size(); ++i)
            EXPECT_TRUE(i == lineBreak || (static_cast<unsigned char>(line[i]) >= 0x20 && line[i] != '\x7f'))
                << "control " << int(line[i]) << " in: " << line;
    }
}

TEST_F(OddInputs, NoDebugTextWhileTracingIsOff) {
    testhost::Tracing off(false);
    for (const char* number : {"08 123 456 78", "+39 06 1234", "1234", "0123x"})
        convertAll(number);
    EXPECT_EQ(testhost::countLogged("DEBUG "), 0);
    EXPECT_GT(testhost::countLogged("ERROR "), 0) << "errors are written all the same";
}

TEST_F(CanonicalNumber, TypedNumbers) {
    KesDialRulesItem stockholm = facadeworld::stockholm(), paris = facadeworld::paris();
    KesDialRulesItem local = facadeworld::stockholm(5);
    KesDialRulesItem noPrefix("SE", "", 5, "8", 0, ""), spain("ES", "0", 0, "91", 0, "");
    KesDialRulesItem norway("NO", "0", 0, "", 0, ""), denmark("DK", "0", 0, "", 0, "");
    struct Case {
        KesDialRulesItem* rules;
        std::string typed;
        std::string expected;
        bool withExternalPrefix = false;
    } const cases[] = {
        // National by prefix: the national prefix stands in the parentheses.
        {&stockholm, "08-123 456 78", "+46 (0) 812345678"},
        // International by prefix: a country without national prefix writes no area code ...
        {&stockholm, "00 39 06 1234 5678", "+39 0612345678"},
        // ... one with a national prefix has it put in front, the own country too.
        {&stockholm, "00 48 22 123 45 67", "+48 (0) 221234567"},
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
        {&stockholm, "008 123 456 78", "+46 (0) 812345678", true},
        {&stockholm, "8 123 456 78", "812345678", true},
        {&noPrefix, "008 123 456 78", "", true},
        // A local number needs nothing, unless there is no outside-line prefix.
        {&local, "1234", "1234"},
        {&noPrefix, "1234", "1234"},
        {&spain, "91 123 45 67", "+34 911234567"},
        {&norway, "22 12 34 56", "+47 22123456"}, // no long-distance rule, local rule "G"
        // Denmark writes local and national numbers differently but has no national prefix.
        {&denmark, "33 12 34 56", "33123456"},
        // A plan decides where one exists: six French digits fit no French shape.
        {&paris, "01 23 45 67 89", "+33 (0) 123456789"},
        {&paris, "012345", "012345"},
        {&stockholm, "012345", "+46 (0) 12345"},
        // New Zealand without a national prefix: "+64" leaves nothing for its plan.
        {&stockholm, "+64", ""},
        {&stockholm, "0123x", ""},
        {&stockholm, "   ", ""},
        {&stockholm, "08\t123", ""},
    };
    for (const Case& c : cases) {
        testhost::clear();
        EXPECT_EQ(facade->makeCanonicalNumber(c.rules, c.typed, "", c.withExternalPrefix), c.expected)
            << "typed '" << c.typed << "'";
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
    use("tz310cnp_57.properties", "OP_DEFAULT = 9\nOP_0000 = 4\nOP_0001 = 7\n");
    KesDialRulesItem bogota("CO", "0", 0, "1", 0, "");
    // Nine digits fit no Colombian shape: the plan returns the national form as it came.
    EXPECT_EQ(facade->makeCanonicalNumber(&bogota, "00 4 57 1 234567", ""), "041234567");
    EXPECT_EQ(facade->makeCanonicalNumber(&bogota, "00 4 46 8 1234567", ""), "+46 (0) 81234567");
}

TEST_F(CanonicalNumber, PatternLaysOutInternationalResultsOnly) {
    use("dlr_cnp_mask.properties", "Mask_46_1 = +C (a) xxx xxx xx\n");
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

TEST_F(CanonicalForms, DefaultCanonicalNumbers) {
    const std::string cases[][4] = {
        // number, country, area code, expected
        {"0123456789", "FR", "1", "+33 (1) 23456789"},
        // The national prefix stands in the parentheses when no area code is known.
        {"0123456789", "FR", "", "+33 (0) 123456789"},
        // An area code given with the national prefix loses it too.
        {"0123456789", "FR", "01", "+33 (1) 23456789"},
        // A number that does not begin with its area code keeps all its digits.
        {"0412345678", "FR", "1", "+33 (1) 412345678"},
        // Italy's long-distance rule places an area code, but it has no national prefix.
        {"0612345678", "IT", "06", "+39 (06) 12345678"},
        {"0612345678", "IT", "", "+39 0612345678"},
        // Norway's long-distance rule places none: whatever area code is passed is ignored.
        {"22123456", "NO", "22", "+47 22123456"},
        {"", "FR", "1", ""},
        {"0123", "XX", "1", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->generateDefaultCanonicalNumber(c[0], c[1], c[2]), c[3])
            << c[0] << " " << c[1] << " " << c[2];
}

TEST_F(CanonicalForms, MaskLetters) {
    const std::string cases[][3] = {
        {"+33 (1) 23456789", "+C (a) xx xx xx xx", "+33 (1) 23 45 67 89"},
        // "a" leaves the national prefix out; the digit the mask did not place follows directly.
        {"+33 (0) 612345678", "+C (a) xx xx xx xx", "+33 () 61 23 45 678"},
        {"+33 (0) 612345678", "+C (A) xx", "+33 (0) 612345678"},
        // A blank of the subscriber part uses up an "x" without placing anything.
        {"+33 (1) 23 45", "xxxxx", "2345"},
        // A country unknown to the rules has no national prefix to leave out.
        {"+999 (0) 234", "C-a-x", "999-0-234"},
        {"+33 (1)", "+C (A) xx", "+33 (1) "},
        // A mask of places only rewrites what is not laid out as it writes.
        {"+49 (89) 12 34 56", "+C (A) xxxxxx", "+49 (89) 123456"},
        {"+49 (89)-123456", "+C (A) xxxxxx", "+49 (89) 123456"},
        {"+49(89) 123", "+C (A) xxx", "+49(89) (89) 123"},
        // Without both parentheses there is nothing to lay out.
        {"+33 1 23", "+C (A) xx", "+33 1 23"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->formatCanonicalNumber(c[0], c[1]), c[2]) << c[0] << " / " << c[1];
    use("dlr_cnp_mask.properties", "Mask_33_1 = +C (a) xx xx xx xx\nMask_33_2 = C A\n");
    EXPECT_EQ(facade->formatCanonicalNumber("+33 (1) 23456789", ""), "+33 (1) 23 45 67 89");
    // No mask for the country: the empty mask keeps only the subscriber number.
    EXPECT_EQ(facade->formatCanonicalNumber("+39 (06) 12345678", ""), "12345678");
}

TEST_F(CanonicalForms, Decomposition) {
    const std::string cases[][4] = {
        // number, country, area or national prefix, subscriber
        {"+33 (1) 23 45 67 89", "33", "1", "23456789"},
        {"+1 () 5551234", "1", "", "5551234"},
        {"0123456789", "", "", ""},
        // No parentheses: the subscriber part begins behind the first blank.
        {"+44 20 7946", "44", "", "207946"},
        // A "(" in first position opens no area code.
        {"(1) 234", "", "", "234"},
        {"+ 33 (1) 2", "", "1", "2"},
        {"+33 )1( 2", "33", "", "12"},
        {"+33 (1) 23|45-6", "33", "1", "23456"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(facade->extractCountryNumberFromCanonicalNumber(c[0]), c[1]) << c[0];
        EXPECT_EQ(facade->extractAreaCodeOrNatPrefixFromCanonicalNumber(c[0]), c[2]) << c[0];
        EXPECT_EQ(facade->extractExtensionFromCanonicalNumber(c[0]), c[3]) << c[0];
    }
}

TEST_F(CanonicalForms, GsmForm) {
    const std::string cases[][2] = {
        {"+46 (8) 12345678", "+46812345678"},
        // A national prefix written in parentheses is dropped, only when it is exactly the country's.
        {"+46 (0) 812345678", "+46812345678"},
        {"+46 (01) 2345", "+46012345"},
        // An unknown country has no national prefix known: the "0" stays.
        {"+999 (0) 1234", "+99901234"},
        // Blanks and separators a mask put into the subscriber part go.
        {"+46 (8) 12-34.5", "+46812345"},
        {"+46 (8)", "+468"},
        {"+46 8 123", "+46 8 123"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->formatToGSMCanonicalNumber(c[0]), c[1]) << c[0];

    // Typed: a local number comes back as the canonical conversion left it.
    KesDialRulesItem rules = facadeworld::stockholm(5);
    EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, "08 123 456 78", false), "+46812345678");
    EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, "1234", false), "1234");
    EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, "008 123 456 78", true), "+46812345678");
}

// From Paris, "00" abroad, "0" before an area code, the empty local rule in its own areas.
TEST_F(DialableNumber, ChoosesInternationalLongDistanceOrLocal) {
    KesDialRulesItem paris = facadeworld::paris(), otherAreas("FR", "0", 0, "2, 3", 0, "");
    const std::string twentyNine = "+33 (4) " + std::string(21, '7');
    struct Case {
        KesDialRulesItem* rules;
        std::string canonical, dialled;
    } const cases[] = {
        {&paris, "+33 (1) 40 12 34 56", "40123456"},
        {&paris, "+33 (4) 76 11 22 33", "0476112233"},
        {&paris, "+49 (89) 123456", "004989123456"},
        {&paris, "+33 40123456", "040123456"},     // no parentheses: no area code
        {&paris, "+33 (1 40123456", "0140123456"}, // "(" alone: every digit is subscriber
        {&paris, " 33 (1) 40123456", "40123456"},  // a leading blank reads as a "+"
        {&otherAreas, "+33 (3) 40123456", "40123456"},
        {&paris, "0140123456", "0140123456"}, // not canonical: passes through
        // Thirty characters or no subscriber number give nothing.
        {&paris, twentyNine, "04" + std::string(21, '7')},
        {&paris, twentyNine + "9", ""},
        {&paris, "+33 (1)", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(facade->makeDialableNumber(c.rules, c.canonical), c.dialled) << c.canonical;
    EXPECT_THROW(facade->makeDialableNumber(&paris, ""), std::out_of_range);
}

// An installation country the rules do not know: nothing can be dialled differently.
TEST_F(DialableNumber, UnknownInstallationCountryDialsTheCanonicalForm) {
    KesDialRulesItem unknown;
    unknown.setAreaCode("1");
    use("dialingrules.properties", "SE = 46:00:EF:0F::Sweden:P\n");
    EXPECT_EQ(facade->makeDialableNumber(&unknown, "+33 (1) 40123456"), "+33 (1) 40123456");
}

TEST_F(DialableNumber, PrefixNeededUnlessShortOrException) {
    KesDialRulesItem rules("FR", "0", 4, "1", 0, "112");
    const std::pair<const char*, bool> cases[] = {
        {"123", false},  // shorter than a local number: an extension
        {"1234", true},  // as long as a local number
        {"1125", false}, // an exception
        {"0112", true},  // exceptions are told by their leading digits
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->isPrefixNeeded(&rules, c.first), c.second) << c.first;
    EXPECT_FALSE(facade->isPrefixNeeded(nullptr, "040123456"));
}

// Stockholm: area code 8, outside line "0" (or none, or "9"), local numbers shorter than four digits.
TEST_F(PhoneNumber, DialledFormsOfTypedNumbers) {
    KesDialRulesItem local = facadeworld::stockholm(4), noPrefix("SE", "", 4, "8", 0, ""),
                     nine("SE", "9", 5, "8", 0, "");
    KesDialRulesItem exception112 = facadeworld::stockholm(4, "112"),
                     exception011 = facadeworld::stockholm(4, "011");
    KesDialRulesItem paris = facadeworld::paris();
    struct Case {
        KesDialRulesItem* rules;
        bool addPrefixOnly; // addExternalPrefix rather than makePhoneNumber
        std::string typed, dialled;
    } const cases[] = {
        {&local, false, "+46 (8) 123 456 78", "012345678"},
        {&local, false, "  + 46 8 12345678 ", "012345678"},
        {&local, false, "+46 31 123 456", "0031123456"},
        {&local, false, "+39 06 1234567", "00039061234567"},
        {&local, false, "08 123 456 78", "00812345678"},
        {&local, false, "123", "123"},   // an extension: no outside line
        {&local, false, "*12#", "*12#"}, // service codes are never converted nor prefixed
        {&local, false, "0123x", ""},
        {&local, false, "+39 " + std::string(30, '1'), ""},
        // Without an outside-line prefix only canonical input is converted.
        {&noPrefix, false, "08-123 456 78", "0812345678"},
        {&noPrefix, false, "+46 (8) 12345678", "12345678"},
        {&noPrefix, false, "08 12x", ""},
        {&noPrefix, true, " 08-123 456 78", "0812345678"},
        {&noPrefix, true, "+46 (31) 123456", "031123456"},
        // A number dialled with the outside-line prefix keeps it, and is not given a second one.
        {&exception112, false, "112", "112"},
        {&exception112, false, "+46 (8) 112", "0112"},
        {&exception011, false, "0112", "0112"},
        {&exception011, true, "0112", "0112"},
        {&exception011, true, "112", "112"},
        // addExternalPrefix checks only what is not canonical, and no service characters.
        {&nine, true, "+46 8 12345678", "912345678"},
        {&nine, true, "12345", "912345"},
        {&nine, true, "1234", "1234"},
        {&nine, true, "9123", "9123"},
        {&nine, true, "*12#0", "9*12#0"},
        {&nine, true, "08 12x", ""},
        {&nine, true, " +46 8 12345678", ""}, // not trimmed: a blank before "+" makes no phone number
    };
    for (const Case& c : cases) {
        const std::string dialled = c.addPrefixOnly ? facade->addExternalPrefix(c.rules, c.typed)
                                                    : facade->makePhoneNumber(c.rules, c.typed);
        EXPECT_EQ(dialled, c.dialled) << "typed '" << c.typed << "'";
    }
}

TEST_F(PhoneNumber, ServiceCharactersAndFailures) {
    KesDialRulesItem rules = facadeworld::stockholm(4);
    for (auto operation : {&KesNumberingRules::makePhoneNumber, &KesNumberingRules::addExternalPrefix})
        EXPECT_EQ((facade->*operation)(&rules, " 0***1"), " 0***1");
    EXPECT_EQ(facade->makePhoneNumber(&rules, "   "), ""); // only white space
    EXPECT_EQ(testhost::countLogged("KesNumberingRules::makePhoneNumber exception: "), 1);
    KesDialRulesItem noPrefix("SE", "", 4, "8", 0, "");
    EXPECT_EQ(facade->addExternalPrefix(&noPrefix, " \t "), "");
    EXPECT_EQ(testhost::countLogged("KesNumberingRules::addExternalPrefix exception: "), 1);
}
