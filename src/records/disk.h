#pragma once

#include <QFileDevice>
#include <QString>

#include <functional>

// Whether something lasts through a power failure. The toolkit flushes, but doesn't say what came of it.

// Puts on the disk what was written to an open file. False: it may not be there (the disk failed or is full after all).
[[nodiscard]] bool flushToDisk(QFileDevice& file);

// Tries again for up to a second what another program stops by holding a file: a virus scanner or a backup has it for a
// moment. One try only where holding a file stops nobody (not Windows). Whether it went through.
[[nodiscard]] bool patiently(const std::function<bool()>& attempt);

// Puts on the disk which files a folder holds under which names, as renamed or removed so far. Where the platform
// offers no way (Windows keeps a journal of its own) this does nothing and answers true.
[[nodiscard]] bool flushFolder(const QString& folder);
