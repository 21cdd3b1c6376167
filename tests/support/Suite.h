#ifndef NUMBERING_TESTS_SUITE_H
#define NUMBERING_TESTS_SUITE_H

// What every suite shares: the library's headers, the host's log sink as the tests read it (each
// test program defines FlogWrite and Logger::m_Traces itself, as a host does, and the library must
// use these rather than its fallbacks) and the configuration directory the program owns
// (NUMBERING_CONFIG_DIR, set by CTest), where these helpers write the property files.

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

/// Every line FlogWrite received since the last clear().
std::vector<std::string>& lines();
void clear();
/// How many received lines contain `text`; whether one does.
int countLogged(const std::string& text);
inline bool logged(const std::string& text) {
    return countLogged(text) > 0;
}

/// Switches debug tracing on (or off) for one scope and clears the recorded lines.
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

/// What `run` prints on standard output.
template <class Run> std::string printed(Run run) {
    testing::internal::CaptureStdout();
    run();
    return testing::internal::GetCapturedStdout();
}

} // namespace testhost

namespace testconfig {

/// The directory this test program's library reads from, ending in "/".
std::string directory();
/// Writes `content` to `fileName` in that directory.
void write(const std::string& fileName, const std::string& content);
void remove(const std::string& fileName);
/// Removes every file from the directory.
void clearAll();
/// Drops every singleton so that the next use re-reads the files.
inline void reload() {
    KesNumberingRules::resetInstance();
}

/// A small world of countries, enough for the conversions under test (France, Germany, the
/// United Kingdom, the United States with Canada sharing +1, Russia, Italy ...).
extern const char* const STANDARD_DIALING_RULES;
/// Masks that lay every canonical number out as it stands ("+C (A) x"), for every calling code of
/// one to three digits: a country without a mask would keep only its subscriber number.
const std::string& identityMasks();
/// Clears the directory, writes `dialingRules` and the identity masks as installation files, and
/// reloads.
void useWorld(const std::string& dialingRules = STANDARD_DIALING_RULES);

/// A fixture that starts from useWorld() and reloads after each test.
class WorldTest : public ::testing::Test {
protected:
    void SetUp() override { useWorld(); }
    void TearDown() override { reload(); }
};

} // namespace testconfig

#endif
