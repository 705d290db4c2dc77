#include "platform/program_lock.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QSysInfo>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(ProgramLock, TellsWhoHasTheFolderUntilHeIsGone) {
    const TestFolder folder;
    // As a lock names it; Windows says it elsewhere in small letters.
    const QString machine = qEnvironmentVariable("COMPUTERNAME", QSysInfo::machineHostName());
    {
        const ProgramLock first(folder);
        EXPECT_TRUE(first.holder().isEmpty());
        EXPECT_TRUE(ProgramLock(folder).holder().startsWith(machine));
    }
    folder.setBytes(u"Tarlimo.zar"_s, "999999999\nTarlimo\n" + machine.toUtf8() + "\n");
    EXPECT_TRUE(ProgramLock(folder).holder().isEmpty()) << "the lock of a killed process";
    const ProgramFolder nowhere(u"/nincs/ilyen/mappa"_s);
    EXPECT_TRUE(ProgramLock(nowhere).holder().isEmpty());
}
