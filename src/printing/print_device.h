#pragma once

#include "printing/print_service.h"

enum class LineEnd { no, yes };

// The page that a job begins with: the device's own, or whatever the job before it left.
enum class FirstPage { ownPage, asLeft };

// The one print device of the process: a pen that builds a job. Its state (device, page set-up, font) lives between
// jobs: a routine sets what it needs and leaves the rest. A job begins with the first write and reaches the service as
// a whole at EndDoc, so it is printed whole or not at all, and there are no blank pages. All coordinates are
// millimetres.
class PrintDevice {
public:
    explicit PrintDevice(PrintService& service);

    QStringList Printers();
    // Device in force: the one of the job under way or, without a job, the one that the next job goes to. A new
    // PrintDevice follows the system's default.
    int currentPrinter() const;
    // Makes a member of the list current, with that device's own default page; ends TrackDefault. DeviceError 9 beyond
    // the list.
    void setCurrentPrinter(int index);
    // Whether it goes where the system's default goes.
    bool followsDefault() const { return trackDefault_; }
    // For the job that begins next (or has begun) alone; after its EndDoc or KillDoc, which count without a page too,
    // the former device and a single copy are in force again. The page set-up is left as it is. DeviceError 9 beyond
    // the list.
    void useForThisJob(int printer, int copies, const QByteArray& driverSettings = {});

    // What one job leaves behind must not reach the next: page as told, "Times New Roman CE" (none if the service
    // doesn't know it) of 12 points, neither bold nor italic, the pen at 0, 0. The device in force stays. For use
    // between jobs.
    void startJob(FirstPage page = FirstPage::ownPage);

    // The page that the next write begins.
    const PageSetup& pageSetup() const { return setup_; }
    void setScaleMode(int mode); // 6, millimetres, is the one served; DeviceError 380 for others
    void setOrientation(int orientation);
    void setPaperSize(int paperCode);          // ends a size of the form's own
    void setTrackDefault(bool follow);         // True: the system's default device, asked afresh when a job begins
    void setSizeMm(float width, float height); // the form's own size, with orientation 1

    // Whether setFontName takes the name.
    bool knowsFont(const QString& name) const;
    // Trailing blanks of a name are ignored. DeviceError 380 for an empty or unknown name; the font stays as it was.
    void setFontName(const QString& name);
    void setFontSize(float points); // DeviceError 380 below 1
    void setFontBold(bool bold);
    void setFontItalic(bool italic);
    const Font& font() const;

    void setCurrentX(float x);
    void setCurrentY(float y);
    float CurrentX() const;
    float CurrentY() const;

    // Width in the font in force, with no output; 380 if no usable font has been set.
    float TextWidth(const QString& text);
    // Writes at the pen. Line end: x = 0 and one line of the font in force down; otherwise the pen stays behind the
    // text. An empty text only moves the pen. 380 if no usable font has been set.
    void Print(const QString& text, LineEnd end);
    void PaintPicture(const QImage& picture, float x, float y, float width, float height);
    // The next write begins a page, with the set-up then in force. Nothing else happens but that the pen goes to 0, 0,
    // so a job never ends in a blank page.
    void NewPage();

    // Title of the job that begins next, of that one alone; names the file of a PDF.
    void setTitle(const QString& title);
    // Pages written so far in the job that is under way.
    int pageCount() const;
    // Name of the device in force.
    QString deviceName();
    // Who is told of each page while the job that is under way is handed over.
    void watchDelivery(DeliveryProgress progress);
    // Hands the job over and ends it, also if the service refuses it (DeviceError). Without a page nothing is handed
    // over. The pen goes to 0, 0.
    void EndDoc();
    // Drops the job. The pen goes to 0, 0.
    void KillDoc();

private:
    PrintedPage& page();
    int requirePrinter(int index);
    const Font& usableFont() const;
    PrintJob takeJob();

    PrintService& service_;
    int current_ = 0;
    bool trackDefault_ = true;
    PageSetup setup_;
    Font font_;
    float x_ = 0;
    float y_ = 0;
    std::optional<int> jobPrinter_; // fixed at the first write, or chosen for this job
    bool pageOpen_ = false;
    PrintJob job_;
    DeliveryProgress watch_;
};
