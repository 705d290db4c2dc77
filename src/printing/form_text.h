#pragma once

#include "records/client_records.h"
#include "settings/check_layouts.h"

// What the pages of several forms are made of.

// A text of the tab without the blanks at both ends.
inline QString trimmed(const QString& text) { return trimBlanks(text).toString(); }

// Sender or addressee.
struct Party {
    QString name, settlement, street, postcode;
    bool isEmpty() const { return (name + settlement + street + postcode).isEmpty(); }
};

inline Party partyOf(const ClientRec& client) {
    return {client.Nev.trimmed(), client.Helyseg.trimmed(), client.Cim.trimmed(), client.Irsz.trimmed()};
}

inline Party fixedParty(const SetRcsekk& set) {
    return {set.txRcsekkNev.trimmed(), set.txRcsekkHelyseg.trimmed(), set.txRcsekkCim.trimmed(),
            set.txRcsekkIrszam.trimmed()};
}

// The address in one line; forms differ in what stands before the street.
inline QString addressLine(const Party& party, const QString& comma) {
    return party.postcode + u' ' + party.settlement + comma + party.street;
}
