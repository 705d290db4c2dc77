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

// The same, written a while ago: right after a write each key of a search would read it.
const ProgramFolder& restingFolder(int clients);

// What a clerk types into the name box: the first letters of each have many hits, the last ones few.
constexpr const char16_t* typedWords[] = {u"kovács", u"nagy-s", u"szabó ", u"üveges", u"tóth z"};

// A folder of its own with nothing in it.
class ScratchFolder {
public:
    const ProgramFolder& folder() const { return folder_; }

private:
    QTemporaryDir dir_;
    ProgramFolder folder_{dir_.path()};
};

// Says yes, picks no file, and prints on the device that is preset.
class QuietPrompts : public Prompts {
public:
    void tell(const Message& /*message*/) override {}
    Answer ask(const Message& /*message*/, Answer /*preset*/) override { return Answer::yes; }
    QString openFile(const QString& /*title*/, const QString& /*filter*/) override { return {}; }
    QString saveFile(const QString& /*title*/, const QString& /*filter*/) override { return {}; }
    std::optional<PrinterChoice> choosePrinter(const QStringList& /*printers*/, int current,
                                               const QString& /*summary*/) override {
        return PrinterChoice{current};
    }
};
