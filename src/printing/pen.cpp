#include "printing/pen.h"

#include "prompts/titles.h"

using namespace Qt::Literals::StringLiterals;

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

Pen::Pen(const PrintDesk& desk, FailureWay way, const QString& jobTitle, FirstPage page)
    : device_(desk.device)
    , desk_(&desk)
    , way_(way) {
    device_.startJob(page);
    device_.setTitle(jobTitle);
}

Pen::Pen(PrintDevice& device) : device_(device), desk_(nullptr), way_(FailureWay::passOver) {}

void Pen::SelectPrinter(const Set& set, TrackDefault track) {
    attempt([&] {
        const bool followsDefault = set.opPrinter_1;
        if (!followsDefault) device_.setCurrentPrinter(set.lbPrintNo);
        if (track == TrackDefault::set) device_.setTrackDefault(followsDefault);
    });
}

void Pen::ShowPrinter(const QString& summary) {
    attempt([&] {
        const auto choice = desk_->prompts.choosePrinter(device_.Printers(), device_.currentPrinter(), summary);
        if (!choice) throw DeviceError(32755, u"A nyomtatás megszakítva."_s);
        device_.useForThisJob(choice->printer, choice->copies, choice->driverSettings);
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

void Pen::SetFont(const QString& name, int size, std::optional<Weight> weight) {
    wanted_ = {trimBlanks(name).toString(), static_cast<float>(size)};
    attempt([&] { device_.setFontName(wanted_.name); });
    SetFontSize(size);
    if (weight) attempt([&] { device_.setFontBold(*weight == Weight::bold); });
}

void Pen::SetFontSize(int size) {
    wanted_.size = static_cast<float>(size);
    attempt([&] { device_.setFontSize(wanted_.size); });
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
    attempt([&] { device_.Print(u" "_s, LineEnd::yes); });
}

void Pen::PaintPicture(const QImage& picture, float x, float y, float width, float height) {
    attempt([&] { device_.PaintPicture(picture, x, y, width, height); });
}

void Pen::EndForm(FormEnd end) {
    attempt([&] { end == FormEnd::page ? device_.NewPage() : handOver(); });
}

void Pen::handOver() {
    if (desk_->progress)
        device_.watchDelivery([this](int painted, int pages, bool canCancel) {
            return desk_->progress({PrintStage::handingOver, painted, pages, canCancel});
        });
    outcome_.device = device_.deviceName();
    const int pages = device_.pageCount();
    // What was wrong with the pages counts only if they come out: else the trouble is why they don't.
    const QString noted = std::exchange(outcome_.trouble, QString());
    device_.EndDoc();
    outcome_.pages = pages;
    outcome_.trouble = noted;
    if (pages == 0) Note(u"A nyomtatandó adatok mind üresek."_s);
}

void Pen::PageWritten(int done, int pages) {
    attempt([&] {
        if (desk_->progress && !desk_->progress({PrintStage::writing, done, pages, true})) throw stoppedByUser();
    });
}

float Pen::TextWidth(const QString& fontName, int size, const QString& text) {
    float width = 0;
    attempt([&] {
        device_.setScaleMode(6);
        device_.setFontName(trimBlanks(fontName).toString());
        device_.setFontSize(static_cast<float>(size));
        device_.setFontBold(false);
        device_.setFontItalic(false);
        width = device_.TextWidth(text);
    });
    return width;
}

void Pen::Reject(const Message& message) {
    if (stopped_) return;
    desk_->prompts.tell(message);
    Drop(trimBlanks(message.text).toString());
}

void Pen::Fail(int number, const QString& description) {
    if (stopped_) return;
    if (number == stoppedByUser().number) return Drop(description);
    Note(troubleOf(number, description));
    if (way_ == FailureWay::fallbackFont && number == 380 && !fallingBack_) return fallBack();
    if (way_ == FailureWay::passOver) return;
    stopped_ = true;
    device_.KillDoc();
    if (way_ != FailureWay::silent) tellFailure(number, description);
}

void Pen::Drop(const QString& trouble) {
    if (stopped_) return;
    outcome_.trouble = trouble;
    stopped_ = true;
    device_.KillDoc();
}

void Pen::Note(const QString& trouble) {
    if (outcome_.trouble.isEmpty()) outcome_.trouble = trouble;
}

// A refused value is a font: nothing else that a form asks of the device can be refused.
QString Pen::troubleOf(int number, const QString& description) const {
    if (number != 380) return description;
    if (wanted_.name.isEmpty()) return u"Nincs megadva betűtípus."_s;
    return u"A betűtípus nem használható: %1, %2 pont"_s.arg(wanted_.name).arg(qRound(wanted_.size));
}

// Should this font be missing as well, that is told.
void Pen::fallBack() {
    fallingBack_ = true;
    attempt([&] { device_.setFontName(u"Times New Roman"_s); });
    fallingBack_ = false;
}

void Pen::tellFailure(int number, const QString& description) {
    const QString code = QString::number(number);
    if (way_ == FailureWay::message) {
        const QString text = u"Hiba kódszáma: "_s + code + u'\n' + description + u'\n';
        desk_->prompts.tell({Icon::warning, titles::printError, text});
    } else {
        const QString text = description + u"\nHibakód száma : "_s + code;
        desk_->prompts.tell({Icon::none, titles::formError, text});
    }
}
