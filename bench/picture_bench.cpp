#include "benches.h"
#include "comparison.h"
#include "picture/dialogs/picture_browser.h"
#include "picture/picture_file.h"
#include "records/record_file.h"
#include "samples.h"
#include "settings/other_settings.h"

#include <QApplication>
#include <QDir>

#include <random>

namespace {

constexpr int previewPixels = 281;

// A program folder whose browser opens on a folder of so many files.
const ProgramFolder& folderOfFiles(int count) {
    static const ScratchFolder scratch;
    if (const ProgramFolder& folder = scratch.folder(); QDir(folder.path()).isEmpty()) {
        for (int i = 0; i < count; ++i) {
            QFile file(folder.file(QStringLiteral("kép %1.jpg").arg(i)));
            if (!file.open(QIODevice::WriteOnly)) qFatal("no room for the files");
        }
        updateRecord<BrowsePat>(folder, [&](BrowsePat& last) { last.BrowseUtvonal.set(folder.path()); });
    }
    return scratch.folder();
}

// A JPEG file of 10,000 by 10,000 pixels, noisy as a photo is.
QString largePhoto() {
    static const ScratchFolder scratch;
    const QString path = scratch.folder().file(QStringLiteral("fotó.jpg"));
    if (QFile::exists(path)) return path;
    QImage photo(10'000, 10'000, QImage::Format_RGB32);
    std::minstd_rand noise; // NOLINT: the same picture each time
    for (int y = 0; y < photo.height(); ++y)
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb(x / 40, y / 40, static_cast<int>(noise() & 63U)));
    if (!photo.save(path)) qFatal("no room for the photo");
    return path;
}

double timeOfBrowser() {
    const ProgramFolder& folder = folderOfFiles(20'000);
    QuietPrompts prompts;
    return secondsOf([&] {
        kep_browse browser(folder, prompts);
        browser.show();
        QApplication::processEvents();
    });
}

double timeOfPreview() {
    const QString path = largePhoto();
    return secondsOf([&] {
        if (readPicture(path, previewPixels).image.isNull()) qFatal("the photo can't be read");
    });
}

} // namespace

void addPictureBenches(Suite& suite) {
    using enum Aim::Kind;
    suite.add(Comparison{"picture browser on 20000 files, painted", timeOfBrowser, "", {}, {milliseconds, 500}});
    suite.add(Comparison{"preview of 100 megapixels, JPEG", timeOfPreview, "", {}, {milliseconds, 1000}});
}
