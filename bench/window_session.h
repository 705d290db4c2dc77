#pragma once

#include "records/program_folder.h"

#include <QProcess>

#include <functional>
#include <memory>

// The program's window in a process of its own, started at the first question.
class WindowSession {
public:
    // On the folder that `folder` gives; with so many font families, or with those of the machine.
    explicit WindowSession(std::function<const ProgramFolder&()> folder, int fonts = 0)
        : folder_(std::move(folder))
        , fonts_(fonts) {}
    WindowSession(const WindowSession&) = delete;
    WindowSession& operator=(const WindowSession&) = delete;
    ~WindowSession();

    // What the window answers to the name of an act: seconds, or a figure of its own.
    double ask(const char* act);

private:
    void start();

    std::function<const ProgramFolder&()> folder_;
    int fonts_;
    std::unique_ptr<QProcess> process_;
};

// The environment of a measured process: on an X server, or offscreen if `display` is empty.
QProcessEnvironment environmentFor(const QString& display);
