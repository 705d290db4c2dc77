#include "platform/session_end.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <unistd.h>

namespace {

int wakeUp = -1; // writing end of the pipe; a signal handler may do little more than write(2)

void onSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(wakeUp, &byte, 1);
}

} // namespace

void onTerminationRequest(QObject* context, std::function<void()> end) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return;
    wakeUp = ends[1];
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [notifier, end = std::move(end)] {
        notifier->setEnabled(false);
        end();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, onSignal);
}

#else

void onTerminationRequest(QObject*, std::function<void()>) {}

#endif
