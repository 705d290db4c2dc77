#include "platform/pdf_reader.h"

#include <QProcess>
#include <QTemporaryFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double mmPerPoint = 25.4 / 72;

std::vector<PdfPage> parsed(const QString& html) {
    std::vector<PdfPage> pages;
    QXmlStreamReader xml(html);
    const auto mm = [&](QLatin1StringView name) { return xml.attributes().value(name).toDouble() * mmPerPoint; };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == "page"_L1) pages.push_back({{mm("width"_L1), mm("height"_L1)}, {}});
        if (xml.name() == "word"_L1) {
            const PdfWord place{mm("xMin"_L1), mm("yMin"_L1), mm("xMax"_L1), QString()};
            pages.back().words.push_back({place.left, place.top, place.right, xml.readElementText()});
        }
    }
    EXPECT_FALSE(xml.hasError()) << html.toStdString();
    return pages;
}

} // namespace

PdfWord PdfPage::word(const QString& text) const {
    for (const PdfWord& word : words)
        if (word.text == text) return word;
    ADD_FAILURE() << "no word " << text.toStdString();
    return {};
}

QString popplerOn(const QString& tool, const QStringList& options, const QByteArray& pdf) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(pdf) == pdf.size() && file.flush());
    QStringList arguments = options + QStringList(file.fileName());
    if (tool == "pdftotext"_L1) arguments.append(u"-"_s);
    QProcess process;
    process.start(tool, arguments);
    const bool ran = process.waitForFinished() && process.exitCode() == 0;
    EXPECT_TRUE(ran) << tool.toStdString() << ": " << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

std::vector<PdfPage> pagesOf(const QByteArray& pdf) { return parsed(popplerOn(u"pdftotext"_s, {u"-bbox"_s}, pdf)); }
