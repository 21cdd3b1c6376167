#ifndef NUMBERING_TESTS_CNP_PLANWORLD_H
#define NUMBERING_TESTS_CNP_PLANWORLD_H

// The world the plan tests run in: the standard dialing rules and one plan file per plan that reads
// area codes, written into the test program's configuration directory.

#include "TestConfig.h"

#include "numbering/KesAreaCodePlan.h"
#include "numbering/KesCNPFactory.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <initializer_list>
#include <ostream>
#include <string>

namespace planworld {

/// Every calling code with a plan.
const char* const PLAN_CODES[] = {"1",  "7",  "31", "32", "33", "41", "43", "44",
                                  "49", "52", "54", "57", "61", "64", "353"};

/// "N9numbering9KesCNP_49E": the logger of a plan class.
inline std::string loggerOf(const std::string& className) {
    return "N9numbering" + std::to_string(className.size()) + className + "E";
}

const char* const NO_FILE = "No specific dialing rules configuration file";
const char* const IRELAND_UNOPENABLE = "No specific dialing rules configuration for Irelandd";
const char* const IRELAND_NOT_FOUND = "No specific dialing rules configuration for Ireland";
const char* const ARGENTINA = "No specific configuration file for Argentina";

/// A plan that reads its area codes from "tz310cnp_<code>.properties": the texts it logs when that
/// file cannot be opened and when it is missing (each plan's own, slips included: 44 names Austria,
/// 353 writes "Irelandd"), whether it reads "Translate", and the codes the shared world gives it.
const struct FilePlan {
    const char* code;
    const char* textWhenUnopenable;
    const char* textWhenNotFound;
    bool readsTranslate;
    std::initializer_list<const char*> areaCodes;
} FILE_PLANS[] = {
    {"49", NO_FILE, NO_FILE, true, {"30", "89", "221", "711"}},
    {"43", "No specific configuration file for Austria", NO_FILE, true, {"1", "316", "662"}},
    {"31", "No specific configuration file for Netherlands", NO_FILE, true, {"20", "10"}},
    {"32", "No specific configuration file for Belgium", NO_FILE, false, {"2", "9"}},
    {"44", "No specific configuration file for Austria", NO_FILE, true, {"20", "161"}},
    {"353", IRELAND_UNOPENABLE, IRELAND_NOT_FOUND, true, {"1"}},
    {"54", ARGENTINA, ARGENTINA, true, {"11", "351"}},
    {"61", "No specific configuration file for Australia", NO_FILE, true, {"2", "3"}},
    {"52", "No specific configuration file for Mexico", NO_FILE, true, {"2222"}},
};

inline std::string installationFile(const std::string& code) {
    return "tz310cnp_" + code + ".properties";
}
inline std::string defaultFile(const std::string& code) {
    return "tz310cnp_" + code + "_default.properties";
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

/// The installation plan file of `code`: "Translate" (unless null) and the area codes.
inline void writePlanFile(const std::string& code, const char* translate,
                          std::initializer_list<const char*> codes) {
    std::string head = translate != nullptr ? std::string("Translate=") + translate + "\n" : std::string();
    testconfig::write(installationFile(code), head + areaCodeLines(codes));
}

/// A new plan of `code`, owned by the pointer.
inline Poco::AutoPtr<numbering::KesCNP> plan(const std::string& code) {
    return Poco::AutoPtr<numbering::KesCNP>(numbering::KesCNPFactory::CreateInstance(code));
}
inline Poco::AutoPtr<numbering::KesAreaCodePlan> filePlan(const std::string& code) {
    return Poco::AutoPtr<numbering::KesAreaCodePlan>(
        dynamic_cast<numbering::KesAreaCodePlan*>(numbering::KesCNPFactory::CreateInstance(code)));
}

/// An installation: country, outside-line prefix, local number length, own area code and the
/// beginning of its exception numbers.
struct Site {
    const char* country;
    const char* extPrefix;
    int localLength;
    const char* ownArea;
    const char* exception = "";

    std::string callingCode() const {
        return numbering::KesNumberingConfig::getInstance()->getCountryNumber(country);
    }
    /// The canonical number of `typed` by a new plan of the country.
    std::string convert(const std::string& typed) const {
        numbering::KesDialRulesItem rules(country, extPrefix, localLength, ownArea, 0, exception);
        return plan(callingCode())->dlr_Country_MakeCanonicalNumber(typed, &rules);
    }
    friend std::ostream& operator<<(std::ostream& out, const Site& site) {
        return out << site.country << " at outside-line prefix '" << site.extPrefix << "', own area '"
                   << site.ownArea << "'";
    }
};

/// Standard dialing rules and, unless `writesFiles` is cleared before SetUp, the shared plan files.
class PlanTest : public ::testing::Test {
protected:
    void SetUp() override {
        testconfig::useStandardWorld();
        if (writesFiles)
            for (const FilePlan& p : FILE_PLANS)
                writePlanFile(p.code, "1", p.areaCodes);
        numbering::KesNumberingConfig::getInstance();
    }
    void TearDown() override { testconfig::reload(); }
    bool writesFiles = true;
};

} // namespace planworld

#endif
