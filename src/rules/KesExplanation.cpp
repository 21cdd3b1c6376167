#include "numbering/KesExplanation.h"

#include "ConversionGuard.h"
#include "Explaining.h"
#include "common/NumberText.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesClid.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"

#include <Poco/String.h>

#include <algorithm>

namespace numbering {

namespace {

/// The name of the `value`-th enumerator among `names`.
template <class Enum, std::size_t N> const char* nameIn(const char* const (&names)[N], Enum value) {
    return names[static_cast<std::size_t>(value)];
}

/// The installation's row of the dialing rules.
void readInstallationRow(KesExplanation& e, KesNumberingConfig& config) {
    KesCountryRuleItem* row = config.getCountryRule(e.countryCode);
    if (row == nullptr)
        return;
    e.callingCode = row->getCountryNumber();
    e.internationalPrefix = row->getInternatPfx();
    e.longDistancePrefix = row->getLongDistPrefix();
    e.internationalRule = row->getInternatRule();
    e.longDistanceRule = row->getLongDistRule();
    e.localRule = row->getLocalRule();
}

/// What the conversions cannot tell on their own: why a country without plan has none, the calling
/// code of the plan, and the sections of docs/behaviour.md that apply.
void complete(KesExplanation& e, KesNumberingConfig& config, const std::string& ext) {
    using Note = KesExplanation::Note;
    if (!e.destinationCountry.empty() && e.plan != KesExplanation::Plan::NotReached)
        e.planCallingCode = config.getCountryNumber(e.destinationCountry);
    if (e.plan == KesExplanation::Plan::NoPlanForCountry &&
        KesCNPRegistry::find(e.planCallingCode) != nullptr)
        e.plan = KesExplanation::Plan::SwitchedOff;
    const std::string typed = Poco::trim(e.number);
    e.outsideLinePrefixTyped = !ext.empty() && startsWith(typed, ext);
    if (ext.empty())
        e.outsideLine = KesExplanation::OutsideLine::NoPrefix;
    else if (e.kind == KesExplanation::Kind::ServiceCode)
        e.outsideLine = KesExplanation::OutsideLine::ServiceCode;
    if (e.mask == KesExplanation::Mask::Missing)
        e.notes.push_back(e.destinationCountry == "AR" ? Note::ArgentineMobile : Note::MissingMask);
    if (e.callingCode == "57" && e.route == KesExplanation::Route::International)
        e.notes.push_back(Note::ColombianCarrier);
    if (startsWith(e.gsm, '+') && e.gsm.find(' ') != std::string::npos)
        e.notes.push_back(Note::ItalianGsmBlank);
    const auto digits = std::count_if(typed.begin(), typed.end(), isDigit);
    if (e.areaCodeFound == KesExplanation::AreaCode::OwnAreaCode && digits <= 4)
        e.notes.push_back(Note::ShortNumberInArea);
}

} // namespace

KesExplanation KesExplanation::of(KesDialRulesItem* installation, const std::string& number) {
    requireArguments(installation, number);
    const Conversion conversion; // every conversion below from one configuration
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesNumberingConfig& config = *KesNumberingConfig::getInstance();
    KesExplanation e;
    e.number = number;
    e.countryCode = installation->getCountryId();
    readInstallationRow(e, config);
    {
        const Explaining recording(e);
        e.canonical = rules->makeCanonicalNumber(installation, number, "");
        if (!e.canonical.empty()) // a number not in canonical form comes back as it is
            e.dialable = rules->makeDialableNumber(installation, e.canonical);
        e.phoneNumber = rules->makePhoneNumber(installation, number);
    }
    e.gsm = rules->makeGSMCanonicalNumber(installation, number, false);
    if (KesClid* clid = rules->makeClid(installation, number)) {
        e.clid = clid->getNumber();
        e.clidOrigin = clid->getOrigin()->name;
        clid->release();
    }
    complete(e, config, installation->getExtPrefix());
    return e;
}

const char* KesExplanation::section(Note note) {
    static const char* const titles[] = {"An Argentine mobile number is dialled as a local one",
                                         "A Colombian installation dials the subscriber number twice",
                                         "The GSM form of an Italian number has a blank",
                                         "A masks file without a country's mask loses that country's numbers",
                                         "\"112\" in a German installation becomes a Munich number"};
    return nameIn(titles, note);
}

const char* KesExplanation::name(Kind value) {
    static const char* const names[] = {
        "Unread",   "ServiceCode",     "NotAPhoneNumber", "Extension",         "Local",
        "National", "NationalAsLocal", "International",   "InternationalForm", "UnknownCountry"};
    return nameIn(names, value);
}

const char* KesExplanation::name(Plan value) {
    static const char* const names[] = {"NotReached", "CountryPlan", "NoPlanForCountry", "SwitchedOff",
                                        "LeftAlone"};
    return nameIn(names, value);
}

const char* KesExplanation::name(AreaCode value) {
    static const char* const names[] = {"NotSought",   "Found",     "Unknown",
                                        "OwnAreaCode", "AsWritten", "PlanRule"};
    return nameIn(names, value);
}

const char* KesExplanation::name(Mask value) {
    static const char* const names[] = {"None", "Given", "Country", "Missing"};
    return nameIn(names, value);
}

const char* KesExplanation::name(Route value) {
    static const char* const names[] = {"None", "International", "Local", "LongDistance"};
    return nameIn(names, value);
}

const char* KesExplanation::name(OutsideLine value) {
    static const char* const names[] = {
        "NotDialled",        "NoPrefix",        "ServiceCode",       "Needed",
        "InternalExtension", "ExceptionNumber", "DialledWithPrefix", "Canonical"};
    return nameIn(names, value);
}

const char* KesExplanation::name(Note value) {
    static const char* const names[] = {"ArgentineMobile", "ColombianCarrier", "ItalianGsmBlank",
                                        "MissingMask", "ShortNumberInArea"};
    return nameIn(names, value);
}

} // namespace numbering
