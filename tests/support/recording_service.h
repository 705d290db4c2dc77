#pragma once

#include "printing/print_service.h"

#include <vector>

// A print service that keeps the jobs. Its metric is fixed: every character is `size` / 10 mm wide and a line is `size`
// * 0.4 mm high, so a test can count on its fingers.
class RecordingService : public PrintService {
public:
    QStringList names{QStringLiteral("Elso"), QStringLiteral("Masodik"), QStringLiteral("PDF fájl")};
    int systemDefault = 2;
    QStringList knownFonts{QStringLiteral("Arial CE"), QStringLiteral("Times New Roman CE"),
                           QStringLiteral("Times New Roman")};
    int refuseWith = 0; // a number makes deliver throw

    struct Delivered {
        PrintJob job;
        int printer;
    };
    std::vector<Delivered> delivered;

    QStringList printers() override { return names; }
    int defaultPrinter() override { return systemDefault; }
    QStringList fonts() override { return knownFonts; }
    bool knowsFont(const QString& name) override { return knownFonts.contains(name); }
    float textWidth(const Font& font, const QString& text) override {
        return font.size / 10.0F * static_cast<float>(text.size());
    }
    float lineHeight(const Font& font) override { return font.size * 0.4F; }
    void deliver(const PrintJob& job, int printer) override;
    void watchDelivery(const DeliveryProgress& progress) override { watch_ = progress; }

private:
    DeliveryProgress watch_;
};

// One line a placed text, "x y size name|text" with positions to a hundredth of a mm: what a form test compares.
QStringList placedTexts(const PrintedPage& page);
