#include "printing/envelope.h"

#include "printing/form_routine.h"
#include "printing/form_text.h"
#include "records/number_text.h"
#include "settings/envelope_label_settings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Where one type of envelope has its texts, and where it lies on the C5 page of the upright feed, in mm.
struct TypeRow {
    I16 boritek::*senderX, boritek::*senderY, boritek::*addresseeX, boritek::*addresseeY;
    int left, top;
};

using B = boritek;
constexpr TypeRow types[] = {
    {&B::boritekC6Felado_x, &B::boritekC6Felado_y, &B::boritekC6Cimzett_x, &B::boritekC6Cimzett_y, 66, 20},
    {&B::boritekC5Felado_x, &B::boritekC5Felado_y, &B::boritekC5Cimzett_x, &B::boritekC5Cimzett_y, 0, 0},
    {&B::boritekC56Felado_x, &B::boritekC56Felado_y, &B::boritekC56Cimzett_x, &B::boritekC56Cimzett_y, 15, 25},
};
constexpr int postcodePoints = 14;

const TypeRow& rowOf(EnvelopeType type) { return types[static_cast<int>(type) - 1]; }

// All envelopes of a job are alike but for their texts; these are the tab's, without the blanks at their ends.
EnvelopeTab pageOfTab(const EnvelopeTab& tab) {
    EnvelopeTab page = tab;
    for (QString* text :
         {&page.txtBoritekCimzettNev, &page.txtBoritekCimzettNev2, &page.txtBoritekCimzettCim1,
          &page.txtBoritekCimzettCim2, &page.txtBoritekCimzettIrSzam, &page.txtBoritekFeladoNev,
          &page.txtBoritekFeladoCim1, &page.txtBoritekFeladoCim2, &page.txtBoritekFeladoIrSzam, &page.txtFelado5mezo})
        *text = trimmed(*text);
    return page;
}

EnvelopeTab pageOfClient(const ClientRec& client, const EnvelopeTab& tab, const boritek& set) {
    EnvelopeTab page = pageOfTab(tab);
    page.txtBoritekCimzettNev = client.Nev.trimmed();
    page.txtBoritekCimzettNev2 = client.Nev2.trimmed();
    page.txtBoritekCimzettCim1 = client.Helyseg.trimmed();
    page.txtBoritekCimzettCim2 = client.Cim.trimmed();
    page.txtBoritekCimzettIrSzam = client.Irsz.trimmed();
    page.txtBoritekFeladoNev = set.txtBoritekFeladoNev.trimmed();
    page.txtBoritekFeladoCim1 = set.txtBoritekFeladoCim1.trimmed();
    page.txtBoritekFeladoCim2 = set.txtBoritekFeladoCim2.trimmed();
    page.txtBoritekFeladoIrSzam = set.txtBoritekFeladoIrSzam.trimmed();
    return page;
}

// One envelope on its page.
class Envelope {
public:
    Envelope(Pen& pen, const EnvelopeTab& page, const boritek& set, Run run)
        : pen_(pen)
        , page_(page)
        , set_(set)
        , type_(rowOf(page.type))
        , left_(isUpright(run) ? type_.left : 0)
        , top_(isUpright(run) ? type_.top : 0) {}

    // The picture covers the addressee, and the sender stands on the picture.
    void print() const {
        if (page_.chkCimzett) printAddressee();
        if (page_.chkKepPrint) printPicture();
        if (page_.chkFelado) printSender();
    }

private:
    void printAddressee() const {
        const float x = across(type_.addresseeX);
        const int points = set_.txtBoritekNevBetumeret;
        moveTo(type_.addresseeY);
        line(x, page_.txtBoritekCimzettNev, points, page_.chkFKCNev);
        line(x, page_.txtBoritekCimzettNev2, points, page_.chkFKCNev2); // takes its line even if it is empty
        if (!page_.txtBoritekCimzettNev2.isEmpty()) pen_.SkipLine();
        line(x, page_.txtBoritekCimzettCim1, points, page_.chkFKCCim1);
        line(x, page_.txtBoritekCimzettCim2, points, page_.chkFKCCim2);
        pen_.SkipLine();
        line(x, page_.txtBoritekCimzettIrSzam, postcodePoints, page_.chkFKCIrsz);
    }

    void printPicture() const {
        if (page_.picture.isNull()) return pen_.Note(missingPicture());
        const auto mm = [](const Cur& cm) {
            return static_cast<float>(static_cast<double>(cm.tenThousandths()) / 1000);
        };
        pen_.PaintPicture(page_.picture, static_cast<float>(leadingI16(page_.lbXpoz) + left_),
                          static_cast<float>(leadingI16(page_.lbYpoz) + top_), mm(page_.kepSzeles), mm(page_.kepMagas));
    }

    void printSender() const {
        const float x = across(type_.senderX);
        const int points = set_.txtBoritekFeladoBetumeret;
        moveTo(type_.senderY);
        line(x, page_.txtBoritekFeladoNev, points, page_.chkFKFNev);
        line(x, page_.txtBoritekFeladoCim1, points, page_.chkFKFCim1);
        line(x, page_.txtBoritekFeladoCim2, points, page_.chkFKFCim2);
        line(x, page_.txtBoritekFeladoIrSzam, points, page_.chkFKFIrsz);
        line(x, page_.txtFelado5mezo, points, page_.chkFKFIrsz);
    }

    float across(I16 boritek::*x) const { return static_cast<float>(set_.*x + left_); }
    void moveTo(I16 boritek::*y) const { pen_.MoveToLine(static_cast<float>(set_.*y + top_)); }
    void line(float x, const QString& text, int points, bool bold) const {
        pen_.SetFont(set_.cmbBoritekNevBetutipus.stored(), points, bold ? Weight::bold : Weight::normal);
        pen_.PlaceNext(x, text);
    }

    QString missingPicture() const {
        return page_.kepFajl.isEmpty() ? u"Nincs kép kiválasztva."_s
                                       : u"A kép nem olvasható, nélküle készült: "_s + page_.kepFajl;
    }

    Pen& pen_;
    const EnvelopeTab& page_;
    const boritek& set_;
    const TypeRow& type_;
    int left_, top_;
};

FormRoutine routineFor(Run run, EnvelopeType type) {
    FormRoutine routine{.run = run,
                        .jobTitle = u"boritek",
                        .failureWay = FailureWay::fallbackFont,
                        .page = {isUpright(run) ? 2 : 1, {}, {}},
                        .opensPerClient = true,
                        .readsTwin = false};
    // Sideways the larger envelopes leave the paper as it is.
    if (isUpright(run) || type == EnvelopeType::C6) routine.page.paperSize = 28;
    return routine;
}

std::optional<Message> missingAddressee(const EnvelopeTab& tab) {
    if (!tab.chkCimzett || !trimBlanks(tab.txtBoritekCimzettNev).isEmpty()) return {};
    return Message{Icon::none, u"! H I B A ! "_s, u"Nincs címzett..."_s};
}

PrintOutcome printTab(const PrintDesk& desk, const EnvelopeTab& tab, Run run) {
    const auto set = readRecord<boritek>(desk.folder);
    const EnvelopeTab page = pageOfTab(tab);
    const auto print = [&](Pen& pen, const Set& /*set*/) { Envelope(pen, page, set, run).print(); };
    return printOne(desk, routineFor(run, tab.type), print, missingAddressee(tab));
}

PrintOutcome printBatch(const PrintDesk& desk, const EnvelopeTab& tab, const ListRows& rows, Run run) {
    const auto set = readRecord<boritek>(desk.folder);
    return printEach(desk, routineFor(run, tab.type), rows, [&](Pen& pen, const Set& /*set*/, const Client& client) {
        Envelope(pen, pageOfClient(client.client, tab, set), set, run).print();
    });
}

} // namespace

PrintOutcome PrintAlloBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.envelope, Run::upright);
}

PrintOutcome PrintFekvoBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.envelope, Run::sideways);
}

PrintOutcome PrintCsAlloBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.envelope, rows, Run::uprightBatch);
}

PrintOutcome PrintCsFekvoBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.envelope, rows, Run::sidewaysBatch);
}
