#include "make_program_folder/pictures.h"
#include "make_program_folder/postcode_tables.h"
#include "records/delivered_files.h"
#include "records/file_replacement.h"
#include "settings/check_layouts.h"
#include "settings/envelope_label_settings.h"
#include "settings/general_settings.h"
#include "settings/other_settings.h"
#include "settings/receipt_layouts.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <array>
#include <cstdio>
#include <functional>

// make_program_folder <assets folder> <target folder>
// Fills a folder with all that the program needs beside itself, and makes anew what is older than its source or than
// this tool: pictures, postcode tables, help page, sample clients. What the users change, the settings and the blank
// posting list, goes into the folder of delivered files, from where the program fetches what it lacks at its start.

namespace {

constexpr int stationeryPixelsPerMm = 10;
constexpr QSize feedSampleSize(360, 360);
constexpr QSize iconSize(256, 256);
constexpr std::array programIconSizes{16, 24, 32, 48, 64, 256};
constexpr QSize cursorSize(32, 32);

// The bytes of a target file made from a source file; empty if the source is no good.
using Make = std::function<QByteArray(const QString& source)>;

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray stationery(const QString& source) { return jpegFile(renderStationery(source, stationeryPixelsPerMm)); }
QByteArray feedSample(const QString& source) { return jpegFile(renderDrawing(source, feedSampleSize, Qt::white)); }
QByteArray icon(const QString& source) { return pngFile(renderDrawing(source, iconSize, Qt::transparent)); }

QByteArray moveCursor(const QString& source) {
    const QImage image = renderDrawing(source, cursorSize, Qt::transparent);
    return image.isNull() ? QByteArray() : cursorFile(image, QPoint(cursorSize.width() / 2, cursorSize.height() / 2));
}

QByteArray programIcon(const QString& source) {
    QList<QImage> images;
    for (const int size : programIconSizes)
        images << renderDrawing(source, QSize(size, size), Qt::transparent);
    return images.first().isNull() ? QByteArray() : iconFile(images);
}

QByteArray postcodes(PostcodeTable (*table)(QStringView), const QString& source) {
    const PostcodeTable made = table(QString::fromUtf8(contents(source)));
    if (made.badLine > 0) std::fprintf(stderr, "%s: line %d is bad\n", qPrintable(source), made.badLine);
    return made.badLine > 0 ? QByteArray() : made.records;
}

class FolderMaker {
public:
    FolderMaker(const QString& assets, const QString& target) : assets_(assets), target_(target) {}

    // One file from one source.
    void file(const QString& source, const QString& name, const Make& make) {
        const QString path = target_.filePath(name);
        const QString sourcePath = assets_.filePath(source);
        if (isUpToDate(path, sourcePath)) return;
        const QByteArray bytes = make(sourcePath);
        if (bytes.isEmpty()) return fail(sourcePath, "is missing or can't be used");
        write(path, bytes);
    }

    // Every file of a folder, under its own name with another ending.
    void folder(const QString& source, const QString& pattern, const QString& ending, const Make& make) {
        const QDir dir(assets_.filePath(source));
        const QStringList names = dir.entryList({pattern}, QDir::Files);
        if (names.isEmpty()) fail(dir.path(), "holds nothing to use");
        for (const QString& name : names)
            file(source + u'/' + name, QFileInfo(name).completeBaseName() + ending, make);
    }

    // The factory values of this tool.
    template<class Rec>
    void record(const Rec& record) {
        const QString path = target_.filePath(deliveredFolder + u'/' + QString::fromLatin1(Rec::fileName));
        const QByteArray bytes(reinterpret_cast<const char*>(&record), sizeof record);
        if (contents(path) != bytes) write(path, bytes);
    }

    bool succeeded() const { return succeeded_; }

private:
    void write(const QString& path, QByteArrayView bytes) {
        if (!replaceFile(path, bytes)) fail(path, "can't be written");
    }

    // An empty file is one that the program found missing.
    static bool isUpToDate(const QString& path, const QString& source) {
        const QFileInfo target(path);
        const QDateTime made = target.lastModified();
        return target.size() > 0 && made >= QFileInfo(source).lastModified() &&
               made >= QFileInfo(QCoreApplication::applicationFilePath()).lastModified();
    }

    void fail(const QString& path, const char* why) {
        std::fprintf(stderr, "make_program_folder: %s %s\n", qPrintable(path), why);
        succeeded_ = false;
    }

    QDir assets_;
    QDir target_;
    bool succeeded_ = true;
};

// A new office finds its clients by name.
Set firstSet() {
    Set set = Set::factory();
    set.chkListaSorren = 1;
    return set;
}

void makeAll(FolderMaker& maker) {
    maker.folder(QStringLiteral("stationery"), QStringLiteral("*.svg"), QStringLiteral(".jpg"), stationery);
    maker.folder(QStringLiteral("feed"), QStringLiteral("*.svg"), QStringLiteral(".jpg"), feedSample);
    maker.file(QStringLiteral("icons/tarlimo.svg"), QStringLiteral("tarlimo.png"), icon);
    maker.file(QStringLiteral("icons/tarlimo.svg"), QStringLiteral("tarlimo.ico"), programIcon);
    maker.file(QStringLiteral("icons/H_move.svg"), QStringLiteral("H_move.cur"), moveCursor);
    maker.file(QStringLiteral("postcodes/telepulesek.csv"), QStringLiteral("Telepulesek.dat"),
               [](const QString& source) { return postcodes(settlementTable, source); });
    maker.file(QStringLiteral("postcodes/budapest.csv"), QStringLiteral("Budapest.dat"),
               [](const QString& source) { return postcodes(budapestTable, source); });
    maker.folder(QStringLiteral("help"), QStringLiteral("*.htm"), QStringLiteral(".htm"), contents);
    maker.folder(QStringLiteral("sample"), QStringLiteral("*.csv"), QStringLiteral(".csv"), contents);

    // What the users change.
    maker.file(QStringLiteral("posting_list/Feladojegyzekures.xls"),
               deliveredFolder + QStringLiteral("/Feladójegyzéküres.xls"), contents);
    maker.record(firstSet());
    maker.record(SetRcsekk::factory());
    maker.record(SetUlap::factory());
    maker.record(SetTerti::factory());
    maker.record(SetFveveny::factory());
    maker.record(SetIrat2::factory());
    maker.record(boritek::firstRun());
    maker.record(Betutip::firstRun());
    maker.record(Betumeret::firstRun());
    maker.record(FjSet::firstRun());
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // draws text, shows nothing
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3 || !QDir(arguments[2]).mkpath(deliveredFolder)) {
        std::fprintf(stderr, "usage: make_program_folder <assets folder> <target folder>\n");
        return 1;
    }
    FolderMaker maker(arguments[1], arguments[2]);
    makeAll(maker);
    return maker.succeeded() ? 0 : 1;
}
