// Configuration files far larger than any real one, and installation files that cannot be read: the
// library loads what it can and keeps converting without taking the host down. (The property-file
// fuzzer feeds it broken ones.)
#include "Suite.h"

#include "numbering/KesConfigurationCheck.h"

#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// How many conversions give an answer in countries with a plan or a strategy of their own.
int convertEverything() {
    int answers = 0;
    for (const char* country :
         {"FR", "DE", "AT", "NL", "BE", "GB", "IE", "AU", "AR", "MX", "CO", "RU", "US", "CH", "NZ", "IT"}) {
        KesDialRulesItem site(country, "0", 4, "11", 0, "00");
        for (const char* number : {"01 23 45 67 89", "+49 (89) 123456", "0111543215678", "033001234567",
                                   "84951234567", "5551234", "*12#", "+"})
            for (const std::string& result : testhost::everyConversion(&site, number))
                answers += !result.empty();
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
    testconfig::reloadWith("tz310cnp_57.properties",
                           "OP_DEFAULT=" + megabyte + "\nOP_0000=" + megabyte + "\n");
    EXPECT_GT(convertEverything(), 0);
    EXPECT_EQ(KesNumberingConfig::getInstance()->getCountryNumber("DE"), "49");
    testconfig::clearAll();
    testconfig::reload();
}

namespace {

/// A file the library reads with a default beside it, how to tell that the default was read, and
/// the logger of its reader.
struct FileWithDefault {
    std::string name, defaultContent;
    std::function<bool()> defaultRead;
    std::string logger = "N9numbering18KesNumberingConfigE";
};

/// The store's three files and the file of every plan that reads area codes.
std::vector<FileWithDefault> filesWithDefaults() {
    std::vector<FileWithDefault> files = {
        {"dialingrules", "NL = 31:00:EF:0F::Netherlands:P\n",
         [] { return KesNumberingConfig::getInstance()->getCountryNumber("NL") == "31"; }},
        {"dlr_cnp_mask", "Mask_49_1 = default\n",
         [] { return KesNumberingConfig::getInstance()->getDefaultPattern("49") == "default"; }},
        {"specific_format_activation", "cnp_49 = off\n",
         [] { return !KesNumberingConfig::getInstance()->isSpecificFormatActiveForCountry("0"); }},
    };
    for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans())
        if (plan.readsAreaCodes()) {
            const std::string code = plan.callingCode;
            files.push_back({"tz310cnp_" + code, "Translate=1\nAC_0000=7\n",
                             [code] {
                                 Poco::AutoPtr<KesCNP> made(KesCNPFactory::CreateInstance(code));
                                 return dynamic_cast<KesAreaCodePlan&>(*made).areaCodeCount == 1;
                             },
                             "N9numbering" + std::to_string(7 + code.size()) + "KesCNP_" + code + "E"});
        }
    return files;
}

} // namespace

// A missing installation file, or one that cannot be read as a regular file (a FIFO is never waited
// on): one info line of its reader, then the default; the configuration check says so.
TEST(HostileConfiguration, UnreadableInstallationFilesFallBackOnTheirDefaults) {
    const struct {
        const char* whyNot; // null: missing
        bool (*make)(const std::string& path);
    } kinds[] = {
        {nullptr, [](const std::string&) { return true; }},
        {"it is a directory", [](const std::string& path) { return ::mkdir(path.c_str(), 0755) == 0; }},
        {"it is not a regular file",
         [](const std::string& path) { return ::mkfifo(path.c_str(), 0644) == 0; }},
        {"too many levels of symbolic links",
         [](const std::string& path) { return ::symlink(path.c_str(), path.c_str()) == 0; }},
        // Root reads a file without read permission all the same.
        {"permission denied",
         [](const std::string& path) {
             std::ofstream(path) << "FR = 33:00:EF:0F::France:P\n";
             return ::geteuid() != 0 && ::chmod(path.c_str(), 0) == 0;
         }},
    };
    const std::string directory = testconfig::directory();
    for (const FileWithDefault& file : filesWithDefaults())
        for (const auto& kind : kinds) {
            const std::string installation = file.name + ".properties",
                              fallback = file.name + "_default.properties";
            SCOPED_TRACE(installation + ": " + (kind.whyNot != nullptr ? kind.whyNot : "missing"));
            testconfig::useWorld();
            testconfig::write("specific_format_activation.properties", "");
            testconfig::remove(installation);
            testconfig::write(fallback, file.defaultContent);
            if (!kind.make(directory + installation))
                continue;
            testconfig::reload();
            testhost::clear();
            EXPECT_TRUE(file.defaultRead());
            const std::vector<std::string>& lines = testhost::lines();
            EXPECT_TRUE(lines.size() == 1 &&
                        lines[0].rfind("INFO " + file.logger + " - No specific ", 0) == 0)
                << ::testing::PrintToString(lines);

            const KesConfigurationReport report = KesConfigurationCheck::check(directory);
            std::string inUse;
            for (const KesConfigurationFile& checked : report.files)
                if (checked.installationFile == directory + installation)
                    inUse = checked.inUse;
            EXPECT_EQ(inUse, directory + fallback);
            std::vector<std::string> findings;
            for (const KesConfigurationFinding& finding : report.findings)
                if (finding.file == directory + installation)
                    findings.push_back(finding.message);
            EXPECT_EQ(findings,
                      kind.whyNot == nullptr
                          ? std::vector<std::string>()
                          : std::vector<std::string>{"cannot be opened (" + std::string(kind.whyNot) +
                                                     "): the library reads " + fallback + " instead"});
        }
    testconfig::clearAll();
    testconfig::reload();
}
