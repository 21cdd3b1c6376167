#ifndef NUMBERING_TESTS_CNP_AREACODEPLANFILES_H
#define NUMBERING_TESTS_CNP_AREACODEPLANFILES_H

// Plan files of the area-code plans, written into the test program's configuration directory.

#include "TestConfig.h"

#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <initializer_list>
#include <string>

namespace areacodeplanfiles {

inline std::string installationFile(const std::string& callingCode) {
    return "tz310cnp_" + callingCode + ".properties";
}

inline std::string defaultFile(const std::string& callingCode) {
    return "tz310cnp_" + callingCode + "_default.properties";
}

/// "AC_0000=first\nAC_0001=second\n..." for `codes` in order.
inline std::string areaCodeLines(std::initializer_list<const char*> codes) {
    std::string lines;
    int index = 0;
    for (const char* code : codes) {
        char key[16];
        std::snprintf(key, sizeof key, "AC_%04d=", index++);
        lines += key + std::string(code) + "\n";
    }
    return lines;
}

/// The installation plan file of `callingCode`: "Translate" (when `translate` is not null) and
/// the area codes.
inline void writePlanFile(const std::string& callingCode, const char* translate,
                          std::initializer_list<const char*> codes) {
    std::string content = translate != nullptr ? std::string("Translate=") + translate + "\n" : std::string();
    testconfig::write(installationFile(callingCode), content + areaCodeLines(codes));
}

/// Standard dialing rules, loaded, and no plan file at all.
class AreaCodePlanTest : public ::testing::Test {
protected:
    void SetUp() override {
        testconfig::useStandardWorld();
        numbering::KesNumberingConfig::getInstance();
    }
    void TearDown() override { testconfig::reload(); }
};

} // namespace areacodeplanfiles

#endif
