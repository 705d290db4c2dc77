#pragma once

#include "printing/print_job.h"

#include <QStringList>

#include <functional>
#include <stdexcept>
#include <string>

// A device that cannot do what it was asked. what() is the description in UTF-8, as the user may read it.
// Numbers: 9 index beyond the list, 18 stopped by the user, 380 property value refused, 482 printer error, 32755
// cancelled in the print dialog.
struct DeviceError : std::runtime_error {
    int number;
    DeviceError(int errorNumber, const QString& description)
        : std::runtime_error(description.toStdString())
        , number(errorNumber) {}
};

// The user stopped a job before anything of it was printed.
inline DeviceError stoppedByUser() {
    using namespace Qt::Literals::StringLiterals;
    return {18, u"A nyomtatást megszakítottad, egy lap sem készült."_s};
}

// Pages painted so far, of all that the device gets. The answer false stops the delivery, but only while it can be
// cancelled.
using DeliveryProgress = std::function<bool(int pagesPainted, int pages, bool canCancel)>;

// All that the logic needs of the printing system of the machine.
class PrintService {
public:
    virtual ~PrintService() = default;
    // Device names by position from 0, asked once: an index means the same device for the life of the process.
    virtual QStringList printers() = 0;
    // Place of the system's default device in the list, asked afresh.
    virtual int defaultPrinter() = 0;
    virtual QStringList fonts() = 0;
    // True if the system or one of our substitutions has the family.
    virtual bool knowsFont(const QString& name) = 0;
    // mm, the same for every device, so that the screen and a batch agree. `font` is known and 1 point or larger.
    virtual float textWidth(const Font& font, const QString& text) = 0;
    // mm from one line to the next: ascent and descent, no leading.
    virtual float lineHeight(const Font& font) = 0;
    // Prints the whole job or nothing; DeviceError if it could not be handed over.
    virtual void deliver(const PrintJob& job, int printer) = 0;
    // Who is told of each page while deliver() runs; nobody with an empty function. A delivery that is stopped prints
    // nothing, leaves no file and ends as stoppedByUser().
    virtual void watchDelivery(const DeliveryProgress& /*progress*/) {}
};
