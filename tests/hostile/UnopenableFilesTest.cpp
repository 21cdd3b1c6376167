// The store's default-file fallback, once for each of its three files: an installation file that is
// missing, or exists but cannot be read as a regular file, gives the file's info text once and the
// default file is read. A FIFO without a writer is never waited on. (The plans: EveryPlanTest.)
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace numbering;

TEST(UnopenableFiles, AreReadAsMissingAndTheDefaultFileIsUsed) {
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
            const std::string path = testconfig::directory() + file.file + ".properties";
            testconfig::clearAll();
            ::rmdir(path.c_str());
            // The store's other files exist, so that only the file under test falls back.
            testconfig::write("dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\n");
            testconfig::write("dlr_cnp_mask.properties", "");
            testconfig::write("specific_format_activation.properties", "");
            testconfig::remove(std::string(file.file) + ".properties");
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
