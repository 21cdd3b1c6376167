#ifndef NUMBERING_TESTS_SUITE_H
#define NUMBERING_TESTS_SUITE_H

// What every suite shares: the host's log sink (defined here as a host does, so the library must use
// it rather than its fallbacks) and the configuration directory of NUMBERING_CONFIG_DIR.

#include "numbering/KesAreaCodePlan.h"
#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNPFactory.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesCharsTree.h"
#include "numbering/KesClid.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesEnumOrigin.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/KesUnsupportedCountryException.h"
#include "numbering/Logger.h"
#include "numbering/number_format_exception.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace numbering;

namespace testhost {

std::vector<std::string>& lines();
void clear();
int countLogged(const std::string& text);
inline bool logged(const std::string& text) {
    return countLogged(text) > 0;
}

/// Debug tracing on (or off) for one scope, from no recorded line.
class Tracing {
public:
    explicit Tracing(bool on = true);
    ~Tracing();

private:
    bool previous;
};

/// The what() of the `Exception` that `call` throws, or "nothing thrown".
template <class Exception, class Call> std::string thrownText(Call call) {
    try {
        call();
    } catch (const Exception& e) {
        return e.what();
    }
    return "nothing thrown";
}

/// The result of every conversion of `number` at `site` ("" for no caller identity).
std::vector<std::string> everyConversion(KesDialRulesItem* site, const std::string& number);

/// `text` with every character widened to `width` bytes, as UTF-16 or UTF-32 write Latin text.
std::string widened(const std::string& text, std::size_t width, bool bigEndian);
/// `text` as an editor saves it in UTF-16: a configuration check error.
inline std::string utf16(const std::string& text) {
    return "\xFF\xFE" + widened(text, 2, false);
}

/// What `run` prints on standard output.
template <class Run> std::string printed(Run run) {
    testing::internal::CaptureStdout();
    run();
    return testing::internal::GetCapturedStdout();
}

} // namespace testhost

namespace testconfig {

std::string directory();
void write(const std::string& fileName, const std::string& content);
void remove(const std::string& fileName);
void clearAll();
inline void reload() {
    KesNumberingRules::resetInstance();
}

/// Enough countries for the conversions under test, with Canada sharing +1.
extern const char* const STANDARD_DIALING_RULES;
/// "+C (A) x" for every calling code: a country without a mask keeps only its subscriber number.
const std::string& identityMasks();
using Files = std::vector<std::pair<std::string, std::string>>;
/// Only `dialingRules`, the identity masks and `files` (name, content), reloaded.
void useWorld(const std::string& dialingRules = STANDARD_DIALING_RULES, const Files& files = {});

/// A test in useWorld(dialingRules, files), reloaded after it.
class WorldTest : public ::testing::Test {
protected:
    explicit WorldTest(std::string rules = STANDARD_DIALING_RULES, Files more = {})
        : dialingRules(std::move(rules)), files(std::move(more)) {}
    void SetUp() override { useWorld(dialingRules, files); }
    void TearDown() override { reload(); }

    std::string dialingRules;
    Files files;
};

} // namespace testconfig

#endif
