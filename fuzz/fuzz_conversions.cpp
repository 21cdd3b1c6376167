// Fuzzes the number conversions of the facade on the shipped configuration: the first byte picks an
// installation, the second an operation, the rest is the number.
#include "FuzzHost.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace numbering;

namespace {

struct Site {
    const char* country;
    const char* extPrefix;
    int localLength;
    const char* areaCodes;
    const char* exceptBegin;
};

const Site SITES[] = {
    {"FR", "0", 5, "1", "1"},    {"DE", "0", 4, "89", ""},     {"AT", "0", 4, "1", ""},
    {"GB", "9", 5, "20", "999"}, {"US", "9", 5, "212", "911"}, {"RU", "0", 4, "495", ""},
    {"AR", "0", 4, "11", ""},    {"CO", "0", 4, "1", ""},      {"AU", "0", 4, "2", "000"},
    {"MX", "0", 4, "55", ""},    {"CH", "0", 4, "44", ""},     {"IT", "0", 4, "", ""},
    {"NL", "0", 4, "20", ""},    {"BE", "0", 4, "2", ""},      {"IE", "0", 4, "1", ""},
    {"NZ", "0", 4, "9", ""},
};

std::vector<std::unique_ptr<KesDialRulesItem>>& sites() {
    static std::vector<std::unique_ptr<KesDialRulesItem>> made;
    return made;
}

/// A host's subclass that overrides nothing: its conversions call each other through the virtual
/// table and lay every canonical number out with its mask; the library's own, which leave out
/// masks the readers of the digits would not see, must answer alike.
KesNumberingRules& plainHost() {
    struct PlainHost : KesNumberingRules {};
    static PlainHost host;
    return host;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char*** argv) {
    fuzzhost::useConfigurationDirectory(NUMBERING_SOURCE_DATA_DIR, *argv);
    for (const Site& site : SITES)
        sites().emplace_back(new KesDialRulesItem(site.country, site.extPrefix, site.localLength,
                                                  site.areaCodes, 0, site.exceptBegin));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    KesDialRulesItem* site = sites()[data[0] % sites().size()].get();
    std::string number(reinterpret_cast<const char*>(data + 2), size - 2);
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    try {
        switch (data[1] % 11) {
        case 0:
            rules->makeCanonicalNumber(site, number, "");
            break;
        case 1:
            rules->makeCanonicalNumber(site, number, "+C (a) xx xx", true);
            break;
        case 2:
            if (rules->makePhoneNumber(site, number) != plainHost().makePhoneNumber(site, number))
                __builtin_trap();
            break;
        case 3:
            rules->addExternalPrefix(site, number);
            break;
        case 4: {
            KesClid* clid = rules->makeClid(site, number);
            KesClid* hosts = plainHost().makeClid(site, number);
            if ((clid == nullptr) != (hosts == nullptr) ||
                (clid != nullptr &&
                 (clid->getNumber() != hosts->getNumber() || clid->getOrigin() != hosts->getOrigin())))
                __builtin_trap();
            if (clid != nullptr) {
                clid->release();
                hosts->release();
            }
            break;
        }
        case 5:
            if (rules->makeGSMCanonicalNumber(site, number, data[1] & 0x80) !=
                plainHost().makeGSMCanonicalNumber(site, number, data[1] & 0x80))
                __builtin_trap();
            break;
        case 6:
            rules->formatToGSMCanonicalNumber(number);
            break;
        case 7:
            rules->formatCanonicalNumber(number, data[1] & 0x80 ? "" : "C A a x (xx) -x");
            break;
        case 8:
            rules->extractCountryNumberFromCanonicalNumber(number);
            rules->extractAreaCodeOrNatPrefixFromCanonicalNumber(number);
            rules->extractExtensionFromCanonicalNumber(number);
            break;
        case 9:
            if (!number.empty())
                rules->makeDialableNumber(site, number);
            break;
        default:
            rules->generateDefaultCanonicalNumber(number, site->getCountryId(), site->getAreaCode());
            break;
        }
    } catch (const std::invalid_argument&) {
        // Empty numbers are refused by exception; that is the documented answer.
    }
    return 0;
}
