#include "records/record_file.h"

#include <algorithm>

RawRecordFile::RawRecordFile(const ProgramFolder& folder, const QString& fileName, qint64 recordLength)
    : file_(folder.file(fileName))
    , recordLength_(recordLength) {
    // Unbuffered: a record reaches the system in one call, so a killed process leaves whole records only.
    if (!file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 RawRecordFile::count() const { return file_.isOpen() ? file_.size() / recordLength_ : 0; }

void RawRecordFile::read(qint64 k, char* record) {
    std::fill_n(record, recordLength_, '\0');
    if (k < 1 || k > count() || !file_.seek((k - 1) * recordLength_)) return;
    if (file_.read(record, recordLength_) != recordLength_) std::fill_n(record, recordLength_, '\0');
}

bool RawRecordFile::readMany(qint64 first, qint64 number, char* records) {
    const qint64 there = std::clamp<qint64>(count() - first + 1, 0, number) * recordLength_;
    std::fill(records + there, records + number * recordLength_, '\0');
    return there == 0 ? isReadable() : file_.seek((first - 1) * recordLength_) && file_.read(records, there) == there;
}

bool RawRecordFile::write(qint64 k, const char* record) {
    if (k < 1 || !file_.isWritable()) return false;
    const qint64 oldSize = file_.size();
    const qint64 start = (k - 1) * recordLength_;
    QByteArray bytes(record, static_cast<qsizetype>(recordLength_));
    const qint64 wholeRecords = count() * recordLength_;
    const qint64 from = std::min(start, wholeRecords);
    bytes.prepend(QByteArray(static_cast<qsizetype>(start - from), '\0'));
    if (file_.seek(from) && file_.write(bytes) == bytes.size()) return true;
    if (file_.size() > oldSize) file_.resize(oldSize);
    return false;
}

QByteArray RawRecordFile::readAll() {
    QByteArray bytes;
    readAllInto(bytes);
    return bytes;
}

void RawRecordFile::readAllInto(QByteArray& bytes) {
    const bool readable = file_.isOpen() && file_.seek(0);
    bytes.resize(readable ? static_cast<qsizetype>(count() * recordLength_) : 0);
    if (bytes.isEmpty()) return;
    bytes.truncate(static_cast<qsizetype>(std::max<qint64>(0, file_.read(bytes.data(), bytes.size()))));
    bytes.truncate(bytes.size() - bytes.size() % static_cast<qsizetype>(recordLength_));
}
