#include "printing/check_batch.h"

#include <algorithm>

namespace {

constexpr float wordRowLimitMm = 45;
constexpr std::size_t keepTicksFlag = 6; // says that the ticks are kept, not what prints

bool isClientNumber(int number) { return number >= 1 && number <= maxClientNumber; }

} // namespace

Sheet checkSheet(Pen& pen, const Set& set, FormRun feed) {
    Sheet sheet;
    sheet.feed = feed;
    std::copy(set.chkNyomtatando.begin(), set.chkNyomtatando.end(), sheet.flags.begin());
    auto items = sheet.flags;
    items[keepTicksFlag] = false;
    if (std::find(items.begin(), items.end(), true) == items.end())
        pen.Note(QStringLiteral("A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"));
    return sheet;
}

WordRows batchWords(PrintDevice& device, std::int32_t amount, const Text<25>& font, int size) {
    return fitForForm(azaz1(amount), device, font.trimmed(), size, wordRowLimitMm);
}

void printClients(Pen& pen, const ProgramFolder& folder, const std::vector<int>& numbers,
                  const std::function<void(const Client&)>& printPage) {
    if (!std::all_of(numbers.begin(), numbers.end(), isClientNumber)) pen.Fail(6, QStringLiteral("Túlcsordulás"));
    if (pen.stopped()) return;
    RecordFile<TwinRec> twins(folder);
    RecordFile<ClientRec> clients(folder);
    for (const int number : numbers) {
        printPage({clients.read(number), twins.read(number)});
        pen.EndForm(FormEnd::page);
        if (pen.stopped()) return;
    }
}
