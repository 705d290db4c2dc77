#pragma once

#include <QByteArray>
#include <QStringView>

// The reference tables of settlements and of Budapest streets, made from our own lists: UTF-8 text, one header line,
// fields parted by ';', the order of the rows kept. Texts are cut at the width of their field.

struct PostcodeTable {
    QByteArray records;
    int badLine = 0; // first line, from 1, that has not the right fields or numbers; 0 if all is well
};

// The records of Telepulesek.dat, from "helyseg;helysegresz;irsz".
PostcodeTable settlementTable(QStringView csv);

// The records of Budapest.dat, from "irsz;utca;kozterulet;varosresz;hsztol;hszig;kerulet".
PostcodeTable budapestTable(QStringView csv);
