#include "printing/cash_on_delivery.h"
#include "printing/document_receipt.h"
#include "printing/envelope.h"
#include "printing/form_routine.h"
#include "printing/label_sheet.h"
#include "printing/pink_check.h"
#include "printing/posting_list.h"
#include "printing/posting_receipt.h"
#include "printing/return_receipt.h"
#include "printing/yellow_check.h"

#include "check_fixture.h"
#include "settings/envelope_label_settings.h"
#include "settings/other_settings.h"
#include "settings/receipt_layouts.h"

#include <functional>

// What is the same question to every form: its title, page and printer, what becomes of it when a step fails or nothing
// is there to print, and files that are damaged.

using namespace Qt::Literals::StringLiterals;
using enum FailureWay;

namespace {

// asLeft: printer and page as the window or the form before left them.
enum Trait : unsigned {
    single = 0,
    batch = 1,
    followsDefault = 2,
    takesClientsOut = 4,
    takesAllWhenAutomatic = 8,
    asLeft = 16
};

struct Form {
    const char* name;
    Routine routine;
    const char* title;
    FailureWay way;
    PageSetup page;
    unsigned traits = single;
    const char* summary = ""; // of the print dialog; without one it isn't shown

    bool is(Trait trait) const { return (traits & trait) != 0; }
    bool asks() const { return *summary != '\0'; }
};

const PageSetup a4, dl{2, 27, {}};
PageSetup own(double width, double height, int paper = 9) { return {1, paper, QSizeF(width, height)}; }

const unsigned taking = batch | takesClientsOut;
const char* const checks = "2 csekk, ebből 1 összeg nélkül";
const Form forms[] = {
    {"yellow upright", PrintAlloCsekk, "sarga-csekk", silent, dl, followsDefault},
    {"yellow sideways", PrintFekvoCsekk, "sarga-csekk", silent, own(210, 105), followsDefault},
    {"yellow upright batch", PrintCsAlloCsekk, "sarga-csekk", message, dl, batch | takesAllWhenAutomatic,
     "3 csekk, ebből 1 összeg nélkül"},
    {"yellow sideways batch", PrintCsFekvoCsekk, "sarga-csekk", silent, own(210, 105), batch},
    {"pink upright", PrintAlloRCsekk, "rozsaszin-csekk", message, dl},
    {"pink sideways", PrintFekvoRCsekk, "rozsaszin-csekk", message, a4},
    {"pink upright batch", PrintCsAlloRcsekk, "rozsaszin-csekk", message, dl, batch, checks},
    {"pink sideways batch", PrintCsFekvoRcsekk, "rozsaszin-csekk", message, a4, batch, checks},
    {"COD upright", PrintAlloULap, "utanveteli-lap", silent, dl},
    {"COD sideways", PrintFekvoULap, "utanveteli-lap", silent, a4},
    {"COD upright batch", PrintCsAlloUlap, "utanveteli-lap", silent, dl, batch},
    {"COD sideways batch", PrintCsFekvoUlap, "utanveteli-lap", silent, own(150, 105, 27), batch},
    {"return upright", PrintAlloTerti, "tertiveveny", passOver, {2, 9, {}}, followsDefault},
    {"return sideways", PrintFekvoTerti, "tertiveveny", silent, own(165, 105)},
    {"return upright batch", PrintCsAlloTerti, "tertiveveny", passOver, {2, 9, {}}, batch},
    {"return sideways batch", PrintCsFekvoTerti, "tertiveveny", silent, own(165, 105), batch | followsDefault},
    {"posting upright", PrintAlloFelado, "feladoveveny", fallbackFont, dl},
    {"posting sideways", PrintFekvoFelado, "feladoveveny", silent, own(165, 120), followsDefault},
    {"posting upright batch", PrintCsAlloFelado, "feladoveveny", fallbackFont, dl, taking},
    {"posting sideways batch", PrintCsFekvoFelado, "feladoveveny", silent, own(165, 120), taking | followsDefault},
    {"document upright", PrintAlloIrat, "irat-tertiveveny", passOver, dl},
    {"document sideways", PrintFekvoIrat, "irat-tertiveveny", passOver, own(105, 165)},
    {"document upright batch", PrintCsAlloIrat, "irat-tertiveveny", passOver, dl, taking},
    {"document sideways batch", PrintCsFekvoIrat, "irat-tertiveveny", passOver, own(105, 165, 27), taking},
    {"envelope upright", PrintAlloBoritek, "boritek", fallbackFont, {2, 28, {}}},
    {"envelope sideways", PrintFekvoBoritek, "boritek", fallbackFont, {1, 28, {}}},
    {"envelope upright batch", PrintCsAlloBoritek, "boritek", fallbackFont, {2, 28, {}}, batch},
    {"envelope sideways batch", PrintCsFekvoBoritek, "boritek", fallbackFont, {1, 28, {}}, batch},
    {"labels", PrintAlloCimke, "cimke", message, {1, 11, {}}, asLeft},
    {"posting list", PrintFeladojegyzek, "feladojegyzek", message, {2, 11, {}}, asLeft},
};

class EveryForm : public CheckTest {
protected:
    EveryForm() {
        files.store(SetUlap::factory());
        files.store(SetTerti::factory());
        files.store(SetFveveny::factory());
        files.store(SetIrat2::factory());
        files.store(boritek::firstRun());
        auto sheet = zeroRecord<CimkeSetup>();
        sheet.txtOszlop = sheet.txtSor = 2;
        files.store(sheet);
        files.store(Betutip::firstRun());
        files.store(Betumeret::firstRun());
        files.store(FjSet::firstRun());
        for (const int amount : {1234567, 0})
            addClient(clientNamed(u"Nagy Áron"_s, amount));
        const QString name = tabs.yellowCheck.txNev = u"Valaki"_s;
        tabs.returnReceipt.txNev2 = tabs.postingReceipt.txNev3 = tabs.documentReceipt.txtIratCimzettNev = name;
        tabs.envelope.txtBoritekCimzettNev = tabs.cashOnDelivery.lbUNev = tabs.pinkCheck.RlbNev = name;
    }
    PrintOutcome print(const Form& form, const std::vector<int>& selected) {
        if (form.asks() && prompts.printerChoices.empty()) prompts.printerChoices = {PrinterChoice{0, 3}};
        return form.routine(desk, tabs, {{1, 2, 1}, selected});
    }
};

} // namespace

TEST_F(EveryForm, HasItsTitlePageAndPrinterAndTakesItsClientsOut) {
    set.chkAutoPrint = set.chkPrintDel = 1;
    int taken = 0;
    desk.takeSelectedOut = [&] { ++taken; };
    for (const bool settingsFollowDefault : {false, true}) { // which is printer 2, else they say 1
        set.opPrinter_1 = settingsFollowDefault;
        storeSettings();
        for (const Form& form : forms) {
            SCOPED_TRACE(form.name);
            device.setCurrentPrinter(0);
            device.setPaperSize(11); // what another form has left
            prompts.summaries = {QString()};
            taken = 0;
            const PrintOutcome outcome = print(form, {1, 2});
            const int inForce = form.is(asLeft) ? 0 : !settingsFollowDefault ? 1 : form.is(followsDefault) ? 2 : 0;
            const auto& [job, printer] = lastJob();
            EXPECT_EQ(job.title, QLatin1String(form.title));
            EXPECT_EQ(job.pages[0].setup, form.page);
            EXPECT_EQ(outcome.pages, form.is(takesAllWhenAutomatic) ? 3 : form.is(batch) ? 2 : 1);
            EXPECT_EQ(outcome.device, service.names[printer]);
            EXPECT_EQ(std::pair(printer, job.copies), form.asks() ? std::pair(0, 3) : std::pair(inForce, 1));
            EXPECT_EQ(prompts.summaries.back(), QString::fromUtf8(form.summary));
            EXPECT_EQ(device.currentPrinter(), inForce) << "a printer of the dialog is for its job alone";
            EXPECT_EQ(taken, form.is(takesClientsOut) ? 1 : 0);
        }
    }
    EXPECT_TRUE(prompts.told.empty());
}

TEST_F(EveryForm, FailsItsOwnWayAndLeavesNothingToTheNextJob) {
    const auto any = [](const Form&) { return true; };
    const auto ofTheSettings = [](const Form& form) { return !form.is(asLeft); };
    const auto withNumbers = [](const Form& form) { return form.is(batch) || form.routine == PrintFeladojegyzek; };
    const auto withDialog = [](const Form& form) { return form.asks(); };
    std::vector<int> numbers;
    const struct {
        const char* name;
        int number;
        QString description;
        std::function<void()> cause;
        bool (*concerns)(const Form&);
        FailureWay prints; // the way that still prints; silent: none
    } failures[] = {
        {"printer", 9, u"A kiválasztott nyomtató nem érhető el, válassz másikat!"_s, [&] { set.lbPrintNo = 7; },
         ofTheSettings, passOver},
        {"client", 6, u"Túlcsordulás"_s, [&] { numbers.push_back(40000); }, withNumbers, passOver},
        {"dialog", 32755, u"A nyomtatás megszakítva."_s, [&] { prompts.printerChoices = {std::nullopt}; }, withDialog,
         silent},
        {"font", 380, u"Érvénytelen tulajdonságérték"_s, [&] { service.knownFonts = {u"Times New Roman"_s}; }, any,
         fallbackFont},
        {"all fonts", 380, u"Érvénytelen tulajdonságérték"_s, [&] { service.knownFonts.clear(); }, any, silent},
        {"device", 482, u"A nyomtató nem fogadja a munkát."_s, [&] { service.refuseWith = 482; }, any, silent},
    };
    const RecordingService sound = service;
    for (const auto& failure : failures) {
        for (const Form& form : forms) {
            if (!failure.concerns(form)) continue;
            SCOPED_TRACE(form.name + std::string(": ") + failure.name);
            numbers = {1};
            prompts.told.clear();
            failure.cause();
            storeSettings();
            const PrintOutcome outcome = print(form, numbers);
            const bool prints = failure.prints != silent && failure.prints == form.way;
            EXPECT_EQ(outcome.pages, prints ? 1 : 0);
            EXPECT_EQ(service.delivered.size(), prints ? 1U : 0U);
            const QString trouble = failure.number == 380 ? u"A betűtípus nem használható: "_s : failure.description;
            EXPECT_TRUE(outcome.trouble.startsWith(trouble)) << outcome.trouble.toStdString();
            const bool tells = !prints && (form.way == message || form.way == fallbackFont);
            ASSERT_EQ(prompts.told.size(), tells ? 1U : 0U);
            for (const Message& told : prompts.told) {
                const bool warns = form.way == message;
                EXPECT_EQ(told.icon, warns ? Icon::warning : Icon::none);
                EXPECT_EQ(told.title, warns ? u"! HIBA !"_s : u"!  H I B A  ! "_s);
                EXPECT_EQ(told.text, warns ? u"Hiba kódszáma: %1\n%2\n"_s.arg(failure.number).arg(failure.description)
                                           : u"%2\nHibakód száma : %1"_s.arg(failure.number).arg(failure.description));
            }
            service = sound;
            set.lbPrintNo = 1;
            storeSettings();
            EXPECT_EQ(print(form, {1}).pages, 1);
            service.delivered.clear();
        }
    }
}

TEST_F(EveryForm, WithNobodyToPrintForSaysSo) {
    const QString noClient = u"!  H I B A  !  Nincs kijelölve ügyfél a listáról..."_s;
    const std::pair<Routine, QString> rejected[] = {{PrintAlloCsekk, noClient},
                                                    {PrintFekvoCsekk, noClient},
                                                    {PrintAlloULap, noClient},
                                                    {PrintFekvoULap, noClient},
                                                    {PrintAlloBoritek, u"! H I B A ! Nincs címzett..."_s},
                                                    {PrintFekvoBoritek, u"! H I B A ! Nincs címzett..."_s}};
    tabs.yellowCheck.txNev = tabs.envelope.txtBoritekCimzettNev = u"  "_s;
    for (const auto& [routine, box] : rejected) {
        prompts.told.clear();
        EXPECT_TRUE(box.endsWith(routine(desk, tabs, {{}, {1}}).trouble));
        ASSERT_EQ(prompts.told.size(), 1U);
        EXPECT_EQ(prompts.told[0].title + prompts.told[0].text, box);
    }
    for (const Form& form : forms) {
        if (!form.is(batch) && !form.is(asLeft)) continue;
        EXPECT_EQ(print(form, {}).trouble, u"Nincs kijelölt ügyfél."_s) << form.name;
    }
    EXPECT_TRUE(service.delivered.empty());
    EXPECT_EQ(prompts.told.size(), 1U);
}

TEST_F(EveryForm, SurvivesDamagedFiles) {
    tabs.envelope.chkKepPrint = true;
    tabs.envelope.picture = QImage(2, 1, QImage::Format_RGB32);
    tabs.documentReceipt.chkVkod = true;
    tabs.label.chkCimke1[0] = true;
    tabs.label.cimkeRekord.fill(std::numeric_limits<int>::max());
    const std::pair<const char*, qsizetype> records[] = {
        {Set::fileName, sizeof(Set)},           {SetRcsekk::fileName, sizeof(SetRcsekk)},
        {SetUlap::fileName, sizeof(SetUlap)},   {SetTerti::fileName, sizeof(SetTerti)},
        {SetIrat2::fileName, sizeof(SetIrat2)}, {SetFveveny::fileName, sizeof(SetFveveny)},
        {boritek::fileName, sizeof(boritek)},   {CimkeSetup::fileName, sizeof(CimkeSetup)},
        {Betutip::fileName, sizeof(Betutip)},   {Betumeret::fileName, sizeof(Betumeret)},
        {FjSet::fileName, sizeof(FjSet)},       {ClientRec::fileName, sizeof(ClientRec)},
        {TwinRec::fileName, sizeof(TwinRec)}};
    desk.attended = false;
    // Names of fonts that such bytes make are taken, so that the positions are reached as well.
    for (const char16_t letter : {u'9', u'\x7f'})
        for (const qsizetype length : {25, 30})
            service.knownFonts << QString(length, letter);
    for (const auto& [name, size] : records) {
        const QString file = QString::fromLatin1(name);
        const QByteArray sound = files.has(file) ? files.bytes(file) : QByteArray();
        for (const char byte : {'\xff', '9', '\x7f'}) {
            for (const qsizetype length : {qsizetype{1}, size - 1, 2 * size}) {
                files.setBytes(file, QByteArray(length, byte));
                for (const bool other : {false, true}) { // the other side or kind of each form
                    tabs.pinkCheck.side = tabs.cashOnDelivery.side = other ? Side::back : Side::front;
                    tabs.pinkCheck.opAllando = other ? FixedParty::sender : FixedParty::addressee;
                    tabs.returnReceipt.foreign = tabs.label.chkEgyediCimke = other;
                    tabs.envelope.type = other ? EnvelopeType::C5 : EnvelopeType::C6;
                    for (const Form& form : forms) {
                        const PrintOutcome outcome = form.routine(desk, tabs, {{}, {1, 32767}});
                        EXPECT_TRUE(outcome.pages > 0 || !outcome.trouble.isEmpty()) << form.name << name;
                    }
                }
            }
        }
        files.setBytes(file, sound);
    }
}
