#pragma once

#include <QByteArrayView>
#include <QFile>
#include <QString>

// A file is replaced as one step: its new contents are written whole and flushed beside it, then put in its place. Who
// opens it, after a kill or a power failure too, finds the old file or the new one.

// Whether this call puts the contents on the disk. They must be there before they take the place of the old ones, or a
// power failure may leave neither.
enum class Flush { no, yes };

// New contents in the making, beside the file under a name of their own, "<name>.~<number of the process>". Destroyed
// without a commit they leave no trace. A link stays a link: the file that it leads to is replaced. Permissions stay.
class NewFile {
public:
    explicit NewFile(const QString& path);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // False where the file can't be replaced: it is write-protected or no plain file, or its folder can't be written.
    [[nodiscard]] bool open();
    // False: not all of it was taken.
    [[nodiscard]] bool write(QByteArrayView bytes);
    // The contents are whole, and on the disk if so wanted; they wait to be put in place.
    [[nodiscard]] bool finish(Flush flush = Flush::yes);
    // The same, and they are in place. The folder isn't flushed.
    [[nodiscard]] bool commit(Flush flush = Flush::yes);

private:
    QString path_;
    QFile file_;
};

// Makes `bytes` the contents of a file, which need not exist. False: all is as it was (disk full, no right, a file held
// by another program, a flush that failed). True: it is in place; where only the flush of its folder failed, a power
// failure may still bring the old contents back.
[[nodiscard]] bool replaceFile(const QString& path, QByteArrayView bytes);

// Puts one file in the place of another; what stood there goes. False: both are where they were.
[[nodiscard]] bool moveOnto(const QString& from, const QString& to);

// Removes what killed processes left in a folder of the new contents of its files. Names of any other making stay.
void removeUnfinished(const QString& folder);
