// One warm canonical conversion, for counting the functions it passes through: `measured` is the
// only call callgrind collects (bench/count_calls.sh).
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <cstdio>
#include <string>

void FlogWrite(const char*, short) {}

using numbering::KesDialRulesItem;
using numbering::KesNumberingRules;

extern "C" __attribute__((noinline)) std::string warmUp(KesNumberingRules* rules, KesDialRulesItem* site,
                                                        const char* number) {
    return rules->makeCanonicalNumber(site, number, "");
}

extern "C" __attribute__((noinline)) std::string measured(KesNumberingRules* rules, KesDialRulesItem* site,
                                                          const char* number) {
    return rules->makeCanonicalNumber(site, number, "");
}

int main(int argc, char** argv) {
    const char* number = argc > 1 ? argv[1] : "+49 89 123456";
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem munich("DE", "0", 5, "89", 0, "");
    for (int i = 0; i < 10; ++i)
        warmUp(rules, &munich, number);
    std::printf("%s\n", measured(rules, &munich, number).c_str());
}
