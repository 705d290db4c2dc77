#pragma once

#include <functional>

// Starts the platform's system information tool. Empty where there is none.
std::function<void()> systemInformationTool();
