#include "worked_window.h"

#include <QApplication>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// window_session <program folder>
// The program's window in a process of its own, with its own fonts and memory, worked by words on the standard input.
// Each is answered by a number on a line of its own.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const ProgramFolder folder(QString::fromLocal8Bit(argv[1]));
    WorkedWindow window(folder);
    std::array<char, 64> word{};
    while (std::fgets(word.data(), word.size(), stdin) != nullptr) {
        word[std::strcspn(word.data(), "\n")] = '\0';
        std::printf("%.9f\n", window.work(word.data()));
        std::fflush(stdout);
    }
    std::_Exit(0);
}
