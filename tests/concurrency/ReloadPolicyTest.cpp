// A reload that refuses errors, on copies of the shipped configuration: a broken directory after a
// good one leaves the good results (and the configuration directory) in place, warnings never
// refuse, a plain reload still takes anything, and a corrected directory is taken afterwards.
#include "ReloadedWorld.h"

#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesConfigurationRejected.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace numbering;
using namespace reloaded;

namespace {

struct Edit {
    const char* what;
    ConfigurationCopy::Files files; // written over VARIANT_B
    ReloadPolicy policy;
    const char* refusedFor; // the file of the first error, or null when the reload takes the edit
};

/// Made when the test runs: the variants are another file's statics.
std::vector<Edit> edits() {
    return {
        {"masks saved as UTF-16",
         {{"dlr_cnp_mask.properties", utf16(VARIANT_B[0].second)}},
         ReloadPolicy::RefuseErrors,
         "dlr_cnp_mask.properties"},
        {"dialing rules without a usable row",
         {{"dialingrules.properties", "\n"}},
         ReloadPolicy::RefuseErrors,
         "dialingrules.properties"},
        {"masks saved as UTF-16, plain reload",
         {{"dlr_cnp_mask.properties", utf16(VARIANT_B[0].second)}},
         ReloadPolicy::Plain,
         nullptr},
        {"warnings only (masks that lack the default's countries)", {}, ReloadPolicy::RefuseErrors, nullptr},
    };
}

} // namespace

TEST(ReloadPolicy, ErrorsAreRefusedAndTheRunningConfigurationStays) {
    ConfigurationCopy good("good", VARIANT_A);
    ASSERT_EQ(KesConfigurationCheck::check(good.directory()).status(), 1) << "warnings, which never refuse";
    for (const Edit& edit : edits()) {
        SCOPED_TRACE(edit.what);
        KesNumberingRules::reload(good.directory(), ReloadPolicy::RefuseErrors);
        const auto before = convertAll();
        ConfigurationCopy edited("edited", VARIANT_B);
        edited.write(edit.files);
        if (edit.refusedFor == nullptr) {
            KesNumberingRules::reload(edited.directory(), edit.policy);
            EXPECT_NE(convertAll(), before);
            EXPECT_EQ(KesNumberingConfig::configDirectory(), edited.directory());
            continue;
        }
        try {
            KesNumberingRules::reload(edited.directory(), edit.policy);
            ADD_FAILURE() << "taken";
        } catch (const KesConfigurationRejected& refused) {
            EXPECT_EQ(refused.directory(), edited.directory());
            EXPECT_EQ(refused.firstError().file, edited.directory() + edit.refusedFor);
            EXPECT_EQ(refused.report().status(), 2);
            EXPECT_EQ(std::string(refused.what())
                          .rfind("Refused the configuration of " + edited.directory() +
                                     ", the running configuration stays: " + refused.firstError().text(),
                                 0),
                      0u)
                << refused.what();
        }
        EXPECT_EQ(convertAll(), before);
        EXPECT_EQ(KesNumberingConfig::configDirectory(), good.directory());
    }
    KesNumberingRules::reload(std::string());
}

// No refusal is remembered: once the files are corrected, the same directory is taken.
TEST(ReloadPolicy, ACorrectedDirectoryIsTakenAfterARefusal) {
    ConfigurationCopy expected("expected", VARIANT_B);
    KesNumberingRules::reload(expected.directory());
    const auto inB = convertAll();

    ConfigurationCopy world("corrected", VARIANT_A);
    KesNumberingRules::reload(world.directory(), ReloadPolicy::RefuseErrors);
    const auto inA = convertAll();
    world.write({{"dlr_cnp_mask.properties", utf16(VARIANT_B[0].second)}});
    EXPECT_THROW(KesNumberingRules::reload(ReloadPolicy::RefuseErrors), KesConfigurationRejected);
    EXPECT_EQ(convertAll(), inA);

    world.write(VARIANT_B);
    KesNumberingRules::reload(ReloadPolicy::RefuseErrors);
    EXPECT_EQ(convertAll(), inB);
    KesNumberingRules::reload(std::string());
}
