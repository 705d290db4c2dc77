#include "platform/driver_settings.h"

#ifdef Q_OS_WIN
#include <QPrinter>
#include <QWidget>

// The one way to give the toolkit's printer all that a driver knows; its own print dialog uses it, too.
#include <private/qprintengine_win_p.h>

#include <windows.h>
#include <winspool.h>

#include <cstring>

namespace {

// The driver's dialog about the bytes of `settings`, or without a window their length alone.
LONG documentProperties(const QString& printer, HWND window, QByteArray& settings, DWORD mode) {
    std::wstring name = printer.toStdWString();
    HANDLE handle = nullptr;
    if (!OpenPrinterW(name.data(), &handle, nullptr)) return -1;
    auto* const bytes = settings.isEmpty() ? nullptr : reinterpret_cast<DEVMODEW*>(settings.data());
    const LONG result = DocumentPropertiesW(window, handle, name.data(), bytes, bytes, mode);
    ClosePrinter(handle);
    return result;
}

} // namespace

bool hasDriverDialog() { return true; }

QByteArray askDriverSettings(const QString& printer, const QByteArray& before, QWidget* parent) {
    QByteArray settings = before;
    if (settings.isEmpty()) {
        const LONG length = documentProperties(printer, nullptr, settings, 0);
        if (length <= 0) return before;
        settings = QByteArray(length, '\0');
        if (documentProperties(printer, nullptr, settings, DM_OUT_BUFFER) < 0) return before;
    }
    const auto window = parent != nullptr ? reinterpret_cast<HWND>(parent->window()->winId()) : nullptr;
    const LONG answer = documentProperties(printer, window, settings, DM_IN_BUFFER | DM_IN_PROMPT | DM_OUT_BUFFER);
    return answer == IDOK ? settings : before;
}

std::shared_ptr<void> giveDriverSettings(const QByteArray& settings, QPrinter& printer) {
    auto* const engine = dynamic_cast<QWin32PrintEngine*>(printer.printEngine());
    if (settings.isEmpty() || engine == nullptr) return nullptr;
    const std::shared_ptr<void> memory(GlobalAlloc(GHND, static_cast<SIZE_T>(settings.size())), GlobalFree);
    void* const bytes = memory ? GlobalLock(memory.get()) : nullptr;
    if (bytes == nullptr) return nullptr;
    std::memcpy(bytes, settings.constData(), static_cast<std::size_t>(settings.size()));
    GlobalUnlock(memory.get());
    engine->setGlobalDevMode(nullptr, memory.get());
    return memory;
}
#else
bool hasDriverDialog() { return false; }
QByteArray askDriverSettings(const QString&, const QByteArray& before, QWidget*) { return before; }
std::shared_ptr<void> giveDriverSettings(const QByteArray&, QPrinter&) { return nullptr; }
#endif
