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

class QtPrintServiceTest : public testing::Test {
protected:
    TestFolder folder;
    QtPrintService service{folder, Devices::pdfOnly};

    QStringList files() const {
        return QDir(folder.folder().file(u"nyomtatas"_s)).entryList(QDir::Files | QDir::Hidden);
    }
    int errorNumberOf(const PrintJob& job, int printer = 0) {
        try {
            service.deliver(job, printer);
        } catch (const DeviceError& error) {
            EXPECT_STRNE(error.what(), "");
            return error.number;
        }
        return 0;
    }
};

} // namespace

TEST_F(QtPrintServiceTest, withoutPrintersThePdfDeviceIsAllAndTheDefault) {
    EXPECT_EQ(service.printers(), QStringList(u"PDF fájl"_s));
    EXPECT_EQ(service.defaultPrinter(), 0);
    EXPECT_FALSE(service.knowsFont(u"Nincs Ilyen"_s));
    EXPECT_TRUE(service.fonts().contains(u"Arial CE"_s));
    for (const QString& name : service.fonts() + QStringList(u"Times New Roman CE"_s))
        EXPECT_TRUE(service.knowsFont(name)) << name.toStdString();
}

TEST_F(QtPrintServiceTest, aJobBecomesOneFileThatIsTold) {
    NEEDS_POPPLER();
    service.deliver({}, 0);
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(service.lastPdf().isEmpty());

    service.deliver(jobOf(3), 0);
    ASSERT_EQ(files().size(), 1);
    EXPECT_TRUE(service.lastPdf().endsWith(u"-Sárga csekk.pdf"_s));
    EXPECT_EQ(pagesOf(folder.bytes(u"nyomtatas/"_s + files()[0])).size(), 15U) << "3 pages in 5 copies";

    service.deliver(jobOf(1), 0);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(QtPrintServiceTest, aStoppedDeliveryLeavesNothing) {
    QStringList told;
    int stopAt = 4;
    service.watchDelivery([&](int painted, int pages, bool canCancel) {
        told << u"%1/%2%3"_s.arg(painted).arg(pages).arg(canCancel ? u""_s : u"!"_s);
        return painted != stopAt;
    });
    EXPECT_EQ(errorNumberOf(jobOf(1)), 18);
    EXPECT_EQ(told.join(u' ').toStdString(), "1/5 2/5 3/5 4/5") << "1 page in 5 copies";
    EXPECT_TRUE(files().isEmpty() && service.lastPdf().isEmpty());
    stopAt = 5; // the last page isn't too late
    EXPECT_EQ(errorNumberOf(jobOf(1)), 18);
    service.watchDelivery({});
    EXPECT_EQ(errorNumberOf(jobOf(1)), 0);
    EXPECT_EQ(files().size(), 1);
}

TEST_F(QtPrintServiceTest, anIndexBeyondTheListOrAFolderThatCannotBeMadeIsAnError) {
    folder.setBytes(u"nyomtatas"_s, "a file stands in the way");
    for (const int printer : {-1, 1, 99})
        EXPECT_EQ(errorNumberOf(jobOf(1), printer), 9);
    EXPECT_EQ(errorNumberOf(jobOf(1)), 482);
    EXPECT_TRUE(service.lastPdf().isEmpty());
    EXPECT_EQ(folder.bytes(u"nyomtatas"_s), "a file stands in the way");
}

#ifdef Q_OS_UNIX
TEST_F(QtPrintServiceTest, aDiskThatFillsUpLeavesNoFile) {
    // A limit on the size of files fails a write in its midst, just as a full disk does.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit tight{4096, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    const int number = errorNumberOf(jobOf(20));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    EXPECT_EQ(number, 482);
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(service.lastPdf().isEmpty());
    EXPECT_EQ(errorNumberOf(jobOf(1)), 0);
}
#endif

TEST(PdfFile, nameTellsMomentAndForm) {
    const QDateTime moment(QDate(2024, 3, 9), QTime(7, 5, 1));
    const std::pair<QString, QString> rows[] = {
        {u"Sárga csekk"_s, u"2024-03-09-070501-Sárga csekk.pdf"_s},
        {u"../a\\b:\"c\"\n?"_s, u"2024-03-09-070501-..-a-b-c- -.pdf"_s},
        {u"  "_s, u"2024-03-09-070501.pdf"_s},
        {QString(300, u'x'), u"2024-03-09-070501-"_s + QString(80, u'x') + u".pdf"_s},
    };
    for (const auto& [title, name] : rows)
        EXPECT_EQ(pdfFileName(title, moment).toStdString(), name.toStdString());
}

TEST(PdfFile, aTakenNameGetsANumber) {
    const TestFolder folder;
    const QString path = folder.folder().path();
    for (const auto& [bytes, name] : {std::pair("1", u"a.b.pdf"_s), {"2", u"a.b-2.pdf"_s}, {"3", u"a.b-3.pdf"_s}})
        EXPECT_EQ(saveNewFile(bytes, path, u"a.b.pdf"_s), path + u'/' + name);
    EXPECT_EQ(folder.bytes(u"a.b.pdf"_s) + folder.bytes(u"a.b-2.pdf"_s) + folder.bytes(u"a.b-3.pdf"_s), "123");
}
