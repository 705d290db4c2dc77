#include "platform/qt_print_service.h"

#include "platform/pdf_file.h"
#include "platform/pdf_reader.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

PrintJob jobOf(int pages) {
    PrintJob job{u"Sárga csekk"_s, {}, 5};
    for (int page = 0; page < pages; ++page)
        job.pages.push_back({{2, 27, {}}, {PlacedText{10, 10, {u"Arial CE"_s, 10}, u"szöveg"_s}}});
    return job;
}

QStringList filesIn(const TestFolder& folder) {
    return QDir(folder.folder().file(u"nyomtatas"_s)).entryList(QDir::Files | QDir::Hidden);
}

int errorNumberOf(PrintService& service, const PrintJob& job, int printer) {
    try {
        service.deliver(job, printer);
    } catch (const DeviceError& error) {
        EXPECT_STRNE(error.what(), "");
        return error.number;
    }
    return 0;
}

} // namespace

TEST(QtPrintService, withoutPrintersThePdfDeviceIsAllAndTheDefault) {
    const TestFolder folder;
    QtPrintService service(folder, Devices::pdfOnly);
    EXPECT_EQ(service.printers(), QStringList(u"PDF fájl"_s));
    EXPECT_EQ(service.defaultPrinter(), 0);
    EXPECT_TRUE(service.knowsFont(u"Times New Roman CE"_s));
    EXPECT_FALSE(service.knowsFont(u"Nincs Ilyen"_s));
    EXPECT_TRUE(service.fonts().contains(u"Arial CE"_s));
    for (const QString& name : service.fonts())
        EXPECT_TRUE(service.knowsFont(name)) << name.toStdString();
}

TEST(QtPrintService, aJobBecomesOneFileThatIsTold) {
    const TestFolder folder;
    QtPrintService service(folder, Devices::pdfOnly);
    service.deliver({}, 0);
    EXPECT_TRUE(filesIn(folder).isEmpty());
    EXPECT_TRUE(service.lastPdf().isEmpty());

    service.deliver(jobOf(3), 0);
    ASSERT_EQ(filesIn(folder).size(), 1);
    EXPECT_TRUE(service.lastPdf().endsWith(u"-Sárga csekk.pdf"_s));
    EXPECT_EQ(pagesOfFile(service.lastPdf()).size(), 3U); // copies are the reader's choice

    service.deliver(jobOf(1), 0);
    EXPECT_EQ(filesIn(folder).size(), 2);
}

TEST(QtPrintService, anIndexBeyondTheListIsRefused) {
    const TestFolder folder;
    QtPrintService service(folder, Devices::pdfOnly);
    for (const int printer : {-1, 1, 99})
        EXPECT_EQ(errorNumberOf(service, jobOf(1), printer), 9);
}

TEST(QtPrintService, aFolderThatCannotBeMadeIsAnError) {
    const TestFolder folder;
    folder.setBytes(u"nyomtatas"_s, "a file stands in the way");
    QtPrintService service(folder, Devices::pdfOnly);
    EXPECT_EQ(errorNumberOf(service, jobOf(1), 0), 482);
    EXPECT_TRUE(service.lastPdf().isEmpty());
    EXPECT_EQ(folder.bytes(u"nyomtatas"_s), "a file stands in the way");
}

#ifdef Q_OS_UNIX
TEST(QtPrintService, aDiskThatFillsUpLeavesNoFile) {
    const TestFolder folder;
    QtPrintService service(folder, Devices::pdfOnly);
    // A limit on the size of files fails a write in its midst, just as a full disk does.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit tight{4096, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    const int number = errorNumberOf(service, jobOf(20), 0);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    EXPECT_EQ(number, 482);
    EXPECT_TRUE(filesIn(folder).isEmpty());
    EXPECT_TRUE(service.lastPdf().isEmpty());
    EXPECT_EQ(errorNumberOf(service, jobOf(1), 0), 0);
}
#endif

TEST(PdfFile, nameTellsMomentAndForm) {
    const QDateTime moment(QDate(2024, 3, 9), QTime(7, 5, 1));
    const struct {
        QString title, name;
    } cases[] = {
        {u"Sárga csekk"_s, u"2024-03-09-070501-Sárga csekk.pdf"_s},
        {u"../a\\b:\"c\"\n?"_s, u"2024-03-09-070501-..-a-b-c- -.pdf"_s},
        {u"  "_s, u"2024-03-09-070501.pdf"_s},
        {QString(300, u'x'), u"2024-03-09-070501-"_s + QString(80, u'x') + u".pdf"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(pdfFileName(c.title, moment).toStdString(), c.name.toStdString());
}

TEST(PdfFile, aTakenNameGetsANumber) {
    const TestFolder folder;
    const QString path = folder.folder().path();
    EXPECT_EQ(saveNewFile("1", path, u"a.b.pdf"_s), path + u"/a.b.pdf"_s);
    EXPECT_EQ(saveNewFile("2", path, u"a.b.pdf"_s), path + u"/a.b-2.pdf"_s);
    EXPECT_EQ(saveNewFile("3", path, u"a.b.pdf"_s), path + u"/a.b-3.pdf"_s);
    EXPECT_EQ(folder.bytes(u"a.b.pdf"_s), "1");
    EXPECT_EQ(folder.bytes(u"a.b-3.pdf"_s), "3");
}
