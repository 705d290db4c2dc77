#include "platform/job_painter.h"

#include "platform/pdf_file.h"
#include "platform/pdf_reader.h"
#include "platform/qt_print_service.h"
#include "printing/print_service.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double tenth = 0.1; // mm

const Font arial10{u"Arial CE"_s, 10};
const Font times14{u"Times New Roman CE"_s, 14, true};

const PageSetup uprightDl{2, 27, {}};
const PageSetup sidewaysCheck{1, 9, QSizeF(210, 105)};

QByteArray pdf(const PrintJob& job) {
    FontBook fonts;
    return pdfOf(job, fonts);
}

PrintJob jobOf(const PageSetup& setup, std::vector<PlacedItem> items) {
    return {u"Proba"_s, {{setup, std::move(items)}}};
}

QByteArray pdfAtResolution(const PrintJob& job, int dotsPerInch) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(dotsPerInch);
    FontBook fonts;
    paintJob(job, writer, fonts);
    return bytes;
}

// The columns of each line below the two lines of heading.
std::vector<QStringList> tableOf(const QString& tool, const QStringList& options, const QByteArray& bytes) {
    std::vector<QStringList> rows;
    for (const QString& line : popplerOn(tool, options, bytes).split(u'\n', Qt::SkipEmptyParts).mid(2))
        rows.push_back(line.simplified().split(u' '));
    return rows;
}

// Where the text's top left corner stands. Poppler takes the top from the font's own ascent, just as the painter does.
void expectAt(const PdfPage& page, const PlacedText& placed) {
    const PdfWord word = page.word(placed.text);
    EXPECT_NEAR(word.left, placed.x, tenth) << placed.text.toStdString();
    EXPECT_NEAR(word.top, placed.y, tenth) << placed.text.toStdString();
}

} // namespace

TEST(JobPainter, millimetresReachThePaperAtEveryResolution) {
    NEEDS_POPPLER();
    const std::vector<PlacedText> placed{
        {0, 0, arial10, u"sarok"_s},        {12.3456F, 20, arial10, u"ezer"_s}, {100.1F, 50.7F, times14, u"százezer"_s},
        {190.5F, 99, arial10, u"szélen"_s}, {60, 33.3F, times14, u"ötvenöt"_s}, {30, -1.5F, arial10, u"felül"_s},
    };
    const QString outside = u"teljesen kívül "_s;
    const float outsideWidth = QtPrintService(ProgramFolder(QString()), Devices::pdfOnly).textWidth(arial10, outside);
    for (const PageSetup& setup : {uprightDl, sidewaysCheck}) {
        PrintJob job = jobOf(setup, {placed.begin(), placed.end()});
        // Poppler does not tell of letters left of the sheet: what follows them shows where they stand.
        job.pages[0].items.push_back(PlacedText{-20, 70, arial10, outside + u"belül"_s});
        for (const QByteArray& bytes : {pdf(job), pdfAtResolution(job, 600), pdfAtResolution(job, 203)}) {
            const auto pages = pagesOf(bytes);
            ASSERT_EQ(pages.size(), 1U);
            for (const PlacedText& text : placed)
                expectAt(pages[0], text);
            expectAt(pages[0], {-20 + outsideWidth, 70, arial10, u"belül"_s});
        }
    }
}

TEST(JobPainter, pagesHaveTheSizeOfTheForm) {
    NEEDS_POPPLER();
    // Orientation, paper, width and height of the form if not 0; width and height of the page.
    const int cases[][6] = {
        {1, 9, 0, 0, 210, 297},      {2, 9, 0, 0, 297, 210},      {1, 27, 0, 0, 110, 220},
        {2, 27, 0, 0, 220, 110},     {1, 28, 0, 0, 162, 229},     {2, 28, 0, 0, 229, 162},
        {2, 27, 210, 105, 210, 105}, {1, 27, 105, 165, 210, 165}, {1, 9, 165, 120, 210, 120},
    };
    PrintJob job;
    for (const auto& c : cases) {
        const auto form = c[2] == 0 ? std::nullopt : std::optional(QSizeF(c[2], c[3]));
        job.pages.push_back({{c[0], c[1], form}, {PlacedText{10, 20, arial10, u"itt"_s}}});
    }
    const auto pages = pagesOf(pdf(job));
    ASSERT_EQ(pages.size(), std::size(cases));
    for (std::size_t i = 0; i < pages.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR(pages[i].size.width(), cases[i][4], 0.01);
        EXPECT_NEAR(pages[i].size.height(), cases[i][5], 0.01);
        expectAt(pages[i], {10, 20, arial10, u"itt"_s});
    }
}

TEST(JobPainter, theMeasuredWidthIsThePrintedOne) {
    NEEDS_POPPLER();
    QtPrintService service(ProgramFolder(QString()), Devices::pdfOnly);
    const QString text = u"egymillió-kétszázharmincnégyezer-ötszázhatvanhétAVATAROrokűrő"_s;
    for (const Font& font : {arial10, times14, Font{u"Courier New"_s, 8.5F}}) {
        const PrintJob job = jobOf({2, 9, {}}, {PlacedText{10, 20, font, text}});
        const float measured = service.textWidth(font, text);
        for (const QByteArray& bytes : {pdf(job), pdfAtResolution(job, 600), pdfAtResolution(job, 203)}) {
            const PdfWord word = pagesOf(bytes).at(0).word(text);
            EXPECT_NEAR(word.right - word.left, measured, 0.05) << font.name.toStdString();
        }
    }
    // Ascent and descent of the family are 0.905 and 0.212 of its size.
    EXPECT_NEAR(service.lineHeight(arial10), 10 * (0.905 + 0.212) * 25.4 / 72, 0.01);
    EXPECT_EQ(service.textWidth(arial10, QString()), 0.0F);
}

TEST(JobPainter, fontsAreInTheFile) {
    NEEDS_POPPLER();
    const QByteArray bytes =
        pdf(jobOf({1, 9, {}}, {PlacedText{10, 20, arial10, u"ő"_s}, PlacedText{10, 40, times14, u"Ű"_s}}));
    // Name, type, encoding, emb sub uni, object of two numbers.
    const auto fonts = tableOf(u"pdffonts"_s, {}, bytes);
    ASSERT_EQ(fonts.size(), 2U);
    for (const QStringList& columns : fonts)
        EXPECT_EQ(columns[columns.size() - 5], u"yes"_s) << columns[0].toStdString();
}

TEST(JobPainter, onePictureIsKeptOnceForAllPages) {
    NEEDS_POPPLER();
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    PrintJob job;
    for (int page = 0; page < 3; ++page)
        job.pages.push_back({uprightDl, {PlacedPicture{10, 10, 40, 20, picture}}});
    // Page, num, type, width, height, color, comp, bpc, enc, interp, object, ID, x-ppi ...
    const auto images = tableOf(u"pdfimages"_s, {u"-list"_s}, pdf(job));
    ASSERT_EQ(images.size(), 3U);
    for (const QStringList& columns : images) {
        EXPECT_EQ(columns[10], images[0][10]);
        EXPECT_NEAR(columns[12].toDouble(), 25.4, 0.6); // 40 pixels on 40 mm
    }
}

TEST(JobPainter, aDeviceThatDoesNotBeginIsAnError) {
    const QTemporaryDir folder;
    QPdfWriter writer(folder.filePath(u"hianyzik/x.pdf"_s));
    FontBook fonts;
    try {
        paintJob(jobOf(uprightDl, {PlacedText{0, 0, arial10, u"x"_s}}), writer, fonts);
        ADD_FAILURE() << "no error";
    } catch (const DeviceError& error) {
        EXPECT_EQ(error.number, 482);
        EXPECT_STRNE(error.what(), "");
    }
}

TEST(Paper, aSizeThatTheDeviceLacksTakesTheNextLargerSheet) {
    const QList<QPageSize> office{QPageSize(QPageSize::A3), QPageSize(QPageSize::Letter), QPageSize(QPageSize::A4),
                                  QPageSize(QPageSize::A5), QPageSize(QPageSize::EnvelopeDL)};
    const auto form = [](double width, double height) {
        return QPageSize(QSizeF(width, height), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
    };
    const std::tuple<QPageSize, PaperOffer, QPageSize> cases[] = {
        {form(210, 105), {office, true}, form(210, 105)},
        {form(210, 105), {office, false}, QPageSize(QPageSize::A4)},
        {form(105, 165), {office, false}, QPageSize(QPageSize::EnvelopeDL)},
        {form(130, 165), {office, false}, QPageSize(QPageSize::A5)},
        {form(110.4, 219.8), {office, false}, QPageSize(QPageSize::EnvelopeDL)},
        {QPageSize(QPageSize::EnvelopeC5), {office, false}, QPageSize(QPageSize::A4)},
        {form(500, 500), {office, false}, form(500, 500)},
        {form(210, 105), {{}, false}, form(210, 105)},
    };
    for (const auto& [wanted, offer, sheet] : cases)
        EXPECT_EQ(sheetFor(wanted, offer), sheet) << wanted.name().toStdString();
}
