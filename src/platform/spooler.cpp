#include "platform/spooler.h"

#include "printing/print_service.h"

#ifdef TARLIMO_CUPS
#include <QDeadlineTimer>

#include <cups/cups.h>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int answerMs = 3000;
constexpr int handOverMs = 10000;
constexpr double lookSeconds = 0.2;

// A connection of our own. Once its time is over or the waiting was ended, whatever waits on it fails.
class Connection {
public:
    explicit Connection(int limitMs, KeepWaiting wait = {})
        : deadline_(limitMs)
        , wait_(std::move(wait))
        , http_(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, limitMs, nullptr)) {
        if (!http_) return;
        const auto mayWait = [](http_t*, void* self) { return static_cast<Connection*>(self)->mayWait() ? 1 : 0; };
        httpSetTimeout(http_.get(), lookSeconds, mayWait, this);
    }

    http_t* http() const { return http_.get(); }
    bool isEndedByUser() const { return ended_; }
    QString trouble() const {
        const bool answered = http_ && !deadline_.hasExpired();
        return answered ? QString::fromUtf8(cupsLastErrorString()) : u"a nyomtatási szolgáltatás nem válaszol."_s;
    }

private:
    bool mayWait() {
        if (!ended_ && wait_ && !wait_()) ended_ = true;
        return !ended_ && !deadline_.hasExpired();
    }

    struct Close {
        void operator()(http_t* http) const { httpClose(http); }
    };
    QDeadlineTimer deadline_;
    KeepWaiting wait_;
    bool ended_ = false;
    std::unique_ptr<http_t, Close> http_;
};

class Options {
public:
    Options() = default;
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;
    ~Options() { cupsFreeOptions(count_, list_); }
    void add(const char* name, const QByteArray& value) { count_ = cupsAddOption(name, value, count_, &list_); }
    int count() const { return count_; }
    cups_option_t* list() const { return list_; }

private:
    int count_ = 0;
    cups_option_t* list_ = nullptr;
};

// Number of the new job, 0 if there is none. The library's own call asks on a connection of its own, which waits for a
// minute; but it is the one that makes the queue of a printer that was only discovered.
int createJob(http_t* http, const char* queue, const char* title, const Options& options) {
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0, "/printers/%s", queue);
    ipp_t* const request = ippNewRequest(IPP_OP_CREATE_JOB);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title);
    cupsEncodeOptions2(request, options.count(), options.list(), IPP_TAG_JOB);
    ipp_t* const answer = cupsDoRequest(http, request, "/printers/");
    ipp_attribute_t* const number = ippFindAttribute(answer, "job-id", IPP_TAG_INTEGER);
    const int job = number != nullptr ? ippGetInteger(number, 0) : 0;
    ippDelete(answer);
    if (job != 0 || cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND) return job;
    return cupsCreateJob(http, queue, title, options.count(), options.list());
}

bool sendDocument(http_t* http, const char* queue, int job, const char* title, const QByteArray& pdf) {
    if (cupsStartDocument(http, queue, job, title, CUPS_FORMAT_PDF, 1) != HTTP_STATUS_CONTINUE) return false;
    const auto size = static_cast<std::size_t>(pdf.size());
    return cupsWriteRequestData(http, pdf.constData(), size) == HTTP_STATUS_CONTINUE &&
           cupsFinishDocument(http, queue) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

} // namespace

bool hasSpooler() { return true; }

bool spoolerAnswers(const KeepWaiting& wait) {
    static QDeadlineTimer silent(0);
    if (!silent.hasExpired()) return false;
    const Connection connection(answerMs, wait);
    ipp_t* answer = nullptr; // "there is no default printer" is one, too
    if (connection.http() != nullptr)
        answer = cupsDoRequest(connection.http(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
    if (answer == nullptr) silent.setRemainingTime(answerMs);
    ippDelete(answer);
    return answer != nullptr;
}

// In two steps, so that a spooler that wakes up after its time was over finds a job without a document, which it drops.
void handToSpooler(const QString& queue, const SpooledJob& job, const KeepWaiting& wait) {
    const QByteArray name = queue.section(u'/', 0, 0).toUtf8(); // behind it an instance: the same queue
    const QByteArray title = job.title.toUtf8();
    Options options;
    options.add("media", job.sheet.toUtf8());
    options.add("sides", "one-sided");
    if (job.sideways) options.add("landscape", "");
    if (job.copies > 1) {
        options.add("copies", QByteArray::number(job.copies));
        options.add("Collate", "True");
    }

    const Connection connection(handOverMs, wait);
    http_t* const http = connection.http();
    const int number = http != nullptr ? createJob(http, name, title, options) : 0;
    if (number != 0 && sendDocument(http, name, number, title, job.pdf)) return;

    const DeviceError stopped = stoppedByUser();
    QString reason = u"A nyomtató nem fogadta el a feladatot: "_s + connection.trouble();
    if (connection.isEndedByUser()) reason = QString::fromUtf8(stopped.what());
    if (number != 0) {
        const Connection again(answerMs);
        const bool gone =
            again.http() != nullptr && cupsCancelJob2(again.http(), name, number, 1) <= IPP_STATUS_OK_EVENTS_COMPLETE;
        if (!gone) reason += u"\nA feladat a nyomtató sorában maradhatott, nézd meg, mielőtt újra nyomtatsz!"_s;
    }
    throw DeviceError(connection.isEndedByUser() ? stopped.number : 482, reason);
}
#else
bool hasSpooler() { return false; }
bool spoolerAnswers(const KeepWaiting&) { return true; }
void handToSpooler(const QString&, const SpooledJob&, const KeepWaiting&) {
    throw DeviceError(482, QStringLiteral("Ezen a gépen nincs nyomtatási szolgáltatás."));
}
#endif
