#pragma once

#include "prompts/prompts.h"
#include "records/program_folder.h"

#include <QTemporaryDir>

// Invented clients for the benchmarks, in temporary folders that go with the process. Each is made at its first use.

// A CSV file of so many lines in Windows-1250.
QString sampleCsv(int clients);
// The same in UTF-8.
QString sampleUtf8Csv(int clients);

// A program folder that holds the files of the delivered one and a database of so many clients. Whoever changes the
// database puts it back.
const ProgramFolder& sampleFolder(int clients);

// A folder of its own with nothing in it.
class ScratchFolder {
public:
    const ProgramFolder& folder() const { return folder_; }

private:
    QTemporaryDir dir_;
    ProgramFolder folder_{dir_.path()};
};

// Says yes and picks nothing: no measured way asks.
class QuietPrompts : public Prompts {
public:
    void tell(const Message& /*message*/) override {}
    Answer ask(const Message& /*message*/, Answer /*preset*/) override { return Answer::yes; }
    QString openFile(const QString& /*title*/, const QString& /*filter*/) override { return {}; }
    QString saveFile(const QString& /*title*/, const QString& /*filter*/) override { return {}; }
    std::optional<PrinterChoice> choosePrinter(const QStringList& /*printers*/, int /*current*/,
                                               const QString& /*summary*/) override {
        return {};
    }
};
