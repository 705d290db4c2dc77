#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <gtest/gtest.h>

#include <vector>

// A PDF as the tools of poppler-utils read it, in millimetres.

// First in a test that reads one.
#ifdef Q_OS_WIN
#define NEEDS_POPPLER() GTEST_SKIP() << "the poppler tools are no Windows programs"
#else
#define NEEDS_POPPLER()
#endif

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
