#pragma once

#include "printing/print_desk.h"
#include "settings/general_settings.h"

#include <QSizeF>

#include <optional>

// What becomes of a print routine when a step fails (DeviceError).
enum class FailureWay {
    message,     // the job is dropped, the "! HIBA !" box tells number and description
    silent,      // the job is dropped, nothing is shown
    passOver,    // the failed step is skipped, the next one runs
    fallbackFont // 380: the font becomes "Times New Roman" and the next step runs; else dropped and told
};

// Whether a routine makes the device follow the system's default printer where the settings say so, or leaves that
// property of the device alone.
enum class TrackDefault { leave, set };

enum class Weight { normal, bold };

// What ends: one form of a batch, or the whole job.
enum class FormEnd { page, job };

// The page that a routine asks for; what is not set stays as the device has it.
struct PageRequest {
    std::optional<int> orientation = {}; // 1 portrait, 2 landscape
    std::optional<int> paperSize = {};   // 9 A4, 27 DL envelope, 28 C5 envelope
    std::optional<QSizeF> sizeMm = {};   // the form's own size
};

// The page of most upright routines: a DL envelope lying across.
constexpr PageRequest dlLandscape{2, 27, {}};

// The steps of a print routine on the device, one job long. A step that fails goes the failure way; where that way
// drops the job, the pen has stopped: all further steps do nothing, and loops over clients should end. A job that the
// user stops is dropped without a box, whatever the failure way. What the job came to is collected for the caller.
// Positions are mm.
class Pen {
public:
    // Starts the job (PrintDevice::startJob). The desk outlives the pen.
    Pen(const PrintDesk& desk, FailureWay way, const QString& jobTitle, FirstPage page = FirstPage::ownPage);
    // A pen that only measures, also in the middle of a job: failures are passed over.
    explicit Pen(PrintDevice& device);

    // The device of the settings, unless they say that the system's default is used.
    void SelectPrinter(const Set& set, TrackDefault track = TrackDefault::leave);
    // The print dialog with a summary of the job; device and copies picked there hold for this job. Cancel is error
    // 32755.
    void ShowPrinter(const QString& summary = {});
    void OpenForm(const PageRequest& request);

    // `name` may be padded, as in a record.
    void SetFont(const QString& name, int size, std::optional<Weight> weight = {});
    // Points; the name stays.
    void SetFontSize(int size);
    // Text with a line end.
    void PlaceText(float x, float y, const QString& text);
    // The same on the line where the pen stands.
    void PlaceNext(float x, const QString& text);
    // Text without a line end; without y on the line where the pen stands.
    void PlaceHold(float x, std::optional<float> y, const QString& text);
    void MoveToLine(float y);
    void SkipLine();
    void PaintPicture(const QImage& picture, float x, float y, float width, float height);
    void EndForm(FormEnd end);
    // One more page of a batch is written: tells the desk, whose answer may drop the job.
    void PageWritten(int done, int pages);

    // Width in mm in the given font, upright and not bold, which stays set; 0 if it cannot be measured.
    float TextWidth(const QString& fontName, int size, const QString& text);

    // The form's main data are missing: shows the box and ends the job without a page.
    void Reject(const Message& message);
    // An error of the routine itself takes the failure way as well.
    void Fail(int number, const QString& description);
    // Ends the job without a page and without a box.
    void Drop(const QString& trouble);
    // Something for the status line that stops nothing. The first trouble of a job is the one that counts.
    void Note(const QString& trouble);

    bool stopped() const { return stopped_; }
    const PrintOutcome& outcome() const { return outcome_; }

private:
    template<class Step>
    void attempt(Step step);
    QString troubleOf(int number, const QString& description) const;
    void handOver();
    void fallBack();
    void tellFailure(int number, const QString& description);

    PrintDevice& device_;
    const PrintDesk* desk_; // none when measuring
    FailureWay way_;
    bool stopped_ = false;
    bool fallingBack_ = false;
    Font wanted_ = {}; // asked for last, had or not
    PrintOutcome outcome_;
};
