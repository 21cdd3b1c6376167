// Conversion cost of the area-code plans and of the area code look-up on a tree of a few
// thousand codes, on a configuration written for the purpose.
#include "support/BenchHost.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP_44.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesDialRulesItem.h"

#include <Poco/AutoPtr.h>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

using namespace numbering;

namespace {

const char* const GERMAN_NUMBERS[] = {"0301234567",  "00301234567", "1234567",      "04512345678",
                                      "08912345678", "03312345678", "071176985411", "0987654321"};
const char* const BRITISH_NUMBERS[] = {"02071234567", "01611234567", "01234567890", "71234567", "1234567"};

// Codes in the order a plan file must list them: every code before the longer ones it begins.
std::string germanAreaCodeLines() {
    std::string lines;
    int count = 0;
    auto add = [&](int code) {
        char line[32];
        std::snprintf(line, sizeof line, "AC_%04d=%d\n", count++, code);
        lines += line;
    };
    for (int code : {30, 40, 69, 89})
        add(code);
    for (int code = 200; code <= 999; ++code)
        add(code);
    for (int code = 3300; code <= 5499; ++code)
        add(code);
    return lines;
}

// Empty masks and switches keep the store from reporting missing files.
std::vector<benchhost::ConfigurationFile> configuration() {
    return {{"dlr_cnp_mask.properties", ""},
            {"specific_format_activation.properties", ""},
            {"dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\nGB = 44:00:EF:0F::United Kingdom:P\n"},
            {"tz310cnp_49.properties", "Translate=1\n" + germanAreaCodeLines()},
            {"tz310cnp_44.properties", "Translate=1\nAC_0000=20\nAC_0001=121\nAC_0002=161\n"
                                       "AC_0003=1632\nAC_0004=1234\n"}};
}

template <std::size_t N>
void convert(benchmark::State& state, KesCNP& plan, KesDialRulesItem& rules,
             const char* const (&numbers)[N]) {
    std::size_t i = 0;
    for (auto _ : state) {
        std::string canonical = plan.dlr_Country_MakeCanonicalNumber(numbers[i], &rules);
        benchmark::DoNotOptimize(canonical);
        i = (i + 1) % N;
    }
}

void GermanyPlan(benchmark::State& state) {
    Poco::AutoPtr<KesCNP_49> plan(new KesCNP_49);
    KesDialRulesItem rules("DE", "0", 5, "89", 0, "");
    convert(state, *plan, rules, GERMAN_NUMBERS);
}
BENCHMARK(GermanyPlan);

void UnitedKingdomPlan(benchmark::State& state) {
    Poco::AutoPtr<KesCNP_44> plan(new KesCNP_44);
    KesDialRulesItem rules("GB", "9", 0, "20", 0, "");
    convert(state, *plan, rules, BRITISH_NUMBERS);
}
BENCHMARK(UnitedKingdomPlan);

void ExtractAreaCode(benchmark::State& state) {
    Poco::AutoPtr<KesCNP_49> plan(new KesCNP_49);
    const std::string numbers[] = {"301234567", "4512345678", "33001234567", "54991234567", "9876543"};
    std::size_t i = 0;
    for (auto _ : state) {
        std::string code = plan->areaCodeTree->extractAreaCode(numbers[i]);
        benchmark::DoNotOptimize(code);
        i = (i + 1) % 5;
    }
    state.counters["codes"] = plan->areaCodeCount;
}
BENCHMARK(ExtractAreaCode);

} // namespace

int main(int argc, char** argv) {
    benchhost::useWrittenConfiguration(configuration(), argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    benchhost::removeWrittenConfiguration();
    return 0;
}
