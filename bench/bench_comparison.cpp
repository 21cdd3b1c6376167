// Side by side, in one process and one run, with a widely used phone number library: its parse of
// a national-format number with the country as default region plus its E.164 formatting, against
// our canonical and GSM conversions of the same numbers by an installation of that country (the
// national rows of bench/inputs.tsv, shipped configuration). After the timings it prints the ratio
// table (their time / ours, per country and overall), then the cold start and the memory of both:
// each sample is a fresh process (this program run again) that loads both libraries, in turns.
#include "support/BenchHost.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <benchmark/benchmark.h>
#include <phonenumbers/phonenumberutil.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

using namespace numbering;
using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

namespace {

const char* const COLD_START_SAMPLE = "--cold-start-sample";
const int COLD_START_SAMPLES = 9;

/// The national numbers of one country (or of all of them) with the installation that converts them.
struct Country {
    std::string name; // the alpha-2 code, or "all"
    std::vector<benchhost::Conversion> numbers;
};

benchhost::Installations& installations() {
    static benchhost::Installations made;
    return made;
}

std::vector<Country> countries() {
    std::vector<Country> list;
    Country all{"all", {}};
    for (const benchhost::Conversion& conversion : installations().conversions("national")) {
        if (list.empty() || list.back().name != conversion.country)
            list.push_back({conversion.country, {}});
        list.back().numbers.push_back(conversion);
        all.numbers.push_back(conversion);
    }
    list.push_back(all);
    return list;
}

template <class Convert> void overNumbers(benchmark::State& state, const Country& country, Convert convert) {
    std::size_t i = 0;
    const std::uint64_t before = benchhost::allocations();
    for (auto _ : state) {
        convert(country.numbers[i]);
        if (++i == country.numbers.size())
            i = 0;
    }
    state.counters["allocs"] = benchmark::Counter(static_cast<double>(benchhost::allocations() - before),
                                                  benchmark::Counter::kAvgIterations);
}

void registerCountry(const Country& country) {
    benchmark::RegisterBenchmark(("LibPhoneNumber/" + country.name).c_str(),
                                 [country](benchmark::State& state) {
                                     const PhoneNumberUtil* util = PhoneNumberUtil::GetInstance();
                                     PhoneNumber parsed;
                                     std::string formatted;
                                     overNumbers(state, country, [&](const benchhost::Conversion& c) {
                                         util->Parse(c.number, c.country, &parsed);
                                         util->Format(parsed, PhoneNumberUtil::E164, &formatted);
                                         benchmark::DoNotOptimize(formatted);
                                     });
                                 });
    benchmark::RegisterBenchmark(("Canonical/" + country.name).c_str(), [country](benchmark::State& state) {
        KesNumberingRules* rules = KesNumberingRules::getInstance();
        overNumbers(state, country, [&](const benchhost::Conversion& c) {
            benchmark::DoNotOptimize(rules->makeCanonicalNumber(c.rules, c.number, ""));
        });
    });
    benchmark::RegisterBenchmark(("GSM/" + country.name).c_str(), [country](benchmark::State& state) {
        KesNumberingRules* rules = KesNumberingRules::getInstance();
        overNumbers(state, country, [&](const benchhost::Conversion& c) {
            benchmark::DoNotOptimize(rules->makeGSMCanonicalNumber(c.rules, c.number, false));
        });
    });
}

/// Prints as usual and keeps, per benchmark, the median CPU time of its repetitions (or the time of
/// its only run) and its allocations.
class RecordingReporter : public benchmark::ConsoleReporter {
public:
    struct Result {
        double nanoseconds = 0;
        double allocations = 0;
    };
    std::map<std::string, Result> results;

    RecordingReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& reports) override {
        for (const Run& run : reports) {
            const bool single = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (!single && !median)
                continue;
            Result& result = results[run.run_name.str()];
            result.nanoseconds = run.GetAdjustedCPUTime();
            auto allocs = run.counters.find("allocs");
            if (allocs != run.counters.end())
                result.allocations = allocs->second.value;
        }
        ConsoleReporter::ReportRuns(reports);
    }
};

void printRatios(const RecordingReporter& reporter, const std::vector<Country>& list) {
    std::printf("\nTheir parse + E.164 format against our conversions of the same national numbers\n");
    std::printf("(median CPU ns per number; ratio = their time / ours; allocations per number)\n\n");
    std::printf("%-8s %12s %8s %12s %8s %8s %12s %8s %8s\n", "country", "theirs ns", "allocs", "canonical ns",
                "allocs", "ratio", "GSM ns", "allocs", "ratio");
    for (const Country& country : list) {
        auto find = [&](const std::string& family) {
            auto found = reporter.results.find(family + "/" + country.name);
            return found == reporter.results.end() ? RecordingReporter::Result() : found->second;
        };
        const RecordingReporter::Result theirs = find("LibPhoneNumber");
        const RecordingReporter::Result canonical = find("Canonical");
        const RecordingReporter::Result gsm = find("GSM");
        if (theirs.nanoseconds == 0 || canonical.nanoseconds == 0 || gsm.nanoseconds == 0)
            continue; // filtered out of this run
        std::printf("%-8s %12.0f %8.1f %12.0f %8.1f %7.1fx %12.0f %8.1f %7.1fx\n", country.name.c_str(),
                    theirs.nanoseconds, theirs.allocations, canonical.nanoseconds, canonical.allocations,
                    theirs.nanoseconds / canonical.nanoseconds, gsm.nanoseconds, gsm.allocations,
                    theirs.nanoseconds / gsm.nanoseconds);
    }
}

double millisecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// One cold start of each library in this fresh process, in the order given; prints
/// "ours_ms ours_bytes theirs_ms theirs_bytes".
int coldStartSample(bool oursFirst) {
    double ours[2] = {0, 0};
    double theirs[2] = {0, 0};
    auto loadOurs = [&] {
        const std::size_t heap = benchhost::heapInUse();
        const auto start = std::chrono::steady_clock::now();
        KesNumberingRules* rules = KesNumberingRules::getInstance();
        for (const benchhost::Input& input : benchhost::inputs()) {
            if (input.kind != "coldstart")
                continue;
            KesDialRulesItem installation(input.country, input.outsideLinePrefix, input.localLength,
                                          input.areaCode, 0, "");
            benchmark::DoNotOptimize(rules->makeCanonicalNumber(&installation, input.number, ""));
        }
        ours[0] = millisecondsSince(start);
        ours[1] = static_cast<double>(benchhost::heapInUse() - heap);
    };
    auto loadTheirs = [&] {
        const std::size_t heap = benchhost::heapInUse();
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(PhoneNumberUtil::GetInstance());
        theirs[0] = millisecondsSince(start);
        theirs[1] = static_cast<double>(benchhost::heapInUse() - heap);
    };
    benchhost::inputs(); // read before either clock starts
    if (oursFirst) {
        loadOurs();
        loadTheirs();
    } else {
        loadTheirs();
        loadOurs();
    }
    std::printf("%f %f %f %f\n", ours[0], ours[1], theirs[0], theirs[1]);
    return 0;
}

double median(std::vector<double> values) {
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The path of this program (the shell that runs a sample has a /proc/self/exe of its own).
std::string ownPath() {
    char path[4096];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path - 1);
    return std::string(path, length > 0 ? static_cast<std::size_t>(length) : 0);
}

void printColdStart() {
    std::vector<double> ourTimes, ourBytes, theirTimes, theirBytes;
    const std::string program = ownPath();
    for (int sample = 0; sample < COLD_START_SAMPLES; ++sample) {
        const std::string command =
            "'" + program + "' " + COLD_START_SAMPLE + (sample % 2 == 0 ? " ours" : " theirs");
        FILE* child = ::popen(command.c_str(), "r");
        double values[4];
        if (child == nullptr ||
            std::fscanf(child, "%lf %lf %lf %lf", &values[0], &values[1], &values[2], &values[3]) != 4) {
            std::fprintf(stderr, "cold start sample %d failed\n", sample);
            if (child != nullptr)
                ::pclose(child);
            continue;
        }
        ::pclose(child);
        ourTimes.push_back(values[0]);
        ourBytes.push_back(values[1]);
        theirTimes.push_back(values[2]);
        theirBytes.push_back(values[3]);
    }
    std::printf(
        "\nCold start, first in a fresh process (median of %zu samples, the two libraries loaded in turns)\n",
        ourTimes.size());
    std::printf("  ours:   %8.2f ms, %9.0f bytes of heap (store, masks, %s)\n", median(ourTimes),
                median(ourBytes),
                "every plan with its area code file, first conversion in each plan country");
    std::printf("  theirs: %8.2f ms, %9.0f bytes of heap (metadata load)\n", median(theirTimes),
                median(theirBytes));
    if (median(ourTimes) > 0 && median(ourBytes) > 0)
        std::printf("  ratio (theirs / ours): time %.2fx, memory %.2fx\n",
                    median(theirTimes) / median(ourTimes), median(theirBytes) / median(ourBytes));
}

} // namespace

int main(int argc, char** argv) {
    benchhost::useShippedWorld(argv);
    if (argc == 3 && std::strcmp(argv[1], COLD_START_SAMPLE) == 0)
        return coldStartSample(std::strcmp(argv[2], "ours") == 0);

    const std::vector<Country> list = countries();
    // Both libraries loaded and every plan warm before anything is measured; numbers they cannot
    // read are shown, since they would not measure the same work.
    const PhoneNumberUtil* util = PhoneNumberUtil::GetInstance();
    for (const benchhost::Conversion& c : list.back().numbers) {
        PhoneNumber parsed;
        std::string formatted;
        if (util->Parse(c.number, c.country, &parsed) != PhoneNumberUtil::NO_PARSING_ERROR)
            std::fprintf(stderr, "theirs cannot parse %s in %s\n", c.number.c_str(), c.country.c_str());
        util->Format(parsed, PhoneNumberUtil::E164, &formatted);
        const std::string ours =
            KesNumberingRules::getInstance()->makeGSMCanonicalNumber(c.rules, c.number, false);
        if (ours != formatted)
            std::fprintf(stderr, "%s %s: theirs %s, ours %s\n", c.country.c_str(), c.number.c_str(),
                         formatted.c_str(), ours.c_str());
    }
    for (const Country& country : list)
        registerCountry(country);

    benchmark::Initialize(&argc, argv);
    RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    printRatios(reporter, list);
    printColdStart();
    return 0;
}
