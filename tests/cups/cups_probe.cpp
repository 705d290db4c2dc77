// cups_probe QUEUE PAGE [stop | freeze PID | freeze-painted PID]: prints two copies of one page on a queue of the
// system through the print service, with texts that say in millimetres where they stand. `stop` cancels it once it is
// painted; `freeze` halts the spooler before the delivery, `freeze-painted` once the page is painted. Exit code: 0
// handed over, 1 refused, 2 no such queue or page, 3 cancelled.

#include "platform/qt_print_service.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

const std::map<QString, PageSetup> setups{
    {u"dl"_s, {2, 27, {}}},
    {u"check"_s, {1, 9, QSizeF(210, 105)}},
    {u"a4"_s, {1, 9, {}}},
    {u"a4-sideways"_s, {2, 9, {}}},
};

PrintedPage pageWith(const PageSetup& setup) {
    constexpr std::pair<float, float> places[] = {{10, 10}, {12.3F, 47.7F}, {60.5F, 80}, {85, 20.2F}};
    PrintedPage page{setup, {}};
    for (const auto& [x, y] : places) {
        const QString words = u"%1/%2"_s.arg(x, 0, 'f', 1).arg(y, 0, 'f', 1);
        page.items.push_back(PlacedText{x, y, {u"Arial CE"_s, 10}, words});
    }
    return page;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QtPrintService service(ProgramFolder(u"."_s));
    const auto printer = static_cast<int>(service.printers().indexOf(arguments.value(1)));
    const auto setup = setups.find(arguments.value(2));
    if (printer < 0 || setup == setups.end()) return 2;
    const QString trial = arguments.value(3);
    const auto freeze = [&] { kill(arguments.value(4).toInt(), SIGSTOP); };
    if (trial == u"stop") service.watchDelivery([](int, int, bool canCancel) { return !canCancel; });
    if (trial == u"freeze") freeze();
    if (trial == u"freeze-painted") {
        service.watchDelivery([&](int, int, bool) {
            freeze();
            return true;
        });
    }
    try {
        service.deliver({u"Proba"_s, {pageWith(setup->second)}, 2}, printer);
    } catch (const DeviceError& error) {
        std::printf("error %d: %s\n", error.number, error.what());
        return error.number == stoppedByUser().number ? 3 : 1;
    }
    return 0;
}
