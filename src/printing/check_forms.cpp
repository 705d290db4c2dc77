#include "printing/check_forms.h"

#include "prompts/titles.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

PrintOptions checkOptions(Pen& pen, const Set& set, Run run) {
    PrintOptions options{.run = run};
    std::copy(set.chkNyomtatando.begin(), set.chkNyomtatando.end(), options.flags.begin());
    auto items = options.flags;
    items[Printed::keepTicks] = false;
    if (std::find(items.begin(), items.end(), true) == items.end())
        pen.Note(u"A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"_s);
    return options;
}

WordRows batchWords(PrintDevice& device, std::int32_t amount, const Text<25>& font, int size) {
    return fitForForm(azaz1(amount), device, font.trimmed(), size, wordRowLimitMm);
}

std::optional<Message> missingClient(const YellowCheckTab& tab) {
    if (!trimBlanks(tab.txNev).isEmpty()) return {};
    return Message{Icon::none, titles::formError, u" Nincs kijelölve ügyfél a listáról..."_s};
}
