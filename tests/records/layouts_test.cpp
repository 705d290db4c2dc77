#include "records/client_records.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

// The compiler checks sizes and offsets; here it is the bytes themselves, written down by hand.
TEST(Layouts, ClientAndTwinAreTheseBytes) {
    const TestFolder folder;
    ClientRec client = clientNamed(u"Szűcs Ödön"_s, 12500);
    client.Osszegek[11] = -1;
    client.Kulfoldi = true;
    folder.store(client);
    TwinRec twin = blankTwin();
    twin.KuldemenyAzonosito.set(u"RL 1");
    folder.store(twin);

    const QByteArray expected =
        QByteArray("Sz\xFB"
                   "cs \xD6"
                   "d\xF6n")
            .leftJustified(72) +
        QByteArray("Budapest").leftJustified(40) + QByteArray("F\xF5 utca 1.").leftJustified(45) + "1024  " +
        QByteArray("\xD4\x30\0\0", 4) + QByteArray(40, '\0') + QByteArray(4, '\xFF') + QByteArray(58, ' ') + "\xFF\xFF";
    EXPECT_EQ(folder.bytes(u"nevek1.dat"_s), expected);
    EXPECT_EQ(folder.bytes(u"kozl3sor.dat"_s), QByteArray(105, ' ') + QByteArray("RL 1").leftJustified(30));
}
