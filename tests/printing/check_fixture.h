#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "support/recording_service.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

// A routine that prints a form.
using Routine = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);

// A desk on a fresh program folder with factory settings; device 1 of the recording service is the chosen one. Text
// of 10 points is 1 mm a character and 4 mm a line there.
class CheckTest : public testing::Test {
protected:
    TestFolder files;
    RecordingService service;
    ScriptedPrompts prompts;
    PrintDevice device{service};
    PrintDesk desk{device, prompts, files};
    FormTabs tabs;
    Set set = Set::factory();
    SetRcsekk layout = SetRcsekk::factory();

    CheckTest() {
        set.lbPrintNo = 1;
        storeSettings();
    }

    void storeSettings() const {
        files.store(set);
        files.store(layout);
    }
    void storeAllFlagsBut(std::size_t flag) {
        set.chkNyomtatando.fill(true);
        set.chkNyomtatando[flag] = false;
        storeSettings();
    }

    PrintOutcome print(Routine routine, const std::vector<int>& selected = {1, 2}) const {
        return routine(desk, tabs, {{}, selected});
    }

    void addClient(const ClientRec& client, const TwinRec& twin = blankTwin()) const {
        const qint64 number = RecordFile<ClientRec>(files).count() + 1;
        files.store(client, number);
        files.store(twin, number);
    }

    // The texts of one page of the last job as "x y font|text"; T stands for the factory's text font, A for its
    // numeric font.
    QStringList lines(std::size_t page = 0) const {
        QStringList texts = placedTexts(lastJob().job.pages.at(page));
        texts.replaceInStrings(QStringLiteral("10 Times New Roman CE"), QStringLiteral("T"));
        texts.replaceInStrings(QStringLiteral("12 Arial CE"), QStringLiteral("A"));
        texts.replaceInStrings(QStringLiteral(".00"), QString());
        return texts;
    }

    static std::string joined(const QStringList& texts) { return texts.join(QStringLiteral("; ")).toStdString(); }
    std::string page(std::size_t page = 0) const { return joined(lines(page)); }
    // Only those with the given part.
    std::string page(std::size_t page, const QString& part) const { return joined(lines(page).filter(part)); }

    // Without the blanks that stored texts end in.
    std::string unpadded(std::size_t page = 0) const {
        QStringList texts = lines(page);
        for (QString& text : texts)
            text = text.trimmed();
        return joined(texts);
    }

    const RecordingService::Delivered& lastJob() const { return service.delivered.back(); }
    const PageSetup& lastSetup() const { return lastJob().job.pages.back().setup; }

    // Prints with one flag of the settings off after the other; `gone` are the rows, counted from 1, that go with it.
    void expectRowsGone(std::initializer_list<std::pair<std::size_t, std::vector<int>>> flags, Routine routine) {
        print(routine);
        const QStringList all = lines();
        for (const auto& [flag, gone] : flags) {
            storeAllFlagsBut(flag);
            QStringList expected = all;
            for (auto row = gone.rbegin(); row != gone.rend(); ++row)
                expected.removeAt(*row - 1);
            print(routine);
            EXPECT_EQ(page(), joined(expected)) << flag;
        }
    }
};
