#include "platform/native_printer.h"

#include <gtest/gtest.h>

TEST(PrinterWarnings, hearsTheFirstOfThePrintEngineAndNoOther) {
    const QtMessageHandler before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    {
        const PrinterWarnings warnings;
        qWarning("QFont: something else");
        EXPECT_TRUE(warnings.first().isEmpty());
        qWarning("QWin32PrintEngine::newPage: EndPage failed");
        qWarning("QWin32PrintEngine::end: EndDoc failed");
        EXPECT_EQ(warnings.first().toStdString(), "QWin32PrintEngine::newPage: EndPage failed");
    }
    qWarning("QWin32PrintEngine::end: EndDoc failed");
    EXPECT_TRUE(PrinterWarnings().first().isEmpty()) << "a job's warnings are not the next one's";
    qInstallMessageHandler(before);
}
