#ifndef NUMBERING_TESTS_RULES_FACADEWORLD_H
#define NUMBERING_TESTS_RULES_FACADEWORLD_H

// The facade's world: only France, Germany, Colombia and New Zealand have a numbering plan.

#include "Suite.h"

namespace facadeworld {

inline const char* const DIALING_RULES =
    "BY = 375:810:EF:8F::Belarus:P\n"   // national prefix 8
    "CO = 57:00:EF:0F::Colombia:P\n"    // has a plan
    "DE = 49:00:EF:0F::Germany:P\n"     // has a plan
    "DK = 45:00:EF:I:F:Denmark:P\n"     // local and national differ, no prefix
    "ES = 34:00:EF:F:F:Spain:P\n"       // local and national alike
    "FR = 33:00:EF:0F::France:P\n"      // has a plan
    "IT = 39:00:EF:F:F:Italy:P\n"       // local and national alike
    "NO = 47:00:EF::G:Norway:P\n"       // no long-distance rule, local "G"
    "NZ = 64:00:EF:F:F:New Zealand:P\n" // has a plan, no national prefix
    "PL = 48:00:EF:0F::Poland:P\n"      // national prefix 0
    "SE = 46:00:EF:0F::Sweden:P\n";     // national prefix 0, area codes

class FacadeTest : public testconfig::WorldTest {
protected:
    FacadeTest() : WorldTest(DIALING_RULES) {}
    void SetUp() override {
        WorldTest::SetUp();
        facade = KesNumberingRules::getInstance();
        testhost::clear();
    }

    void useMasks(const std::string& masks) {
        testconfig::write("dlr_cnp_mask.properties", masks);
        testconfig::reload();
        facade = KesNumberingRules::getInstance();
    }

    KesNumberingRules* facade = nullptr;
};

/// Installations in Stockholm (area code 8) and Paris (1) that seize an outside line with "0".
inline KesDialRulesItem stockholm(int localNbLength = 0, const std::string& exceptNbBegin = "") {
    return KesDialRulesItem("SE", "0", localNbLength, "8", 0, exceptNbBegin);
}

inline KesDialRulesItem paris(int localNbLength = 0, const std::string& exceptNbBegin = "") {
    return KesDialRulesItem("FR", "0", localNbLength, "1", 0, exceptNbBegin);
}

/// The error line a conversion logs for `rules` (the NUL that ends ToString() ends the line).
inline std::string withDialRules(const std::string& head, KesDialRulesItem& rules) {
    return "ERROR N9numbering17KesNumberingRulesE - " + head + "\n  DialRules: " + rules.ToString().c_str();
}

} // namespace facadeworld

#endif
