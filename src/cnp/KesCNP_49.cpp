#include "numbering/KesCNP_49.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include "PlanSelfTest.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_49::logger = Logger::getLogger(typeid(KesCNP_49).name());
std::string KesCNP_49::AREA_CODES_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::installationFile("49"));
std::string KesCNP_49::AREA_CODES_DEFAULT_FILE =
    KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("49"));

namespace {

const KesAreaCodePlan::PlanFile PLAN_FILE = {"49", "No specific dialing rules configuration file",
                                             "No specific dialing rules configuration file"};

// A national number with an unknown area code goes behind the installation's own area code.
const KesCNP_49::TwoPassRules CONVERSION = {"49", KesCNP_49::UnknownAreaCode::OwnAreaCodeInFront};

const SelfTestCase SELF_TEST[] = {
    {"Local 76985411 -> ", "76985411"},
    {"Local + prefixe 176985411 -> ", "176985411"},
    {"National 0771176985411 -> ", "071176985411"},
    {"National + prefixe 10771176985411 -> ", "1071176985411"},
};

} // namespace

KesCNP_49::KesCNP_49() : KesAreaCodePlan(PLAN_FILE, logger) {}

KesCNP_49::~KesCNP_49() = default;

std::string KesCNP_49::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return convertInTwoPasses(CONVERSION, number, rules, logger);
}

void KesCNP_49::main(std::string* /*args*/) {
    KesCNP_49 plan;
    printPlanSelfTest(plan, {"DE", "1", 5, "170"}, SELF_TEST);
}

} // namespace numbering
