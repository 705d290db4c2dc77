#include "benches.h"
#include "comparison.h"
#include "mainwindow/client_list_model.h"
#include "mainwindow/frmTarlimo.h"
#include "platform/qt_print_service.h"
#include "records/client_database.h"
#include "samples.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace {

constexpr int fullList = maxClientNumber;

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

QProcessEnvironment environmentFor(const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       display.isEmpty() ? QStringLiteral("offscreen") : QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QString());
    environment.insert(QStringLiteral("DISPLAY"), display);
    return environment;
}

// A whole process, from its start until it tells that its window has been painted.
double timeOfStart(const QString& program, const QStringList& arguments, const QString& display) {
    QProcess child;
    child.setProcessEnvironment(environmentFor(display));
    child.setStandardErrorFile(QProcess::nullDevice());
    const double seconds = secondsOf([&] {
        child.start(program, arguments);
        if (!child.waitForReadyRead(60'000)) qFatal("no window came up: %s", qPrintable(program));
    });
    child.waitForFinished();
    return seconds;
}

double timeOfOwnStart(const QString& display) {
    return timeOfStart(QStringLiteral(START_WINDOW), {sampleFolder(fullList).path()}, display);
}

double timeOfEmptyStart(const QString& display) { return timeOfStart(QStringLiteral(EMPTY_WINDOW), {}, display); }

// The window of the program on a full database, open as long as the process runs.
class OpenWindow {
public:
    OpenWindow() {
        window_.resize(1240, 711);
        window_.show();
        if (!QTest::qWaitForWindowExposed(&window_)) qFatal("the window did not open");
        list_ = window_.findChild<QTreeView*>(QStringLiteral("ListView1"));
    }

    // From the press of the button until all forms show the client.
    double timeOfClick() {
        row_ = row_ == 1 ? 2 : 1; // in view however low the list is
        const QPoint place = list_->visualRect(list_->model()->index(row_, 0)).center();
        const double seconds = secondsOf([&] {
            QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, place);
            QApplication::processEvents();
        });
        const QString number = list_->model()->index(row_, ClientListModel::rec).data().toString();
        if (window_.rekordszam() != number.trimmed().toInt()) qFatal("the click went astray");
        return seconds;
    }

    // One step of dragging the corner of the window.
    double timeOfResize() {
        width_ = width_ == 1240 ? 1100 : width_ + 10;
        return secondsOf([&] {
            window_.resize(width_, 711);
            QApplication::processEvents();
        });
    }

private:
    QtPrintService printing_{sampleFolder(fullList), Devices::pdfOnly};
    QuietPrompts prompts_;
    frmTarlimo window_{sampleFolder(fullList),
                       WindowServices{printing_, prompts_, {}, [] { return QString(); }, {}, {}}};
    QTreeView* list_;
    int row_ = 0;
    int width_ = 1240;
};

} // namespace

void addWindowBenches(Suite& suite) {
    const auto server = std::make_shared<XServer>();
    const Aim aim{Aim::Kind::timesLimit, 4};
    if (!server->display().isEmpty())
        suite.add(Comparison{"start to first paint, X server", [server] { return timeOfOwnStart(server->display()); },
                             "Qt window with one letter", [server] { return timeOfEmptyStart(server->display()); },
                             aim});
    // There is no server to talk to here: the empty window costs next to nothing, so this ratio has no aim.
    suite.add(Comparison{"start to first paint, offscreen",
                         [] { return timeOfOwnStart({}); },
                         "Qt window with one letter",
                         [] { return timeOfEmptyStart({}); },
                         {}});
    const auto window = std::make_shared<std::unique_ptr<OpenWindow>>();
    const auto inWindow = [window](double (OpenWindow::*time)()) {
        return [window, time] {
            if (!*window) *window = std::make_unique<OpenWindow>();
            return (**window.*time)();
        };
    };
    using enum Aim::Kind;
    suite.add(Comparison{
        "click on a row, painted, 32767 clients", inWindow(&OpenWindow::timeOfClick), "", {}, {milliseconds, 16}});
    suite.add(Comparison{
        "step of resizing the window, painted", inWindow(&OpenWindow::timeOfResize), "", {}, {milliseconds, 16}});
}
