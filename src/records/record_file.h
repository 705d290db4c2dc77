#pragma once

#include "records/file_replacement.h"
#include "records/page_buffer.h"
#include "records/program_folder.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <span>
#include <stdexcept>
#include <type_traits>

// A file that is there and can't be read: an error of the disk or the network, no right, no plain file. It isn't an
// empty one, whose records are zeros, and whoever needs it must stop.
class UnreadableFile : public std::runtime_error {
public:
    explicit UnreadableFile(const QString& name) : std::runtime_error(name.toStdString()), name_(name) {}
    const QString& name() const { return name_; }

private:
    QString name_;
};

// A flat file of records of one length, without header; record numbers start at 1. Opening creates a missing file,
// empty; a write-protected one is opened for reading. A write that cannot be done returns false and leaves the file as
// it was.
class RawRecordFile {
public:
    RawRecordFile(const ProgramFolder& folder, const QString& fileName, qint64 recordLength);

    // False where nothing can be read: there are no records then, and each read fails.
    bool isReadable() const { return file_.isOpen(); }
    // Whole records in the file, worked out anew at each call; an incomplete tail doesn't count.
    qint64 count() const;
    // False for a write-protected file, and for one that could not be opened at all.
    bool isWritable() const { return file_.isWritable(); }
    // Record k, or zeros beyond the end. The file is never made longer. False, and zeros, if it could not be read.
    bool read(qint64 k, char* record);
    // `number` records from `first` on, in one read; zeros beyond the end. False: the file can't be read.
    bool readMany(qint64 first, qint64 number, char* records);
    // Writing at count() + 1 appends, over an incomplete tail if there is one; farther out, the gap is filled with
    // NULs.
    bool write(qint64 k, const char* record);
    // The bytes of all whole records in one read, into `bytes`, whose memory is used again: for large files, first use
    // of memory takes longer than reading. False if not all of them could be read.
    bool readAllInto(QByteArray& bytes) { return readWholeInto(bytes); }
    bool readAllInto(PageBuffer& bytes) { return readWholeInto(bytes); }
    QString name() const { return QFileInfo(file_.fileName()).fileName(); }

private:
    template<class Bytes>
    bool readWholeInto(Bytes& bytes);

    QFile file_;
    qint64 recordLength_;
};

// The same for one record type, which names its file: `static constexpr const char* fileName`.
template<class Rec>
class RecordFile {
    static_assert(std::is_trivially_copyable_v<Rec> && alignof(Rec) == 1, "a record is the bytes of its file");

public:
    explicit RecordFile(const ProgramFolder& folder)
        : file_(folder, QString::fromLatin1(Rec::fileName), static_cast<qint64>(sizeof(Rec))) {}

    bool isReadable() const { return file_.isReadable(); }
    qint64 count() const { return file_.count(); }
    bool isWritable() const { return file_.isWritable(); }
    bool readMany(qint64 first, std::span<Rec> records) {
        return file_.readMany(first, static_cast<qint64>(records.size()), reinterpret_cast<char*>(records.data()));
    }
    // Throws UnreadableFile.
    Rec read(qint64 k) {
        Rec record;
        if (!read(k, record)) throw UnreadableFile(file_.name());
        return record;
    }
    // False, and zeros, if the record could not be read; one beyond the end reads as zeros.
    bool read(qint64 k, Rec& record) { return file_.read(k, reinterpret_cast<char*>(&record)); }
    bool write(qint64 k, const Rec& record) { return file_.write(k, reinterpret_cast<const char*>(&record)); }
    // Throws UnreadableFile.
    QByteArray readAll() {
        QByteArray bytes;
        if (!readAllInto(bytes)) throw UnreadableFile(file_.name());
        return bytes;
    }
    template<class Bytes>
    bool readAllInto(Bytes& bytes) {
        return file_.readAllInto(bytes);
    }

private:
    RawRecordFile file_;
};

// A record with every byte zero: what a file that was never written reads as.
template<class Rec>
Rec zeroRecord() {
    Rec record;
    std::memset(static_cast<void*>(&record), 0, sizeof record);
    return record;
}

namespace settings_file {
// All bytes of a file, which is created if it is missing. Throws UnreadableFile.
QByteArray read(const ProgramFolder& folder, const QString& name);

// False: nothing was written.
bool writeInPlace(const ProgramFolder& folder, const QString& name, qint64 offset, QByteArrayView bytes);

template<class Rec>
QByteArray readFor(const ProgramFolder& folder) {
    QByteArray bytes = read(folder, QString::fromLatin1(Rec::fileName));
    if (bytes.size() < qsizetype{sizeof(Rec)}) bytes.append(qsizetype{sizeof(Rec)} - bytes.size(), '\0');
    return bytes;
}
} // namespace settings_file

// Record 1 of a settings file: what is there of it, zeros for the rest. Throws UnreadableFile.
template<class Rec>
Rec readRecord(const ProgramFolder& folder) {
    Rec record;
    std::memcpy(static_cast<void*>(&record), settings_file::readFor<Rec>(folder).constData(), sizeof record);
    return record;
}

// The one place of read, change, write back: `change` touches the fields that the caller owns, and all others keep what
// is on disk. The file is replaced as one step. False, and all is as it was, if it could not be written. Throws
// UnreadableFile, and all is as it was.
template<class Rec, class Change>
bool updateRecord(const ProgramFolder& folder, Change change) {
    QByteArray bytes = settings_file::readFor<Rec>(folder);
    change(*reinterpret_cast<Rec*>(bytes.data())); // alignment 1
    return replaceFile(folder.file(QString::fromLatin1(Rec::fileName)), bytes);
}

// The same for one field that may be lost with the power: it is written in its place and not flushed, which costs next
// to nothing. A replacement without a flush could lose the whole record.
template<class Rec, class Field>
bool updateField(const ProgramFolder& folder, Field Rec::*field, const Field& value) {
    static_assert(sizeof(Field) <= 8, "written whole or not at all");
    auto record = readRecord<Rec>(folder);
    record.*field = value;
    const auto offset = reinterpret_cast<const char*>(&(record.*field)) - reinterpret_cast<const char*>(&record);
    return settings_file::writeInPlace(folder, QString::fromLatin1(Rec::fileName), offset,
                                       {reinterpret_cast<const char*>(&value), qsizetype{sizeof value}});
}
