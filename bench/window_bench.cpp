#include "bare_files.h"
#include "benches.h"
#include "comparison.h"
#include "records/client_database.h"
#include "samples.h"
#include "window_session.h"

#include <QStandardPaths>

#include <memory>

#include <unistd.h>

namespace {

constexpr int fullList = static_cast<int>(maxClientNumber);

// An X server to start windows on: the one of this session, or one of our own if there is none.
class XServer {
public:
    XServer() {
        const QString own = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
        if (!display_.isEmpty() || own.isEmpty()) return;
        server_.setStandardErrorFile(QProcess::nullDevice());
        // Left to itself the server starts anew when its last window has gone, and the next one waits for that.
        server_.start(own, {QStringLiteral("-noreset"), QStringLiteral("-displayfd"), QStringLiteral("1"),
                            QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("1920x1200x24")});
        if (server_.waitForReadyRead()) display_ = u':' + QString::fromLatin1(server_.readLine().trimmed());
    }
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer() {
        server_.terminate();
        server_.waitForFinished();
    }

    // Empty if there is none.
    const QString& display() const { return display_; }

private:
    QString display_ = qEnvironmentVariable("DISPLAY");
    QProcess server_;
};

double timeOfBareDelete(int clients) {
    static const ScratchFolder scratch;
    const QString from = sampleFolder(clients).path();
    ::sync();
    return secondsOf([&] { bareDelete(from, scratch.folder().path()); });
}

struct Start {
    double seconds;
    double peakMegabytes;
};

// A whole process, from its start until it tells that its window has been painted.
Start startOf(const QString& program, const QStringList& arguments, const QString& display) {
    QProcess child;
    child.setProcessEnvironment(environmentFor(display));
    child.setStandardErrorFile(QProcess::nullDevice());
    const double seconds = secondsOf([&] {
        child.start(program, arguments);
        if (!child.waitForReadyRead(60'000)) qFatal("no window came up: %s", qPrintable(program));
    });
    child.waitForFinished();
    return {seconds, child.readAll().toDouble()};
}

Start ownStart(const QString& display) {
    return startOf(QStringLiteral(START_WINDOW), {sampleFolder(fullList).path()}, display);
}

Start emptyStart(const QString& display) { return startOf(QStringLiteral(EMPTY_WINDOW), {}, display); }

void addStarts(Suite& suite) {
    const auto server = std::make_shared<XServer>();
    const char* const limit = "Qt window with one letter";
    const auto add = [&](const std::string& where, const QString& display, const Aim& time, const Aim& memory) {
        suite.add(Comparison{"start to first paint" + where, [server, display] { return ownStart(display).seconds; },
                             limit, [server, display] { return emptyStart(display).seconds; }, time});
        suite.add(Figure{"memory at the start" + where, [server, display] { return ownStart(display).peakMegabytes; },
                         "%.0f MB", memory, limit, [server, display] { return emptyStart(display).peakMegabytes; }});
    };
    if (!server->display().isEmpty())
        add(", X server", server->display(), {Aim::Kind::timesLimit, 4}, {Aim::Kind::atMost, 55});
    // There is no server to talk to here: the empty window costs next to nothing, so this ratio has no aim.
    add(", offscreen", {}, {}, {});
}

using Session = std::shared_ptr<WindowSession>;

Session sessionWith(int clients, int fonts = 0) {
    return std::make_shared<WindowSession>([clients]() -> const ProgramFolder& { return restingFolder(clients); },
                                           fonts);
}

Run asking(const Session& session, const char* act) {
    return [session, act] { return session->ask(act); };
}

void addActs(Suite& suite) {
    const Session full = sessionWith(fullList);
    const Session nearlyFull = sessionWith(fullList - 1); // has room for one more
    const struct {
        const char* item;
        const Session& session;
        const char* act;
        double mostMs;
    } acts[] = {{"click on a row", full, "click", 16},
                {"letter typed into the search", full, "key", 16},
                {"tab that was shown before, the slowest", full, "tab", 16},
                {"all rows selected", full, "all", 16},
                {"step of resizing the window", full, "resize", 16},
                {"client added, with its flush", nearlyFull, "add", 16},
                {"click on a header of the list", full, "sort", 25}};
    for (const auto& [item, session, act, mostMs] : acts)
        suite.add(Comparison{
            item + std::string(", painted"), asking(session, act), "", {}, {Aim::Kind::milliseconds, mostMs}});
}

void addBatches(Suite& suite) {
    for (const int fonts : {57, 400}) {
        const Session session = sessionWith(1000, fonts);
        suite.add(Comparison{"batch of 1000 with " + std::to_string(fonts) + " fonts",
                             asking(session, "batch"),
                             "bare QPdfWriter loop, no flush",
                             asking(session, "bare"),
                             {Aim::Kind::timesLimit, 1}});
    }
    using enum Aim::Kind;
    const Session large = sessionWith(fullList);
    const auto figure = [&](const char* item, const char* format, const Aim& aim, const std::function<double()>& ours) {
        suite.add(Figure{item + std::string(", batch of 32767"), ours, format, aim});
    };
    figure("first sign of life", "%.0f ms", {atMost, 100}, [large] { return large->ask("sign") * 1000; });
    figure("cancelled", "%.0f ms", {atMost, 200}, [large] { return large->ask("cancel") * 1000; });
    figure("memory a page", "%.1f KB", {atMost, 3}, [] {
        const Session session = sessionWith(fullList);
        const double before = session->ask("peak");
        session->ask("batch");
        return (session->ask("peak") - before) * 1024 / fullList;
    });
}

void addDeletes(Suite& suite) {
    for (const int clients : {fullList, 300'000})
        suite.add(Comparison{"delete of one client of " + std::to_string(clients),
                             asking(sessionWith(clients), "delete"),
                             "loop that reads, writes, flushes, renames",
                             [clients] { return timeOfBareDelete(clients); },
                             {}});
    suite.add(Figure{"memory of a delete of one of 300000",
                     [] {
                         const Session session = sessionWith(300'000);
                         session->ask("delete");
                         return session->ask("peak");
                     },
                     "%.0f MB",
                     {},
                     "bytes of both files",
                     [] { return 300'000 * (sizeof(ClientRec) + sizeof(TwinRec)) / 1e6; }});
}

} // namespace

void addWindowBenches(Suite& suite) {
    addStarts(suite);
    addActs(suite);
    addBatches(suite);
    addDeletes(suite);
}
