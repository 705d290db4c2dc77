#pragma once

#include "records/stored_types.h"

#include <QByteArray>
#include <QMap>

// The fields of a settings record, read from the struct in its header: no box can be tested against a list that was
// copied wrong.
struct RecordField {
    QString type; // as declared
    int offset;
};

// By name; the elements of an array are name_0, name_1 and so on. `header` lies in src/settings.
QMap<QString, RecordField> fieldsOf(const QString& header, const QString& record);

// A record in which every field holds another value, none of them a factory value: numbers and texts tell their offset.
QByteArray distinctRecord(const QMap<QString, RecordField>& fields);

// What a box shows of a field.
QString fieldText(const RecordField& field, const QByteArray& record);
