// `numbering explain`: the results of the conversions of one number, and why they are what they are.
#include "Explain.h"

#include "Conversions.h"
#include "JsonLine.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesExplanation.h"
#include "numbering/KesNumberingRules.h"

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

using numbering::KesExplanation;

namespace {

using Kind = KesExplanation::Kind;
using Plan = KesExplanation::Plan;
using AreaCode = KesExplanation::AreaCode;
using Mask = KesExplanation::Mask;
using Route = KesExplanation::Route;
using OutsideLine = KesExplanation::OutsideLine;

std::string said(const std::string& text) {
    return text.empty() ? "(none)" : text;
}

std::string kindInWords(const KesExplanation& e) {
    switch (e.kind) {
    case Kind::Unread:
        return "not read (it holds \"***\" or nothing)";
    case Kind::ServiceCode:
        return "a service code: it is never converted";
    case Kind::NotAPhoneNumber:
        return "not a phone number: it holds a character that no number has";
    case Kind::Extension:
        return "an internal extension or an exception number of the installation";
    case Kind::Local:
        return "no prefix: a local number, or a national one the rules cannot tell apart";
    case Kind::National:
        return "a national number: it begins with the national prefix " + e.longDistancePrefix;
    case Kind::NationalAsLocal:
        return "a national number: the country writes local and national numbers alike";
    case Kind::International:
        return "an international number: it begins with the international prefix " + e.internationalPrefix +
               (e.operatorPrefix.empty() ? "" : " and the operator prefix " + e.operatorPrefix);
    case Kind::InternationalForm:
        return "an international number written with \"+\" and its calling code";
    case Kind::UnknownCountry:
        break;
    }
    return "an international number, but no country has its calling code";
}

std::string planInWords(const KesExplanation& e) {
    switch (e.plan) {
    case Plan::NotReached:
        return "none asked for: no country to ask";
    case Plan::CountryPlan:
        return "the plan of calling code " + e.planCallingCode + " wrote the canonical form";
    case Plan::NoPlanForCountry:
        return "calling code " + e.planCallingCode +
               " has no plan: the generic rules wrote the canonical form";
    case Plan::SwitchedOff:
        return "the plan of calling code " + e.planCallingCode +
               " is switched off: the generic rules wrote the canonical form";
    case Plan::LeftAlone:
        break;
    }
    return "none: a local or exception number without the outside-line prefix stays as it is";
}

std::string areaInWords(const KesExplanation& e) {
    static const char* const words[] = {"none looked for",
                                        "a known area code begins the number",
                                        "the number begins with no known area code",
                                        "none typed: completed with the installation's own area code",
                                        "as written in the number",
                                        "placed by the plan's own rule"};
    return said(e.areaCode) + " (" + words[static_cast<int>(e.areaCodeFound)] + ")";
}

std::string maskInWords(const KesExplanation& e) {
    static const char* const words[] = {"none applied", "the pattern given", "the mask of the calling code",
                                        "none for the calling code: only the subscriber number is kept"};
    const std::string how = words[static_cast<int>(e.mask)];
    return e.maskText.empty() ? how : "\"" + e.maskText + "\" (" + how + ")";
}

std::string prefixInWords(const KesExplanation& e) {
    static const char* const words[] = {
        "no number to dial",
        "the installation has none",
        "a service code is never prefixed",
        "the number is neither an extension nor an exception",
        "the number is shorter than the local number length: an internal extension",
        "an exception number of the installation",
        "the number was typed with the outside-line prefix, which it keeps",
        "the number was typed in canonical form, which keeps the outside-line prefix"};
    const bool decided = e.outsideLine != OutsideLine::NotDialled && e.outsideLine != OutsideLine::NoPrefix &&
                         e.outsideLine != OutsideLine::ServiceCode;
    const std::string added = !decided ? "" : e.outsideLinePrefixAdded ? "added: " : "not added: ";
    return added + words[static_cast<int>(e.outsideLine)];
}

std::string routeInWords(Route route) {
    static const char* const words[] = {"not dialled", "abroad, by the international rule",
                                        "in an own area, by the local rule",
                                        "elsewhere in the country, by the long-distance rule"};
    return words[static_cast<int>(route)];
}

void printText(const KesExplanation& e) {
    std::cout << "number:              " << e.number << "\n"
              << "canonical:           " << said(e.canonical) << "\n"
              << "gsm:                 " << said(e.gsm) << "\n"
              << "dialable:            " << said(e.dialable) << "\n"
              << "phone number:        " << said(e.phoneNumber) << "\n"
              << "caller identity:     " << said(e.clid)
              << (e.clidOrigin.empty() ? "" : " (" + e.clidOrigin + ")") << "\n"
              << "installation:        " << e.countryCode << ", calling code " << said(e.callingCode)
              << ", international prefix " << said(e.internationalPrefix) << ", national prefix "
              << said(e.longDistancePrefix) << "; rules: international " << said(e.internationalRule)
              << ", long distance " << said(e.longDistanceRule) << ", local " << said(e.localRule) << "\n"
              << "recognised as:       " << kindInWords(e) << "\n"
              << "country:             " << said(e.destinationCountry) << "\n"
              << "plan:                " << planInWords(e) << "\n"
              << "area code:           " << areaInWords(e) << "\n"
              << "mask:                " << maskInWords(e) << "\n"
              << "dialled:             " << routeInWords(e.route) << "\n"
              << "outside-line prefix: " << prefixInWords(e) << "\n";
    for (KesExplanation::Note note : e.notes)
        std::cout << "see docs/behaviour.md: " << KesExplanation::section(note) << "\n";
}

void printJson(const KesExplanation& e) {
    std::string notes;
    for (KesExplanation::Note note : e.notes)
        notes += (notes.empty() ? "" : ",") + JsonLine()
                                                  .add("note", KesExplanation::name(note))
                                                  .add("section", KesExplanation::section(note))
                                                  .text();
    JsonLine line;
    line.add("command", "explain")
        .add("input", e.number)
        .add("canonical", e.canonical)
        .add("gsm", e.gsm)
        .add("dialable", e.dialable)
        .add("phoneNumber", e.phoneNumber)
        .add("clid", e.clid)
        .add("clidOrigin", e.clidOrigin)
        .addJson("installation", JsonLine()
                                     .add("country", e.countryCode)
                                     .add("callingCode", e.callingCode)
                                     .add("internationalPrefix", e.internationalPrefix)
                                     .add("longDistancePrefix", e.longDistancePrefix)
                                     .add("internationalRule", e.internationalRule)
                                     .add("longDistanceRule", e.longDistanceRule)
                                     .add("localRule", e.localRule)
                                     .text())
        .add("kind", KesExplanation::name(e.kind))
        .add("operatorPrefix", e.operatorPrefix)
        .add("country", e.destinationCountry)
        .add("plan", KesExplanation::name(e.plan))
        .add("planCallingCode", e.planCallingCode)
        .add("areaCodeFound", KesExplanation::name(e.areaCodeFound))
        .add("areaCode", e.areaCode)
        .add("mask", KesExplanation::name(e.mask))
        .add("maskText", e.maskText)
        .add("route", KesExplanation::name(e.route))
        .add("outsideLine", KesExplanation::name(e.outsideLine))
        .addJson("outsideLinePrefixTyped", e.outsideLinePrefixTyped ? "true" : "false")
        .addJson("outsideLinePrefixAdded", e.outsideLinePrefixAdded ? "true" : "false")
        .addJson("notes", "[" + notes + "]");
    std::cout << line.text() << "\n";
}

} // namespace

int runExplain(const Options& options) {
    std::unique_ptr<numbering::KesDialRulesItem> installation = makeInstallation(options);
    if (!installation)
        return 2;
    convertingNumbers = true;
    KesExplanation e;
    try {
        e = KesExplanation::of(installation.get(), options.numbers.front());
    } catch (const std::invalid_argument&) {
        e.number = options.numbers.front(); // an empty number: nothing converted
    }
    convertingNumbers = false;
    if (options.json)
        printJson(e);
    else
        printText(e);
    installation.reset();
    numbering::KesNumberingRules::resetInstance();
    return e.canonical.empty() ? 1 : 0;
}
