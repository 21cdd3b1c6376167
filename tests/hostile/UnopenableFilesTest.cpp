// Installation files that exist but cannot be read as a regular file count as files that cannot be
// opened: the reader logs its text for that case and reads the default file. A FIFO without a
// writer is never waited on. (The plans open their files the same way: see the plan file tests.)
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace numbering;

TEST(UnopenableFiles, AreReadAsUnopenableAndTheDefaultFileIsUsed) {
    const std::string path = testconfig::directory() + "dialingrules.properties";
    const struct {
        const char* kind;
        bool (*make)(const std::string& file);
    } kinds[] = {
        {"directory", [](const std::string& file) { return ::mkdir(file.c_str(), 0755) == 0; }},
        {"FIFO", [](const std::string& file) { return ::mkfifo(file.c_str(), 0644) == 0; }},
        {"symbolic link loop",
         [](const std::string& file) { return ::symlink(file.c_str(), file.c_str()) == 0; }},
        // Root reads a file without read permission all the same.
        {"no read permission",
         [](const std::string& file) {
             testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
             return ::geteuid() != 0 && ::chmod(file.c_str(), 0) == 0;
         }},
    };
    for (const auto& kind : kinds) {
        SCOPED_TRACE(kind.kind);
        testconfig::clearAll();
        ::rmdir(path.c_str());
        testconfig::write("dialingrules_default.properties", "NL = 31:00:EF:0F::Netherlands:P\n");
        // The store's other files exist, so that only the file under test falls back.
        testconfig::write("dlr_cnp_mask.properties", "");
        testconfig::write("specific_format_activation.properties", "");
        if (!kind.make(path))
            continue;
        testconfig::reload();
        testhost::Tracing off(false);
        EXPECT_EQ(KesNumberingConfig::getInstance()->getCountryNumber("NL"), "31");
        EXPECT_EQ(testhost::countLogged(
                      "INFO N9numbering18KesNumberingConfigE - No specific dialing rules configuration file"),
                  1);
    }
    testconfig::clearAll();
    ::rmdir(path.c_str());
    testconfig::reload();
}
