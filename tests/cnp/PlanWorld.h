#ifndef NUMBERING_TESTS_CNP_PLANWORLD_H
#define NUMBERING_TESTS_CNP_PLANWORLD_H

// The plan tests' world: the standard dialing rules and a file for each plan that reads area codes.

#include "Suite.h"

#include <cstdio>
#include <map>
#include <ostream>

namespace planworld {

/// "N9numbering9KesCNP_49E": the logger of a plan class.
inline std::string loggerOf(const std::string& className) {
    return "N9numbering" + std::to_string(className.size()) + className + "E";
}

/// The area codes the shared world gives each plan that reads them (KesCNPRegistry says which).
inline std::vector<const char*> worldAreaCodes(const std::string& code) {
    static const std::map<std::string, std::vector<const char*>> codes = {
        {"49", {"30", "89", "221", "711"}},
        {"43", {"1", "316", "662"}},
        {"31", {"20", "10"}},
        {"32", {"2", "9"}},
        {"44", {"20", "161"}},
        {"353", {"1"}},
        {"54", {"11", "351"}},
        {"61", {"2", "3"}},
        {"52", {"2222"}},
    };
    auto found = codes.find(code);
    return found != codes.end() ? found->second : std::vector<const char*>{"20"};
}

inline std::string areaCodeLines(const std::vector<const char*>& codes) {
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
                          const std::vector<const char*>& codes) {
    std::string head = translate != nullptr ? std::string("Translate=") + translate + "\n" : std::string();
    testconfig::write(KesCNPRegistry::installationFile(code), head + areaCodeLines(codes));
}

inline Poco::AutoPtr<KesCNP> plan(const std::string& code) {
    return Poco::AutoPtr<KesCNP>(KesCNPFactory::CreateInstance(code));
}
inline Poco::AutoPtr<KesAreaCodePlan> filePlan(const std::string& code) {
    return Poco::AutoPtr<KesAreaCodePlan>(
        dynamic_cast<KesAreaCodePlan*>(KesCNPFactory::CreateInstance(code)));
}

struct Site {
    const char* country;
    const char* extPrefix;
    int localLength;
    const char* ownArea;
    const char* exception = "";

    std::string callingCode() const { return KesNumberingConfig::getInstance()->getCountryNumber(country); }
    std::string convert(const std::string& typed) const {
        KesDialRulesItem rules(country, extPrefix, localLength, ownArea, 0, exception);
        return plan(callingCode())->dlr_Country_MakeCanonicalNumber(typed, &rules);
    }
    friend std::ostream& operator<<(std::ostream& out, const Site& site) {
        return out << site.country << " at outside-line prefix '" << site.extPrefix << "', own area '"
                   << site.ownArea << "'";
    }
};

/// Standard dialing rules and, unless `writesFiles` is cleared before SetUp, the shared plan files.
class PlanTest : public testconfig::WorldTest {
protected:
    void SetUp() override {
        testconfig::useWorld();
        if (writesFiles)
            for (const KesCNPRegistry::Plan& p : KesCNPRegistry::plans())
                if (p.readsAreaCodes())
                    writePlanFile(p.callingCode, "1", worldAreaCodes(p.callingCode));
        KesNumberingConfig::getInstance();
    }
    bool writesFiles = true;
};

/// A plan test without any plan file unless the test writes one.
class NoPlanFiles : public PlanTest {
protected:
    NoPlanFiles() { writesFiles = false; }
};

} // namespace planworld

#endif
