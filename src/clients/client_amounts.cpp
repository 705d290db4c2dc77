#include "clients/client_amounts.h"

#include <algorithm>

std::vector<StoredAmount> storedAmounts(const ClientRec& client) {
    std::vector<StoredAmount> amounts;
    for (int slot = 1; const std::int32_t forints : client.Osszegek) {
        if (isUsableAmount(forints)) amounts.push_back({slot, forints});
        ++slot;
    }
    return amounts;
}

QStringList offeredAmounts(const ClientRec& client) {
    QStringList digits;
    for (const StoredAmount& amount : storedAmounts(client))
        digits << QString::number(amount.forints);
    return digits;
}

AmountStored addAmount(const ProgramFolder& folder, int number, int forints) {
    const std::optional<Client> client = readClient(folder, number);
    if (!client) return AmountStored::noClient;
    const auto& slots = client->client.Osszegek;
    const auto empty = std::find(slots.begin(), slots.end(), 0);
    if (empty == slots.end()) return AmountStored::full;
    return setAmount(folder, number, static_cast<int>(empty - slots.begin()) + 1, forints);
}

AmountStored setAmount(const ProgramFolder& folder, int number, int slot, int forints) {
    std::optional<Client> client = readClient(folder, number);
    if (!client || slot < 1 || slot > 12) return AmountStored::noClient;
    client->client.Osszegek[static_cast<std::size_t>(slot) - 1] = forints;
    return modifyClient(folder, number, *client) ? AmountStored::stored : AmountStored::notWritten;
}
