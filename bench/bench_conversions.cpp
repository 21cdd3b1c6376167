// Cost of the facade's conversions, the path of every call of the host, on the committed input
// set (bench/inputs.tsv: national, international, local and service numbers of a dozen
// installations, country plans and generic rules mixed) with the shipped configuration (data/).
// Every conversion reports its heap allocations ("allocs", per conversion); the "/threads:2" runs
// show how throughput grows with a second thread once the caches are warm. ColdStart measures
// the load of the whole shipped world: the store, the masks, and every country plan with its area
// code file, through the first conversion in each plan country.
#include "support/BenchHost.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdio>
#include <exception>
#include <string>
#include <thread>
#include <vector>

using namespace numbering;
using benchhost::Conversion;

namespace {

const char* const TYPED = "national,international,local,service";

KesNumberingRules* facade() {
    return KesNumberingRules::getInstance();
}

struct Workload {
    benchhost::Installations installations;
    std::vector<Conversion> typed;     // numbers as the users type them
    std::vector<Conversion> canonical; // their canonical forms
};

Workload& workload() {
    static Workload work = [] {
        Workload made;
        made.typed = made.installations.conversions(TYPED);
        for (const Conversion& conversion : made.typed) {
            std::string canonical = facade()->makeCanonicalNumber(conversion.rules, conversion.number, "");
            if (!canonical.empty() && canonical[0] == '+')
                made.canonical.push_back({conversion.rules, canonical, conversion.country});
        }
        return made;
    }();
    return work;
}

/// One pass of every operation over every input, outside any measurement: fills the plan and
/// strategy caches (which must be warm before threads convert).
void warmUp() {
    Workload& work = workload();
    for (const Conversion& c : work.typed) {
        facade()->makeCanonicalNumber(c.rules, c.number, "");
        facade()->makeGSMCanonicalNumber(c.rules, c.number, false);
        facade()->makePhoneNumber(c.rules, c.number);
        if (KesClid* clid = facade()->makeClid(c.rules, c.number))
            clid->release();
    }
    for (const Conversion& c : work.canonical) {
        facade()->formatCanonicalNumber(c.number, "");
        facade()->makeDialableNumber(c.rules, c.number);
    }
}

/// Runs `convert(conversion)` over `conversions` in turn; each thread starts at its own place.
template <class Convert>
void overConversions(benchmark::State& state, const std::vector<Conversion>& conversions, Convert convert) {
    std::size_t i = static_cast<std::size_t>(state.thread_index()) * conversions.size() /
                    static_cast<std::size_t>(state.threads());
    const std::uint64_t before = benchhost::allocations();
    for (auto _ : state) {
        convert(conversions[i]);
        if (++i == conversions.size())
            i = 0;
    }
    state.counters["allocs"] = benchmark::Counter(static_cast<double>(benchhost::allocations() - before),
                                                  benchmark::Counter::kAvgIterations);
    state.SetItemsProcessed(state.iterations());
}

void MakeCanonicalNumber(benchmark::State& state) {
    overConversions(state, workload().typed, [](const Conversion& c) {
        benchmark::DoNotOptimize(facade()->makeCanonicalNumber(c.rules, c.number, ""));
    });
}

void MakePhoneNumber(benchmark::State& state) {
    overConversions(state, workload().typed, [](const Conversion& c) {
        benchmark::DoNotOptimize(facade()->makePhoneNumber(c.rules, c.number));
    });
}

void MakeClid(benchmark::State& state) {
    overConversions(state, workload().typed, [](const Conversion& c) {
        KesClid* clid = facade()->makeClid(c.rules, c.number);
        benchmark::DoNotOptimize(clid);
        if (clid != nullptr)
            clid->release();
    });
}

void MakeGSMCanonicalNumber(benchmark::State& state) {
    overConversions(state, workload().typed, [](const Conversion& c) {
        benchmark::DoNotOptimize(facade()->makeGSMCanonicalNumber(c.rules, c.number, false));
    });
}

/// The bulk caller's way: each result appended to a string reused from one number to the next.
void AppendCanonicalNumber(benchmark::State& state) {
    std::string line;
    overConversions(state, workload().typed, [&line](const Conversion& c) {
        line.clear();
        facade()->appendCanonicalNumber(c.rules, c.number, "", false, line);
        benchmark::DoNotOptimize(line.data());
    });
}

void AppendGSMCanonicalNumber(benchmark::State& state) {
    std::string line;
    overConversions(state, workload().typed, [&line](const Conversion& c) {
        line.clear();
        facade()->appendGSMCanonicalNumber(c.rules, c.number, false, line);
        benchmark::DoNotOptimize(line.data());
    });
}

void FormatCanonicalNumber(benchmark::State& state) {
    overConversions(state, workload().canonical, [](const Conversion& c) {
        benchmark::DoNotOptimize(facade()->formatCanonicalNumber(c.number, ""));
    });
}

void MakeDialableNumber(benchmark::State& state) {
    overConversions(state, workload().canonical, [](const Conversion& c) {
        benchmark::DoNotOptimize(facade()->makeDialableNumber(c.rules, c.number));
    });
}

/// The library loaded from nothing: getInstance, then the first conversion in each country that has
/// a numbering plan (each loads its plan, its area code file and its dialing strategy).
void ColdStart(benchmark::State& state) {
    std::vector<benchhost::Input> first;
    for (const benchhost::Input& input : benchhost::inputs())
        if (input.kind == "coldstart")
            first.push_back(input);
    std::size_t loadedBytes = 0;
    std::uint64_t loadAllocations = 0;
    for (auto _ : state) {
        state.PauseTiming();
        KesNumberingRules::resetInstance();
        const std::size_t heapBefore = benchhost::heapInUse();
        const std::uint64_t allocationsBefore = benchhost::allocations();
        state.ResumeTiming();
        KesNumberingRules* rules = KesNumberingRules::getInstance();
        for (const benchhost::Input& input : first) {
            KesDialRulesItem installation(input.country, input.outsideLinePrefix, input.localLength,
                                          input.areaCode, 0, "");
            benchmark::DoNotOptimize(rules->makeCanonicalNumber(&installation, input.number, ""));
        }
        state.PauseTiming();
        loadedBytes = benchhost::heapInUse() - heapBefore;
        loadAllocations = benchhost::allocations() - allocationsBefore;
        state.ResumeTiming();
    }
    state.counters["heap_bytes"] = static_cast<double>(loadedBytes);
    state.counters["allocs"] = static_cast<double>(loadAllocations);
    state.counters["plans"] = static_cast<double>(first.size());
    warmUp(); // the benchmarks that follow expect warm caches
}

/// A reload of the shipped configuration while nothing converts: every file it may need read (the
/// store's and the plans'), the store built, the previous configuration freed (its plans included,
/// which the next conversions build again, from the files read by the reload).
void Reload(benchmark::State& state) {
    for (auto _ : state)
        KesNumberingRules::reload();
    warmUp();
}

/// Canonical conversions on 8 threads while another thread reloads back to back, as a host re-reading
/// its files under traffic: every conversion pins a configuration, and every reload waits for the
/// conversions on the old one and frees it.
void MakeCanonicalNumberWhileReloading(benchmark::State& state) {
    static std::atomic<bool> reloading;
    static std::atomic<int> reloads;
    static std::thread reloader;
    if (state.thread_index() == 0) {
        reloading = true;
        reloads = 0;
        reloader = std::thread([] {
            while (reloading) {
                KesNumberingRules::reload();
                ++reloads;
            }
        });
    }
    overConversions(state, workload().typed, [](const Conversion& c) {
        benchmark::DoNotOptimize(facade()->makeCanonicalNumber(c.rules, c.number, ""));
    });
    if (state.thread_index() == 0) {
        reloading = false;
        reloader.join();
        state.counters["reloads"] = static_cast<double>(reloads.load());
    }
}

// The first number of threads is the reference for the second.
BENCHMARK(MakeCanonicalNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(MakeGSMCanonicalNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(AppendCanonicalNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(AppendGSMCanonicalNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(MakePhoneNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(MakeClid)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(FormatCanonicalNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(MakeDialableNumber)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(ColdStart)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(Reload)->Unit(benchmark::kMicrosecond);
BENCHMARK(MakeCanonicalNumberWhileReloading)->Threads(8)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    benchhost::useShippedWorld(argv);
    try {
        warmUp();
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
