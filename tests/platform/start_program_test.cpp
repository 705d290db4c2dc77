#include "platform/start_program.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

#ifdef Q_OS_UNIX
TEST(StartProgram, APathIsOneProgramWhateverItsBlanks) {
    const QTemporaryDir folder;
    const QString program = folder.filePath(u"a program"_s);
    EXPECT_FALSE(startProgram(program, u"x"_s));
    ASSERT_TRUE(QFile::link(u"/bin/true"_s, program));
    EXPECT_TRUE(startProgram(program, u"x"_s));
    EXPECT_FALSE(startProgram({}, u"x"_s));
    EXPECT_FALSE(startProgram(folder.path(), u"x"_s));
}
#endif
