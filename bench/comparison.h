#pragma once

#include <chrono>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

// One run of a piece of work: does it once and returns the seconds that count; preparations don't.
using Run = std::function<double()>;

template<class Work>
double secondsOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The same without what the process waits for, the disk above all.
template<class Work>
double cpuSecondsOf(Work&& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// What a measured time is held against.
struct Aim {
    enum class Kind {
        timesLimit,   // at most so many times the limit of the same run
        milliseconds, // at most
        atMost,       // in the figure's own unit
        perSecond,    // at least so many pieces
        none          // shown for information
    };
    Kind kind = Kind::none;
    double value = 0;
};

// A piece of work of the program against the limit of what the machine can do for it.
struct Comparison {
    std::string item;
    Run ours;
    std::string limitName;
    Run limit; // may be missing
    Aim aim;
    int pieces = 1; // in one run
};

// The same work for three sizes of the database: what its time for each client does.
struct Growth {
    std::string item;
    std::function<double(int clients)> ours;
};

// A figure that is taken once, such as a size; all of them after the measuring.
struct Figure {
    std::string item;
    std::function<double()> ours;
    const char* format; // with its unit
    Aim aim;
    std::string limitName = {};
    std::function<double()> limit = {}; // may be missing
};

// Collects all that is to be measured, measures it and prints the tables. Of several turns the best one counts: other
// work on the machine only ever adds.
class Suite {
public:
    void add(Comparison comparison) { comparisons_.push_back(std::move(comparison)); }
    void add(Growth growth) { growths_.push_back(std::move(growth)); }
    void add(Figure figure) { figures_.push_back(std::move(figure)); }

    // Measures those alone whose item contains `wanted`; all if it is empty. To be called once.
    void run(const std::string& wanted);

private:
    void runComparisons();
    void runGrowths();
    void printFigures() const;

    std::vector<Comparison> comparisons_;
    std::vector<Growth> growths_;
    std::vector<Figure> figures_;
};
