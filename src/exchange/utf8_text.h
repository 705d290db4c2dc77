#pragma once

#include <QByteArray>

// Turns UTF-8 into Windows-1250 and tells whether it is UTF-8 at all, in one pass over pieces of any size. Each letter
// outside the code page becomes its look-alike or '?', each byte that belongs to no letter '?'. A byte order mark at
// the start is dropped.
class Utf8Text {
public:
    // The letters that are whole by now. They hold until the next call.
    QByteArrayView convert(QByteArrayView piece);
    // At the end of the text: what stands for a letter that lacks its last bytes.
    QByteArrayView finish();

    // What the text has shown itself to be so far. It is UTF-8 by its byte order mark alone; without one by letters
    // beyond ASCII, all of them whole. ASCII is either.
    bool isUtf8() const { return isMarked_ || !hasWrongBytes_; }

private:
    void convertLetters(const char* at, const char* end);
    const char* convertLetter(const char* at, const char* end);

    QByteArray rest_; // the first bytes of a letter whose last ones come with the next piece
    QByteArray converted_;
    char* to_ = nullptr;
    bool hasBegun_ = false;
    bool isMarked_ = false;
    bool hasLetters_ = false; // beyond ASCII
    bool hasWrongBytes_ = false;
};
