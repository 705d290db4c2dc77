#pragma once

#include <QObject>

#include <functional>

// Calls `end` on the thread of `context` when the system asks the process to terminate (SIGTERM, SIGINT, SIGHUP); where
// the toolkit tells of the session's end by itself, nothing is needed and nothing is done. To be called once.
void onTerminationRequest(QObject* context, std::function<void()> end);
