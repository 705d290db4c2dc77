#include "records/record_file.h"

#include <algorithm>

RawRecordFile::RawRecordFile(const ProgramFolder& folder, const QString& fileName, qint64 recordLength)
    : file_(folder.file(fileName))
    , recordLength_(recordLength) {
    // A pipe or a device would hang whoever opens it.
    if (const QFileInfo file(file_); file.exists() && !file.isFile()) return;
    // Unbuffered: a record reaches the system in one call, so a killed process leaves whole records only.
    if (!file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 RawRecordFile::count() const { return file_.isOpen() ? file_.size() / recordLength_ : 0; }

bool RawRecordFile::read(qint64 k, char* record) {
    std::fill_n(record, recordLength_, '\0');
    if (!file_.isOpen()) return false;
    if (k < 1 || k > count()) return true;
    if (file_.seek((k - 1) * recordLength_) && file_.read(record, recordLength_) == recordLength_) return true;
    std::fill_n(record, recordLength_, '\0');
    return false;
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

template<class Bytes>
bool RawRecordFile::readWholeInto(Bytes& bytes) {
    bytes.resize(0);
    if (!file_.isOpen() || !file_.seek(0)) return false;
    const auto length = static_cast<qsizetype>(count() * recordLength_);
    bytes.resize(length);
    const qint64 done = length > 0 ? file_.read(bytes.data(), length) : 0;
    bytes.truncate(static_cast<qsizetype>(std::max<qint64>(done, 0)));
    return done == length;
}
template bool RawRecordFile::readWholeInto(QByteArray&);
template bool RawRecordFile::readWholeInto(PageBuffer&);

QByteArray settings_file::read(const ProgramFolder& folder, const QString& name) {
    QByteArray bytes;
    if (!RawRecordFile(folder, name, 1).readAllInto(bytes)) throw UnreadableFile(name);
    return bytes;
}

bool settings_file::writeInPlace(const ProgramFolder& folder, const QString& name, qint64 offset,
                                 QByteArrayView bytes) {
    QFile file(folder.file(name));
    return file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) && file.seek(offset) &&
           file.write(bytes.data(), bytes.size()) == bytes.size();
}
