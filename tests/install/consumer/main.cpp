// A host program built against an installed libNumbering, with the library's fallback log sink.
#include <numbering/KesNumberingRules.h>

#include <iostream>

int main() {
    numbering::KesNumberingRules* rules = numbering::KesNumberingRules::getInstance();
    std::string country = rules->extractCountryNumberFromCanonicalNumber("+33 (1) 23456789");
    numbering::KesNumberingRules::resetInstance();
    std::cout << country << "\n";
    return country == "33" ? 0 : 1;
}
