#include "comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>

namespace {

constexpr int repetitions = 9;
constexpr std::array<int, 3> growthSizes{30'000, 100'000, 300'000};
// N log N gives 1.22 from the first size to the last and a square gives 10; what lies between is room for the caches,
// which hold the small database and not the large one.
constexpr double mostGrowth = 1.6;

// Keeps the times and prints nothing.
class Times : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<benchmark::BenchmarkReporter::Run>& runs) override {
        for (const auto& run : runs)
            if (run.run_type == benchmark::BenchmarkReporter::Run::RT_Iteration)
                seconds_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                               static_cast<double>(run.iterations));
    }
    double bestOf(const std::string& name) const { return std::ranges::min(seconds_.at(name)); }

private:
    std::map<std::string, std::vector<double>> seconds_;
};

struct Named {
    std::string name;
    Run run;
};

// Measures these in turn, again and again, so that what else the machine does falls on all of them alike. The best
// times, in the order of the runs.
std::vector<double> measure(const std::string& item, const std::vector<Named>& runs) {
    std::fprintf(stderr, "%s ...\n", item.c_str());
    for (const Named& named : runs) {
        const auto body = [run = named.run](benchmark::State& state) {
            for ([[maybe_unused]] auto _ : state)
                state.SetIterationTime(run());
        };
        benchmark::RegisterBenchmark(named.name.c_str(), body)
            ->UseManualTime()
            ->MinTime(0.02)
            ->Repetitions(repetitions);
    }
    Times times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::ClearRegisteredBenchmarks(); // the library would keep what they hold, windows too, beyond the end of
                                            // main
    std::vector<double> best;
    for (const Named& named : runs)
        best.push_back(times.bestOf(named.name));
    return best;
}

std::string text(const char* format, double value) {
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, value);
    return buffer.data();
}

std::string timeText(double seconds) {
    const double ms = seconds * 1000;
    return text(ms < 10 ? "%.2f ms" : "%.0f ms", ms);
}

std::string rateText(double perSecond) { return text("%.1f M/s", perSecond / 1e6); }

struct Verdict {
    std::string aim;
    bool held;
};

Verdict verdict(const Aim& aim, double ours, double limit, int pieces, const char* format = "%g") {
    switch (aim.kind) {
    case Aim::Kind::timesLimit:
        return {text("<= %g x", aim.value), ours <= aim.value * limit};
    case Aim::Kind::milliseconds:
        return {text("<= %g ms", aim.value), ours * 1000 <= aim.value};
    case Aim::Kind::perSecond:
        return {text(">= %g M/s", aim.value / 1e6), pieces / ours >= aim.value};
    case Aim::Kind::atMost:
        return {"<= " + text(format, aim.value), ours <= aim.value};
    case Aim::Kind::none:
        break;
    }
    return {"-", true};
}

void printRow(const std::string& item, const std::string& ours, const std::string& limit, const std::string& limitName,
              const std::string& ratio, const Verdict& verdict) {
    std::printf("| %-46s | %10s | %10s | %-32s | %7s | %9s | %-4s |\n", item.c_str(), ours.c_str(), limit.c_str(),
                limitName.c_str(), ratio.c_str(), verdict.aim.c_str(), verdict.held ? "ok" : "OVER");
    std::fflush(stdout);
}

void printHead() { printRow("item", "measured", "limit", "what the limit is", "ratio", {"aim", true}); }

} // namespace

void Suite::run(const std::string& wanted) {
    // Repetitions of what is compared take turns.
    std::array<char, 16> program{"tarlimo_bench"};
    std::array<char, 64> interleaved{"--benchmark_enable_random_interleaving=true"};
    std::array<char*, 2> arguments{program.data(), interleaved.data()};
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    const auto isUnwanted = [&wanted](const auto& each) { return each.item.find(wanted) == std::string::npos; };
    std::erase_if(comparisons_, isUnwanted);
    std::erase_if(figures_, isUnwanted);
    std::erase_if(growths_, isUnwanted);
    if (!comparisons_.empty() || !figures_.empty()) printHead();
    runComparisons();
    printFigures();
    if (!growths_.empty()) runGrowths();
}

void Suite::runComparisons() {
    for (const Comparison& each : comparisons_) {
        std::vector<Named> runs{{"ours", each.ours}};
        if (each.limit) runs.push_back({"limit", each.limit});
        const std::vector<double> best = measure(each.item, runs);
        const double ours = best.front();
        const double limit = each.limit ? best.back() : 0;
        const bool asRate = each.aim.kind == Aim::Kind::perSecond;
        const auto shown = [&](double seconds) { return asRate ? rateText(each.pieces / seconds) : timeText(seconds); };
        printRow(each.item, shown(ours), each.limit ? shown(limit) : "-", each.limitName,
                 each.limit ? text("%.2f", ours / limit) : "-", verdict(each.aim, ours, limit, each.pieces));
    }
}

void Suite::printFigures() const {
    for (const Figure& each : figures_) {
        const double ours = each.ours();
        const double limit = each.limit ? each.limit() : 0;
        printRow(each.item, text(each.format, ours), each.limit ? text(each.format, limit) : "-", each.limitName,
                 each.limit ? text("%.2f", ours / limit) : "-", verdict(each.aim, ours, limit, 1, each.format));
    }
}

void Suite::runGrowths() {
    std::printf("\nTime for each client as the database grows; N log N gives %.2f, a square 10.\n\n",
                std::log(growthSizes.back()) / std::log(growthSizes.front()));
    std::printf("| %-24s | %18d | %18d | %18d | %6s | %6s | ok   |\n", "item", growthSizes[0], growthSizes[1],
                growthSizes[2], "growth", "aim");
    for (const Growth& each : growths_) {
        std::vector<Named> runs;
        for (const int clients : growthSizes)
            runs.push_back({std::to_string(clients), [&each, clients] { return each.ours(clients); }});
        const std::vector<double> best = measure(each.item, runs);
        std::array<double, growthSizes.size()> forEach{}; // seconds
        std::printf("| %-24s |", each.item.c_str());
        for (std::size_t size = 0; size < best.size(); ++size) {
            forEach[size] = best[size] / growthSizes[size];
            std::printf(" %18s |", (timeText(best[size]) + text(", %.0f ns", forEach[size] * 1e9)).c_str());
        }
        const double growth = forEach.back() / forEach.front();
        std::printf(" %6.2f | %6s | %-4s |\n", growth, text("<= %g", mostGrowth).c_str(),
                    growth <= mostGrowth ? "ok" : "OVER");
        std::fflush(stdout);
    }
}
