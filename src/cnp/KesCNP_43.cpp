#include "numbering/KesCNP_43.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include "PlanSelfTest.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_43::logger = Logger::getLogger(typeid(KesCNP_43).name());
std::string KesCNP_43::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("43"));
std::string KesCNP_43::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("43"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"43", "No specific configuration file for Austria",
                                             "No specific dialing rules configuration file"};

// A national number with an unknown area code is taken to begin with a four-digit one.
const KesCNP_43::TwoPassRules CONVERSION = {"43", KesCNP_43::UnknownAreaCode::FirstFourDigits};

const SelfTestCase SELF_TEST[] = {
    {"Local 27722 -> ", "27722"},
    {"Local + prefixe 127722 -> ", "127722"},
    {"National 0127722 -> ", "0127722"},
    {"National + prefixe 10127722 -> ", "10127722"},
};

} // namespace

KesCNP_43::KesCNP_43() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_43::~KesCNP_43() = default;

std::string KesCNP_43::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return convertInTwoPasses(CONVERSION, number, rules, logger);
}

void KesCNP_43::main(std::string* /*args*/) {
    KesCNP_43 plan;
    printPlanSelfTest(plan, {"AT", "1", 4, "1"}, SELF_TEST);
}

} // namespace numbering
