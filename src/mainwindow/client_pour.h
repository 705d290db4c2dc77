#pragma once

#include "printing/form_tabs.h"
#include "printing/print_device.h"
#include "records/client_database.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"

// What a click reads besides the client.
struct PourSettings {
    Set set;
    SetRcsekk pink;
};

// Fills all forms with one client, words of the amounts included. `client` is the caller's own copy: nothing that the
// filling sets off elsewhere can put another client in its place.
void pourClient(FormTabs& tabs, const Client& client, const PourSettings& settings, PrintDevice& device);

// The client in hand has been modified: all forms show the new texts. The amounts and their words, of which the entry
// tells nothing, stay as the clerk has them.
void pourModified(FormTabs& tabs, const Client& client, const PourSettings& settings);
