#include "platform/system_information.h"

#include <QtGlobal>

#ifdef Q_OS_WIN

#include <QProcess>
#include <QSettings>

std::function<void()> systemInformationTool() {
    const QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                             QSettings::NativeFormat);
    const QString tool = registry.value(QStringLiteral("PATH")).toString();
    if (tool.isEmpty()) return {};
    return [tool] { QProcess::startDetached(tool, {}); };
}

#else

std::function<void()> systemInformationTool() { return {}; }

#endif
