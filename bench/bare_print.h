#pragma once

#include "platform/qt_print_service.h"

#include <QFont>
#include <QPainter>

#include <functional>
#include <variant>

// The limit of a print: a plain loop that paints the same texts and pictures by a QPdfWriter as it is made.

// The real service, but for a job that it keeps instead of printing it.
class KeepingService : public QtPrintService {
public:
    using QtPrintService::QtPrintService;
    PrintJob job;
    bool prints = false;
    std::function<void()> whileWriting = [] {};

    float textWidth(const Font& font, const QString& text) override {
        whileWriting();
        return QtPrintService::textWidth(font, text);
    }
    float lineHeight(const Font& font) override {
        whileWriting();
        return QtPrintService::lineHeight(font);
    }

    void deliver(const PrintJob& delivered, int printer) override {
        prints ? QtPrintService::deliver(delivered, printer) : void(job = delivered);
    }
};

// What a bare loop has ready before it begins: fonts, and the texts with the points where their lines stand.
struct BareText {
    std::size_t font;
    QPointF baseline;
    QString text;
};
struct BarePicture {
    QRectF box;
    QImage picture;
};
using BareItem = std::variant<BareText, BarePicture>;

class BareJob {
public:
    explicit BareJob(const PrintJob& job);

    void print(const QString& path) const;

private:
    BareText bare(const PlacedText& placed);
    static BarePicture bare(const PlacedPicture& placed);
    std::size_t numberOf(const Font& font);

    std::vector<Font> known_;
    std::vector<QFont> fonts_;
    std::vector<std::vector<BareItem>> pages_;
};
