#include "mainwindow/catalogue_lists.h"

#include "records/catalogue.h"

QStringList titleList(const ProgramFolder& folder) {
    QStringList titles;
    for (const CatalogueEntry& entry : readEntries(folder, firstTitleLines))
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
    for (const CatalogueEntry& entry : readEntries(folder, secondTitleLines)) {
        QString title = entry.Szoveg.trimmed();
        if (title == QStringLiteral("Fiz. hat.:"))
            title += locale.toString(today.addDays(daysToPay), QLocale::ShortFormat);
        titles << title;
    }
    return titles;
}

QStringList noticeList(const ProgramFolder& folder) {
    QStringList texts{QString()};
    for (const CatalogueEntry& entry : readEntries(folder, notices))
        texts << entry.Szoveg.stored();
    return texts;
}
