#include "platform/job_painter.h"

#include "printing/print_service.h"

#include <QPainter>
#include <QPrinter>

#include <cmath>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

class JobPainter {
public:
    JobPainter(QPagedPaintDevice& device, FontBook& fonts, const PaperOffer& offer, const PagePainted& painted)
        : device_(device)
        , fonts_(fonts)
        , offer_(offer)
        , painted_(painted) {}

    void paint(const PrintJob& job, int times) {
        const auto pages = static_cast<int>(job.pages.size());
        for (int number = 0; number < pages * times;) {
            const PrintedPage& page = job.pages[static_cast<std::size_t>(number % pages)];
            startPage(page.setup);
            for (const PlacedItem& item : page.items)
                std::visit([this](const auto& placed) { paint(placed); }, item);
            ++number;
            if (painted_ && !painted_(number, pages * times)) drop(stoppedByUser());
        }
        if (painter_.isActive() && !painter_.end()) fail(u"A nyomtatást nem sikerült befejezni."_s);
    }

private:
    void startPage(const PageSetup& setup) {
        // A page set-up, even the same one again, makes some drivers start the sheet anew: only changes reach them.
        if (setup_ != setup) setUpPage(pageOf(setup));
        setup_ = setup;
        // begin() opens the first page by itself, so it has to wait for one.
        if (!painter_.isActive()) {
            if (!painter_.begin(&device_)) fail(u"A nyomtatást nem sikerült elindítani."_s);
        } else if (!device_.newPage()) {
            fail(u"A nyomtató nem kezdett új lapot."_s);
        }
        // From paper units to the device's dots; never by the page rectangle, which is held in whole points. All that
        // is painted passes through this one transform.
        painter_.setTransform(QTransform::fromScale(device_.logicalDpiX() / paperUnitsPerInch,
                                                    device_.logicalDpiY() / paperUnitsPerInch));
    }

    // The only order that holds everywhere: a layout given at once with zero margins is refused by the native Windows
    // printer, and without the margins at the end everything stands some millimetres off there.
    void setUpPage(const QPageLayout& page) {
        const QPageSize sheet = sheetFor(page.pageSize(), offer_);
        if (!device_.setPageSize(sheet) && !sameSheet(device_.pageLayout().pageSize(), sheet) &&
            !device_.setPageSize(nextLarger(sheet, offer_.sizes)))
            fail(u"A nyomtató nem fogadta el a lapméretet: "_s + sheet.name());
        device_.setPageOrientation(page.orientation());
        if (auto* printer = dynamic_cast<QPrinter*>(&device_)) printer->setFullPage(true);
        device_.setPageMargins(QMarginsF(), QPageLayout::Millimeter);
    }

    void paint(const PlacedText& placed) {
        if (placed.text.isEmpty()) return;
        const FontBook::Face& face = fonts_.face(placed.font);
        if (font_ != placed.font) painter_.setFont(face.font);
        font_ = placed.font;
        painter_.drawText(at(placed.x, placed.y) + QPointF(0, face.metrics.ascent()), placed.text);
    }

    void paint(const PlacedPicture& placed) {
        // The image itself, never a scaled copy: the device keeps one for all pages that show it.
        const QSizeF size(placed.width, placed.height);
        painter_.drawImage(QRectF(at(placed.x, placed.y), size * paperUnitsPerMm), placed.picture);
    }

    // To a sixteenth of a paper unit, far below the dot of any printer: such a number is short in a PDF.
    static qreal toPaper(float mm) { return std::round(qreal(mm) * paperUnitsPerMm * 16) / 16; }
    static QPointF at(float x, float y) { return {toPaper(x), toPaper(y)}; }

    [[noreturn]] void fail(const QString& description) { drop({482, description}); }

    [[noreturn]] void drop(const DeviceError& reason) {
        if (painter_.isActive()) painter_.end();
        throw reason;
    }

    QPagedPaintDevice& device_;
    FontBook& fonts_;
    const PaperOffer& offer_;
    const PagePainted& painted_;
    QPainter painter_;
    std::optional<PageSetup> setup_;
    std::optional<Font> font_;
};

} // namespace

void paintJob(const PrintJob& job, QPagedPaintDevice& device, FontBook& fonts, const PaperOffer& offer,
              const PagePainted& painted, int times) {
    JobPainter(device, fonts, offer, painted).paint(job, times);
}
