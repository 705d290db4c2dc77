#pragma once

#include "../mainwindow/window_fixture.h"
#include "../settings/setup_fixture.h"
#include "platform/qt_print_service.h"
#include "settings/setup/catalogue_dialog.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

// A program folder with clients, settings and files of strangers, and whatever is open on it.
class Stage : public WindowTest {
public:
    Stage();

    using WindowTest::find;
    using WindowTest::open;
    using WindowTest::prompts;
    using WindowTest::status;
    using WindowTest::window;

    const TestFolder& folder() const { return files; }
    std::string path() const { return files.folder().path().toStdString(); }
    void clickSecondClient() const { clickRow(1); }

    std::optional<OpenedSetup> setup;
    std::optional<CatalogueDialog> catalogue;
    std::optional<QtPrintService> printer;

private:
    void TestBody() override {}
};

// What an action told of itself.
enum class Told {
    done,
    failed, // all is as it was
    partly  // half done, and said so
};

// One thing that a clerk or the program does to the files of its folder.
struct Action {
    using Work = std::function<Told()>;

    std::string name;
    // Lays out the files and opens what it takes, so that only the action itself is left to do.
    std::function<Work(Stage&)> ready;
    std::size_t leastCalls = 8;          // a guard against an interception that isn't reached
    bool changesFiles = true;            // if all goes well
    bool tellsFailures = true;           // a tab number that isn't kept stops no clerk
    bool storesSeveral = false;          // files that are each a whole of their own, and says so
    std::string writtenInPlace{};        // a file for other programs, which a kill may leave half written
    std::function<void(Stage&)> again{}; // what the next run does by itself; with it the action is done, and once
};

const std::vector<Action>& actions();
