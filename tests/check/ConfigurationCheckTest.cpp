// Each mistake an installer can make, on top of a configuration that checks clean, and its finding.
#include "Suite.h"

#include "numbering/KesConfigurationCheck.h"

#include <sstream>
using Severity = KesConfigurationFinding::Severity;

namespace {

constexpr Severity NOTE = Severity::Note, WARNING = Severity::Warning, ERROR = Severity::Error;
const char* const RULES_FILE = "dialingrules.properties";
const char* const MASKS_FILE = "dlr_cnp_mask.properties";
const char* const SWITCHES_FILE = "specific_format_activation.properties";
const char* const AREA_FILE = "tz310cnp_49.properties";
const char* const OPERATORS_FILE = "tz310cnp_57.properties";

const std::string RULES =
    "CA=1:011:EF:1F:F:Canada:\nCO=57:00:EF:0F:60F:Colombia:P\nDE=49:00:EF:0F::Germany:P\n"
    "FR=33:00:EF:0F:0F:France:P\nUS=1:011:EF:1F:F:United States:P\n";
const std::string MASKS = "Mask_1_1=+C (A) xxx-xxxx\nMask_33_1=+C (A) x xx xx xx xx\n"
                          "Mask_49_1=+C (A) xxxxxx\nMask_57_1=+C (A) xxxxxxx\n";
const std::string SWITCHES = "cnp_1=on\ncnp_49=on\n";
// 301234567890123456789 is as long as an area code of +49 may be.
const std::string AREA_CODES =
    "Translate=1\nAC_0000=30 Berlin\nAC_0001=301234567890123456789\nAC_0002=89 Muenchen\n";
const std::string OPERATORS = "OP_DEFAULT=9\nOP_0000=5\nOP_0001=9\n";

/// A reference nested `depth` deep: k0 names k1, ..., the last names a plain value.
std::string referenceChain(int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += "k" + std::to_string(i) + "=${k" + std::to_string(i + 1) + "}\n";
    return text + "k" + std::to_string(depth) + "=1\n";
}

/// Values that double ten times per level, seven levels deep: 20 million characters.
std::string exponentialReferences() {
    std::string text = "x0=ab\n";
    for (int level = 1; level <= 7; ++level) {
        text += "x" + std::to_string(level) + "=";
        for (int i = 0; i < 10; ++i)
            text += "${x" + std::to_string(level - 1) + "}";
        text += "\n";
    }
    return text;
}

std::string describe(const std::vector<KesConfigurationFinding>& findings) {
    std::ostringstream text;
    for (const KesConfigurationFinding& finding : findings)
        text << "\n  " << finding.file << ':' << finding.line << ": "
             << KesConfigurationFinding::severityName(finding.severity) << ": " << finding.message;
    return text.str();
}

class ConfigurationCheck : public testconfig::WorldTest {
protected:
    ConfigurationCheck()
        : WorldTest(RULES, {{MASKS_FILE, MASKS},
                            {SWITCHES_FILE, SWITCHES},
                            {AREA_FILE, AREA_CODES},
                            {OPERATORS_FILE, OPERATORS}}) {}
};

/// One row per path of the check that gives a finding.
struct BrokenConfiguration {
    const char* file; // written with `content` on top of the clean configuration ("" removes it)
    std::string content;
    Severity severity; // the finding it must give
    int line;
    const char* message;               // a piece of it
    const char* findingFile = nullptr; // when not `file`
};

const BrokenConfiguration BROKEN[] = {
    {RULES_FILE, RULES + "fr=33:00:EF:0F:0F:Francia:\n", WARNING, 6, "fr is not two upper-case letters"},
    {RULES_FILE, RULES + "DF.x=1\n", ERROR, 6,
     "stops reading the dialing rules here, and the 2 rows after it"},
    {RULES_FILE, RULES + "GB=44:00:EF\n", ERROR, 6, "GB has 3 fields"},
    {RULES_FILE, RULES + "GB=4a:00:EF:0F::UK:P\n", ERROR, 6, "calling code '4a' is not one to three digits"},
    {RULES_FILE, RULES + "GB=4412:00:EF:0F::UK:P\n", ERROR, 6,
     "calling code '4412' is not one to three digits"},
    {RULES_FILE, RULES + "GB=44:0O:EF:0F::UK:P\n", ERROR, 6, "international prefix '0O' is not digits"},
    {RULES_FILE, RULES + "GB=44:00:EF:0EF::UK:P\n", ERROR, 6, "long-distance prefix '0E'"},
    {RULES_FILE, RULES + "GB=44:00:EFI:0F::UK:P\n", WARNING, 6,
     "international rule 'EFI': 'I' means nothing there"},
    {RULES_FILE, RULES + "XF=34:00:EF:F:F:France:P\n", WARNING, 6, "XF has the name 'France' of FR"},
    {RULES_FILE, RULES + "XF=33:00:EF:0F:0F:Republique:P\n", WARNING, 6, "XF is a second P row for +33"},
    {RULES_FILE, RULES + "GB=44:00:EF:0F::UK:\n", ERROR, 6,
     "no row of +44 is marked P (GB): the library never recognises"},
    {RULES_FILE,
     "CO=57:00:EF:0F:60F:Colombia:P\nDE=49:00:EF:0F::Germany:P\n"
     "US=1:011:EF:1F:F:US:P\nXF=33:00:EF:0F:0F:F:P\n", // +33 without FR
     ERROR, 0, "no row FR, which the plan of +33 looks up"},
    {MASKS_FILE, MASKS + "Mask_44=+C x\n", WARNING, 5, "Mask_44 is skipped: no '_' follows"},
    {MASKS_FILE, MASKS + "Mask_1234_1=+C x\n", WARNING, 5,
     "'1234' (from the sixth character up to the next '_') is not one to three"},
    {MASKS_FILE, MASKS + "xxMask_3_1=+C x\n", WARNING, 5, "the calling code from its sixth character: 'k'"},
    {MASKS_FILE, MASKS + "Mask_999_1=+C (A) x\n", WARNING, 5,
     "no row of the dialing rules has calling code 999"},
    {MASKS_FILE, "Mask_1_1=+C (A) x\nMask_33_1=+C (A) x\nMask_49_1=+C (A) xxZ\nMask_57_1=+C (A) x\n", WARNING,
     3, "'Z' is neither a mask letter"},
    {MASKS_FILE, MASKS + "Mask_49_2=+C (A) x\n", WARNING, 5,
     "Mask_49_2 is never used: Mask_49_1 comes first"},
    {MASKS_FILE, MASKS + "Mask_49_0=\n", WARNING, 5, "Mask_49_0 is empty"},
    {SWITCHES_FILE, SWITCHES + "cnp49=on\n", WARNING, 3, "cnp49 is skipped"},
    {SWITCHES_FILE, SWITCHES + "cnp_999=on\n", WARNING, 3, "no P row of the dialing rules has calling"},
    {SWITCHES_FILE, SWITCHES + "cnp_33=maybe\n", WARNING, 3, "cnp_33 = maybe is not a switch"},
    {AREA_FILE, "AC_0000=30\n", ERROR, 0, "no Translate key: the plan of +49 fails on it first"},
    {AREA_FILE, "Translate=yes\nAC_0000=30\n", WARNING, 1, "Translate = yes switches translation off"},
    {AREA_FILE, "Translate=1\nAC_0000=30\nAC_0002=89\nAC_0003=40\n", ERROR, 3,
     "AC_0001 is missing: the list ends at this gap, and the 2 codes"},
    {AREA_FILE, "Translate=1\nAC_0000=30\nAC_0001=Muenchen 89\nAC_0002=40\n", ERROR, 3,
     "does not begin with a digit: the list ends here, and the 1 code"},
    {AREA_FILE, "Translate=1\nAC_0000=301\nAC_0001=30\n", ERROR, 3,
     "area code 30 comes after 301 (AC_0000), which begins with it"},
    {AREA_FILE, AREA_CODES + "AC_0003=89\n", WARNING, 5, "area code 89 is listed already (AC_0002)"},
    {AREA_FILE, AREA_CODES + "AC_0003=1234567890123456789012\n", ERROR, 5,
     "has 22 digits, more than the 21 the library accepts for +49"},
    {AREA_FILE, "Translate=1\nAC_0000=30a\n", NOTE, 2, "only '30' counts"},
    {AREA_FILE, AREA_CODES + "AC_12=5\n", WARNING, 5, "AC_12 is never read"},
    {RULES_FILE, "# no row yet\n", ERROR, 0, "no row (a two-letter country code"},
    {RULES_FILE, "fr=33:00:EF:0F:0F:France:P\nDE=4x:00:EF:0F::Germany:P\n", ERROR, 0,
     "no usable row (a two-letter country code = calling code:international prefix:...): the library knows "
     "no "
     "country"},
    {OPERATORS_FILE, "OP_DEFAULT=9a\nOP_0000=5\n", ERROR, 1,
     "the default operator is dialled exactly as written"},
    // Missing files, with and without a default; installation files beside their defaults.
    {AREA_FILE, "", ERROR, 0,
     "tz310cnp_49.properties does not exist either: the plan of +49 loads no area code",
     "tz310cnp_49_default.properties"},
    {OPERATORS_FILE, "", WARNING, 0, "missing: the Colombian dialing dials operator 9"},
    {"dialingrules_default.properties", RULES + "GB=44:00:EF:0F::UK:P\n", WARNING, 0,
     "lacks 1 of the countries of dialingrules_default.properties, which the library does not read: GB",
     RULES_FILE},
    {MASKS_FILE, MASKS + std::string("Mask_7_1=+C\0x\n", 14), ERROR, 5, "NUL byte"},
    {MASKS_FILE, MASKS + "\x01\x02\x03\n", ERROR, 5, "binary content (byte 0x01)"},
    {MASKS_FILE, "Mask_49_1=+C x\n" + MASKS, WARNING, 1, "Mask_49_1 is set again on line 4"},
    // A line ending in a backslash goes on over the next, which sets no key of its own.
    {MASKS_FILE, MASKS + "Mask_7_1=+C x\\\n Mask_7_1=x\n", WARNING, 5, "is neither a mask letter"},
    {MASKS_FILE, MASKS + "Mask_7_1=${nothing}\n", WARNING, 5, "'${nothing}' names no key of this file"},
    {AREA_FILE, "Translate=${AC_0000}\nAC_0000=${Translate}\n", ERROR, 1,
     "Translate cannot be read (its references lead back to a key they are expanding)"},
    {OPERATORS_FILE, OPERATORS + referenceChain(10), ERROR, 4,
     "k0 cannot be read: its references are nested 10 deep"},
    {OPERATORS_FILE, OPERATORS + referenceChain(2), WARNING, 4,
     "k0: references inside referenced values (2 levels)"},
    {OPERATORS_FILE, OPERATORS + exponentialReferences(), ERROR, 11,
     "x7 cannot be read: its nested references would expand to more than"},
};

class BrokenConfigurationCheck : public ConfigurationCheck,
                                 public ::testing::WithParamInterface<BrokenConfiguration> {};

} // namespace

TEST_P(BrokenConfigurationCheck, GivesItsFinding) {
    const BrokenConfiguration& broken = GetParam();
    if (broken.content.empty())
        testconfig::remove(broken.file);
    else
        testconfig::write(broken.file, broken.content);
    const KesConfigurationReport report = KesConfigurationCheck::check(testconfig::directory());
    const std::string file = broken.findingFile != nullptr ? broken.findingFile : broken.file;
    bool found = false;
    for (const KesConfigurationFinding& finding : report.findings)
        found = found ||
                (finding.severity == broken.severity && finding.file == testconfig::directory() + file &&
                 finding.line == broken.line && finding.message.find(broken.message) != std::string::npos);
    EXPECT_TRUE(found) << "no " << KesConfigurationFinding::severityName(broken.severity) << " '"
                       << broken.message << "' at " << file << ':' << broken.line
                       << "; found:" << describe(report.findings);
    EXPECT_GE(report.status(), static_cast<int>(broken.severity));
}

INSTANTIATE_TEST_SUITE_P(Mistakes, BrokenConfigurationCheck, ::testing::ValuesIn(BROKEN));

TEST_F(ConfigurationCheck, CleanConfigurationGivesNoFinding) {
    const KesConfigurationReport report = KesConfigurationCheck::check(testconfig::directory());
    EXPECT_TRUE(report.findings.empty()) << describe(report.findings);
    EXPECT_EQ(report.status(), 0);
}

// A text editor's encodings: one error that names it, none about the keys the reader garbles.
TEST_F(ConfigurationCheck, FileInAnotherEncodingGivesOneErrorNamingIt) {
    const std::pair<const char*, std::string> ENCODED[] = {
        {"UTF-16 (little-endian)", testhost::utf16(MASKS)},
        {"UTF-16 (big-endian, without a byte-order mark)", testhost::widened(MASKS, 2, true)},
        {"UTF-32 (little-endian)", std::string("\xFF\xFE\0\0", 4) + testhost::widened(MASKS, 4, false)},
        {"UTF-8 byte-order mark", "\xEF\xBB\xBF" + MASKS},
    };
    for (const auto& [encoding, bytes] : ENCODED) {
        testconfig::write(MASKS_FILE, bytes);
        std::vector<KesConfigurationFinding> aboutMasks;
        for (const KesConfigurationFinding& finding :
             KesConfigurationCheck::check(testconfig::directory()).findings)
            if (finding.file == testconfig::directory() + MASKS_FILE)
                aboutMasks.push_back(finding);
        ASSERT_EQ(aboutMasks.size(), 1u) << encoding << describe(aboutMasks);
        EXPECT_EQ(aboutMasks[0].severity, ERROR);
        EXPECT_NE(aboutMasks[0].message.find(encoding), std::string::npos) << aboutMasks[0].message;
    }
}
