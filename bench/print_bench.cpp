#include "benches.h"
#include "comparison.h"
#include "platform/qt_print_service.h"
#include "printing/posting_receipt.h"
#include "printing/yellow_check.h"
#include "samples.h"

#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <memory>
#include <numeric>
#include <optional>

namespace {

constexpr int pageCount = 1000;
constexpr int sampleSize = 32767;

// The clients and the tab that they are printed with.
ListRows rowsToPrint() {
    ListRows rows;
    rows.selected.resize(pageCount);
    std::iota(rows.selected.begin(), rows.selected.end(), 1);
    return rows;
}

FormTabs filledTabs() {
    FormTabs tabs;
    YellowCheckTab& tab = tabs.yellowCheck;
    tab.Kozlemeny1 = QStringLiteral("Tagdíj, második félév");
    tab.txtJogcim1 = QStringLiteral("Tagdíj");
    tab.txtJogcim2 = QStringLiteral("2026. év");
    PostingReceiptTab& receipt = tabs.postingReceipt;
    receipt.lbSajatNev = QStringLiteral("Kerekerdő Egyesület");
    receipt.lbSajatCim1 = QStringLiteral("1024 Budapest");
    receipt.lbSajatCim2 = QStringLiteral("Fő utca 1.");
    receipt.txErtek = receipt.txUtanvet = QStringLiteral("12345");
    receipt.txtFeladov1 = receipt.txtFeladov2 = QStringLiteral("számlára fizetendő");
    receipt.chkAjanlott = receipt.chkTerti = receipt.chkCsomag = receipt.chkHivIrat = receipt.chkErtek = true;
    receipt.chkSK = receipt.chkPRI = receipt.chkPL = receipt.chkLEGI = receipt.chk5 = receipt.chk6 = true;
    return tabs;
}

using Routine = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);

void printForms(Routine print, PrintService& service) {
    PrintDevice device(service);
    QuietPrompts prompts;
    const ProgramFolder& folder = sampleFolder(sampleSize);
    const PrintOutcome outcome = print({device, prompts, folder, false}, filledTabs(), rowsToPrint());
    if (outcome.pages != pageCount) qFatal("the forms did not print: %s", qPrintable(outcome.trouble));
}

// The real service, but for a job that it keeps instead of printing it.
class KeepingService : public QtPrintService {
public:
    using QtPrintService::QtPrintService;
    PrintJob job;

    void deliver(const PrintJob& delivered, int /*printer*/) override { job = delivered; }
};

constexpr int dotsPerInch = 1200; // what a QPdfWriter begins with

// What a bare loop has ready before it begins: fonts, and the texts with the points where their lines stand.
struct BareText {
    std::size_t font;
    QPointF baseline;
    QString text;
};

class BareJob {
public:
    explicit BareJob(const PrintJob& job) {
        for (const PrintedPage& page : job.pages) {
            std::vector<BareText>& texts = pages_.emplace_back();
            for (const PlacedItem& item : page.items)
                texts.push_back(bareText(std::get<PlacedText>(item)));
        }
    }

    void print(const QString& path) const {
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(QSizeF(220, 110), QPageSize::Millimeter));
        writer.setPageMargins(QMarginsF());
        QPainter painter(&writer);
        for (std::size_t page = 0; page < pages_.size(); ++page) {
            if (page > 0) writer.newPage();
            for (const BareText& text : pages_[page]) {
                painter.setFont(fonts_[text.font]);
                painter.drawText(text.baseline, text.text);
            }
        }
    }

private:
    BareText bareText(const PlacedText& placed) {
        const std::size_t font = numberOf(placed.font);
        const QPointF topLeft = QPointF(placed.x, placed.y) * dotsPerInch / 25.4;
        return {font, topLeft + QPointF(0, QFontMetricsF(fonts_[font]).ascent()), placed.text};
    }

    std::size_t numberOf(const Font& font) {
        const auto place = std::find(known_.begin(), known_.end(), font);
        const auto number = static_cast<std::size_t>(place - known_.begin());
        if (place != known_.end()) return number;
        known_.push_back(font);
        QFont& made = fonts_.emplace_back(FontBook().familyFor(font.name).value_or(QString()));
        made.setPixelSize(qRound(font.size * dotsPerInch / 72));
        return number;
    }

    std::vector<Font> known_;
    std::vector<QFont> fonts_;
    std::vector<std::vector<BareText>> pages_;
};

// A thousand forms in two ways. Its fonts stay known from job to job as they do in the window.
class FormPrinting {
public:
    explicit FormPrinting(Routine print) : print_(print) {}

    double timeOfForms() {
        QFile::remove(service().lastPdf());
        return secondsOf([&] { printForms(print_, service()); });
    }

    double timeOfBareLoop() {
        const BareJob& job = bareJob();
        return secondsOf([&] { job.print(barePdf()); });
    }

    double bytesOfForms() {
        timeOfForms();
        return bytesOfPage(service().lastPdf());
    }

    double bytesOfBareLoop() {
        timeOfBareLoop();
        return bytesOfPage(barePdf());
    }

private:
    // Both made when they are needed, which they may never be.
    QtPrintService& service() {
        if (!service_) service_.emplace(sampleFolder(sampleSize), Devices::pdfOnly);
        return *service_;
    }
    const BareJob& bareJob() {
        if (bareJob_) return *bareJob_;
        KeepingService keeper(sampleFolder(sampleSize), Devices::pdfOnly);
        printForms(print_, keeper);
        return bareJob_.emplace(keeper.job);
    }

    QString barePdf() const { return scratch_.folder().file(QStringLiteral("bare.pdf")); }
    static double bytesOfPage(const QString& pdf) { return static_cast<double>(QFileInfo(pdf).size()) / pageCount; }

    Routine print_;
    std::optional<QtPrintService> service_;
    std::optional<BareJob> bareJob_;
    ScratchFolder scratch_;
};

} // namespace

void addPrintBenches(Suite& suite) {
    const struct {
        const char* name;
        Routine print;
        double timesLimit;
    } forms[] = {{"1000 yellow checks to PDF", PrintCsAlloCsekk, 1.3},
                 {"1000 posting receipts, all marks, to PDF", PrintCsAlloFelado, 1.2}};
    const char* const loop = "bare QPdfWriter loop, same texts";
    for (const auto& form : forms) {
        const auto printing = std::make_shared<FormPrinting>(form.print);
        suite.add(Comparison{form.name,
                             [printing] { return printing->timeOfForms(); },
                             loop,
                             [printing] { return printing->timeOfBareLoop(); },
                             {Aim::Kind::timesLimit, form.timesLimit}});
        suite.add(Figure{"bytes a page of these", [printing] { return printing->bytesOfForms(); }, loop,
                         [printing] { return printing->bytesOfBareLoop(); }, 1});
    }
}
