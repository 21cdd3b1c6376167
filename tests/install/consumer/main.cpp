// A host program built against an installed libNumbering, with the library's fallback log sink.
#include <numbering/KesNumberingRules.h>
#include <numbering/Version.h>

#include <cstring>
#include <iostream>

int main() {
    numbering::KesNumberingRules* rules = numbering::KesNumberingRules::getInstance();
    std::string country = rules->extractCountryNumberFromCanonicalNumber("+33 (1) 23456789");
    numbering::KesNumberingRules::resetInstance();
    // The installed headers and the installed library are of one version.
    bool sameVersion = std::strcmp(numbering::libraryVersion(), NUMBERING_VERSION_STRING) == 0;
    std::cout << country << " " << numbering::libraryVersion() << "\n";
    return country == "33" && sameVersion ? 0 : 1;
}
