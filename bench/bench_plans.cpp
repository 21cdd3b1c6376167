// Conversion cost of the area-code plans and of the area code look-up on a tree of a few
// thousand codes. The library builds its file names when it is loaded, so main writes the
// configuration into a temporary directory and runs itself again with NUMBERING_CONFIG_DIR set.
#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP_44.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesDialRulesItem.h"

#include <Poco/AutoPtr.h>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

using namespace numbering;

namespace {

const char* const CONFIG_DIR = "NUMBERING_CONFIG_DIR";
const char* const OWN_TEMP_DIR = "NUMBERING_BENCH_TEMP_DIR";

const char* const GERMAN_NUMBERS[] = {"0301234567",  "00301234567", "1234567",      "04512345678",
                                      "08912345678", "03312345678", "071176985411", "0987654321"};
const char* const BRITISH_NUMBERS[] = {"02071234567", "01611234567", "01234567890", "71234567", "1234567"};

// Codes in the order a plan file must list them: every code before the longer ones it begins.
std::string germanAreaCodeLines(int& count) {
    std::string lines;
    count = 0;
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

bool writeFile(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    return static_cast<bool>(file);
}

// Empty masks and switches keep the store from reporting missing files.
const char* const FILES[] = {"dialingrules.properties", "dlr_cnp_mask.properties",
                             "specific_format_activation.properties", "tz310cnp_49.properties",
                             "tz310cnp_44.properties"};

bool writeConfiguration(const std::string& directory) {
    int count = 0;
    return writeFile(directory + "/dlr_cnp_mask.properties", "") &&
           writeFile(directory + "/specific_format_activation.properties", "") &&
           writeFile(directory + "/dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\n"
                                                             "GB = 44:00:EF:0F::United Kingdom:P\n") &&
           writeFile(directory + "/tz310cnp_49.properties", "Translate=1\n" + germanAreaCodeLines(count)) &&
           writeFile(directory + "/tz310cnp_44.properties",
                     "Translate=1\nAC_0000=20\nAC_0001=121\nAC_0002=161\n"
                     "AC_0003=1632\nAC_0004=1234\n");
}

void removeConfiguration(const std::string& directory) {
    for (const char* name : FILES)
        std::remove((directory + "/" + name).c_str());
    ::rmdir(directory.c_str());
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
    if (std::getenv(CONFIG_DIR) == nullptr) {
        char directory[] = "/tmp/numbering-bench-XXXXXX";
        if (::mkdtemp(directory) == nullptr || !writeConfiguration(directory)) {
            std::perror("cannot prepare the configuration");
            return 1;
        }
        ::setenv(CONFIG_DIR, directory, 1);
        ::setenv(OWN_TEMP_DIR, directory, 1);
        ::execv("/proc/self/exe", argv);
        std::perror("execv");
        removeConfiguration(directory);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (const char* own = std::getenv(OWN_TEMP_DIR))
        removeConfiguration(own);
    return 0;
}
