#include "controls/colours.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QProcess>

// `tour [--results <folder>]` drives the real window at 100 % and at 200 % scale, each in a process of its own since
// the toolkit reads the scale once at start. Exits with 1 if a step failed.

namespace {

int tourInBothScales(const QString& program, const QString& results) {
    int worst = 0;
    for (const char* scale : {"1", "2"}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QLatin1String(scale));
        if (!environment.contains(QStringLiteral("DISPLAY")) &&
            !environment.contains(QStringLiteral("WAYLAND_DISPLAY")))
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QString());
        QProcess child;
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        child.start(program, {QStringLiteral("--once"), results + u'/' + QLatin1String(scale) + QStringLiteral("00")});
        const bool ended = child.waitForFinished(180'000);
        if (!ended) child.kill();
        if (!ended || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0) worst = 1;
    }
    return worst;
}

} // namespace

int main(int argc, char** argv) {
    const QStringList arguments(argv + 1, argv + argc);
    if (arguments.size() == 2 && arguments[0] == u"--once") {
        QApplication application(argc, argv);
        useOwnSelectionColours();
        return Tour(QStringLiteral(TARLIMO_PROGRAM_FOLDER), arguments[1]).run() == 0 ? 0 : 1;
    }
    const bool named = arguments.size() == 2 && arguments[0] == u"--results";
    const QString results = named ? arguments[1] : QStringLiteral("build/tour");
    return tourInBothScales(QString::fromLocal8Bit(argv[0]), QDir().absoluteFilePath(results));
}
