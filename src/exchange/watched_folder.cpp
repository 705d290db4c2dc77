#include "exchange/watched_folder.h"

#include <QFileInfo>

WatchSettings::WatchSettings(const Set& set)
    : isOn(set.chkAutBeolvas != 0 && !set.txtAutBeolvas.trimmed().isEmpty())
    , folder(set.txtAutBeolvas.trimmed())
    , mode(set.opHozzafuzes_1 ? ImportMode::overwrite : ImportMode::append)
    , prints(set.chkAutoPrint == 1 && mode == ImportMode::overwrite) {}

bool liesInWatchedFolder(const QString& path, const WatchSettings& watch) {
    return watch.isOn &&
           QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath() == QFileInfo(watch.folder).canonicalFilePath();
}
