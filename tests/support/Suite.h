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

#include <cstdio>
#include <dirent.h>
#include <fstream>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
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
    explicit Tracing(bool on = true) : previous(Logger::m_Traces) {
        Logger::m_Traces = on;
        clear();
    }
    ~Tracing() { Logger::m_Traces = previous; }

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
inline std::vector<std::string> everyConversion(KesDialRulesItem* site, const std::string& number) {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    Poco::AutoPtr<KesClid> clid(rules->makeClid(site, number));
    return {rules->makeCanonicalNumber(site, number, ""),
            rules->makeCanonicalNumber(site, number, "+C (A) x\n", true),
            rules->makeGSMCanonicalNumber(site, number, false),
            rules->makeGSMCanonicalNumber(site, number, true),
            rules->makePhoneNumber(site, number),
            rules->addExternalPrefix(site, number),
            clid.isNull() ? "" : clid->getNumber() + "/" + clid->getOrigin()->name};
}

/// `text` with every character widened to `width` bytes, as UTF-16 or UTF-32 write Latin text.
inline std::string widened(const std::string& text, std::size_t width, bool bigEndian) {
    std::string wide;
    for (char c : text) {
        const std::string zeros(width - 1, '\0');
        wide += bigEndian ? zeros + c : c + zeros;
    }
    return wide;
}
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

inline std::string directory() {
    return KesNumberingConfig::configDirectory();
}

inline void write(const std::string& fileName, const std::string& content) {
    ::mkdir(directory().c_str(), 0755);
    std::ofstream file(directory() + fileName, std::ios::binary | std::ios::trunc);
    if (!file)
        throw std::runtime_error("cannot write " + directory() + fileName);
    file << content;
}

inline void remove(const std::string& fileName) {
    std::remove((directory() + fileName).c_str());
}

inline void clearAll() {
    DIR* dir = ::opendir(directory().c_str());
    if (dir == nullptr)
        return;
    while (dirent* entry = ::readdir(dir)) {
        std::string name = entry->d_name;
        if (name != "." && name != "..")
            remove(name);
    }
    ::closedir(dir);
}

inline void reload() {
    KesNumberingRules::resetInstance();
}

/// `fileName` written with `content`, then the configuration read again.
inline void reloadWith(const std::string& fileName, const std::string& content) {
    write(fileName, content);
    reload();
}

/// Enough countries for the conversions under test, with Canada sharing +1.
inline const char* const STANDARD_DIALING_RULES = "AR = 54:00:EF:0F::Argentina:P\n"
                                                  "AT = 43:00:EF:0F::Austria:P\n"
                                                  "AU = 61:0011:EF:0F::Australia:P\n"
                                                  "BE = 32:00:EF:0F::Belgium:P\n"
                                                  "CA = 1:011:EF:1F::Canada:\n"
                                                  "CH = 41:00:EF:0F::Switzerland:P\n"
                                                  "CO = 57:00:EF:0F::Colombia:P\n"
                                                  "DE = 49:00:EF:0F::Germany:P\n"
                                                  "ES = 34:00:EF:F:F:Spain:P\n"
                                                  "FR = 33:00:EF:0F::France:P\n"
                                                  "GB = 44:00:EF:0F::United Kingdom:P\n"
                                                  "IE = 353:00:EF:0F::Ireland:P\n"
                                                  "IT = 39:00:EF:F:F:Italy:P\n"
                                                  "MX = 52:00:EF:01F::Mexico:P\n"
                                                  "NL = 31:00:EF:0F::Netherlands:P\n"
                                                  "NZ = 64:00:EF:0F::New Zealand:P\n"
                                                  "RU = 7:810:EF:8F::Russia:P\n"
                                                  "US = 1:011:EF:1F::United States:P\n";

using Files = std::vector<std::pair<std::string, std::string>>;
/// Only `dialingRules`, masks "+C (A) x" for every calling code (a country without a mask keeps only its
/// subscriber number) and `files` (name, content), reloaded.
inline void useWorld(const std::string& dialingRules = STANDARD_DIALING_RULES, const Files& files = {}) {
    static const std::string identityMasks = [] {
        std::string text;
        for (int countryNumber = 1; countryNumber <= 999; ++countryNumber)
            text += "Mask_" + std::to_string(countryNumber) + "_1 = +C (A) x\n";
        return text;
    }();
    clearAll();
    write("dialingrules.properties", dialingRules);
    write("dlr_cnp_mask.properties", identityMasks);
    for (const auto& [name, content] : files)
        write(name, content);
    reload();
}

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
