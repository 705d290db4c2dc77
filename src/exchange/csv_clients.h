#pragma once

#include "records/client_database.h"

#include <array>
#include <functional>
#include <span>

// Clients as lines of text: one client a line, fields parted by ';', no header line. A quotation mark means nothing and
// is dropped wherever it stands; it protects no ';'. Lines end in CRLF, LF or a lone CR. Missing fields are empty,
// surplus ones are ignored.

enum class CsvRule {
    asItStands,
    trimmed, // of blanks
    amount   // whole forints; blanks between the digits and a trailing "Ft" are passed over
};

// Where a column of a file goes: the bytes of one field of a Client.
struct CsvColumn {
    std::size_t offset;
    std::size_t width;
    CsvRule rule;
};

// The columns of the manual import, in the order of the file.
extern const std::array<CsvColumn, 14> importColumns;

// Turns Windows-1250 text into clients, in one pass over pieces of any size. Every byte goes straight into the record
// of its line, so no line is too long. A text is cut at the width of its field; NUL, which would end a stored text,
// counts as a blank; all other bytes are carried along. What no column fills is blank, 0 or False.
class CsvClientReader {
public:
    using Sink = std::function<void(const Client&)>;

    CsvClientReader(std::span<const CsvColumn> columns, Sink sink);

    void feed(QByteArrayView text);
    // Takes a last line that has no end.
    void finish();

    // Amounts that are not a whole number from 0 to the top of 32 bits; they were stored as 0.
    qint64 badAmounts() const { return badAmounts_; }

private:
    void takeText(QByteArrayView text);
    void takeMark(char mark);
    void takeAmountText(QByteArrayView text);
    void endField();
    void endLine();

    std::span<const CsvColumn> columns_;
    Sink sink_;
    Client client_;
    std::size_t column_ = 0;
    std::size_t used_ = 0; // bytes of the present field
    std::array<char, 32> amount_{};
    bool lineHasBegun_ = false;
    bool lastWasCr_ = false;
    qint64 badAmounts_ = 0;
};
