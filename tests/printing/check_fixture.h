#pragma once

#include "printing/print_desk.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "support/recording_service.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

// A desk on a fresh program folder with factory settings; device 1 of the recording service is the chosen one. Text
// of 10 points is 1 mm a character and 4 mm a line there.
class CheckTest : public testing::Test {
protected:
    TestFolder files;
    RecordingService service;
    ScriptedPrompts prompts;
    PrintDevice device{service};
    PrintDesk desk{device, prompts, files};
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

    const RecordingService::Delivered& lastJob() const { return service.delivered.back(); }

    // Fills a settings file with one byte, whole or cut short.
    void damage(const char* fileName, char byte, qsizetype length) const {
        files.setBytes(QString::fromLatin1(fileName), QByteArray(length, byte));
    }
};
