#include "printing/print_device.h"

#include <QScopeGuard>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString defaultTitle() { return u"Tarlimo"_s; }

DeviceError refusedValue() { return {380, u"Érvénytelen tulajdonságérték"_s}; }

QString withoutTrailingBlanks(QString name) {
    while (name.endsWith(u' '))
        name.chop(1);
    return name;
}

} // namespace

PrintDevice::PrintDevice(PrintService& service) : service_(service) { job_.title = defaultTitle(); }

QStringList PrintDevice::Printers() { return service_.printers(); }

int PrintDevice::currentPrinter() const {
    if (jobPrinter_) return *jobPrinter_;
    return trackDefault_ ? service_.defaultPrinter() : current_;
}

void PrintDevice::setCurrentPrinter(int index) {
    current_ = requirePrinter(index);
    setup_ = PageSetup{};
    trackDefault_ = false;
}

void PrintDevice::useForThisJob(int printer, int copies, const QByteArray& driverSettings) {
    jobPrinter_ = requirePrinter(printer);
    job_.copies = copies;
    job_.driverSettings = driverSettings;
}

void PrintDevice::startJob(FirstPage page) {
    const QString name = u"Times New Roman CE"_s;
    if (page == FirstPage::ownPage) setup_ = PageSetup{};
    font_ = Font{service_.knowsFont(name) ? name : QString(), 12};
    NewPage();
}

void PrintDevice::setScaleMode(int mode) {
    if (mode != 6) throw refusedValue();
}

void PrintDevice::setOrientation(int orientation) { setup_.orientation = orientation; }

void PrintDevice::setPaperSize(int paperCode) {
    setup_.paperSize = paperCode;
    setup_.sizeMm.reset();
}

void PrintDevice::setTrackDefault(bool follow) {
    // What was followed so far stays in force.
    if (trackDefault_ && !follow) current_ = service_.defaultPrinter();
    trackDefault_ = follow;
}

void PrintDevice::setSizeMm(float width, float height) {
    setup_.orientation = 1;
    setup_.sizeMm = QSizeF(static_cast<double>(width), static_cast<double>(height));
}

bool PrintDevice::knowsFont(const QString& name) const {
    const QString wanted = withoutTrailingBlanks(name);
    return !wanted.isEmpty() && service_.knowsFont(wanted);
}

void PrintDevice::setFontName(const QString& name) {
    const QString wanted = withoutTrailingBlanks(name);
    if (!wanted.isEmpty() && wanted == font_.name) return; // asking the service takes as long as the rest of a line
    if (!knowsFont(wanted)) throw refusedValue();
    font_.name = wanted;
}

void PrintDevice::setFontSize(float points) {
    if (!(points >= 1)) throw refusedValue();
    font_.size = points;
}

void PrintDevice::setFontBold(bool bold) { font_.bold = bold; }

void PrintDevice::setFontItalic(bool italic) { font_.italic = italic; }

const Font& PrintDevice::font() const { return font_; }

void PrintDevice::setCurrentX(float x) { x_ = x; }

void PrintDevice::setCurrentY(float y) { y_ = y; }

float PrintDevice::CurrentX() const { return x_; }

float PrintDevice::CurrentY() const { return y_; }

float PrintDevice::TextWidth(const QString& text) { return service_.textWidth(usableFont(), text); }

void PrintDevice::Print(const QString& text, LineEnd end) {
    const Font& font = usableFont();
    // Measured before anything changes: a metric that fails leaves the page as it was.
    const float advance = end == LineEnd::yes ? service_.lineHeight(font)
                          : text.isEmpty()    ? 0.0F
                                              : service_.textWidth(font, text);
    if (!text.isEmpty()) page().items.emplace_back(PlacedText{x_, y_, font, text});
    if (end == LineEnd::yes) {
        x_ = 0;
        y_ += advance;
    } else {
        x_ += advance;
    }
}

void PrintDevice::PaintPicture(const QImage& picture, float x, float y, float width, float height) {
    page().items.emplace_back(PlacedPicture{x, y, width, height, picture});
}

void PrintDevice::NewPage() {
    pageOpen_ = false;
    x_ = 0;
    y_ = 0;
}

void PrintDevice::setTitle(const QString& title) { job_.title = title; }

int PrintDevice::pageCount() const { return static_cast<int>(job_.pages.size()); }

QString PrintDevice::deviceName() { return service_.printers().value(currentPrinter()); }

void PrintDevice::watchDelivery(DeliveryProgress progress) { watch_ = std::move(progress); }

void PrintDevice::EndDoc() {
    const int printer = currentPrinter();
    service_.watchDelivery(watch_);
    const auto unwatch = qScopeGuard([this] { service_.watchDelivery({}); });
    const PrintJob job = takeJob(); // the job has ended, whatever the service does with it
    if (!job.pages.empty()) service_.deliver(job, printer);
}

void PrintDevice::KillDoc() { takeJob(); }

PrintedPage& PrintDevice::page() {
    if (!jobPrinter_) jobPrinter_ = currentPrinter();
    if (!pageOpen_) {
        job_.pages.push_back(PrintedPage{setup_, {}});
        pageOpen_ = true;
    }
    return job_.pages.back();
}

int PrintDevice::requirePrinter(int index) {
    if (index < 0 || index >= service_.printers().size())
        throw DeviceError(9, u"A kiválasztott nyomtató nem érhető el, válassz másikat!"_s);
    return index;
}

const Font& PrintDevice::usableFont() const {
    if (font_.name.isEmpty() || font_.size < 1) throw refusedValue();
    return font_;
}

PrintJob PrintDevice::takeJob() {
    PrintJob job = std::exchange(job_, PrintJob{});
    job_.title = defaultTitle();
    jobPrinter_.reset();
    watch_ = {};
    NewPage();
    return job;
}
