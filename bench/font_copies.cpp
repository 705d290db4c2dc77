#include "font_copies.h"

#include "samples.h"

#include <QDir>
#include <QDirIterator>
#include <QFontDatabase>
#include <QStandardPaths>
#include <QtEndian>

namespace {

template<class Number>
void put(QByteArray& bytes, Number number) {
    const Number big = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

// The table of a font file that says what it is called, for one language.
QByteArray nameTable(const QString& family) {
    const QString names[] = {family, QStringLiteral("Regular"), family, family}; // as ids 1, 2, 4 and 6
    const quint16 ids[] = {1, 2, 4, 6};
    QByteArray header;
    QByteArray letters;
    for (const quint16 number : {quint16{0}, quint16{4}, quint16{6 + 4 * 12}}) // format, names, where the letters begin
        put(header, number);
    for (int i = 0; i < 4; ++i) {
        const auto length = static_cast<quint16>(2 * names[i].size());
        // Windows, Unicode, American English
        for (const quint16 number : {quint16{3}, quint16{1}, quint16{0x409}, ids[i], length, quint16(letters.size())})
            put(header, number);
        for (const QChar letter : names[i])
            put(letters, letter.unicode());
    }
    return header + letters;
}

// The new table stands behind the others; the old one stays where it was, and nobody looks at it any more.
QByteArray renamed(QByteArray font, const QString& family) {
    constexpr qsizetype firstEntry = 12;
    constexpr qsizetype entryLength = 16; // tag, checksum, offset, length
    const auto tables = qFromBigEndian<quint16>(font.constData() + 4);
    font.append((4 - font.size() % 4) % 4, '\0');
    const QByteArray names = nameTable(family);
    for (qsizetype entry = firstEntry; entry < firstEntry + tables * entryLength; entry += entryLength) {
        if (font.sliced(entry, 4) != "name") continue;
        qToBigEndian(static_cast<quint32>(font.size()), font.data() + entry + 8);
        qToBigEndian(static_cast<quint32>(names.size()), font.data() + entry + 12);
    }
    return font + names;
}

// The smallest of the machine's fonts: hundreds of copies take room.
QByteArray smallFont() {
    QFileInfo smallest;
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::FontsLocation))
        for (QDirIterator each(folder, {QStringLiteral("*.ttf")}, QDir::Files, QDirIterator::Subdirectories);
             each.hasNext();)
            if (const QFileInfo found = each.nextFileInfo(); !smallest.exists() || found.size() < smallest.size())
                smallest = found;
    QFile file(smallest.filePath());
    if (!file.open(QIODevice::ReadOnly)) qFatal("there is no font to copy");
    return file.readAll();
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("no room for the fonts");
}

} // namespace

QString fontConfiguration(int families) {
    static const ScratchFolder scratch;
    const QString path = scratch.folder().file(QString::number(families));
    if (!QDir().mkpath(path)) qFatal("no room for the fonts");
    const QByteArray font = smallFont();
    for (auto number = QFontDatabase::families().size(); number < families; ++number)
        write(path + QStringLiteral("/%1.ttf").arg(number), renamed(font, QStringLiteral("Próba %1").arg(number)));
    QString configuration = path + QStringLiteral("/fonts.conf");
    write(configuration, QStringLiteral("<fontconfig><include>/etc/fonts/fonts.conf</include>"
                                        "<dir>%1</dir><cachedir>%1</cachedir></fontconfig>")
                             .arg(path)
                             .toUtf8());
    return configuration;
}
