#include "exchange/csv_import.h"

#include "exchange/utf8_text.h"

#include <QFileInfo>

namespace {

using Result = ImportOutcome::Result;

enum class Encoding { utf8, windows1250 };
enum class Reading { whole, otherEncoding, failed };

// Hands the whole text on in pieces, as long as `take` wants more. False if the device fails.
template<class Take>
bool readInPieces(QIODevice& csv, Take take) {
    QByteArray piece(1 << 18, Qt::Uninitialized); // stays in the caches until it is converted and split
    if (!csv.seek(0)) return false;
    while (true) {
        const qint64 length = csv.read(piece.data(), piece.size());
        if (length <= 0) return length == 0;
        if (!take(QByteArrayView(piece.constData(), length))) return true;
    }
}

Reading readWindows1250(QIODevice& csv, CsvClientReader& reader, const ProgressFn& progress) {
    const bool wholeRead = readInPieces(csv, [&](QByteArrayView piece) {
        reader.feed(piece);
        if (progress) progress(csv.pos(), csv.size());
        return !reader.hasEnded();
    });
    reader.finish();
    return wholeRead ? Reading::whole : Reading::failed;
}

// Reads on behind an empty line that has ended the clients: the whole file tells the encoding.
Reading readUtf8(QIODevice& csv, CsvClientReader& reader, const ProgressFn& progress) {
    Utf8Text text;
    const bool wholeRead = readInPieces(csv, [&](QByteArrayView piece) {
        const QByteArrayView letters = text.convert(piece);
        if (!text.isUtf8()) return false;
        reader.feed(letters);
        if (progress) progress(csv.pos(), csv.size());
        return true;
    });
    if (!wholeRead) return Reading::failed;
    reader.feed(text.finish());
    reader.finish();
    return text.isUtf8() ? Reading::whole : Reading::otherEncoding;
}

void addFaults(const CsvClientReader& reader, ImportOutcome& outcome) {
    const CsvFaults& faults = reader.faults();
    outcome.badAmounts = faults.badAmounts;
    outcome.cutTexts = faults.cutTexts;
    outcome.firstFaults = faults.first;
    outcome.endedAtEmptyLine = reader.hasEnded();
    outcome.holdsNul = reader.hasSeenNul();
}

// Puts the clients of a text behind those who are there, or in their place. Nothing if the text turned out to be of
// another encoding.
std::optional<ImportOutcome> importAs(Encoding encoding, QIODevice& csv, const ProgramFolder& folder,
                                      const ImportWay& way, const ProgressFn& progress) {
    ClientReplacement replacement(folder);
    ImportOutcome outcome;
    CsvClientReader reader(way.columns, way.emptyLine, [&](const Client& client) {
        if (outcome.clients == 0 && way.mode == ImportMode::append) replacement.keep(1);
        replacement.append(client);
        ++outcome.clients;
        if (client.client.Osszegek[0] == 0) ++outcome.withoutAmount;
    });
    const auto read = encoding == Encoding::utf8 ? readUtf8 : readWindows1250;
    const Reading reading = read(csv, reader, progress);
    if (reading == Reading::otherEncoding) return std::nullopt;
    if (reading == Reading::failed) return ImportOutcome{};
    if (outcome.clients == 0) return ImportOutcome{Result::empty};
    addFaults(reader, outcome);
    CommitExtras extras;
    if (way.confirm) {
        const std::optional<QByteArray> notes = way.confirm(outcome);
        if (!notes) return ImportOutcome{Result::calledOff};
        extras.importNotes = *notes;
    }
    outcome.result = replacement.commit(extras) ? Result::imported : Result::notWritten;
    return outcome;
}

} // namespace

ImportOutcome importClients(const QString& path, const ProgramFolder& folder, const ImportWay& way,
                            const ProgressFn& progress) {
    // A plain file only: a device or a pipe has no end that could be waited for.
    QFile csv(path);
    if (!QFileInfo(path).isFile() || !csv.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return {};
    return importClients(csv, folder, way, progress);
}

ImportOutcome importClients(QIODevice& csv, const ProgramFolder& folder, const ImportWay& way,
                            const ProgressFn& progress) {
    // Windows-1250 shows at its first accented letter that it isn't UTF-8, so hardly anything is read twice.
    const std::optional<ImportOutcome> asUtf8 = importAs(Encoding::utf8, csv, folder, way, progress);
    return asUtf8 ? *asUtf8 : *importAs(Encoding::windows1250, csv, folder, way, progress);
}

QStringList faultLines(const ImportOutcome& outcome) {
    QStringList lines;
    for (const CsvFault& fault : outcome.firstFaults) {
        const QString client = fault.client.isEmpty() ? QString() : QStringLiteral(", ") + fault.client;
        const QString name = QString::fromUtf16(fault.column.name);
        const QString what = fault.column.rule == CsvRule::amount
                                 ? QStringLiteral("nem értelmezhető: ''%1''").arg(fault.amount)
                                 : QStringLiteral("levágva %1 betűre").arg(fault.column.width);
        lines << QStringLiteral("%1. sor%2: %3 %4").arg(QString::number(fault.line), client, name, what);
    }
    const qint64 more = outcome.badAmounts + outcome.cutTexts - lines.size();
    if (more > 0) lines << QStringLiteral("és további %1 helyen").arg(more);
    return lines;
}
