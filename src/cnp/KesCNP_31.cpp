#include "numbering/KesCNP_31.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_31::logger = Logger::getLogger(typeid(KesCNP_31).name());
std::string KesCNP_31::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("31"));
std::string KesCNP_31::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("31"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"31", "No specific configuration file for Netherlands",
                                             "No specific dialing rules configuration file"};

const KesCNP_31::OnePassRules CONVERSION = {"31", 6, KesCNP_31::LocalRule::AnyFirstDigit,
                                            KesCNP_31::UnknownAreaForm::NationalPrefixInParentheses,
                                            "dlr_Country_MakeCanonicalNumber returns '"};

} // namespace

KesCNP_31::KesCNP_31() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_31::~KesCNP_31() = default;

std::string KesCNP_31::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return convertInOnePass(CONVERSION, number, rules, logger);
}

} // namespace numbering
