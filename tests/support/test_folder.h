#pragma once

#include "records/client_records.h"
#include "records/record_file.h"

#include <QTemporaryDir>

#include <vector>

// A program folder that lives as long as the test.
class TestFolder {
public:
    const ProgramFolder& folder() const { return folder_; }
    operator const ProgramFolder&() const { return folder_; } // NOLINT: a test folder is a folder

    QByteArray bytes(const QString& name) const;
    void setBytes(const QString& name, const QByteArray& bytes) const;
    bool has(const QString& name) const;
    // Lets nobody replace a file, whatever his rights.
    void block(const QString& name) const;

    template<class Rec>
    void store(const Rec& record, qint64 k = 1) const {
        RecordFile<Rec>(folder_).write(k, record);
    }

private:
    QTemporaryDir dir_;
    ProgramFolder folder_{dir_.path()};
};

// A domestic client of Budapest with the given name and first amount; the other fields blank.
ClientRec clientNamed(const QString& name, int amount = 0);
TwinRec blankTwin();
