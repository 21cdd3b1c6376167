#include "numbering/KesCNP_353.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_353::logger = Logger::getLogger(typeid(KesCNP_353).name());
std::string KesCNP_353::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("353"));
std::string KesCNP_353::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("353"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"353", "No specific dialing rules configuration for Irelandd",
                                             "No specific dialing rules configuration for Ireland"};

// A national number with an unknown area code is split behind its first two digits.
const KesCNP_353::OnePassRules CONVERSION = {"353", 5, KesCNP_353::LocalRule::AnyFirstDigit,
                                             KesCNP_353::UnknownAreaForm::FirstTwoDigits,
                                             "DlrCountryMakeCanonicalNumber returns '"};

} // namespace

KesCNP_353::KesCNP_353() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_353::~KesCNP_353() = default;

std::string KesCNP_353::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return convertInOnePass(CONVERSION, number, rules, logger);
}

} // namespace numbering
