#pragma once

#include <QColor>

// Of what has the focus or is selected, on paper and off it.
inline constexpr QColor focusColour(0x1f, 0x6f, 0xb5);

// Selected rows in the same colours on every platform, paler while another control has the focus: some desktops tell
// them apart from the others by a shade of grey that nobody sees. All other colours are the desktop's. To be called
// once, when the application stands.
void useOwnSelectionColours();
