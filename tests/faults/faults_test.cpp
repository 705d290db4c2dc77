#include "actions.h"
#include "exchange/import_notes.h"
#include "intercepted_calls.h"
#include "records/client_database.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct FaultRow {
    const char* name;
    Fault fault;
    std::size_t sample; // how many calls of an action are tried, where not all are
    bool mustSucceed = false;
};
constexpr FaultRow faults[] = {
    {"kill", Fault::kill, 10},    {"EIO", Fault::eio, 8},           {"ENOSPC", Fault::enospc, 4},
    {"EACCES", Fault::eacces, 4}, {"EINTR", Fault::eintr, 4, true}, {"short write", Fault::shortWrite, 2, true},
};
constexpr std::size_t powerSample = 40;

// scripts/torture tries everything.
bool triesAll() { return std::getenv("TARLIMO_TORTURE") != nullptr; }

// So many of `count`, evenly spread.
std::vector<std::size_t> spread(std::size_t count, std::size_t sample) {
    if (triesAll() || count < sample) sample = count;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < sample; ++i)
        places.push_back(i * count / sample);
    return places;
}

// The image with what doesn't matter made alike: twins behind the last client belong to nobody, and missing ones read
// as zeros; a PDF has a name and a date of its own, and is whole if the end finds its table.
DiskImage comparable(DiskImage image) {
    StoredFile& twins = image["kozl3sor.dat"];
    twins.bytes.resize(image["nevek1.dat"].bytes.size() / sizeof(ClientRec) * sizeof(TwinRec));
    image.erase("Tarlimo.zar"); // of a dead process, it counts for nothing
    for (auto file = image.begin(); file != image.end();) {
        if (!file->first.ends_with(".pdf")) {
            ++file;
            continue;
        }
        const std::string& bytes = file->second.bytes;
        const std::size_t end = bytes.rfind("startxref\n");
        const std::size_t table = end == std::string::npos ? 0 : std::stoul(bytes.substr(end + 10));
        const bool isWhole = table > 0 && bytes.compare(table, 4, "xref") == 0 && bytes.ends_with("%%EOF\n");
        image["nyomtatas/*.pdf"] = {isWhole ? "whole" : "damaged"};
        file = file->first == "nyomtatas/*.pdf" ? std::next(file) : image.erase(file);
    }
    return image;
}

// What a process found out that was forked for the purpose.
struct Report {
    int status = -1;        // of its end
    char told = '?';        // a Told; '?' if it never came so far
    std::size_t states = 0; // tried
    std::vector<Call> calls{};
    std::string wrong{};
};

// In a process that knows all that this one does, and may be killed.
template<class Job>
Report inProcess(Job job) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t process = fork();
    if (process == 0) {
        alarm(triesAll() ? 3000 : 60);
        const Report report = job();
        std::FILE* out = fdopen(ends[1], "w");
        std::fprintf(out, "%c %zu ", report.told, report.states);
        for (const Call call : report.calls)
            std::fputc('a' + static_cast<char>(call), out);
        std::fprintf(out, ".\n%s", report.wrong.c_str());
        std::fclose(out);
        _exit(0);
    }
    close(ends[1]);
    Report report;
    std::FILE* in = fdopen(ends[0], "r");
    if (std::fscanf(in, "%c %zu ", &report.told, &report.states) == 2) {
        int letter = 0;
        while ((letter = std::fgetc(in)) >= 'a')
            report.calls.push_back(static_cast<Call>(letter - 'a'));
        std::fgetc(in); // the line's end
        while ((letter = std::fgetc(in)) != EOF)
            report.wrong += static_cast<char>(letter);
    }
    std::fclose(in);
    waitpid(process, &report.status, 0);
    return report;
}

class Trial {
public:
    explicit Trial(const Action& action)
        : action_(action)
        , work_(action.ready(stage_))
        , before_(readImage(stage_.path())) {}

    // The action without a fault.
    Report goThrough() {
        const Report report = run(Fault::none, 0);
        startAgain();
        after_ = readImage(stage_.path());
        return report;
    }
    bool changesFiles() const { return !isSame(comparable(before_), comparable(after_)); }

    // What came of a fault at that call that must not; empty for nothing.
    std::string faultAt(const FaultRow& row, std::size_t call) {
        writeImage(stage_.path(), before_);
        const Report report = run(row.fault, static_cast<int>(call));
        if (row.fault == Fault::kill)
            return WEXITSTATUS(report.status) == killedStatus ? wrongAfter('?') : "not killed";
        if (report.told == '?') return "crashed or hangs";
        if (row.mustSucceed && report.told != told(Told::done)) return "told as failed";
        return wrongAfter(action_.tellsFailures ? report.told : '?');
    }

    // The same for what the disk may hold after a failure of the power.
    Report powerFailures() {
        writeImage(stage_.path(), before_);
        return inProcess([this] {
            std::vector<DiskStep> steps;
            {
                const Interception interception(stage_.path(), Fault::none, 0);
                work_();
                steps = interception.steps();
            }
            if (!isSame(imageAfter(before_, steps), readImage(stage_.path())))
                return Report{.told = told(Told::done), .wrong = "a call changes files that isn't intercepted"};
            std::size_t count = 0;
            forEachPowerFailure(before_, steps, [&](const DiskImage& /*state*/, bool /*ended*/) { ++count; });
            const std::vector<std::size_t> chosen = spread(count, powerSample);
            Report report{.told = told(Told::done), .states = chosen.size()};
            std::size_t place = 0;
            forEachPowerFailure(before_, steps, [&](const DiskImage& state, bool ended) {
                if (!std::binary_search(chosen.begin(), chosen.end(), place++)) return;
                writeImage(stage_.path(), state);
                const std::string wrong = wrongAfter(ended && action_.tellsFailures ? told(Told::done) : '?');
                if (!wrong.empty()) report.wrong += wrong + "; the disk held" + differences(state) + '\n';
            });
            return report;
        });
    }

private:
    static char told(Told what) { return "dfp"[static_cast<int>(what)]; }

    Report run(Fault fault, int at) {
        return inProcess([=, this] {
            const Interception interception(stage_.path(), fault, at);
            Report report;
            report.told = told(work_());
            report.calls = interception.calls();
            return report;
        });
    }

    // What the next start does ahead of all else.
    void startAgain() const {
        removeUnfinished(stage_.folder().folder().file(QStringLiteral("nyomtatas")));
        (void)finishInterruptedCommit(stage_.folder());
    }

    // The one check: what the action and the next start have left. '?': nothing was told.
    std::string wrongAfter(char toldWhat) {
        startAgain();
        DiskImage found = comparable(readImage(stage_.path()));
        std::string wrong;
        if (action_.again) {
            action_.again(stage_);
            const DiskImage inTheEnd = comparable(readImage(stage_.path()));
            if (!isSame(inTheEnd, comparable(after_))) wrong += " in the end not done once:" + differences(inTheEnd);
            found.erase(importNotesFile);
        }
        return wrong + wrongIn(found, toldWhat);
    }

    std::string wrongIn(const DiskImage& found, char toldWhat) const {
        DiskImage before = comparable(before_);
        for (const char* waiting : {"nevx.dat", "xxkoz.dat", "csere.kesz"})
            before.erase(waiting); // of a commit that the next start finishes or drops
        const DiskImage after = comparable(after_);
        const std::set<std::string> pair{"nevek1.dat", "kozl3sor.dat", "nevekR.dat"};
        bool pairIsOld = true, pairIsNew = true;
        std::string wrong;
        DiskImage all = before;
        all.insert(after.begin(), after.end());
        all.insert(found.begin(), found.end());
        for (const auto& [path, file] : all) {
            if (path.ends_with('/')) continue; // a folder that was made for a file may stay
            const bool isOld = isSame(path, found, before);
            const bool isNew = isSame(path, found, after);
            if (pair.contains(path)) {
                pairIsOld = pairIsOld && isOld;
                pairIsNew = pairIsNew && isNew;
            }
            if (path == importNotesFile && action_.again) continue;
            if (path == action_.writtenInPlace && (toldWhat == '?' || toldWhat == told(Told::partly))) continue;
            if (!isOld && !isNew) wrong += ' ' + path + " is neither old nor new";
            if (toldWhat == told(Told::done) && !isNew) wrong += ' ' + path + " isn't new";
            const bool mayBeNew = action_.storesSeveral || toldWhat != told(Told::failed);
            if (!isOld && !mayBeNew) wrong += ' ' + path + " isn't old";
        }
        if (!pairIsOld && !pairIsNew) wrong += " the clients are out of step";
        return wrong;
    }

    static bool isSame(const std::string& path, const DiskImage& a, const DiskImage& b) {
        const auto inA = a.find(path);
        const auto inB = b.find(path);
        if (inA == a.end() || inB == b.end()) return inA == a.end() && inB == b.end();
        return inA->second.bytes == inB->second.bytes;
    }
    static bool isSame(const DiskImage& a, const DiskImage& b) {
        return a.size() == b.size() &&
               std::all_of(a.begin(), a.end(), [&](const auto& entry) { return isSame(entry.first, a, b); });
    }
    // How a disk differs from the one that the action met: names with sizes, those that are gone with '-'.
    std::string differences(const DiskImage& image) const {
        std::string names;
        for (const auto& [name, file] : image)
            if (!isSame(name, image, before_)) names += ' ' + name + ':' + std::to_string(file.bytes.size());
        for (const auto& [name, file] : before_)
            if (!image.contains(name)) names += " -" + name;
        return names;
    }

    const Action& action_;
    Stage stage_;
    Action::Work work_;
    DiskImage before_;
    DiskImage after_;
};

class Faults : public testing::TestWithParam<std::size_t> {};

// For scripts/torture, which adds them up.
void count(const Action& action, const char* mode, std::size_t trials, std::size_t wrong) {
    if (triesAll()) std::printf("trials\t%s\t%s\t%zu\t%zu\n", action.name.c_str(), mode, trials, wrong);
}

} // namespace

TEST_P(Faults, LeaveTheOldOrTheNewAndTheTruthIsTold) {
    const Action& action = actions()[GetParam()];
    Trial trial(action);
    const Report whole = trial.goThrough();
    ASSERT_EQ(whole.told, 'd') << "it doesn't go through without a fault either";
    ASSERT_GE(whole.calls.size(), action.leastCalls);
    ASSERT_EQ(trial.changesFiles(), action.changesFiles);

    for (const FaultRow& row : faults) {
        std::vector<std::size_t> places;
        for (std::size_t call = 0; call < whole.calls.size(); ++call)
            if (canBefall(row.fault, whole.calls[call])) places.push_back(call);
        const std::vector<std::size_t> chosen = spread(places.size(), row.sample);
        std::size_t failures = 0;
        for (const std::size_t place : chosen) {
            const std::string wrong = trial.faultAt(row, places[place]);
            EXPECT_EQ(wrong, "") << row.name << " at call " << places[place] << " of " << whole.calls.size() << ", a "
                                 << nameOf(whole.calls[places[place]]);
            failures += wrong.empty() ? 0 : 1;
        }
        count(action, row.name, chosen.size(), failures);
    }
    const Report power = trial.powerFailures();
    EXPECT_EQ(power.told, 'd');
    EXPECT_EQ(power.wrong, "");
    EXPECT_GT(power.states, 0U);
    count(action, "power", power.states,
          static_cast<std::size_t>(std::count(power.wrong.begin(), power.wrong.end(), '\n')));
}

INSTANTIATE_TEST_SUITE_P(OfEach, Faults, testing::Range(std::size_t{0}, actions().size()),
                         [](const auto& row) { return actions()[row.param].name; });
