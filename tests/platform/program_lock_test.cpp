#include "platform/program_lock.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QSysInfo>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(ProgramLock, TellsWhoHasTheFolderUntilHeIsGone) {
    const TestFolder folder;
    {
        const ProgramLock first(folder);
        EXPECT_TRUE(first.holder().isEmpty());
        EXPECT_TRUE(ProgramLock(folder).holder().startsWith(QSysInfo::machineHostName()));
    }
    folder.setBytes(u"Tarlimo.zar"_s, "999999999\nTarlimo\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    EXPECT_TRUE(ProgramLock(folder).holder().isEmpty()) << "the lock of a killed process";
    const ProgramFolder nowhere(u"/nincs/ilyen/mappa"_s);
    EXPECT_TRUE(ProgramLock(nowhere).holder().isEmpty());
}
