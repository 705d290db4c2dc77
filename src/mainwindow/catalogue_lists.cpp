#include "mainwindow/catalogue_lists.h"

#include "records/record_file.h"
#include "records/reference_records.h"

namespace {

template<class Entry>
std::vector<Entry> entriesOf(const ProgramFolder& folder) {
    const QByteArray bytes = RecordFile<Entry>(folder).readAll();
    std::vector<Entry> entries(static_cast<std::size_t>(bytes.size()) / sizeof(Entry));
    if (!entries.empty())
        std::memcpy(static_cast<void*>(entries.data()), bytes.constData(), entries.size() * sizeof(Entry));
    return entries;
}

} // namespace

QStringList titleList(const ProgramFolder& folder) {
    QStringList titles;
    for (const TitleEntry& entry : entriesOf<TitleEntry>(folder))
        titles << entry.Szoveg.trimmed();
    return titles;
}

QLocale dateLocale() {
    const QLocale system = QLocale::system();
    return system.language() == QLocale::C ? QLocale(QLocale::Hungarian, QLocale::Hungary) : system;
}

QStringList secondTitleList(const ProgramFolder& folder, QDate today, const QLocale& locale) {
    constexpr int daysToPay = 10;
    QStringList titles;
    for (const SecondTitleEntry& entry : entriesOf<SecondTitleEntry>(folder)) {
        QString title = entry.Szoveg.trimmed();
        if (title == QStringLiteral("Fiz. hat.:"))
            title += locale.toString(today.addDays(daysToPay), QLocale::ShortFormat);
        titles << title;
    }
    return titles;
}

QStringList noticeList(const ProgramFolder& folder) {
    QStringList notices{QString()};
    for (const NoticeEntry& entry : entriesOf<NoticeEntry>(folder))
        notices << entry.Szoveg.stored();
    return notices;
}
