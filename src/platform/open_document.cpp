#include "platform/open_document.h"

#include <QDesktopServices>
#include <QUrl>

void openDocument(const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }
