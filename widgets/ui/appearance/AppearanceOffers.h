// SPDX-License-Identifier: GPL-3.0-or-later
// What a product lets its users restyle, beside the text colour and the kind of background, which
// every product does.
#pragma once

struct AppearanceOffers {
    bool offerRingOptions = false;  ///< rings around knobs: shown or not, and how wide
    bool offerKnobType = false;     ///< the kind of knob; without, that of the product's tables
    bool hideColourOptions = false; ///< no colour, no gradient, no bevels to choose
};
