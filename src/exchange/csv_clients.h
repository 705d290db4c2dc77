#pragma once

#include "records/client_database.h"

#include <array>
#include <functional>
#include <span>
#include <vector>

// Clients as lines of text: one client a line, fields parted by ';', no header line. A quotation mark means nothing and
// is dropped wherever it stands; it protects no ';'. Lines end in CRLF, LF or a lone CR. Missing fields are empty,
// surplus ones are ignored.

enum class CsvRule {
    asItStands,
    trimmed, // of blanks
    amount   // whole forints, thousands parted or not (plainAmount); "Ft" and the ",-" of round sums may stand behind
};

// Where a column of a file goes: the bytes of one field of a Client.
struct CsvColumn {
    std::size_t offset;
    std::size_t width;
    CsvRule rule;
    const char16_t* name; // as the user knows it, with its article
};

// The columns of the manual import, in the order of the file.
extern const std::array<CsvColumn, 14> importColumns;
// Those of the watched folder: the same up to the ninth, and the kind of document in the tenth.
extern const std::array<CsvColumn, 10> watchColumns;

// What a line without a single character is.
enum class EmptyLine {
    client, // of empty fields
    end     // of the file: what lies behind it isn't read. The end of the last line is no line.
};

// A place of the text that could not be stored as it stands: an amount that is none, stored as 0, or a text that was
// longer than its field.
struct CsvFault {
    qint64 line; // from 1
    QString client;
    CsvColumn column;
    QString amount; // what stands there, at most its first 40 letters; empty for a text that was cut
};

// All of them by number, the first ones in full: memory doesn't grow with the file.
struct CsvFaults {
    static constexpr std::size_t mostListed = 10;
    std::vector<CsvFault> first;
    qint64 badAmounts = 0;
    qint64 cutTexts = 0;
};

// Turns Windows-1250 text into clients, in one pass over pieces of any size. Every byte goes straight into the record
// of its line, so no line is too long. A text is cut at the width of its field; NUL, which would end a stored text,
// counts as a blank; all other bytes are carried along. What no column fills is blank, 0 or False.
class CsvClientReader {
public:
    using Sink = std::function<void(const Client&)>;

    CsvClientReader(std::span<const CsvColumn> columns, EmptyLine emptyLine, Sink sink);

    void feed(QByteArrayView text);
    // Takes a last line that has no end.
    void finish();

    const CsvFaults& faults() const { return faults_; }
    // Whether an empty line has ended the reading.
    bool hasEnded() const { return hasEnded_; }
    // Text files have none, but the file of a spreadsheet or a picture does.
    bool hasSeenNul() const { return hasSeenNul_; }

private:
    void takeText(QByteArrayView text);
    void takeMark(char mark);
    void takeAmountText(QByteArrayView text);
    void storeAmount(const CsvColumn& column);
    void note(const CsvColumn& column, const QString& amount = {});
    void endField();
    void endLine();

    std::span<const CsvColumn> columns_;
    EmptyLine emptyLine_;
    Sink sink_;
    Client client_;
    std::size_t column_ = 0;
    std::size_t used_ = 0;          // bytes of the present field
    bool isCut_ = false;            // more than blanks lay behind its end
    std::array<char, 40> amount_{}; // full: too long for an amount
    bool lineHasBegun_ = false;
    bool lastWasCr_ = false;
    bool hasEnded_ = false;
    bool hasSeenNul_ = false;
    qint64 line_ = 1;
    CsvFaults faults_;
};
