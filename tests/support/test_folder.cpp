#include "support/test_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

QByteArray TestFolder::bytes(const QString& name) const {
    QFile file(folder_.file(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestFolder::setBytes(const QString& name, const QByteArray& bytes) const {
    QFile file(folder_.file(name));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) file.write(bytes);
}

bool TestFolder::has(const QString& name) const { return QFile::exists(folder_.file(name)); }

void TestFolder::block(const QString& name) const {
    QDir().mkpath(folder_.file(name + QStringLiteral(".~%1/x").arg(QCoreApplication::applicationPid())));
}

ClientRec clientNamed(const QString& name, int amount) {
    auto client = zeroRecord<ClientRec>();
    client.Nev.set(name);
    client.Nev2.set(u"");
    client.Helyseg.set(u"Budapest");
    client.Cim.set(u"Fő utca 1.");
    client.Irsz.set(u"1024");
    client.Osszegek[0] = amount;
    client.Azonosito.set(u"");
    client.FizHatIdo.set(u"");
    return client;
}

TwinRec blankTwin() {
    auto twin = zeroRecord<TwinRec>();
    std::memset(static_cast<void*>(&twin), ' ', sizeof twin);
    return twin;
}
