// Configuration files far larger than any real one, and installation files that cannot be read: the
// library loads what it can and keeps converting without taking the host down. (The property-file
// fuzzer feeds it broken ones.)
#include "Suite.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Every public conversion at an installation in countries with a plan or a strategy of their own.
/// Returns how many conversions gave a non-empty answer.
int convertEverything() {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    int answers = 0;
    for (const char* country :
         {"FR", "DE", "AT", "NL", "BE", "GB", "IE", "AU", "AR", "MX", "CO", "RU", "US", "CH", "NZ", "IT"}) {
        KesDialRulesItem site(country, "0", 4, "11", 0, "00");
        for (const char* number : {"01 23 45 67 89", "+49 (89) 123456", "0111543215678", "033001234567",
                                   "84951234567", "5551234", "*12#", "+"}) {
            answers += !rules->makeCanonicalNumber(&site, number, "").empty() +
                       !rules->makeCanonicalNumber(&site, number, "", true).empty() +
                       !rules->makePhoneNumber(&site, number).empty() +
                       !rules->addExternalPrefix(&site, number).empty() +
                       !rules->makeGSMCanonicalNumber(&site, number, false).empty();
            Poco::AutoPtr<KesClid> clid(rules->makeClid(&site, number));
            answers += !clid.isNull();
        }
    }
    return answers;
}

} // namespace

// A hundred thousand rows and area codes, then keys and values of a megabyte.
TEST(HostileConfiguration, HugeFiles) {
    testconfig::clearAll();
    std::string rules(testconfig::STANDARD_DIALING_RULES), areaCodes = "Translate=1\n";
    for (int i = 0; i < 100000; ++i) {
        rules += "Z" + std::to_string(i) + " = " + std::to_string(i % 1000) + ":00:EF:0F::Land " +
                 std::to_string(i) + ":P\n";
        areaCodes += "AC_" + std::to_string(10000 + i).substr(1) + "=" + std::to_string(100 + i % 900) + "\n";
    }
    testconfig::write("dialingrules.properties", rules);
    for (const char* file : {"tz310cnp_49.properties", "tz310cnp_44.properties", "tz310cnp_54.properties"})
        testconfig::write(file, areaCodes);
    testconfig::reload();
    EXPECT_GT(convertEverything(), 0);
    EXPECT_EQ(KesNumberingConfig::getInstance()->getCountryNumber("FR"), "33");

    const std::string megabyte(1 << 20, '7');
    testconfig::write("dialingrules.properties", std::string(testconfig::STANDARD_DIALING_RULES) +
                                                     "ZZ = " + megabyte + ":" + megabyte + ":EF\n" +
                                                     megabyte + " = 1\n");
    testconfig::write("dlr_cnp_mask.properties",
                      "Mask_33_1 = " + megabyte + "\nMask_" + megabyte + "_1 = x\n");
    testconfig::write("tz310cnp_49.properties", "Translate=1\nAC_0000=" + megabyte + "\n");
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT=" + megabyte + "\nOP_0000=" + megabyte + "\n");
    testconfig::reload();
    EXPECT_GT(convertEverything(), 0);
    EXPECT_EQ(KesNumberingConfig::getInstance()->getCountryNumber("DE"), "49");
    testconfig::clearAll();
    testconfig::reload();
}

// The store's default-file fallback, once for each of its three files: an installation file that is
// missing, or exists but cannot be read as a regular file, gives the file's info text once and the
// default file is read. A FIFO without a writer is never waited on. (The plans: EveryPlanTest.)
TEST(HostileConfiguration, UnopenableFilesAreReadAsMissingAndTheDefaultFileIsUsed) {
    const struct {
        const char* file;
        const char* defaultContent;
        const char* text;
        bool (*defaultRead)(KesNumberingConfig*);
    } files[] = {
        {"dialingrules", "NL = 31:00:EF:0F::Netherlands:P\n", "No specific dialing rules configuration file",
         [](KesNumberingConfig* c) { return c->getCountryNumber("NL") == "31"; }},
        {"dlr_cnp_mask", "Mask_49_1 = default\n", "No specific dialing rules configuration file",
         [](KesNumberingConfig* c) { return c->getDefaultPattern("49") == "default"; }},
        {"specific_format_activation", "cnp_49 = off\n", "No specific format activation configuration file",
         [](KesNumberingConfig* c) { return !c->isSpecificFormatActiveForCountry("0"); }},
    };
    const struct {
        const char* kind;
        bool (*make)(const std::string& file);
    } kinds[] = {
        {"missing", [](const std::string&) { return true; }},
        {"directory", [](const std::string& file) { return ::mkdir(file.c_str(), 0755) == 0; }},
        {"FIFO", [](const std::string& file) { return ::mkfifo(file.c_str(), 0644) == 0; }},
        {"symbolic link loop",
         [](const std::string& file) { return ::symlink(file.c_str(), file.c_str()) == 0; }},
        // Root reads a file without read permission all the same.
        {"no read permission",
         [](const std::string& file) {
             testconfig::write(file.substr(testconfig::directory().size()), "FR = 33:00:EF:0F::France:P\n");
             return ::geteuid() != 0 && ::chmod(file.c_str(), 0) == 0;
         }},
    };
    for (const auto& file : files)
        for (const auto& kind : kinds) {
            SCOPED_TRACE(std::string(file.file) + ": " + kind.kind);
            const std::string name = std::string(file.file) + ".properties",
                              path = testconfig::directory() + name;
            testconfig::clearAll();
            ::rmdir(path.c_str());
            // The store's other files exist, so that only the file under test falls back.
            testconfig::write("dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\n");
            testconfig::write("dlr_cnp_mask.properties", "");
            testconfig::write("specific_format_activation.properties", "");
            testconfig::remove(name);
            testconfig::write(std::string(file.file) + "_default.properties", file.defaultContent);
            if (!kind.make(path))
                continue;
            testconfig::reload();
            testhost::clear();
            EXPECT_TRUE(file.defaultRead(KesNumberingConfig::getInstance()));
            EXPECT_EQ(
                testhost::countLogged(std::string("INFO N9numbering18KesNumberingConfigE - ") + file.text),
                1);
            ::rmdir(path.c_str());
        }
    testconfig::clearAll();
    testconfig::reload();
}
