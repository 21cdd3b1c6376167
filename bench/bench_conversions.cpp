// Cost of the facade's conversions, the path every call of the host takes, on a mix of national,
// international and local numbers for three installations: Paris and Munich (whose countries have
// plans) and Stockholm (generic rules only). The library builds its file names when it is loaded,
// so main writes the configuration into a temporary directory and runs itself again with
// NUMBERING_CONFIG_DIR set.
#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"

#include <benchmark/benchmark.h>

#include "numbering/KesUnsupportedCountryException.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

// The benchmark is the host: debug tracing off, error lines (there should be none) to stderr.
bool Logger::m_Traces = false;

void FlogWrite(const char* text, short) {
    if (std::strncmp(text, "ERROR ", 6) == 0)
        std::fprintf(stderr, "%s\n", text);
}

using namespace numbering;

namespace {

const char* const CONFIG_DIR = "NUMBERING_CONFIG_DIR";
const char* const OWN_TEMP_DIR = "NUMBERING_BENCH_TEMP_DIR";

struct ConfigurationFile {
    const char* name;
    const char* content;
};

const ConfigurationFile CONFIGURATION[] = {
    {"dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\n"
                                "ES = 34:00:EF:F:F:Spain:P\n"
                                "FR = 33:00:EF:0F::France:P\n"
                                "GB = 44:00:EF:0F::United Kingdom:P\n"
                                "IT = 39:00:EF:F:F:Italy:P\n"
                                "SE = 46:00:EF:0F::Sweden:P\n"
                                "US = 1:011:EF:1F::United States:P\n"},
    {"dlr_cnp_mask.properties", "Mask_33_1 = +C (a) x xx xx xx xx\n"
                                "Mask_46_1 = +C (a) xxx xxx xx\n"
                                "Mask_49_1 = +C (A) xxxx xxxx\n"},
    {"specific_format_activation.properties", ""},
    {"tz310cnp_49.properties", "Translate = 1\nAC_0000 = 30\nAC_0001 = 40\nAC_0002 = 69\nAC_0003 = 89\n"
                               "AC_0004 = 221\nAC_0005 = 711\n"},
    {"tz310cnp_44.properties", "Translate = 1\nAC_0000 = 20\nAC_0001 = 121\nAC_0002 = 161\n"},
};

bool writeConfiguration(const std::string& directory) {
    for (const ConfigurationFile& file : CONFIGURATION) {
        std::ofstream out(directory + "/" + file.name, std::ios::binary | std::ios::trunc);
        out << file.content;
        if (!out)
            return false;
    }
    return true;
}

void removeConfiguration(const std::string& directory) {
    for (const ConfigurationFile& file : CONFIGURATION)
        std::remove((directory + "/" + file.name).c_str());
    ::rmdir(directory.c_str());
}

/// An installation and what its users dial: national, international (by prefix and canonical),
/// local and extension numbers, and the canonical numbers they convert to.
struct Installation {
    const char* name;
    std::unique_ptr<KesDialRulesItem> rules;
    std::vector<std::string> typed;
    std::vector<std::string> canonical;
};

std::vector<Installation> makeInstallations() {
    std::vector<Installation> installations;
    installations.push_back({"Paris",
                             std::make_unique<KesDialRulesItem>("FR", "0", 4, "1", 0, ""),
                             {"01 23 45 67 89", "06 12 34 56 78", "00 49 89 123456", "+44 20 7946 0958",
                              "+33 4 76 11 22 33", "23 45 67 89", "123"},
                             {}});
    installations.push_back({"Munich",
                             std::make_unique<KesDialRulesItem>("DE", "0", 4, "89", 0, ""),
                             {"030 1234567", "0711 98765", "0033 1 23 45 67 89", "+39 06 1234 5678",
                              "1234567", "+49 89 123456", "123"},
                             {}});
    installations.push_back({"Stockholm",
                             std::make_unique<KesDialRulesItem>("SE", "0", 4, "8", 0, ""),
                             {"08-123 456 78", "031 123 456", "00 39 06 1234 5678", "+34 91 123 45 67",
                              "+46 8 123 456 78", "12345678", "123"},
                             {}});
    // One pass outside the measurement fills the plan and strategy caches.
    KesNumberingRules* facade = KesNumberingRules::getInstance();
    for (Installation& installation : installations)
        for (const std::string& number : installation.typed) {
            std::string canonical = facade->makeCanonicalNumber(installation.rules.get(), number, "");
            if (!canonical.empty() && canonical[0] == '+')
                installation.canonical.push_back(canonical);
            facade->makePhoneNumber(installation.rules.get(), number);
        }
    return installations;
}

const std::vector<Installation>& installations() {
    static const std::vector<Installation> made = makeInstallations();
    return made;
}

const Installation& installation(const benchmark::State& state) {
    return installations().at(static_cast<std::size_t>(state.range(0)));
}

/// Runs `convert(rules, number)` over the installation's numbers in turn.
template <class Convert>
void overNumbers(benchmark::State& state, const std::vector<std::string> Installation::*numbers,
                 Convert convert) {
    const Installation& place = installation(state);
    const std::vector<std::string>& inputs = place.*numbers;
    std::size_t i = 0;
    for (auto _ : state) {
        convert(place.rules.get(), inputs[i]);
        if (++i == inputs.size())
            i = 0;
    }
    state.SetLabel(place.name);
    state.SetItemsProcessed(state.iterations());
}

KesNumberingRules* facade() {
    return KesNumberingRules::getInstance();
}

void MakeCanonicalNumber(benchmark::State& state) {
    overNumbers(state, &Installation::typed, [](KesDialRulesItem* rules, const std::string& number) {
        benchmark::DoNotOptimize(facade()->makeCanonicalNumber(rules, number, ""));
    });
}

void MakeDialableNumber(benchmark::State& state) {
    overNumbers(state, &Installation::canonical, [](KesDialRulesItem* rules, const std::string& number) {
        benchmark::DoNotOptimize(facade()->makeDialableNumber(rules, number));
    });
}

void MakePhoneNumber(benchmark::State& state) {
    overNumbers(state, &Installation::typed, [](KesDialRulesItem* rules, const std::string& number) {
        benchmark::DoNotOptimize(facade()->makePhoneNumber(rules, number));
    });
}

void MakeClid(benchmark::State& state) {
    overNumbers(state, &Installation::typed, [](KesDialRulesItem* rules, const std::string& number) {
        KesClid* clid = facade()->makeClid(rules, number);
        benchmark::DoNotOptimize(clid);
        if (clid != nullptr)
            clid->release();
    });
}

void MakeGSMCanonicalNumber(benchmark::State& state) {
    overNumbers(state, &Installation::typed, [](KesDialRulesItem* rules, const std::string& number) {
        benchmark::DoNotOptimize(facade()->makeGSMCanonicalNumber(rules, number, false));
    });
}

BENCHMARK(MakeCanonicalNumber)->DenseRange(0, 2);
BENCHMARK(MakeDialableNumber)->DenseRange(0, 2);
BENCHMARK(MakePhoneNumber)->DenseRange(0, 2);
BENCHMARK(MakeClid)->DenseRange(0, 2);
BENCHMARK(MakeGSMCanonicalNumber)->DenseRange(0, 2);

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
    // A configuration directory of the caller's own must know the three installations' countries.
    try {
        installations();
    } catch (const KesUnsupportedCountryException& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (const char* own = std::getenv(OWN_TEMP_DIR))
        removeConfiguration(own);
    return 0;
}
