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
constexpr double mostGrowth = 2.5;

double median(std::vector<double> values) {
    if (values.empty()) return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

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
    // Of the repetitions.
    double medianOf(const std::string& name) const { return median(seconds_.at(name)); }

private:
    std::map<std::string, std::vector<double>> seconds_;
};

struct Named {
    std::string name;
    Run run;
};

// Measures these in turn, again and again, so that what else the machine does falls on all of them alike. Medians, in
// the order of the runs.
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
    std::vector<double> medians;
    for (const Named& named : runs)
        medians.push_back(times.medianOf(named.name));
    return medians;
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

Verdict verdict(const Aim& aim, double ours, double limit, int pieces) {
    switch (aim.kind) {
    case Aim::Kind::timesLimit:
        return {text("<= %g x", aim.value), ours <= aim.value * limit};
    case Aim::Kind::milliseconds:
        return {text("<= %g ms", aim.value), ours * 1000 <= aim.value};
    case Aim::Kind::perSecond:
        return {text(">= %g M/s", aim.value / 1e6), pieces / ours >= aim.value};
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
        const std::vector<double> medians = measure(each.item, runs);
        const double ours = medians.front();
        const double limit = each.limit ? medians.back() : 0;
        const bool asRate = each.aim.kind == Aim::Kind::perSecond;
        const auto shown = [&](double seconds) { return asRate ? rateText(each.pieces / seconds) : timeText(seconds); };
        printRow(each.item, shown(ours), each.limit ? shown(limit) : "-", each.limitName,
                 each.limit ? text("%.2f", ours / limit) : "-", verdict(each.aim, ours, limit, each.pieces));
    }
}

void Suite::printFigures() const {
    for (const Figure& each : figures_) {
        const double ours = each.ours();
        const double limit = each.limit();
        printRow(each.item, text("%.0f", ours), text("%.0f", limit), each.limitName, text("%.2f", ours / limit),
                 {text("<= %g x", each.atMostTimes), ours <= each.atMostTimes * limit});
    }
}

void Suite::runGrowths() {
    std::printf("\nTime for each client as the database grows; N log N gives %.2f, a square 10.\n\n",
                std::log(growthSizes.back()) / std::log(growthSizes.front()));
    std::printf("| %-28s | %10d | %10d | %10d | %7s | %9s | ok   |\n", "item", growthSizes[0], growthSizes[1],
                growthSizes[2], "growth", "aim");
    for (const Growth& each : growths_) {
        std::vector<Named> runs;
        for (const int clients : growthSizes)
            runs.push_back({std::to_string(clients), [&each, clients] { return each.ours(clients); }});
        std::vector<double> medians = measure(each.item, runs);
        for (std::size_t size = 0; size < medians.size(); ++size)
            medians[size] = medians[size] / growthSizes[size] * 1e9;
        const double growth = medians.back() / medians.front();
        std::printf("| %-28s | %7.0f ns | %7.0f ns | %7.0f ns | %7.2f | %9s | %-4s |\n", each.item.c_str(), medians[0],
                    medians[1], medians[2], growth, text("<= %g", mostGrowth).c_str(),
                    growth <= mostGrowth ? "ok" : "OVER");
        std::fflush(stdout);
    }
}
