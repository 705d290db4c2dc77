#include "record_fields.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

int widthOf(const QString& type) {
    if (type.startsWith(u"Text")) return type.sliced(5).chopped(1).toInt();
    return type == u"Cur"_s ? 8 : type == u"F32"_s || type == u"I32"_s ? 4 : 2;
}

template<class Value>
Value valueAt(const QByteArray& record, int offset) {
    Value value;
    std::memcpy(&value, record.constData() + offset, sizeof value);
    return value;
}

template<class Value>
QByteArray bytesOf(Value value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

QByteArray distinctBytes(const QString& name, const RecordField& field) {
    const int at = field.offset;
    const bool flag = at / 2 % 5 % 2 == 1; // uneven, so that neighbours differ
    if (field.type == u"Bool16"_s) return bytesOf(Bool16(flag));
    if (name.startsWith(u"chk")) return bytesOf(I16(flag)); // a tick stores 1 or 0
    if (field.type == u"Cur"_s) return bytesOf(Cur::fromTenThousandths(at * 10000 + 2500));
    if (field.type == u"F32"_s) return bytesOf(F32(static_cast<float>(at) + 0.5F));
    if (field.type == u"I32"_s) return bytesOf(I32(at));
    if (field.type == u"I16"_s) return bytesOf(I16(static_cast<std::int16_t>(at)));
    return ('T' + QByteArray::number(at)).leftJustified(widthOf(field.type), ' ', true);
}

} // namespace

QMap<QString, RecordField> fieldsOf(const QString& header, const QString& record) {
    QFile file(QStringLiteral(SETTINGS_SOURCES) + u'/' + header);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QString text = QString::fromUtf8(file.readAll());
    const QString body = text.section(u"struct %1 {"_s.arg(record), 1).section(u"};"_s, 0, 0);
    static const QRegularExpression member(
        u"^    (?:std::array<)?(Cur|F32|I16|I32|Bool16|Text<\\d+>)(?:, (\\d+)>)? (\\w+);"_s,
        QRegularExpression::MultilineOption);
    QMap<QString, RecordField> fields;
    int offset = 0;
    for (auto found = member.globalMatch(body); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const bool isArray = match.hasCaptured(2);
        for (int i = 0; i < (isArray ? match.captured(2).toInt() : 1); ++i) {
            const QString name = isArray ? u"%1_%2"_s.arg(match.captured(3)).arg(i) : match.captured(3);
            fields[name] = {match.captured(1), offset};
            offset += widthOf(match.captured(1));
        }
    }
    return fields;
}

QByteArray distinctRecord(const QMap<QString, RecordField>& fields) {
    QByteArray record;
    for (const auto& [name, field] : fields.asKeyValueRange()) {
        const QByteArray bytes = distinctBytes(name, field);
        if (record.size() < field.offset + bytes.size()) record.resize(field.offset + bytes.size());
        record.replace(field.offset, bytes.size(), bytes);
    }
    return record;
}

QString fieldText(const RecordField& field, const QByteArray& record) {
    if (field.type == u"Cur"_s) return valueAt<Cur>(record, field.offset).text();
    if (field.type == u"F32"_s) return plainText(valueAt<F32>(record, field.offset));
    if (field.type == u"I16"_s) return QString::number(valueAt<I16>(record, field.offset));
    if (field.type == u"Bool16"_s) return valueAt<Bool16>(record, field.offset) ? u"1"_s : u"0"_s;
    return stored_text::decode(record.constData() + field.offset, static_cast<std::size_t>(widthOf(field.type)))
        .trimmed();
}
