#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <vector>

// A PDF as the tools of poppler-utils read it, in millimetres.

struct PdfWord {
    double left, top, right;
    QString text;
};

struct PdfPage {
    QSizeF size;
    std::vector<PdfWord> words;

    // The word with that text; fails the test if the page hasn't got it.
    PdfWord word(const QString& text) const;
};

std::vector<PdfPage> pagesOf(const QByteArray& pdf);

// Output of a poppler tool for the PDF, such as "pdffonts".
QString popplerOn(const QString& tool, const QStringList& options, const QByteArray& pdf);
