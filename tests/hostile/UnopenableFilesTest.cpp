// Installation files that exist but cannot be read as a regular file count as files that cannot be
// opened: the reader logs its text for that case and reads the default file. A FIFO without a
// writer is never waited on.
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNP_31.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace numbering;

namespace {

struct Unopenable {
    const char* kind;
    bool (*make)(const std::string& path); // false when the file could not be made
    bool readableByRoot;
};

const Unopenable KINDS[] = {
    {"directory", [](const std::string& path) { return ::mkdir(path.c_str(), 0755) == 0; }, false},
    {"FIFO", [](const std::string& path) { return ::mkfifo(path.c_str(), 0644) == 0; }, false},
    {"no read permission",
     [](const std::string& path) {
         testconfig::write(path.substr(testconfig::directory().size()), "Translate=1\nAC_0000=2\n");
         return ::chmod(path.c_str(), 0) == 0;
     },
     true},
    {"symbolic link loop", [](const std::string& path) { return ::symlink(path.c_str(), path.c_str()) == 0; },
     false}};

/// A reader of an installation file and its default, and how to see that it read the default.
struct Reader {
    const char* installationFile;
    const char* defaultFile;
    const char* defaultContent;
    const char* infoLine; // the text for a file that cannot be opened, with its logger
    bool (*readsDefault)();
};

const Reader READERS[] = {
    {"dialingrules.properties", "dialingrules_default.properties", "NL = 31:00:EF:0F::Netherlands:P\n",
     "INFO N9numbering18KesNumberingConfigE - No specific dialing rules configuration file",
     [] { return KesNumberingConfig::getInstance()->getCountryNumber("NL") == "31"; }},
    {"tz310cnp_31.properties", "tz310cnp_31_default.properties", "Translate=1\nAC_0000=20\n",
     "INFO N9numbering9KesCNP_31E - No specific configuration file for Netherlands",
     [] { return Poco::AutoPtr<KesCNP_31>(new KesCNP_31())->areaCodeCount == 1; }}};

} // namespace

TEST(UnopenableFiles, AreReadAsUnopenableAndTheDefaultFileIsUsed) {
    for (const Unopenable& kind : KINDS) {
        if (kind.readableByRoot && ::geteuid() == 0)
            continue; // root reads the file all the same
        for (const Reader& reader : READERS) {
            SCOPED_TRACE(std::string(reader.installationFile) + " as a " + kind.kind);
            testconfig::clearAll();
            // The store's other files exist, so that only the file under test falls back.
            testconfig::write("dlr_cnp_mask.properties", "");
            testconfig::write("specific_format_activation.properties", "");
            testconfig::write(reader.defaultFile, reader.defaultContent);
            ASSERT_TRUE(kind.make(testconfig::directory() + reader.installationFile));
            testconfig::reload();
            testhost::Tracing off(false);
            EXPECT_TRUE(reader.readsDefault());
            EXPECT_EQ(testhost::countLogged(reader.infoLine), 1);
        }
    }
    testconfig::clearAll();
    testconfig::reload();
}
