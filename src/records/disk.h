#pragma once

#include <QFileDevice>
#include <QString>

// Whether something lasts through a power failure. The toolkit flushes, but doesn't say what came of it.

// Puts on the disk what was written to an open file. False: it may not be there (the disk failed or is full after all).
[[nodiscard]] bool flushToDisk(QFileDevice& file);

// Puts on the disk which files a folder holds under which names, as renamed or removed so far. Where the platform
// offers no way (Windows keeps a journal of its own) this does nothing and answers true.
[[nodiscard]] bool flushFolder(const QString& folder);
