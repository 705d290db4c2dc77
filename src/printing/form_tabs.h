#pragma once

#include "picture/envelope_picture.h"

#include <QString>
#include <QStringList>

#include <array>

// What each tab of the window shows, as plain values under the names of its controls; a control that only shows another
// one's text has no value of its own. The rules of the tabs work on them, views show them, and the print routines take
// them: none of the three needs the others.

enum class Side { front, back };

struct YellowCheckTab {
    QString txOsszeg;                        // amount as typed
    QStringList amounts;                     // the list of txOsszeg: the client's usable amounts in slot order
    QString txtSzoveg21;                     // words, upper line
    QString txtSzoveg11;                     // words, lower line
    QString txNev, txCim1, txCim2, txIrszam; // payer: name, settlement, street, postcode
    QString txNev_2;
    QString txBefizAzonosito;
    bool chkBefAzonMasolasa = false;
    QString txtJogcim1, txtJogcim2;
    QString Kozlemeny1, Kozlemeny2;
    std::array<QString, 1> txtKozl3sor; // third notice line; (1), on the stub, shows it once more
    QString txtFizHatIdo;
    // What the last click wrote into Kozlemeny2 as the deadline, empty if nothing: a batch puts each client's own
    // deadline in its place (none if deadlines are off), but prints a text that the clerk typed on all pages.
    QString pouredDeadline;
    bool Check1 = false; // live search
};

struct ReturnReceiptTab {
    bool foreign = false; // opBelfold(1)
    QString txNev2, txCim2_1, txCim2_2;
    QString txKudemenyAzonosito, txUgyfelAzonosito, txUgyfelSajatJelzese;
    QString txtTertiPosta, txtTertiDatum;
    QString lbSajatNev2, lbSajatCim2_1, lbSajatCim2_2, lbSajatIrsz;
    bool chkTPri = false, chkTSk = false, chkTUv = false, chkLevel = false, chkKCsomag = false;
};

struct PostingReceiptTab {
    QString txNev3, txCim3_1, txCim3_2;
    QString lbSajatNev, lbSajatCim1, lbSajatCim2;
    bool chkAjanlott = false, chkTerti = false, chkCsomag = false, chkHivIrat = false, chkErtek = false;
    QString txErtek, txUtanvet;
    QString txtFeladov1, txtFeladov2;
    bool chkSK = false, chkPRI = false, chkPL = false, chkLEGI = false, chk5 = false, chk6 = false;
};

struct EnvelopeTab : EnvelopePicture {
    bool chkFelado = true, chkCimzett = true, chkKepPrint = false; // what prints
    QString txtBoritekFeladoNev, txtBoritekFeladoCim1, txtBoritekFeladoCim2, txtBoritekFeladoIrSzam;
    bool chkFKFNev = false, chkFKFCim1 = false, chkFKFCim2 = false, chkFKFIrsz = false;
    QString txtBoritekCimzettNev, txtBoritekCimzettNev2, txtBoritekCimzettCim1, txtBoritekCimzettCim2;
    QString txtBoritekCimzettIrSzam;
    bool chkFKCNev = false, chkFKCNev2 = false, chkFKCCim1 = false, chkFKCCim2 = false, chkFKCIrsz = false;
    QString txtFelado5mezo;
};

struct LabelTab {
    std::array<QString, 5> ComboBetuTipus1; // font and size of each label line, as shown
    std::array<QString, 5> ComboBetuSize;
    QString txtLeft, txtTop, txtSzeles, txtMagas; // mm
    QString txtOszlop, txtSor;
    int gridColumns = 0, gridRows = 0; // the sheet that the ticks show; the two boxes may already hold another
    QString lbKinyomottCimkeNum;
    QString lbNev1, lbNev2, lbHelyseg, lbCim, lbIrsz; // preview of the clicked client's label
    bool chkEgyediCimke = false;
    std::array<QString, 5> txEgyediCimke;
    std::array<bool, 40> chkCimke1{};  // ticked places, from 0
    std::array<QString, 40> captions;  // the place's number, or the name of its client
    std::array<int, 40> cimkeRekord{}; // record number of the client of each place, 0 for none
};

struct DocumentReceiptTab {
    QString txtIratCimzettNev, txtIratCimzettHelyseg, txtIratCimzettIrszam, txtIratCimzettUtca;
    std::array<QString, 3> txtIratFelado;
    QString lbIratFeladoNev, lbIratFeladoCim1, lbIratFeladoCim2; // return address
    std::array<bool, 3> chkVisszaCimPrint{}; // print the return address, print the sender, both are the same
    QString txtIratFajtaja, txtIratSzama, txtIratMelleklet, txtIratErtesites, txtIratFelvPosta, txtIratKuldAzonosito;
    bool chkVkod = false;
};

enum class FixedParty { addressee, sender }; // opAllando(0), opAllando(1)

struct PinkCheckTab {
    FixedParty opAllando = FixedParty::addressee;
    Side side = Side::front;
    QString RtxOsszeg;
    QStringList amounts;
    QString RtxtSzoveg21, RtxtSzoveg11;                            // words, upper and lower line
    QString RtxtSzoveg12, RtxtSzoveg22;                            // their copies, upper and lower: for the screen only
    QString RtxNev, RtxCim;                                        // sender
    QString RlbNev, RlbCim, RlbHelys, RlbIrsz;                     // addressee
    QString txtNevHatul, txtHelysHatul, txtCimHatul, txtIrszHatul; // sender on the back
    std::array<QString, 4> RcsekkKozlemenyHatul;                   // notice on the back
    // Caption of cmdOldalCsere: names the side that the button turns to.
    QString cmdOldalCsere() const;
};

struct CashOnDeliveryTab {
    bool chkCimzettCsereUlap = false;
    Side side = Side::front;
    QString txUNev, txUCim;
    QString lbUNev, lbUCim, lbUHelyseg, lbUIrszam;
    QString txUosszeg, lbosszegBetuvel1, lbosszegBetuvel2;
    bool chkUtanvetEL = false, chkUtanvetR = false;
    QString lbUNevHatul, lbUHelysegHatul, lbUCimHatul, lbUIrszamHatul;
    QString cmdUtanvetOdalCsere() const;
};

// The tabs by their numbers in the window, from 0; Set.dat stores the number.
enum class Tab {
    yellowCheck,
    returnReceipt,
    postingReceipt,
    envelope,
    label,
    documentReceipt,
    pinkCheck,
    cashOnDelivery
};

// The values of all eight tabs.
struct FormTabs {
    YellowCheckTab yellowCheck;
    ReturnReceiptTab returnReceipt;
    PostingReceiptTab postingReceipt;
    EnvelopeTab envelope;
    LabelTab label;
    DocumentReceiptTab documentReceipt;
    PinkCheckTab pinkCheck;
    CashOnDeliveryTab cashOnDelivery;
};
