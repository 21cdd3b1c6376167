// The configuration check on broken configurations: each mistake an installer can make, with the
// finding it must give, on top of a small configuration that checks clean.
#include "TestConfig.h"

#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"

#include <Poco/AutoPtr.h>
#include <Poco/Exception.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <vector>

using namespace numbering;
using Severity = KesConfigurationFinding::Severity;

namespace {

const std::string RULES = "CA=1:011:EF:1F:F:Canada:\n"
                          "CO=57:00:EF:0F:60F:Colombia:P\n"
                          "DE=49:00:EF:0F::Germany:P\n"
                          "FR=33:00:EF:0F:0F:France:P\n"
                          "US=1:011:EF:1F:F:United States:P\n";
const std::string MASKS = "Mask_1_1=+C (A) xxx-xxxx\n"
                          "Mask_33_1=+C (A) x xx xx xx xx\n"
                          "Mask_49_1=+C (A) xxxxxx\n"
                          "Mask_57_1=+C (A) xxxxxxx\n";
const std::string SWITCHES = "cnp_1=on\ncnp_49=on\n";
const std::string AREA_CODES = "Translate=1\nAC_0000=30 Berlin\nAC_0001=301\nAC_0002=89 Muenchen\n";
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

void writeCleanWorld() {
    testconfig::clearAll();
    testconfig::write("dialingrules.properties", RULES);
    testconfig::write("dlr_cnp_mask.properties", MASKS);
    testconfig::write("specific_format_activation.properties", SWITCHES);
    testconfig::write("tz310cnp_49.properties", AREA_CODES);
    testconfig::write("tz310cnp_57.properties", OPERATORS);
}

std::string describe(const std::vector<KesConfigurationFinding>& findings) {
    std::ostringstream text;
    for (const KesConfigurationFinding& finding : findings)
        text << "\n  " << finding.file << ':' << finding.line << ": "
             << KesConfigurationFinding::severityName(finding.severity) << ": " << finding.message;
    return text.str();
}

class ConfigurationCheck : public ::testing::Test {
protected:
    void SetUp() override { writeCleanWorld(); }
    void TearDown() override {
        ::chmod(testconfig::directory().c_str(), 0755);
        testconfig::clearAll();
    }
};

struct BrokenConfiguration {
    const char* mistake;
    const char* file; // written with `content` on top of the clean configuration ("" removes it)
    std::string content;
    Severity severity; // the finding it must give
    const char* findingFile;
    int line;
    const char* message; // a piece of it
};

const BrokenConfiguration BROKEN[] = {
    // Dialing rules.
    {"key in lower case", "dialingrules.properties", RULES + "fr=33:00:EF:0F:0F:Francia:\n",
     Severity::Warning, "dialingrules.properties", 6, "fr is not two upper-case letters"},
    {"key the reader cannot give", "dialingrules.properties", RULES + "DF.x=1\n", Severity::Error,
     "dialingrules.properties", 6, "stops reading the dialing rules here, and the 2 rows after it"},
    {"fewer than six fields", "dialingrules.properties", RULES + "GB=44:00:EF\n", Severity::Error,
     "dialingrules.properties", 6, "GB has 3 fields"},
    {"calling code with a letter", "dialingrules.properties", RULES + "GB=4a:00:EF:0F::UK:P\n",
     Severity::Error, "dialingrules.properties", 6, "calling code '4a' is not one to three digits"},
    {"prefix with a letter", "dialingrules.properties", RULES + "GB=44:0O:EF:0F::UK:P\n", Severity::Error,
     "dialingrules.properties", 6, "international prefix '0O' is not digits"},
    {"long-distance prefix from a rule", "dialingrules.properties", RULES + "GB=44:00:EF:0EF::UK:P\n",
     Severity::Error, "dialingrules.properties", 6, "long-distance prefix '0E'"},
    {"letter that means nothing", "dialingrules.properties", RULES + "GB=44:00:EFI:0F::UK:P\n",
     Severity::Warning, "dialingrules.properties", 6, "international rule 'EFI': 'I' means nothing there"},
    {"name taken twice", "dialingrules.properties", RULES + "XF=34:00:EF:F:F:France:P\n", Severity::Warning,
     "dialingrules.properties", 6, "XF has the name 'France' of FR"},
    {"two P rows", "dialingrules.properties", RULES + "XF=33:00:EF:0F:0F:Republique:P\n", Severity::Warning,
     "dialingrules.properties", 6, "XF is a second P row for +33"},
    {"calling code without P row", "dialingrules.properties", RULES + "GB=44:00:EF:0F::UK:\n",
     Severity::Error, "dialingrules.properties", 6,
     "no row of +44 is marked P (GB): the library never recognises"},
    {"country a plan looks up", "dialingrules.properties",
     "CO=57:00:EF:0F:60F:Colombia:P\nDE=49:00:EF:0F::Germany:P\nUS=1:011:EF:1F:F:US:P\nXF=33:00:EF:0F:0F:F:"
     "P\n",
     Severity::Error, "dialingrules.properties", 0, "no row FR, which the plan of +33 looks up"},
    {"no dialing rules", "dialingrules.properties", "", Severity::Error, "dialingrules_default.properties", 0,
     "the library knows no country"},
    // Masks.
    {"only the French mask", "dlr_cnp_mask.properties", "Mask_33_1=+C (A) x xx xx xx xx\n", Severity::Error,
     "dlr_cnp_mask.properties", 0,
     "no mask for +49 (DE): without one a canonical number keeps only its "
     "subscriber number, so \"+49 (89) 123456\" becomes \"123456\""},
    {"mask key without suffix", "dlr_cnp_mask.properties", MASKS + "Mask_44=+C x\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5, "Mask_44 is skipped: no '_' follows"},
    {"mask key with a long code", "dlr_cnp_mask.properties", MASKS + "Mask_1234_1=+C x\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5,
     "'1234' (from the sixth character up to the next '_') is not one to three"},
    {"mask key elsewhere", "dlr_cnp_mask.properties", MASKS + "xxMask_3_1=+C x\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5, "the calling code from its sixth character: 'k'"},
    {"mask of an unknown code", "dlr_cnp_mask.properties", MASKS + "Mask_999_1=+C (A) x\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5, "no row of the dialing rules has calling code 999"},
    {"stray mask character", "dlr_cnp_mask.properties",
     "Mask_1_1=+C (A) x\nMask_33_1=+C (A) x\n"
     "Mask_49_1=+C (A) xxZ\nMask_57_1=+C (A) x\n",
     Severity::Warning, "dlr_cnp_mask.properties", 3, "'Z' is neither a mask letter"},
    {"shadowed mask", "dlr_cnp_mask.properties", MASKS + "Mask_49_2=+C (A) x\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5, "Mask_49_2 is never used: Mask_49_1 comes first"},
    {"empty mask", "dlr_cnp_mask.properties", MASKS + "Mask_49_0=\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5, "Mask_49_0 is empty"},
    // Specific-format switches.
    {"switch key skipped", "specific_format_activation.properties", SWITCHES + "cnp49=on\n",
     Severity::Warning, "specific_format_activation.properties", 3, "cnp49 is skipped"},
    {"switch of an unknown code", "specific_format_activation.properties", SWITCHES + "cnp_999=on\n",
     Severity::Warning, "specific_format_activation.properties", 3,
     "no P row of the dialing rules has calling"},
    {"value that is no switch", "specific_format_activation.properties", SWITCHES + "cnp_33=maybe\n",
     Severity::Warning, "specific_format_activation.properties", 3, "cnp_33 = maybe is not a switch"},
    {"switch off", "specific_format_activation.properties", SWITCHES + "cnp_33=OFF\n", Severity::Warning,
     "specific_format_activation.properties", 3,
     "switches nothing off: the library keeps only the first valid "
     "switch of the file (cnp_1)"},
    // Area codes.
    {"no Translate", "tz310cnp_49.properties", "AC_0000=30\n", Severity::Error, "tz310cnp_49.properties", 0,
     "no Translate key: the plan of +49 fails on it first"},
    {"Translate that is no switch", "tz310cnp_49.properties", "Translate=yes\nAC_0000=30\n",
     Severity::Warning, "tz310cnp_49.properties", 1, "Translate = yes switches translation off"},
    {"gap in the numbering", "tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0002=89\nAC_0003=40\n",
     Severity::Error, "tz310cnp_49.properties", 3,
     "AC_0001 is missing: the list ends at this gap, and the 2 codes"},
    {"value without digits", "tz310cnp_49.properties",
     "Translate=1\nAC_0000=30\nAC_0001=Muenchen 89\nAC_0002=40\n", Severity::Error, "tz310cnp_49.properties",
     3, "does not begin with a digit: the list ends here, and the 1 code"},
    {"shorter code after a longer one", "tz310cnp_49.properties", "Translate=1\nAC_0000=301\nAC_0001=30\n",
     Severity::Error, "tz310cnp_49.properties", 3,
     "area code 30 comes after 301 (AC_0000), which begins with it"},
    {"code listed twice", "tz310cnp_49.properties", AREA_CODES + "AC_0003=89\n", Severity::Warning,
     "tz310cnp_49.properties", 5, "area code 89 is listed already (AC_0002)"},
    {"code too long to dial", "tz310cnp_49.properties", AREA_CODES + "AC_0003=1234567890123456789012\n",
     Severity::Error, "tz310cnp_49.properties", 5,
     "has 22 digits, more than the 21 the library accepts for +49"},
    {"text glued to a code", "tz310cnp_49.properties", "Translate=1\nAC_0000=30a\n", Severity::Note,
     "tz310cnp_49.properties", 2, "only '30' counts"},
    {"index the list never reaches", "tz310cnp_49.properties", AREA_CODES + "AC_12=5\n", Severity::Warning,
     "tz310cnp_49.properties", 5, "AC_12 is never read"},
    {"area code file missing", "tz310cnp_49.properties", "", Severity::Error,
     "tz310cnp_49_default.properties", 0,
     "tz310cnp_49.properties does not exist either: the plan of +49 loads no area code"},
    // Colombian operators.
    {"gap in the operators", "tz310cnp_57.properties", "OP_DEFAULT=9\nOP_0000=5\nOP_0002=7\n",
     Severity::Error, "tz310cnp_57.properties", 3, "OP_0001 is missing"},
    {"operator without digits", "tz310cnp_57.properties", "OP_DEFAULT=9\nOP_0000=Movistar\n", Severity::Error,
     "tz310cnp_57.properties", 2, "does not begin with a digit"},
    {"default operator not digits", "tz310cnp_57.properties", "OP_DEFAULT=9a\nOP_0000=5\n", Severity::Error,
     "tz310cnp_57.properties", 1, "the default operator is dialled exactly as written"},
    {"operator file missing", "tz310cnp_57.properties", "", Severity::Warning, "tz310cnp_57.properties", 0,
     "missing: the Colombian dialing dials operator 9"},
    // Installation files beside their defaults.
    {"default with more countries", "dialingrules_default.properties", RULES + "GB=44:00:EF:0F::UK:P\n",
     Severity::Warning, "dialingrules.properties", 0,
     "lacks 1 of the countries of dialingrules_default.properties, which the library does not read: GB"},
    {"default with more area codes", "tz310cnp_49_default.properties", AREA_CODES + "AC_0003=40\n",
     Severity::Warning, "tz310cnp_49.properties", 0, "lacks 1 of the area codes of tz310cnp_49_default"},
    {"default beside an installation file", "dlr_cnp_mask_default.properties", MASKS, Severity::Note,
     "dlr_cnp_mask.properties", 0, "in use: dlr_cnp_mask_default.properties is not read at all"},
    // The text itself.
    {"NUL byte", "dlr_cnp_mask.properties", MASKS + std::string("Mask_7_1=+C\0x\n", 14), Severity::Error,
     "dlr_cnp_mask.properties", 5, "NUL byte"},
    {"binary content", "dlr_cnp_mask.properties", MASKS + "\x01\x02\x03\n", Severity::Error,
     "dlr_cnp_mask.properties", 5, "binary content (byte 0x01)"},
    {"key set twice", "dlr_cnp_mask.properties", "Mask_49_1=+C x\n" + MASKS, Severity::Warning,
     "dlr_cnp_mask.properties", 1, "Mask_49_1 is set again on line 4"},
    {"reference to no key", "dlr_cnp_mask.properties", MASKS + "Mask_7_1=${nothing}\n", Severity::Warning,
     "dlr_cnp_mask.properties", 5, "'${nothing}' names no key of this file"},
    {"circular reference", "tz310cnp_49.properties", "Translate=${AC_0000}\nAC_0000=${Translate}\n",
     Severity::Error, "tz310cnp_49.properties", 1,
     "Translate cannot be read (its references lead back to a key they are expanding)"},
    {"reference nested too deep", "tz310cnp_57.properties", OPERATORS + referenceChain(10), Severity::Error,
     "tz310cnp_57.properties", 4, "k0 cannot be read: its references are nested 10 deep"},
    {"references nested inside references", "tz310cnp_57.properties", OPERATORS + referenceChain(2),
     Severity::Warning, "tz310cnp_57.properties", 4, "k0: references inside referenced values (2 levels)"},
    {"references that multiply", "tz310cnp_57.properties", OPERATORS + exponentialReferences(),
     Severity::Error, "tz310cnp_57.properties", 11,
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
    const std::string path = testconfig::directory() + broken.findingFile;
    bool found = false;
    for (const KesConfigurationFinding& finding : report.findings)
        found = found ||
                (finding.severity == broken.severity && finding.file == path && finding.line == broken.line &&
                 finding.message.find(broken.message) != std::string::npos);
    EXPECT_TRUE(found) << broken.mistake << ": no " << KesConfigurationFinding::severityName(broken.severity)
                       << " '" << broken.message << "' at " << broken.findingFile << ':' << broken.line
                       << "; found:" << describe(report.findings);
    EXPECT_GE(report.status(), static_cast<int>(broken.severity));
}

INSTANTIATE_TEST_SUITE_P(Mistakes, BrokenConfigurationCheck, ::testing::ValuesIn(BROKEN));

TEST_F(ConfigurationCheck, CleanConfigurationGivesNoFinding) {
    const KesConfigurationReport report = KesConfigurationCheck::check(testconfig::directory());
    EXPECT_TRUE(report.findings.empty()) << describe(report.findings);
    EXPECT_EQ(report.status(), 0);
    // Every file the library reads, the installation file in use; no plan of its own for +1 and +33.
    std::vector<std::string> inUse;
    for (const KesConfigurationFile& file : report.files)
        inUse.push_back(file.inUse.substr(testconfig::directory().size()));
    EXPECT_EQ(inUse, (std::vector<std::string>{"dialingrules.properties", "dlr_cnp_mask.properties",
                                               "specific_format_activation.properties",
                                               "tz310cnp_49.properties", "tz310cnp_57.properties"}));
}

TEST_F(ConfigurationCheck, FilesThatCannotBeOpenedLeaveTheDefaultInUse) {
    testconfig::remove("dlr_cnp_mask.properties");
    testconfig::remove("tz310cnp_49.properties");
    testconfig::write("dlr_cnp_mask_default.properties", MASKS);
    ASSERT_EQ(::mkdir((testconfig::directory() + "dlr_cnp_mask.properties").c_str(), 0755), 0);
    ASSERT_EQ(::mkfifo((testconfig::directory() + "tz310cnp_49.properties").c_str(), 0644), 0);
    testconfig::write("tz310cnp_49_default.properties", AREA_CODES);

    // A FIFO without a writer must not block the check.
    const KesConfigurationReport report = KesConfigurationCheck::check(testconfig::directory());
    std::vector<std::string> messages;
    for (const KesConfigurationFinding& finding : report.findings)
        messages.push_back(finding.file.substr(testconfig::directory().size()) + ": " + finding.message);
    EXPECT_EQ(messages,
              (std::vector<std::string>{
                  "dlr_cnp_mask.properties: cannot be opened (it is a directory): the library reads "
                  "dlr_cnp_mask_default.properties instead",
                  "tz310cnp_49.properties: cannot be opened (it is not a regular file): the library "
                  "reads tz310cnp_49_default.properties instead"}));
    EXPECT_EQ(report.files[1].inUse, testconfig::directory() + "dlr_cnp_mask_default.properties");
}

// The reader's own limit on nested references, which the check foresees without expanding.
TEST_F(ConfigurationCheck, ForeseesWhereTheReaderGivesUpOnReferences) {
    for (int depth : {9, 10}) {
        std::istringstream text(referenceChain(depth));
        Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> reader(
            new Poco::Util::PropertyFileConfiguration(text));
        bool readerFails = false;
        try {
            reader->getString("k0");
        } catch (const Poco::Exception&) {
            readerFails = true;
        }
        testconfig::write("tz310cnp_57.properties", OPERATORS + referenceChain(depth));
        bool checkFails = false;
        for (const KesConfigurationFinding& finding :
             KesConfigurationCheck::check(testconfig::directory()).findings)
            checkFails = checkFails || finding.message.find("k0 cannot be read") != std::string::npos;
        EXPECT_EQ(checkFails, readerFails) << depth << " levels";
    }
}

TEST_F(ConfigurationCheck, ChangesNothingAndLeavesTheLoadedConfigurationAlone) {
    testconfig::write("dialingrules.properties", RULES + "fr=33:00:EF\n");
    KesNumberingConfig* loaded = KesNumberingConfig::getInstance();
    const std::string before = loaded->getCountryNumber("DE");
    struct stat rules;
    ::stat((testconfig::directory() + "dialingrules.properties").c_str(), &rules);

    EXPECT_EQ(KesConfigurationCheck::check(testconfig::directory()).status(), 2);

    struct stat after;
    ::stat((testconfig::directory() + "dialingrules.properties").c_str(), &after);
    EXPECT_EQ(after.st_mtime, rules.st_mtime);
    EXPECT_EQ(KesNumberingConfig::instance, loaded);
    EXPECT_EQ(loaded->getCountryNumber("DE"), before);
    testconfig::reload();
}
