#include "printing/pen.h"

#include "prompts/titles.h"

// Runs one step of the job. The only place where a device error is caught.
template<class Step>
void Pen::attempt(Step step) {
    if (stopped_) return;
    try {
        step();
    } catch (const DeviceError& error) {
        Fail(error.number, QString::fromUtf8(error.what()));
    }
}

Pen::Pen(const PrintDesk& desk, FailureWay way, const QString& jobTitle)
    : device_(desk.device)
    , prompts_(&desk.prompts)
    , way_(way) {
    device_.setTitle(jobTitle);
}

Pen::Pen(PrintDevice& device) : device_(device), prompts_(nullptr), way_(FailureWay::passOver) {}

void Pen::StartFromA4() {
    attempt([&] { device_.setSizeTwips(11910, 16790); });
}

void Pen::SelectPrinter(const Set& set, TrackDefault track) {
    attempt([&] {
        const bool followsDefault = set.opPrinter_1;
        if (!followsDefault) device_.setCurrentPrinter(set.lbPrintNo);
        if (track == TrackDefault::set) device_.setTrackDefault(followsDefault);
    });
}

void Pen::ShowPrinter(const QString& summary) {
    attempt([&] {
        const auto choice = prompts_->choosePrinter(device_.Printers(), device_.currentPrinter(), summary);
        if (!choice) throw DeviceError(32755, QStringLiteral("A nyomtatás megszakítva."));
        device_.useForThisJob(choice->printer, choice->copies);
    });
}

void Pen::OpenForm(const PageRequest& request) {
    attempt([&] { device_.setScaleMode(6); });
    attempt([&] {
        if (request.orientation) device_.setOrientation(*request.orientation);
    });
    attempt([&] {
        if (request.paperSize) device_.setPaperSize(*request.paperSize);
    });
    attempt([&] {
        if (!request.sizeMm) return;
        device_.setSizeMm(static_cast<float>(request.sizeMm->width()), static_cast<float>(request.sizeMm->height()));
    });
}

void Pen::SetFont(const QString& name, int size) {
    attempt([&] { device_.setFontName(trimBlanks(name).toString()); });
    attempt([&] { device_.setFontSize(static_cast<float>(size)); });
}

void Pen::SetFont(const QString& name, int size, Weight weight) {
    SetFont(name, size);
    attempt([&] { device_.setFontBold(weight == Weight::bold); });
}

void Pen::PlaceText(float x, float y, const QString& text) {
    MoveToLine(y);
    PlaceNext(x, text);
}

void Pen::PlaceNext(float x, const QString& text) {
    attempt([&] {
        device_.setCurrentX(x);
        device_.Print(text, LineEnd::yes);
    });
}

void Pen::PlaceHold(float x, std::optional<float> y, const QString& text) {
    if (y) MoveToLine(*y);
    attempt([&] {
        device_.setCurrentX(x);
        device_.Print(text, LineEnd::no);
    });
}

void Pen::MoveToLine(float y) {
    attempt([&] { device_.setCurrentY(y); });
}

void Pen::SkipLine() {
    attempt([&] { device_.Print(QStringLiteral(" "), LineEnd::yes); });
}

void Pen::EndForm(FormEnd end) {
    attempt([&] {
        if (end == FormEnd::page) return device_.NewPage();
        outcome_.device = device_.deviceName();
        const int pages = device_.pageCount();
        device_.EndDoc();
        outcome_.pages = pages;
    });
}

float Pen::TextWidth(const QString& fontName, int size, const QString& text) {
    float width = 0;
    attempt([&] {
        device_.setScaleMode(6);
        device_.setFontName(trimBlanks(fontName).toString());
        device_.setFontSize(static_cast<float>(size));
        width = device_.TextWidth(text);
    });
    return width;
}

void Pen::Reject(const Message& message) {
    if (stopped_) return;
    prompts_->tell(message);
    Note(trimBlanks(message.text).toString());
    EndForm(FormEnd::job);
    stopped_ = true;
}

void Pen::Fail(int number, const QString& description) {
    if (stopped_) return;
    if (way_ == FailureWay::fallbackFont && number == 380 && !fallingBack_) return fallBack();
    Note(description);
    if (way_ == FailureWay::passOver) return;
    stopped_ = true;
    device_.KillDoc();
    if (way_ != FailureWay::silent) tellFailure(number, description);
}

void Pen::Note(const QString& trouble) {
    if (outcome_.trouble.isEmpty()) outcome_.trouble = trouble;
}

// Should this font be missing as well, that is told.
void Pen::fallBack() {
    fallingBack_ = true;
    attempt([&] { device_.setFontName(QStringLiteral("Times New Roman")); });
    fallingBack_ = false;
}

void Pen::tellFailure(int number, const QString& description) {
    const QString code = QString::number(number);
    if (way_ == FailureWay::message) {
        const QString text = QStringLiteral("Hiba kódszáma: ") + code + u'\n' + description + u'\n';
        prompts_->tell({Icon::warning, titles::printError, text});
    } else {
        const QString text = description + QStringLiteral("\nHibakód száma : ") + code;
        prompts_->tell({Icon::none, titles::formError, text});
    }
}
