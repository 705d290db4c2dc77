#include "bare_print.h"
#include "benches.h"
#include "comparison.h"
#include "printing/envelope.h"
#include "printing/label_sheet.h"
#include "printing/posting_receipt.h"
#include "printing/yellow_check.h"
#include "records/record_file.h"
#include "samples.h"
#include "settings/envelope_label_settings.h"

#include <QFile>
#include <QFileInfo>

#include <memory>
#include <numeric>
#include <optional>
#include <random>

namespace {

constexpr int formCount = 1000;
constexpr int sampleSize = 32767;

// The clients and the tab that they are printed with.
ListRows rowsToPrint() {
    ListRows rows;
    rows.selected.resize(formCount);
    std::iota(rows.selected.begin(), rows.selected.end(), 1);
    return rows;
}

// A program folder with labels of 3 x 7 on a sheet.
const ProgramFolder& folderToPrintFrom() {
    const auto fixSheet = [](CimkeSetup& set) {
        set.txtSzeles = Cur(70);
        set.txtMagas = Cur::fromTenThousandths(424286);
        set.txtOszlop = 3;
        set.txtSor = 7;
    };
    static const bool fixed = updateRecord<CimkeSetup>(sampleFolder(sampleSize), fixSheet);
    if (!fixed) qFatal("the label sheet could not be fixed");
    return sampleFolder(sampleSize);
}

// Noise, of which a PDF holds a megabyte.
QImage largePicture() {
    QImage picture(1000, 680, QImage::Format_RGB32);
    std::minstd_rand noise(1);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, static_cast<QRgb>(noise()) | 0xff000000U);
    return picture;
}

FormTabs filledTabs() {
    static const QImage picture = largePicture(); // the window has loaded its one before
    FormTabs tabs;
    EnvelopeTab& envelope = tabs.envelope;
    envelope.chkKepPrint = true;
    envelope.picture = picture;
    envelope.kepSzeles = envelope.kepMagas = Cur(4);
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
    const PrintOutcome outcome = print({device, prompts, folderToPrintFrom(), false}, filledTabs(), rowsToPrint());
    if (outcome.pages == 0) qFatal("the forms did not print: %s", qPrintable(outcome.trouble));
}

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
        return bytesOfForm(service().lastPdf());
    }

    double bytesOfBareLoop() {
        timeOfBareLoop();
        return bytesOfForm(barePdf());
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
    static double bytesOfForm(const QString& pdf) { return static_cast<double>(QFileInfo(pdf).size()) / formCount; }

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
                 {"1000 posting receipts, all marks, to PDF", PrintCsAlloFelado, 1.2},
                 {"1000 envelopes, one picture of 1 MB, to PDF", PrintCsAlloBoritek, 1.2},
                 {"1000 labels of 3 x 7 to PDF", PrintAlloCimke, 1.2}};
    const char* const loop = "bare QPdfWriter loop, same texts";
    for (const auto& form : forms) {
        const auto printing = std::make_shared<FormPrinting>(form.print);
        suite.add(Comparison{form.name,
                             [printing] { return printing->timeOfForms(); },
                             loop,
                             [printing] { return printing->timeOfBareLoop(); },
                             {Aim::Kind::timesLimit, form.timesLimit}});
        suite.add(Figure{"bytes a form of these",
                         [printing] { return printing->bytesOfForms(); },
                         "%.0f",
                         {Aim::Kind::timesLimit, 1},
                         loop,
                         [printing] { return printing->bytesOfBareLoop(); }});
    }
}
