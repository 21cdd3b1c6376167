#include "numbering/KesCNP_44.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_44::logger = Logger::getLogger(typeid(KesCNP_44).name());
std::string KesCNP_44::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("44"));
std::string KesCNP_44::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("44"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"44", "No specific configuration file for Austria",
                                             "No specific dialing rules configuration file"};

// Only numbers beginning with 2 to 9 are local numbers.
const KesCNP_44::OnePassRules CONVERSION = {"44", 6, KesCNP_44::LocalRule::FirstDigitTwoToNine,
                                            KesCNP_44::UnknownAreaForm::NationalPrefixInParentheses,
                                            "dlr_Country_MakeCanonicalNumber returns '"};

} // namespace

KesCNP_44::KesCNP_44() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_44::~KesCNP_44() = default;

std::string KesCNP_44::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return convertInOnePass(CONVERSION, number, rules, logger);
}

} // namespace numbering
