#pragma once

#include "printing/print_device.h"
#include "prompts/prompts.h"
#include "records/client_database.h"
#include "records/record_file.h"

#include <type_traits>

// The client last clicked, as read then; the number is 0 and the record zero while there is none.
struct SelectedClient {
    int rekordszam = 0;
    Client record = {zeroRecord<ClientRec>(), zeroRecord<TwinRec>()};
};

// What the views and their rules reach of the program.
struct FormContext {
    const ProgramFolder& folder;
    PrintDevice& device;
    Prompts& prompts;
    const SelectedClient& selected;
};

// What a rule asks for by the type of a parameter: a part of the context, the client last clicked, or else a settings
// record as stored at this moment.
template<class Need>
decltype(auto) supply(const FormContext& context) {
    if constexpr (std::is_same_v<Need, ProgramFolder>)
        return (context.folder);
    else if constexpr (std::is_same_v<Need, PrintDevice>)
        return (context.device);
    else if constexpr (std::is_same_v<Need, Prompts>)
        return (context.prompts);
    else if constexpr (std::is_same_v<Need, SelectedClient>)
        return (context.selected);
    else if constexpr (std::is_same_v<Need, ClientRec>)
        return (context.selected.record.client);
    else
        return readRecord<Need>(context.folder);
}
