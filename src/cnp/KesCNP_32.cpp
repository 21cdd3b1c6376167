#include "numbering/KesCNP_32.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_32::logger = Logger::getLogger(typeid(KesCNP_32).name());
std::string KesCNP_32::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("32"));
std::string KesCNP_32::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("32"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"32", "No specific configuration file for Belgium",
                                             "No specific dialing rules configuration file"};

// Numbers without national prefix are never completed: the plan reads no "Translate".
const KesCNP_32::OnePassRules CONVERSION = {"32", 9, KesCNP_32::LocalRule::None,
                                            KesCNP_32::UnknownAreaForm::NationalPrefixInParentheses,
                                            "dlr_Country_MakeCanonicalNumber returns '"};

} // namespace

KesCNP_32::KesCNP_32() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_32::~KesCNP_32() = default;

std::string KesCNP_32::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return convertInOnePass(CONVERSION, number, rules, logger);
}

} // namespace numbering
