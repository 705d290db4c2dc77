#include "exchange/csv_import.h"

#include "records/windows1250.h"

#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

namespace {

using Result = ImportOutcome::Result;

enum class Encoding { windows1250, utf8 };

// Hands the whole text on in pieces, as long as `take` wants more. False if the device fails.
template<class Take>
bool readInPieces(QIODevice& csv, Take take) {
    QByteArray piece(1 << 20, Qt::Uninitialized);
    if (!csv.seek(0)) return false;
    while (true) {
        const qint64 length = csv.read(piece.data(), piece.size());
        if (length <= 0) return length == 0;
        if (!take(QByteArrayView(piece.constData(), length))) return true;
    }
}

// Nothing if the device fails.
std::optional<Encoding> findEncoding(QIODevice& csv) {
    constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
    QStringDecoder utf8(QStringDecoder::Utf8);
    bool marked = false;
    bool beyondAscii = false;
    bool first = true;
    const bool wholeRead = readInPieces(csv, [&](QByteArrayView piece) {
        if (std::exchange(first, false)) marked = piece.startsWith(byteOrderMark);
        const QString text = utf8.decode(piece);
        beyondAscii = beyondAscii || std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 127; });
        return !marked && !utf8.hasError();
    });
    if (!wholeRead) return std::nullopt;
    return marked || (beyondAscii && !utf8.hasError()) ? Encoding::utf8 : Encoding::windows1250;
}

bool readClients(QIODevice& csv, Encoding encoding, CsvClientReader& reader, const ProgressFn& progress) {
    QStringDecoder utf8(QStringDecoder::Utf8); // drops the byte order mark
    const bool wholeRead = readInPieces(csv, [&](QByteArrayView piece) {
        if (encoding == Encoding::utf8)
            reader.feed(windows1250::encode(QString(utf8.decode(piece))));
        else
            reader.feed(piece);
        if (progress) progress(csv.pos(), csv.size());
        return !reader.hasEnded();
    });
    reader.finish();
    return wholeRead;
}

void addFaults(const CsvClientReader& reader, ImportOutcome& outcome) {
    const CsvFaults& faults = reader.faults();
    outcome.badAmounts = faults.badAmounts;
    outcome.cutTexts = faults.cutTexts;
    outcome.firstFaults = faults.first;
    outcome.endedAtEmptyLine = reader.hasEnded();
    outcome.holdsNul = reader.hasSeenNul();
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
    const std::optional<Encoding> encoding = findEncoding(csv);
    if (!encoding) return {};

    ClientReplacement replacement(folder);
    if (way.mode == ImportMode::append) {
        const std::optional<ClientPair> present = readClientPair(folder);
        if (!present) return {Result::notWritten};
        replacement.append(present->clients, present->twins);
    }
    ImportOutcome outcome;
    CsvClientReader reader(way.columns, way.emptyLine, [&](const Client& client) {
        replacement.append(client);
        ++outcome.clients;
        if (client.client.Osszegek[0] == 0) ++outcome.withoutAmount;
    });
    if (!readClients(csv, *encoding, reader, progress)) return {};
    if (outcome.clients == 0) return {Result::empty};
    addFaults(reader, outcome);
    CommitExtras extras;
    if (way.confirm) {
        const std::optional<QByteArray> notes = way.confirm(outcome);
        if (!notes) return {Result::calledOff};
        extras.importNotes = *notes;
    }
    outcome.result = replacement.commit(extras) ? Result::imported : Result::notWritten;
    return outcome;
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
