#pragma once

#include "records/program_folder.h"

#include <QByteArray>
#include <QFile>

#include <cstring>
#include <span>
#include <type_traits>

// A flat file of records of one length, without header; record numbers start at 1. Opening creates a missing file,
// empty; a write-protected one is opened for reading. Nothing here throws or asks: a read that cannot be done gives
// zeros, a write that cannot be done returns false and leaves the file as it was.
class RawRecordFile {
public:
    RawRecordFile(const ProgramFolder& folder, const QString& fileName, qint64 recordLength);

    // Whole records in the file, worked out anew at each call; an incomplete tail doesn't count.
    qint64 count() const;
    // False for a write-protected file, and for one that could not be opened at all.
    bool isWritable() const { return file_.isWritable(); }
    bool isReadable() const { return file_.isReadable(); }
    // Record k, or zeros beyond the end. The file is never made longer.
    void read(qint64 k, char* record);
    // `number` records from `first` on, in one read; zeros beyond the end. False: the file can't be read.
    bool readMany(qint64 first, qint64 number, char* records);
    // Writing at count() + 1 appends, over an incomplete tail if there is one; farther out, the gap is filled with
    // NULs.
    bool write(qint64 k, const char* record);
    // The bytes of all whole records, in one read.
    QByteArray readAll();
    // The same into `bytes`, whose memory is used again: for large files, first use of memory takes longer than
    // reading.
    void readAllInto(QByteArray& bytes);

private:
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

    qint64 count() const { return file_.count(); }
    bool isWritable() const { return file_.isWritable(); }
    bool isReadable() const { return file_.isReadable(); }
    bool readMany(qint64 first, std::span<Rec> records) {
        return file_.readMany(first, static_cast<qint64>(records.size()), reinterpret_cast<char*>(records.data()));
    }
    Rec read(qint64 k) {
        Rec record;
        file_.read(k, reinterpret_cast<char*>(&record));
        return record;
    }
    bool write(qint64 k, const Rec& record) { return file_.write(k, reinterpret_cast<const char*>(&record)); }
    QByteArray readAll() { return file_.readAll(); }
    void readAllInto(QByteArray& bytes) { file_.readAllInto(bytes); }

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

// Record 1 of a settings file.
template<class Rec>
Rec readRecord(const ProgramFolder& folder) {
    return RecordFile<Rec>(folder).read(1);
}

// The one place of read, change, write back: `change` touches the fields that the caller owns, and all others keep what
// is on disk. False if the record could not be written.
template<class Rec, class Change>
bool updateRecord(const ProgramFolder& folder, Change change) {
    RecordFile<Rec> file(folder);
    Rec record = file.read(1);
    change(record);
    return file.write(1, record);
}
