#include "window_session.h"

#include "font_copies.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int mostMs = 120'000;
}

WindowSession::~WindowSession() {
    if (!process_) return;
    process_->closeWriteChannel();
    process_->waitForFinished();
}

void WindowSession::start() {
    process_ = std::make_unique<QProcess>();
    QProcessEnvironment environment = environmentFor({});
    if (fonts_ > 0) environment.insert(u"FONTCONFIG_FILE"_s, fontConfiguration(fonts_));
    process_->setProcessEnvironment(environment);
    process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_->start(QStringLiteral(WINDOW_SESSION), {folder_().path()});
    const int families = fonts_ > 0 ? static_cast<int>(ask("fonts")) : 0;
    if (families != fonts_) qFatal("%d families are installed instead of %d", families, fonts_);
}

double WindowSession::ask(const char* act) {
    if (!process_) start();
    process_->write(QByteArray(act) + '\n');
    while (!process_->canReadLine())
        if (!process_->waitForReadyRead(mostMs)) qFatal("the window doesn't answer: %s", act);
    return process_->readLine().toDouble();
}

QProcessEnvironment environmentFor(const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, display.isEmpty() ? u"offscreen"_s : u"xcb"_s);
    environment.insert(u"QT_QPA_PLATFORMTHEME"_s, QString());
    environment.insert(u"DISPLAY"_s, display);
    return environment;
}
