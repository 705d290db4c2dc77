#include "benches.h"
#include "comparison.h"
#include "printing/amount_in_words.h"

#include <cstring>
#include <random>
#include <vector>

namespace {

constexpr int amountCount = 1'000'000;

// Of all sizes up to 9,999,999, as they come.
const std::vector<std::int32_t>& amounts() {
    static const std::vector<std::int32_t> all = [] {
        std::mt19937 generator(7);
        std::vector<std::int32_t> made(amountCount);
        for (std::int32_t& amount : made)
            amount = static_cast<std::int32_t>(1 + generator() % 9'999'999);
        return made;
    }();
    return all;
}

double timeOfWords() {
    amounts();
    volatile qsizetype letters = 0;
    return secondsOf([&] {
        qsizetype sum = 0;
        for (const std::int32_t amount : amounts()) {
            const WordLines words = azaz1(amount);
            sum += words.upper.size() + words.lower.size();
        }
        letters = sum;
    });
}

// All words of the amounts one behind the other.
double timeOfCopy() {
    static const QString text = [] {
        QString all;
        for (const std::int32_t amount : amounts()) {
            const WordLines words = azaz1(amount);
            all += words.upper;
            all += words.lower;
        }
        return all;
    }();
    static std::vector<char> target(static_cast<std::size_t>(text.size()) * sizeof(QChar));
    return secondsOf([&] { std::memcpy(target.data(), text.constData(), target.size()); });
}

} // namespace

void addWordsBenches(Suite& suite) {
    suite.add(Comparison{"amounts in words (azaz1)",
                         timeOfWords,
                         "copy of their bytes",
                         timeOfCopy,
                         {Aim::Kind::perSecond, 5e6},
                         amountCount});
}
